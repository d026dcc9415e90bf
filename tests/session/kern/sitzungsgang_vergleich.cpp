#include "session/kern/sitzungsgang_vergleich.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/zahlen.h"
#include "records/klimadatei.h"
#include "records/projektordner.h"

namespace varnok::gang {
namespace {

// The weather as the session knows it, whatever lies on the disk by now.
class bekanntes_Wetter : public Klimaquelle {
public:
    explicit bekanntes_Wetter(const Klimabytes& Bytes) : Bytes_(Bytes) {}
    std::optional<std::vector<Klimatag>> lade(const std::string& Name) const override {
        if (!Bytes_) return std::nullopt;
        return zerlege_Klimadatei(*Bytes_, Name);
    }

private:
    const Klimabytes& Bytes_;
};

// Without the texts, which no result knows.
Eingabe ohne_Texte(Eingabe e) {
    e.Beschreibung.clear();
    e.Name_Wirkstoff.clear();
    e.Name_Met_1.clear();
    e.Name_Met_2.clear();
    e.Bodenszenario.clear();
    for (std::string& s : e.Studie) s.clear();
    return e;
}

bool gleich(const Fensterergebnis& a, const Fensterergebnis& b) {
    return a.Tage == b.Tage && a.Maximum == b.Maximum && a.Starttag == b.Starttag && a.aktuell == b.aktuell;
}

bool gleich(const Endpunktergebnis& a, const Endpunktergebnis& b) {
    return a.Maximum_Bodentiefe == b.Maximum_Bodentiefe && a.Maximumtag_Bodentiefe == b.Maximumtag_Bodentiefe &&
           a.Maximum_Plateautiefe == b.Maximum_Plateautiefe && a.Jahresmaximum == b.Jahresmaximum &&
           a.Plateauwert == b.Plateauwert && a.Plateauzuwachs == b.Plateauzuwachs && a.Plateautext == b.Plateautext &&
           a.Plateauprozent == b.Plateauprozent && a.Reihe_Bodentiefe == b.Reihe_Bodentiefe &&
           a.Reihe_Plateautiefe == b.Reihe_Plateautiefe && a.Integral_Bodentiefe == b.Integral_Bodentiefe &&
           std::equal(a.TWA.begin(), a.TWA.end(), b.TWA.begin(), b.TWA.end(),
                      [](const Fensterergebnis& x, const Fensterergebnis& y) { return gleich(x, y); });
}

bool gleiche_Stoffe(const Stoffergebnis& a, const Stoffergebnis& b) {
    return std::equal(a.Endpunktwerte.begin(), a.Endpunktwerte.end(), b.Endpunktwerte.begin(),
                      [](const Endpunktergebnis& x, const Endpunktergebnis& y) { return gleich(x, y); });
}

bool gleiche_Kurven(const Diagramm& a, const Diagramm& b) {
    return std::equal(a.Kurven.begin(), a.Kurven.end(), b.Kurven.begin(), b.Kurven.end(), [](const Kurve& x, const Kurve& y) {
        return x.Name == y.Name && x.Farbe == y.Farbe && x.erster_Tag == y.erster_Tag && x.Werte == y.Werte;
    });
}

std::vector<std::string> Worte(const std::string& Bytes) {
    std::vector<std::string> Alle(1);
    for (const char c : Bytes) {
        if (c == '\t' || c == '\n') {
            Alle.emplace_back();
        } else if (c != '\r') {
            Alle.back() += c;
        }
    }
    return Alle;
}

}  // namespace

bool gleiche_Werte(const Ergebnis& a, const Ergebnis& b) {
    return a.i_studie == b.i_studie && a.Anzahl_pro_Jahr == b.Anzahl_pro_Jahr && a.Wirksame_Rate == b.Wirksame_Rate &&
           a.Tagesrate == b.Tagesrate && a.Applikationstag == b.Applikationstag && a.erste_Rate == b.erste_Rate &&
           a.Bildung_Plateautiefe == b.Bildung_Plateautiefe && a.Summe_Temperatur == b.Summe_Temperatur &&
           a.Summe_Niederschlag == b.Summe_Niederschlag && a.Summe_Verdunstung == b.Summe_Verdunstung &&
           a.Warnungen.size() == b.Warnungen.size() &&  // they carry names
           std::equal(a.Stoffwerte.begin(), a.Stoffwerte.end(), b.Stoffwerte.begin(), b.Stoffwerte.end(), gleiche_Stoffe);
}

std::string Unterschied_der(const Diagramm& a, const Diagramm& b) {
    if (!(a.Titel == b.Titel)) return "title \"" + a.Titel.Text + "\" for \"" + b.Titel.Text + "\"";
    if (!(a.Kommentar == b.Kommentar)) return "comment \"" + a.Kommentar.Text + "\" for \"" + b.Kommentar.Text + "\"";
    if (!(a.Name_x_Achse == b.Name_x_Achse && a.Name_y_Achse == b.Name_y_Achse)) return "name of an axis";
    if (a.Ergebnistitel != b.Ergebnistitel) return "title of the results";
    if (a.Einheit != b.Einheit || a.Endpunkt != b.Endpunkt) return "unit or endpoint";
    if (!(a.Legendeninhalt == b.Legendeninhalt)) return "legend";
    if (!gleiche_Kurven(a, b)) return "curves";
    return a.Liste == b.Liste ? "" : "display list";
}

bool gleiche_Zahlen(const std::string& a, const std::string& b) {
    const auto Zahl = [](const std::string& x) {
        return x.empty() || std::string_view(" +-.,0123456789").find(x[0]) != std::string_view::npos;
    };
    const auto Worte_a = Worte(a);
    const auto Worte_b = Worte(b);
    return std::equal(
        Worte_a.begin(), Worte_a.end(), Worte_b.begin(), Worte_b.end(),
        [&](const std::string& x, const std::string& y) { return x == y || (Zahl(x) && Zahl(y) && Wert(x) == Wert(y)); });
}

std::string Unterschied(const std::string& a, const std::string& b) {
    const auto Worte_a = Worte(a);
    const auto Worte_b = Worte(b);
    const auto [x, y] = std::mismatch(Worte_a.begin(), Worte_a.end(), Worte_b.begin(), Worte_b.end());
    return "\"" + (x == Worte_a.end() ? "" : *x) + "\" is \"" + (y == Worte_b.end() ? "" : *y) + "\" now";
}

std::string Satzdatei(const std::string& Name, std::size_t Art) { return Name + Endungen[Art]; }

std::shared_ptr<const Ergebnis> Gegenrechnung::rechne(const Eingabe& e, int i_studie, const Klimabytes& Klima) {
    const Eingabe Schluessel = ohne_Texte(e);
    const std::string Wetter = Klima ? *Klima : "";
    for (const Platz& p : Plaetze_) {
        if (p.i_studie == i_studie && p.Klima == Wetter && p.Vorgabe == Schluessel) return p.Werte;
    }
    Lauf neuer;  // nothing is left in it of another input
    const auto Lauf_ = berechne_Studie(neuer, std::make_shared<const Eingabe>(e), i_studie, bekanntes_Wetter(Klima));
    constexpr std::size_t Hoechstzahl = 24;
    if (Plaetze_.size() < Hoechstzahl) Plaetze_.emplace_back();
    Plaetze_[naechster_++ % Hoechstzahl] = {Schluessel, i_studie, Wetter, Lauf_.Werte};
    return Lauf_.Werte;
}

}  // namespace varnok::gang
