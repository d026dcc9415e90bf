#pragma once

// The diagrams of concentration over time, from the results. Nothing is painted and no file is written: a
// diagram is data. The only thing that changes are the ends of the time axes, which a drawing may move.

#include <vector>

#include "diagrams/diagramm.h"
#include "diagrams/diagrammbereiche.h"
#include "exposure/darstellung.h"

namespace varnok {

// The diagram `Diagrammsatz` (none of the multi-compound ones) of its compound in a study. Widens the time axis so
// that the averaging window behind the peak can show; all ten years in the view "Background". The file is the day
// series: the last day of the axis is drawn but not written.
// Throws Laufzeitfehler for a concentration that is not finite.
Diagramm erstelle_Diagramm(const Darstellung& Inhalt, Diagrammbereiche& b, int Diagrammsatz, int i_studie);

// The multi-compound diagram `Diagrammsatz`. `i_substanz` is the compound in work, whose peak and window
// the time axis makes room for.
Diagramm erstelle_Diagramm_mehrfach(const Darstellung& Inhalt, Diagrammbereiche& b, int Diagrammsatz, int i_substanz,
                                    int i_studie);

// The summary diagram `Zusammenfassungssatz`: its compound in all studies. Comment and kinetics are those of `i_studie`.
// The y axis is fitted to the days shown. The file lists study, compound, day and concentration in the tillage depth;
// `mit_Datei` false leaves it out.
Diagramm erstelle_Diagramm_Zusammenfassung(const Darstellung& Inhalt, Diagrammbereiche& b, int Zusammenfassungssatz, int i_studie,
                                           bool mit_Datei = true);

// All diagrams of the scheme of the study's result: one for each compound, then the multi-compound one, if the scheme has it.
std::vector<Diagramm> erstelle_Diagramme(const Darstellung& Inhalt, Diagrammbereiche& b, int i_studie);

// All summary diagrams of the scheme. They share one file, so only the last one has it.
std::vector<Diagramm> erstelle_Diagramme_Zusammenfassung(const Darstellung& Inhalt, Diagrammbereiche& b, int i_studie);

// Largest value of a compound over all studies and the days from `X_Start` to `X_Ende`, as rounded end of the y axis.
double erstelle_Diagramm_skaliere_y_Achse(const Darstellung& Inhalt, int i_substanz, double X_Start, double X_Ende);

// Name of the day series' file; characters that a file name cannot hold become "_".
std::string Dateiname_Tagesreihe(const std::string& Stoffname);

}  // namespace varnok
