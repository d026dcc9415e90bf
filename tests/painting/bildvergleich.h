#pragma once

// Pictures held to stored ones in tests/golden/pictures, with room for what machines do differently: letters are
// smoothed in their own way and stand a pixel further on.

#include <gtest/gtest.h>

#include <QImage>
#include <string>

#include "support/golden.h"

namespace varnok::probe {

// How far two pictures may differ.
struct Bildtoleranz {
    int Abstand = 1;         // pixels that a stroke may stand aside
    int Helligkeit = 80;     // of 255, by which a colour may leave the range of those around its place
    double Anteil = 0.0002;  // share of the pixels that may differ by more
};

// Pixels of `Bild` whose colour is not found in `Vorlage` around their place.
int fremde_Punkte(const QImage& Bild, const QImage& Vorlage, const Bildtoleranz& t);

// Whether neither picture has more in it than the other.
::testing::AssertionResult aehnlich(const QImage& Bild, const QImage& Vorlage, const Bildtoleranz& t = {});

// The same against the file of that name, which VARNOK_GOLDEN writes anew as it does every golden file.
::testing::AssertionResult aehnlich_der_Datei(const QImage& Bild, const std::string& Datei,
                                              Goldenmodus Modus = Goldenmodus_aus_Umgebung());

}  // namespace varnok::probe
