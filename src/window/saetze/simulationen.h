#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <vector>

#include "session/kern/sitzung.h"

class QPushButton;

namespace varnok {

class Kurztext;
class Organiserzeile;
class Projektnamenfeld;

// The simulation organiser: a simulation, its description and its three records, each with the commands on its files.
class Simulationen : public QDialog {
    Q_OBJECT
public:
    // Opens the scenario editor over a window and comes back when it has closed.
    using Szenarioaufruf = std::function<void(QWidget*)>;

    // After `Sitzung::oeffne_Organiser`.
    Simulationen(Sitzung& Programm, Szenarioaufruf oeffne_Szenarioeditor, QWidget* parent);

    // "Done": closes if nothing holds the dialog.
    void accept() override;
    // Close box and Esc.
    void reject() override;

Q_SIGNALS:
    // Something was done: the main screen may show other entries, another description, a cover.
    void gehandelt();

private:
    void erstelle_Zeilen();
    void verbinde_Projektname();
    void zeige();
    void bearbeite_Szenario();

    Sitzung& Programm_;
    Szenarioaufruf oeffne_Szenarioeditor_;
    std::vector<Organiserzeile*> Zeilen_;
    Projektnamenfeld* Projektname_ = nullptr;
    QPushButton* Edit_ = nullptr;
    Kurztext* Status_;
    std::string alter_Status_;  // of the main window, before the dialog was opened
};

}  // namespace varnok
