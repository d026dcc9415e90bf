// Variants drawn from distributions.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <numbers>
#include <random>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "batch/aufruf.h"
#include "batch/csv_leser.h"
#include "batch/variantenquelle.h"
#include "batch/verteilung.h"

namespace varnok::batch {
namespace {

constexpr std::array<const char*, 7> Kopf = {"name", "distribution", "a", "b", "c", "correlated_with", "rank_correlation"};
enum Spalte : std::size_t { Name, Art, a, b, c, korreliert_mit, Rangkorrelation };

// A name with its distribution and, where it has one, the earlier name that it goes along with.
struct Ziehung {
    std::unique_ptr<Verteilung> Werte;
    int Vorgaenger = -1;
    double r = 0;  // of the normal scores
};

class Probe : public Variantenquelle {
public:
    Probe(const std::string& Datei, std::size_t Ziehungen, std::uint32_t Saat, const Projektordner& Ordner)
        : Bezeichnung_("--sample " + Datei), Datei_(Datei), Ordner_(&Ordner), Anzahl_(Ziehungen), Saat_(Saat) {
        CSV_Leser Leser(Bezeichnung_, Datei);
        lies_Kopf(Leser);
        std::vector<std::string> Zellen;
        while (Leser.lies(Zellen)) lies_Zeile(Zellen, Leser.Zeile());
        if (Ziehungen_.empty()) throw Aufruffehler(Bezeichnung_ + ": there is no line below the head");
    }

    std::size_t Anzahl() const override { return Anzahl_; }
    void beginne_neu() override { Reihe_ = 0; }
    void ueberspringe() override { ++Reihe_; }
    std::string Bezeichnung(std::size_t Reihe) const override { return Bezeichnung_ + ", draw " + std::to_string(Reihe); }

    Variante naechste() override {
        ++Reihe_;
        std::seed_seq Saatfolge{Saat_, static_cast<std::uint32_t>(Reihe_)};
        std::mt19937_64 Generator(Saatfolge);
        Variante v;
        v.Reihe = Reihe_;
        std::vector<double> Punkte(Ziehungen_.size());  // normal scores of the values accepted
        for (std::size_t j = 0; j < Ziehungen_.size(); ++j) v.Werte.push_back(ziehe(j, Generator, Punkte));
        return v;
    }

private:
    static void lies_Kopf(CSV_Leser& Leser) {
        std::vector<std::string> Zellen;
        const bool da = Leser.lies(Zellen);
        if (da && std::equal(Zellen.begin(), Zellen.end(), Kopf.begin(), Kopf.end())) return;
        throw Aufruffehler(Leser.Bezeichnung() +
                           ", line 1: the head is not name,distribution,a,b,c,correlated_with,rank_correlation");
    }

    [[noreturn]] void verwirf(int Zeile, Spalte s, const std::string& Grund) const {
        throw Aufruffehler(Bezeichnung_ + ", row " + std::to_string(Ziehungen_.size() + 1) + " (line " + std::to_string(Zeile) +
                           "), column " + Kopf[s] + ": " + Grund);
    }

    double Zahl(const std::vector<std::string>& Zellen, int Zeile, Spalte s) const {
        const Zahllesung z = lies_Zahl(Zellen[s]);
        if (z.leer || !z.ganz() || !std::isfinite(z.Zahl)) verwirf(Zeile, s, "\"" + Zellen[s] + "\" is not one number");
        return z.Zahl;
    }

    void lies_Zeile(std::vector<std::string>& Zellen, int Zeile) {
        if (Zellen.size() > Kopf.size()) verwirf(Zeile, Rangkorrelation, "there are values behind it");
        Zellen.resize(Kopf.size());
        try {
            nimm_Namen(lies_Namensbezug(Zellen[Name]), "");
        } catch (const std::exception& f) {
            verwirf(Zeile, Name, f.what());
        }
        Ziehung z;
        const bool Liste = Zellen[Art] == "discrete" || Zellen[Art] == "empirical";
        z.Werte = Liste ? lies_Liste(Zellen, Zeile) : lies_stetige(Zellen, Zeile);
        lies_Korrelation(z, Zellen, Zeile);
        Ziehungen_.push_back(std::move(z));
    }

    void fordere_leer(const std::vector<std::string>& Zellen, int Zeile, std::size_t ab) const {
        for (std::size_t s = ab; s <= c; ++s) {
            if (!Zellen[s].empty()) verwirf(Zeile, static_cast<Spalte>(s), "\"" + Zellen[Art] + "\" takes no value there");
        }
    }

    std::unique_ptr<Verteilung> lies_stetige(const std::vector<std::string>& Zellen, int Zeile) const {
        const int Anzahl = Parameterzahl(Zellen[Art]);
        const Eingabename& n = *Namen_.back().Name;
        if (Anzahl == 0) {
            verwirf(Zeile, Art, "\"" + Zellen[Art] + "\" is none of normal, lognormal, uniform, triangular, discrete, empirical");
        }
        if (n.ist_Wort() || n.ganz)
            verwirf(Zeile, Art, Namen_.back().Text + " takes single values: only discrete and empirical draw such");
        Parameter_abc p;
        p.a = Zahl(Zellen, Zeile, a);
        p.b = Zahl(Zellen, Zeile, b);
        if (Anzahl > 2) p.c = Zahl(Zellen, Zeile, c);
        fordere_leer(Zellen, Zeile, a + static_cast<std::size_t>(Anzahl));
        if (const auto Einwand = Einwand_gegen(Zellen[Art], p))
            verwirf(Zeile, static_cast<Spalte>(a + static_cast<std::size_t>(Einwand->Parameter - 'a')), Einwand->Text);
        return stetige_Verteilung(Zellen[Art], p);
    }

    // Values and weights, or observations, in a file of their own. A first line of words above numbers is its head.
    std::unique_ptr<Verteilung> lies_Liste(const std::vector<std::string>& Zellen, int Zeile) const {
        const bool gewichtet = Zellen[Art] == "discrete";
        if (Zellen[a].empty()) verwirf(Zeile, a, "the name of the file with the values is missing");
        fordere_leer(Zellen, Zeile, b);
        const std::filesystem::path Liste = als_Pfad(Datei_).parent_path() / als_Pfad(Zellen[a]);
        CSV_Leser Leser(Bezeichnung_ + ", row " + std::to_string(Ziehungen_.size() + 1) + ", column a, file " + Zellen[a],
                        Liste.string());
        std::vector<gewichteter_Wert> Werte;
        std::vector<std::string> Reihe;
        while (Leser.lies(Reihe)) {
            const std::string davor = Zeilenangabe(Leser.Bezeichnung(), Leser.Zeile()) + ": ";
            if (Reihe.size() != (gewichtet ? 2 : 1))
                throw Aufruffehler(davor + (gewichtet ? "a value and its weight belong there" : "one value belongs there"));
            if (Leser.Zeile() == 1 && ist_Kopf(Reihe, gewichtet)) continue;
            Werte.push_back(lies_Eintrag(Reihe, gewichtet, davor));
        }
        double Summe = 0;
        for (const gewichteter_Wert& w : Werte) Summe += w.Gewicht;
        if (!(Summe > 0)) throw Aufruffehler(Leser.Bezeichnung() + ": there is no value to draw");
        return Werteliste(std::move(Werte));
    }

    bool ist_Kopf(const std::vector<std::string>& Reihe, bool gewichtet) const {
        if (gewichtet) return lies_Zahl(Reihe[1]).ohne_Zahl;
        return !Namen_.back().Name->ist_Wort() && lies_Zahl(Reihe[0]).ohne_Zahl;
    }

    gewichteter_Wert lies_Eintrag(const std::vector<std::string>& Reihe, bool gewichtet, const std::string& davor) const {
        try {
            gewichteter_Wert w{lies_Eingabewert(Namen_.back(), Reihe[0], *Ordner_), 1};
            if (!gewichtet) return w;
            const Zahllesung z = lies_Zahl(Reihe[1]);
            if (z.leer || !z.ganz() || !(z.Zahl >= 0) || !std::isfinite(z.Zahl))
                throw Laufzeitfehler("\"" + Reihe[1] + "\" is no weight");
            w.Gewicht = z.Zahl;
            return w;
        } catch (const Laufzeitfehler& f) {
            throw Aufruffehler(davor + f.what());
        }
    }

    void lies_Korrelation(Ziehung& z, const std::vector<std::string>& Zellen, int Zeile) const {
        const std::string& Gesuchter = Zellen[korreliert_mit];
        if (Gesuchter.empty() && Zellen[Rangkorrelation].empty()) return;
        if (Gesuchter.empty()) verwirf(Zeile, korreliert_mit, "the name that it goes along with is missing");
        for (std::size_t j = 0; j + 1 < Namen_.size(); ++j) {
            if (Namen_[j].Text == Gesuchter) z.Vorgaenger = static_cast<int>(j);
        }
        if (z.Vorgaenger < 0) verwirf(Zeile, korreliert_mit, "\"" + Gesuchter + "\" is no name of an earlier line");
        const double Rang = Zahl(Zellen, Zeile, Rangkorrelation);
        if (!(Rang >= -1 && Rang <= 1))
            verwirf(Zeile, Rangkorrelation, "\"" + Zellen[Rangkorrelation] + "\" lies outside -1 to 1");
        z.r = 2 * std::sin(std::numbers::pi / 6 * Rang);
    }

    // A value that the field takes, from the same stream as often as it needs.
    Eingabewert ziehe(std::size_t j, std::mt19937_64& Generator, std::vector<double>& Punkte) const {
        constexpr int Versuche = 10000;
        const Ziehung& z = Ziehungen_[j];
        for (int i = 0; i < Versuche; ++i) {
            double u = (static_cast<double>(Generator() >> 12) + 0.5) * 0x1p-52;
            Punkte[j] = Normalwert(u);
            if (z.Vorgaenger >= 0) {
                Punkte[j] =
                    z.r * Punkte[static_cast<std::size_t>(z.Vorgaenger)] + std::sqrt(std::max(0.0, 1 - z.r * z.r)) * Punkte[j];
                u = Wahrscheinlichkeit(Punkte[j]);
            }
            const auto w = z.Werte->Quantil(u);
            if (w && (z.Werte->aus_Liste() || nimmt_an(*Namen_[j].Name, w->Zahl()))) return *w;
        }
        throw Aufruffehler(Bezeichnung(Reihe_) + ", row " + std::to_string(j + 1) + ": " + Namen_[j].Text + ": " +
                           std::to_string(Versuche) + " values in a row fell outside its range (" +
                           Wertebereich_als_Text(*Namen_[j].Name) + ")");
    }

    std::string Bezeichnung_;
    std::string Datei_;
    const Projektordner* Ordner_;
    std::size_t Anzahl_;
    std::uint32_t Saat_;
    std::size_t Reihe_ = 0;
    std::vector<Ziehung> Ziehungen_;
};

}  // namespace

std::unique_ptr<Variantenquelle> Stichprobe(const std::string& Datei, std::size_t Ziehungen, std::uint32_t Saat,
                                            const Projektordner& Ordner) {
    return std::make_unique<Probe>(Datei, Ziehungen, Saat, Ordner);
}

}  // namespace varnok::batch
