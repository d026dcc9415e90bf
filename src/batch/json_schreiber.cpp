#include <cmath>
#include <nlohmann/json.hpp>

#include "base/programm.h"
#include "batch/schreiber.h"

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

JSON als_Objekt(const Endpunktergebnis& e) {
    JSON Jahresmaximum = JSON::array();
    for (const float m : e.Jahresmaximum) Jahresmaximum.push_back(Zahl(m));
    JSON TWA = JSON::array();
    for (const Fensterergebnis& f : e.TWA) TWA.push_back(als_Objekt(f));
    return {
        {"endpoint", e.Name},
        {"unit", e.Einheit},
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

JSON als_Objekt(const Stoffergebnis& s) {
    JSON Endpunktliste = JSON::array();
    for (const Endpunktergebnis& e : s.Endpunktwerte) Endpunktliste.push_back(als_Objekt(e));
    return {{"compound", s.i_substanz}, {"name", s.Name}, {"endpoints", std::move(Endpunktliste)}};
}

JSON als_Objekt(const Studienergebnis& s) {
    JSON Stoffliste = JSON::array();
    for (const Stoffergebnis& c : s.Stoffwerte) Stoffliste.push_back(als_Objekt(c));
    return {
        {"study", s.Nummer},
        {"name", s.Name},
        {"Anzahl_pro_Jahr", s.Anzahl_pro_Jahr},
        {"Wirksame_Rate", s.Wirksame_Rate},
        {"Applikationstag", s.Applikationstag},
        {"compounds", std::move(Stoffliste)},
        {"warnings", s.Warnungen},
    };
}

JSON als_Objekt(const Simulationsergebnis& r) {
    JSON Studien = JSON::array();
    for (const Studienergebnis& s : r.Studien) Studien.push_back(als_Objekt(s));
    return {
        {"simulation", r.Name},
        {"description", r.Beschreibung},
        {"compound_record", r.Dateinamen[1]},
        {"application_record", r.Dateinamen[2]},
        {"scenario_record", r.Dateinamen[3]},
        {"Einheit", r.Einheit},
        {"Separate_Rueckstaende", r.Separate_Rueckstaende},
        {"TWA_Zeiten", r.TWA_Zeiten},
        {"Klimamodus", r.Klimamodus},
        {"scheme", r.Schema},
        {"studies", std::move(Studien)},
        {"remarks", r.Bemerkungen},
    };
}

}  // namespace

std::string als_JSON(const std::vector<Simulationsausgang>& Ausgaenge) {
    JSON Simulationen = JSON::array();
    JSON Fehler = JSON::array();
    for (const Simulationsausgang& a : Ausgaenge) {
        if (a.Fehler) {
            Fehler.push_back({{"simulation", a.Ergebnis.Name}, {"message", *a.Fehler}});
        } else {
            Simulationen.push_back(als_Objekt(a.Ergebnis));
        }
    }
    const JSON Dokument = {
        {"program", "VARNOK"},
        {"version", Programmversion},
        {"simulations", std::move(Simulationen)},
        {"errors", std::move(Fehler)},
    };
    // A file name that is no valid UTF-8 is no reason to lose the results.
    return Dokument.dump(2, ' ', false, JSON::error_handler_t::replace) + "\n";
}

}  // namespace varnok::batch
