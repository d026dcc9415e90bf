#include "window/eingabe/applikationsschema.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QtGui/QFocusEvent>
#include <algorithm>
#include <chrono>

#include "painting/qt_text.h"
#include "run/bezeichnungen.h"
#include "window/kern/bausteine.h"
#include "window/kern/fokus.h"
#include "window/kern/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// What a key adds to a cell: a digit or the decimal point, 0 for any other key.
char Zeichen_der_Taste(const QKeyEvent& e) {
    if (e.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) return 0;
    const QString Text = e.text();
    if (Text.size() != 1) return 0;
    const char16_t z = Text.front().unicode();
    if (z >= u'0' && z <= u'9') return static_cast<char>(z);
    return z == u'.' || z == u',' ? '.' : char{0};
}

// A cell with the mark of a value outside its range, which is told to a screen reader as its description.
class Zellenmaler : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* p, const QStyleOptionViewItem& Aussehen, const QModelIndex& Zelle) const override {
        QStyledItemDelegate::paint(p, Aussehen, Zelle);
        if (!Zelle.data(Qt::AccessibleDescriptionRole).toString().isEmpty()) male_Zweifel(*p, Aussehen.rect);
    }
};

}  // namespace

Applikationsschema::Applikationsschema(Sitzung& Programm, QWidget* parent) : QTableWidget(0, 4, parent), Programm_(Programm) {
    setObjectName(u"Applikationsschema"_s);
    setAccessibleName(u"Applications of a year"_s);
    setItemDelegate(new Zellenmaler(this));
    QStringList Koepfe;
    for (const std::string_view Kopf : Tabellenkoepfe) Koepfe << in_Qt(Kopf);
    setHorizontalHeaderLabels(Koepfe);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().horizontalAdvance(u"Month"_s) + 10);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(this, &QTableWidget::currentCellChanged, this, &Applikationsschema::verlasse_Zelle);
}

// A text that is refused is told of when the event that left the cell is over.
void Applikationsschema::verlasse_Zelle() {
    if (zeigt_ || !Programm_.zeige<Applikationstabelle>().ist_in_Arbeit()) return;
    QTimer::singleShot(0ms, this, &Applikationsschema::verlassen);
}

void Applikationsschema::focusOutEvent(QFocusEvent* e) {
    QTableWidget::focusOutEvent(e);
    if (!betrifft_nur_Fenster(e->reason())) verlasse_Zelle();
}

void Applikationsschema::zeige_Zelle(Zelle z) {
    const auto& Zeilen = Programm_.Stand().Vorgabe.Applikationsschema;
    const QString Text = in_Qt(Zeilen.at(static_cast<std::size_t>(z.Zeile)).at(static_cast<std::size_t>(z.Spalte)).Text());
    QTableWidgetItem* Ziel = item(z.Zeile, z.Spalte);
    if (!Ziel) {
        Ziel = new QTableWidgetItem;
        Ziel->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setItem(z.Zeile, z.Spalte, Ziel);
    }
    if (Ziel->text() != Text) Ziel->setText(Text);
    const bool ausserhalb = Programm_.zeige<Applikationstabelle>().ausserhalb(z);
    Ziel->setData(Qt::AccessibleDescriptionRole, ausserhalb ? Zweifelswort() : QString());
}

void Applikationsschema::zeige() {
    zeigt_ = true;
    setRowCount(static_cast<int>(Programm_.Stand().Vorgabe.Applikationsschema.size()));
    for (int i = 0; i < rowCount(); ++i) {
        for (int j = 0; j < columnCount(); ++j) zeige_Zelle({i, j});
    }
    if (currentRow() < 0 && rowCount() > 0) setCurrentCell(0, 0);
    // Up to five rows and a bit of the sixth, which tells that there is more.
    const double sichtbar = std::min<double>(rowCount(), 5.3);
    const int Kopf = horizontalHeader()->sizeHint().height();
    setFixedHeight(Kopf + static_cast<int>(sichtbar * verticalHeader()->defaultSectionSize()) + 2 * frameWidth());
    zeigt_ = false;
}

void Applikationsschema::waehle_Zelle(Zelle z) {
    zeigt_ = true;
    clearSelection();
    setCurrentCell(z.Zeile, z.Spalte);
    if (const QTableWidgetItem* Ziel = item(z.Zeile, z.Spalte)) scrollToItem(Ziel);
    setFocus(Qt::OtherFocusReason);
    zeigt_ = false;
}

Zelle Applikationsschema::aktuelle_Zelle() const { return {currentRow(), currentColumn()}; }

void Applikationsschema::fuege_ein() {
    const Zelle z = aktuelle_Zelle();
    if (z.Zeile < 0 || z.Spalte < 0) return;
    Programm_.fuehre_aus<&Applikationstabelle::fuege_ein>(z, aus_Qt(QApplication::clipboard()->text()));
    Q_EMIT eingefuegt();
}

bool Applikationsschema::bearbeite(const QKeyEvent& e) {
    const Zelle z = aktuelle_Zelle();
    if (z.Zeile < 0 || z.Spalte < 0) return false;
    if (const char Zeichen = Zeichen_der_Taste(e)) {
        Programm_.fuehre_aus<&Applikationstabelle::haenge_an>(z, Zeichen);
    } else if (e.key() == Qt::Key_Backspace) {
        Programm_.fuehre_aus<&Applikationstabelle::nimm_letztes>(z);
    } else if (e.key() == Qt::Key_Delete) {
        Programm_.fuehre_aus<&Applikationstabelle::leere>(z);
    } else {
        return false;
    }
    zeige_Zelle(z);
    return true;
}

void Applikationsschema::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        Q_EMIT bestaetigt();
    } else if (e->matches(QKeySequence::Copy)) {
        kopiere_Zellen(*this);
    } else if (e->matches(QKeySequence::Paste)) {
        fuege_ein();
    } else if (bearbeite(*e)) {
        Q_EMIT getippt();
    } else {
        QTableWidget::keyPressEvent(e);
    }
}

}  // namespace varnok
