// A table of all records of a project.

#include <array>
#include <optional>

#include "base/laufzeitfehler.h"
#include "batch/csv_zeile.h"
#include "batch/pruefbericht.h"
#include "records/eingabenamen.h"
#include "records/satz.h"

namespace varnok::batch {
namespace {

// A record as read, with what the kind of it holds.
struct Zeileninhalt {
    Satzart Art;
    const Eingabe& e;
    const Ansicht& Sicht;
    bool gelesen;
};

// Texts and choices that no name of a value stands for.
struct Textspalte {
    const char* Kopf;
    Satzart Art;
    std::string (*Text)(const Eingabe&, const Ansicht&);
};

template <std::size_t i>
std::string Studienname(const Eingabe& e, const Ansicht&) {
    return i < e.Studie.size() ? e.Studie[i] : std::string();
}

std::string Flaggen(const Eingabe& e, const Ansicht&) {
    std::string Text;
    for (const auto f : e.Parameter.Ausgabename_Teile) Text += (Text.empty() ? "" : " ") + std::to_string(f);
    return Text;
}

const Textspalte Textspalten[] = {
    {"parent", Wirkstoff, [](const Eingabe& e, const Ansicht&) { return e.Name_Wirkstoff; }},
    {"metabolite_1", Wirkstoff, [](const Eingabe& e, const Ansicht&) { return e.Name_Met_1; }},
    {"metabolite_2", Wirkstoff, [](const Eingabe& e, const Ansicht&) { return e.Name_Met_2; }},
    {"studies", Wirkstoff, [](const Eingabe& e, const Ansicht&) { return std::to_string(e.Studienzahl()); }},
    {"study_1", Wirkstoff, Studienname<0>},
    {"study_2", Wirkstoff, Studienname<1>},
    {"study_3", Wirkstoff, Studienname<2>},
    {"study_4", Wirkstoff, Studienname<3>},
    {"study_5", Wirkstoff, Studienname<4>},
    {"study_6", Wirkstoff, Studienname<5>},
    {"output_file_name", Wirkstoff, Flaggen},
    {"calculation_mode", Wirkstoff, [](const Eingabe& e, const Ansicht&) { return std::to_string(e.Parameter.Rechenmodus); }},
    {"compound_shown", Wirkstoff, [](const Eingabe&, const Ansicht& a) { return std::to_string(a.Substanz); }},
    {"pec_type", Applikation, [](const Eingabe&, const Ansicht& a) { return std::to_string(static_cast<int>(a.PEC_Typ)); }},
    {"soil_scenario", Szenario, [](const Eingabe& e, const Ansicht&) { return e.Bodenszenario; }},
};

constexpr std::array<std::string_view, 7> der_Applikation = {"pattern",  "applications", "rate", "interception",
                                                             "interval", "month",        "day"};
constexpr std::array<std::string_view, 8> des_Szenarios = {"density",        "soil_depth",    "tillage_depth", "organic_carbon",
                                                           "field_capacity", "wilting_point", "temperature",   "climate"};

// The kind of record that holds a value; nothing for one that none holds.
std::optional<Satzart> Satz_von(const Eingabename& n) {
    if (n.Name == "rotation") return std::nullopt;
    for (const std::string_view x : der_Applikation) {
        if (x == n.Name) return Applikation;
    }
    for (const std::string_view x : des_Szenarios) {
        if (x == n.Name) return Szenario;
    }
    return Wirkstoff;
}

// Every place that a value can have in a record.
std::vector<Eingabeort> alle_Orte(const Eingabename& n) {
    std::vector<Eingabeort> Orte;
    const bool mit_Studie = n.Indizes == Indexart::Studie_und_Stoff || n.Indizes == Indexart::Studie;
    const bool mit_Stoff =
        n.Indizes == Indexart::Studie_und_Stoff || n.Indizes == Indexart::Stoff || n.Indizes == Indexart::Metabolit;
    const int Reihen = n.Indizes == Indexart::Tabellenreihe ? max_Applikationen : 1;
    for (int st = 0; st < (mit_Studie ? max_Studien : 1); ++st) {
        for (int c = n.Indizes == Indexart::Metabolit ? 1 : 0; c < (mit_Stoff ? Stoffe : 1); ++c) {
            for (int k = 0; k < Reihen; ++k) Orte.push_back({st, c, k});
        }
    }
    return Orte;
}

bool ist_da(const Eingabename& n, const Eingabeort& o, const Eingabe& e) {
    if (n.Indizes == Indexart::Tabellenreihe) return o.Reihe < static_cast<int>(e.Applikationsschema.size());
    const bool mit_Studie = n.Indizes == Indexart::Studie_und_Stoff || n.Indizes == Indexart::Studie;
    return !mit_Studie || o.Studie < e.Studienzahl();
}

void schreibe_Kopf(CSV_Zeile z) {
    for (const char* Name : {"file", "kind", "faults", "remarks"}) z.Text(Name);
    for (const Textspalte& t : Textspalten) z.Text(t.Kopf);
    for (const Eingabename& n : Eingabenamen()) {
        if (!Satz_von(n)) continue;
        for (const Eingabeort& o : alle_Orte(n)) z.Text(benannter_Wert{&n, o, {}}.Bezeichnung());
    }
    z.beende();
}

void schreibe_Werte(CSV_Zeile& z, const Zeileninhalt& r) {
    for (const Textspalte& t : Textspalten) r.gelesen&& t.Art == r.Art ? z.Text(t.Text(r.e, r.Sicht)) : z.leer();
    for (const Eingabename& n : Eingabenamen()) {
        const auto Art = Satz_von(n);
        if (!Art) continue;
        for (const Eingabeort& o : alle_Orte(n))
            r.gelesen&&* Art == r.Art&& ist_da(n, o, r.e) ? z.Text(n.lies(r.e, r.Sicht, o).Text()) : z.leer();
    }
}

std::string alle(const std::vector<Befund>& Befunde, bool Mangel) {
    std::string Text;
    for (const Befund& b : Befunde) {
        if (b.Mangel != Mangel) continue;
        const std::string Feld = b.Stelle.Feld.empty() ? "" : b.Stelle.Feld + ": ";
        Text += (Text.empty() ? "line " : "; line ") + std::to_string(b.Stelle.Zeile) + ": " + Feld + b.Stelle.Meldung;
    }
    return Text;
}

}  // namespace

std::string Satztabelle(const Projektordner& Ordner) {
    constexpr std::array<const char*, 4> Artnamen = {"", "compound", "application", "scenario"};
    Projektpruefer Pruefer(Ordner);
    std::string Text;
    schreibe_Kopf(CSV_Zeile(Text));
    for (const Satzart Art : Eingabearten) {
        for (const std::string& Name : Ordner.Namen(Endungen[Art])) {
            const auto Befunde = Pruefer.pruefe_Satz(Name, Art);
            Eingabe e;
            Ansicht Sicht;
            bool gelesen = false;
            try {
                gelesen = Satz_lesen(Ordner, Name, Art, e, Sicht).Ausgang == Leseausgang::gelesen;
            } catch (const Laufzeitfehler&) {
                gelesen = false;  // its row tells the fault and no value
            }
            CSV_Zeile z(Text);
            z.Text(Ordner.Eingabedatei(Name + Endungen[Art]));
            z.Text(Artnamen[Art]);
            z.Text(alle(Befunde, true));
            z.Text(alle(Befunde, false));
            schreibe_Werte(z, {Art, e, Sicht, gelesen});
            z.beende();
        }
    }
    return Text;
}

}  // namespace varnok::batch
