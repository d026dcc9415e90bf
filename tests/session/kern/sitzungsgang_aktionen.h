#pragma once

// What a user, and another program beside him, can do: the kinds of action by matter.

#include <array>
#include <string>
#include <vector>

#include "session/kern/sitzungsgang.h"

namespace varnok::gang {

std::vector<Aktionsart> Aktionen_an_Eingaben();
std::vector<Aktionsart> Aktionen_an_Studien_und_Namen();
std::vector<Aktionsart> Aktionen_an_Ergebnissen();
std::vector<Aktionsart> Aktionen_an_Saetzen();
std::vector<Aktionsart> Aktionen_in_Dialogen();
std::vector<Aktionsart> Aktionen_am_Programm();
std::vector<Aktionsart> fremde_Aktionen();

// Esc last, so that a loop over the answers may end the program with the others.
inline constexpr std::array alle_Antworten = {Knopf::nicht_jetzt, Knopf::Nein, Knopf::Ja};

// Of more than one matter.
void tippe_langsam(Gang& g);                                        // a decay that gives no plateau
bool tippe_in(Gang& g, const char* Feld, const std::string& Text);  // false where another field keeps the focus
void addiere_Studie(Gang& g);
void loesche_Studie(Gang& g);
void heile(Gang& g);  // all files are what they were, and a simulation of them is chosen
void waehle_mit_Namen(Gang& g, const std::string& Simulation);
Satzart eine_Art(Gang& g, bool mit_Simulation = true);

template <auto Tat>
void tue(Gang& g) {
    g.tue<Tat>();
}

// One of the first entries of a list or an enumeration.
template <auto Wahl, int Anzahl, class Eintrag = int>
void waehle(Gang& g) {
    const int i = g.r().unter(Anzahl);
    g.sage(std::to_string(i));
    g.tue<Wahl>(static_cast<Eintrag>(i));
}

}  // namespace varnok::gang
