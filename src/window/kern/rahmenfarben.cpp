#include "window/kern/rahmenfarben.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "records/einstellungen.h"

namespace varnok {
namespace {

constexpr double kleinster_Kontrast = 4.5;

// As the eye weighs the three colours, from 0 to 1.
double Helligkeit(const QColor& Farbe) {
    const auto linear = [](double k) { return k <= 0.04045 ? k / 12.92 : std::pow((k + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(Farbe.redF()) + 0.7152 * linear(Farbe.greenF()) + 0.0722 * linear(Farbe.blueF());
}

double Kontrast(const QColor& a, const QColor& b) {
    const auto [dunkler, heller] = std::minmax({Helligkeit(a) + 0.05, Helligkeit(b) + 0.05});
    return heller / dunkler;
}

QColor gemischt(const QColor& a, const QColor& b, double Anteil_b) {
    const auto Mitte = [&](int x, int y) { return static_cast<int>(x + (y - x) * Anteil_b); };
    return {Mitte(a.red(), b.red()), Mitte(a.green(), b.green()), Mitte(a.blue(), b.blue())};
}

constexpr const char* Eigenschaft = "Rahmenart";

void faerbe(QWidget& Teil, bool farbig) {
    const auto Art = static_cast<Rahmenart>(Teil.property(Eigenschaft).toInt());
    if (Art == Rahmenart::schlicht || farbig == Teil.testAttribute(Qt::WA_SetPalette)) return;
    Teil.setPalette(farbig ? helle_Palette(Rahmenfarbe(Art)) : QPalette());
}

}  // namespace

QColor Rahmenfarbe(Rahmenart Art) {
    switch (Art) {
        case Rahmenart::Wirkstoff:
            return Farben::Wirkstoff;
        case Rahmenart::Applikation:
            return Farben::Applikation;
        case Rahmenart::Szenario:
            return Farben::Szenario;
        case Rahmenart::schlicht:
            break;
    }
    return Qt::white;
}

// What stays as the desktop has it is not set, so it goes on following the desktop.
QPalette lesbare_Markierung(const QPalette& Schreibtisch) {
    QPalette Neues;
    for (const auto Gruppe : {QPalette::Active, QPalette::Inactive}) {
        const QColor Schrift = Schreibtisch.color(Gruppe, QPalette::HighlightedText);
        QColor Grund = Schreibtisch.color(Gruppe, QPalette::Highlight);
        const bool helle_Schrift = Helligkeit(Schrift) > 0.5;
        for (int i = 0; i < 40 && Kontrast(Schrift, Grund) < kleinster_Kontrast; ++i)
            Grund = helle_Schrift ? Grund.darker(105) : Grund.lighter(105);
        Neues.setColor(Gruppe, QPalette::Highlight, Grund);
    }
    return Neues;
}

QPalette helle_Palette(const QColor& Flaeche) {
    const QColor Taste = gemischt(Flaeche, Qt::white, 0.6);
    const QColor blass = gemischt(Farben::Text, Flaeche, 0.45);
    QPalette p(Farben::Text, Taste, Taste.lighter(110), gemischt(Flaeche, Qt::black, 0.4), gemischt(Flaeche, Qt::black, 0.22),
               Farben::Text, Qt::white, Qt::white, Flaeche);
    p.setColor(QPalette::AlternateBase, gemischt(Flaeche, Qt::white, 0.7));
    p.setColor(QPalette::Midlight, gemischt(Flaeche, Qt::white, 0.3));
    p.setColor(QPalette::Shadow, gemischt(Flaeche, Qt::black, 0.7));
    p.setColor(QPalette::Highlight, Farben::Linie);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, blass);
    p.setColor(QPalette::ToolTipBase, QColor(255, 255, 240));
    p.setColor(QPalette::ToolTipText, Farben::Text);
    for (const auto Rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, Rolle, blass);
    return p;
}

void setze_Rahmenart(QWidget& Teil, Rahmenart Art) { Teil.setProperty(Eigenschaft, static_cast<int>(Art)); }

void farbe_einstellen(QWidget& Formular, const Einstellungen& e) {
    const bool farbig = e.Farbeinstellung == 0;
    faerbe(Formular, farbig);
    for (QWidget* Teil : Formular.findChildren<QWidget*>()) faerbe(*Teil, farbig);
}

}  // namespace varnok
