#pragma once

#include <array>
#include <string>
#include <vector>

#include "session/ergebnis/laufsteuerung.h"
#include "session/saetze/satzverwaltung.h"

namespace varnok {

// The depths that are options, cm.
inline constexpr std::array<double, 2> Bodenvorgaben = {5, 2.5};
inline constexpr std::array<double, 2> Plateauvorgaben = {5, 20};

// A depth in the editor: presets as options, and a list for every other depth.
struct Tiefenwahl {
    std::vector<double> Tiefen;          // cm
    std::vector<std::string> Eintraege;  // the same as the list shows them
    int Position = 0;
    int Option = 2;                 // two presets, then "Individual"
    bool Liste_sichtbar = true;     // with "Individual" only
    std::array<int, 2> Vorgaben{};  // positions of the presets
};

// What the editor shows and the user changes, before "Done".
struct Szenarioentwurf {
    // Fields of text, in the order in which they stand.
    enum Feld { Bodenszenario, Bodendichte, Kohlenstoffgehalt, Feldkapazitaet, Welkepunkt, Anzahl_Felder };

    std::vector<std::string> Szenarien;
    int Szenario = -1;
    std::string Bodenname;
    std::array<Zahlwert, Anzahl_Felder> Zahlen;  // nothing in the place of the name
    const std::string& Text(Feld f) const { return f == Bodenszenario ? Bodenname : Zahlen[f].Text(); }
    Tiefenwahl Boden;
    Tiefenwahl Plateau;
    Klimaart Klimamodus = konstante_Temperatur;
    std::vector<std::string> Temperaturen;  // degrees C
    int Temperatur = 0;
    std::vector<std::string> Klimadateien;
    int Klima = -1;
};

// The scenario editor: soil and climate of the scenario on the screen. It writes no file.
class Szenarioeditor {
public:
    Szenarioeditor(Zustand& z, Laufsteuerung& Laeufe, Satzverwaltung& Saetze) : z_(z), Laeufe_(Laeufe), Saetze_(Saetze) {}

    const Szenarioentwurf& Entwurf() const { return e_; }
    // Whether a field shows a number outside its range.
    bool ausserhalb(Szenarioentwurf::Feld f) const;
    // Without a climate file there is nothing to choose; a record that is variable can stay so.
    bool darf_variabel() const { return !e_.Klimadateien.empty() || gezeigt_.Klimamodus == nach_Klimadatei; }

    // Shows the scenario on the screen. One that the selector names and that was not read is read before. False if there is
    // nothing to show: the program ends.
    bool oeffne();
    // Another name for the same values: no record is read, what was typed goes.
    void waehle_Szenario(int i);
    // False for a soil name that no record can hold, after the user was told: the text before it stands.
    bool aendere(Szenarioentwurf::Feld f, const std::string& Text);
    // One of the two depths of the draft.
    using Tiefe = Tiefenwahl Szenarioentwurf::*;
    void waehle_Option(Tiefe t, int o);
    void waehle_Tiefe(Tiefe t, int i);
    // Keys or the wheel walk through the closed list: at a preset it stays until it is left.
    void blaettere(Tiefe t, int i);
    void verlasse(Tiefe t) { waehle_Tiefe(t, (e_.*t).Position); }
    void waehle_Klimabedingungen(Klimaart m) { e_.Klimamodus = m; }
    void waehle_Temperatur(int i) { e_.Temperatur = i; }
    void waehle_Klimaszenario(int i);

    // A field of a number is left: it shows the number that its text is taken for.
    void verlasse_Zahl(Szenarioentwurf::Feld f);

    // "Done": stores what the user changed. False where a number is refused: the message has been shown, nothing is stored.
    bool uebernimm();
    // "Cancel".
    void verwirf();
    // Once the dialog has closed: runs if that is due. A run that fails does not ask for the editor again.
    void schliesse();

private:
    // Of whose record the values on the screen are.
    std::string gezeigter_Satz() const;
    void fuelle_Listen();
    void zeige_Werte();
    bool uebernimm_Wert(double neu, double& Parameter);
    bool nimm_Texte_an();
    void uebernimm_Werte();
    void uebernimm_Plateautiefe();
    void uebernimm_Klima();
    void uebernimm_Namen();
    void merke_Aenderung();

    Zustand& z_;
    Laufsteuerung& Laeufe_;
    Satzverwaltung& Saetze_;
    Szenarioentwurf e_;
    Szenarioentwurf gezeigt_;  // on opening: what the user does not touch is never stored
    std::string Gelesenes_;    // what was read as what, for the status line when the dialog has closed
    bool Klima_gewaehlt_ = false;
    bool geaendert_ = false;  // "Done" stored something
    bool Lauf_faellig_ = false;
};

}  // namespace varnok
