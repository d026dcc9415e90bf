#pragma once

#include <QTableWidget>

#include "session/kern/sitzung.h"

namespace varnok {

// The table of irregular applications. It has no editor: digits, point, backspace and delete work on the current
// cell, Enter calculates. Lines can be pasted from a spreadsheet and copied to one.
class Applikationsschema : public QTableWidget {
    Q_OBJECT
public:
    Applikationsschema(Sitzung& Programm, QWidget* parent);
    void zeige();
    void waehle_Zelle(Zelle z);

Q_SIGNALS:
    void getippt();
    void bestaetigt();

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    Zelle aktuelle_Zelle() const;
    bool bearbeite(const QKeyEvent& e);

    Sitzung& Programm_;
};

}  // namespace varnok
