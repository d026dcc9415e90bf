#pragma once

// The inputs by the names that a call gives them: one table for values set, varied and sampled, for the list of names and for
// tables of inputs. Their ranges are those of `Wertebereiche`.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/wertebereiche.h"
#include "base/zahlwert.h"
#include "records/projektordner.h"
#include "run/ansicht.h"
#include "run/eingabe.h"

namespace varnok {

// What stands in brackets behind a name.
enum class Indexart { keiner, Studie_und_Stoff, Studie, Stoff, Metabolit, Tabellenreihe };

// A place of the input, counted from 0; what the name has no index for stays 0.
struct Eingabeort {
    int Studie = 0;
    int Stoff = 0;
    int Reihe = 0;  // of the table of irregular applications
};

// A value as a call gives it or as the input holds it.
struct Eingabewert {
    Zahlwert Wert = {};     // a number in general form; of a word none
    std::string Wort = {};  // of a choice, or the climate
    int Code = 0;           // of a word its place in the list
    bool ist_Wort = false;  // whether it is no number

    const std::string& Text() const { return ist_Wort ? Wort : Wert.Text(); }
    double Zahl() const { return ist_Wort ? Code : Wert.Zahl(); }

    friend bool operator==(const Eingabewert& a, const Eingabewert& b) = default;
};

struct Eingabename {
    std::string_view Name;
    std::string_view Speicher;  // the store, as `Wertebereiche` and `liest_ein_Lauf` name it
    Indexart Indizes;
    std::span<const std::string_view> Worte;  // of a choice; a number without any
    Bereich Grenzen;
    std::string_view Einheit;
    bool ganz;    // whole numbers alone
    bool zuerst;  // others depend on it, so it is put in before them
    Eingabewert (*lies)(const Eingabe&, const Ansicht&, const Eingabeort&);
    void (*setze)(Eingabe&, Ansicht&, const Eingabeort&, const Eingabewert&);

    bool ist_Klima() const { return Speicher == "Klimaszenario"; }
    bool ist_Wort() const { return !Worte.empty() || ist_Klima(); }
};

// The names in the order in which they are told.
std::span<const Eingabename> Eingabenamen();

// "rate[1..20]", "DT50[study,compound]": the name with what may stand behind it.
std::string Name_mit_Indizes(const Eingabename& n);
// "above 0", "SFO, DFOP, FOMC or HS".
std::string Wertebereich_als_Text(const Eingabename& n);

// A name as a call writes it: "DT50[1,]" is that of every compound in the first study.
struct Namensbezug {
    const Eingabename* Name = nullptr;
    std::string Text;  // as typed
    int Studie = -1;   // each counted from 0; -1: all that the simulation has
    int Stoff = -1;
    int Reihe = -1;
};

// Throws Laufzeitfehler for a name that there is none of, or indices that it does not have.
Namensbezug lies_Namensbezug(std::string_view Text);

// The value that a text means for a name. Throws Laufzeitfehler for what is not one number as a whole, outside the range, no
// word of the list, or a climate file that the project has not.
Eingabewert lies_Eingabewert(const Namensbezug& b, std::string_view Text, const Projektordner& Ordner);
// The same for a number; it takes its general form before anything uses it. A word of a choice, and its place in the list.
Eingabewert als_Eingabewert(double Zahl);
Eingabewert als_Eingabewert(std::string_view Wort, int Code = 0);
// Whether the field takes the number.
bool nimmt_an(const Eingabename& n, double Zahl);

// The places of an input that a name means. Throws Laufzeitfehler for a study that it has not.
std::vector<Eingabeort> Orte(const Namensbezug& b, const Eingabe& e);

// Puts the value in at every place that the name means. What others depend on (`zuerst`) has to be in before.
void setze(Eingabe& e, Ansicht& Sicht, const Namensbezug& b, const Eingabewert& w);

// Checks, when all values are in, what concerns several of them, and moves the day into its month as the list of days does.
// Throws Laufzeitfehler that names what does not go together. Only what the names given touch is looked at.
void stimme_ab(Eingabe& e, std::span<const Namensbezug* const> gegebene);

// Whether a run of any study reads the value.
bool wird_gelesen(const Namensbezug& b, const Eingabe& e);

// Every value of an input that its records hold, with the name that a call would give it: places of studies and compounds that
// it has, rows of the table where the pattern is irregular.
struct benannter_Wert {
    const Eingabename* Name;
    Eingabeort Ort;
    Eingabewert Wert;

    // "DT50[1,0]"
    std::string Bezeichnung() const;
};
std::vector<benannter_Wert> benannte_Werte(const Eingabe& e, const Ansicht& Sicht);

}  // namespace varnok
