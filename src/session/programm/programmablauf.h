#pragma once

#include "session/eingabe/applikationstabelle.h"
#include "session/eingabe/feldeingabe.h"
#include "session/ergebnis/laufsteuerung.h"
#include "session/saetze/satzumbenennung.h"
#include "session/saetze/studienverwaltung.h"
#include "session/saetze/zwischensicherung.h"

namespace varnok {

// From the first file that is read to the end of the program.
class Programmablauf {
public:
    Programmablauf(Zustand& z, Satzverwaltung& Saetze, Feldeingabe& Felder, Laufsteuerung& Laeufe, Studienverwaltung& Studien,
                   Satzumbenennung& Umbenennung, Applikationstabelle& Tabelle, Zwischensicherung& Zwischenstand)
        : z_(z),
          Saetze_(Saetze),
          Felder_(Felder),
          Laeufe_(Laeufe),
          Studien_(Studien),
          Umbenennung_(Umbenennung),
          Tabelle_(Tabelle),
          Zwischenstand_(Zwischenstand) {}

    // Up to the start page: settings, project folder, selectors, the simulation used last and its records. False if the program
    // ends there.
    bool oeffne_Projekt();
    // The start page is left: the first run.
    void verlasse_Startseite();
    // A dialog is to open: the command is what stands around it, which accepts what is in work on the main screen. False where
    // that was refused: then it does not open.
    bool beginne_Dialog() { return true; }
    // The button `Ende`: offers to save, writes summary file and settings; what is not saved is in `backup`. Files that cannot be
    // written are told.
    void beende();
    // The close box: offers to save and writes nothing else but `backup`. False if the window stays.
    bool schliesse_Fenster();

private:
    bool lade_erste();
    bool sichere_am_Ende();

    Zustand& z_;
    Satzverwaltung& Saetze_;
    Feldeingabe& Felder_;
    Laufsteuerung& Laeufe_;
    Studienverwaltung& Studien_;
    Satzumbenennung& Umbenennung_;
    Applikationstabelle& Tabelle_;
    Zwischensicherung& Zwischenstand_;
};

}  // namespace varnok
