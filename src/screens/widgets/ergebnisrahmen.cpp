#include "screens/widgets/ergebnisrahmen.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/widgets/bausteine.h"
#include "screens/widgets/farben.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

// Blanks around a text serve other fonts; here the columns align by themselves.
class Zellenschrift : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* Art, const QModelIndex& Stelle) const override {
        QStyledItemDelegate::initStyleOption(Art, Stelle);
        Art->text = Art->text.trimmed();
    }
};

class Ergebnistafel : public QTableWidget {
public:
    using QTableWidget::QTableWidget;

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->matches(QKeySequence::Copy)) {
            kopiere_Auswahl(*this);
        } else {
            QTableWidget::keyPressEvent(e);
        }
    }
};

}  // namespace

Ergebnisrahmen::Ergebnisrahmen(const QString& Endung, const QString& Titel, QWidget* parent)
    : Flaechenrahmen("Ergebnisrahmen"_L1 + Endung, Heimat_Ergebnis, parent),
      Titel_(Ueberschrift(Titel, this)),
      Tafel_(new Ergebnistafel(0, 0, this)) {
    Titel_->setObjectName("Ergebnistitel"_L1 + Endung);
    Titel_->setWordWrap(true);
    setAccessibleName(u"Results"_s);

    Tafel_->setObjectName("Ergebnisse"_L1 + Endung);
    Tafel_->setAccessibleName(Titel);
    Tafel_->setFrameStyle(QFrame::NoFrame);
    Tafel_->setItemDelegate(new Zellenschrift(Tafel_));
    Tafel_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Tafel_->setTabKeyNavigation(false);
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
    Spalte->setContentsMargins(8, 6, 8, 6);
    Spalte->setSpacing(4);
    Spalte->addWidget(Titel_);
    Spalte->addWidget(Tafel_);
    reiche_weiter(Titel_);
    reiche_weiter(Tafel_->viewport());
}

void Ergebnisrahmen::setze_Titel(const QString& Titel) {
    Titel_->setText(Titel);
    Tafel_->setAccessibleName(Titel);
}

void Ergebnisrahmen::zeige(const Tabellentext& Tabelle) {
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
            if (i == 0) Zelle->setToolTip(Text.trimmed());
        }
    }
}

void Ergebnisrahmen::ordne(const QSize& Flaeche, int Achsenhoehe) {
    const int n = std::max(1, Tafel_->columnCount());
    const int Zeilen = std::max(1, Tafel_->rowCount());
    const QMargins Rand = layout()->contentsMargins();
    // The grid of many studies takes no more than two thirds of the surface, as far as its numbers let it.
    const int schmal = std::max(Ziffern(*this, 8), Flaeche.width() * 2 / 3 / n);
    const int passend = (Flaeche.width() - 12 - Rand.left() - Rand.right()) / n;
    const int Spalte = std::max(1, std::min({Ziffern(*this, 11), n > 3 ? schmal : passend, passend}));
    int Kopfzeilen = 1;
    for (int j = 0; j < n; ++j) {
        Tafel_->setColumnWidth(j, Spalte);
        const QTableWidgetItem* Kopf = Tafel_->item(0, j);
        if (Kopf && fontMetrics().horizontalAdvance(Kopf->text().trimmed()) > Spalte - 8) Kopfzeilen = 2;
    }
    const int Breite = Spalte * n;
    const int Titelhoehe = Titel_->fontMetrics().boundingRect(QRect(0, 0, Breite, 1000), Qt::TextWordWrap, Titel_->text()).height();
    // Rows as close as it takes to stand above the time axis at home.
    const int darueber = Rand.top() + Rand.bottom() + layout()->spacing() + Titelhoehe;
    const int Platz = Achsenhoehe - static_cast<int>(Heimat_Ergebnis.oben * Flaeche.height()) - darueber - 4;
    const int Schrift = fontMetrics().height();
    const int Zeile = std::max(Schrift, std::min(Platz / (Zeilen - 1 + Kopfzeilen), Schrift + 3));
    for (int i = 0; i < Tafel_->rowCount(); ++i) Tafel_->setRowHeight(i, i == 0 ? Kopfzeilen * Schrift + Zeile - Schrift : Zeile);
    Titel_->setFixedSize(Breite, Titelhoehe);
    Tafel_->setFixedSize(Breite, Tafel_->verticalHeader()->length());
    adjustSize();
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
    if (!Zelle.isValid()) return;
    Tafel_->setFocus(Qt::MouseFocusReason);
    const QModelIndex Anfang = Tafel_->currentIndex();
    if (!(e.modifiers() & Qt::ShiftModifier) || !Anfang.isValid()) {
        Tafel_->setCurrentCell(Zelle.row(), Zelle.column());
        return;
    }
    Tafel_->clearSelection();
    const QRect r = QRect(QPoint(Anfang.column(), Anfang.row()), QSize(1, 1)) | QRect(QPoint(Zelle.column(), Zelle.row()), QSize(1, 1));
    Tafel_->setRangeSelected(QTableWidgetSelectionRange(r.top(), r.left(), r.bottom(), r.right()), true);
}

}  // namespace varnok
