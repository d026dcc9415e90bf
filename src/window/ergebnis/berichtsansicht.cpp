#include "window/ergebnis/berichtsansicht.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include "painting/qt_text.h"
#include "reports/dokumentbild.h"
#include "reports/rtf_schreiber.h"
#include "reports/seitenausgabe.h"
#include "session/kern/texte.h"
#include "window/kern/bausteine.h"

namespace varnok {

using namespace Qt::StringLiterals;

Berichtsansicht::Berichtsansicht(Sitzung& Programm, QWidget* Flaeche, QWidget* parent)
    : Rahmen(u"Berichtsansicht"_s, Rahmenart::schlicht, Programm, parent), Flaeche_(Flaeche) {
    setAutoFillBackground(true);
    Bericht_ = new QTextEdit(this);
    Bericht_->setObjectName(u"Bericht"_s);
    Bericht_->setAccessibleName(u"Report"_s);
    Bericht_->setReadOnly(true);
    // Paper is white on every desktop.
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
    Inhalt->setHtml(Bericht_->toHtml());
    Inhalt->setText(Bericht_->toPlainText());
    QApplication::clipboard()->setMimeData(Inhalt);
}

void Berichtsansicht::speichere_PDF() {
    const QString Vorschlag = in_Qt(Stand().Projektpfad) + u"/output/"_s + in_Qt(gezeigter_->Name) + u".pdf"_s;
    QString Pfad = QFileDialog::getSaveFileName(window(), u"Save report as PDF"_s, Vorschlag, u"PDF (*.pdf)"_s);
    if (Pfad.isEmpty()) return;
    if (!Pfad.endsWith(u".pdf"_s, Qt::CaseInsensitive)) Pfad += u".pdf"_s;
    befiehl<&Berichtssteuerung::speichere_PDF>(aus_Qt(Pfad));
}

void Berichtsansicht::drucke() {
    if (gezeigter_ == nullptr) return;
    QPrinter Drucker(QPrinter::HighResolution);
    QPrintDialog Dialog(&Drucker, window());
    Dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    const bool ausgewaehlt = Bericht_->textCursor().hasSelection();
    Dialog.setOption(QAbstractPrintDialog::PrintSelection, ausgewaehlt);
    if (ausgewaehlt) Dialog.setPrintRange(QAbstractPrintDialog::Selection);
    if (Dialog.exec() != QDialog::Accepted) return;
    bool gedruckt = false;
    if (Dialog.printRange() != QAbstractPrintDialog::Selection) {
        gedruckt = drucke_Dokument(*gezeigter_->Dokument, Drucker);
    } else {
        gedruckt = drucke_Dokument(*Auswahl_als_Dokument(Bericht_->textCursor()), Drucker);
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
