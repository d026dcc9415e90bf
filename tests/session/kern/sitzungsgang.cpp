#include "session/kern/sitzungsgang.h"

#include <algorithm>
#include <chrono>
#include <exception>

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "diagrams/diagrammbau.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "run/applikation.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/unterschied.h"

namespace varnok::gang {
namespace {

constexpr std::array alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};

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

bool gleiche_Werte(const Ergebnis& a, const Ergebnis& b) {
    return a.i_studie == b.i_studie && a.Anzahl_pro_Jahr == b.Anzahl_pro_Jahr && a.Wirksame_Rate == b.Wirksame_Rate &&
           a.Tagesrate == b.Tagesrate && a.Applikationstag == b.Applikationstag && a.erste_Rate == b.erste_Rate &&
           a.Bildung_Plateautiefe == b.Bildung_Plateautiefe && a.Summe_Temperatur == b.Summe_Temperatur &&
           a.Summe_Niederschlag == b.Summe_Niederschlag && a.Summe_Verdunstung == b.Summe_Verdunstung &&
           a.Warnungen.size() == b.Warnungen.size() &&  // they carry names
           std::equal(a.Stoffwerte.begin(), a.Stoffwerte.end(), b.Stoffwerte.begin(), b.Stoffwerte.end(), gleiche_Stoffe);
}

bool gleiche_Kurven(const Diagramm& a, const Diagramm& b) {
    return std::equal(a.Kurven.begin(), a.Kurven.end(), b.Kurven.begin(), b.Kurven.end(), [](const Kurve& x, const Kurve& y) {
        return x.Name == y.Name && x.Farbe == y.Farbe && x.erster_Tag == y.erster_Tag && x.Werte == y.Werte;
    });
}

// What tells two pictures apart, empty for equal ones.
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

std::string Satzdatei(const std::string& Name, std::size_t Art) { return Name + Endungen[Art]; }

// The bytes around a place.
std::string Stelle(const std::string& Bytes, std::size_t i) {
    const std::size_t von = Bytes.rfind('\n', i) + 1;
    return Bytes.substr(von, Bytes.find('\r', i) - von);
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

// A cell of the table keeps its number, not its text; an empty one is 0.
// A text as typed stays in the record until it is read again: 0,5 becomes 0.5. Names differ where their letters do.
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

// The first words that two texts of a record do not share.
std::string Unterschied(const std::string& a, const std::string& b) {
    const auto Worte_a = Worte(a);
    const auto Worte_b = Worte(b);
    const auto [x, y] = std::mismatch(Worte_a.begin(), Worte_a.end(), Worte_b.begin(), Worte_b.end());
    return "\"" + (x == Worte_a.end() ? "" : *x) + "\" is \"" + (y == Worte_b.end() ? "" : *y) + "\" now";
}

// Of a cover, without the names in it.
std::string Klasse(const std::string& Wort) {
    if (Wort.find(", line ") != std::string::npos) return "a record that cannot be read";
    const auto von = Wort.find('"');
    const auto bis = Wort.rfind('"');
    return von == std::string::npos ? Wort : Wort.substr(0, von) + "..." + Wort.substr(bis + 1);
}

}  // namespace

// ---- questions ----

Knopf Antworter::frage(const Frage& f) {
    std::vector<Knopf> moegliche = f.Knoepfe;
    const bool ja_nein = std::find(moegliche.begin(), moegliche.end(), Knopf::Nein) != moegliche.end();
    if (ja_nein) moegliche.push_back(Knopf::nicht_jetzt);
    Knopf Antwort = Zufall_->eins_von(moegliche);
    if (fest_) Antwort = ja_nein ? *fest_ : Knopf::OK;
    if (Angebot_ && f.Titel == "Unsaved values" && ja_nein) Antwort = *Angebot_;
    static const std::array Woerter = {"OK", "Cancel", "Yes", "No", "Esc"};
    const char* Wort = Woerter[static_cast<std::size_t>(Antwort)];
    ++Zaehler[f.Titel + ": " + Wort];
    Titel_.insert(f.Titel);
    ja_ = ja_ || Antwort == Knopf::Ja;
    Bericht_ += " {" + f.Titel + ": " + f.Text.substr(0, 90) + ": " + Wort + "}";
    return Antwort;
}

bool Antworter::gefragt(const std::string& Titel) const { return Titel_.contains(Titel); }

void Antworter::beginne() {
    ja_ = false;
    Titel_.clear();
    Bericht_.clear();
    fest_.reset();
}

// ---- results calculated anew ----

std::shared_ptr<const Ergebnis> Gegenrechnung::rechne(const Eingabe& e, int i_studie, const Klimabytes& Klima) {
    const Eingabe Schluessel = ohne_Texte(e);
    const std::string Wetter = Klima ? *Klima : "";
    for (const Platz& p : Plaetze_) {
        if (p.i_studie == i_studie && p.Klima == Wetter && p.Vorgabe == Schluessel) return p.Werte;
    }
    const auto Lauf_ = berechne_Studie(Arbeitsplatz_, std::make_shared<const Eingabe>(e), i_studie, bekanntes_Wetter(Klima));
    constexpr std::size_t Hoechstzahl = 24;
    if (Plaetze_.size() < Hoechstzahl) Plaetze_.emplace_back();
    Plaetze_[naechster_++ % Hoechstzahl] = {Schluessel, i_studie, Wetter, Lauf_.Werte};
    return Lauf_.Werte;
}

// ---- the walk ----

Gang::Gang() {
    starte();
    Stand_ = Projekt_.lies();
}

Gang::~Gang() { s_.reset(); }

void Gang::sage(const std::string& Text) { Protokoll_.back() += " " + Text; }

// The program is started, at the latest once all files are what they were.
bool Gang::starte() {
    bool beim_ersten = true;
    for (const bool zweiter : {false, true}) {
        s_.reset();  // of two windows on one folder the second would ask
        if (zweiter) {
            beim_ersten = false;
            const Dateien vorher = Projekt_.lies();
            Projekt_.stelle_her();
            Projekt_.ordne_Zeiten(vorher, Projekt_.lies());
        }
        Fragen_.bestehe_auf(Knopf::Nein);
        s_ = std::make_unique<Sitzung>(Umgebung{&Fragen_, Projekt_.Wurzel().string(), "", '.', &Zeit_});
        const bool offen = s_->fuehre_aus<&Programmablauf::oeffne_Projekt>();
        if (offen) break;
        if (zweiter) throw Verstoss{"start", "the program does not start although all files are there"};
    }
    s_->fuehre_aus<&Programmablauf::starte>();
    Fragen_.bestehe_auf(std::nullopt);
    Name_in_Arbeit = getippt_ = false;
    letzter_Stand_ = z().Vorgabe;
    ausstehend_ = 0;
    Klima_von_.clear();
    bekannt_ = z().Werte();
    merke_Wetter();
    return beim_ersten;
}

void Gang::stuerze_ab() {
    const Vorher v = merke();
    const Knopf Antwort = r().eins_von(std::array{Knopf::Ja, Knopf::Ja, Knopf::Nein, Knopf::nicht_jetzt});
    Fragen_.antworte_dem_Angebot(Antwort);
    const bool beim_ersten = starte();
    Fragen_.antworte_dem_Angebot(std::nullopt);
    abgestuerzt_ = true;
    if (!v.etwas_in_Arbeit) pruefe_Zurueckgebrachtes(v, Antwort == Knopf::Ja && beim_ersten);
}

// What no file held is in `backup`, and on the screen where that was wanted and nothing stood in the way.
void Gang::pruefe_Zurueckgebrachtes(const Vorher& v, bool gewuenscht) {
    const bool gestoert =
        Fragen_.gefragt("Runtime error") || Fragen_.Bericht().find("Not all of the values") != std::string::npos;
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || Bild == v.Saetze[Art].gespeichert()) continue;
        if (!Projekt_.gesichert(Bild))
            throw Verstoss{"unsaved values are lost with the program", Satzdatei(v.Saetze[Art].Datei().Name, Art)};
        const std::string jetzt = z().Speicherbild(Art);
        if (gewuenscht && !gestoert && jetzt != Bild && !gleiche_Zahlen(jetzt, Bild))
            throw Verstoss{"unsaved values do not come back", Satzdatei(v.Saetze[Art].Datei().Name, Art)};
    }
}

Gang::Vorher Gang::merke() const {
    Vorher v;
    v.Saetze = z().Saetze;
    for (const Satzart Art : alle_Arten) {
        try {
            v.Bilder[Art] = z().Speicherbytes(Art);
        } catch (const Laufzeitfehler&) {
            v.Bilder[Art].clear();
        }
    }
    v.Vorgabe = z().Vorgabe;
    v.etwas_in_Arbeit = Feld_in_Arbeit() || s_->zeige<Applikationstabelle>().ist_in_Arbeit() ||
                        s_->zeige<Studienverwaltung>().Name_offen() || z().Beschreibung_offen || Name_in_Arbeit;
    return v;
}

void Gang::tue(const Aktion& a) {
    const Aktionsart& Art = Aktionsarten()[static_cast<std::size_t>(a.Art)];
    Protokoll_.emplace_back(Art.Name);
    Zufall_.beginne(a.Saat);
    Fragen_.beginne();
    abgestuerzt_ = false;
    const Vorher v = merke();
    try {
        Art.tue(*this);
    } catch (const std::exception& f) {
        throw Verstoss{"exception", f.what()};
    }
    if (s_->zeige<Feldeingabe>().aktives_Feld() < 0) getippt_ = false;
    Protokoll_.back() += Fragen_.Bericht();
    if ((Art.Merkmale & immer) != 0) Name_in_Arbeit = false;
    pruefe_Dateien(Art, v);
    if (z().beendet) {
        if (std::filesystem::exists(Projekt_.Wurzel() / "backup/unsaved"))
            throw Verstoss{"values are left for the next start by a program that has ended", ""};
        starte();
        Stand_ = Projekt_.lies();
        return;
    }
    s_->fuehre_aus<&Zwischensicherung::schreibe>();  // the window does, when the action has been drawn
    pruefe_Ergebnisse(Art);
    if (!abgestuerzt_) pruefe_Verlauf(Art, v);
    Stand_ = Projekt_.lies();
}

// Nothing in `input` changes but by a command that writes, and what is replaced or dropped is in `backup`.
void Gang::pruefe_Dateien(const Aktionsart& a, const Vorher& v) {
    const Dateien nachher = Projekt_.lies();
    Projekt_.gesichert("");  // looks at what is new there
    Projekt_.ordne_Zeiten(Stand_, nachher);
    if ((a.Merkmale & (fremd | Pruefung)) != 0 && std::string(a.Name) != "undo" && std::string(a.Name) != "redo") return;
    const bool erlaubt = (a.Merkmale & schreibt) != 0 || Fragen_.ja_gesagt();
    std::set<std::string> neue;
    for (const auto& [Name, Bytes] : nachher) {
        const auto alt = Stand_.find(Name);
        if (alt == Stand_.end() || alt->second != Bytes) neue.insert(Bytes);
        if (erlaubt || (alt != Stand_.end() && alt->second == Bytes)) continue;
        throw Verstoss{"file written unasked", Name};
    }
    for (const auto& [Name, Bytes] : Stand_) {
        const auto jetzt = nachher.find(Name);
        if (jetzt != nachher.end() && jetzt->second == Bytes) continue;
        if (!erlaubt) throw Verstoss{"file removed unasked", Name};
        const bool eigener_Stand = std::any_of(alle_Arten.begin(), alle_Arten.end(), [&](Satzart Art) {
            const Dateistand& d = v.Saetze[Art].Datei();
            return jetzt != nachher.end() && Satzdatei(d.Name, Art) == Name && d.Bytes == Bytes;
        });
        // The organiser writes the summary file that it has read into its own lists.
        const bool da = jetzt != nachher.end() || Protokoll_.back().find("[3 .vnk") != std::string::npos;
        const bool gelesener = da && std::string(a.Name) == "organiser, Done" && Name.ends_with(".vnk");
        if (eigener_Stand || gelesener || neue.contains(Bytes) || Projekt_.gesichert(Bytes)) continue;
        throw Verstoss{"replaced file is not in backup", Name};
    }
    pruefe_Verworfenes(a, v, nachher);
}

// What a run makes of a table: other texts for its numbers, and less than 100 % of interception.
std::string Gang::repariert(Eingabe e) const {
    Tabelle_mit_Applikationen_berechne_PEC(e);
    return Satz_als_Bytes(Applikation, e, z().Sicht, z().Welt.Dezimalzeichen);
}

// Values that no file held and that the screen does not show any more.
void Gang::pruefe_Verworfenes(const Aktionsart& a, const Vorher& v, const Dateien& nachher) {
    if ((a.Merkmale & liest) == 0 && !z().beendet) return;
    if (v.etwas_in_Arbeit) return;  // accepted on the way: other values than before
    const bool andere_Simulation = z().beendet || std::string(a.Name) == "simulation";
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || Bild == v.Saetze[Art].gespeichert()) continue;
        if (Art == Simulation && !andere_Simulation) continue;
        const std::string jetzt = z().Speicherbild(Art);
        if (!z().beendet && (jetzt == Bild || (Art == Applikation && gleiche_Zahlen(jetzt, repariert(v.Vorgabe))))) continue;
        const bool Datei = std::any_of(nachher.begin(), nachher.end(), [&](const auto& d) { return d.second == Bild; });
        if (Datei || Projekt_.gesichert(Bild)) continue;
        // The editor's and the organiser's own changes are what the user did there.
        const std::string Name = a.Name;
        if (Name.starts_with("editor") && z().Saetze[Art].gelesen() && z().Saetze[Art].Datei().Name == v.Saetze[Art].Datei().Name)
            continue;
        throw Verstoss{"unsaved values are dropped",
                       Satzdatei(v.Saetze[Art].Datei().Name, Art) + ": " + Unterschied(Bild, jetzt)};
    }
}

void Gang::merke_Wetter() {
    for (const auto& e : z().Werte()) {
        if (e && !Klima_von_.contains(e.get())) Klima_von_[e.get()] = z().Klima;
    }
}

// What is to be seen is a run's outcome over the inputs on the screen, or, with the hint, over those that it carries.
void Gang::pruefe_Ergebnisse(const Aktionsart& a) {
    merke_Wetter();
    bekannt_ = z().Werte();  // so that no other result stands at the same place
    std::erase_if(Klima_von_, [&](const auto& p) {
        return std::none_of(bekannt_.begin(), bekannt_.end(), [&](const auto& e) { return e.get() == p.first; });
    });
    if (z().abgedeckt()) {
        ++Abdeckungen_[Klasse(z().Abdeckungswort())];
        return;
    }
    const bool Hinweis = z().Hinweis();
    if (!Hinweis && (a.Merkmale & immer) != 0 && z().Parameter().Klimamodus == 1) {
        const auto Datei = Stand_.find(z().Vorgabe.Klimaszenario + Klima_Endung);
        if (Datei == Stand_.end() || !z().Klima || *z().Klima != Datei->second)
            throw Verstoss{"results of another weather", z().Vorgabe.Klimaszenario};
    }
    Zustand frisch;
    frisch.Welt.Dezimalzeichen = '.';
    frisch.Vorgabe = z().Vorgabe;
    frisch.Sicht = z().Sicht;
    frisch.Zusammenfassung_aktiv = z().Zusammenfassung_aktiv;
    for (const int st : z().gezeigte_Studien()) pruefe_Studie(st, Hinweis, frisch);
    pruefe_Tabellen(frisch);
    if (!z().Beschreibung_offen && !Name_in_Arbeit) pruefe_Diagramm(frisch);
    ++verglichen_;
}

void Gang::pruefe_Studie(int st, bool Hinweis, Zustand& frisch) {
    const auto& Gezeigtes = z().Werte().at(static_cast<std::size_t>(st));
    if (!Gezeigtes) throw Verstoss{"no results uncovered", "study " + std::to_string(st)};
    const Eingabe& Vorgabe = Hinweis ? *Gezeigtes->Vorgabe : z().Vorgabe;
    std::shared_ptr<const Ergebnis> e;
    try {
        e = Gegen_.rechne(Vorgabe, st, Hinweis ? Klima_von_.at(Gezeigtes.get()) : z().Klima);
    } catch (const std::exception& f) {
        throw Verstoss{"results uncovered that no run gives", f.what()};
    }
    if (!e) throw Verstoss{"results uncovered that no run gives", "study " + std::to_string(st)};
    if (!gleiche_Werte(*e, *Gezeigtes))
        throw Verstoss{Hinweis ? "results are not of the input they carry" : "results are not of the input on the screen",
                       "study " + std::to_string(st)};
    frisch.Gerechnetes.uebernimm(st, e, nullptr);
}

void Gang::pruefe_Tabellen(const Zustand& frisch) {
    const auto st = static_cast<std::size_t>(z().gezeigte_Studien().front());
    const int Anzahl = static_cast<int>(frisch.Werte().at(st)->Stoffwerte.size());
    for (int c = 0; c < Anzahl; ++c) {
        const bool gleich = z().Zusammenfassung_aktiv
                                ? Ergebnisse_aller_Studien(s_->Stand(), c) == Ergebnisse_aller_Studien(frisch, c)
                                : Ergebnisse_einer_Studie(s_->Stand(), c) == Ergebnisse_einer_Studie(frisch, c);
        if (!gleich) throw Verstoss{"table of results", "compound " + std::to_string(c)};
    }
}

void Gang::pruefe_Diagramm(const Zustand& frisch) {
    const Diagrammsteuerung& d = s_->zeige<Diagrammsteuerung>();
    const Diagramm* Bild = d.vorderes();
    if (Bild == nullptr) throw Verstoss{"no diagram in front", std::to_string(d.vorne())};
    Diagrammbereiche b = Startbereiche(z().Sicht.PEC_Typ);
    const auto i = static_cast<std::size_t>(d.vorne());
    if (z().Zusammenfassung_aktiv) {
        b.X_Start_Zusammenfassung[i] = d.X_Start();
        b.X_Ende_Zusammenfassung[i] = b.manuelles_Ende[i] = d.X_Ende();
    } else {
        b.X_Start[i] = d.X_Start();
        b.X_Ende[i] = d.X_Ende();
    }
    const auto neue = z().Zusammenfassung_aktiv ? erstelle_Diagramme_Zusammenfassung(frisch.zeige(), b, z().i_studie())
                                                : erstelle_Diagramme(frisch.zeige(), b, z().i_studie());
    const auto Neues = std::find_if(neue.begin(), neue.end(), [&](const Diagramm& n) { return n.Nummer == Bild->Nummer; });
    if (Neues == neue.end()) throw Verstoss{"diagram in front that the scheme does not have", std::to_string(Bild->Nummer)};
    const std::string Abweichung = Unterschied_der(*Bild, *Neues);
    if (!Abweichung.empty()) throw Verstoss{"diagram: " + Abweichung.substr(0, Abweichung.find(' ')), Abweichung};
}

// Undo gives the inputs before, redo those after.
void Gang::pruefe_Verlauf(const Aktionsart& a, const Vorher& v) {
    const bool offen = Feld_in_Arbeit() || s_->zeige<Applikationstabelle>().ist_in_Arbeit() ||
                       s_->zeige<Studienverwaltung>().Name_offen() || z().Beschreibung_offen || Name_in_Arbeit;
    // Cells are no step before a command that surely was done.
    if ((a.Merkmale & immer) != 0) Zelle_in_Arbeit_ = false;
    if ((a.Merkmale & (Befehl | Handlung | fremd)) == 0 && v.Vorgabe.Applikationsschema != z().Vorgabe.Applikationsschema)
        Zelle_in_Arbeit_ = true;
    // A record was read, perhaps: where the history stands now is known once nothing is in work.
    if ((a.Merkmale & (liest | Pruefung)) != 0) letzter_Stand_.reset();
    // A cell in work is no step before a command; one that did nothing may not have ended an action.
    const bool abgeschlossen = (a.Merkmale & (Befehl | Handlung)) != 0 && !(v.Vorgabe == z().Vorgabe);
    if (letzter_Stand_ && *letzter_Stand_ == z().Vorgabe && !offen) {
        ausstehend_ = 0;
        return;
    }
    if (offen || (letzter_Stand_ && !abgeschlossen)) {
        ++ausstehend_;
        return;
    }
    if (!letzter_Stand_) {
        if (Zelle_in_Arbeit_) return;
        letzter_Stand_ = z().Vorgabe;
        ausstehend_ = 0;
        return;
    }
    const Eingabe jetzt = z().Vorgabe;
    const int hoechstens = 1 + 2 * ausstehend_ + (v.etwas_in_Arbeit ? 2 : 0);
    int n = 0;
    Fragen_.beginne();
    while (n < hoechstens && !(z().Vorgabe == *letzter_Stand_) && !s_->zeige<Ruecknahme>().Name_zurueck().empty()) {
        s_->fuehre_aus<&Ruecknahme::mache_rueckgaengig>();
        ++n;
    }
    const std::string Nachsatz =
        std::to_string(n) + " steps back, differs in " + vergleiche(z().Vorgabe, *letzter_Stand_).Name + Fragen_.Bericht();
    if (!(z().Vorgabe == *letzter_Stand_)) throw Verstoss{"undo does not give the input before", Nachsatz};
    for (int i = 0; i < n; ++i) s_->fuehre_aus<&Ruecknahme::wiederhole>();
    // A table that was typed and not run yet is repaired by the run.
    Eingabe wieder = z().Vorgabe;
    if (ausstehend_ > 0 && jetzt.Applikationsmuster == unregelmaessig) wieder.Applikationsschema = jetzt.Applikationsschema;
    if (!(wieder == jetzt)) throw Verstoss{"redo does not give the input after", Nachsatz};
    letzter_Stand_ = z().Vorgabe;
    ausstehend_ = 0;
    ++Schritte_;
}

// ---- what must always be possible ----

namespace {

void Esc(Sitzung& s) {
    if (s.zeige<Feldeingabe>().aktives_Feld() >= 0)
        s.fuehre_aus<&Feldeingabe::nimm_zurueck>(s.zeige<Feldeingabe>().aktives_Feld());
    s.fuehre_aus<&Studienverwaltung::nimm_zurueck>();
    if (s.Stand().Beschreibung_offen) s.fuehre_aus<&Beschreibungseingabe::nimm_zurueck>();
}

}  // namespace

void Gang::pruefe_Ende(Knopf Antwort) {
    Fragen_.bestehe_auf(Antwort);
    for (const bool nach_Esc : {false, true}) {
        if (nach_Esc) Esc(*s_);
        s_->fuehre_aus<&Programmablauf::beende>();
        if (!z().beendet) s_->fuehre_aus<&Programmablauf::schliesse_Fenster>();
        if (z().beendet) return;
    }
    // A save that cannot be done is told, and then only No ends the program.
    const bool gesagt = Fragen_.gefragt("Record not set") || Fragen_.gefragt("Runtime error");
    if (Antwort == Knopf::Ja && gesagt) return;
    throw Verstoss{"the program cannot be ended", Fragen_.Bericht()};
}

void Gang::pruefe_andere_Simulation() {
    Fragen_.bestehe_auf(Knopf::Nein);
    const Dateien da = Projekt_.lies();
    const auto& Liste = z().Listen[Simulation];
    for (std::size_t i = 0; i < Liste.size(); ++i) {
        const std::string Name = Liste[i];
        if (Name == z().gewaehlt(Simulation) || !da.contains(Satzdatei(Name, Simulation))) continue;
        try {
            lies_Simulation(Projektordner(Projekt_.Wurzel().string()), Name);
        } catch (const Laufzeitfehler&) {
            continue;
        }
        s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
        if (z().gewaehlt(Simulation) != Name && !z().beendet) {
            Esc(*s_);
            s_->fuehre_aus<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
        }
        if (z().gewaehlt(Simulation) != Name && !z().beendet)
            throw Verstoss{"no other simulation can be chosen", Name + Fragen_.Bericht()};
        return;
    }
}

// Saved and loaded by another program: the same numbers, the same results.
void Gang::pruefe_Sicherung() {
    Fragen_.bestehe_auf(Knopf::Ja);
    s_->fuehre_aus<&Satzverwaltung::speichere>();
    const bool gesagt =
        Fragen_.gefragt("Record not set") || Fragen_.gefragt("Runtime error") || Fragen_.gefragt("No valid input!");
    if (gesagt || z().beendet || s_->zeige<Feldeingabe>().aktives_Feld() >= 0) return;
    const Dateien da = Projekt_.lies();
    for (const Satzart Art : alle_Arten) {
        if (!z().Saetze[Art].gelesen()) return;
        const auto Datei = da.find(Satzdatei(z().Namen[Art], Art));
        if (Datei == da.end() || Datei->second != z().Speicherbytes(Art))
            throw Verstoss{"a save has not written what is on the screen", Satzdatei(z().Namen[Art], Art)};
    }
    Projekt_.ordne_Zeiten(Stand_, da);
    Zufall keiner(0);
    Antworter andere(&keiner);
    andere.bestehe_auf(Knopf::Nein);
    Sitzung zweite(Umgebung{&andere, Projekt_.Wurzel().string(), "", '.', &Zeit_});
    if (!zweite.fuehre_aus<&Programmablauf::oeffne_Projekt>())
        throw Verstoss{"what was saved cannot be loaded", andere.Bericht()};
    const Zustand& geladen = zweite.Stand();
    if (geladen.gewaehlt(Simulation) != z().gewaehlt(Simulation)) return;  // another one was written at the same time
    for (const Satzart Art : alle_Arten) {
        const std::string hier = z().Speicherbild(Art);
        const std::string dort = geladen.Speicherbild(Art);
        if (hier == dort || gleiche_Zahlen(hier, dort)) continue;
        const auto i =
            static_cast<std::size_t>(std::mismatch(hier.begin(), hier.end(), dort.begin(), dort.end()).first - hier.begin());
        throw Verstoss{"other numbers after saving and loading",
                       Satzdatei(z().Namen[Art], Art) + ": \"" + Stelle(hier, i) + "\" came back as \"" + Stelle(dort, i) + "\""};
    }
    if (z().abgedeckt() || z().Hinweis()) return;
    for (const int st : z().gezeigte_Studien()) {
        const auto e = Gegen_.rechne(geladen.Vorgabe, st, z().Klima);
        if (!e || !gleiche_Werte(*e, *z().Werte().at(static_cast<std::size_t>(st))))
            throw Verstoss{"other results after saving and loading", "study " + std::to_string(st)};
    }
}

// ---- lists of actions ----

std::vector<Aktion> wuerfle(std::uint64_t Saat, int Anzahl) {
    Zufall r(Saat);
    const auto& Arten = Aktionsarten();
    std::vector<int> Lose;  // each kind by its weight
    std::vector<int> gezogene;
    for (int Art = 0; Art < static_cast<int>(Arten.size()); ++Art) {
        const int Gewicht = Arten[static_cast<std::size_t>(Art)].Gewicht;
        Lose.insert(Lose.end(), static_cast<std::size_t>(Gewicht), Art);
        // None is left out, however light.
        if (Gewicht > 0) gezogene.insert(gezogene.end(), static_cast<std::size_t>(Anzahl) / 140, Art);
    }
    gezogene.resize(std::min(gezogene.size(), static_cast<std::size_t>(Anzahl)));
    while (gezogene.size() < static_cast<std::size_t>(Anzahl)) gezogene.push_back(r.eins_von(Lose));
    for (std::size_t i = gezogene.size(); i > 1; --i) {
        std::swap(gezogene[i - 1], gezogene[static_cast<std::size_t>(r.unter(static_cast<int>(i)))]);
    }
    const int Sicherung = Aktion_mit_Namen("check: save and load");
    const std::array Enden = {Aktion_mit_Namen("check: exit with Yes"), Aktion_mit_Namen("check: exit with No"),
                              Aktion_mit_Namen("check: another simulation")};
    std::vector<Aktion> Liste;
    for (std::size_t i = 1; i <= gezogene.size(); ++i) {
        if (i % 50 == 25) Liste.push_back({Sicherung, r.Zahl()});
        if (i % 33 == 0) Liste.push_back({Enden[i / 33 % Enden.size()], r.Zahl()});
        Liste.push_back({gezogene[i - 1], r.Zahl()});
    }
    return Liste;
}

Gangergebnis gehe(const std::vector<Aktion>& Liste) {
    Gang g;
    Gangergebnis e;
    for (; e.bei < Liste.size() && !e.Fund; ++e.bei) {
        try {
            g.tue(Liste[e.bei]);
        } catch (const Verstoss& v) {
            e.Fund = v;
            break;
        }
    }
    e.Protokoll = g.Protokoll();
    e.Fragen = g.Fragen();
    e.Abdeckungen = g.Abdeckungen();
    e.verglichen = g.verglichen();
    e.Schritte = g.Schritte();
    return e;
}

std::vector<Aktion> kuerze(std::vector<Aktion> Liste, const std::string& Regel, double Sekunden) {
    using Zeit = std::chrono::steady_clock;
    const auto Ende = Zeit::now() + std::chrono::duration<double>(Sekunden);
    const auto zeigt = [&](const std::vector<Aktion>& l) -> std::optional<std::size_t> {
        const Gangergebnis e = gehe(l);
        return e.Fund && e.Fund->Regel == Regel ? std::optional(e.bei + 1) : std::nullopt;
    };
    // The last actions alone, if they will do.
    for (std::size_t n = 8; n < Liste.size() && Zeit::now() < Ende; n *= 3) {
        std::vector<Aktion> letzte(Liste.end() - static_cast<std::ptrdiff_t>(n), Liste.end());
        if (const auto Laenge = zeigt(letzte)) {
            letzte.resize(*Laenge);
            Liste = letzte;
            break;
        }
    }
    for (std::size_t Stueck = std::max<std::size_t>(Liste.size() / 2, 1);; Stueck /= 2) {
        for (std::size_t i = 0; i < Liste.size() && Zeit::now() < Ende;) {
            std::vector<Aktion> ohne = Liste;
            const auto von = ohne.begin() + static_cast<std::ptrdiff_t>(i);
            ohne.erase(von, ohne.begin() + static_cast<std::ptrdiff_t>(std::min(i + Stueck, ohne.size())));
            const auto Laenge = zeigt(ohne);
            if (Laenge) {
                ohne.resize(*Laenge);
                Liste = ohne;
            } else {
                i += Stueck;
            }
        }
        if (Stueck == 1) return Liste;
    }
}

}  // namespace varnok::gang
