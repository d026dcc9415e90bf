#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/programm.h"
#include "batch/schreiber.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;

JSON Zahl(float x) { return static_cast<double>(x); }

// Lengths of windows are whole days nearly always, and then read best as such.
JSON Tage(float x) {
    constexpr float groesste = 1e9F;
    if (x == std::floor(x) && std::abs(x) < groesste) return static_cast<long long>(x);
    return Zahl(x);
}

JSON als_Objekt(const Fensterergebnis& f) {
    return {{"days", Tage(f.Tage)}, {"maximum", Zahl(f.Maximum)}, {"start", f.Starttag}, {"actual", Zahl(f.aktuell)}};
}

JSON als_Objekt(const Endpunktergebnis& e, Endpunktart Endpunkt, Einheitsart Einheit) {
    JSON Jahresmaximum = JSON::array();
    for (const float m : e.Jahresmaximum) Jahresmaximum.push_back(Zahl(m));
    JSON TWA = JSON::array();
    for (const Fensterergebnis& f : e.TWA) TWA.push_back(als_Objekt(f));
    return {
        {"endpoint", Endpunktnamen[Endpunkt]},
        {"unit", Konzentrationseinheit(Einheit, Endpunkt)},
        {"Maximum_Bodentiefe", Zahl(e.Maximum_Bodentiefe)},
        {"Maximumtag_Bodentiefe", e.Maximumtag_Bodentiefe},
        {"Maximum_Plateautiefe", Zahl(e.Maximum_Plateautiefe)},
        {"Jahresmaximum", std::move(Jahresmaximum)},
        {"Plateauwert", Zahl(e.Plateauwert)},
        {"Plateauzuwachs", e.Plateauzuwachs},
        {"Plateautext", e.Plateautext},
        {"TWA", std::move(TWA)},
    };
}

JSON Stoffobjekt(const Ergebnis& s, int i_substanz) {
    JSON Endpunktliste = JSON::array();
    for (const Endpunktart e : alle_Endpunkte)
        Endpunktliste.push_back(als_Objekt(s.Werte(e, i_substanz), e, s.Vorgabe->Parameter.Einheit));
    return {{"compound", i_substanz}, {"name", Stoffname(*s.Vorgabe, i_substanz)}, {"endpoints", std::move(Endpunktliste)}};
}

JSON als_Objekt(const Ergebnis& s) {
    JSON Stoffliste = JSON::array();
    for (int c = 0; c < static_cast<int>(s.Stoffwerte.size()); ++c) Stoffliste.push_back(Stoffobjekt(s, c));
    return {
        {"study", s.i_studie + 1},
        {"name", s.Vorgabe->Studie.at(static_cast<std::size_t>(s.i_studie))},
        {"Anzahl_pro_Jahr", s.Anzahl_pro_Jahr},
        {"Wirksame_Rate", s.Wirksame_Rate},
        {"Applikationstag", s.Applikationstag},
        {"compounds", std::move(Stoffliste)},
        {"warnings", s.Warnungen},
    };
}

JSON als_Objekt(const Bemerkung& b) {
    return {
        {"file", b.Datei},
        {"line", b.Zeile},
        {"kind", "remark"},
        {"field", b.Feld},
        {"message", b.Meldung},
        {"text", b.Text},
        {"value", b.Wert ? JSON(*b.Wert) : JSON()},
    };
}

// A whole number as such: 750, as it was typed.
JSON als_JSON(const Eingabewert& w) {
    constexpr double groesste = 1e15;
    if (w.ist_Wort) return w.Wort;
    const double Zahl = w.Zahl();
    if (Zahl == std::floor(Zahl) && std::abs(Zahl) < groesste) return static_cast<long long>(Zahl);
    return Zahl;
}

JSON als_Objekt(const Variante& v, const std::vector<std::string>& Namen) {
    JSON Werte = JSON::object();
    for (std::size_t i = 0; i < Namen.size(); ++i) Werte[Namen[i]] = als_JSON(v.Werte[i]);
    return {{"row", v.Reihe}, {"values", std::move(Werte)}};
}

JSON Eingaben(const Simulationsergebnis& r) {
    JSON Werte = JSON::object();
    for (const benannter_Wert& w : benannte_Werte(*r.Vorgabe, r.Sicht)) Werte[w.Bezeichnung()] = als_JSON(w.Wert);
    return Werte;
}

// How an object of the document begins: which simulation and which variant of it.
JSON Anfang_von(const Simulationsausgang& a, const Schreibumfang& u) {
    JSON Objekt = {{"simulation", a.Ergebnis.Name}};
    if (a.Herkunft) Objekt["variant"] = als_Objekt(*a.Herkunft, u.Variantennamen);
    return Objekt;
}

void haenge_Ende_an(JSON& Objekt, const Simulationsausgang& a, const Schreibumfang& u) {
    const Simulationsergebnis& r = a.Ergebnis;
    if (u.mit_Eingaben && r.Vorgabe) Objekt["inputs"] = Eingaben(r);
    if (!r.Eingabensumme.empty()) Objekt["inputs_sha256"] = r.Eingabensumme;
    if (u.mit_Position) Objekt["position"] = a.Position;
}

void haenge_an(JSON& Objekt, const Simulationsergebnis& r) {
    const Laufparameter& p = r.Vorgabe->Parameter;
    JSON Studien = JSON::array();
    for (const auto& s : r.Studien) Studien.push_back(als_Objekt(*s));
    JSON Bemerkungen = JSON::array();
    for (const Bemerkung& b : r.Bemerkungen) Bemerkungen.push_back(als_Objekt(b));
    Objekt.update({
        {"description", r.Beschreibung},
        {"compound_record", r.Dateinamen[Wirkstoff]},
        {"application_record", r.Dateinamen[Applikation]},
        {"scenario_record", r.Dateinamen[Szenario]},
        {"Einheit", p.Einheit},
        {"Separate_Rueckstaende", p.Separate_Rueckstaende},
        {"TWA_Zeiten", p.TWA_Zeiten},
        {"Klimamodus", p.Klimamodus},
        {"scheme", static_cast<int>(r.Vorgabe->Berechnungsmodus)},
        {"studies", std::move(Studien)},
        {"remarks", std::move(Bemerkungen)},
    });
}

// `Fehlerschluessel` is what the reason of a failure is called.
JSON als_Objekt(const Simulationsausgang& a, const Schreibumfang& u, const char* Fehlerschluessel) {
    JSON Objekt = Anfang_von(a, u);
    if (a.Fehler) {
        Objekt[Fehlerschluessel] = a.Fehler->what();
    } else {
        haenge_an(Objekt, a.Ergebnis);
    }
    haenge_Ende_an(Objekt, a, u);
    return Objekt;
}

constexpr int Einzug = 2;

std::string als_Text(const JSON& Wert) {
    // A file name that is no valid UTF-8 is no reason to lose the results.
    return Wert.dump(Einzug, ' ', false, JSON::error_handler_t::replace);
}

// An entry of a list of the document. A line break inside a text is an escape, so each that stands here ends a line.
std::string als_Listeneintrag(const JSON& Objekt) {
    static const std::string neue_Zeile = '\n' + std::string(std::size_t{2} * Einzug, ' ');
    const std::string Text = als_Text(Objekt);
    std::string Eintrag = neue_Zeile;
    Eintrag.reserve(2 * Text.size());
    std::size_t von = 0;
    for (std::size_t bis; (bis = Text.find('\n', von)) != std::string::npos; von = bis + 1) {
        Eintrag.append(Text, von, bis - von).append(neue_Zeile);
    }
    return Eintrag.append(Text, von);
}

// The end of a list in the document, which stands on a line of its own unless the list is empty.
std::string Listenende(bool leer) { return leer ? "]" : "\n  ]"; }

class Dokument : public Schreiber {
public:
    explicit Dokument(Schreibumfang u) : Umfang_(std::move(u)) {}

    std::string Anfang() override {
        return "{\n  \"program\": \"VARNOK\",\n  \"version\": " + als_Text(Programmversion) + ",\n  \"simulations\": [";
    }

    std::string Stueck(const Simulationsausgang& a) const override {
        return als_Listeneintrag(als_Objekt(a, Umfang_, "message"));
    }

    std::string naechstes(std::string Text, bool gescheitert) override {
        bool& leer = gescheitert ? ohne_Fehler_ : ohne_Simulation_;
        if (!std::exchange(leer, false)) Text.insert(0, 1, ',');
        if (!gescheitert) return Text;
        Fehler_ += Text;
        return {};
    }

    std::string Ende() override {
        return Listenende(ohne_Simulation_) + ",\n  \"errors\": [" + Fehler_ + Listenende(ohne_Fehler_) + "\n}\n";
    }

private:
    Schreibumfang Umfang_;
    bool ohne_Simulation_ = true;
    bool ohne_Fehler_ = true;
    std::string Fehler_;  // they stand behind all simulations
};

class Zeilen : public Schreiber {
public:
    explicit Zeilen(Schreibumfang u) : Umfang_(std::move(u)) {}

    std::string Stueck(const Simulationsausgang& a) const override {
        return als_Objekt(a, Umfang_, "error").dump(-1, ' ', false, JSON::error_handler_t::replace) + "\n";
    }
    std::string naechstes(std::string Text, bool) override { return Text; }

private:
    Schreibumfang Umfang_;
};

}  // namespace

std::unique_ptr<Schreiber> JSON_Schreiber(const Schreibumfang& u) { return std::make_unique<Dokument>(u); }

std::unique_ptr<Schreiber> Zeilenschreiber(const Schreibumfang& u) { return std::make_unique<Zeilen>(u); }

}  // namespace varnok::batch
