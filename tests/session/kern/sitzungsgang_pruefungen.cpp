// What must hold after each action of a walk, whatever the user does.

#include <algorithm>
#include <exception>
#include <set>

#include "diagrams/diagrammbau.h"
#include "records/satz.h"
#include "run/applikation.h"
#include "session/ergebnis/ergebnisanzeige.h"
#include "session/kern/sitzungsgang.h"
#include "session/kern/unterschied.h"

namespace varnok::gang {
namespace {

constexpr std::array alle_Arten = {Simulation, Wirkstoff, Applikation, Szenario};

// Of a cover, without the names in it.
std::string Klasse(const std::string& Wort) {
    if (Wort.find(", line ") != std::string::npos) return "a record that cannot be read";
    const auto von = Wort.find('"');
    const auto bis = Wort.rfind('"');
    return von == std::string::npos ? Wort : Wort.substr(0, von) + "..." + Wort.substr(bis + 1);
}

}  // namespace

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
    if ((a.Merkmale & liest) == 0 && !z().beendet()) return;
    if (v.etwas_in_Arbeit) return;  // accepted on the way: other values than before
    const bool andere_Simulation = z().beendet() || std::string(a.Name) == "simulation";
    for (const Satzart Art : alle_Arten) {
        const std::string& Bild = v.Bilder[Art];
        if (!v.Saetze[Art].gelesen() || Bild.empty() || Bild == v.Saetze[Art].gespeichert()) continue;
        if (Art == Simulation && !andere_Simulation) continue;
        const std::string jetzt = z().Speicherbild(Art);
        if (!z().beendet() && (jetzt == Bild || (Art == Applikation && gleiche_Zahlen(jetzt, repariert(v.Vorgabe))))) continue;
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
        if (Datei == Stand_.end() || !z().Klima.Wert() || *z().Klima.Wert() != Datei->second)
            throw Verstoss{"results of another weather", z().Vorgabe.Klimaszenario};
    }
    Zustand frisch;
    frisch.Welt.Dezimalzeichen = '.';
    frisch.Vorgabe = z().Vorgabe;
    frisch.Sicht = z().Sicht;
    if (z().Zusammenfassung_aktiv()) frisch.zeige_Zusammenfassung();
    for (const int st : z().gezeigte_Studien()) pruefe_Studie(st, Hinweis, frisch);
    pruefe_Tabellen(frisch);
    if (!s_->zeige<Beschreibungseingabe>().offen() && !Name_in_Arbeit) pruefe_Diagramm(frisch);
    ++verglichen_;
}

void Gang::pruefe_Studie(int st, bool Hinweis, Zustand& frisch) {
    const auto& Gezeigtes = z().Werte().at(static_cast<std::size_t>(st));
    if (!Gezeigtes) throw Verstoss{"no results uncovered", "study " + std::to_string(st)};
    const Eingabe& Vorgabe = Hinweis ? *Gezeigtes->Vorgabe : z().Vorgabe;
    std::shared_ptr<const Ergebnis> e;
    try {
        e = Gegen_.rechne(Vorgabe, st, Hinweis ? Klima_von_.at(Gezeigtes.get()) : z().Klima.Wert());
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
    const auto neue = z().Zusammenfassung_aktiv() ? erstelle_Diagramme_Zusammenfassung(frisch.zeige(), b, z().i_studie())
                                                  : erstelle_Diagramme(frisch.zeige(), b, z().i_studie());
    const auto Neues = std::find_if(neue.begin(), neue.end(), [&](const Diagramm& n) { return n.Nummer == Bild->Nummer; });
    if (Neues == neue.end()) throw Verstoss{"diagram in front that the scheme does not have", std::to_string(Bild->Nummer)};
    const std::string Abweichung = Unterschied_der(*Bild, *Neues);
    if (!Abweichung.empty()) throw Verstoss{"diagram: " + Abweichung.substr(0, Abweichung.find(' ')), Abweichung};
}

// Undo gives the inputs before, redo those after.
void Gang::pruefe_Verlauf(const Aktionsart& a, const Vorher& v) {
    const bool offen = Feld_in_Arbeit() || s_->zeige<Applikationstabelle>().ist_in_Arbeit() ||
                       s_->zeige<Studienverwaltung>().Name_offen() || s_->zeige<Beschreibungseingabe>().offen() || Name_in_Arbeit;
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

}  // namespace varnok::gang
