#include "window/programm/bemerkungsfenster.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/zahlen.h"
#include "painting/qt_text.h"
#include "window/kern/bausteine.h"
#include "window/kern/zwischenablage.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

class Bemerkungstafel : public QTableWidget {
public:
    using QTableWidget::QTableWidget;

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if (e->matches(QKeySequence::Copy)) return kopiere_Zellen(*this);
        QTableWidget::keyPressEvent(e);
    }
};

QTableWidget* erstelle_Tafel(const std::vector<Bemerkung>& Bemerkungen, char Dezimalzeichen, QWidget* parent) {
    const QStringList Spalten = {u"File"_s, u"Line"_s, u"Field"_s, u"Remark"_s, u"Text"_s, u"Taken"_s};
    auto* t = new Bemerkungstafel(static_cast<int>(Bemerkungen.size()), static_cast<int>(Spalten.size()), parent);
    t->setObjectName(u"Bemerkungen"_s);
    t->setAccessibleName(u"Remarks"_s);
    t->setHorizontalHeaderLabels(Spalten);
    t->verticalHeader()->hide();
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionBehavior(QAbstractItemView::SelectRows);
    t->setTabKeyNavigation(false);
    int i = 0;
    for (const Bemerkung& b : Bemerkungen) {
        const QStringList Zellen = {in_Qt(b.Datei), in_Qt(b.Zeile),
                                    in_Qt(b.Feld),  in_Qt(b.Meldung),
                                    in_Qt(b.Text),  b.Wert ? in_Qt(allgemeine_Zahl(*b.Wert, Dezimalzeichen)) : QString()};
        for (int j = 0; j < Zellen.size(); ++j) t->setItem(i, j, new QTableWidgetItem(Zellen[j]));
        ++i;
    }
    t->resizeColumnsToContents();
    t->horizontalHeader()->setStretchLastSection(true);
    return t;
}

}  // namespace

Bemerkungsfenster::Bemerkungsfenster(const std::vector<Bemerkung>& Bemerkungen, char Dezimalzeichen, QWidget* parent)
    : QDialog(parent) {
    setObjectName(u"Bemerkungsfenster"_s);
    setWindowTitle(u"Remarks"_s);
    auto* Erklaerung =
        new QLabel(u"What is doubtful in the files that were read. It was calculated as the last column says."_s, this);
    Erklaerung->setWordWrap(true);
    QTableWidget* Tafel = erstelle_Tafel(Bemerkungen, Dezimalzeichen, this);
    auto* Tasten = new QDialogButtonBox(this);
    QPushButton* Ende = Tasten->addButton(u"Close"_s, QDialogButtonBox::AcceptRole);
    Ende->setObjectName(u"OK"_s);
    Ende->setDefault(true);
    connect(Tasten, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(14, 14, 14, 12);
    Blatt->setSpacing(10);
    Blatt->addWidget(Erklaerung);
    Blatt->addWidget(Tafel, 1);
    Blatt->addWidget(Tasten);
    resize(Ziffern(*this, 110), Ziffern(*this, 45));
    Tafel->setFocus();
}

QString Bemerkungszahl(std::size_t Anzahl) {
    return in_Qt(static_cast<int>(Anzahl)) + (Anzahl == 1 ? u" remark"_s : u" remarks"_s);
}

}  // namespace varnok
