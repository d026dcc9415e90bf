#pragma once

#include <QMainWindow>
#include <vector>

#include "session/kern/sitzung.h"

class QAction;
class QStackedWidget;
class QTimer;

namespace varnok {

class Applikationsrahmen;
class Berichtsansicht;
class Bildbefehle;
class Ergebnisbereich;
class Feldsteuerung;
class Fensterfrage;
class Hilfesteuerung;
class Intro;
class Menue;
class Projektmenue;
class Rahmen;
class Schalterrahmen;
class cTooltip;

// The program's one window: the start page, then inputs on the left and results on the right.
class Hauptformular : public QMainWindow {
    Q_OBJECT
public:
    // `Fragen`: the session's way to ask; may be null where something else answers. `Fensterdatei`: file that
    // remembers place and size of the window, none without a name.
    Hauptformular(Sitzung& Programm, Fensterfrage* Fragen, const QString& Fensterdatei = {}, QWidget* parent = nullptr);
    ~Hauptformular() override;

    // Brings everything on the screen in line with the session.
    void zeige();
    // After a key: whether results and files are still those of what is entered. The field has shown the key itself.
    void zeige_Getipptes();
    // Asks for a newer version, once, while the start page is on the screen.
    void suche_beim_Start();
    // Gives the controls their tips, or anew; they stay until the program ends.
    void erstelle_tooltips();

protected:
    void closeEvent(QCloseEvent* e) override;
    // What the control under the mouse can do, and what did not enter a field, in the status line.
    bool event(QEvent* e) override;
    void changeEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    // While the server is waited for, nothing of what the user does counts but Esc and the close box.
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    // The mark of values that no file holds yet.
    void zeige_Titel();
    QWidget* erstelle_Arbeitsflaeche();
    QWidget* erstelle_Eingabespalte();
    QWidget* erstelle_Ergebnisspalte();
    template <class R>
    R* nimm_auf(R* Neuer);
    void verlasse_Startseite();
    void oeffne_Organiser();
    void stelle_wieder_her();
    void nach_Handlung();
    void oeffne_Optionen();
    void nach_Optionen();
    // After a run that found no climate file.
    void oeffne_faelligen_Editor();
    void waehle_Fehlerzelle();
    void sichere_Zwischenstand();
    // So that nothing is cut in the present font, as far as the screen is large enough for that.
    void bestimme_kleinste_Groesse();
    void stelle_Fenster_her();
    void zeige_Info();
    void zeige_Versionsinfo();

    Sitzung& Programm_;
    Fensterfrage* Fragen_;
    QString Fensterdatei_;
    bool schliessen_faellig_ = false;  // the close box was pressed while the server was waited for
    Feldsteuerung* Steuerung_;
    Menue* Menue_;
    QStackedWidget* Blaetter_;
    Intro* Intro_;
    QWidget* Arbeitsflaeche_;
    std::vector<Rahmen*> Rahmen_;
    Applikationsrahmen* Applikation_ = nullptr;
    Ergebnisbereich* Ergebnisse_ = nullptr;
    Schalterrahmen* Schalter_ = nullptr;
    Bildbefehle* Bilder_ = nullptr;
    Berichtsansicht* Bericht_ = nullptr;
    Projektmenue* Projekte_ = nullptr;
    Hilfesteuerung* Hilfe_ = nullptr;
    QAction* Drucken_ = nullptr;    // the report is the only thing to print
    QTimer* Nachlauf_;              // what can wait until an action has been drawn
    cTooltip* Tooltips_ = nullptr;  // none until tips are wanted
};

}  // namespace varnok
