#pragma once

#include <QApplication>
#include <QFrame>

#include "session/kern/sitzung.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {

// The pointer of a busy program, for the time of its life.
class Wartezeiger {
public:
    Wartezeiger() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Wartezeiger() { QApplication::restoreOverrideCursor(); }
    Wartezeiger(const Wartezeiger&) = delete;
    Wartezeiger& operator=(const Wartezeiger&) = delete;
};

// A frame of the main screen: shows the session and forwards what the user does to it. It knows no other
// frame; the window hears by `gehandelt` that an action is over and lets all frames show what has become of it. By `getippt`
// it hears of a key: the frame has shown that itself, the window adds what tells of stale results and unsaved values.
class Rahmen : public QFrame {
    Q_OBJECT
public:
    Rahmen(const QString& Name, Rahmenart Art, Sitzung& Programm, QWidget* parent);

    // Sets texts, entries, what is visible and enabled from the session; starts nothing.
    virtual void zeige() = 0;
    // Gives the frame its colour, or the system's, as the settings say.
    void faerbe();

Q_SIGNALS:
    void gehandelt();
    // A key was typed into a text or a cell: no command, nothing long.
    void getippt();

protected:
    template <class Handlung>
    void handle(Handlung h) {
        {
            const Wartezeiger warte;
            h();
        }
        Q_EMIT gehandelt();
    }
    // A command of the session, and all frames show what has become of it.
    template <auto Befehl, class... Angaben>
    auto befiehl(Angaben&&... a) {
        decltype(Programm_.fuehre_aus<Befehl>(std::forward<Angaben>(a)...)) Antwort{};
        handle([&] { Antwort = Programm_.fuehre_aus<Befehl>(std::forward<Angaben>(a)...); });
        return Antwort;
    }
    // Before the focus goes over to something that is no command yet. False if the field in work keeps it.
    bool schliesse_Feld_ab(bool mit_Lauf = true);
    template <class Handlung>
    void tippe(Handlung h) {
        h();
        Q_EMIT getippt();
    }
    // Passes on what a part of the frame tells.
    void horche_auf(Rahmen* Teil);
    const Zustand& Stand() const { return Programm_.Stand(); }
    const Eingabe& Vorgabe() const { return Programm_.Stand().Vorgabe; }
    const Ansicht& Sicht() const { return Stand().Sicht; }
    bool farbig() const { return Stand().Einstellung.Farbeinstellung == 0; }

    void paintEvent(QPaintEvent* e) override;
    void changeEvent(QEvent* e) override;

    Sitzung& Programm_;

private:
    Rahmenart Art_;
};

}  // namespace varnok
