#include "window/programm/intro.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "window/kern/bausteine.h"
#include "window/kern/bilder.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// The drawing, as large as its place allows.
class Bodensaeule : public QWidget {
public:
    explicit Bodensaeule(QWidget* parent) : QWidget(parent) {
        setObjectName(u"Bodensaeule"_s);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setMinimumSize(220, 260);
        setMaximumSize(520, 620);
    }
    QSize sizeHint() const override { return {420, 500}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        male_SVG(u"bodensaeule"_s, p, rect());
    }
};

}  // namespace

Intro::Intro(QWidget* parent) : QWidget(parent) {
    setObjectName(u"Intro"_s);
    setPalette(helle_Palette(Farben::Papier));
    auto* Name = Titelzeile(u"VARNOK"_s, 4.2, QFont::DemiBold, QColor(52, 44, 36), this);
    QFont Schrift = Name->font();
    Schrift.setLetterSpacing(QFont::PercentageSpacing, 108);
    Name->setFont(Schrift);
    Starten_ = new Schaltflaeche(u"Starten"_s, u"OK"_s, this);
    Starten_->setMinimumWidth(Ziffern(*this, 16));
    Starten_->setMinimumHeight(fontMetrics().height() * 2 + 4);

    auto* Text = new QVBoxLayout;
    Text->addStretch(5);
    Text->addWidget(Name);
    Text->addSpacing(4);
    Text->addWidget(Titelzeile(u"Soil residue forecast tool"_s, 1.6, QFont::Normal, QColor(70, 62, 54), this));
    Text->addSpacing(22);
    Text->addWidget(
        Titelzeile(u"Concentrations of plant protection products and their metabolites in soil, day by day over ten years."_s,
                   1.1, QFont::Normal, QColor(92, 84, 76), this));
    Text->addSpacing(34);
    Text->addWidget(Starten_, 0, Qt::AlignLeft);
    Text->addStretch(6);

    auto* Breite = new QWidget(this);
    Breite->setLayout(Text);
    Text->setContentsMargins(0, 0, 0, 0);
    Breite->setMaximumWidth(Ziffern(*this, 62));
    Breite->setMinimumWidth(Ziffern(*this, 44));

    auto* Blatt = new QHBoxLayout(this);
    Blatt->setContentsMargins(40, 30, 40, 30);
    Blatt->setSpacing(56);
    Blatt->addStretch(2);
    Blatt->addWidget(new Bodensaeule(this), 6);
    Blatt->addWidget(Breite, 7);
    Blatt->addStretch(2);
    connect(Starten_, &QPushButton::clicked, this, &Intro::gestartet);
}

void Intro::gib_Fokus() { Starten_->setFocus(Qt::OtherFocusReason); }

void Intro::keyPressEvent(QKeyEvent* e) {
    if (e->key() != Qt::Key_Return && e->key() != Qt::Key_Enter) return QWidget::keyPressEvent(e);
    Starten_->click();
}

void Intro::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Farben::Papier);
}

}  // namespace varnok
