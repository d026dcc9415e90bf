#pragma once

#include <array>
#include <string>
#include <vector>

#include "screens/handlers/laufsteuerung.h"

namespace varnok {

// A depth in the editor: presets as options, and a list for every other depth.
struct Tiefenwahl {
    std::vector<std::string> Eintraege;  // cm
    int Position = 0;
    int Option = 2;             // two presets, then "Individual"
    bool Liste_sichtbar = true;  // with "Individual" only
    std::array<int, 2> Vorgaben{};  // positions of the presets
};

// What the editor shows and the user changes, before "Done".
struct Szenarioentwurf {
    // Fields of text, in the order in which they stand.
    enum Feld { Bodenszenario, Bodendichte, Kohlenstoffgehalt, Feldkapazitaet, Welkepunkt, Anzahl_Felder };

    std::vector<std::string> Szenarien;
    int Szenario = -1;
    std::array<std::string, Anzahl_Felder> Texte;
    Tiefenwahl Boden;
    Tiefenwahl Plateau;
    int Klimamodus = 0;
    std::vector<std::string> Temperaturen;  // degrees C
    int Temperatur = 0;
    std::vector<std::string> Klimadateien;
    int Klima = -1;
};

// The scenario editor: soil and climate of the scenario on the screen. It writes no file.
class Szenarioeditor {
public:
    Szenarioeditor(Zustand& z, Laufsteuerung& Laeufe) : z_(z), Laeufe_(Laeufe) {}

    const Szenarioentwurf& Entwurf() const { return e_; }
    // Without a climate file there is nothing to choose.
    bool darf_variabel() const { return !e_.Klimadateien.empty() || e_.Klimamodus == 1; }

    void oeffne();
    // Another name for the same values: no record is read, what was typed goes.
    void waehle_Szenario(int i);
    void aendere(Szenarioentwurf::Feld f, const std::string& Text) { e_.Texte[f] = Text; }
    void waehle_Bodentiefe_Option(int o) { waehle_Option(e_.Boden, o); }
    void waehle_Plateautiefe_Option(int o) { waehle_Option(e_.Plateau, o); }
    void waehle_Bodentiefe(int i) { waehle_Tiefe(e_.Boden, i); }
    void waehle_Plateautiefe(int i) { waehle_Tiefe(e_.Plateau, i); }
    void verlasse_Bodentiefe() { waehle_Tiefe(e_.Boden, e_.Boden.Position); }
    void verlasse_Plateautiefe() { waehle_Tiefe(e_.Plateau, e_.Plateau.Position); }
    void waehle_Klimabedingungen(int m) { e_.Klimamodus = m; }
    void waehle_Temperatur(int i) { e_.Temperatur = i; }
    void waehle_Klimaszenario(int i);

    // Throws Laufzeitfehler for a soil name that no record can hold.
    void pruefe() const;
    // "Done": stores what the user changed and runs if that is due.
    void uebernimm();
    // "Cancel".
    void verwirf() { Lauf_faellig_ = false; }

private:
    static void waehle_Option(Tiefenwahl& t, int o);
    static void waehle_Tiefe(Tiefenwahl& t, int i);
    void zeige_Werte();
    bool uebernimm_Wert(const std::string& Text, const std::string& gezeigt, double& Parameter);
    void uebernimm_Werte();
    void uebernimm_Plateautiefe();
    void uebernimm_Klima();
    void uebernimm_Namen();
    void merke_Aenderung();

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    Szenarioentwurf e_;
    Szenarioentwurf gezeigt_;  // on opening: what the user does not touch is never stored
    bool Klima_gewaehlt_ = false;
    bool Lauf_faellig_ = false;
};

}  // namespace varnok
