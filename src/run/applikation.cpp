#include "run/applikation.h"

#include <algorithm>
#include <cmath>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "run/kalender.h"

namespace varnok {
namespace {

enum Spalte { Tag = 0, Monat = 1, Rate = 2, Bedeckung = 3 };

// The same, checked. `Reihe` of the table counts from 1, 0 outside the table.
double gepruefte_Dosis(const Zahlwert& Rate, const Zahlwert& Interzeption, int Reihe = 0) {
    const double Dosis = Nettodosis(Rate, Interzeption);
    const bool unter_0 = Rate.Zahl() < 0 || Interzeption.Zahl() > 100;
    if (unter_0 || !std::isfinite(static_cast<float>(Dosis))) {
        melde_unmoegliche_Rechnung(
            "Application rate (g/ha) = " + Rate.Text() + ", Crop interception (%) = " + Interzeption.Text(),
            {.Feld = "Applikationsrate", .Reihe = Reihe});
    }
    return Dosis;
}

void trage_ein(Ergebnisspeicher& s, int Ereignis, int Tag, double Dosis) {
    s.Applikationstag[static_cast<std::size_t>(Ereignis)] = static_cast<std::int16_t>(Tag);
    s.Tagesrate[static_cast<std::size_t>(Tag)] = static_cast<float>(Dosis);
}

// The year's doses, each decayed from its day to the day of the last one; `Exponent(i)` is that of event i.
template <class Funktion>
double wirksame_Rate(const Ergebnisspeicher& s, int i_studie, int n, double k, Funktion Exponent) {
    double Summe = 0;
    for (int i = 1; i <= n; ++i) {
        const auto d = static_cast<std::size_t>(s.Applikationstag[static_cast<std::size_t>(i)]);
        Summe += static_cast<double>(s.Tagesrate[d]) * std::exp(Exponent(i));
    }
    if (!std::isfinite(Summe)) {
        melde_unmoegliche_Rechnung("SFO k (1/d) = " + allgemeine_Zahl(k), {{}, 0, "k_SFO", i_studie, 0});
    }
    return Summe;
}

void lade_regelmaessig(Ergebnisspeicher& s, int i_studie, int n, int Intervall, double Dosis, double k) {
    for (int i = 1; i <= n; ++i) trage_ein(s, i, (i - 1) * Intervall, Dosis);
    s.Anzahl_pro_Jahr = static_cast<std::int16_t>(n);
    s.Wirksame_Rate = wirksame_Rate(s, i_studie, n, k, [&](int i) { return -k * (n - i) * Intervall; });
}

// False if the dates do not ascend.
bool lade_unregelmaessig(const Eingabe& e, Ergebnisspeicher& s, int i_studie, double k) {
    const int n = e.Anzahl();
    int davor = -1;
    for (int i = 1; i <= n; ++i) {
        const Applikationszeile& Zeile = e.Applikationsschema[static_cast<std::size_t>(i - 1)];
        const auto d = Jahrestag(Zeile);
        if (!d || *d <= davor) return false;
        trage_ein(s, i, *d, gepruefte_Dosis(Zeile[Rate], Zeile[Bedeckung], i));
        davor = *d;
    }
    // The time axis starts with the first application, whatever its date.
    const int erster = s.Applikationstag[1];
    for (std::size_t i = 1; i <= static_cast<std::size_t>(n); ++i) {
        const auto d = static_cast<std::size_t>(s.Applikationstag[i]);
        const float Dosis = s.Tagesrate[d];
        s.Tagesrate[d] = 0;
        trage_ein(s, static_cast<int>(i), static_cast<int>(d) - erster, static_cast<double>(Dosis));
    }
    s.Anzahl_pro_Jahr = static_cast<std::int16_t>(n);
    const int letzter = s.Applikationstag[static_cast<std::size_t>(n)];
    s.Wirksame_Rate =
        wirksame_Rate(s, i_studie, n, k, [&](int i) { return -k * (letzter - s.Applikationstag[static_cast<std::size_t>(i)]); });
    return true;
}

// Every year repeats the first one. The events of an eleventh year are listed and never reached.
void wiederhole_jaehrlich(Ergebnisspeicher& s) {
    const auto n = static_cast<std::size_t>(s.Anzahl_pro_Jahr);
    for (std::size_t Jahr = 1; Jahr <= Jahre; ++Jahr) {
        for (std::size_t j = 1; j <= n; ++j) {
            s.Applikationstag[Jahr * n + j] =
                static_cast<std::int16_t>(s.Applikationstag[j] + Tage_pro_Jahr * static_cast<int>(Jahr));
        }
        for (std::size_t j = 0; j < Tage_pro_Jahr; ++j) s.Tagesrate[Tage_pro_Jahr * (Jahr - 1) + j] = s.Tagesrate[j];
    }
}

}  // namespace

double Nettodosis(const Zahlwert& Rate, const Zahlwert& Interzeption) { return Rate.Zahl() * (100 - Interzeption.Zahl()) / 100; }

std::optional<int> Jahrestag(const Applikationszeile& Zeile) {
    const auto Monatszahl = ganze_Zahl(Zeile[Monat].Zahl(), -32768, 32767);
    if (!Monatszahl) return std::nullopt;
    return ganze_Zahl(Julian(*Monatszahl) + Zeile[Tag].Zahl() - 1, 0, Tage_pro_Jahr - 1);
}

std::optional<Tabellenzelle> Tabelle_mit_Applikationen_berechne_PEC(Eingabe& e) {
    for (int i = 0; i < e.Anzahl(); ++i) {
        Applikationszeile& Zeile = e.Applikationsschema[static_cast<std::size_t>(i)];
        if (Zeile[Tag].Zahl() == 0) return Tabellenzelle{i, Tag};
        if (Zeile[Monat].Zahl() == 0) return Tabellenzelle{i, Monat};
        if (!Jahrestag(Zeile)) return Tabellenzelle{i, Tag};
        if (Zeile[Bedeckung].Zahl() >= 100) Zeile[Bedeckung] = "99";
    }
    return std::nullopt;
}

bool Lade_Applikationen(const Eingabe& e, int i_studie, Ergebnisspeicher& s) {
    s.Tagesrate.fill(0);
    s.Wirksame_Rate = 0;
    // The plateau of the closed series needs the SFO constant as it stands, also under another kinetics.
    const double k = e.Parameter.k_SFO[0][static_cast<std::size_t>(i_studie)];
    if (e.Applikationsmuster == unregelmaessig) {
        if (!lade_unregelmaessig(e, s, i_studie, k)) return false;
    } else {
        const int n = e.Applikationsmuster == einzeln ? 1 : e.Anzahl();
        const int Intervall = std::min(e.Intervall(), laengstes_Intervall(n));  // as its list does
        lade_regelmaessig(s, i_studie, n, Intervall, gepruefte_Dosis(e.Applikationsrate, e.Interzeption), k);
    }
    wiederhole_jaehrlich(s);
    return true;
}

}  // namespace varnok
