#include "window/programm/tooltips.h"

#include <QAbstractItemView>
#include <QHash>
#include <QLabel>
#include <QTabBar>
#include <QWidget>

#include "extras/tooltiptabelle.h"
#include "painting/qt_text.h"
#include "window/ergebnis/diagrammflaeche.h"
#include "window/ergebnis/flaechenrahmen.h"
#include "window/kern/ctooltip.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Hoechstbreite = 240;    // pixels
constexpr int Anzeigedauer = 20'000;  // milliseconds
constexpr int Rand = 3;               // pixels around the text

bool steht_auf_Diagramm(const QWidget* w) {
    for (w = w->parentWidget(); w; w = w->parentWidget()) {
        if (qobject_cast<const Diagrammflaeche*>(w)) return true;
    }
    return false;
}

// Not a piece of another control, which speaks for it. On a diagram the mouse works through labels and lines to what they
// stand on.
bool ist_eigenes_Teil(const QWidget* w) {
    if (steht_auf_Diagramm(w)) return qobject_cast<const Flaechenrahmen*>(w) || qobject_cast<const QAbstractItemView*>(w);
    if (qobject_cast<const QLabel*>(w)) return true;
    if (qobject_cast<const QTabBar*>(w)) return false;
    const QString Name = w->objectName();
    return !Name.isEmpty() && !Name.startsWith("qt_"_L1);
}

}  // namespace

void erstelle_tooltips(cTooltip& Tooltip, QWidget& Formular, const std::vector<std::string>& Tips) {
    Tooltip.Create(Formular);
    Tooltip.MaxTipWidth(Hoechstbreite);
    Tooltip.DelayTime(cTooltip::Anzeige, Anzeigedauer);
    for (const auto Seite : {cTooltip::links, cTooltip::oben, cTooltip::rechts, cTooltip::unten}) Tooltip.Margin(Seite, Rand);
    QHash<QString, QWidget*> Teile;
    for (QWidget* w : Formular.findChildren<QWidget*>()) {
        if (w->window() != Formular.window() || !ist_eigenes_Teil(w)) continue;
        Tooltip.AddTool(*w);
        Teile.insert(w->objectName(), w);
    }
    for (const Tooltipziel& z : Tooltiptabelle()) {
        if (z.Tip > Tips.size()) break;
        for (const std::string& Name : z.Objektnamen) {
            if (QWidget* w = Teile.value(in_Qt(Name))) Tooltip.ToolText(*w, in_Qt(Tips[z.Tip - 1]));
        }
    }
    for (Diagrammflaeche* d : Formular.findChildren<Diagrammflaeche*>()) Tooltip.weiche_der_Maus(*d);
}

}  // namespace varnok
