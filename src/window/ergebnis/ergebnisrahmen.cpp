#include "window/ergebnis/ergebnisrahmen.h"

#include <QFontInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTextLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <utility>

#include "painting/qt_text.h"
#include "session/ergebnis/studienkoepfe.h"
#include "window/kern/bausteine.h"
#include "window/kern/fokus.h"
#include "window/kern/rahmenfarben.h"
#include "window/kern/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Pixels around the grid.
struct Abstaende {
    int Rand;  // above and below
    int unter_Titel;

    constexpr int ganz() const { return 2 * Rand + unter_Titel; }
};
constexpr Abstaende weit = {6, 4};
constexpr Abstaende eng = {3, 2};
constexpr Abstaende knapp = {2, 1};

constexpr int Kopfrolle = Qt::UserRole;  // what is seen of the text of a head
constexpr int Zellenrand = 8;
constexpr int Textrand = 3;  // to the right of a text

// What a column has for its head.
struct Kopfplatz {
    int Breite;
    int Zeilen;
};

// A head in lines of a column.
struct Kopfform {
    QStringList Zeilen;
    bool ganz = true;
};

Kopfform setze_Kopf(const QString& Text, const QFont& Schrift, const Kopfplatz& Platz) {
    QTextLayout Zeilenlage(Text, Schrift);
    QTextOption Art;
    Art.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Zeilenlage.setTextOption(Art);
    Zeilenlage.beginLayout();
    Kopfform k;
    for (QTextLine z = Zeilenlage.createLine(); z.isValid() && k.ganz; z = Zeilenlage.createLine()) {
        z.setLineWidth(Platz.Breite);
        k.ganz = k.Zeilen.size() + 1 < Platz.Zeilen || z.textStart() + z.textLength() >= Text.size();
        const QString Rest = Text.mid(z.textStart(), k.ganz ? z.textLength() : -1).trimmed();
        k.Zeilen << (k.ganz ? Rest : QFontMetrics(Schrift).elidedText(Rest, Qt::ElideRight, Platz.Breite));
    }
    Zeilenlage.endLayout();
    return k;
}

struct Kopfreihe {
    std::vector<Kopfform> Koepfe;
    bool ganz = true, verschieden = true;
};

Kopfreihe setze_Koepfe(const std::vector<std::string>& Namen, const QFont& Schrift, const Kopfplatz& Platz) {
    Kopfreihe r;
    QSet<QString> gesehen;
    for (const std::string& Name : Namen) {
        r.Koepfe.push_back(setze_Kopf(in_Qt(Name), Schrift, Platz));
        r.ganz = r.ganz && r.Koepfe.back().ganz;
        gesehen << r.Koepfe.back().Zeilen.join(u' ');
    }
    r.verschieden = gesehen.size() == static_cast<qsizetype>(Namen.size());
    return r;
}

// The first that is seen as a whole and tells the columns apart; else the first that tells them apart.
Kopfreihe waehle_Koepfe(const std::vector<std::string>& Namen, const QFont& Schrift, const Kopfplatz& Platz) {
    std::optional<Kopfreihe> Wahl;
    for (const auto& Vorschlag : Kopfvorschlaege(Namen)) {
        Kopfreihe r = setze_Koepfe(Vorschlag, Schrift, Platz);
        if (r.ganz && r.verschieden) return r;
        if (!Wahl || (r.verschieden && !Wahl->verschieden)) Wahl = std::move(r);
    }
    return *Wahl;
}

// Blanks around a text serve other fonts; here the columns align by themselves.
class Zellenschrift : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* Art, const QModelIndex& Stelle) const override {
        QStyledItemDelegate::initStyleOption(Art, Stelle);
        Art->text = Art->text.trimmed();
    }
    // Of a head that was set in lines the style would leave out one where the row is a pixel too low.
    void paint(QPainter* p, const QStyleOptionViewItem& Art, const QModelIndex& Stelle) const override {
        const QVariant Kopf = Stelle.data(Kopfrolle);
        if (!Kopf.isValid()) return QStyledItemDelegate::paint(p, Art, Stelle);
        QStyleOptionViewItem leer = Art;
        initStyleOption(&leer, Stelle);
        const QStyle* Stil = leer.widget->style();
        leer.text.clear();
        Stil->drawControl(QStyle::CE_ItemViewItem, &leer, p, leer.widget);
        const bool gewaehlt = leer.state & QStyle::State_Selected;
        p->setPen(leer.palette.color(gewaehlt ? QPalette::HighlightedText : QPalette::Text));
        p->drawText(leer.rect.adjusted(0, 0, -Textrand, 0), Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                    Kopf.toString());
    }
};

class Ergebnistafel : public QTableWidget {
public:
    using QTableWidget::QTableWidget;

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->matches(QKeySequence::Copy)) {
            kopiere_Zellen(*this);
        } else {
            QTableWidget::keyPressEvent(e);
        }
    }
};

}  // namespace

Ergebnisrahmen::Ergebnisrahmen(const QString& Endung, const QString& Titel, QWidget* parent)
    : Flaechenrahmen("Ergebnisrahmen"_L1 + Endung, Heimat_Ergebnis, parent),
      Titel_(Ueberschrift(Titel, this)),
      Tafel_(new Ergebnistafel(0, 0, this)),
      Rest_(new QLabel(this)) {
    Titel_->setObjectName("Ergebnistitel"_L1 + Endung);
    Titel_->setWordWrap(true);
    setAccessibleName(u"Results"_s);

    Tafel_->setObjectName("Ergebnisse"_L1 + Endung);
    Tafel_->setAccessibleName(Titel);
    Tafel_->setFrameStyle(QFrame::NoFrame);
    Tafel_->setItemDelegate(new Zellenschrift(Tafel_));
    Tafel_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Tafel_->setTabKeyNavigation(false);
    // A press may be the start of a drag: only a click within a cell takes the focus.
    Tafel_->setFocusPolicy(Qt::TabFocus);
    Tafel_->setShowGrid(false);
    QPalette Grund = palette();
    Grund.setColor(QPalette::Base, palette().color(QPalette::Window));
    Tafel_->setPalette(Grund);
    Tafel_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Tafel_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Tafel_->horizontalHeader()->hide();
    Tafel_->verticalHeader()->hide();
    Tafel_->horizontalHeader()->setMinimumSectionSize(1);
    Tafel_->verticalHeader()->setMinimumSectionSize(1);
    Tafel_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(8, weit.Rand, 8, weit.Rand);
    Spalte->setSpacing(weit.unter_Titel);
    Spalte->addWidget(Titel_);
    Spalte->addWidget(Tafel_);
    Spalte->addWidget(Rest_);
    Rest_->setObjectName("Tafelrest"_L1 + Endung);
    Rest_->setAlignment(Qt::AlignRight);
    Rest_->hide();
    reiche_weiter(Titel_);
    reiche_weiter(Rest_);
    reiche_weiter(Tafel_->viewport());
    Tafel_->installEventFilter(this);
}

void Ergebnisrahmen::setze_Titel(const QString& Titel) {
    Titel_->setText(Titel);
    Tafel_->setAccessibleName(Titel);
}

void Ergebnisrahmen::zeige(const Tabellentext& Tabelle, int wichtig) {
    wichtig_ = wichtig;
    Tafel_->setRowCount(static_cast<int>(Tabelle.size()));
    Tafel_->setColumnCount(Tabelle.empty() ? 0 : static_cast<int>(Tabelle.front().size()));
    const QColor Kopf = QColor(230, 233, 232);
    for (int i = 0; i < Tafel_->rowCount(); ++i) {
        const auto& Zeile = Tabelle[static_cast<std::size_t>(i)];
        for (int j = 0; j < Tafel_->columnCount(); ++j) {
            QTableWidgetItem* Zelle = Tafel_->item(i, j);
            if (!Zelle) {
                Zelle = new QTableWidgetItem;
                Zelle->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                if (i == 0) Zelle->setBackground(Kopf);
                Tafel_->setItem(i, j, Zelle);
            }
            const QString Text = in_Qt(Zeile[static_cast<std::size_t>(j)]);
            if (Zelle->text() != Text) Zelle->setText(Text);
            if (i == 0) Zelle->setToolTip(als_Tip(Text.trimmed()));
        }
    }
}

int Ergebnisrahmen::Platz_fuer_Spalten(int Flaechenbreite) const {
    const QMargins Rand = layout()->contentsMargins();
    return Flaechenbreite - 12 - Rand.left() - Rand.right();
}

int Ergebnisrahmen::Spaltenbreite(int Flaechenbreite) const {
    const int n = std::max(1, Tafel_->columnCount());
    const int passend = Platz_fuer_Spalten(Flaechenbreite) / n;
    const double gewohnte =
        Flaechenbreite < Ziffern(*this, 66) ? 9.5 : 11;  // on a small surface there is a legend to leave room for
    if (n <= 3) return std::max(1, std::min(Ziffern(*this, gewohnte), passend));
    // The grid of many studies takes no more than two thirds of the surface, as far as its numbers let it.
    const int noetig = Ziffern(*this, Form_ == Tafelform::gewohnt ? 8 : 7);
    const int erlaubt = std::max(noetig, Flaechenbreite * 2 / 3 / n);
    const int Wort = Kopfwortbreite();
    const int bequem = std::max(Ziffern(*this, gewohnte), Wort <= erlaubt ? Wort : 0);
    return std::max(1, std::min({bequem, erlaubt, passend}));
}

int Ergebnisrahmen::Kopfwortbreite() const {
    static const QRegularExpression Ende(u"(?<=-)| "_s);
    int Breite = 0;
    for (int j = 1; j < Tafel_->columnCount(); ++j) {
        const QTableWidgetItem* Kopf = Tafel_->item(0, j);
        for (const QString& Wort : Kopf ? Kopf->text().split(Ende) : QStringList())
            Breite = std::max(Breite, fontMetrics().horizontalAdvance(Wort) + Zellenrand + 1);
    }
    return Breite;
}

int Ergebnisrahmen::Namensbreite() const {
    int Breite = 0;
    for (int i = 0; i < Tafel_->rowCount(); ++i) {
        if (const QTableWidgetItem* Name = Tafel_->item(i, 0))
            Breite = std::max(Breite, fontMetrics().horizontalAdvance(Name->text().trimmed()) + Zellenrand);
    }
    return Breite;
}

int Ergebnisrahmen::falte() {
    int gesehene = 0;
    for (int i = 0; i < Tafel_->rowCount(); ++i) {
        const bool gesehen = !zugeklappt() || i < 2 || i == wichtig_;
        Tafel_->setRowHidden(i, !gesehen);
        gesehene += gesehen;
    }
    const int Rest = Tafel_->rowCount() - gesehene;
    Rest_->setText(in_Qt(Rest) + u" more rows: click"_s);
    Rest_->setVisible(Rest > 0);
    return gesehene;
}

void Ergebnisrahmen::ordne(const QSize& Flaeche, int Achsenhoehe, Tafelform s) {
    Form_ = s;
    QFont Schrift = parentWidget()->font();
    if (s != Tafelform::gewohnt) Schrift.setPixelSize(QFontInfo(Schrift).pixelSize() * 5 / 6);
    setFont(Schrift);
    const int Zeilen = falte();
    const int Spalte = Spaltenbreite(Flaeche.width());
    const int Rest = Platz_fuer_Spalten(Flaeche.width()) - (Tafel_->columnCount() - 1) * Spalte;
    for (int j = 0; j < Tafel_->columnCount(); ++j)
        Tafel_->setColumnWidth(j, j == 0 ? std::max(Spalte, std::min(Namensbreite(), Rest)) : Spalte);
    const int Breite = std::max(1, Tafel_->horizontalHeader()->length());
    const int Titelhoehe =
        Titel_->fontMetrics().boundingRect(QRect(0, 0, Breite, 1000), Qt::TextWordWrap, Titel_->text()).height();
    const int Platz = Achsenhoehe - static_cast<int>(Heimat_Ergebnis.oben * Flaeche.height()) - Titelhoehe - 4;
    const bool drei = !zugeklappt() && Zeilen_bis(Platz) >= Zeilen + 2;
    ordne_Zeilen(Platz, ordne_Koepfe(Spalte, drei ? 3 : 2));
    Titel_->setFixedSize(Breite, Titelhoehe);
    Tafel_->setFixedSize(Breite, Tafel_->verticalHeader()->length());
    adjustSize();
}

bool Ergebnisrahmen::eventFilter(QObject* Kind, QEvent* e) {
    if (Kind != Tafel_) return Flaechenrahmen::eventFilter(Kind, e);
    if (e->type() != QEvent::FocusIn && e->type() != QEvent::FocusOut) return false;
    const bool im_Fokus = e->type() == QEvent::FocusIn || betrifft_nur_Fenster(static_cast<QFocusEvent*>(e)->reason());
    if (std::exchange(im_Fokus_, im_Fokus) != im_Fokus && Form_ == Tafelform::gefaltet) Q_EMIT umgeklappt();
    return false;
}

int Ergebnisrahmen::Zeilen_bis(int Platz) const { return (Platz - weit.ganz()) / fontMetrics().height(); }

int Ergebnisrahmen::ordne_Koepfe(int Spaltenbreite, int hoechstens) {
    std::vector<std::string> Namen;
    for (int j = 1; j < Tafel_->columnCount(); ++j) {
        const QTableWidgetItem* Kopf = Tafel_->item(0, j);
        Namen.push_back(Kopf ? aus_Qt(Kopf->text().trimmed()) : std::string());
    }
    if (Namen.empty()) return 1;
    const Kopfreihe r = waehle_Koepfe(Namen, font(), {Spaltenbreite - Zellenrand, hoechstens});
    qsizetype Zeilen = 1;
    for (int j = 1; j < Tafel_->columnCount(); ++j) {
        const QStringList& Kopf = r.Koepfe[static_cast<std::size_t>(j - 1)].Zeilen;
        if (Tafel_->item(0, j)) Tafel_->item(0, j)->setData(Kopfrolle, Kopf.join(u'\n'));
        Zeilen = std::max(Zeilen, Kopf.size());
    }
    return static_cast<int>(Zeilen);
}

bool Ergebnisrahmen::letzte_Zeile_leer() const {
    for (int j = 0; j < Tafel_->columnCount(); ++j) {
        const QTableWidgetItem* Zelle = Tafel_->item(Tafel_->rowCount() - 1, j);
        if (Zelle && !Zelle->text().trimmed().isEmpty()) return false;
    }
    return true;
}

// To stand above the time axis at home, the rows move as close as their letters let them, with less room around them. A spare
// row without a text gives its own away before that.
void Ergebnisrahmen::ordne_Zeilen(int Platz, int Kopfzeilen) {
    constexpr int leere_Zeile = 2;
    const int Schrift = fontMetrics().height();
    const int Zeilen = Tafel_->rowCount();
    if (zugeklappt()) Platz = Zeilen * (Schrift + 3) + weit.ganz();
    const int Textzeilen = std::max(1, Zeilen - 1 + Kopfzeilen);
    const bool klein = Form_ == Tafelform::klein;
    const bool zu_hoch = klein || Textzeilen * Schrift > Platz - weit.ganz();
    const bool ohne_letzte = zu_hoch && Zeilen > 1 && letzte_Zeile_leer();
    const Abstaende& a = klein ? knapp : zu_hoch ? eng : weit;
    const int fuer_Zeilen = Platz - a.ganz() - (ohne_letzte ? leere_Zeile : 0);
    // Numbers reach less far down than letters, so a pixel less is enough for them.
    const int hoechste = klein ? Schrift - 1 : Schrift + 3;
    const int Zeile = std::clamp(fuer_Zeilen / (Textzeilen - (ohne_letzte ? 1 : 0)), Schrift - 1, hoechste);
    layout()->setContentsMargins(8, a.Rand, 8, a.Rand);
    layout()->setSpacing(a.unter_Titel);
    for (int i = 0; i < Zeilen; ++i) Tafel_->setRowHeight(i, i == 0 ? (Kopfzeilen - 1) * Schrift + Zeile : Zeile);
    if (ohne_letzte) Tafel_->setRowHeight(Zeilen - 1, leere_Zeile);
}

void Ergebnisrahmen::zeige_Griff(bool gehalten) {
    QPalette p = palette();
    p.setColor(QPalette::Window, gehalten ? QColor(0, 0, 255) : palette().color(QPalette::Window));
    p.setColor(QPalette::WindowText, gehalten ? QColor(Qt::white) : Farben::Text);
    Titel_->setAutoFillBackground(gehalten);
    Titel_->setPalette(p);
}

// A click chooses a cell for copying, with Shift all from the one chosen before.
void Ergebnisrahmen::klicke(const QMouseEvent& e) {
    const QPoint Ort = Tafel_->viewport()->mapFromGlobal(e.globalPosition().toPoint());
    const QModelIndex Zelle = Tafel_->indexAt(Ort);
    if (!Zelle.isValid() && !zugeklappt()) return;
    Tafel_->setFocus(Qt::MouseFocusReason);
    if (!Zelle.isValid()) return;
    const QModelIndex Anfang = Tafel_->currentIndex();
    if (!(e.modifiers() & Qt::ShiftModifier) || !Anfang.isValid()) {
        Tafel_->setCurrentCell(Zelle.row(), Zelle.column());
        return;
    }
    Tafel_->clearSelection();
    const QRect r =
        QRect(QPoint(Anfang.column(), Anfang.row()), QSize(1, 1)) | QRect(QPoint(Zelle.column(), Zelle.row()), QSize(1, 1));
    Tafel_->setRangeSelected(QTableWidgetSelectionRange(r.top(), r.left(), r.bottom(), r.right()), true);
}

}  // namespace varnok
