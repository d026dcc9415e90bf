#pragma once

#include <QTextEdit>

#include "window/kern/rahmen.h"

class QPrinter;

namespace varnok {

// The report over the results: shown while the session has one open, read only, with the ways out of the program.
class Berichtsansicht : public Rahmen {
    Q_OBJECT
public:
    // Covers `Flaeche` and follows its size.
    Berichtsansicht(Sitzung& Programm, QWidget* Flaeche, QWidget* parent);
    void zeige() override;
    // The print dialog; a cancelled one ends quietly. A selection is offered where there is one.
    void drucke();

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void fuelle();
    void schliesse();
    void kopiere();
    void speichere_PDF();
    // Where the program would put a PDF of the report.
    QString PDF_Vorschlag() const;
    // Its paper, margins and the name of the document.
    void richte_Drucker_ein(QPrinter& Drucker) const;
    // The focus went to another control of the window.
    void pruefe_Fokus(const QWidget* alt, const QWidget* neu);

    QWidget* Flaeche_;
    QTextEdit* Bericht_;
    const Bericht* gezeigter_ = nullptr;
};

}  // namespace varnok
