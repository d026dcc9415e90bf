#include "window/saetze/listenbedienung.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMouseEvent>
#include <QWidget>
#include <array>
#include <utility>

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

struct Menuezeile {
    const char16_t* Name;
    const char16_t* Aufschrift;
    bool Listenbedienung::Rechte::*Recht;
    void (Listenbedienung::*Befehl)();
    const char16_t* Taste;
};
constexpr std::array<Menuezeile, 4> Zeilen = {{
    {u"Neu", u"&New", &Listenbedienung::Rechte::anlegen, &Listenbedienung::anlegen, u""},
    {u"Kopieren", u"&Copy", &Listenbedienung::Rechte::kopieren, &Listenbedienung::kopieren, u"Ctrl+D"},
    {u"Umbenennen", u"&Rename", &Listenbedienung::Rechte::umbenennen, &Listenbedienung::umbenennen, u"F2"},
    {u"Loeschen", u"&Delete", &Listenbedienung::Rechte::loeschen, &Listenbedienung::loeschen, u"Ctrl+Del"},
}};

bool ist_Menuetaste(int Taste, Qt::KeyboardModifiers Zusatz) {
    return Taste == Qt::Key_Menu || (Taste == Qt::Key_F10 && Zusatz == Qt::ShiftModifier);
}

}  // namespace

Listenbedienung::Listenbedienung(QWidget& Liste, std::function<Rechte()> darf)
    : QObject(&Liste), Liste_(Liste), darf_(std::move(darf)) {
    Liste.installEventFilter(this);
}

bool Listenbedienung::eventFilter(QObject* Quelle, QEvent* e) {
    switch (e->type()) {
        case QEvent::MouseButtonPress:
            if (static_cast<QMouseEvent*>(e)->button() != Qt::RightButton) break;
            fuehre_aus(darf_().umbenennen, &Listenbedienung::umbenennen);
            return true;
        case QEvent::KeyPress: {
            const auto* Taste = static_cast<QKeyEvent*>(e);
            if (behandle_Taste(Taste->key(), Taste->modifiers() & ~Qt::KeypadModifier)) return true;
            break;
        }
        case QEvent::ContextMenu:
            return true;  // the right button renames; the menu key is handled as a key
        default:
            break;
    }
    return QObject::eventFilter(Quelle, e);
}

bool Listenbedienung::fuehre_aus(bool erlaubt, Signal s) {
    if (erlaubt) Q_EMIT(this->*s)();
    return true;
}

bool Listenbedienung::behandle_Taste(int Taste, Qt::KeyboardModifiers Zusatz) {
    if (ist_Menuetaste(Taste, Zusatz)) {
        zeige_Menue();
        return true;
    }
    const QKeySequence gedrueckt(static_cast<int>(Zusatz) | Taste);
    const Rechte erlaubt = darf_();
    for (const Menuezeile& z : Zeilen) {
        const QKeySequence eigene(QString::fromUtf16(z.Taste));
        if (!eigene.isEmpty() && eigene == gedrueckt) return fuehre_aus(erlaubt.*z.Recht, z.Befehl);
    }
    return false;
}

void Listenbedienung::zeige_Menue() {
    auto* Menue = new QMenu(&Liste_);
    Menue->setObjectName(u"Satzmenue"_s);
    Menue->setAttribute(Qt::WA_DeleteOnClose);
    const Rechte erlaubt = darf_();
    for (const Menuezeile& z : Zeilen) {
        QAction* Eintrag = Menue->addAction(QString::fromUtf16(z.Aufschrift));
        Eintrag->setObjectName(QString::fromUtf16(z.Name));
        // Shown beside the entry; the key itself is the list's.
        Eintrag->setShortcut(QKeySequence(QString::fromUtf16(z.Taste)));
        Eintrag->setShortcutContext(Qt::WidgetShortcut);
        Eintrag->setEnabled(erlaubt.*z.Recht);
        // After the menu is gone: the command may ask or take the focus.
        connect(
            Eintrag, &QAction::triggered, this,
            [this, Befehl = z.Befehl] {
                Q_EMIT(this->*Befehl)
                ();
            },
            Qt::QueuedConnection);
    }
    Menue->popup(Liste_.mapToGlobal(Liste_.rect().bottomLeft()));
}

}  // namespace varnok
