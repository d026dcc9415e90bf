// What must hold after each action of a walk, whatever the user does.

#include <algorithm>
#include <exception>
#include <set>
#include <sstream>

#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "diagrams/ausschnitt.h"
#include "diagrams/diagrammbau.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "reports/berichtstext.h"
#include "run/applikation.h"
#include "run/laufeingang.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/sitzungsgang.h"
#include "session/kern/unterschied.h"

namespace varnok::gang {
namespace {

// A report without the lines that tell when it was made.
std::string ohne_Zeitpunkt(const std::string& Bericht, const std::string& mit_Zeichen) {
    std::string Text;
    std::istringstream hier(Bericht), dort(mit_Zeichen);
    for (std::string Zeile, andere; std::getline(hier, Zeile);) {
        if (!std::getline(dort, andere) || andere.find("@@") == std::string::npos) Text += Zeile + "\n";
    }
    return Text;
}

}  // namespace

// Nothing in `input` changes but what the commands done and the answers given allow, and what is replaced or dropped is in
// `backup`.
void Gang::pruefe_Dateien(const Vorher& v) {
    const Dateien nachher = Projekt_.lies();
    Projekt_.gesichert("");  // looks at what is new there
    Projekt_.ordne_Zeiten(Stand_, nachher);
    std::set<std::string> neue;
    for (const auto& [Name, Bytes] : nachher) {
        const auto alt = Stand_.find(Name);
        if (alt != Stand_.end() && alt->second == Bytes) continue;
        neue.insert(Bytes);
        if (!erlaubt_.contains(Name)) throw Verstoss{"file written unasked", Name};
    }
    for (const auto& [Name, Bytes] : Stand_) {
        const auto jetzt = nachher.find(Name);
        if (jetzt != nachher.end() && jetzt->second == Bytes) continue;
        if (!erlaubt_.contains(Name)) throw Verstoss{"file removed unasked", Name};
        const bool eigener_Stand = std::any_of(alle_Arten.begin(), alle_Arten.end(), [&](Satzart Art) {
            const Dateistand& d = v.Saetze[Art].Datei();
            return jetzt != nachher.end() && Satzdatei(d.Name, Art) == Name && d.Bytes == Bytes;
        });
        // The organiser writes the summary file that it has read into its own lists.
        const bool da = jetzt != nachher.end() || Protokoll_.back().find("[3 .vnk") != std::string::npos;
        const bool gelesener = da && std::string(Art_->Name).starts_with("organiser") && Name.ends_with(".vnk");
        if (eigener_Stand || gelesener || neue.contains(Bytes) || Projekt_.gesichert(Bytes)) continue;
        throw Verstoss{"replaced file is not in backup", Name};
    }
}

// What a run makes of a table: other texts for its numbers, and less than 100 % of interception.
std::string Gang::repariert(Eingabe e) const {
    Tabelle_mit_Applikationen_berechne_PEC(e);
    return Satz_als_Bytes(Applikation, e, {}, z().Welt.Dezimalzeichen);
}

// Values that no file held and that the screen does not show any more.
void Gang::pruefe_Verworfenes(const Aktionsart& a, const Vorher& v, const Dateien& nachher) {
    if ((a.Merkmale & liest) == 0 && !z().beendet()) return;
    if (v.etwas_in_Arbeit) return;  // accepted on the way: other values than before
    const bool andere_Simulation = z().beendet() || std::string(a.Name) == "simulation";
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || v.Eingaben[Art] == v.Saetze[Art].gespeichert()) continue;
        if (Art == Simulation && !andere_Simulation) continue;
        const std::string jetzt = z().Speicherbild(Art);
        if (!z().beendet() && (jetzt == v.Eingaben[Art] || (Art == Applikation && gleiche_Zahlen(jetzt, repariert(v.Vorgabe)))))
            continue;
        const bool Datei = std::any_of(nachher.begin(), nachher.end(), [&](const auto& d) { return d.second == Bild; });
        if (Datei || Projekt_.gesichert(Bild)) continue;
        // The command that led to the end chose another record before: that combination is what was unsaved.
        if (Art == Simulation && z().beendet() && Projekt_.gesichert(jetzt)) continue;
        // The editor's and the organiser's own changes are what the user did there.
        const std::string Name = a.Name;
        if (Name.starts_with("editor") && z().Saetze[Art].gelesen() && z().Saetze[Art].Datei().Name == v.Saetze[Art].Datei().Name)
            continue;
        throw Verstoss{"unsaved values are dropped",
                       Satzdatei(v.Saetze[Art].Datei().Name, Art) + ": " + Unterschied(v.Eingaben[Art], jetzt)};
    }
}

void Gang::merke_Wetter() {
    for (const auto& e : z().Werte()) {
        if (e) Klima_von_.try_emplace(e, z().Klima);
    }
}

// What is to be seen is a run's outcome over the inputs on the screen, or, with the hint, over those that it carries.
void Gang::pruefe_Ergebnisse(const Aktionsart& a) {
    merke_Wetter();
    const auto& Werte = z().Werte();
    std::erase_if(Klima_von_, [&](const auto& p) { return std::find(Werte.begin(), Werte.end(), p.first) == Werte.end(); });
    pruefe_Marken();
    if (!etwas_offen()) pruefe_Satzbytes();
    if (z().abgedeckt()) {
        const std::string Klasse = Klasse_der_Abdeckung(z().Abdeckungswort());
        if (Klasse.empty()) throw Verstoss{"a cover that the walk does not know", z().Abdeckungswort()};
        ++Abdeckungen_[Klasse];
        return;
    }
    const bool Hinweis = z().Hinweis();
    if (!Hinweis && (a.Merkmale & immer) != 0 && z().Parameter().Klimamodus == nach_Klimadatei) {
        const auto Datei = Stand_.find(z().Vorgabe.Klimaszenario + Klima_Endung);
        if (Datei == Stand_.end() || !z().Klima.Wert() || *z().Klima.Wert() != Datei->second)
            throw Verstoss{"results of another weather", z().Vorgabe.Klimaszenario};
    }
    Zustand frisch = frischer_Zustand();
    for (const int st : z().gezeigte_Studien()) pruefe_Studie(st, Hinweis, frisch);
    pruefe_Tabellen(frisch);
    if (!s_->zeige<Beschreibungseingabe>().offen() && !Name_in_Arbeit) {
        pruefe_Diagramm(frisch);
        // A cell pasted is no step: only a command that surely was done closes what it changed.
        const bool zu_Ende = !etwas_offen() && (!Hinweis || (a.Merkmale & immer) != 0);
        if (zu_Ende) pruefe_Bericht(frisch);
    }
    ++verglichen_;
}

Zustand Gang::frischer_Zustand() const {
    Zustand frisch;
    frisch.Welt.Dezimalzeichen = '.';
    frisch.Vorgabe = z().Vorgabe;
    frisch.Sicht = z().Sicht;
    if (z().Zusammenfassung_aktiv()) frisch.zeige_Zusammenfassung();
    return frisch;
}

// While a question stands the window can be seen behind it.
void Gang::sieh_bei_Frage_hin() {
    if (!s_ || Fund_ || !z().Gestartet || z().beendet() || z().abgedeckt()) return;
    try {
        merke_Wetter();
        Zustand frisch = frischer_Zustand();
        if (!z().Hinweis()) {
            for (const int st : z().gezeigte_Studien()) pruefe_Studie(st, false, frisch);
        }
        const Diagramm* Bild = s_->zeige<Diagrammsteuerung>().vorderes();
        if (Bild != nullptr && Bild->Zusammenfassung != z().Zusammenfassung_aktiv()) throw Verstoss{"another view", ""};
    } catch (const Verstoss& v) {
        Fund_ = {"at a question: " + v.Regel, v.Text};
    } catch (const std::exception& f) {
        Fund_ = {"at a question: exception", f.what()};
    }
}

// Marks and lines that tell of the values.
void Gang::pruefe_Marken() const {
    if (!z().Statuszeile.Text().empty() && z().Statuszeile.Zeit().empty())
        throw Verstoss{"a status line without a time", z().Statuszeile.Text()};
    if (!z().Saetze[Simulation].gelesen() || z().Saetze[Simulation].Datei().Bytes.empty()) return;
    const Dateistand& d = z().Saetze[Simulation].Datei();
    const Simulationssatz gelesen = zerlege_Simulation(d.Bytes, d.Name);
    bool andere = false;
    for (const Satzart Art : Eingabearten) andere = andere || z().Namen[Art] != gelesen.Dateinamen[Art];
    if (andere != z().Simulation_markiert())
        throw Verstoss{"the mark of the combination", andere ? "is missing" : "stands over the combination of the file"};
}

// What a save would write now is read as what is on the screen: the same numbers, and for a run the same input.
void Gang::pruefe_Satzbytes() const {
    if (!z().Saetze_vollstaendig()) return;
    // Nothing of what is read may come from the values before.
    Eingabe gelesene;
    gelesene.Parameter.TWA = z().Parameter().TWA;  // of the settings
    Ansicht Sicht;
    for (const Satzart Art : Eingabearten) {
        std::string Bytes;
        try {
            Bytes = z().Speicherbytes(Art);
        } catch (const Laufzeitfehler&) {
            return;  // a save is refused, too
        }
        const Lesebefund b = Satz_lesen_aus(Bytes, Endungen[Art], Art, gelesene, Sicht, '.');
        if (b.Ausgang != Leseausgang::gelesen) throw Verstoss{"what a save would write cannot be read", Endungen[Art] + b.Grund};
    }
    for (const Satzart Art : Eingabearten) {
        const std::string hier = z().Speicherbytes(Art);
        const std::string dort = Satz_als_Bytes(Art, gelesene, Sicht, '.');
        if (hier != dort && !gleiche_Zahlen(hier, dort))
            throw Verstoss{"other numbers after writing and reading", Endungen[Art] + (" " + Unterschied(hier, dort))};
    }
    for (int st = 0; st < z().Studienzahl(); ++st) {
        if (!gleicher_Laufeingang(gelesene, z().Vorgabe, st))
            throw Verstoss{"another input of a run after writing and reading", "study " + std::to_string(st)};
    }
}

// The open report tells of what is shown, word for word.
void Gang::pruefe_Bericht(const Zustand& frisch) const {
    const Bericht* Offener = s_->zeige<Berichtssteuerung>().offener();
    if (Offener == nullptr) return;
    if (z().Hinweis() || z().abgedeckt()) throw Verstoss{"an open report over other values", ""};
    const Berichtsangaben Angaben{Programmversion, "@@", "@@", z().Namen[Applikation]};
    const std::string neu = z().Zusammenfassung_aktiv() ? erstelle_erweiterten_Bericht(frisch.zeige(), Angaben)
                                                        : erstelle_Standardbericht(frisch.zeige(), Angaben);
    const std::string hier = ohne_Zeitpunkt(Offener->Text, neu);
    const std::string dort = ohne_Zeitpunkt(neu, neu);
    if (hier != dort) throw Verstoss{"an open report of something else", Unterschied(hier, dort)};
}

void Gang::pruefe_Studie(int st, bool Hinweis, Zustand& frisch) {
    const auto& Gezeigtes = z().Werte().at(static_cast<std::size_t>(st));
    if (!Gezeigtes) throw Verstoss{"no results uncovered", "study " + std::to_string(st)};
    const Eingabe& Vorgabe = Hinweis ? *Gezeigtes->Vorgabe : z().Vorgabe;
    std::shared_ptr<const Ergebnis> e;
    try {
        e = Gegen_.rechne(Vorgabe, st, Hinweis ? Klima_von_.at(Gezeigtes) : z().Klima.Wert());
    } catch (const std::exception& f) {
        throw Verstoss{"results uncovered that no run gives", f.what()};
    }
    if (!e)
        throw Verstoss{"results uncovered that no run gives", "study " + std::to_string(st) + (Hinweis ? ", hint" : "") +
                                                                  ", weather of " + Vorgabe.Klimaszenario +
                                                                  (Vorgabe == z().Vorgabe ? "" : ", other inputs")};
    if (!gleiche_Werte(*e, *Gezeigtes))
        throw Verstoss{Hinweis ? "results are not of the input they carry" : "results are not of the input on the screen",
                       "study " + std::to_string(st)};
    frisch.Gerechnetes.uebernimm(st, e, nullptr);
}

void Gang::pruefe_Tabellen(const Zustand& frisch) {
    const auto st = static_cast<std::size_t>(z().gezeigte_Studien().front());
    const int Anzahl = static_cast<int>(frisch.Werte().at(st)->Stoffwerte.size());
    for (int c = 0; c < Anzahl; ++c) {
        const bool gleich = z().Zusammenfassung_aktiv()
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
    if (z().Zusammenfassung_aktiv()) {
        b.X_Start_Zusammenfassung[i] = d.X_Start();
        b.X_Ende_Zusammenfassung[i] = b.manuelles_Ende[i] = d.X_Ende();
    } else {
        b.X_Start[i] = d.X_Start();
        b.X_Ende[i] = d.X_Ende();
    }
    auto neue = z().Zusammenfassung_aktiv() ? erstelle_Diagramme_Zusammenfassung(frisch.zeige(), b, z().i_studie())
                                            : erstelle_Diagramme(frisch.zeige(), b, z().i_studie());
    const auto Neues = std::find_if(neue.begin(), neue.end(), [&](const Diagramm& n) { return n.Nummer == Bild->Nummer; });
    if (Neues == neue.end()) throw Verstoss{"diagram in front that the scheme does not have", std::to_string(Bild->Nummer)};
    const auto gesehen = d.hat_Ausschnitt() ? gezeigter_Zeitraum(*Bild) : std::nullopt;
    if (gesehen) *Neues = zeige_Ausschnitt(*Neues, *gesehen);
    const std::string Abweichung = Unterschied_der(*Bild, *Neues);
    if (!Abweichung.empty()) throw Verstoss{"diagram: " + Abweichung.substr(0, Abweichung.find(' ')), Abweichung};
}

// Undo gives the inputs before, redo those after.
void Gang::pruefe_Verlauf(const Aktionsart& a, const Vorher& v) {
    const bool offen = etwas_offen();
    // Cells are no step before a command that surely was done.
    if ((a.Merkmale & immer) != 0) Zelle_in_Arbeit_ = false;
    if ((a.Merkmale & (Befehl | Handlung | fremd)) == 0 && v.Vorgabe.Applikationsschema != z().Vorgabe.Applikationsschema)
        Zelle_in_Arbeit_ = true;
    // The action went through the history itself: where that stands now is known once nothing is in work.
    if (im_Verlauf_bewegt_) letzter_Stand_.reset();
    // A cell in work is no step before a command; one that did nothing may not have ended an action.
    const bool abgeschlossen = (a.Merkmale & (Befehl | Handlung)) != 0 && !(v.Vorgabe == z().Vorgabe);
    if (letzter_Stand_ && *letzter_Stand_ == z().Vorgabe && !offen) {
        ausstehend_ = 0;
        return;
    }
    constexpr int viele = 50;  // steps of an action of several commands
    const bool mehrere = (a.Merkmale & (liest | Pruefung)) != 0;
    if (offen || (letzter_Stand_ && !abgeschlossen)) {
        ausstehend_ += mehrere ? viele : 1;
        return;
    }
    if (!letzter_Stand_) {
        if (Zelle_in_Arbeit_) return;
        letzter_Stand_ = z().Vorgabe;
        ausstehend_ = 0;
        return;
    }
    const Eingabe jetzt = z().Vorgabe;
    const int hoechstens = (mehrere ? viele : 1) + 2 * ausstehend_ + (v.etwas_in_Arbeit ? 2 : 0);
    int n = 0;
    Fragen_.beginne();
    while (n < hoechstens && !(z().Vorgabe == *letzter_Stand_) && !s_->zeige<Ruecknahme>().Name_zurueck().empty()) {
        tue<&Ruecknahme::mache_rueckgaengig>();
        ++n;
    }
    const std::string Nachsatz =
        std::to_string(n) + " steps back, differs in " + vergleiche(z().Vorgabe, *letzter_Stand_).Name + Fragen_.Bericht();
    if (!(z().Vorgabe == *letzter_Stand_)) throw Verstoss{"undo does not give the input before", Nachsatz};
    for (int i = 0; i < n; ++i) tue<&Ruecknahme::wiederhole>();
    // A table that was typed and not run yet is repaired by the run.
    Eingabe wieder = z().Vorgabe;
    if (ausstehend_ > 0 && jetzt.Applikationsmuster == unregelmaessig) wieder.Applikationsschema = jetzt.Applikationsschema;
    if (!(wieder == jetzt)) throw Verstoss{"redo does not give the input after", Nachsatz};
    letzter_Stand_ = z().Vorgabe;
    ausstehend_ = 0;
    ++Schritte_;
}

}  // namespace varnok::gang
