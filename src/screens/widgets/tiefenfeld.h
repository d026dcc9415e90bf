#pragma once

#include <QObject>

#include "screens/handlers/szenarioeditor.h"

class QButtonGroup;
class QGridLayout;

namespace varnok {

class Auswahlliste;

// One depth of the scenario: three options in a row, and the list of "Individual" behind them.
class Tiefenfeld : public QObject {
    Q_OBJECT
public:
    struct Beschriftung {
        QString Titel;
        std::array<QString, 3> Optionen;
    };
    // `Groesse`: "Bodentiefe" or "Plateautiefe", from which the controls have their names. Takes a row of the grid.
    Tiefenfeld(const QString& Groesse, const Beschriftung& b, QWidget* parent, QGridLayout& Raster, int Zeile);

    void zeige(const Tiefenwahl& t);

Q_SIGNALS:
    void Option_gewaehlt(int o);
    void Tiefe_gewaehlt(int i);
    void verlassen();

protected:
    bool eventFilter(QObject* Quelle, QEvent* e) override;

private:
    QButtonGroup* Optionen_;
    Auswahlliste* Liste_;
};

}  // namespace varnok
