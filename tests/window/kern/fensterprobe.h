#pragma once

#include <QMessageBox>
#include <QTemporaryDir>
#include <QWidget>
#include <functional>
#include <memory>

#include "window/kern/fensterfrage.h"
#include "window/programm/hauptformular.h"

namespace varnok {

// The window on a copy of the shipped data, and what a user does in it.
class Fensterprobe {
public:
    // `Fragen`: answers the questions instead of a user at the boxes. `Projekt`: what is done to the copy before the start.
    explicit Fensterprobe(Rueckfrage* Fragen = nullptr, const std::function<void(const QString&)>& Projekt = {},
                          const Aktualisierungswelt& Update = {},
                          const std::function<bool(const std::string&)>& weiteres_Fenster = {});

    Sitzung& Programm() { return *Programm_; }
    Hauptformular& Fenster() { return *Fenster_; }
    // Leaves the start page.
    void starte();
    // After a dialog the window is not active by itself where no window manager runs.
    void aktiviere();

    // The control of that object name; the test ends without it.
    template <class W>
    W* Teil(const char* Name) const {
        W* w = Fenster_->findChild<W*>(QString::fromLatin1(Name));
        if (!w) qFatal("no control %s", Name);
        return w;
    }
    bool sichtbar(const char* Name) const { return Teil<QWidget>(Name)->isVisible(); }
    // The same for a control that the window need not have.
    bool gibt_es_sichtbar(const QString& Name) const;
    QString Pfad(const QString& Datei) const { return Ordner_.filePath(Datei); }
    QByteArray Inhalt(const QString& Datei) const;
    QString Zelle(const char* Tafel, int Zeile, int Spalte) const;

    void klicke(const char* Knopfname);
    // Press, a pause, release, as the desktop tells them.
    void druecke_langsam(const char* Teilname);
    void waehle(const char* Option);
    void waehle_Eintrag(const char* Liste, int Position);
    void waehle_Simulation(const char* Name);
    // Clicks into the field and replaces its text; it keeps the focus.
    void tippe(const char* Feld, const char* Text);
    // Clicks on a page of a tab strip.
    void blaettere(const char* Leiste, int Seite);
    void druecke(const char* Teilname, Qt::Key Taste, Qt::KeyboardModifiers Zusatz = {});

    // While `Handlung` runs, the message box that comes is answered with its default button. Gives its text, empty if none
    // came; more than one box ends the test.
    QString Meldung_bei(const std::function<void()>& Handlung);
    // The same for any number of boxes, each answered with `Antwort` if it has that button. Gives title, a colon and text.
    QStringList Kaesten_bei(const std::function<void()>& Handlung, QMessageBox::StandardButton Antwort);

private:
    QTemporaryDir Ordner_;
    Fensterfrage Fragen_;
    std::unique_ptr<Sitzung> Programm_;
    std::unique_ptr<Hauptformular> Fenster_;
};

}  // namespace varnok
