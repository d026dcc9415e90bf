// The report over the results.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <cmath>

#include "window/ergebnis/diagrammprobe.h"
#include "window/kern/anmeldung.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {

class Berichtstest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        p_ = std::make_unique<Fensterprobe>(&Fragen_);
        p_->starte();
        Fragen_.vergiss();
    }
    void cleanup() { p_.reset(); }

    void the_button_shows_it_names_its_file_and_enables_print() {
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
        p_->klicke("Bericht_erstellen");
        QVERIFY(p_->sichtbar("Bericht"));
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->toPlainText().contains(u"RESULTS OF THE CALCULATION"_s));
        QVERIFY(!p_->Programm().zeige<Berichtssteuerung>().Ergebnisdatei().empty());
        QVERIFY(p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void the_menu_runs_the_same_command() {
        p_->Teil<QAction>("M_Bericht")->trigger();
        QVERIFY(p_->sichtbar("Bericht"));
    }

    void esc_closes_it() {
        p_->klicke("Bericht_erstellen");
        QTest::keyClick(p_->Teil<QTextEdit>("Bericht"), Qt::Key_Escape);
        QTRY_VERIFY(!p_->sichtbar("Bericht"));
        QVERIFY(!p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void the_focus_of_another_control_closes_it() {
        p_->klicke("Bericht_erstellen");
        p_->Teil<QWidget>("S_DT50_0")->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(!p_->sichtbar("Bericht"));
    }

    void it_is_copied_as_rich_text() {
        p_->klicke("Bericht_erstellen");
        p_->klicke("Bericht_kopieren");
        QVERIFY(QApplication::clipboard()->mimeData()->data(u"text/rtf"_s).startsWith("{\\rtf1"));
    }

    // The picture stands in the HTML itself: what it is pasted into knows no resources of the program.
    void it_is_copied_as_HTML_with_its_picture() {
        p_->klicke("Bericht_erstellen");
        p_->klicke("Bericht_kopieren");
        const QString Html = QApplication::clipboard()->mimeData()->html();
        const QString Anfang = u"src=\"data:image/png;base64,"_s;
        const qsizetype Stelle = Html.indexOf(Anfang);
        QVERIFY(Stelle > 0);
        QVERIFY(!Html.contains(u"varnok:"_s));
        const QString Daten = Html.mid(Stelle + Anfang.size()).section(u'"', 0, 0);
        QVERIFY(QImage::fromData(QByteArray::fromBase64(Daten.toLatin1()), "PNG").width() > 600);
    }

    // The lines of the sheet do not depend on the window: rows stay whole, and what is not in sight is scrolled to.
    void the_sheet_is_as_wide_as_paper_in_every_window() {
        auto* Blatt = p_->Teil<QTextEdit>("Bericht");
        p_->Fenster().resize(1000, 700);
        p_->klicke("Bericht_erstellen");
        const double Breite = Blatt->document()->textWidth();
        QVERIFY(std::abs(Breite - 11906.0 / 1440 * Blatt->logicalDpiX()) <= 1);
        QVERIFY(Blatt->viewport()->width() < Breite);
        QVERIFY(Blatt->horizontalScrollBar()->maximum() > 0);
        int Zeilen = 0;
        for (QTextBlock b = Blatt->document()->begin(); b.isValid(); b = b.next()) {
            if (!b.text().contains(u'\t')) continue;
            ++Zeilen;
            QVERIFY2(b.layout()->lineCount() == 1, qPrintable(b.text()));
        }
        QVERIFY(Zeilen > 40);
    }

    void the_printer_gets_name_file_and_margins_of_the_report() {
        p_->klicke("Bericht_erstellen");
        drucke([&](QPrintDialog& d) {
            const QString Name = QString::fromStdString(p_->Programm().zeige<Berichtssteuerung>().offener()->Name);
            QCOMPARE(d.printer()->docName(), Name);
            QCOMPARE(d.printer()->pageLayout().margins(QPageLayout::Millimeter), QMarginsF(12, 12, 12, 12));
            const auto* Datei = d.findChild<QLineEdit*>(u"filename"_s);
            if (Datei != nullptr) QVERIFY(Datei->text().endsWith(u"/output/"_s + Name + u".pdf"_s));
        });
    }

    void only_the_pages_wanted_are_printed() {
        p_->klicke("Bericht_erstellen");
        const QString PDF = drucke([](QPrintDialog& d) {
            QVERIFY(d.testOption(QAbstractPrintDialog::PrintPageRange));
            QCOMPARE(d.minPage(), 1);
            QVERIFY(d.maxPage() > 1);
            d.printer()->setFromTo(2, 2);
        });
        const QString Text = Inhalt_von(PDF);
        QVERIFY2(!Text.isEmpty(), "poppler-utils is missing");
        QVERIFY(Text.contains(u"page 2 of "_s));
        QVERIFY(!Text.contains(u"page 1 of "_s));
        QCOMPARE(Text.count(u'\f'), 1);
    }

    void print_writes_the_pages_of_the_report() {
        p_->klicke("Bericht_erstellen");
        const QString PDF = drucke([](QPrintDialog&) {});
        QVERIFY(QFile::exists(PDF));
        QVERIFY(p_->sichtbar("Bericht"));
        QCOMPARE(Fragen_.nimm(), QStringList());
        const QString Text = Inhalt_von(PDF);
        QVERIFY2(!Text.isEmpty(), "poppler-utils is missing");
        for (const QString& s :
             {u"PROGRAM SETTINGS"_s, u"RESULTS OF THE CALCULATION"_s, u"GRAPHIC REPRESENTATION OF THE CALCULATION"_s,
              u"Time after first application (d)"_s, u"page 1 of "_s})
            QVERIFY2(Text.contains(s), qPrintable(s));
    }

    // With something selected the dialog starts on it, and nothing else is printed.
    void print_of_a_selection_is_that_selection() {
        p_->klicke("Bericht_erstellen");
        QVERIFY(p_->Teil<QTextEdit>("Bericht")->find(u"SCENARIO DATA USED IN THE CALCULATION"_s));
        bool angeboten = false;
        const QString PDF = drucke([&](QPrintDialog& d) {
            angeboten = d.testOption(QAbstractPrintDialog::PrintSelection) && d.printRange() == QAbstractPrintDialog::Selection;
        });
        QVERIFY(angeboten);
        const QString Text = Inhalt_von(PDF);
        QVERIFY2(!Text.isEmpty(), "poppler-utils is missing");
        QVERIFY(Text.contains(u"SCENARIO DATA USED IN THE CALCULATION"_s));
        QVERIFY(Text.contains(u"page 1 of 1"_s));
        QVERIFY(!Text.contains(u"PROGRAM SETTINGS"_s));
    }

    void without_a_selection_none_is_offered() {
        p_->klicke("Bericht_erstellen");
        bool angeboten = true;
        drucke([&](QPrintDialog& d) { angeboten = d.testOption(QAbstractPrintDialog::PrintSelection); });
        QVERIFY(!angeboten);
    }

    void a_pdf_is_proposed_in_the_folder_of_outputs_under_the_name_of_the_report() {
        QDir(p_->Pfad({})).rename(u"output"_s, u"Output"_s);
        p_->klicke("Bericht_erstellen");
        QString Ordner, Name;
        bei_Dialog<QFileDialog>([&](QFileDialog& d) {
            Ordner = d.directory().dirName();
            Name = d.findChild<QLineEdit*>()->text();
            d.reject();
        });
        p_->klicke("Bericht_PDF");
        QCOMPARE(Ordner, u"Output"_s);
        QCOMPARE(Name, QString::fromStdString(p_->Programm().zeige<Berichtssteuerung>().Ergebnisdatei()) + u".pdf"_s);
    }

    void a_name_with_a_percent_sign_is_proposed_as_it_is() {
        p_->Programm().fuehre_aus<&Beschreibungseingabe::aendere>("50 %41 of 'it' \"quoted\"");
        p_->klicke("Bericht_erstellen");
        QString Name;
        bei_Dialog<QFileDialog>([&](QFileDialog& d) {
            Name = d.selectedFiles().value(0);
            d.reject();
        });
        p_->klicke("Bericht_PDF");
        QVERIFY2(Name.contains(u"/50 %41 of 'it' _quoted_"_s) && Name.endsWith(u".pdf"_s), qPrintable(Name));
    }

    // The ending that was left out is there when the dialog looks whether there is such a file.
    void a_pdf_replaces_a_file_only_after_the_question_of_the_dialog() {
        p_->klicke("Bericht_erstellen");
        const QString Pfad = p_->Pfad(u"mine.pdf"_s);
        schreibe(Pfad, "mine");
        for (const auto Antwort : {QMessageBox::No, QMessageBox::Yes}) {
            int gefragt = 0;
            bei_Dialog<QFileDialog>([&](QFileDialog& d) {
                d.findChild<QLineEdit*>()->setText(p_->Pfad(u"mine"_s));
                bei_Dialog<QMessageBox>([&](QMessageBox& m) {
                    ++gefragt;
                    m.button(Antwort)->click();
                });
                QMetaObject::invokeMethod(&d, "accept");
                if (Antwort == QMessageBox::No) d.reject();
            });
            p_->klicke("Bericht_PDF");
            QCOMPARE(gefragt, 1);
            QCOMPARE(p_->Inhalt(u"mine.pdf"_s).startsWith("%PDF-"), Antwort == QMessageBox::Yes);
        }
        QVERIFY(!QFile::exists(p_->Pfad(u"mine.pdf.pdf"_s)));
    }

    void a_link_is_replaced_by_a_pdf_and_its_target_stays() {
        p_->klicke("Bericht_erstellen");
        schreibe(p_->Pfad(u"mine"_s), "mine");
        QFile::link(p_->Pfad(u"mine"_s), p_->Pfad(u"link.pdf"_s));
        p_->Programm().fuehre_aus<&Berichtssteuerung::speichere_PDF>(p_->Pfad(u"link.pdf"_s).toStdString());
        QCOMPARE(p_->Inhalt(u"mine"_s), QByteArray("mine"));
        QVERIFY(p_->Inhalt(u"link.pdf"_s).startsWith("%PDF-"));
    }

    void a_cancelled_print_ends_quietly() {
        p_->klicke("Bericht_erstellen");
        bei_Dialog<QPrintDialog>([](QPrintDialog& d) { d.reject(); });
        p_->Teil<QAction>("M_Drucken")->trigger();
        QCOMPARE(Fragen_.nimm(), QStringList());
        QVERIFY(p_->sichtbar("Bericht"));
        QVERIFY(p_->Teil<QAction>("M_Drucken")->isEnabled());
    }

    void a_print_that_fails_is_told() {
        p_->klicke("Bericht_erstellen");
        const QString PDF = drucke([](QPrintDialog&) {}, u"no such folder/report.pdf"_s);
        QVERIFY(!QFile::exists(PDF));
        QCOMPARE(Fragen_.nimm(), QStringList(u"Runtime error: The report could not be printed."_s));
        QVERIFY(p_->sichtbar("Bericht"));
    }

    // Each has a document of its own, and the one before is gone.
    void one_report_after_the_other_is_shown() {
        auto* Blatt = p_->Teil<QTextEdit>("Bericht");
        for (const char* Simulation : {"Programcheck", "Vines, Compound D", "Potatoes, Compound C", "Programcheck"}) {
            p_->waehle_Simulation(Simulation);
            p_->klicke("Bericht_erstellen");
            QVERIFY(Blatt->toPlainText().contains(QString::fromStdString(p_->Programm().Stand().Vorgabe.Beschreibung)));
            p_->klicke("Bericht_erstellen");  // over the open one
            QVERIFY(p_->sichtbar("Bericht"));
            p_->klicke("Bericht_schliessen");
            QVERIFY(Blatt->toPlainText().isEmpty());
        }
        QCOMPARE(Blatt->findChildren<QTextDocument*>().size(), 1);
    }

    void print_is_enabled_while_a_report_is_shown() {
        const auto* Drucken = p_->Teil<QAction>("M_Drucken");
        QVERIFY(!Drucken->isEnabled());
        for (int i = 0; i < 2; ++i) {
            p_->klicke("Bericht_erstellen");
            QVERIFY(Drucken->isEnabled());
            p_->klicke("Bericht_schliessen");
            QVERIFY(!Drucken->isEnabled());
        }
    }

private:
    static void schreibe(const QString& Pfad, const QByteArray& Bytes) {
        QFile f(Pfad);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(Bytes);
    }

    // Prints into a file, as the dialog does where there is no printer.
    template <class H>
    QString drucke(H Handlung, const QString& Datei = u"report.pdf"_s) {
        const QString PDF = Ordner_.filePath(Datei);
        bei_Dialog<QPrintDialog>([&](QPrintDialog& d) {
            Handlung(d);
            d.printer()->setOutputFormat(QPrinter::PdfFormat);
            d.printer()->setOutputFileName(PDF);
            static_cast<QDialog&>(d).done(QDialog::Accepted);
        });
        p_->Teil<QAction>("M_Drucken")->trigger();
        return PDF;
    }

    // Empty where no tool can read a PDF.
    static QString Inhalt_von(const QString& PDF) {
        QProcess p;
        p.start(u"pdftotext"_s, {u"-layout"_s, PDF, u"-"_s});
        return p.waitForFinished() ? QString::fromUtf8(p.readAllStandardOutput()).replace(u"ﬁ"_s, u"fi"_s) : QString();
    }

    QTemporaryDir Ordner_;
    Mitschrift Fragen_;
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Berichtstest> angemeldet;
}

}  // namespace varnok

#include "bericht_test.moc"
