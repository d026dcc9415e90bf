#pragma once

#include <QDialog>
#include <vector>

#include "session/kern/sitzung.h"

class QPlainTextEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace varnok {

// "File, Restore...": the backups by date, what is in them, and how the one in work differs from now.
class Wiederherstellungsfenster : public QDialog {
    Q_OBJECT
public:
    explicit Wiederherstellungsfenster(const Sitzung& Programm, QWidget* parent);

    // What the user ticked, from the top.
    std::vector<Gesichertes> Gewaehlte() const;

private:
    void fuelle();
    void zeige_Unterschiede();
    void zeige_Wahl();
    // The file of a row, null for a date.
    const Gesichertes* von(const QTreeWidgetItem* Zeile) const;

    const Sitzung& Programm_;
    std::vector<Gesichertes> Angebot_;
    QTreeWidget* Liste_;
    QPlainTextEdit* Unterschiede_;
    QPushButton* Herstellen_;
};

}  // namespace varnok
