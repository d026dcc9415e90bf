#include "run/abbau.h"

#include <array>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/kehrpotenz.h"

namespace varnok {
namespace {

constexpr std::size_t Gruppe = Zeilengruppe;
constexpr std::size_t Laenge = Slotzeilen::Zeilenlaenge;

constexpr auto Platz = [](int i) { return static_cast<std::size_t>(i); };

// Rows side by side, each day the rest of the day before; `Rest(j, t)` is what day t leaves of row j. The rounding of a day
// waits for that of the day before, so that the rows of a group share the waiting.
template <class Funktion>
void baue_Gruppe_ab(float* erste_Zeile, int n, Funktion Rest) {
    std::array<float, Gruppe> v{};
    for (std::size_t j = 0; j < Gruppe; ++j) v[j] = erste_Zeile[j * Laenge];
    for (std::size_t t = 0; t < Platz(n); ++t) {
        for (std::size_t j = 0; j < Gruppe; ++j) {
            v[j] = static_cast<float>(static_cast<double>(v[j]) * Rest(j, t));
            erste_Zeile[j * Laenge + t + 1] = v[j];
        }
    }
}

// SFO: C(d) = C(d-1) exp(-k).
class Abbau_SFO final : public Abbau {
public:
    using Abbau::Abbau;

    std::span<const double> Konstanten() const override { return {&Parameter().k_SFO[0][Studie()], 1}; }

    void baue_ab(int d, int n, int Anzahl) override {
        const double* Rest = &Faktoren_.Rest(0)[Platz(d)];
        for (int i = 0; i < Zeilenzahl(Anzahl); i += Zeilengruppe) {
            baue_Gruppe_ab(Zeilen_.Slotzeile(i), n, [=](std::size_t, std::size_t t) { return Rest[t]; });
        }
    }
};

// DFOP: two compartments of double precision, each with its own rate; the store holds their sum.
class Abbau_DFOP final : public Abbau {
public:
    explicit Abbau_DFOP(Lauf& l)
        : Abbau(l), k_{Parameter().k1_DFOP[0][Studie()], Parameter().k2_DFOP[0][Studie()]}, g_(Parameter().g_DFOP[0][Studie()]) {}

    std::span<const double> Konstanten() const override { return k_; }

    void baue_ab(int d, int n, int Anzahl) override {
        for (int i = 0; i < Zeilenzahl(Anzahl); i += Zeilengruppe) baue_Gruppe_ab(i, d, n);
    }

    void beginne_Tag_0() override {
        for (const Tiefe t : {Tiefe::Plateau, Tiefe::Boden}) Phasen_von(t, 1) = teile(static_cast<double>(Zeilen_.heute(t, 1)));
    }

    void dosiere(int Slot, int d, double C) override {
        const Phasen Teile = teile(C);
        addiere(Tiefe::Plateau, Slot,
                {Teile.schnell * Tiefe_Boden_ / Tiefe_Plateau_, Teile.langsam * Tiefe_Boden_ / Tiefe_Plateau_});
        if (Jahr_von(d) == 1) addiere(Tiefe::Boden, Slot, Teile);
    }

    void vereinige(int alter_Slot, int Slot, int d) override {
        Abbau::vereinige(alter_Slot, Slot, d);
        Phasen& alt = Phasen_von(Tiefe::Plateau, alter_Slot);
        Phasen& neu = Phasen_von(Tiefe::Plateau, Slot);
        neu.schnell += alt.schnell;
        neu.langsam += alt.langsam;
        alt = {};
    }

private:
    struct Phasen {
        double schnell = 0;
        double langsam = 0;
    };

    Phasen& Phasen_von(Tiefe t, int Slot) { return Phasen_[Platz(Zeilennummer(t, Slot))]; }
    Phasen teile(double C) const { return {g_ * C, (1 - g_) * C}; }

    void addiere(Tiefe t, int Slot, const Phasen& Zuwachs) {
        Phasen& p = Phasen_von(t, Slot);
        p.schnell += Zuwachs.schnell;
        p.langsam += Zuwachs.langsam;
        Zeilen_.heute(t, Slot) = static_cast<float>(p.schnell + p.langsam);
    }

    void baue_Gruppe_ab(int erste, int d, int n) {
        float* Zeile = Zeilen_.Slotzeile(erste);
        const double* Rest_schnell = &Faktoren_.Rest(0)[Platz(d)];
        const double* Rest_langsam = &Faktoren_.Rest(1)[Platz(d)];
        std::array<Phasen, Gruppe> p;
        for (std::size_t j = 0; j < Gruppe; ++j) p[j] = Phasen_[Platz(erste) + j];
        for (std::size_t t = 0; t < Platz(n); ++t) {
            for (std::size_t j = 0; j < Gruppe; ++j) {
                p[j].schnell *= Rest_schnell[t];
                p[j].langsam *= Rest_langsam[t];
                Zeile[j * Laenge + t + 1] = static_cast<float>(p[j].schnell + p[j].langsam);
            }
        }
        for (std::size_t j = 0; j < Gruppe; ++j) Phasen_[Platz(erste) + j] = p[j];
    }

    std::array<double, 2> k_;
    double g_;
    std::array<Phasen, alle_Zeilen> Phasen_{};
};

// FOMC: C(d) = C(reference day) / (t / beta + 1)^alpha. Temperature and moisture act on the biological
// time t. Without separate residues a dose restarts the clock of both series, so that in later years the
// one in the soil depth rises back to the height of its reference day without a dose.
class Abbau_FOMC final : public Abbau {
public:
    explicit Abbau_FOMC(Lauf& l)
        : Abbau(l), alpha_(Parameter().alpha_FOMC[Studie()]), beta_(Parameter().beta_FOMC[Studie()]), Potenz_(alpha_) {
        if (beta_ == 0) melde_unmoegliche_Rechnung("FOMC beta = 0", {{}, 0, "beta_FOMC", l.i_studie, 0});
    }

    void baue_ab(int d, int n, int Anzahl) override {
        static_assert(Slotzeilen::Tage <= Kehrpotenz::groesste_Anzahl);
        if (!bereit_) bereite_vor(d);
        for (int s = 1; s <= Anzahl; ++s) {
            Tageszeile Zeit;
            Tageszeile Ablage;
            const bool bekannt = kennt_Kehrwerte(s);
            double* Kehrwert = merkt_Kehrwerte(s) || bekannt ? Kehrwerte_am(s, d) : Ablage.data();
            if (!bekannt) {
                stelle_Uhr(Zeit_[Platz(s)], d, n, Zeit);
                if (genaehert_) naehere(Zeit, n, Kehrwert);
            }
            for (const Tiefe t : {Tiefe::Plateau, Tiefe::Boden}) {
                if (s > Slots_von(t, Anzahl) || (genaehert_ && multipliziere(t, s, n, Kehrwert))) continue;
                if (bekannt) stelle_Uhr_nach(s, d, n, Zeit);
                teile(t, s, n, Zeit);
            }
        }
    }

    void beginne_Tag_0() override {
        for (const Tiefe t : {Tiefe::Plateau, Tiefe::Boden}) merke_Bezug(t, 1);
        Slots_in_Jahr_1_ = 1;
    }

    void beginne_Slot(int Slot, int d) override {
        Zeit_[Platz(Slot)] = 0;
        Dosistag_[Platz(Slot)] = d;
        if (Jahr_von(d) == 1) Slots_in_Jahr_1_ = Slot;
    }

    // The slot of number s refers to the day of event s. Where a row of rate 0 lets the slots run behind the events, that is a
    // day on which the slot was still empty.
    void dosiere(int Slot, int d, double C) override {
        Abbau::dosiere(Slot, d, C);
        if (getrennt() && l_.Speicher.Applikationstag[Platz(Slot)] != d) return;
        merke_Bezug(Tiefe::Plateau, Slot);
        if (Jahr_von(d) == 1) merke_Bezug(Tiefe::Boden, Slot);
    }

    void vereinige(int alter_Slot, int Slot, int d) override {
        Abbau::vereinige(alter_Slot, Slot, d);
        Bezug(Tiefe::Plateau, alter_Slot) = 0;
    }

private:
    using Tageszeile = std::array<double, Slotzeilen::Tage>;

    float& Bezug(Tiefe t, int Slot) { return Bezug_[Platz(Zeilennummer(t, Slot))]; }
    void merke_Bezug(Tiefe t, int Slot) { Bezug(t, Slot) = Zeilen_.heute(t, Slot); }

    // Whether the powers can be had nearly, and from which day on the correction is that of a year before.
    void bereite_vor(int erster_Tag) {
        const Tageszahlen& f = Faktoren_.Faktor();
        double laengste_Zeit = 0;
        for (int d = erster_Tag; d <= Faktoren_.letzter(); ++d) laengste_Zeit += f[Platz(d)];
        genaehert_ = !Faktoren_.rueckwaerts() && Potenz_.reicht_bis(laengste_Zeit * 1.001 / beta_ + 1);
        wiederholt_ab_ = letzter_Tag + 1;
        while (wiederholt_ab_ - Tage_pro_Jahr > erster_Tag &&
               f[Platz(wiederholt_ab_ - 1)] == f[Platz(wiederholt_ab_ - 1 - Tage_pro_Jahr)]) {
            --wiederholt_ab_;
        }
        bereit_ = true;
    }

    // A slot of a later year has the clock, and so the powers, of the slot of the same dose in the first year, if the correction
    // repeats from that dose on. Those of the first year are kept, by the age of the slot.
    bool merkt_Kehrwerte(int Slot) const { return getrennt() && genaehert_ && Slot <= Slots_in_Jahr_1_; }
    bool kennt_Kehrwerte(int Slot) const {
        return getrennt() && genaehert_ && Slot > Slots_in_Jahr_1_ &&
               wiederholt_ab_ <= Dosistag_[Platz(Vorgaenger(Slot))] + 1 + Tage_pro_Jahr;
    }
    int Vorgaenger(int Slot) const { return (Slot - 1) % Slots_in_Jahr_1_ + 1; }
    double* Kehrwerte_am(int Slot, int d) {
        auto& Kehrwerte = l_.Platz->Kehrwerte;
        if (Kehrwerte.empty()) Kehrwerte.resize(Platz(max_Applikationen * letzter_Tag));
        return &Kehrwerte[Platz((Vorgaenger(Slot) - 1) * letzter_Tag + d - Dosistag_[Platz(Slot)] - 1)];
    }

    // Biological time of n days, which goes on from `Uhr`.
    void stelle_Uhr(double& Uhr, int d, int n, Tageszeile& Zeit) const {
        const double* Faktor = &Faktoren_.Faktor()[Platz(d)];
        for (std::size_t t = 0; t < Platz(n); ++t) Zeit[t] = Uhr += Faktor[t];
    }
    // The same for a slot whose clock has not been kept.
    void stelle_Uhr_nach(int Slot, int d, int n, Tageszeile& Zeit) const {
        double Uhr = 0;
        for (int i = Dosistag_[Platz(Slot)] + 1; i < d; ++i) Uhr += Faktoren_.Faktor()[Platz(i)];
        stelle_Uhr(Uhr, d, n, Zeit);
    }

    // 1 / (t / beta + 1)^alpha for the n days, nearly.
    void naehere(const Tageszeile& Zeit, int n, double* Kehrwert) const {
        const double Kehrwert_beta = 1 / beta_;
        Tageszeile Basis;
        for (std::size_t t = 0; t < Platz(n); ++t) Basis[t] = Zeit[t] * Kehrwert_beta + 1;
        Potenz_.rechne({Basis.data(), Platz(n)}, Kehrwert);
    }

    void teile(Tiefe Reihe, int Slot, int n, const Tageszeile& Zeit) {
        float* Zeile = Zeilen_.Slotzeile(Reihe, Slot) + 1;
        const auto C = static_cast<double>(Bezug(Reihe, Slot));
        for (std::size_t t = 0; t < Platz(n); ++t) Zeile[t] = static_cast<float>(C / std::pow(Zeit[t] / beta_ + 1, alpha_));
    }

    // The same from approximate powers; false if a result lies so near to the border between two numbers of single precision
    // that their error may have moved it over.
    bool multipliziere(Tiefe Reihe, int Slot, int n, const double* Kehrwert) {
        float* Zeile = Zeilen_.Slotzeile(Reihe, Slot) + 1;
        const auto C = static_cast<double>(Bezug(Reihe, Slot));
        const double hoch = C * (1 + Potenz_.Fehler());
        const double tief = C * (1 - Potenz_.Fehler());
        int anders = 0;
        for (std::size_t t = 0; t < Platz(n); ++t) {
            Zeile[t] = static_cast<float>(Kehrwert[t] * tief);
            anders += Zeile[t] == static_cast<float>(Kehrwert[t] * hoch) ? 0 : 1;
        }
        return anders == 0;
    }

    double alpha_;
    double beta_;
    Kehrpotenz Potenz_;
    bool bereit_ = false;
    bool genaehert_ = false;
    int wiederholt_ab_ = 0;
    int Slots_in_Jahr_1_ = 0;
    std::array<int, Slots_Plateau> Dosistag_{};
    std::array<double, Slots_Plateau> Zeit_{};
    std::array<float, alle_Zeilen> Bezug_{};
};

// HS: SFO with k1 up to the breakpoint in biological time, with k2 after it. A dose without separate
// residues takes the whole residue back to the first phase.
class Abbau_HS final : public Abbau {
public:
    explicit Abbau_HS(Lauf& l)
        : Abbau(l), k_{Parameter().k1_HS[Studie()], Parameter().k2_HS[Studie()]}, Tb_(Parameter().Tb_HS[Studie()]) {}

    std::span<const double> Konstanten() const override { return k_; }

    void baue_ab(int d, int n, int Anzahl) override {
        const int Zeilen = Zeilenzahl(Anzahl);
        std::array<const double*, Gruppe> Rest{};
        std::array<std::array<double, Slotzeilen::Tage>, Gruppe> Ablage;
        for (int i = 0, s = 1; i < Zeilen; i += Zeilengruppe) {
            for (std::size_t j = 0; j < Gruppe; ++j) {
                // Both series of a slot have one clock; the rows behind the last slot go along with any.
                if (s > Anzahl) {
                    Rest[j] = Rest[0];
                    continue;
                }
                Rest[j] = Restzeile(s, d, n, Ablage[j].data());
                if (s < Slots_Boden) Rest[j + 1] = Rest[j];
                j += s++ < Slots_Boden ? 1 : 0;
            }
            baue_Gruppe_ab(Zeilen_.Slotzeile(i), n, [&](std::size_t j, std::size_t t) { return Rest[j][t]; });
        }
    }

    void beginne_Slot(int Slot, int) override { Zeit_[Platz(Slot)] = 0; }

private:
    // What each of the n days leaves of a slot.
    const double* Restzeile(int Slot, int d, int n, double* Ablage) {
        const double* vor = &Faktoren_.Rest(0)[Platz(d)];
        const double* nach = &Faktoren_.Rest(1)[Platz(d)];
        const double* Faktor = &Faktoren_.Faktor()[Platz(d)];
        double& Zeit = Zeit_[Platz(Slot)];
        // Once past the breakpoint it stays there; then the clock need not go on.
        if (Zeit > Tb_ && !Faktoren_.rueckwaerts()) return nach;
        for (std::size_t t = 0; t < Platz(n); ++t) {
            Zeit += Faktor[t];
            Ablage[t] = Zeit > Tb_ ? nach[t] : vor[t];
        }
        return Ablage;
    }

    std::array<double, 2> k_;
    double Tb_;
    std::array<double, Slots_Plateau> Zeit_{};
};

}  // namespace

Abbau::Abbau(Lauf& l)
    : l_(l),
      Zeilen_(l.Platz->Zeilen),
      Faktoren_(l.Platz->Faktoren),
      Tiefe_Boden_(l.Felder.Parameter.Bodentiefe / 10),
      Tiefe_Plateau_(l.Felder.Parameter.Plateautiefe / 10) {}

void Abbau::beginne_Slot(int, int) {}

void Abbau::dosiere(int Slot, int d, double C) {
    waechst_um(Zeilen_.heute(Tiefe::Plateau, Slot), C * Tiefe_Boden_ / Tiefe_Plateau_);
    if (Jahr_von(d) == 1) waechst_um(Zeilen_.heute(Tiefe::Boden, Slot), C);
}

void Abbau::vereinige(int alter_Slot, int Slot, int) {
    float& alt = Zeilen_.heute(Tiefe::Plateau, alter_Slot);
    waechst_um(Zeilen_.heute(Tiefe::Plateau, Slot), static_cast<double>(alt));
    alt = 0;
    if (!l_.Beobachter) return;
    const int Ereignistag = l_.Speicher.Applikationstag[Platz(alter_Slot)];  // an FOMC curve starts there
    l_.Beobachter->sieh(0, Tiefe::Plateau, alter_Slot, Ereignistag, {&alt, 1});
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
