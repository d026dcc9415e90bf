#pragma once

#include <QDialog>

#include "records/einstellungen.h"

class QCheckBox;
class QSpinBox;

namespace varnok {

// Size, resolution and manner of the pictures that are saved, copied or put into reports.
class Bildeinstellungen : public QDialog {
    Q_OBJECT
public:
    Bildeinstellungen(const Bildeinstellung& jetzige, QWidget* parent);
    Bildeinstellung gewaehlte() const;

private:
    QSpinBox* erstelle_Feld(const QString& Name, const QString& Bedeutung, int von, int bis, int Wert);

    QSpinBox* Breite_;
    QSpinBox* Hoehe_;
    QSpinBox* Aufloesung_;
    QCheckBox* Druck_;
};

}  // namespace varnok
