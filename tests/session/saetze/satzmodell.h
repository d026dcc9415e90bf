#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "records/projektordner.h"

namespace varnok {

using Textliste = std::vector<std::string>;
using Dateien = std::map<std::string, std::string>;  // bytes by name

// What the user would expect: files, names, values on the screen in the form of records.
struct Modell {
    Dateien Platte;
    std::array<std::string, 4> Name;         // shown by the selectors, empty without a selection
    std::array<std::string, 4> fehlend;      // without a selection: the name that the simulation gives and no file has
    std::array<std::string, 4> gelesen;      // the record that the values came from
    std::array<std::string, 4> Schirm;       // bytes of the records; [0] is the description
    std::array<std::string, 4> gespeichert;  // bytes that a save would have written right after reading or saving
    std::array<bool, 4> neu{};               // the selector names what was not read
    std::array<bool, 4> geaendert{};

    // Of the command in work.
    bool ja = false;
    Textliste Fragen;
    Dateien gesichert;

    static std::string Datei(Satzart t, const std::string& n) { return n + Endungen[t]; }
    bool gibt_es(Satzart t, const std::string& n) const { return Platte.contains(Datei(t, n)); }

    Textliste Liste(Satzart t) const {
        Textliste Namen;
        for (const auto& [d, Bytes] : Platte) {
            if (d.ends_with(Endungen[t])) Namen.push_back(d.substr(0, d.size() - 4));
        }
        std::sort(Namen.begin(), Namen.end());
        return Namen;
    }

    bool vollstaendig() const {
        const bool gewaehlt = std::all_of(Eingabearten.begin(), Eingabearten.end(), [&](Satzart t) { return !Name[t].empty(); });
        return gewaehlt && std::find(neu.begin(), neu.end(), true) == neu.end();
    }

    std::string Bytes_des_Schirms(Satzart t) const {
        if (t != Simulation) return Schirm[t];
        std::string Bytes = Schirm[0] + "\r\n";
        for (const Satzart s : Eingabearten) Bytes += (Name[s].empty() ? fehlend[s] : Name[s]) + "\r\n";
        return Bytes;
    }

    void frage(const std::string& Titel) { Fragen.push_back(Titel); }
    void Fehler() { frage("Runtime error"); }

    // What was entered for a record that was not read is known by its mark alone.
    bool verschieden(Satzart t) const { return neu[t] ? geaendert[t] : Bytes_des_Schirms(t) != gespeichert[t]; }
    void merke(Satzart t) { gespeichert[t] = Bytes_des_Schirms(t); }

    // After each command: marks without a difference go.
    void raeume_Marken_auf() {
        if (std::none_of(alle_Arten.begin(), alle_Arten.end(), [&](Satzart t) { return verschieden(t); })) geaendert.fill(false);
    }

    void sichere_Werte(Satzart t) {
        if (verschieden(t)) gesichert["unsaved " + Datei(t, gelesen[t])] = Bytes_des_Schirms(t);
    }
    void sichere_ungelesene() {
        for (const Satzart t : Eingabearten) {
            if (neu[t]) sichere_Werte(t);
        }
    }

    void lies(Satzart t) {
        Schirm[t] = Platte.at(Datei(t, Name[t]));
        gelesen[t] = Name[t];
        neu[t] = geaendert[t] = false;
        merke(t);
    }
    bool lies_fehlende() {
        for (const Satzart t : Eingabearten) {
            if (Name[t].empty()) {
                if (neu[t]) geaendert[t] = false;  // nothing of it is asked for; what was typed is in `backup` by now
                return false;
            }
            if (neu[t]) lies(t);
        }
        return true;
    }

    void schreibe(Satzart t) {
        if (neu[t]) {
            if (t != Simulation) sichere_Werte(t);
            return;
        }
        std::string& Ziel = Platte[Datei(t, Name[t])];
        const std::string Bytes = Bytes_des_Schirms(t);
        if (!Ziel.empty() && Ziel != Bytes && Name[t] != gelesen[t]) gesichert[Datei(t, Name[t])] = Ziel;
        Ziel = Bytes;
        gelesen[t] = Name[t];
        merke(t);
    }
    bool speichere(const std::vector<Satzart>& Arten = {Eingabearten.begin(), Eingabearten.end()}) {
        for (const Satzart t : Eingabearten) {
            if (Name[t].empty()) return frage("Record not set"), false;
        }
        schreibe(Simulation);
        for (const Satzart t : Arten) {
            schreibe(t);
            geaendert[t] = false;
        }
        return true;
    }

    void lege_an(Satzart t) {
        constexpr std::array<const char*, 4> Grundnamen = {"", "new compound", "new application pattern", "new scenario"};
        if (!neu[t]) sichere_Werte(t);
        sichere_ungelesene();
        int n = 1;
        while (gibt_es(t, Grundnamen[t] + std::to_string(n))) ++n;
        Name[t] = Grundnamen[t] + std::to_string(n);
        Platte[Datei(t, Name[t])] = Platte.at(std::string("do not delete this file") + Endungen[t + 3]);
        geaendert[0] = neu[t] = true;
        geaendert[t] = false;
        lies_fehlende();
    }

    void kopiere(Satzart t) {
        if (Name[t].empty()) return Fehler();
        const std::string Kopie = "copy of " + Name[t];
        if (gibt_es(t, Kopie)) {
            frage("Replace existing record?");
            if (!ja) return;
            gesichert[Datei(t, Kopie)] = Platte[Datei(t, Kopie)];
        }
        Platte[Datei(t, Kopie)] = Platte.at(Datei(t, Name[t]));
        Name[t] = Kopie;
        if (!neu[t]) gelesen[t] = Kopie;
        if (t != Simulation) geaendert[0] = true;
    }

    void loesche(Satzart t) {
        if (Name[t].empty() || Liste(t).size() < 2) return Fehler();
        frage("Delete record");
        if (!ja) return;
        const Textliste vorher = Liste(t);
        const auto Platz = static_cast<std::size_t>(std::find(vorher.begin(), vorher.end(), Name[t]) - vorher.begin());
        gesichert[Datei(t, Name[t])] = Platte.at(Datei(t, Name[t]));
        sichere_Werte(t);
        Platte.erase(Datei(t, Name[t]));
        const Textliste nachher = Liste(t);
        Name[t] = nachher[std::min(Platz, nachher.size() - 1)];
        neu[t] = true;
        geaendert[t] = false;
    }

    void benenne_um(Satzart t, const std::string& n, bool Enter) {
        if (Name[t] == n) return;
        if (Name[t].empty()) return Fehler();
        if (gibt_es(t, n)) {
            if (!Enter) return Fehler();
            frage("Replace existing record?");
            if (!ja) return;
            gesichert[Datei(t, n)] = Platte[Datei(t, n)];
        }
        Platte[Datei(t, n)] = Platte.at(Datei(t, Name[t]));
        Platte.erase(Datei(t, Name[t]));
        Name[t] = n;
        if (!neu[t]) gelesen[t] = n;
        geaendert[0] = true;
    }

    void waehle(Satzart t, const std::string& n) {
        const std::string vorher = std::exchange(Name[t], n);
        const bool Marke = std::exchange(geaendert[0], true);
        if (geaendert[t] && !neu[t]) {
            frage("Save changes?");
            if (ja && !speichere({t})) {
                Name[t] = vorher;
                geaendert[0] = Marke;
                return;
            }
        }
        if (!neu[t]) sichere_Werte(t);
        sichere_ungelesene();
        neu[t] = true;
        geaendert[t] = false;
        lies_fehlende();
    }

    void waehle_Simulation(const std::string& n) {
        for (const Satzart t : alle_Arten) sichere_Werte(t);
        std::istringstream Zeilen(Platte.at(Datei(Simulation, n)));
        std::array<std::string, 4> Text;
        for (std::string& Zeile : Text) {
            std::getline(Zeilen, Zeile);
            Zeile.pop_back();
        }
        Name[0] = gelesen[0] = n;
        Schirm[0] = Text[0];
        neu[0] = false;
        for (const Satzart t : Eingabearten) {
            Name[t] = gibt_es(t, Text[t]) ? Text[t] : "";
            fehlend[t] = Text[t];
            neu[t] = true;
        }
        merke(Simulation);
        geaendert.fill(false);
        lies_fehlende();
    }

    void aktualisiere() {
        if (neu[0]) return waehle_Simulation(Name[0]);
        if (vollstaendig()) return;
        sichere_ungelesene();
        if (lies_fehlende()) {
            geaendert[0] = true;
        } else {
            frage("Record not set");
        }
    }
};

}  // namespace varnok
