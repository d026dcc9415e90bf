#include "window/programm/textfenster.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

#include "base/programm.h"
#include "extras/versionstexte.h"
#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/bilder.h"
#include "window/kern/rahmenfarben.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int Textbreite = 66;  // in digits of the font
constexpr int Textzeilen = 21;
constexpr int Rand = 16;

// The band with name and title is paper on every desktop.
class Papierband : public QWidget {
public:
    explicit Papierband(QWidget* parent) : QWidget(parent) { setPalette(helle_Palette(Farben::Papier)); }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Farben::Papier); }
};

class Zeichnung : public QWidget {
public:
    Zeichnung(const QString& Name, const QString& Bild, const QSize& Groesse, QWidget* parent) : QWidget(parent), Bild_(Bild) {
        setObjectName(Name);
        setFixedSize(Groesse);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        male_SVG(Bild_, p, rect());
    }

private:
    QString Bild_;
};

bool ist_eingerueckt(const QTextBlock& b) { return b.isValid() && b.text().startsWith(u' '); }

// A release, or a line with indented lines below it.
bool ist_Ueberschrift(const QTextBlock& b) {
    return ist_Versionskopf(aus_Qt(b.text())) || (!b.text().isEmpty() && !ist_eingerueckt(b) && ist_eingerueckt(b.next()));
}

// Headings stand out and have room above, separators step back; not a letter changes.
void gestalte(QTextEdit& Text) {
    QTextCharFormat Kopf;
    Kopf.setFontWeight(QFont::DemiBold);
    QTextBlockFormat Abstand;
    Abstand.setTopMargin(Text.fontMetrics().height() / 2.0);
    QTextCharFormat Linie;
    Linie.setForeground(Text.palette().color(QPalette::Disabled, QPalette::Text));
    for (QTextBlock b = Text.document()->begin(); b.isValid(); b = b.next()) {
        QTextCursor Stelle(b);
        Stelle.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        if (ist_Ueberschrift(b)) {
            Stelle.mergeCharFormat(Kopf);
            if (b.previous().isValid() && !b.previous().text().isEmpty()) Stelle.mergeBlockFormat(Abstand);
        } else if (ist_Trennzeile(aus_Qt(b.text()))) {
            Stelle.mergeCharFormat(Linie);
        }
    }
}

}  // namespace

Textfenster::Textfenster(const QString& Name, const QString& Titel, const QString& Text, const QStringList& Notizen,
                         QWidget* parent)
    : QDialog(parent) {
    setObjectName(Name);
    setWindowTitle(Titel);
    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(0, 0, 0, 0);
    Blatt->setSpacing(0);
    Blatt->addWidget(erstelle_Kopf());
    auto* Mitte = new QVBoxLayout;
    Mitte->setContentsMargins(Rand, Rand, Rand, 0);
    Mitte->setSpacing(10);
    if (!Notizen.isEmpty()) Mitte->addWidget(erstelle_Kasten(Notizen));
    Mitte->addWidget(erstelle_Text(Titel, Text), 1);
    Blatt->addLayout(Mitte, 1);
    Blatt->addWidget(erstelle_Fuss());
}

QWidget* Textfenster::erstelle_Kopf() {
    auto* Band = new Papierband(this);
    auto* Name = Titelzeile(u"VARNOK"_s, 2.9, QFont::DemiBold, QColor(52, 44, 36), Band);
    Name->setObjectName(u"Label1"_s);
    QFont Schrift = Name->font();
    Schrift.setLetterSpacing(QFont::PercentageSpacing, 108);
    Name->setFont(Schrift);

    // The title stands twice, the light one a pixel lower: letters pressed into the paper.
    const QString Titel = u"Soil residue forecast tool"_s;
    QLabel* Licht = Titelzeile(Titel, 1.3, QFont::Normal, Qt::white, Band);
    QLabel* Druck = Titelzeile(Titel, 1.3, QFont::Normal, QColor(70, 62, 54), Band);
    Licht->setObjectName(u"Label2"_s);
    Druck->setObjectName(u"Label3"_s);
    Licht->setContentsMargins(1, 1, 0, 0);
    Druck->setContentsMargins(0, 0, 1, 1);
    auto* Worte = new QGridLayout;
    Worte->setVerticalSpacing(2);
    Worte->setRowStretch(0, 1);
    Worte->addWidget(Name, 1, 0);
    Worte->addWidget(Licht, 2, 0);
    Worte->addWidget(Druck, 2, 0);
    Worte->setRowStretch(3, 1);

    const int Hoehe = Name->fontMetrics().height() * 5 / 2;
    auto* Zeile = new QHBoxLayout(Band);
    Zeile->setContentsMargins(Rand + 4, 12, Rand + 4, 12);
    Zeile->setSpacing(20);
    Zeile->addWidget(new Zeichnung(u"Image1"_s, u"bodensaeule"_s, QSize(Hoehe * 3 / 4, Hoehe), Band));
    Zeile->addLayout(Worte, 1);
    Zeile->addWidget(new Zeichnung(u"Image2"_s, u"varnok"_s, QSize(Hoehe / 2, Hoehe / 2), Band));
    return Band;
}

QWidget* Textfenster::erstelle_Kasten(const QStringList& Notizen) {
    auto* Kasten = new QGroupBox(u"This edition"_s, this);
    auto* Text = new QLabel(u"\u2022 "_s + Notizen.join(u"\n\u2022 "_s), Kasten);
    Text->setObjectName(u"Ausgabe"_s);
    Text->setTextFormat(Qt::PlainText);
    Text->setWordWrap(true);
    Text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* Blatt = new QVBoxLayout(Kasten);
    Blatt->setContentsMargins(10, 6, 10, 8);
    Blatt->addWidget(Text);
    return Kasten;
}

QTextEdit* Textfenster::erstelle_Text(const QString& Titel, const QString& Text) {
    auto* t = new QTextEdit(this);
    t->setObjectName(u"Text1"_s);
    t->setAccessibleName(Titel);
    t->setReadOnly(true);
    t->setTabChangesFocus(true);
    t->setPlainText(Text);
    t->document()->setDocumentMargin(10);
    gestalte(*t);
    t->setMinimumSize(Ziffern(*t, Textbreite), t->fontMetrics().lineSpacing() * Textzeilen);
    return t;
}

QWidget* Textfenster::erstelle_Fuss() {
    auto* Fuss = new QWidget(this);
    auto* Version = new QLabel(u"Version: "_s + QString::fromUtf8(Programmversion), Fuss);
    Version->setObjectName(u"Versionsangabe"_s);
    Version->setTextFormat(Qt::PlainText);
    auto* OK = new QPushButton(u"OK"_s, Fuss);
    OK->setObjectName(u"Command1"_s);
    OK->setMinimumWidth(Ziffern(*this, 13));
    OK->setDefault(true);
    OK->setFocus();
    connect(OK, &QPushButton::clicked, this, &QDialog::accept);
    auto* Zeile = new QHBoxLayout(Fuss);
    Zeile->setContentsMargins(Rand + 2, 12, Rand, 14);
    Zeile->addWidget(Version, 1);
    Zeile->addWidget(OK);
    return Fuss;
}

}  // namespace varnok
