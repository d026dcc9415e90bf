// What a call writes for a name and its value, and how it is put in.

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "records/eingabenamen.h"
#include "run/bezeichnungen.h"
#include "run/kalender.h"
#include "run/laufeingang.h"

namespace varnok {
namespace {

struct Indexbereich {
    int von;
    int bis;
};

constexpr Indexbereich Studien = {1, max_Studien};
constexpr Indexbereich Stoffindizes = {0, Stoffe - 1};
constexpr Indexbereich Metabolite = {1, Stoffe - 1};
constexpr Indexbereich Reihen = {1, max_Applikationen};

constexpr std::string_view alles;

// What may stand in the brackets, for a message.
constexpr std::string_view Klammertext(Indexart i) {
    switch (i) {
        case Indexart::Studie_und_Stoff:
            return "[study,compound]";
        case Indexart::Studie:
            return "[study]";
        case Indexart::Stoff:
        case Indexart::Metabolit:
            return "[compound]";
        case Indexart::Tabellenreihe:
            return "[row]";
        case Indexart::keiner:
            break;
    }
    return alles;
}

[[noreturn]] void verwirf(const Namensbezug& b, const std::string& Grund, std::string_view Text = {}) {
    throw Laufzeitfehler(b.Text + ": " + Grund, {.Feld = std::string(b.Name ? b.Name->Speicher : ""),
                                                 .i_studie = b.Studie,
                                                 .i_substanz = b.Stoff,
                                                 .Text = std::string(Text),
                                                 .Reihe = b.Reihe + 1,
                                                 .Bezeichnung = b.Text});
}

// Counted from 0 as far as it is a place: studies and rows are typed from 1, compounds from 0.
int lies_Index(const Namensbezug& b, std::string_view Text, const Indexbereich& Grenzen, std::string_view was) {
    const Zahllesung z = lies_Zahl(Text);
    const auto i = z.ganz() && !z.leer ? ganze_Zahl(z.Zahl, Grenzen.von, Grenzen.bis) : std::nullopt;
    if (!i || *i != z.Zahl) {
        verwirf(b,
                "\"" + std::string(Text) + "\" is no " + std::string(was) + " (" + std::to_string(Grenzen.von) + " to " +
                    std::to_string(Grenzen.bis) + ")",
                Text);
    }
    return *i;
}

int lies_Studie(const Namensbezug& b, std::string_view Text) {
    return Text.empty() ? -1 : lies_Index(b, Text, Studien, "study") - 1;
}

int lies_Stoff(const Namensbezug& b, std::string_view Text, const Indexbereich& Grenzen = Stoffindizes) {
    return Text.empty() ? -1 : lies_Index(b, Text, Grenzen, "compound");
}

void lies_Indizes(Namensbezug& b, const std::vector<std::string_view>& Teile) {
    const Indexart Art = b.Name->Indizes;
    const std::size_t erwartet = Art == Indexart::Studie_und_Stoff ? 2 : 1;
    if (Teile.size() != erwartet) verwirf(b, "in the brackets belongs " + std::string(Klammertext(Art)));
    switch (Art) {
        case Indexart::Studie_und_Stoff:
            b.Studie = lies_Studie(b, Teile[0]);
            b.Stoff = lies_Stoff(b, Teile[1]);
            break;
        case Indexart::Studie:
            b.Studie = lies_Studie(b, Teile[0]);
            break;
        case Indexart::Stoff:
            b.Stoff = lies_Stoff(b, Teile[0]);
            break;
        case Indexart::Metabolit:
            b.Stoff = lies_Stoff(b, Teile[0], Metabolite);
            break;
        case Indexart::Tabellenreihe:
            b.Reihe = lies_Index(b, Teile[0], Reihen, "row of the table of applications") - 1;
            break;
        case Indexart::keiner:
            break;
    }
}

const Eingabename* finde_Namen(std::string_view Name, bool mit_Klammer) {
    const Eingabename* anderer = nullptr;
    for (const Eingabename& n : Eingabenamen()) {
        if (n.Name != Name) continue;
        if ((n.Indizes == Indexart::Tabellenreihe) == mit_Klammer) return &n;
        if (n.Indizes != Indexart::Tabellenreihe) anderer = &n;
    }
    return anderer;
}

// Micro sign, Greek letter and "u" mean the same.
std::string vereinheitlicht(std::string_view Text) {
    if (Text == "\u03BCg" || Text == "ug") return std::string(Masseneinheiten[1]);
    return std::string(Text);
}

Eingabewert lies_Wort(const Namensbezug& b, std::string_view Text) {
    const std::string gesucht = vereinheitlicht(Text);
    const auto& Worte = b.Name->Worte;
    for (std::size_t i = 0; i < Worte.size(); ++i) {
        if (!gleich_ohne_Gross_Klein(Worte[i], gesucht)) continue;
        const bool nur_Wirkstoff = b.Name->Speicher == "Kinetik" && i > DFOP;
        if (nur_Wirkstoff && b.Stoff > 0) verwirf(b, std::string(Worte[i]) + " is a kinetics of the parent alone");
        return als_Eingabewert(Worte[i], static_cast<int>(i));
    }
    verwirf(b, "\"" + std::string(Text) + "\" is not " + Wertebereich_als_Text(*b.Name), Text);
}

Eingabewert lies_Klima(const Namensbezug& b, std::string_view Text, const Projektordner& Ordner) {
    if (gleich_ohne_Gross_Klein(Text, konstantes_Klima)) return als_Eingabewert(konstantes_Klima);
    const std::string Name(Text);
    for (const std::string& Vorhandener : Ordner.Namen(Klima_Endung)) {
        if (gleich_ohne_Gross_Klein(Vorhandener, Name))
            return als_Eingabewert(Ordner.enthaelt(Name, Klima_Endung) ? Name : Vorhandener);
    }
    verwirf(b, "there is no climate file \"" + Name + "\" in this project", Text);
}

bool ist_Feld_neben_der_Tabelle(const Namensbezug& b) {
    static constexpr std::array<std::string_view, 4> Felder = {"rate", "interception", "day", "month"};
    return b.Name->Indizes == Indexart::keiner && std::find(Felder.begin(), Felder.end(), b.Name->Name) != Felder.end();
}

// Which of the names given concerns one of these stores; null without any.
const Namensbezug* einer_von(std::span<const Namensbezug* const> gegebene, std::initializer_list<std::string_view> Speicher) {
    for (const Namensbezug* b : gegebene) {
        if (std::find(Speicher.begin(), Speicher.end(), b->Name->Speicher) != Speicher.end()) return b;
    }
    return nullptr;
}

void pruefe_Boden(const Laufparameter& p, std::span<const Namensbezug* const> gegebene) {
    if (const auto* b = einer_von(gegebene, {"Plateautiefe", "Bodentiefe"}); b && p.Plateautiefe < p.Bodentiefe) {
        verwirf(*b, "the tillage depth of " + allgemeine_Zahl(p.Plateautiefe) + " cm lies below the soil depth of " +
                        allgemeine_Zahl(p.Bodentiefe) + " cm");
    }
    if (const auto* b = einer_von(gegebene, {"Feldkapazitaet", "Welkepunkt"}); b && p.Welkepunkt > p.Feldkapazitaet) {
        verwirf(*b, "the wilting point of " + allgemeine_Zahl(p.Welkepunkt) + " Vol% lies above the field capacity of " +
                        allgemeine_Zahl(p.Feldkapazitaet) + " Vol%");
    }
}

// A row that nobody has filled.
bool unvollstaendig(const Applikationszeile& z) {
    return std::any_of(z.begin(), z.end(), [](const Zahlwert& Zelle) { return Zelle.leer(); });
}

void pruefe_Tabelle(const Eingabe& e, std::span<const Namensbezug* const> gegebene) {
    const int Zeilenzahl = e.Anzahl();
    for (const Namensbezug* b : gegebene) {
        if (ist_Feld_neben_der_Tabelle(*b)) {
            verwirf(*b, "the pattern is irregular, whose table it does not reach; " + std::string(b->Name->Name) +
                            "[k] is that of row k");
        }
        if (b->Reihe >= Zeilenzahl) verwirf(*b, "the table of applications has " + std::to_string(Zeilenzahl) + " rows");
    }
    const auto* b = einer_von(gegebene, {"Anzahl", "Applikationsmuster"});
    if (!b) return;
    const auto& Reihen_da = e.Applikationsschema;
    const auto leere = std::find_if(Reihen_da.begin(), Reihen_da.end(), unvollstaendig);
    if (leere == Reihen_da.end()) return;
    verwirf(*b, std::to_string(Zeilenzahl) + " applications are more than the table has rows: row " +
                    std::to_string(leere - Reihen_da.begin() + 1) + " is not complete");
}

void stimme_Datum_ab(Eingabe& e, std::span<const Namensbezug* const> gegebene) {
    const auto* b = einer_von(gegebene, {"App_Tag", "App_Monat"});
    const int Tage = Tage_im_Monat(e.App_Monat + 1);
    if (!b || e.App_Tag < Tage) return;
    if (const auto* Tag = einer_von(gegebene, {"App_Tag"}))
        verwirf(*Tag, "month " + std::to_string(e.App_Monat + 1) + " has " + std::to_string(Tage) + " days");
    e.App_Tag = Tage - 1;
}

bool eine_Studie_mit(const Eingabe& e, Kinetikart k) {
    const auto& Kinetik = e.Parameter.Kinetik[0];
    return std::find(Kinetik.begin(), Kinetik.begin() + e.Studienzahl(), k) != Kinetik.begin() + e.Studienzahl();
}

bool wird_gelesen_an(const Eingabename& n, const Eingabe& e, const Eingabeort& o) {
    const Kinetikart Kinetik = e.Parameter.Kinetik[static_cast<std::size_t>(o.Stoff)][static_cast<std::size_t>(o.Studie)];
    if (o.Stoff >= Anzahl_Stoffe(e.Berechnungsmodus)) return false;
    if (n.Speicher == "k_SFO") return Kinetik == SFO;  // elsewhere it is the parent's effective rate alone that knows it
    if (n.Speicher == "k1_DFOP" || n.Speicher == "k2_DFOP") return Kinetik == DFOP || Kinetik == HS;
    return liest_ein_Lauf(e, n.Speicher, o.Studie, o.Stoff);
}

}  // namespace

std::string Name_mit_Indizes(const Eingabename& n) { return std::string(n.Name).append(Klammertext(n.Indizes)); }

std::string Wertebereich_als_Text(const Eingabename& n) {
    if (n.ist_Klima()) return "constant or the name of a climate file";
    if (n.Worte.empty()) return als_Text(n.Grenzen) + (n.ganz ? ", whole" : "");
    std::string Text;
    for (std::size_t i = 0; i < n.Worte.size(); ++i) {
        if (i > 0) Text += i + 1 == n.Worte.size() ? " or " : ", ";
        Text += n.Worte[i];
    }
    return Text;
}

Namensbezug lies_Namensbezug(std::string_view Text) {
    Namensbezug b;
    b.Text = ohne_Randblanks(Text);
    const std::string_view ganzer = b.Text;
    const auto Klammer = ganzer.find('[');
    const std::string_view Name = ohne_Randblanks(ganzer.substr(0, Klammer));
    const bool mit_Klammer = Klammer != std::string_view::npos;
    b.Name = finde_Namen(Name, mit_Klammer);
    if (b.Name == nullptr) verwirf(b, "there is no value of that name; --help-names lists them");
    if (!mit_Klammer) {
        if (b.Name->Speicher == "Kinetik") b.Stoff = 0;
        return b;
    }
    if (b.Name->Indizes == Indexart::keiner) verwirf(b, std::string(Name) + " has no index");
    if (ganzer.back() != ']')
        verwirf(b, "the closing bracket is missing; in a table a name with a comma stands in quotation marks");
    std::vector<std::string_view> Teile = zerlege_an(ganzer.substr(Klammer + 1, ganzer.size() - Klammer - 2), ',');
    for (std::string_view& Teil : Teile) Teil = ohne_Randblanks(Teil);
    lies_Indizes(b, Teile);
    if (b.Name->Speicher == "Kinetik" && b.Stoff < 0) b.Stoff = 0;
    return b;
}

bool nimmt_an(const Eingabename& n, double Zahl) {
    return std::isfinite(Zahl) && n.Grenzen.enthaelt(Zahl) && (!n.ganz || Zahl == std::floor(Zahl));
}

Eingabewert lies_Eingabewert(const Namensbezug& b, std::string_view Text, const Projektordner& Ordner) {
    const std::string_view Kern = ohne_Randblanks(Text);
    if (Kern.empty()) verwirf(b, "no value is given");
    if (b.Name->ist_Klima()) return lies_Klima(b, Kern, Ordner);
    if (b.Name->ist_Wort()) return lies_Wort(b, Kern);
    const Zahllesung z = lies_Zahl(Kern);
    if (!z.ganz()) verwirf(b, "\"" + std::string(Kern) + "\" is not one number", Kern);
    if (!std::isfinite(z.Zahl)) verwirf(b, "\"" + std::string(Kern) + "\" is too large a number", Kern);
    Eingabewert w = als_Eingabewert(z.Zahl);
    if (!nimmt_an(*b.Name, w.Zahl())) {
        const std::string Einheit = b.Name->Einheit.empty() ? "" : " " + std::string(b.Name->Einheit);
        verwirf(b, "\"" + std::string(Kern) + "\" lies outside its range (" + Wertebereich_als_Text(*b.Name) + Einheit + ")",
                Kern);
    }
    return w;
}

std::vector<Eingabeort> Orte(const Namensbezug& b, const Eingabe& e) {
    const Indexart Art = b.Name->Indizes;
    if (Art == Indexart::keiner) return {{}};
    if (Art == Indexart::Tabellenreihe) return {{0, 0, b.Reihe}};
    const bool mit_Studie = Art == Indexart::Studie_und_Stoff || Art == Indexart::Studie;
    if (mit_Studie && b.Studie >= e.Studienzahl())
        verwirf(b, "there is no study " + std::to_string(b.Studie + 1) + ", only " + std::to_string(e.Studienzahl()));
    const int Studienzahl = mit_Studie ? e.Studienzahl() : 1;
    const int Stoffzahl = Art == Indexart::Studie ? 1 : Anzahl_Stoffe(e.Berechnungsmodus);
    const int erster = Art == Indexart::Metabolit ? 1 : 0;
    std::vector<Eingabeort> Alle;
    for (int st = 0; st < Studienzahl; ++st) {
        if (b.Studie >= 0 && st != b.Studie) continue;
        if (b.Stoff >= 0) {
            Alle.push_back({st, b.Stoff, 0});
            continue;
        }
        for (int c = erster; c < Stoffzahl; ++c) Alle.push_back({st, c, 0});
    }
    return Alle;
}

void setze(Eingabe& e, Ansicht& Sicht, const Namensbezug& b, const Eingabewert& w) {
    for (const Eingabeort& o : Orte(b, e)) {
        const bool Reihe_fehlt = o.Reihe >= static_cast<int>(e.Applikationsschema.size());
        if (b.Name->Indizes == Indexart::Tabellenreihe && Reihe_fehlt) continue;
        b.Name->setze(e, Sicht, o, w);
    }
}

void stimme_ab(Eingabe& e, std::span<const Namensbezug* const> gegebene) {
    pruefe_Boden(e.Parameter, gegebene);
    if (e.Applikationsmuster == unregelmaessig) {
        pruefe_Tabelle(e, gegebene);
        return;
    }
    stimme_Datum_ab(e, gegebene);
    const auto* Abstand = einer_von(gegebene, {"Intervall"});
    const int Male = e.Anzahl();
    const int laengstes = laengstes_Intervall(Male);
    if (Abstand && e.Intervall() > laengstes) {
        verwirf(*Abstand,
                std::to_string(Male) + " applications a year leave at most " + std::to_string(laengstes) + " days between them");
    }
}

bool wird_gelesen(const Namensbezug& b, const Eingabe& e) {
    const std::string_view Speicher = b.Name->Speicher;
    if (Speicher == "Fruchtwechsel" || Speicher == "Klimaszenario") return true;
    if (b.Name->Indizes == Indexart::Tabellenreihe) return e.Applikationsmuster == unregelmaessig;
    // FOMC takes the days of so many events for reference days.
    if (Speicher == "Anzahl" && e.Applikationsmuster == einzeln) return eine_Studie_mit(e, FOMC);
    const auto Alle = Orte(b, e);
    return std::any_of(Alle.begin(), Alle.end(), [&](const Eingabeort& o) { return wird_gelesen_an(*b.Name, e, o); });
}

std::string benannter_Wert::Bezeichnung() const {
    const std::string Studie = std::to_string(Ort.Studie + 1);
    const std::string Stoff = std::to_string(Ort.Stoff);
    std::string Text(Name->Name);
    switch (Name->Indizes) {
        case Indexart::Studie_und_Stoff:
            return Text.append("[").append(Studie).append(",").append(Stoff).append("]");
        case Indexart::Studie:
            return Text.append("[").append(Studie).append("]");
        case Indexart::Stoff:
        case Indexart::Metabolit:
            return Text.append("[").append(Stoff).append("]");
        case Indexart::Tabellenreihe:
            return Text.append("[").append(std::to_string(Ort.Reihe + 1)).append("]");
        case Indexart::keiner:
            break;
    }
    return Text;
}

}  // namespace varnok
