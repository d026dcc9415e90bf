#pragma once

// The program behind the screen. Every user action comes in here, every decision is taken here or in one of
// the parts; the widgets show `Zustand` and forward what the user does.

#include <functional>
#include <string>
#include <vector>

#include "exposure/ergebnistabelle.h"
#include "exposure/twa.h"
#include "session/eingabe/applikationstabelle.h"
#include "session/eingabe/feldeingabe.h"
#include "session/eingabe/listenwahl.h"
#include "session/ergebnis/berichtssteuerung.h"
#include "session/ergebnis/bildsteuerung.h"
#include "session/ergebnis/laufsteuerung.h"
#include "session/kern/zustand.h"
#include "session/programm/aktualisierungssteuerung.h"
#include "session/programm/hilfetexte.h"
#include "session/programm/optionensteuerung.h"
#include "session/saetze/eingabedateien.h"
#include "session/saetze/organiser.h"
#include "session/saetze/satzverwaltung.h"
#include "session/saetze/studienverwaltung.h"
#include "session/saetze/szenarioeditor.h"

namespace varnok {

class Sitzung {
public:
    explicit Sitzung(Umgebung Welt);

    // Reads settings, project and the simulation used last. False if the program ends at once.
    bool oeffne_Projekt();

    const Zustand& Stand() const { return z_; }
    const std::string& Feldtext(int Feld) const { return Felder_.Text(Feld); }
    int aktives_Feld() const { return Felder_.aktives_Feld(); }
    // Lists whose length depends on the input.
    int Tage_der_Liste() const;
    int Intervalle_der_Liste() const;
    std::vector<std::string> TWA_Liste() const { return TWA_Eintraege(z_.Parameter(), z_.Welt.Dezimalzeichen); }
    // Result grid of a compound for the selected study; the summary grid over all studies.
    Tabellentext Ergebnisse(int i_substanz) const;
    Tabellentext Ergebnisse_Zusammenfassung(int i_substanz) const;
    // Diagrams of the view on display, and the one in front.
    const Diagrammsteuerung& Diagramme() const { return Diagramme_; }
    // What can be done now.
    bool darf_nach_Update_suchen() const { return !z_.Aktualisierung_laeuft; }
    bool ist_gestartet() const { return z_.Gestartet; }
    bool darf_Zusammenfassung() const { return z_.Gestartet && z_.Studienzahl() > 1; }
    bool darf_Studie_addieren() const { return z_.Gestartet && Studien_.darf_addieren(); }
    bool darf_Studie_loeschen() const { return z_.Gestartet && Studien_.darf_loeschen(); }
    bool darf_loeschen(Satzart Art) const { return z_.Listen[Art].size() > 1 && z_.Auswahl(Art) >= 0; }
    bool darf_kopieren(Satzart Art) const { return z_.Auswahl(Art) >= 0; }

    // Numeric fields. `bestaetige_Feld` and `verlasse_Feld` give false where the field keeps the focus.
    void betrete_Feld(int Feld);
    void aendere_Feld(int Feld, const std::string& Text);
    bool bestaetige_Feld(int Feld);
    bool verlasse_Feld(int Feld);
    void nimm_Feld_zurueck(int Feld);
    // Before every other command: accepts the field in work. False if it is invalid: the command is not done.
    bool schliesse_Feld_ab(bool mit_Lauf = true);

    // Buttons and menu entries.
    void Starten();
    void Aktualisieren();
    void Speichern();
    void Ende();
    void lade_Voreinstellungen();
    void suche_nach_Update();
    // Once after the start; see `Aktualisierungssteuerung`. `fuehre_aus` runs the action that a usable answer asks for.
    void suche_beim_Start(std::function<void(const std::function<void()>&)> fuehre_aus);
    bool schliesse_Fenster();  // false: the window stays
    void zeige_Studien();
    void zeige_Zusammenfassung();
    // A left click on a diagram.
    void schalte_Diagramm_weiter();
    // The scaling dialog's OK: false, and the message has been shown, for an end that is refused.
    bool skaliere_Diagramm(const std::string& Start, const std::string& Ende);
    // After the dialog has closed, also by Cancel: a run in the single view, a drawing in the summary.
    void schliesse_Skalierung();

    // A closer look at the diagram in front; pictures and data of it for other programs.
    void sieh_an(const std::function<void(Diagrammsteuerung&)>& Befehl);
    const Bildsteuerung& Bilder() const { return Bilder_; }
    void gib_aus(const std::function<void(Bildsteuerung&)>& Befehl);

    // The legend of a diagram was dragged to a place of its surface, or called home.
    void merke_Legende(bool Zusammenfassung, int Diagrammsatz, const std::optional<Flaechenort>& Ort);

    // Report: made, written, shown until it is closed.
    void erstelle_Bericht();
    void schliesse_Bericht();
    void speichere_Bericht_als_PDF(const std::string& Pfad);
    const Bericht* offener_Bericht() const { return Berichte_.offener(); }

    // Help: the tips of the controls, see `Hilfetexte`; who developed the program.
    std::vector<std::string> Tooltips() { return Hilfe_.Tooltips(); }
    std::string Programmangaben() const { return Hilfe_.Programmangaben(); }

    // Undo and redo; the names tell what they change, empty where there is nothing to.
    void mache_rueckgaengig();
    void wiederhole();
    std::string Name_rueckgaengig() const { return z_.Schritte.Name_zurueck(); }
    std::string Name_wiederholen() const { return z_.Schritte.Name_vor(); }

    // Records.
    void waehle_Simulation(int Position);
    void waehle_Satz(Satzart Art, int Position);
    void neuer_Wirkstoff() { lege_Satz_an(Wirkstoff); }
    void neue_Applikationsdatei() { lege_Satz_an(Applikation); }
    void neues_Szenario() { lege_Satz_an(Szenario); }
    void lege_Satz_an(Satzart Art);
    void kopiere_Satz(Satzart Art);
    void loesche_Satz(Satzart Art);
    // The text of the rename box: with Enter a name that is taken is asked about, on leaving the box it is a fault.
    // True if the box may close.
    bool benenne_Satz_um(Satzart Art, const std::string& Text, bool mit_Frage);
    void oeffne_Beschreibung();
    void aendere_Beschreibung(const std::string& Text);
    void schliesse_Beschreibung();
    void nimm_Beschreibung_zurueck();

    // Compound data, application pattern, results: see `Listenwahl`.
    void waehle_Substanz(int c);
    void waehle_Kinetik(int c, Kinetikart k);
    void waehle_Studie(int i);
    void waehle_Berechnungsmodus(int m);

    // The scenario editor: opened (false: not now), changed, left by "Done" or "Cancel", and what follows once its dialog has
    // closed, whichever way.
    bool oeffne_Szenarioeditor();
    Szenarioeditor& Editor() { return Editor_; }
    void uebernimm_Szenario();
    void schliesse_Szenarioeditor();

    // Studies of the compound: see `Studienverwaltung`.
    void addiere_Studie();
    void loesche_Studie();
    void beginne_Studienname();
    void aendere_Studienname(const std::string& Name) { Studien_.aendere(Name); }
    void bestaetige_Studienname(bool Enter);
    void nimm_Studienname_zurueck();
    const Studienverwaltung& Studien() const { return Studien_; }

    void aendere_Namen(int c, const std::string& Name);
    void verlasse_Namen();
    void waehle_Muster(int m);
    void waehle_Monat(int i);
    void waehle_Tag(int i);
    void waehle_Intervall(int i);
    void waehle_Anzahl(int i);
    void waehle_Endpunkt(int e);
    void waehle_PEC_Typ(int a);
    void waehle_Fruchtwechsel(int r);
    void waehle_TWA_Laenge(int j);

    // The options dialog: see `Optionensteuerung`.
    Optionsentwurf oeffne_Optionen() { return Optionen_.oeffne(); }
    bool uebernimm_Optionen(const Optionsentwurf& Neue);
    bool schliesse_Optionen();  // true: the tooltips have been switched on
    std::optional<std::string> lege_Ordner_an(const std::string& darin, const std::string& Name);

    // The file dialogs in reserve: see `Eingabedateien`. False: the message has been shown, the dialog stays.
    bool lade_Eingabedaten(const std::string& Dateiname);
    bool speichere_Eingabedaten_unter(const std::string& Dateiname);
    void loesche_Eingabedatei(const std::string& Ordner, const std::string& Dateiname);
    bool darf_Eingabedatei_loeschen(const std::string& Ordner) const { return Dateien_.darf_loeschen(Ordner); }

    // The simulation organiser: see `Organiser`. False: the field in work refused its value, the dialog does not open.
    bool oeffne_Organiser();
    const Organiser& Organisation() const { return Organiser_; }
    // A command of the dialog, and what follows when it has closed.
    void organisiere(const std::function<void(Organiser&)>& Befehl);
    void schliesse_Organiser();

    // Table of irregular applications.
    void haenge_an_Zelle(Zelle z, char Zeichen);
    void nimm_letztes_Zeichen(Zelle z);
    void leere_Zelle(Zelle z);
    void fuege_in_Tabelle_ein(Zelle z, const std::string& Text);
    void bestaetige_Tabelle();

private:
    // The one place that turns a fault into a message: results are covered, the action ends, what was
    // entered stays, the program goes on.
    template <class Handlung>
    void versuche(Handlung h);
    // An action: the same, and what follows from it.
    template <class Handlung>
    void tue(Handlung h);
    // The same for a command: the field in work is accepted first.
    template <class Handlung>
    void befolge(Handlung h, bool mit_Lauf = true);
    void melde_Fehler(const std::string& Text);
    void schliesse_Handlung_ab();
    void raeume_Marken_auf();
    void fuehre_Statuszeile();
    void fuehre_Verlauf();
    void stelle_Eingabe_her(const Eingabe& e);

    Zustand z_;
    Diagrammsteuerung Diagramme_{z_};
    Bildsteuerung Bilder_{z_, Diagramme_};
    Laufsteuerung Laeufe_{z_};
    Feldeingabe Felder_{z_, Laeufe_};
    Satzverwaltung Saetze_{z_, Laeufe_, Felder_, Diagramme_};
    Organiser Organiser_{z_, Saetze_};
    Listenwahl Listen_{z_, Laeufe_, Felder_, Diagramme_};
    Studienverwaltung Studien_{z_, Laeufe_, Felder_};
    Szenarioeditor Editor_{z_, Laeufe_, Saetze_};
    Applikationstabelle Tabelle_{z_, Laeufe_};
    Berichtssteuerung Berichte_{z_, Laeufe_, Diagramme_};
    Aktualisierungssteuerung Update_{z_, [this] { Saetze_.sichere_Ungesichertes(); }};
    Optionensteuerung Optionen_{z_, Laeufe_, Listen_};
    Eingabedateien Dateien_{z_, Saetze_};
    Hilfetexte Hilfe_{z_};
    // As the last action left them.
    Eingabe letzte_Vorgabe_;
    varnok::Ergebnisse letzte_Werte_;
    std::string letzte_Statuszeile_;
    std::string alte_Beschreibung_;
    bool alte_Marke_ = false;  // of the simulation, before the description was opened
};

}  // namespace varnok
