#pragma once

// A walk of random actions over a session on a project of its own. Every action follows from its kind and one number, so any
// part of a walk can be done again; after each one stands what must hold whatever the user does.

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "session/kern/sitzung.h"
#include "session/kern/sitzungsgang_projekt.h"
#include "session/kern/sitzungsgang_vergleich.h"

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
    schreibt = 4,   // may change files in `input` without a question
    liest = 8,      // may read records over the values on the screen
    fremd = 16,     // of another program
    Pruefung = 32,  // an action of several commands, made to look at something
    immer = 64,     // a command that nothing but a refused field keeps from being done
};

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

// Answers each question at random, with Esc too, or as it is told to; keeps what was asked.
class Antworter : public Rueckfrage {
public:
    explicit Antworter(Zufall* z) : Zufall_(z) {}
    Knopf frage(const Frage& f) override;

    void bestehe_auf(std::optional<Knopf> k) { fest_ = k; }
    // The answer to what a start after a killed program offers, whatever else is insisted on.
    void antworte_dem_Angebot(std::optional<Knopf> k) { Angebot_ = k; }
    // Since the last look, as title and answer.
    bool gefragt(const std::string& Titel) const;
    bool ja_gesagt() const { return ja_; }
    std::string Bericht() const { return Bericht_; }
    void beginne();

    std::map<std::string, int> Zaehler;  // of title and answer

private:
    Zufall* Zufall_;
    std::optional<Knopf> fest_;
    std::optional<Knopf> Angebot_;
    bool ja_ = false;
    std::set<std::string> Titel_;
    std::string Bericht_;
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
    const std::map<std::string, int>& Fragen() const { return Fragen_.Zaehler; }
    const std::map<std::string, int>& Abdeckungen() const { return Abdeckungen_; }
    int verglichen() const { return verglichen_; }
    int Schritte() const { return Schritte_; }

    // For the actions.
    Sitzung& s() { return *s_; }
    const Zustand& z() const { return s_->Stand(); }
    Zufall& r() { return Zufall_; }
    Gangprojekt& Projekt() { return Projekt_; }
    Antworter& Fragesteller() { return Fragen_; }
    void sage(const std::string& Text);
    // A text that is typed and not left yet: what is drawn may not carry it.
    bool Name_in_Arbeit = false;
    void getippt() { getippt_ = true; }
    // The weather that results stand for which were made since this was called last.
    void merke_Wetter();

    // The program is killed, and started again.
    void stuerze_ab();
    void pruefe_Ende(Knopf Antwort);
    void pruefe_andere_Simulation();
    void pruefe_Sicherung();

private:
    // As an action found it.
    struct Vorher {
        std::array<Satzplatz, 4> Saetze;
        std::array<std::string, 4> Bilder;  // what a save would have written, empty where nothing can be
        Eingabe Vorgabe;
        bool etwas_in_Arbeit = false;
    };

    // False where it started only once all files were what they were.
    bool starte();
    void pruefe_Zurueckgebrachtes(const Vorher& v, bool gewuenscht);
    Vorher merke() const;
    bool Feld_in_Arbeit() const { return s_->zeige<Feldeingabe>().aktives_Feld() >= 0 && getippt_; }
    void pruefe_Dateien(const Aktionsart& a, const Vorher& v);
    std::string repariert(Eingabe e) const;
    void pruefe_Verworfenes(const Aktionsart& a, const Vorher& v, const Dateien& nachher);
    void pruefe_Ergebnisse(const Aktionsart& a);
    void pruefe_Studie(int st, bool Hinweis, Zustand& frisch);
    void pruefe_Tabellen(const Zustand& frisch);
    void pruefe_Diagramm(const Zustand& frisch);
    void pruefe_Verlauf(const Aktionsart& a, const Vorher& v);

    Zufall Zufall_{0};
    Gangprojekt Projekt_;
    Antworter Fragen_{&Zufall_};
    Schrittuhr Zeit_;
    std::unique_ptr<Sitzung> s_;
    Dateien Stand_;  // of `input` after the last action
    Gegenrechnung Gegen_;
    std::map<const Ergebnis*, Klimabytes> Klima_von_;
    varnok::Ergebnisse bekannt_;
    std::optional<Eingabe> letzter_Stand_;  // of the history, where it is known
    int ausstehend_ = 0;                    // actions since then whose text was still in work
    bool getippt_ = false;
    bool abgestuerzt_ = false;
    bool Zelle_in_Arbeit_ = false;
    std::vector<std::string> Protokoll_;
    std::map<std::string, int> Abdeckungen_;
    int verglichen_ = 0;
    int Schritte_ = 0;
};

// The lists of a walk.
struct Gangergebnis {
    std::optional<Verstoss> Fund;
    std::size_t bei = 0;  // place of the action in the list
    std::vector<std::string> Protokoll;
    std::map<std::string, int> Fragen, Abdeckungen;
    int verglichen = 0;
    int Schritte = 0;
};

std::vector<Aktion> wuerfle(std::uint64_t Saat, int Anzahl);
Gangergebnis gehe(const std::vector<Aktion>& Liste);
// The shortest list found that still shows the same fault.
std::vector<Aktion> kuerze(std::vector<Aktion> Liste, const std::string& Regel, double Sekunden);

}  // namespace varnok::gang
