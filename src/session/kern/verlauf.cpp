#include "session/kern/verlauf.h"

#include <utility>

#include "session/kern/unterschied.h"

namespace varnok {
namespace {

constexpr std::size_t laengster_Verlauf = 500;

}  // namespace

void Verlauf::beginne(const Eingabe& e) {
    Staende_.assign(1, e);
    Platz_ = 0;
    geholt_ = false;
}

void Verlauf::merke(const Eingabe& e) {
    if (Staende_.empty()) return beginne(e);
    if (std::exchange(geholt_, false)) Staende_[Platz_] = e;
    if (Staende_[Platz_] == e) return;
    Staende_.resize(Platz_ + 1);
    Staende_.push_back(e);
    if (Staende_.size() > laengster_Verlauf) Staende_.erase(Staende_.begin());
    Platz_ = Staende_.size() - 1;
}

const Eingabe& Verlauf::zurueck() {
    geholt_ = true;
    return Staende_.at(--Platz_);
}

const Eingabe& Verlauf::vor() {
    geholt_ = true;
    return Staende_.at(++Platz_);
}

std::string Verlauf::Name_zurueck() const {
    return kann_zurueck() ? vergleiche(Staende_[Platz_ - 1], Staende_[Platz_]).Name : std::string();
}

std::string Verlauf::Name_vor() const {
    return kann_vor() ? vergleiche(Staende_[Platz_], Staende_[Platz_ + 1]).Name : std::string();
}

std::string Verlauf::Name_des_Offenen(const Eingabe& e) const {
    const bool unveraendert = Staende_.empty() || Staende_[Platz_] == e;
    return unveraendert ? std::string() : vergleiche(Staende_[Platz_], e).Name;
}

}  // namespace varnok
