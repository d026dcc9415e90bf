#include "window/kern/ctooltip.h"

#include <QApplication>
#include <QLabel>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include "painting/qt_text.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// The rows that a line takes within a width, broken at blanks where there are any.
QStringList umbrochen(const QString& Zeile, const QFont& Schrift, int Breite) {
    if (Breite < 0 || Zeile.isEmpty()) return {Zeile};
    QTextLayout Umbruch(Zeile, Schrift);
    QTextOption Art;
    Art.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Umbruch.setTextOption(Art);
    QStringList Reihen;
    Umbruch.beginLayout();
    for (QTextLine l = Umbruch.createLine(); l.isValid(); l = Umbruch.createLine()) {
        l.setLineWidth(Breite);
        Reihen << Zeile.mid(l.textStart(), l.textLength()).trimmed();
    }
    Umbruch.endLayout();
    return Reihen;
}

// Rich text that shows the rows as they are.
QString als_HTML(const QStringList& Reihen, const QMargins& Rand) {
    QStringList sicher;
    for (const QString& r : Reihen) sicher << r.toHtmlEscaped();
    const QString Text = u"<p style='white-space:pre'>"_s + sicher.join(u"<br>"_s) + u"</p>"_s;
    if (Rand.isNull()) return Text;
    // A paragraph at the edge of a text drops its own margins; a cell keeps them.
    const auto Seite = [](const char16_t* Name, int Pixel) {
        return u"padding-"_s + QString::fromUtf16(Name) + u':' + in_Qt(Pixel) + u"px;"_s;
    };
    return u"<table cellspacing='0' cellpadding='0'><tr><td style='"_s + Seite(u"left", Rand.left()) + Seite(u"top", Rand.top()) +
           Seite(u"right", Rand.right()) + Seite(u"bottom", Rand.bottom()) + u"'>"_s + Text + u"</td></tr></table>"_s;
}

void faerbe_Tips(QPalette::ColorRole Rolle, const QColor& Farbe) {
    QPalette p = QToolTip::palette();
    p.setColor(Rolle, Farbe);
    QToolTip::setPalette(p);
}

}  // namespace

cTooltip::cTooltip(QObject* parent) : QObject(parent) { setObjectName(u"Tooltips"_s); }

cTooltip::~cTooltip() {
    for (auto t = Texte_.keyBegin(); t != Texte_.keyEnd(); ++t) setze(*static_cast<QWidget*>(*t), {});
}

bool cTooltip::Create(QWidget& Formular) {
    if (!Formular_) Formular_ = &Formular;
    return true;
}

bool cTooltip::AddTool(QWidget& Teil, const QString& Text) {
    if (!Formular_ || !Formular_->isAncestorOf(&Teil) || Texte_.contains(&Teil)) return false;
    Teil.installEventFilter(this);
    if (qobject_cast<QLabel*>(&Teil)) return false;
    Texte_.insert(&Teil, Text);
    connect(&Teil, &QObject::destroyed, this, &cTooltip::vergiss);
    setze(Teil, Text);
    return true;
}

bool cTooltip::RemoveTool(QWidget& Teil) {
    if (!Texte_.contains(&Teil)) return false;
    disconnect(&Teil, &QObject::destroyed, this, &cTooltip::vergiss);
    Teil.removeEventFilter(this);
    setze(Teil, {});
    vergiss(&Teil);
    return true;
}

QString cTooltip::ToolText(QWidget& Teil) const { return Texte_.value(&Teil); }

bool cTooltip::ToolText(QWidget& Teil, const QString& Text) {
    const auto t = Texte_.find(&Teil);
    if (t == Texte_.end()) return false;
    *t = Text;
    setze(Teil, Text);
    return true;
}

QColor cTooltip::BackColor() const { return QToolTip::palette().color(QPalette::ToolTipBase); }
void cTooltip::BackColor(const QColor& Farbe) { faerbe_Tips(QPalette::ToolTipBase, Farbe); }
QColor cTooltip::ForeColor() const { return QToolTip::palette().color(QPalette::ToolTipText); }
void cTooltip::ForeColor(const QColor& Farbe) { faerbe_Tips(QPalette::ToolTipText, Farbe); }

int cTooltip::DelayTime(int Art) const {
    return (Art & 3) == Anzeige ? Anzeigedauer_ : QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay);
}

bool cTooltip::DelayTime(int Art, int Millisekunden) {
    if ((Art & 3) != Anzeige) return false;
    Anzeigedauer_ = Millisekunden;
    setze_alle();
    return true;
}

int cTooltip::Margin(Rand Seite) const {
    const int Seiten[] = {Rand_.left(), Rand_.top(), Rand_.right(), Rand_.bottom()};
    return Seiten[Seite];
}

void cTooltip::Margin(Rand Seite, int Pixel) {
    constexpr void (QMargins::*Setzer[])(int) = {&QMargins::setLeft, &QMargins::setTop, &QMargins::setRight,
                                                 &QMargins::setBottom};
    (Rand_.*Setzer[Seite])(Pixel);
    setze_alle();
}

void cTooltip::MaxTipWidth(int Pixel) {
    MaxTipWidth_ = Pixel;
    setze_alle();
}

void cTooltip::weiche_der_Maus(QWidget& Teil) {
    if (Texte_.contains(&Teil)) weichend_.insert(&Teil, false);
}

void cTooltip::setze(QWidget& Teil, const QString& Text) const {
    QStringList Reihen;
    if (!Text.isEmpty()) {
        for (const QString& Zeile : Text.split(u'\n')) Reihen << umbrochen(Zeile, QToolTip::font(), MaxTipWidth_);
    }
    Teil.setToolTip(Reihen.isEmpty() ? QString() : als_HTML(Reihen, Rand_));
    Teil.setToolTipDuration(Anzeigedauer_);
}

void cTooltip::setze_alle() {
    for (auto t = Texte_.cbegin(); t != Texte_.cend(); ++t) setze(*static_cast<QWidget*>(t.key()), t.value());
}

void cTooltip::vergiss(QObject* Teil) {
    Texte_.remove(Teil);
    weichend_.remove(Teil);
}

// True: the event ends here.
bool cTooltip::behandle(QWidget& Teil, const QHelpEvent& e) {
    if (Teil.toolTip().isEmpty()) {
        QToolTip::hideText();
        return true;
    }
    const auto w = weichend_.find(&Teil);
    if (w == weichend_.end()) return false;
    if (*w) return true;
    *w = true;
    const QPoint Ort = Teil.mapFromGlobal(e.globalPos());
    QToolTip::showText(e.globalPos(), Teil.toolTip(), &Teil, QRect(Ort, QSize(1, 1)), Anzeigedauer_);
    return true;
}

bool cTooltip::eventFilter(QObject* Objekt, QEvent* e) {
    if (e->type() == QEvent::ToolTip && behandle(*static_cast<QWidget*>(Objekt), *static_cast<QHelpEvent*>(e))) {
        e->accept();
        return true;
    }
    if (e->type() == QEvent::Leave && weichend_.contains(Objekt)) weichend_.insert(Objekt, false);
    return QObject::eventFilter(Objekt, e);
}

}  // namespace varnok
