#pragma once

#include "run/lauf.h"

namespace varnok {

// The background that a compound reaches after many years of the same use, for `i_studie` and
// `i_substanz`, from the yearly peaks: a geometric series for a parent under SFO in a constant climate, else an
// exponential estimate from the peaks of years 9 and 10. Writes `Plateauwert`, `Plateauzuwachs`, `Plateautext`,
// `Plateaujahr`, and a warning where the residues grow without limit.
void berechne_Plateau(Lauf& l);

// P of y(t) = P (1 - exp(-k t)) through (t_a, y_a) and (t_b, y_b), with y_a above 0 and t_a below t_b. k is
// where the iteration k <- m(k) / r k, started at 0.001, first meets |r - m(k)| < 1E-7, with the observed ratio
// r = y_b / y_a and the model's ratio m. r must lie above 1 - 1E-7 and below t_b / t_a - 1E-5.
double finde_maximales_Plateau(float y_a, float y_b, double t_a, double t_b);

}  // namespace varnok
