#pragma once

// The colours of the window. The frames of the input keep their light colours with dark text also on a dark desktop.

#include <QColor>
#include <QPalette>

class QWidget;

namespace varnok {

struct Einstellungen;

enum class Rahmenart { schlicht, Wirkstoff, Applikation, Szenario };

namespace Farben {

inline constexpr QColor Wirkstoff{192, 255, 192};
inline constexpr QColor Applikation{255, 255, 192};
inline constexpr QColor Szenario{255, 192, 128};
inline constexpr QColor Eingabe{255, 255, 0};       // a field in work
inline constexpr QColor Zweifel{208, 88, 0};        // the mark of a value outside its range
inline constexpr QColor Markierung{192, 255, 255};  // the combination differs from the saved one
inline constexpr QColor Beschreibung{0, 0, 255};
inline constexpr QColor Text{28, 32, 36};
inline constexpr QColor Papier{247, 246, 241};  // of the pages that present the program
inline constexpr QColor Linie{31, 95, 139};     // the blue of the program's own drawings
inline constexpr QColor Fokus_auf_Dunklem{130, 190, 255};

}  // namespace Farben

// The colour of a frame's surface. Not for `schlicht`, which has none of its own.
QColor Rahmenfarbe(Rahmenart Art);

// A light palette around a surface of that colour: white fields, dark text.
QPalette helle_Palette(const QColor& Flaeche);

// The selection of the desktop, darker or lighter where its text would not stand out from it by 4.5 to 1.
QPalette lesbare_Markierung(const QPalette& Schreibtisch);

// Makes a part of a form one that `farbe_einstellen` gives the colour of its kind, with all that stands on it.
void setze_Rahmenart(QWidget& Teil, Rahmenart Art);

// Gives a form and its parts the colours of their kinds, or the desktop's, as `Farbeinstellung` says.
void farbe_einstellen(QWidget& Formular, const Einstellungen& e);

}  // namespace varnok
