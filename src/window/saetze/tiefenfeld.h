#pragma once

#include <QObject>

#include "session/saetze/szenarioeditor.h"

class QButtonGroup;
class QGridLayout;

namespace varnok {

class Tiefenliste;

// One depth of the scenario: three options in a row, and the list of "Individual" behind them.
class Tiefenfeld : public QObject {
    Q_OBJECT
public:
    struct Beschriftung {
        QString Titel;
        std::array<QString, 3> Optionen;
    };
    // `Groesse`: "Bodentiefe" or "Plateautiefe", from which the controls have their names. Takes a row of the grid: label,
    // options, list.
    Tiefenfeld(const QString& Groesse, const Beschriftung& b, QWidget* parent, QGridLayout& Raster, int Zeile);

    void zeige(const Tiefenwahl& t);

Q_SIGNALS:
    void Option_gewaehlt(int o);
    // Chosen from the open list; by keys or the wheel on the closed one.
    void Tiefe_gewaehlt(int i);
    void geblaettert(int i);
    void verlassen();

protected:
    bool eventFilter(QObject* Quelle, QEvent* e) override;

private:
    QButtonGroup* Optionen_;
    Tiefenliste* Liste_;
};

// What comes and goes leaves its place free.
void behalte_Platz(QWidget& w);

}  // namespace varnok
