#include "batch/verteilung.h"

#include <algorithm>
#include <array>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/triangular.hpp>
#include <boost/math/distributions/uniform.hpp>
#include <cmath>
#include <numeric>
#include <utility>

namespace varnok::batch {
namespace {

namespace bm = boost::math;

// A probability that rounds to 1 gives an infinite value, which no field takes.
using Regeln =
    bm::policies::policy<bm::policies::overflow_error<bm::policies::ignore_error>, bm::policies::promote_double<false>>;
using Normal = bm::normal_distribution<double, Regeln>;
using Lognormal = bm::lognormal_distribution<double, Regeln>;
using Gleich = bm::uniform_distribution<double, Regeln>;
using Dreieck = bm::triangular_distribution<double, Regeln>;

template <class Art>
class Stetige : public Verteilung {
public:
    explicit Stetige(const Art& d) : d_(d) {}
    std::optional<Eingabewert> Quantil(double u) const override {
        const double x = bm::quantile(d_, u);
        return std::isfinite(x) ? std::optional(als_Eingabewert(x)) : std::nullopt;
    }

private:
    Art d_;
};

template <class Art>
std::unique_ptr<Verteilung> mache(const Art& d) {
    return std::make_unique<Stetige<Art>>(d);
}

struct Bedingung {
    Parametereinwand sonst;
    bool (*gilt)(const Parameter_abc&);
};

struct Eintrag {
    const char* Name;
    int Parameter;
    std::array<Bedingung, 2> Bedingungen;  // the rest without a condition
    std::unique_ptr<Verteilung> (*mache)(const Parameter_abc&);
};

const Eintrag Stetige_Verteilungen[] = {
    {"normal",
     2,
     {{{{'b', "the deviation b must be above 0"}, [](const Parameter_abc& p) { return p.b > 0; }}}},
     [](const Parameter_abc& p) { return mache(Normal(p.a, p.b)); }},
    {"lognormal",
     2,
     {{{{'a', "the median a must be above 0"}, [](const Parameter_abc& p) { return p.a > 0; }},
       {{'b', "the factor b must be above 1"}, [](const Parameter_abc& p) { return p.b > 1; }}}},
     [](const Parameter_abc& p) { return mache(Lognormal(std::log(p.a), std::log(p.b))); }},
    {"uniform",
     2,
     {{{{'b', "a must be below b"}, [](const Parameter_abc& p) { return p.a < p.b; }}}},
     [](const Parameter_abc& p) { return mache(Gleich(p.a, p.b)); }},
    {"triangular",
     3,
     {{{{'c', "a must be below c"}, [](const Parameter_abc& p) { return p.a < p.c; }},
       {{'b', "the mode b must lie from a to c"}, [](const Parameter_abc& p) { return p.a <= p.b && p.b <= p.c; }}}},
     [](const Parameter_abc& p) { return mache(Dreieck(p.a, p.b, p.c)); }},
};

const Eintrag* finde(const std::string& Name) {
    for (const Eintrag& x : Stetige_Verteilungen) {
        if (Name == x.Name) return &x;
    }
    return nullptr;
}

class Liste : public Verteilung {
public:
    explicit Liste(std::vector<gewichteter_Wert> Werte) : Werte_(std::move(Werte)) {
        if (!Werte_.front().Wert.ist_Wort) {
            std::stable_sort(Werte_.begin(), Werte_.end(),
                             [](const auto& x, const auto& y) { return x.Wert.Zahl() < y.Wert.Zahl(); });
        }
        double Summe = 0;
        for (const gewichteter_Wert& w : Werte_) Grenzen_.push_back(Summe += w.Gewicht);
    }

    std::optional<Eingabewert> Quantil(double u) const override {
        const auto Stelle = std::upper_bound(Grenzen_.begin(), Grenzen_.end(), u * Grenzen_.back());
        const auto i = static_cast<std::size_t>(std::min(Stelle, Grenzen_.end() - 1) - Grenzen_.begin());
        return Werte_[i].Wert;
    }

    bool aus_Liste() const override { return true; }

private:
    std::vector<gewichteter_Wert> Werte_;
    std::vector<double> Grenzen_;  // sums of the weights up to each value
};

}  // namespace

std::optional<Parametereinwand> Einwand_gegen(const std::string& Name, const Parameter_abc& p) {
    const Eintrag* x = finde(Name);
    if (x == nullptr) return std::nullopt;
    for (const Bedingung& b : x->Bedingungen) {
        if (b.gilt != nullptr && !b.gilt(p)) return b.sonst;
    }
    return std::nullopt;
}

std::unique_ptr<Verteilung> stetige_Verteilung(const std::string& Name, const Parameter_abc& p) {
    const Eintrag* x = finde(Name);
    return x == nullptr ? nullptr : x->mache(p);
}

int Parameterzahl(const std::string& Name) {
    const Eintrag* x = finde(Name);
    return x == nullptr ? 0 : x->Parameter;
}

std::unique_ptr<Verteilung> Werteliste(std::vector<gewichteter_Wert> Werte) { return std::make_unique<Liste>(std::move(Werte)); }

double Normalwert(double u) { return bm::quantile(Normal(), u); }

double Wahrscheinlichkeit(double z) { return bm::cdf(Normal(), z); }

}  // namespace varnok::batch
