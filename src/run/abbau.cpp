#include "run/abbau.h"

#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"

namespace varnok {
namespace {

// SFO: C(d) = C(d-1) exp(-k).
class Abbau_SFO final : public Abbau {
public:
    using Abbau::Abbau;

    void korrigiere(const Korrektur& k) override { Rest_ = std::exp(-k.korrigiert(l_.Felder.Parameter.k_SFO[0][Studie()])); }

    void baue_ab(int d, int Anzahl) override {
        for (int s = 1; s <= Anzahl; ++s) baue_ab(Reihen_.Plateau[s] + d);
        for (int s = 1; s <= Bodenslots(Anzahl); ++s) baue_ab(Reihen_.Boden[s] + d);
    }

private:
    void baue_ab(float* heute) const { *heute = static_cast<float>(static_cast<double>(heute[-1]) * Rest_); }

    double Rest_ = 1;
};

// DFOP: two compartments of double precision, each with its own rate; the store holds their sum.
class Abbau_DFOP final : public Abbau {
public:
    explicit Abbau_DFOP(Lauf& l) : Abbau(l), g_(l.Felder.Parameter.g_DFOP[0][Studie()]) {}

    void korrigiere(const Korrektur& k) override {
        Rest_ = {std::exp(-k.korrigiert(l_.Felder.Parameter.k1_DFOP[0][Studie()])),
                 std::exp(-k.korrigiert(l_.Felder.Parameter.k2_DFOP[0][Studie()]))};
    }

    void baue_ab(int d, int Anzahl) override {
        for (int s = 1; s <= Anzahl; ++s) Reihen_.Plateau[s][d] = baue_ab(Phase_Plateau_[static_cast<std::size_t>(s)]);
        for (int s = 1; s <= Bodenslots(Anzahl); ++s) Reihen_.Boden[s][d] = baue_ab(Phase_Boden_[static_cast<std::size_t>(s)]);
    }

    void beginne_Tag_0() override {
        Phase_Plateau_[1] = teile(static_cast<double>(Reihen_.Plateau[1][0]));
        Phase_Boden_[1] = teile(static_cast<double>(Reihen_.Boden[1][0]));
    }

    void dosiere(int Slot, int d, double C) override {
        const auto s = static_cast<std::size_t>(Slot);
        const Phasen Teile = teile(C);
        const Phasen Plateauteile = {Teile.schnell * Tiefe_Boden_ / Tiefe_Plateau_,
                                     Teile.langsam * Tiefe_Boden_ / Tiefe_Plateau_};
        Reihen_.Plateau[Slot][d] = addiere(Phase_Plateau_[s], Plateauteile);
        if (Jahr_von(d) == 1) Reihen_.Boden[Slot][d] = addiere(Phase_Boden_[s], Teile);
    }

    void vereinige(int alter_Slot, int Slot, int d) override {
        Abbau::vereinige(alter_Slot, Slot, d);
        addiere(Phase_Plateau_[static_cast<std::size_t>(Slot)], Phase_Plateau_[static_cast<std::size_t>(alter_Slot)]);
        Phase_Plateau_[static_cast<std::size_t>(alter_Slot)] = {};
    }

private:
    struct Phasen {
        double schnell = 0;
        double langsam = 0;
    };

    Phasen teile(double C) const { return {g_ * C, (1 - g_) * C}; }

    static float addiere(Phasen& p, const Phasen& Zuwachs) {
        p.schnell += Zuwachs.schnell;
        p.langsam += Zuwachs.langsam;
        return static_cast<float>(p.schnell + p.langsam);
    }

    float baue_ab(Phasen& p) const {
        p.schnell *= Rest_.schnell;
        p.langsam *= Rest_.langsam;
        return static_cast<float>(p.schnell + p.langsam);
    }

    double g_;
    Phasen Rest_{1, 1};
    std::array<Phasen, Slots_Plateau> Phase_Plateau_{};
    std::array<Phasen, Slots_Boden> Phase_Boden_{};
};

// FOMC: C(d) = C(reference day) / (t / beta + 1)^alpha. Temperature and moisture act on the biological
// time t. Without separate residues a dose restarts the clock of both series, so that in later years the
// one in the soil depth rises back to the height of its reference day without a dose.
class Abbau_FOMC final : public Abbau {
public:
    explicit Abbau_FOMC(Lauf& l)
        : Abbau(l), alpha_(l.Felder.Parameter.alpha_FOMC[Studie()]), beta_(l.Felder.Parameter.beta_FOMC[Studie()]) {
        if (beta_ == 0) melde_unmoegliche_Rechnung("FOMC beta = 0", {{}, 0, "beta_FOMC", l.i_studie, 0});
        if (l.Felder.Parameter.Separate_Rueckstaende != 0) bestimme_Bezugstage();
    }

    void korrigiere(const Korrektur& k) override { Faktor_ = k.Faktor(); }

    void baue_ab(int d, int Anzahl) override {
        for (int s = 1; s <= Anzahl; ++s) {
            const auto i = static_cast<std::size_t>(s);
            Zeit_[i] += Faktor_;
            const double Nenner = std::pow(Zeit_[i] / beta_ + 1, alpha_);
            setze(Reihen_.Plateau[s], d, Bezugstag_Plateau_[i], Nenner);
            if (s < Slots_Boden) setze(Reihen_.Boden[s], d, Bezugstag_Boden_[i], Nenner);
        }
    }

    void beginne_Slot(int Slot, int d) override {
        Zeit_[static_cast<std::size_t>(Slot)] = 0;
        if (l_.Felder.Parameter.Separate_Rueckstaende != 0) return;
        Bezugstag_Plateau_[1] = d;
        if (Jahr_von(d) == 1) Bezugstag_Boden_[1] = d;
    }

private:
    static void setze(float* Reihe, int d, int Bezugstag, double Nenner) {
        Reihe[d] = static_cast<float>(static_cast<double>(Reihe[Bezugstag]) / Nenner);
    }

    // The slot of number s refers to event s, also where a row of rate 0 lets the slots run behind the
    // events. A slot behind the first year's events holds nothing in the soil depth.
    void bestimme_Bezugstage() {
        const auto& Tage = l_.Speicher.Applikationstag;
        const auto letzter = static_cast<std::size_t>(l_.Felder.Anzahl());
        for (std::size_t s = 1; s < Ereignisplaetze; ++s) {
            Bezugstag_Plateau_[s] = Tage[s];
            Bezugstag_Boden_[s] = Tage[std::min(s, letzter)];
        }
    }

    double alpha_;
    double beta_;
    double Faktor_ = 1;
    std::array<double, Slots_Plateau> Zeit_{};
    std::array<int, Slots_Plateau> Bezugstag_Plateau_{};
    std::array<int, Slots_Plateau> Bezugstag_Boden_{};
};

// HS: SFO with k1 up to the breakpoint in biological time, with k2 after it. A dose without separate
// residues takes the whole residue back to the first phase.
class Abbau_HS final : public Abbau {
public:
    using Abbau::Abbau;

    void korrigiere(const Korrektur& k) override {
        Faktor_ = k.Faktor();
        Rest_vor_ = std::exp(-k.korrigiert(l_.Felder.Parameter.k1_HS[Studie()]));
        Rest_nach_ = std::exp(-k.korrigiert(l_.Felder.Parameter.k2_HS[Studie()]));
    }

    void baue_ab(int d, int Anzahl) override {
        const double Tb = l_.Felder.Parameter.Tb_HS[Studie()];
        for (int s = 1; s <= Anzahl; ++s) {
            double& Zeit = Zeit_[static_cast<std::size_t>(s)];
            Zeit += Faktor_;
            const double Rest = Zeit > Tb ? Rest_nach_ : Rest_vor_;
            baue_ab(Reihen_.Plateau[s] + d, Rest);
            if (s < Slots_Boden) baue_ab(Reihen_.Boden[s] + d, Rest);
        }
    }

    void beginne_Slot(int Slot, int) override { Zeit_[static_cast<std::size_t>(Slot)] = 0; }

private:
    static void baue_ab(float* heute, double Rest) { *heute = static_cast<float>(static_cast<double>(heute[-1]) * Rest); }

    double Faktor_ = 1;
    double Rest_vor_ = 1;
    double Rest_nach_ = 1;
    std::array<double, Slots_Plateau> Zeit_{};
};

}  // namespace

void Abbau::beginne_Slot(int, int) {}

void Abbau::dosiere(int Slot, int d, double C) {
    waechst_um(Reihen_.Plateau[Slot][d], C * Tiefe_Boden_ / Tiefe_Plateau_);
    if (Jahr_von(d) == 1) waechst_um(Reihen_.Boden[Slot][d], C);
}

void Abbau::vereinige(int alter_Slot, int Slot, int d) {
    float* alt = Reihen_.Plateau[alter_Slot];
    waechst_um(Reihen_.Plateau[Slot][d], static_cast<double>(alt[d]));
    alt[d] = 0;
    alt[l_.Speicher.Applikationstag[static_cast<std::size_t>(alter_Slot)]] = 0;  // an FOMC curve starts there
}

std::unique_ptr<Abbau> erstelle_Abbau(Lauf& l) {
    const Kinetikart Kinetik = l.Felder.Parameter.Kinetik[0][static_cast<std::size_t>(l.i_studie)];
    if (Kinetik == SFO) return std::make_unique<Abbau_SFO>(l);
    if (Kinetik == DFOP) return std::make_unique<Abbau_DFOP>(l);
    if (Kinetik == FOMC) return std::make_unique<Abbau_FOMC>(l);
    if (Kinetik == HS) return std::make_unique<Abbau_HS>(l);
    melde_unmoegliche_Rechnung("kinetics of the parent = " + std::to_string(Kinetik), {{}, 0, "Kinetik", l.i_studie, 0});
}

}  // namespace varnok
