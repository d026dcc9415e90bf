#include "window/eingabe/feldsteuerung.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <chrono>

#include "painting/qt_text.h"
#include "window/kern/rahmen.h"

namespace varnok {
namespace {

using namespace std::chrono_literals;

// The button that is held down, null without one: its command comes with the release and accepts the field itself.
const QAbstractButton* gedrueckte_Taste() {
    const auto* Taste = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    return Taste && Taste->isDown() ? Taste : nullptr;
}

// Whether it is the window's field in focus, also while another window is in front.
bool steht_im_Fokus(const QWidget& w) { return w.window()->focusWidget() == &w; }

}  // namespace

Feldsteuerung::Feldsteuerung(Sitzung& Programm, QObject* parent) : QObject(parent), Programm_(Programm) {}

Zahlenfeld* Feldsteuerung::erstelle(const QString& Objektname, QWidget* parent) {
    const int Feld = Feld_mit_Namen(aus_Qt(Objektname));
    Q_ASSERT(Feld >= 0);
    auto* f = new Zahlenfeld(Feld, parent);
    Felder_.push_back(f);
    connect(f, &Zahlenfeld::betreten, this, [this, f] { merke_Eintritt(f); });
    connect(f, &Zahlenfeld::verlassen, this, [this, f] { merke_Austritt(f); });
    connect(f, &Zahlenfeld::textEdited, this, [this, f](const QString& Text) { tippe(f, Text); });
    connect(f, &Zahlenfeld::bestaetigt, this, [this, f] { bestaetige(f); });
    connect(f, &Zahlenfeld::zurueckgenommen, this, [this, f] { nimm_zurueck(f); });
    return f;
}

void Feldsteuerung::zeige() {
    const auto& Eingabefelder = Programm_.zeige<Feldeingabe>();
    for (Zahlenfeld* f : Felder_) {
        f->zeige(f == getippt_ ? f->text() : in_Qt(Eingabefelder.Text(f->Feld())), in_Arbeit(*f));
        if (f->Feld() != aktives_Feld()) f->vergiss_Getipptes();
        f->markiere(Eingabefelder.ausserhalb(f->Feld()));
    }
}

int Feldsteuerung::aktives_Feld() const { return Programm_.zeige<Feldeingabe>().aktives_Feld(); }

// A field that is not accepted yet stays the one in work while the focus is on its way.
bool Feldsteuerung::in_Arbeit(const Zahlenfeld& f) const {
    return aktives_Feld() < 0 ? steht_im_Fokus(f) : f.Feld() == aktives_Feld();
}

void Feldsteuerung::faerbe() {
    for (Zahlenfeld* f : Felder_) f->zeige(f->text(), in_Arbeit(*f));
}

Zahlenfeld* Feldsteuerung::Feld_in_Arbeit() const {
    for (Zahlenfeld* f : Felder_) {
        if (f->Feld() == aktives_Feld()) return f;
    }
    return nullptr;
}

bool Feldsteuerung::gib_Fokus_zurueck() {
    Zahlenfeld* f = Feld_in_Arbeit();
    if (!f) return false;
    f->setFocus(Qt::OtherFocusReason);
    f->selectAll();
    return true;
}

// The field left before is checked first: its check stands ahead in the queue of events.
void Feldsteuerung::merke_Eintritt(Zahlenfeld* f) {
    if (zeigt_) return;
    faerbe();
    QTimer::singleShot(0ms, f, [this, f] {
        if (steht_im_Fokus(*f)) beginne(f);
    });
}

void Feldsteuerung::beginne(Zahlenfeld* f) {
    if (aktives_Feld() == f->Feld()) return;
    if (Zahlenfeld* anderes = Feld_in_Arbeit()) {
        verlasse(anderes);
        if (aktives_Feld() >= 0) return;
    }
    Programm_.fuehre_aus<&Feldeingabe::betrete>(f->Feld());
    faerbe();
}

void Feldsteuerung::merke_Austritt(Zahlenfeld* f) {
    if (zeigt_) return;
    QTimer::singleShot(0ms, f, [this, f] { verlasse(f); });
}

void Feldsteuerung::verlasse(Zahlenfeld* f) {
    if (aktives_Feld() != f->Feld()) {  // accepted meanwhile by a command
        faerbe();
        return;
    }
    // Come back to, or a box of the program is in front: no leaving.
    if (steht_im_Fokus(*f) || QApplication::activeModalWidget()) return;
    if (const QAbstractButton* Taste = gedrueckte_Taste()) return warte_auf(*Taste, f);
    bool angenommen = false;
    {
        const Wartezeiger warte;
        angenommen = Programm_.fuehre_aus<&Feldeingabe::verlasse>(f->Feld());
    }
    Q_EMIT gehandelt();
    if (!angenommen) gib_Fokus_zurueck();
}

// Until the button is released, with or without its command, or gives up the focus.
void Feldsteuerung::warte_auf(const QAbstractButton& Taste, Zahlenfeld* f) {
    constexpr auto danach = static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection);
    connect(
        &Taste, &QAbstractButton::released, f, [this, f] { verlasse(f); }, danach);
    connect(
        qApp, &QApplication::focusChanged, f, [this, f] { verlasse(f); }, danach);
}

void Feldsteuerung::tippe(Zahlenfeld* f, const QString& Text) {
    getippt_ = f;
    beginne(f);  // the first key after a command that accepted the field
    getippt_ = nullptr;
    if (aktives_Feld() != f->Feld()) {  // another field keeps the focus
        zeige();
        return;
    }
    Programm_.fuehre_aus<&Feldeingabe::aendere>(f->Feld(), aus_Qt(Text));
    Q_EMIT getippt();
}

void Feldsteuerung::bestaetige(Zahlenfeld* f) {
    bool angenommen = false;
    {
        const Wartezeiger warte;
        angenommen = Programm_.fuehre_aus<&Feldeingabe::bestaetige>(f->Feld());
    }
    Q_EMIT gehandelt();
    if (!angenommen) {
        gib_Fokus_zurueck();
        return;
    }
    // The next number can be typed at once.
    f->vergiss_Getipptes();
    f->selectAll();
}

void Feldsteuerung::nimm_zurueck(Zahlenfeld* f) {
    Programm_.fuehre_aus<&Feldeingabe::nimm_zurueck>(f->Feld());
    Q_EMIT gehandelt();
    f->selectAll();
}

}  // namespace varnok
