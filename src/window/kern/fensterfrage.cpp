#include "window/kern/fensterfrage.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
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
Knopf harmloser_Knopf(const Frage& f) {
    for (const Knopf k : {Knopf::Abbrechen, Knopf::Nein, Knopf::OK}) {
        if (std::find(f.Knoepfe.begin(), f.Knoepfe.end(), k) != f.Knoepfe.end()) return k;
    }
    return f.Knoepfe.front();
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

}  // namespace

void Fensterfrage::setze_Fenster(QWidget* Fenster, std::function<void()> vorher) {
    Fenster_ = Fenster;
    vorher_ = std::move(vorher);
}

Knopf Fensterfrage::frage(const Frage& f) {
    if (offen_) return harmloser_Knopf(f);
    offen_ = true;
    while (QWidget* Liste = QApplication::activePopupWidget()) {
        if (!Liste->close()) break;
    }
    if (vorher_) vorher_();

    QWidget* Dialog = QApplication::activeModalWidget();  // the box stands over the dialog that it belongs to
    QMessageBox Kasten(Bild_von(f.Zeichen), in_Qt(f.Titel), in_Qt(f.Text), QMessageBox::NoButton, Dialog ? Dialog : Fenster_);
    Kasten.setTextFormat(Qt::PlainText);
    for (const Knopf k : f.Knoepfe) Kasten.addButton(Taste_von(k));
    Kasten.setDefaultButton(Taste_von(f.Knoepfe.front()));
    Kasten.setEscapeButton(Taste_von(harmloser_Knopf(f)));

    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const auto Antwort = static_cast<QMessageBox::StandardButton>(Kasten.exec());
    QApplication::restoreOverrideCursor();
    offen_ = false;

    const auto Treffer =
        std::find_if(Knopfarten.begin(), Knopfarten.end(), [&](const Knopfart& a) { return a.Taste == Antwort; });
    return Treffer == Knopfarten.end() ? harmloser_Knopf(f) : Treffer->Name;
}

}  // namespace varnok
