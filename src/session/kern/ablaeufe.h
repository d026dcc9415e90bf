#pragma once

// Every command of the session, part by part, with what stands around it. A dialog's command is a step on the way: what
// follows from it comes when the dialog has closed.

#include "session/eingabe/applikationstabelle.h"
#include "session/eingabe/feldeingabe.h"
#include "session/eingabe/listenwahl.h"
#include "session/eingabe/zeichenmeldung.h"
#include "session/ergebnis/berichtssteuerung.h"
#include "session/ergebnis/bildsteuerung.h"
#include "session/ergebnis/diagrammsteuerung.h"
#include "session/ergebnis/laufsteuerung.h"
#include "session/kern/ablauf.h"
#include "session/kern/ruecknahme.h"
#include "session/programm/aktualisierungssteuerung.h"
#include "session/programm/hilfetexte.h"
#include "session/programm/optionensteuerung.h"
#include "session/programm/programmablauf.h"
#include "session/programm/projektoeffnung.h"
#include "session/saetze/beschreibungseingabe.h"
#include "session/saetze/eingabedateien.h"
#include "session/saetze/organiser.h"
#include "session/saetze/satzumbenennung.h"
#include "session/saetze/satzverwaltung.h"
#include "session/saetze/studienverwaltung.h"
#include "session/saetze/szenarioeditor.h"
#include "session/saetze/wiederherstellung.h"
#include "session/saetze/zwischensicherung.h"

namespace varnok {

inline constexpr Befehlsliste alle_Befehle{
    // A run that failed says nothing against the value of its field.
    Zeile<&Feldeingabe::betrete>{Weg::Zwischenschritt},
    Zeile<&Feldeingabe::aendere>{Weg::Zwischenschritt},
    Zeile<&Feldeingabe::bestaetige>{Weg::Handlung, true},
    Zeile<&Feldeingabe::verlasse>{Weg::Handlung, true},
    Zeile<&Feldeingabe::schliesse_ab>{Weg::Handlung, true},
    Zeile<&Feldeingabe::nimm_zurueck>{Weg::Handlung},

    Zeile<&Listenwahl::waehle_Substanz>{Weg::Befehl},
    Zeile<&Listenwahl::waehle_Kinetik>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Studie>{Weg::Befehl},
    Zeile<&Listenwahl::waehle_Berechnungsmodus>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::aendere_Namen>{Weg::Zwischenschritt},
    Zeile<&Listenwahl::verlasse_Namen>{Weg::Handlung},
    Zeile<&Listenwahl::waehle_Muster>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Monat>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Tag>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Intervall>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Anzahl>{Weg::Rechenbefehl},
    Zeile<&Listenwahl::waehle_Endpunkt>{Weg::Befehl},
    Zeile<&Listenwahl::waehle_PEC_Typ>{Weg::Befehl},
    Zeile<&Listenwahl::waehle_Fruchtwechsel>{Weg::Befehl},
    Zeile<&Listenwahl::waehle_TWA_Laenge>{Weg::Befehl},
    Zeile<&Listenwahl::zeige_Studien>{Weg::Befehl},
    Zeile<&Listenwahl::zeige_Zusammenfassung>{Weg::Befehl},

    // A cell in work is no step.
    Zeile<&Applikationstabelle::haenge_an>{Weg::Zwischenschritt},
    Zeile<&Applikationstabelle::nimm_letztes>{Weg::Zwischenschritt},
    Zeile<&Applikationstabelle::leere>{Weg::Zwischenschritt},
    Zeile<&Applikationstabelle::fuege_ein>{Weg::Befehl},
    Zeile<&Applikationstabelle::schliesse_ab>{Weg::Handlung, true},
    Zeile<&Applikationstabelle::bestaetige>{Weg::Rechenbefehl},

    Zeile<&Studienverwaltung::addiere>{Weg::Befehl},
    Zeile<&Studienverwaltung::loesche>{Weg::Rechenbefehl},
    Zeile<&Studienverwaltung::beginne_Umbenennen>{Weg::Befehl},
    Zeile<&Studienverwaltung::aendere>{Weg::Zwischenschritt},
    Zeile<&Studienverwaltung::bestaetige>{Weg::Handlung},
    Zeile<&Studienverwaltung::nimm_zurueck>{Weg::Zwischenschritt},

    Zeile<&Ruecknahme::mache_rueckgaengig>{Weg::Befehl},
    Zeile<&Ruecknahme::wiederhole>{Weg::Befehl},

    Zeile<&Laufsteuerung::schliesse_Skalierung>{Weg::Rechenbefehl},
    Zeile<&Laufsteuerung::nimm_Tabellenfehler>{Weg::Zwischenschritt},

    Zeile<&Diagrammsteuerung::schalte_weiter>{Weg::Befehl},
    Zeile<&Diagrammsteuerung::skaliere>{Weg::Zwischenschritt},
    Zeile<&Diagrammsteuerung::merke_Legende>{Weg::Zwischenschritt},
    Zeile<&Diagrammsteuerung::zeige_Zeitraum>{Weg::Befehl},
    Zeile<&Diagrammsteuerung::strecke>{Weg::Befehl},
    Zeile<&Diagrammsteuerung::strecke_um>{Weg::Befehl},
    Zeile<&Diagrammsteuerung::verschiebe>{Weg::Befehl},
    Zeile<&Diagrammsteuerung::zeige_alles>{Weg::Befehl},

    Zeile<&Bildsteuerung::setze>{Weg::Befehl},
    Zeile<&Bildsteuerung::speichere>{Weg::Befehl},
    Zeile<&Bildsteuerung::speichere_Daten>{Weg::Befehl},
    Zeile<&Bildsteuerung::melde_kopiert>{Weg::Befehl},

    Zeile<&Berichtssteuerung::erstelle>{Weg::Befehl},
    Zeile<&Berichtssteuerung::schliesse>{Weg::Zwischenschritt},
    Zeile<&Berichtssteuerung::speichere_PDF>{Weg::Handlung},

    Zeile<&Satzverwaltung::waehle_Simulation>{Weg::Rechenbefehl},
    Zeile<&Satzverwaltung::waehle_Satz>{Weg::Rechenbefehl},
    Zeile<&Satzverwaltung::lege_an>{Weg::Rechenbefehl},
    Zeile<&Satzverwaltung::kopiere>{Weg::Befehl},
    Zeile<&Satzverwaltung::loesche>{Weg::Befehl},
    Zeile<&Satzumbenennung::beginne>{Weg::Befehl},
    Zeile<&Satzumbenennung::aendere>{Weg::Zwischenschritt},
    Zeile<&Satzumbenennung::bestaetige>{Weg::Handlung},
    Zeile<&Satzumbenennung::nimm_zurueck>{Weg::Zwischenschritt},
    Zeile<&Satzverwaltung::speichere>{Weg::Befehl},
    Zeile<&Satzverwaltung::aktualisiere>{Weg::Rechenbefehl},

    Zeile<&Beschreibungseingabe::oeffne>{Weg::Befehl},
    Zeile<&Beschreibungseingabe::aendere>{Weg::Zwischenschritt},
    Zeile<&Beschreibungseingabe::schliesse>{Weg::Handlung},
    Zeile<&Beschreibungseingabe::nimm_zurueck>{Weg::Handlung},

    Zeile<&Szenarioeditor::oeffne>{Weg::Befehl, false, true},
    Zeile<&Szenarioeditor::waehle_Szenario>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::verlasse_Zahl>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::aendere>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::waehle_Option>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::waehle_Tiefe>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::blaettere>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::verlasse>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::waehle_Klimabedingungen>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::waehle_Temperatur>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::waehle_Klimaszenario>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::uebernimm>{Weg::Handlung},
    Zeile<&Szenarioeditor::verwirf>{Weg::Zwischenschritt},
    Zeile<&Szenarioeditor::schliesse>{Weg::Handlung},

    // The dialog opens with what could be read.
    Zeile<&Organiser::oeffne>{Weg::Befehl, true},
    Zeile<&Organiser::waehle>{Weg::Zwischenschritt},
    Zeile<&Organiser::aendere_Projektname>{Weg::Zwischenschritt},
    Zeile<&Organiser::kopiere>{Weg::Zwischenschritt},
    Zeile<&Organiser::loesche>{Weg::Zwischenschritt},
    Zeile<&Organiser::benenne_um>{Weg::Zwischenschritt},
    Zeile<&Organiser::beginne_Bearbeiten>{Weg::Zwischenschritt},
    Zeile<&Organiser::beende_Bearbeiten>{Weg::Zwischenschritt},
    Zeile<&Organiser::uebernimm>{Weg::Zwischenschritt},
    Zeile<&Organiser::verwirf>{Weg::Zwischenschritt},
    Zeile<&Organiser::schliesse_ab>{Weg::Handlung},

    Zeile<&Eingabedateien::lade>{Weg::Handlung},
    Zeile<&Eingabedateien::speichere>{Weg::Handlung},
    Zeile<&Eingabedateien::loesche>{Weg::Handlung},

    Zeile<&Optionensteuerung::oeffne>{Weg::Zwischenschritt},
    Zeile<&Optionensteuerung::uebernimm>{Weg::Zwischenschritt},
    Zeile<&Optionensteuerung::lege_Ordner_an>{Weg::Zwischenschritt},
    Zeile<&Optionensteuerung::schliesse>{Weg::Rechenbefehl},

    Zeile<&Zeichenmeldung::sage>{Weg::Handlung},

    Zeile<&Hilfetexte::Tooltips>{Weg::Zwischenschritt},

    Zeile<&Aktualisierungssteuerung::suche>{Weg::Befehl},
    Zeile<&Aktualisierungssteuerung::suche_beim_Start>{Weg::Zwischenschritt},
    Zeile<&Aktualisierungssteuerung::melde>{Weg::Handlung},

    // Comes behind an action, when that has been drawn.
    Zeile<&Zwischensicherung::schreibe>{Weg::Zwischenschritt},
    Zeile<&Aktualisierungssteuerung::halte_an>{Weg::Zwischenschritt},

    Zeile<&Wiederherstellung::stelle_her>{Weg::Befehl},

    Zeile<&Projektoeffnung::oeffne>{Weg::Rechenbefehl},
    Zeile<&Projektoeffnung::merke>{Weg::Zwischenschritt},

    Zeile<&Programmablauf::oeffne_Projekt>{Weg::Handlung},
    Zeile<&Programmablauf::verlasse_Startseite>{Weg::Handlung},
    Zeile<&Programmablauf::beginne_Dialog>{Weg::Befehl},
    Zeile<&Programmablauf::beende>{Weg::Befehl},
    Zeile<&Programmablauf::schliesse_Fenster>{Weg::Handlung},
    Zeile<&Satzverwaltung::lade_Voreinstellungen>{Weg::Befehl},
};

}  // namespace varnok
