#include "window/kern/zwei_gruppen.h"

#include <algorithm>

namespace varnok {
namespace {

constexpr int Luecke = 14;  // beside the line
constexpr int Zeilenabstand = 4;

}  // namespace

// A group that goes takes itself out of this layout: each piece is out before it is deleted.
Zwei_Gruppen::~Zwei_Gruppen() {
    while (count() > 0) delete takeAt(0);
}

void Zwei_Gruppen::addItem(QLayoutItem* Stueck) {
    if (QLayout* Gruppe = Stueck->layout()) addChildLayout(Gruppe);
    Stuecke_.emplace_back(Stueck);
}

QLayoutItem* Zwei_Gruppen::itemAt(int i) const {
    return i >= 0 && i < count() ? Stuecke_[static_cast<std::size_t>(i)].get() : nullptr;
}

QLayoutItem* Zwei_Gruppen::takeAt(int i) {
    if (i < 0 || i >= count()) return nullptr;
    const auto Stelle = Stuecke_.begin() + i;
    QLayoutItem* Stueck = Stelle->release();
    Stuecke_.erase(Stelle);
    return Stueck;
}

int Zwei_Gruppen::volle_Breite() const {
    return Groesse(links).width() + Luecke + Groesse(Strich).width() + Luecke + Groesse(rechts).width();
}

int Zwei_Gruppen::heightForWidth(int Breite) const {
    const int a = Groesse(links).height();
    const int b = Groesse(rechts).height();
    return Breite >= volle_Breite() ? std::max(a, b) : a + Zeilenabstand + b;
}

QSize Zwei_Gruppen::minimumSize() const {
    return {std::max(Groesse(links).width(), Groesse(rechts).width()), heightForWidth(volle_Breite())};
}

void Zwei_Gruppen::setGeometry(const QRect& Platz) {
    QLayout::setGeometry(Platz);
    const auto Zeile = [&](Teil t, int x, int y) { setze(t, QRect(QPoint(x, y), Groesse(t))); };
    const int x = Platz.left();
    const int y = Platz.top();
    Zeile(links, x, y);
    if (Platz.width() < volle_Breite()) {
        setze(Strich, QRect(x, y, 0, 0));
        Zeile(rechts, x, y + Groesse(links).height() + Zeilenabstand);
        return;
    }
    const int x_Strich = x + Groesse(links).width() + Luecke;
    setze(Strich, QRect(x_Strich, y, Groesse(Strich).width(), Platz.height()));
    Zeile(rechts, x_Strich + Groesse(Strich).width() + Luecke, y);
}

}  // namespace varnok
