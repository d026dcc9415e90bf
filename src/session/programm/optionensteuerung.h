#pragma once

#include <array>
#include <optional>
#include <string>

#include "session/eingabe/listenwahl.h"
#include "session/ergebnis/laufsteuerung.h"

namespace varnok {

// What the options dialog shows and changes. Unit, residues, list of windows and parts of the name belong to the compound
// record, the rest to the settings file.
struct Optionsentwurf {
    Einheitsart Einheit = Milligramm;
    Rueckstandsart Separate_Rueckstaende = gemeinsam;
    TWA_Listenart TWA_Zeiten = EU_Liste;
    std::array<bool, 6> Ausgabename_Teile{};
    int Tips_anzeigen = 0;
    int Farbeinstellung = 0;  // 0 coloured, 1 as the desktop
    std::string Projektpfad;

    friend bool operator==(const Optionsentwurf&, const Optionsentwurf&) = default;
};

// Why a folder cannot be the project path, empty if it can.
std::string Einwand_gegen_Projektpfad(const std::string& Pfad);

// The options dialog: `oeffne`, `uebernimm` with OK, `schliesse` when it is gone, however it was left.
class Optionensteuerung {
public:
    Optionensteuerung(Eingabestand& z, Laufsteuerung& Laeufe, Listenwahl& Listen) : z_(z), Laeufe_(Laeufe), Listen_(Listen) {}

    // The options as they are now.
    Optionsentwurf oeffne();
    // False if the project path is refused: the message has been shown, the dialog stays and nothing is changed.
    bool uebernimm(const Optionsentwurf& Neue);
    // Marks and runs what OK has changed; nothing without OK. True if the tooltips have been switched on.
    bool schliesse();

    // A new folder below another, for the project path. Gives its path; where it cannot be made nothing, and the message has
    // been shown.
    std::optional<std::string> lege_Ordner_an(const std::string& darin, const std::string& Name);

private:
    Optionsentwurf jetzt() const;
    void setze_Projektpfad(const std::string& Pfad);
    void merke_Aenderungen(const Optionsentwurf& Neue);
    void sage_Tips_ab();

    Eingabestand& z_;
    Laufsteuerung& Laeufe_;
    Listenwahl& Listen_;
    Optionsentwurf vorher_;
    bool Lauf_faellig_ = false;
};

}  // namespace varnok
