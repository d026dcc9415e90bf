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
#include "session/saetze/satzverwaltung.h"
#include "session/saetze/studienverwaltung.h"
#include "session/saetze/szenarioeditor.h"
#include "session/saetze/wiederherstellung.h"
#include "session/saetze/zwischensicherung.h"

namespace varnok {

// A run that failed says nothing against the value of its field.
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::betrete>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::aendere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::bestaetige>) { return {Weg::Handlung, true}; }
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::verlasse>) { return {Weg::Handlung, true}; }
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::schliesse_ab>) { return {Weg::Handlung, true}; }
constexpr Ablauf Ablauf_von(Tat<&Feldeingabe::nimm_zurueck>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Substanz>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Kinetik>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Studie>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Berechnungsmodus>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::aendere_Namen>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::verlasse_Namen>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Muster>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Monat>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Tag>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Intervall>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Anzahl>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Endpunkt>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_PEC_Typ>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_Fruchtwechsel>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::waehle_TWA_Laenge>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::zeige_Studien>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Listenwahl::zeige_Zusammenfassung>) { return {Weg::Befehl}; }

// A cell in work is no step.
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::haenge_an>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::nimm_letztes>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::leere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::fuege_ein>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::schliesse_ab>) { return {Weg::Handlung, true}; }
constexpr Ablauf Ablauf_von(Tat<&Applikationstabelle::bestaetige>) { return {Weg::Rechenbefehl}; }

constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::addiere>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::loesche>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::beginne_Umbenennen>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::aendere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::bestaetige>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Studienverwaltung::nimm_zurueck>) { return {Weg::Zwischenschritt}; }

constexpr Ablauf Ablauf_von(Tat<&Ruecknahme::mache_rueckgaengig>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Ruecknahme::wiederhole>) { return {Weg::Befehl}; }

constexpr Ablauf Ablauf_von(Tat<&Laufsteuerung::schliesse_Skalierung>) { return {Weg::Rechenbefehl}; }

constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::schalte_weiter>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::skaliere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::merke_Legende>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::zeige_Zeitraum>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::strecke>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::strecke_um>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::verschiebe>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Diagrammsteuerung::zeige_alles>) { return {Weg::Befehl}; }

constexpr Ablauf Ablauf_von(Tat<&Bildsteuerung::setze>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Bildsteuerung::speichere>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Bildsteuerung::speichere_Daten>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Bildsteuerung::melde_kopiert>) { return {Weg::Befehl}; }

constexpr Ablauf Ablauf_von(Tat<&Berichtssteuerung::erstelle>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Berichtssteuerung::schliesse>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Berichtssteuerung::speichere_PDF>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::waehle_Simulation>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::waehle_Satz>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::lege_an>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::kopiere>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::loesche>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::benenne_um>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::speichere>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::aktualisiere>) { return {Weg::Rechenbefehl}; }

constexpr Ablauf Ablauf_von(Tat<&Beschreibungseingabe::oeffne>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Beschreibungseingabe::aendere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Beschreibungseingabe::schliesse>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Beschreibungseingabe::nimm_zurueck>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::oeffne>) { return {Weg::Befehl, false, true}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Szenario>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::verlasse_Zahl>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::aendere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Option>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Tiefe>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::blaettere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::verlasse>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Klimabedingungen>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Temperatur>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::waehle_Klimaszenario>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::uebernimm>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::verwirf>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Szenarioeditor::schliesse>) { return {Weg::Handlung}; }

// The dialog opens with what could be read.
constexpr Ablauf Ablauf_von(Tat<&Organiser::oeffne>) { return {Weg::Befehl, true}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::waehle>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::aendere_Projektname>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::kopiere>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::loesche>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::benenne_um>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::beginne_Bearbeiten>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::beende_Bearbeiten>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::uebernimm>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::verwirf>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Organiser::schliesse_ab>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Eingabedateien::lade>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Eingabedateien::speichere>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Eingabedateien::loesche>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Optionensteuerung::oeffne>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Optionensteuerung::uebernimm>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Optionensteuerung::lege_Ordner_an>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Optionensteuerung::schliesse>) { return {Weg::Rechenbefehl}; }

constexpr Ablauf Ablauf_von(Tat<&Zeichenmeldung::sage>) { return {Weg::Handlung}; }

constexpr Ablauf Ablauf_von(Tat<&Hilfetexte::Tooltips>) { return {Weg::Zwischenschritt}; }

constexpr Ablauf Ablauf_von(Tat<&Aktualisierungssteuerung::suche>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Aktualisierungssteuerung::suche_beim_Start>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Aktualisierungssteuerung::melde>) { return {Weg::Handlung}; }

// Comes behind an action, when that has been drawn.
constexpr Ablauf Ablauf_von(Tat<&Zwischensicherung::schreibe>) { return {Weg::Zwischenschritt}; }
constexpr Ablauf Ablauf_von(Tat<&Aktualisierungssteuerung::halte_an>) { return {Weg::Zwischenschritt}; }

constexpr Ablauf Ablauf_von(Tat<&Wiederherstellung::stelle_her>) { return {Weg::Befehl}; }

constexpr Ablauf Ablauf_von(Tat<&Projektoeffnung::oeffne>) { return {Weg::Rechenbefehl}; }
constexpr Ablauf Ablauf_von(Tat<&Projektoeffnung::merke>) { return {Weg::Zwischenschritt}; }

constexpr Ablauf Ablauf_von(Tat<&Programmablauf::oeffne_Projekt>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Programmablauf::starte>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Programmablauf::beende>) { return {Weg::Befehl}; }
constexpr Ablauf Ablauf_von(Tat<&Programmablauf::schliesse_Fenster>) { return {Weg::Handlung}; }
constexpr Ablauf Ablauf_von(Tat<&Satzverwaltung::lade_Voreinstellungen>) { return {Weg::Befehl}; }

}  // namespace varnok
