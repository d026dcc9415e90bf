#include "window/kern/fensterfrage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QtGui/QCloseEvent>
#include <algorithm>
#include <array>
#include <utility>

#include "painting/qt_text.h"

namespace varnok {
namespace {

struct Knopfart {
    Knopf Name;
    QMessageBox::StandardButton Taste;
};
constexpr std::array<Knopfart, 4> Knopfarten = {{{Knopf::OK, QMessageBox::Ok},
                                                 {Knopf::Abbrechen, QMessageBox::Cancel},
                                                 {Knopf::Ja, QMessageBox::Yes},
                                                 {Knopf::Nein, QMessageBox::No}}};

QMessageBox::StandardButton Taste_von(Knopf k) {
    return std::find_if(Knopfarten.begin(), Knopfarten.end(), [k](const Knopfart& a) { return a.Name == k; })->Taste;
}

// What Esc and the close box of the message mean.
Knopf harmlose_Antwort(const Frage& f) {
    const auto hat = [&f](Knopf k) { return std::find(f.Knoepfe.begin(), f.Knoepfe.end(), k) != f.Knoepfe.end(); };
    if (hat(Knopf::Abbrechen)) return Knopf::Abbrechen;
    return hat(Knopf::Ja) && hat(Knopf::Nein) ? Knopf::nicht_jetzt : f.Knoepfe.front();
}

QMessageBox::Icon Bild_von(Symbol s) {
    switch (s) {
        case Symbol::Ausrufezeichen:
            return QMessageBox::Warning;
        case Symbol::Frage:
            return QMessageBox::Question;
        case Symbol::Hinweis:
            return QMessageBox::Information;
        case Symbol::keines:
            break;
    }
    return QMessageBox::NoIcon;
}

constexpr Qt::KeyboardModifiers Befehlstasten = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;

// A message box that no letter answers without Alt, so that what is typed on does not answer a question that comes up. Esc
// and the close box press none of its buttons.
class Fragekasten : public QMessageBox {
    Q_OBJECT
public:
    Fragekasten(const Frage& f, QWidget* parent)
        : QMessageBox(Bild_von(f.Zeichen), in_Qt(f.Titel), in_Qt(f.Text), NoButton, parent), wartet_(f.ohne_Vorgabe) {
        setTextFormat(Qt::PlainText);
        for (const Knopf k : f.Knoepfe) addButton(Taste_von(k));
        if (wartet_) {
            setFocusPolicy(Qt::StrongFocus);
            setFocus();
            richte_Tasten_ein(false);
        } else {
            setDefaultButton(Taste_von(f.Knoepfe.front()));
        }
    }

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->matches(QKeySequence::Cancel)) {
            reject();
        } else if (e->text().isEmpty() || (e->modifiers() & Befehlstasten) || ist_Enter(*e)) {
            QMessageBox::keyPressEvent(e);
        }
    }
    // The close box answers a question that has no button for "not now", too; a message box alone would refuse.
    void closeEvent(QCloseEvent*) override { reject(); }
    // Tab.
    bool focusNextPrevChild(bool vor) override {
        erwache();
        return QMessageBox::focusNextPrevChild(vor);
    }
    void mousePressEvent(QMouseEvent* e) override {
        erwache();
        QMessageBox::mousePressEvent(e);
    }

private:
    static bool ist_Enter(const QKeyEvent& e) { return e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter; }
    void richte_Tasten_ein(bool waehlbar) {
        for (auto* t : findChildren<QPushButton*>()) {
            t->setAutoDefault(waehlbar);
            t->setFocusPolicy(waehlbar ? Qt::StrongFocus : Qt::NoFocus);
        }
    }
    // From here on the keys Enter and Space have a button that they press.
    void erwache() {
        if (std::exchange(wartet_, false)) richte_Tasten_ein(true);
    }

    bool wartet_;  // no button can be pressed by Enter or Space yet
};

}  // namespace

void Fensterfrage::setze_Fenster(QWidget* Fenster, std::function<void()> vorher) {
    Fenster_ = Fenster;
    vorher_ = std::move(vorher);
}

Knopf Fensterfrage::frage(const Frage& f) {
    if (offen_) return harmlose_Antwort(f);
    offen_ = true;
    while (QWidget* Liste = QApplication::activePopupWidget()) {
        if (!Liste->close()) break;
    }
    if (vorher_) vorher_();

    QWidget* Dialog = QApplication::activeModalWidget();  // the box stands over the dialog that it belongs to
    Fragekasten Kasten(f, Dialog ? Dialog : Fenster_);

    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const auto Antwort = static_cast<QMessageBox::StandardButton>(Kasten.exec());
    QApplication::restoreOverrideCursor();
    offen_ = false;

    const auto Treffer =
        std::find_if(Knopfarten.begin(), Knopfarten.end(), [&](const Knopfart& a) { return a.Taste == Antwort; });
    // Esc and the close box are no button.
    return Treffer == Knopfarten.end() ? harmlose_Antwort(f) : Treffer->Name;
}

}  // namespace varnok

#include "fensterfrage.moc"
