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
    void eingefuegt();
    void bestaetigt();
    // The cell that was typed into is no more the current one, or the table no more in focus.
    void verlassen();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    Zelle aktuelle_Zelle() const;
    void fuege_ein();
    bool bearbeite(const QKeyEvent& e);
    void verlasse_Zelle();

    Sitzung& Programm_;
    bool zeigt_ = false;  // the program fills it
};

}  // namespace varnok
