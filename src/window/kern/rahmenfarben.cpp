#include "window/kern/rahmenfarben.h"

#include <QVariant>
#include <QWidget>

#include "records/einstellungen.h"

namespace varnok {
namespace {

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
