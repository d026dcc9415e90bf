#include "reports/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace varnok {
namespace {

double Pixel_pro_Zoll() {
    const QScreen* Schirm = QGuiApplication::primaryScreen();
    return Schirm == nullptr ? 96.0 : std::round(Schirm->logicalDotsPerInchY());
}

}  // namespace

double Twips_in_Pixel(double Twips) { return Twips * Pixel_pro_Zoll() / Twips_pro_Zoll; }

int Pixel_in_Twips(double Pixel) { return static_cast<int>(std::lround(Pixel * Twips_pro_Zoll / Pixel_pro_Zoll())); }

}  // namespace varnok
