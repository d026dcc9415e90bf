#pragma once

#include <QDialog>
#include <vector>

#include "base/bemerkung.h"

namespace varnok {

// The remarks about the files that were read, one to a row, to read and to copy. Modal; "Close", Enter and Esc close it.
class Bemerkungsfenster : public QDialog {
    Q_OBJECT
public:
    Bemerkungsfenster(const std::vector<Bemerkung>& Bemerkungen, char Dezimalzeichen, QWidget* parent);
};

// "3 remarks"
QString Bemerkungszahl(std::size_t Anzahl);

}  // namespace varnok
