#include "window/ergebnis/berichtsansicht.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>
#include <cmath>

#include "painting/qt_text.h"
#include "reports/ausgabedateien.h"
#include "reports/dokumentbild.h"
#include "reports/html_schreiber.h"
#include "reports/rtf_schreiber.h"
#include "reports/seitenausgabe.h"
#include "reports/seitenmass.h"
#include "reports/twips.h"
#include "session/kern/texte.h"
#include "window/kern/bausteine.h"
#include "window/kern/dateifrage.h"

namespace varnok {

using namespace Qt::StringLiterals;

Berichtsansicht::Berichtsansicht(Sitzung& Programm, QWidget* Flaeche, QWidget* parent)
    : Rahmen(u"Berichtsansicht"_s, Rahmenart::schlicht, Programm, parent), Flaeche_(Flaeche) {
    setAutoFillBackground(true);
    Bericht_ = new QTextEdit(this);
    Bericht_->setObjectName(u"Bericht"_s);
    Bericht_->setAccessibleName(u"Report"_s);
    Bericht_->setReadOnly(true);
    // As wide as its paper, so that every row stands on one line; paper is white on every desktop.
    Bericht_->setLineWrapMode(QTextEdit::FixedPixelWidth);
    Bericht_->setLineWrapColumnOrWidth(static_cast<int>(std::ceil(Twips_in_Pixel(Papierbreite))));
    Bericht_->setStyleSheet(u"QTextEdit { background: white; color: black; }"_s);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(8, 8, 8, 8);
    Blatt->addWidget(Bericht_, 1);
    auto* Zeile = new QHBoxLayout;
    const struct {
        QString Name, Aufschrift;
        void (Berichtsansicht::*Befehl)();
    } Knoepfe[] = {
        {u"Bericht_drucken"_s, u"Print"_s, &Berichtsansicht::drucke},
        {u"Bericht_PDF"_s, u"Save report as PDF"_s, &Berichtsansicht::speichere_PDF},
        {u"Bericht_kopieren"_s, u"Copy report"_s, &Berichtsansicht::kopiere},
        {u"Bericht_schliessen"_s, u"Close"_s, &Berichtsansicht::schliesse},
    };
    Zeile->addStretch(1);
    for (const auto& k : Knoepfe) {
        auto* Knopf = new Schaltflaeche(k.Name, k.Aufschrift, this);
        connect(Knopf, &QPushButton::clicked, this, k.Befehl);
        Zeile->addWidget(Knopf);
    }
    Blatt->addLayout(Zeile);
    Flaeche_->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &Berichtsansicht::pruefe_Fokus);
    hide();
}

void Berichtsansicht::zeige() {
    const Bericht* b = Programm_.zeige<Berichtssteuerung>().offener();
    setVisible(b != nullptr);
    if (b == gezeigter_) return;
    gezeigter_ = b;
    fuelle();
}

void Berichtsansicht::fuelle() {
    // The document stays the session's; what is shown, scrolled and selected is a copy. The editor keeps using its document
    // to the end, so the old one goes after it has taken the new one.
    auto* neues = gezeigter_ == nullptr ? new QTextDocument : kopiere_Dokument(*gezeigter_->Dokument);
    neues->setParent(Bericht_);
    neues->setDocumentMargin(Twips_in_Pixel(Seitenrand));
    const QPointer<QTextDocument> altes(Bericht_->document());
    Bericht_->setDocument(neues);
    delete altes;
    if (gezeigter_ == nullptr) return;
    setGeometry(Flaeche_->geometry());
    raise();
    Bericht_->setFocus(Qt::OtherFocusReason);
}

void Berichtsansicht::schliesse() {
    Programm_.fuehre_aus<&Berichtssteuerung::schliesse>();
    Q_EMIT gehandelt();
}

void Berichtsansicht::kopiere() {
    if (gezeigter_ == nullptr) return;
    auto* Inhalt = new QMimeData;
    Inhalt->setData(u"text/rtf"_s, QByteArray::fromStdString(gezeigter_->RTF));
    Inhalt->setHtml(als_HTML(*gezeigter_->Dokument));
    Inhalt->setText(Bericht_->toPlainText());
    QApplication::clipboard()->setMimeData(Inhalt);
}

QString Berichtsansicht::PDF_Vorschlag() const {
    return in_Qt(Stand().Projektpfad) + u"/output/"_s + in_Qt(gezeigter_->Name) + u".pdf"_s;
}

void Berichtsansicht::speichere_PDF() {
    if (gezeigter_ == nullptr) return;
    QFileDialog Dialog(window(), u"Save report as PDF"_s);
    Dialog.setObjectName(u"Bericht_speichern"_s);
    Dialog.setNameFilters({u"PDF (*.pdf)"_s, u"Rich text (*.rtf)"_s});
    connect(&Dialog, &QFileDialog::filterSelected, &Dialog,
            [&Dialog](const QString& Filter) { Dialog.setDefaultSuffix(Filter.contains(u".rtf"_s) ? u"rtf"_s : u"pdf"_s); });
    schlage_vor(Dialog, in_Qt(Ausgabeordner(*Stand().Ausgabeprojekt)), in_Qt(gezeigter_->Name), u"pdf"_s);
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty()) return;
    const QString Pfad = Dialog.selectedFiles().front();
    befiehl<&Berichtssteuerung::speichere_PDF>(aus_Qt(Pfad));
}

void Berichtsansicht::richte_Drucker_ein(QPrinter& Drucker) const {
    Drucker.setDocName(in_Qt(gezeigter_->Name));
    Drucker.setCreator(u"VARNOK"_s);
    Drucker.setPageSize(QPageSize(QPageSize::A4));
    Drucker.setPageMargins(QMarginsF(Seitenrand_mm, Seitenrand_mm, Seitenrand_mm, Seitenrand_mm), QPageLayout::Millimeter);
}

void Berichtsansicht::drucke() {
    if (gezeigter_ == nullptr) return;
    QPrinter Drucker(QPrinter::HighResolution);
    richte_Drucker_ein(Drucker);
    QPrintDialog Dialog(&Drucker, window());
    // The dialog shows page numbers whether they are wanted or not: so they count.
    Dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    Dialog.setMinMax(1, Seitenzahl(*gezeigter_->Dokument, Drucker));
    const bool ausgewaehlt = Bericht_->textCursor().hasSelection();
    Dialog.setOption(QAbstractPrintDialog::PrintSelection, ausgewaehlt);
    if (ausgewaehlt) Dialog.setPrintRange(QAbstractPrintDialog::Selection);
    // Its field for the name of a file is empty where paper is printed to, also after a change to a file.
    if (auto* Dateiname = Dialog.findChild<QLineEdit*>(u"filename"_s)) Dateiname->setText(PDF_Vorschlag());
    if (Dialog.exec() != QDialog::Accepted) return;
    bool gedruckt = false;
    if (Dialog.printRange() != QAbstractPrintDialog::Selection) {
        gedruckt = drucke_Dokument(*gezeigter_->Dokument, Drucker);
    } else {
        gedruckt = drucke_Dokument(*Textstelle_als_Dokument(Bericht_->textCursor()), Drucker);
    }
    if (gedruckt) return;
    Stand().Welt.Fragen->frage({Texte::Laufzeitfehler, Texte::nicht_gedruckt, Symbol::Ausrufezeichen, {Knopf::OK}});
}

void Berichtsansicht::pruefe_Fokus(const QWidget* alt, const QWidget* neu) {
    // A menu, a dialog or another window takes the focus for a while; the report stays.
    const bool verlassen = isVisible() && alt != nullptr && isAncestorOf(alt) && neu != nullptr && neu->window() == window() &&
                           qobject_cast<const QMenuBar*>(neu) == nullptr && !isAncestorOf(neu) &&
                           QApplication::activePopupWidget() == nullptr;
    if (!verlassen) return;
    // The control that has the focus now may be the one that makes the next report: that stays.
    const auto schliesse_diesen = [this, verlassener = gezeigter_] {
        if (gezeigter_ == verlassener) schliesse();
    };
    QMetaObject::invokeMethod(this, schliesse_diesen, Qt::QueuedConnection);
}

bool Berichtsansicht::eventFilter(QObject* Objekt, QEvent* e) {
    if (Objekt == Flaeche_ && (e->type() == QEvent::Resize || e->type() == QEvent::Move)) setGeometry(Flaeche_->geometry());
    return Rahmen::eventFilter(Objekt, e);
}

void Berichtsansicht::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        schliesse();
        return;
    }
    Rahmen::keyPressEvent(e);
}

}  // namespace varnok
