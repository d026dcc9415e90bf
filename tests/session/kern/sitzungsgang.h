#pragma once

// A walk of random actions over a session on a project of its own. Every action follows from its kind and one number, so any
// part of a walk can be done again; after each one stands what must hold whatever the user does.

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "session/kern/sitzung.h"
#include "session/kern/sitzungsgang_befehle.h"
#include "session/kern/sitzungsgang_fragen.h"
#include "session/kern/sitzungsgang_projekt.h"
#include "session/kern/sitzungsgang_vergleich.h"
#include "session/kern/sitzungsgang_welt.h"

namespace varnok::gang {

// What was found to be wrong; `Regel` tells one fault from another while a list of actions is shortened.
struct Verstoss {
    std::string Regel;
    std::string Text;
};

// What a kind of action may do.
enum Merkmal : unsigned {
    Befehl = 1,     // accepts the field in work first, and ends an action
    Handlung = 2,   // ends an action
    liest = 4,      // may read records over the values on the screen
    fremd = 8,      // of another program
    Pruefung = 16,  // an action of several commands, made to look at something
    immer = 32,     // a command that nothing but a refused field keeps from being done
};

// How a start finds the project folder.
enum class Sperrlage { frei, zweites_Fenster, andere_Maschine };

class Gang;

struct Aktionsart {
    const char* Name;
    int Gewicht;
    unsigned Merkmale;
    void (*tue)(Gang&);
};

const std::vector<Aktionsart>& Aktionsarten();
int Aktion_mit_Namen(const std::string& Name);

struct Aktion {
    int Art = 0;
    std::uint64_t Saat = 0;
};

class Gang {
public:
    Gang();
    ~Gang();
    Gang(const Gang&) = delete;
    Gang& operator=(const Gang&) = delete;

    // Does it and looks at everything; throws Verstoss.
    void tue(const Aktion& a);

    const std::vector<std::string>& Protokoll() const { return Protokoll_; }
    const Zaehler& Befehle() const { return Befehle_; }
    const Zaehler& Fragen() const { return Fragen_.Gezaehltes; }
    const Zaehler& Abdeckungen() const { return Abdeckungen_; }
    const Zaehler& Fremdes() const { return Fremdes_; }
    int verglichen() const { return verglichen_; }
    int Schritte() const { return Schritte_; }

    // For the actions. The one way to a command: it counts where the command is done, and what the command may write.
    template <auto Befehl, class... Angaben>
    auto tue(const Angaben&... a) {
        const bool hat_Sinn = hat_etwas_zu_tun<Befehl>();
        erlaube<Befehl>(false, a...);
        auto w = s_->fuehre_aus<Befehl>(a...);
        erlaube<Befehl>(true, a...);
        if constexpr (std::is_same_v<Teil_mit<Befehl>, Ruecknahme>) im_Verlauf_bewegt_ = true;
        sieh_nach_Lesungen();
        merke_Wetter();
        if (hat_Sinn && getan(w)) ++Befehle_[Befehlsname<Befehl>()];
        return w;
    }
    // Counts a command whose answer says something else than whether it was done.
    template <auto Befehl>
    void zaehle() {
        ++Befehle_[Befehlsname<Befehl>()];
    }
    // Another program changes files: "changed", "deleted", ... What did something counts, by the kind of file.
    void tue_Fremdes(const char* Tat, const std::function<std::string()>& tue);
    const Sitzung& s() const { return *s_; }
    const Zustand& z() const { return s_->Stand(); }
    Zufall& r() { return Zufall_; }
    Gangprojekt& Projekt() { return Projekt_; }
    Antworter& Fragesteller() { return Fragen_; }
    Scheinwelt& Welt() { return Welt_; }
    void sage(const std::string& Text);
    // The box of a record stands open with this name, which the next command takes.
    void setze_offenen_Namen(Satzart Art, const std::string& Name) { offener_Name_ = {Art, Name}; }
    // A text that is typed and not left yet: what is drawn may not carry it.
    bool Name_in_Arbeit = false;
    void getippt() { getippt_ = true; }
    // The weather that results stand for which were made since this was called last.
    void merke_Wetter();

    // The program is killed, another one does something, and the program is started again; the answer to what it offers.
    void stuerze_ab(Knopf Antwort, const std::function<void()>& dazwischen = {});
    // The same after its end, where the folder is held by another.
    void starte_neben(Sperrlage Lage);
    // The program is started where there is no file of that kind, and gets that answer.
    void starte_ohne(const char* Endung, Knopf Antwort);
    // A part of an action is over: what follows is looked at by itself. `getippt`: it has replaced values by others.
    void setze_ab(bool getippt);
    void pruefe_Ende(Knopf Antwort);
    void pruefe_andere_Simulation();
    void pruefe_Sicherung();

private:
    // As an action found it.
    struct Vorher {
        std::array<Satzplatz, 4> Saetze;
        std::array<std::string, 4> Bilder;    // what a save would have written, empty where nothing can be
        std::array<std::string, 4> Eingaben;  // without the view
        Eingabe Vorgabe;
        bool etwas_in_Arbeit = false;
    };

    template <auto Befehl>
    bool hat_etwas_zu_tun() const;
    template <auto Befehl, class... Angaben>
    void erlaube(bool nachher, const Angaben&... a);
    template <class... Weitere>
    void erlaube_Satz(bool im_Organiser, Satzart Art, const Weitere&...);
    void erlaube_Datei(Satzart Art, const std::string& Name) { erlaubt_.insert(Satzdatei(Name, Art)); }
    void erlaube_gelesene();
    void erlaube_offene_Umbenennung();
    // A record that was read, given up or renamed begins the history anew.
    void sieh_nach_Lesungen();
    void erlaube_Startsimulation();
    void erlaube_Zugestimmtes(const Frage& f);

    void oeffne(Sperrlage Lage);
    void sperre(Sperrlage Lage);
    // False where it started only once all files were what they were.
    bool starte();
    void pruefe_Zurueckgebrachtes(const Vorher& v, bool gewuenscht);
    Vorher merke() const;
    bool Feld_in_Arbeit() const { return s_->zeige<Feldeingabe>().aktives_Feld() >= 0 && getippt_; }
    bool etwas_offen() const;
    void sieh_bei_Frage_hin();
    void pruefe_Dateien(const Vorher& v);
    std::string repariert(Eingabe e) const;
    void pruefe_Verworfenes(const Aktionsart& a, const Vorher& v, const Dateien& nachher);
    void pruefe_Ergebnisse(const Aktionsart& a);
    Zustand frischer_Zustand() const;
    void pruefe_Studie(int st, bool Hinweis, Zustand& frisch);
    void pruefe_Tabellen(const Zustand& frisch);
    void pruefe_Diagramm(const Zustand& frisch);
    void pruefe_Bericht(const Zustand& frisch) const;
    void pruefe_Marken() const;
    void pruefe_Satzbytes() const;
    void pruefe_Verlauf(const Aktionsart& a, const Vorher& v);

    Zufall Zufall_{0};
    Gangprojekt Projekt_;
    Antworter Fragen_{&Zufall_};
    Schrittuhr Zeit_;
    std::unique_ptr<Sitzung> s_;
    Scheinwelt Welt_;
    std::pair<Satzart, std::string> offener_Name_;
    Sperrlage Lage_ = Sperrlage::frei;  // of the next start
    std::unique_ptr<Projektsperre> zweites_Fenster_;
    Dateien Stand_;                    // of `input` after the last action and what another program has done since
    std::set<std::string> erlaubt_;    // files that the action may change
    const Aktionsart* Art_ = nullptr;  // in work
    Vorher vorher_;
    std::optional<Verstoss> Fund_;  // at a question
    Gegenrechnung Gegen_;
    std::map<std::shared_ptr<const Ergebnis>, Klimabytes> Klima_von_;  // as it was when they were made
    std::optional<Eingabe> letzter_Stand_;                             // of the history, where it is known
    int Lesungen_ = 0;                                                 // and renamings, up to here
    int ausstehend_ = 0;                                               // actions since then whose text was still in work
    bool getippt_ = false;
    bool abgestuerzt_ = false;
    bool im_Verlauf_bewegt_ = false;  // by the action itself
    bool Zelle_in_Arbeit_ = false;
    std::vector<std::string> Protokoll_;
    Zaehler Befehle_, Abdeckungen_, Fremdes_;
    int verglichen_ = 0;
    int Schritte_ = 0;
};

template <auto Befehl>
bool Gang::hat_etwas_zu_tun() const {
    using S = Studienverwaltung;
    using B = Berichtssteuerung;
    if constexpr (ist_einer_von<Befehl, &Feldeingabe::schliesse_ab>) return s_->zeige<Feldeingabe>().aktives_Feld() >= 0;
    if constexpr (ist_einer_von<Befehl, &Ruecknahme::mache_rueckgaengig>) return !s_->zeige<Ruecknahme>().Name_zurueck().empty();
    if constexpr (ist_einer_von<Befehl, &Ruecknahme::wiederhole>) return !s_->zeige<Ruecknahme>().Name_vor().empty();
    if constexpr (ist_einer_von<Befehl, &B::schliesse, &B::speichere_PDF>) return s_->zeige<B>().offener() != nullptr;
    if constexpr (ist_einer_von<Befehl, &S::aendere, &S::bestaetige, &S::nimm_zurueck>) return s_->zeige<S>().Name_offen();
    using U = Satzumbenennung;
    if constexpr (ist_einer_von<Befehl, &U::aendere, &U::bestaetige, &U::nimm_zurueck>) return s_->zeige<U>().offen();
    if constexpr (ist_einer_von<Befehl, &Applikationstabelle::schliesse_ab>)
        return s_->zeige<Applikationstabelle>().ist_in_Arbeit();
    if constexpr (ist_einer_von<Befehl, &Diagrammsteuerung::verschiebe>) return s_->zeige<Diagrammsteuerung>().hat_Ausschnitt();
    return true;
}

template <class... Weitere>
void Gang::erlaube_Satz(bool im_Organiser, Satzart Art, const Weitere&...) {
    const Satzlisten& Listen = im_Organiser ? s_->zeige<Organiser>().Listen() : static_cast<const Satzlisten&>(z());
    if (Listen.Auswahl(Art) >= 0) erlaube_Datei(Art, Listen.gewaehlt(Art));
}

// What a command may write, whatever it asks; a Yes allows more.
template <auto Befehl, class... Angaben>
void Gang::erlaube(bool nachher, const Angaben&... a) {
    constexpr Namensrecht Recht = Recht_am_Satz<Befehl>();
    if (!nachher) erlaube_offene_Umbenennung();
    const auto Namen = std::tie(a...);
    if constexpr (Recht.vorher || Recht.nachher) {
        if (nachher ? Recht.nachher : Recht.vorher) erlaube_Satz(std::is_same_v<Teil_mit<Befehl>, Organiser>, a...);
    } else if (nachher) {
        return;
    } else if constexpr (ist_einer_von<Befehl, &Satzverwaltung::speichere>) {
        erlaube_gelesene();
    } else if constexpr (ist_einer_von<Befehl, &Programmablauf::beende>) {
        erlaube_Datei(Simulation, z().Namen[Simulation]);
    } else if constexpr (ist_einer_von<Befehl, &Organiser::uebernimm>) {
        erlaube_Satz(true, Simulation);
    } else if constexpr (ist_einer_von<Befehl, &Eingabedateien::speichere>) {
        const std::string Name = std::get<0>(Namen);
        erlaube_gelesene();
        erlaubt_.insert(Name.ends_with(Endungen[Simulation]) ? Name : Satzdatei(Name, Simulation));
    } else if constexpr (ist_einer_von<Befehl, &Eingabedateien::loesche>) {
        erlaubt_.insert(std::get<1>(Namen));
    } else if constexpr (ist_einer_von<Befehl, &Satzverwaltung::lade_Voreinstellungen>) {
        erlaube_Startsimulation();
    } else if constexpr (ist_einer_von<Befehl, &Wiederherstellung::stelle_her>) {
        for (const Gesichertes& g : std::get<0>(Namen)) erlaube_Datei(g.Art, g.Name);
    }
}

// The lists of a walk.
struct Gangergebnis {
    std::optional<Verstoss> Fund;
    std::size_t bei = 0;  // place of the action in the list
    std::vector<std::string> Protokoll;
    Zaehler Befehle, Fragen, Abdeckungen, Fremdes;
    int verglichen = 0;
    int Schritte = 0;
};

std::vector<Aktion> wuerfle(std::uint64_t Saat, int Anzahl);
Gangergebnis gehe(const std::vector<Aktion>& Liste);
// The shortest list found that still shows the same fault.
std::vector<Aktion> kuerze(std::vector<Aktion> Liste, const std::string& Regel, double Sekunden);

}  // namespace varnok::gang
