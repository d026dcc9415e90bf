#include "window/kern/bausteine.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QTextDocument>
#include <QValidator>
#include <QtGui/QWheelEvent>
#include <algorithm>
#include <cmath>

#include "painting/qt_text.h"
#include "records/satztext.h"
#include "window/kern/rahmenfarben.h"
#include "window/kern/vorleser.h"

namespace varnok {

const QEvent::Type Zeichenereignis::Art = static_cast<QEvent::Type>(QEvent::registerEventType());

using namespace Qt::StringLiterals;

int Ziffern(const QWidget& w, double Anzahl) {
    return static_cast<int>(std::lround(w.fontMetrics().horizontalAdvance(u'0') * Anzahl));
}

int Zeilenhoehe(const QWidget& w) { return w.fontMetrics().height() + 10; }

QString als_Tip(const QString& Text) {
    if (!Qt::mightBeRichText(Text)) return Text;
    return u"<p style='white-space:pre-wrap'>"_s + Text.toHtmlEscaped() + u"</p>"_s;
}

Schaltflaeche::Schaltflaeche(const QString& Name, const QString& Aufschrift, QWidget* parent) : QPushButton(Aufschrift, parent) {
    setObjectName(Name);
    setAccessibleName(Aufschrift);
    setAutoDefault(false);
}

QSize Schaltflaeche::sizeHint() const {
    const int Bild = icon().isNull() ? 0 : iconSize().width() + 4;
    return {fontMetrics().horizontalAdvance(text()) + Bild + 20, Zeilenhoehe(*this)};
}

void Schaltflaeche::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        e->ignore();
        return;
    }
    QPushButton::keyPressEvent(e);
}

Auswahlliste::Auswahlliste(const QString& Name, int Zeichen, QWidget* parent) : QComboBox(parent) {
    setObjectName(Name);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(Zeichen);
    setMaxVisibleItems(20);
    lies_Listen_vor();
}

void Auswahlliste::zeige(const QStringList& Eintraege, int Position) {
    const QSignalBlocker still(this);
    QStringList bisher;
    for (int i = 0; i < count(); ++i) bisher << itemText(i);
    if (bisher != Eintraege) {
        clear();
        addItems(Eintraege);
    }
    if (currentIndex() != Position) setCurrentIndex(Position);
}

void Auswahlliste::zeige(const std::vector<std::string>& Eintraege, int Position) {
    const std::vector<std::string_view> Texte(Eintraege.begin(), Eintraege.end());
    zeige(Texte, Position);
}

void Auswahlliste::zeige(std::span<const std::string_view> Eintraege, int Position) {
    QStringList Texte;
    for (const std::string_view e : Eintraege) Texte << in_Qt(e);
    zeige(Texte, Position);
}

void Auswahlliste::faerbe(const QColor& Farbe) {
    const bool gefaerbt = testAttribute(Qt::WA_SetPalette);
    if (!Farbe.isValid()) {
        if (gefaerbt) setPalette(QPalette());
        return;
    }
    QPalette p = helle_Palette(Farbe);
    p.setColor(QPalette::Button, Farbe);
    if (!gefaerbt || palette().color(QPalette::Button) != Farbe) setPalette(p);
}

void Auswahlliste::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionComboBox Art;
    initStyleOption(&Art);
    p.drawComplexControl(QStyle::CC_ComboBox, Art);
    const int Platz = style()->subControlRect(QStyle::CC_ComboBox, &Art, QStyle::SC_ComboBoxEditField, this).width();
    Art.currentText = fontMetrics().elidedText(Art.currentText, Qt::ElideRight, Platz - 2);
    p.drawControl(QStyle::CE_ComboBoxLabel, Art);
}

void Auswahlliste::wheelEvent(QWheelEvent* e) { e->ignore(); }

// Takes out of a text what it must not hold, wherever the text came from: keys, clipboard, a drop, an input method.
class Textfeld::Zeichenfilter : public QValidator {
public:
    explicit Zeichenfilter(Textfeld& Feld) : QValidator(&Feld), Feld_(Feld) {}

    State validate(QString& Text, int& Stelle) const override {
        if (Feld_.zeigt_) return Acceptable;
        const Satzfaehiges s = nur_Satzfaehiges(aus_Qt(Text));
        const QString neu = in_Qt(s.Text);
        if (neu == Text) return Acceptable;
        Stelle = static_cast<int>(in_Qt(nur_Satzfaehiges(aus_Qt(Text.left(Stelle))).Text).size());
        Text = neu;
        melde(in_Qt(Meldung_ueber(s)));
        return Acceptable;
    }

private:
    // When the key is done with.
    void melde(const QString& Meldung) const {
        if (Meldung.isEmpty()) return;
        for (QWidget* w = &Feld_; w; w = w->parentWidget()) {
            if (qobject_cast<QMainWindow*>(w)) return QCoreApplication::postEvent(w, new Zeichenereignis(Meldung));
        }
    }

    Textfeld& Feld_;
};

Textfeld::Textfeld(const QString& Name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(Name);
    setValidator(new Zeichenfilter(*this));
}

void Textfeld::zeige(const QString& Text) {
    if (text() == Text) return;
    zeigt_ = true;
    setText(Text);
    zeigt_ = false;
    setCursorPosition(0);
}

void Textfeld::vergiss_Getipptes() {
    if (!isUndoAvailable() && !isRedoAvailable()) return;
    const int Stelle = cursorPosition(), Anfang = selectionStart();
    const auto Laenge = static_cast<int>(selectedText().size());
    zeigt_ = true;
    setText(text());
    zeigt_ = false;
    setCursorPosition(Stelle);
    if (Laenge > 0) setSelection(Anfang, Laenge);
}

bool Textfeld::event(QEvent* e) {
    if (e->type() == QEvent::ShortcutOverride) {
        const auto* Taste = static_cast<QKeyEvent*>(e);
        const bool nichts_zurueck = Taste->matches(QKeySequence::Undo) && !isUndoAvailable();
        const bool nichts_vor = Taste->matches(QKeySequence::Redo) && !isRedoAvailable();
        if (nichts_zurueck || nichts_vor) {
            e->ignore();
            return false;
        }
    }
    return QLineEdit::event(e);
}

Kurztext::Kurztext(const QString& Name, QWidget* parent) : QLabel(parent) {
    setObjectName(Name);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Kurztext::minimumSizeHint() const { return {Ziffern(*this, 4), QLabel::minimumSizeHint().height()}; }
QSize Kurztext::sizeHint() const { return {Ziffern(*this, 12), fontMetrics().height()}; }

void Kurztext::paintEvent(QPaintEvent*) {
    const QRect Platz = contentsRect();
    const QString kurz = fontMetrics().elidedText(text(), Qt::ElideRight, Platz.width());
    setToolTip(kurz == text() ? QString() : als_Tip(text()));
    QPainter p(this);
    style()->drawItemText(&p, Platz, static_cast<int>(alignment()), palette(), isEnabled(), kurz, foregroundRole());
}

void Reiterleiste::mousePressEvent(QMouseEvent* e) {
    const int i = tabAt(e->position().toPoint());
    if (i >= 0 && i != currentIndex() && darf_wechseln && !darf_wechseln()) return;
    QTabBar::mousePressEvent(e);
}

void Reiterleiste::keyPressEvent(QKeyEvent* e) {
    const bool wechselt = e->key() == Qt::Key_Left || e->key() == Qt::Key_Right;
    if (wechselt && darf_wechseln && !darf_wechseln()) return;
    QTabBar::keyPressEvent(e);
}

void Reiterleiste::wheelEvent(QWheelEvent* e) { e->ignore(); }

Reiter::Reiter(const QString& Name, const QString& Bedeutung, QWidget* parent)
    : QTabWidget(parent), Leiste_(new Reiterleiste(this)) {
    setObjectName(Name);
    setAccessibleName(Bedeutung);
    setTabBar(Leiste_);
    Leiste_->setObjectName(Name + "_Leiste"_L1);
    Leiste_->setAccessibleName(Bedeutung);
    Leiste_->setExpanding(false);
}

void Reiter::keyPressEvent(QKeyEvent* e) {
    const bool blaettert = (e->key() == Qt::Key_Tab || e->key() == Qt::Key_Backtab) && (e->modifiers() & Qt::ControlModifier);
    if (blaettert && Leiste_->darf_wechseln && !Leiste_->darf_wechseln()) {
        e->accept();
        return;
    }
    QTabWidget::keyPressEvent(e);
}

void Reiter::zeige_Seite(int i) {
    const QSignalBlocker still(this);
    if (currentIndex() != i) setCurrentIndex(i);
}

void zeige_Option(QButtonGroup& Optionen, int o) {
    Optionen.button(o)->setChecked(true);
    for (QAbstractButton* b : Optionen.buttons()) b->setFocusPolicy(b->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

QString ohne_Doppelpunkt(const QString& Aufschrift) {
    const QString Text = Aufschrift.trimmed();
    return Text.endsWith(u':') ? Text.chopped(1) : Text;
}

Raster::Raster(QWidget* parent, int Einzug) : QGridLayout(parent), Einzug_(Einzug) {
    setContentsMargins(0, 0, 0, 0);
    setHorizontalSpacing(5);
    setVerticalSpacing(6);
    setColumnStretch(Rest, 1);
    richte_aus();
}

void Raster::richte_aus() {
    const QWidget* w = parentWidget();
    if (!w) return;
    const int Schilder = w->fontMetrics().horizontalAdvance(u"Crop rotation: "_s);
    setColumnMinimumWidth(Schild, Schilder - Einzug_);
    setColumnMinimumWidth(Einheit, w->fontMetrics().horizontalAdvance(u"g/ha"_s));
    setColumnMinimumWidth(Schild_2, w->fontMetrics().horizontalAdvance(u"Number  "_s));
    setColumnMinimumWidth(Einheit_2, w->fontMetrics().horizontalAdvance(u"°C"_s));
}

QLabel* Schild(const QString& Text, QWidget* Ziel, QWidget* parent) {
    auto* l = new QLabel(Text, parent);
    l->setTextFormat(Qt::PlainText);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (Ziel) {
        l->setBuddy(Ziel);
        l->setObjectName("L_"_L1 + Ziel->objectName());
        Ziel->setAccessibleName(Text.trimmed());
    }
    return l;
}

QLabel* Einheitsschild(const QString& Text, QWidget* parent) {
    auto* l = new QLabel(Text, parent);
    l->setTextFormat(Qt::PlainText);
    return l;
}

QLabel* Titelzeile(const QString& Text, double Groesse, QFont::Weight Gewicht, const QColor& Farbe, QWidget* parent) {
    auto* l = new QLabel(Text, parent);
    l->setTextFormat(Qt::PlainText);
    l->setWordWrap(true);
    QFont Schrift = l->font();
    Schrift.setPointSizeF(Schrift.pointSizeF() * Groesse);
    Schrift.setWeight(Gewicht);
    l->setFont(Schrift);
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, Farbe);
    l->setPalette(p);
    return l;
}

QLabel* Ueberschrift(const QString& Text, QWidget* parent) {
    auto* l = new QLabel(Text, parent);
    l->setTextFormat(Qt::PlainText);
    QFont Schrift = l->font();
    Schrift.setBold(true);
    l->setFont(Schrift);
    return l;
}

}  // namespace varnok
