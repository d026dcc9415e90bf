// Texts of records that are HTML, markup or terminal codes are shown as the plain texts that they are.

#include <QFile>
#include <QLabel>
#include <QTableWidget>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>
#include <QXmlStreamReader>

#include "painting/bildflaeche.h"
#include "painting/qt_text.h"
#include "painting/svg_schreiber.h"
#include "records/satz.h"
#include "records/simulation.h"
#include "window/kern/anmeldung.h"
#include "window/kern/bausteine.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

// Long enough to be cut wherever it stands, so that it becomes a tip.
const std::string boese = "<img src='file:///dev/null'>&amp;<b>bold</b> & \x1B[31m " + std::string(150, 'x');

// Every text of every record.
void verderbe(const QString& Pfad) {
    const Projektordner Ordner(aus_Qt(Pfad));
    Eingabe e;
    Ansicht a;
    for (const Satzart Art : Eingabearten) Satz_lesen(Ordner, "Programcheck", Art, e, a, '.');
    e.Name_Wirkstoff = e.Name_Met_1 = e.Name_Met_2 = e.Bodenszenario = boese;
    e.Studie.assign(2, boese);
    for (const Satzart Art : Eingabearten) {
        const std::string Name = "<i>" + std::string(Endungen[Art] + 1) + "&amp;";
        Satz_schreiben(Ordner, Name, Art, e, a);
    }
    schreibe_Simulation(Ordner, "Programcheck", {boese, {"", "<i>che&amp;", "<i>app&amp;", "<i>sce&amp;"}});
}

bool ist_harmlos(const QString& Tip) { return !Qt::mightBeRichText(Tip) || !Tip.contains(u"<img"_s); }

}  // namespace

class Feindliche_Texte : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_, verderbe);
        p_->starte();
        QVERIFY(!p_->Programm().Stand().abgedeckt());
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void no_widget_reads_them_as_html() {
        pruefe_alle_Teile();
        p_->Programm().fuehre_aus<&Listenwahl::zeige_Zusammenfassung>();
        p_->Fenster().zeige();
        pruefe_alle_Teile();
    }

    void a_tip_shows_the_text_and_loads_nothing() {
        const QString Text = in_Qt(boese);
        QVERIFY(Qt::mightBeRichText(Text));
        QTextDocument Tip;
        Tip.setHtml(als_Tip(Text));
        QCOMPARE(Tip.toPlainText().remove(QChar(0x1B)), QString(Text).remove(QChar(0x1B)));
        QVERIFY(!als_Tip(Text).contains(u"<img"_s));
        QCOMPARE(als_Tip(u"plain & simple"_s), u"plain & simple"_s);
    }

    void an_svg_of_them_can_be_opened() {
        const Diagramm& d = *p_->Programm().zeige<Diagrammsteuerung>().vorderes();
        const QByteArray SVG = Bild_als_SVG(mit_Beschriftung(d), in_Qt(boese), QSizeF(700, 410));
        QXmlStreamReader Leser(SVG);
        QString Titel;
        while (!Leser.atEnd()) {
            if (Leser.readNext() == QXmlStreamReader::StartElement && Leser.name() == u"title"_s) Titel = Leser.readElementText();
        }
        QVERIFY2(!Leser.hasError(), qPrintable(Leser.errorString()));
        QCOMPARE(Titel.simplified(), in_Qt(boese).replace(QChar(0x1B), u' ').simplified());
    }

    void a_report_holds_them_as_text() {
        p_->klicke("Bericht_erstellen");
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->toPlainText().contains(u"<img src='file:///dev/null'>"_s));
        const std::string& RTF = p_->Programm().zeige<Berichtssteuerung>().offener()->RTF;
        for (const char z : RTF) {
            if (static_cast<unsigned char>(z) < 0x20) QVERIFY(z == '\r' || z == '\n' || z == '\t');
        }
        QVERIFY(
            QFile::exists(p_->Pfad(u"output/"_s + in_Qt(p_->Programm().zeige<Berichtssteuerung>().Ergebnisdatei()) + u".rtf"_s)));
    }

private:
    void pruefe_alle_Teile() {
        int Schilder = 0;
        for (const QWidget* w : p_->Fenster().findChildren<QWidget*>()) {
            QVERIFY2(ist_harmlos(w->toolTip()), qPrintable(w->objectName() + u": "_s + w->toolTip()));
            QVERIFY2(ist_harmlos(w->windowTitle()), qPrintable(w->objectName()));
            if (const auto* l = qobject_cast<const QLabel*>(w)) {
                ++Schilder;
                const bool schlicht = l->textFormat() == Qt::PlainText || !Qt::mightBeRichText(l->text());
                QVERIFY2(schlicht, qPrintable(l->objectName() + u": "_s + l->text()));
            }
            if (const auto* t = qobject_cast<const QTableWidget*>(w)) {
                for (int i = 0; i < t->rowCount() * t->columnCount(); ++i) {
                    const QTableWidgetItem* z = t->item(i / t->columnCount(), i % t->columnCount());
                    if (z) QVERIFY2(ist_harmlos(z->toolTip()), qPrintable(z->toolTip()));
                }
            }
        }
        QVERIFY(Schilder > 20);
    }

    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Feindliche_Texte> angemeldet;
}

}  // namespace varnok

#include "feindliche_texte_test.moc"
