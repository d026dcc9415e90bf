#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace varnok {

// What can be done with the entry that a list of files shows, beside choosing another: by the right mouse button, by keys
// while the list has the focus, and by a small menu on the menu key.
class Listenbedienung : public QObject {
    Q_OBJECT
public:
    struct Rechte {
        bool anlegen = false;
        bool kopieren = false;
        bool umbenennen = false;
        bool loeschen = false;
    };

    // `darf`: what is possible at the moment.
    Listenbedienung(QWidget& Liste, std::function<Rechte()> darf);

Q_SIGNALS:
    void anlegen();
    void kopieren();
    void umbenennen();
    void loeschen();

protected:
    bool eventFilter(QObject* Quelle, QEvent* e) override;

private:
    using Signal = void (Listenbedienung::*)();
    bool fuehre_aus(bool erlaubt, Signal s);
    bool behandle_Taste(int Taste, Qt::KeyboardModifiers Zusatz);
    void zeige_Menue();

    QWidget& Liste_;
    std::function<Rechte()> darf_;
};

}  // namespace varnok
