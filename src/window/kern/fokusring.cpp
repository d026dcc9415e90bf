#include "window/kern/fokusring.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>

#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Staerke = 2;

// Upon what stands beside the control, not behind it.
class Ringstil : public QProxyStyle {
public:
    Ringstil() : QProxyStyle(u"Fusion"_s) {}

    int styleHint(StyleHint Frage, const QStyleOption* Art, const QWidget* w, QStyleHintReturn* Antwort) const override {
        return Frage == SH_FocusFrame_AboveWidget ? 1 : QProxyStyle::styleHint(Frage, Art, w, Antwort);
    }
    int pixelMetric(PixelMetric Mass, const QStyleOption* Art, const QWidget* w) const override {
        const bool Rand = Mass == PM_FocusFrameHMargin || Mass == PM_FocusFrameVMargin;
        return Rand ? Staerke : QProxyStyle::pixelMetric(Mass, Art, w);
    }
};

class Ring : public QFocusFrame {
public:
    using QFocusFrame::QFocusFrame;

protected:
    // Its mask leaves the edge alone.
    void paintEvent(QPaintEvent*) override {
        const QWidget* Traeger = widget() ? widget()->parentWidget() : nullptr;
        if (!Traeger) return;
        const bool dunkel = Traeger->palette().color(QPalette::Window).lightness() < 128;
        QPainter(this).fillRect(rect(), dunkel ? Farben::Fokus_auf_Dunklem : Farben::Linie);
    }
};

// What a list opens, and a window itself, is in sight anyway.
bool braucht_Ring(const QWidget* w) { return !w->isWindow() && w->window()->windowType() != Qt::Popup; }

}  // namespace

Fokusring::Fokusring(QObject* parent) : QObject(parent), Stil_(std::make_unique<Ringstil>()) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* neues) { folge(neues); });
}

Fokusring::~Fokusring() { delete Ring_; }

void Fokusring::folge(QWidget* neues) {
    if (!neues && Ring_) Ring_->setWidget(nullptr);  // nothing has it, as in a window behind another program's
    if (!neues || !braucht_Ring(neues)) return;
    if (!Ring_) {
        Ring_ = new Ring;
        Ring_->setStyle(Stil_.get());
    }
    Ring_->setWidget(neues);
}

}  // namespace varnok
