#pragma once

// Lengths of a document: the program speaks of twips (1/1440 inch), a QTextDocument of pixels of the screen.

namespace varnok {

inline constexpr double Twips_pro_Zoll = 1440;

// Without a screen a pixel is 1/96 inch.
double Twips_in_Pixel(double Twips);
int Pixel_in_Twips(double Pixel);

}  // namespace varnok
