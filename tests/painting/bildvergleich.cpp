#include "painting/bildvergleich.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>

namespace varnok::probe {
namespace {

std::array<int, 3> Anteile(QRgb f) { return {qRed(f), qGreen(f), qBlue(f)}; }

// Whether each part of a colour lies between the darkest and the lightest around a place.
bool gefunden(QRgb Farbe, const QImage& Vorlage, int x, int y, const Bildtoleranz& t) {
    if (Farbe == Vorlage.pixel(x, y)) return true;
    std::array<int, 3> unten = {255, 255, 255};
    std::array<int, 3> oben = {0, 0, 0};
    for (int v = std::max(0, y - t.Abstand); v <= std::min(Vorlage.height() - 1, y + t.Abstand); ++v) {
        for (int u = std::max(0, x - t.Abstand); u <= std::min(Vorlage.width() - 1, x + t.Abstand); ++u) {
            const auto Nachbar = Anteile(Vorlage.pixel(u, v));
            for (std::size_t i = 0; i < 3; ++i) {
                unten[i] = std::min(unten[i], Nachbar[i]);
                oben[i] = std::max(oben[i], Nachbar[i]);
            }
        }
    }
    const auto f = Anteile(Farbe);
    for (std::size_t i = 0; i < 3; ++i) {
        if (f[i] < unten[i] - t.Helligkeit || f[i] > oben[i] + t.Helligkeit) return false;
    }
    return true;
}

}  // namespace

int fremde_Punkte(const QImage& Bild, const QImage& Vorlage, const Bildtoleranz& t) {
    int Anzahl = 0;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) Anzahl += !gefunden(Bild.pixel(x, y), Vorlage, x, y, t);
    }
    return Anzahl;
}

::testing::AssertionResult aehnlich(const QImage& Bild, const QImage& Vorlage, const Bildtoleranz& t) {
    if (Bild.size() != Vorlage.size()) return ::testing::AssertionFailure() << "the sizes differ";
    const auto erlaubt = static_cast<int>(t.Anteil * Bild.width() * Bild.height());
    const int zu_viel = fremde_Punkte(Bild, Vorlage, t);
    const int zu_wenig = fremde_Punkte(Vorlage, Bild, t);
    const auto Urteil = zu_viel <= erlaubt && zu_wenig <= erlaubt ? ::testing::AssertionSuccess() : ::testing::AssertionFailure();
    return ::testing::AssertionResult(Urteil)
           << zu_viel << " pixels too many, " << zu_wenig << " missing, allowed are " << erlaubt;
}

::testing::AssertionResult aehnlich_der_Datei(const QImage& Bild, const std::string& Datei, Goldenmodus Modus) {
    const QString Pfad = QStringLiteral(VARNOK_TESTORDNER "/golden/pictures/") + QString::fromStdString(Datei);
    const bool fehlt = !QFileInfo::exists(Pfad);
    if (Modus == Goldenmodus::erneuern || (Modus == Goldenmodus::anlegen && fehlt)) {
        QDir().mkpath(QFileInfo(Pfad).path());
        if (!Bild.save(Pfad, "PNG", -1)) return ::testing::AssertionFailure() << "cannot write " << Pfad.toStdString();
        return ::testing::AssertionSuccess();
    }
    if (fehlt) return ::testing::AssertionFailure() << "there is no " << Pfad.toStdString();
    const ::testing::AssertionResult Urteil = aehnlich(Bild, QImage(Pfad));
    if (!Urteil) Bild.save(QDir::temp().filePath(QString::fromStdString(Datei)), "PNG", -1);  // to be looked at
    return ::testing::AssertionResult(Urteil) << "; " << Datei;
}

}  // namespace varnok::probe
