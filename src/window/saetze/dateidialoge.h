#pragma once

#include <QDialog>

#include "session/kern/sitzung.h"

class QListWidget;
class QPushButton;

namespace varnok {

class Ordnerwahl;
class Textfeld;

// What both file dialogs have: a folder, the files in it, and buttons. No command of the program opens them.
class Dateidialog : public QDialog {
    Q_OBJECT
protected:
    // `Name` of the button that does what the dialog is for.
    Dateidialog(Sitzung& Programm, const QString& Endung, const QString& Name, const QString& Aufschrift, QWidget* parent);

    virtual void zeige_Wahl() = 0;
    QString gewaehlte_Datei() const;
    bool darf_loeschen() const;

    Sitzung& Programm_;
    Ordnerwahl* Verzeichnis_;
    QListWidget* Dateien_;
    QPushButton* Handlung_;
    QPushButton* Loeschen_;

private:
    void fuelle_Dateien();
    void lies_Dateien();
    void loesche();

    QString Endung_;
};

class Eingabedaten_Laden : public Dateidialog {
    Q_OBJECT
public:
    Eingabedaten_Laden(Sitzung& Programm, QWidget* parent);
    void accept() override;

protected:
    void zeige_Wahl() override;
};

class Eingabedaten_Speichern_unter : public Dateidialog {
    Q_OBJECT
public:
    Eingabedaten_Speichern_unter(Sitzung& Programm, QWidget* parent);
    void accept() override;

protected:
    void zeige_Wahl() override;

private:
    Textfeld* Dateiname_;
};

}  // namespace varnok
