// Takes the pictures of the window that the documentation shows. Walks through the program as a user would, on a copy of
// the shipped data, without a display:
//
//     bildschirmfotos <folder for the pictures> [dark|large|diagrams|scale <name>]
//
// "dark" takes them on a dark desktop, "large" with large letters; "diagrams" takes the diagrams alone, "scale" one of them,
// named for the scale that the environment gives the screen.

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QtGui/QHelpEvent>
#include <algorithm>
#include <functional>
#include <utility>

#include "painting/bildausgabe.h"
#include "painting/bildflaeche.h"
#include "painting/qt_text.h"
#include "probefenster.h"
#include "window/ergebnis/diagrammflaeche.h"
#include "window/ergebnis/legendenrahmen.h"

using namespace Qt::StringLiterals;
using namespace varnok;

namespace {

class Fotograf : public Probefenster {
public:
    using Probefenster::Probefenster;

    void gehe_durch() {
        fotografiere(u"intro"_s);
        Taste(u"Starten"_s);
        fotografiere(u"single_parent_only"_s);
        gib_aus(u"saved_picture_single"_s);
        fotografiere(u"smallest_window"_s, {Fenster_->minimumSize()});
        waehle_Simulation(u"Potatoes, Compound C"_s);
        fotografiere(u"accumulated_one_metabolite"_s);
        Option(u"PEC_Typ_1"_s);
        fotografiere(u"background"_s);
        waehle_Simulation(u"Vines, Compound D"_s);
        Option(u"Substanz_1"_s);
        fotografiere(u"single_metabolite_parallel"_s);
        waehle_Simulation(u"Sugar beet, Compound E"_s);
        Seite(2);
        klicke_weiter(3);
        fotografiere(u"multi_compound_background"_s);
        Option(u"PEC_Typ_2"_s);
        klicke_weiter(3);
        fotografiere(u"multi_compound_accumulated"_s);
        Option(u"PEC_Typ_0"_s);
        klicke_weiter(3);
        fotografiere(u"multi_compound_annual"_s);
        gib_aus(u"saved_picture_multi_compound"_s);
        zeige_Ablesung();
        zeige_Skalierung();
        Seite(1);
        befehle(u"M_Zusammenfassung"_s);
        fotografiere(u"summary"_s);
        gib_aus(u"saved_picture_summary"_s);
        zeige_Bericht();
        Option(u"PEC_Typ_1"_s);
        fotografiere(u"summary_background"_s);
        Option(u"PEC_Typ_0"_s);
        befehle(u"M_Studien"_s);
        Seite(0);
        zeige_Texte();
        zeige_Tip();
        zeige_Organiser();
        zeige_Szenario();
        zeige_Eingabe();
        zeige_Meldung();
    }

    // All kinds of diagrams in all views: on the screen at four sizes, and as pictures in colours and for print.
    void zeige_Diagramme() {
        Taste(u"Starten"_s);
        const std::pair<QString, int> Arten[] = {{u"one_compound"_s, 0}, {u"all_compounds"_s, 3}};
        const std::pair<QString, QString> Ansichten[] = {
            {u"annual"_s, u"PEC_Typ_0"_s}, {u"background"_s, u"PEC_Typ_1"_s}, {u"accumulated"_s, u"PEC_Typ_2"_s}};
        waehle_Simulation(u"Sugar beet, Compound E"_s);
        for (const auto& [Ansicht, Knopf] : Ansichten) {
            for (const auto& [Art, Klicks] : Arten) {
                Option(u"PEC_Typ_0"_s);  // with the parent in front
                Option(Knopf);
                klicke_weiter(Klicks);
                nimm_Diagramm_auf(Art + u'_' + Ansicht);
            }
            befehle(u"M_Zusammenfassung"_s);
            nimm_Diagramm_auf(u"all_studies_"_s + Ansicht);
            befehle(u"M_Studien"_s);
        }
        waehle_Simulation(u"Maize, Compound G"_s);  // twelve averages
        Option(u"PEC_Typ_0"_s);
        nimm_Diagramm_auf(u"twelve_averages"_s);
    }

    // One diagram of each kind, as the screen shows it at its scale.
    void zeige_Massstab(const QString& Massstab) {
        Taste(u"Starten"_s);
        waehle_Simulation(u"Sugar beet, Compound E"_s);
        Option(u"PEC_Typ_0"_s);
        klicke_weiter(3);
        Fenster_->resize(900, 560);
        QTest::qWait(60);
        sichere(vorn()->grab().toImage(), u"scale_"_s + Massstab + u".png"_s);
    }

private:
    void nimm_Diagramm_auf(const QString& Name) {
        for (const QSize& g : {QSize(900, 560), QSize(1180, 760), QSize(1440, 900), QSize(2000, 1200)}) {
            Fenster_->resize(g);
            QTest::qWait(40);
            sichere(vorn()->grab().toImage(), Name + u'_' + in_Qt(g.width()) + u".png"_s);
        }
        const QSizeF Groesse(mm_in_Einheiten(120), mm_in_Einheiten(90));
        for (const bool Druck : {false, true}) {
            const Zeichenliste z = mit_Beschriftung(*vorn()->Inhalt(), {.Groesse = Groesse, .fuer_Druck = Druck});
            const QString Datei = Name + (Druck ? u"_for_print.png"_s : u"_saved.png"_s);
            sichere(Bild_als_Pixel(z, Groesse, 150), Datei);
        }
        Fenster_->resize(1180, 760);
        QTest::qWait(40);
    }

    // The picture that "Save picture as" makes of the diagram in front.
    void gib_aus(const QString& Name) {
        const QSizeF Groesse(mm_in_Einheiten(160), mm_in_Einheiten(125));
        const Zeichenliste z = mit_Beschriftung(*vorn()->Inhalt(), {.Groesse = Groesse, .Legende = vorn()->Legende()->gezogen()});
        sichere(Bild_als_Pixel(z, Groesse, 150), Name + u".png"_s);
    }

    // The mouse over a curve.
    void zeige_Ablesung() {
        QTest::mouseMove(vorn(), QPoint(vorn()->width() / 3, vorn()->height() / 2));
        QTest::qWait(30);
        sichere(Fenster_->grab().toImage(), u"reading_1180.png"_s);
    }

    void zeige_Skalierung() {
        QTimer::singleShot(150, Fenster_.get(), [this] {
            fotografiere(u"manual_scaling"_s);
            if (auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) Dialog->reject();
        });
        QTest::mouseClick(vorn(), Qt::RightButton, {}, QPoint(5, vorn()->height() / 2));
        QTest::qWait(900);
        aktiviere();
    }

    // The dialogs of the help menu, each by itself.
    void zeige_Texte() {
        const std::pair<QString, QString> Dialoge[] = {{u"M_ueber"_s, u"dialog_info"_s},
                                                       {u"M_Versionsinfo"_s, u"dialog_versionsinfo"_s}};
        for (const auto& [Eintrag, Name] : Dialoge) {
            QTimer::singleShot(150, Fenster_.get(), [this, Bild = Name] {
                auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (!Dialog) qFatal("no dialog");
                sichere(Dialog->grab().toImage(), Bild + u".png"_s);
                Dialog->reject();
            });
            befehle(Eintrag);
            aktiviere();
        }
    }

    // The pointer rests on a field.
    void zeige_Tip() {
        Fenster_->erstelle_tooltips();
        auto* Feld = Teil<QLineEdit>(u"S_Q10_0"_s);
        QHelpEvent e(QEvent::ToolTip, Feld->rect().center(), Feld->mapToGlobal(Feld->rect().center()));
        QApplication::sendEvent(Feld, &e);
        QTest::qWait(300);
        QPixmap Bild = Fenster_->grab();
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->inherits("QTipLabel") && w->isVisible())
                QPainter(&Bild).drawPixmap(Fenster_->mapFromGlobal(w->pos()), w->grab());
        }
        sichere(Bild.toImage(), u"tooltip_1180.png"_s);
        QToolTip::hideText();
    }

    // With another simulation picked; its description stands on the main screen at once.
    void zeige_Organiser() {
        QTimer::singleShot(150, Fenster_.get(), [this] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) qFatal("the simulation organiser does not open");
            auto* Liste = Dialog->findChild<QComboBox*>(u"Simulationsliste"_s);
            Liste->setCurrentIndex(Liste->findText(u"Potatoes, Compound C"_s));
            Q_EMIT Liste->activated(Liste->currentIndex());
            QTest::qWait(30);
            QPixmap Bild = Fenster_->grab();
            male_Kasten(Bild, *Dialog);
            sichere(Bild.toImage(), u"dialog_simulationen.png"_s);
            Dialog->reject();
        });
        befehle(u"M_Laden"_s);
        aktiviere();
    }

    // As it opens, and with a depth of its own and a climate file.
    void zeige_Szenario() {
        QTimer::singleShot(150, Fenster_.get(), [this] {
            auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!Dialog) qFatal("no dialog for the scenario");
            const auto klicke = [Dialog](const QString& Name) {
                QTest::mouseClick(Dialog->findChild<QRadioButton*>(Name), Qt::LeftButton, {}, QPoint(8, 8));
            };
            nimm_Dialog_auf(*Dialog, u"dialog_szenario"_s);
            klicke(u"Einstellung_Bodentiefe_2"_s);
            auto* Tiefe = Dialog->findChild<QComboBox*>(u"S_Bodentiefe"_s);
            Tiefe->setFocus();
            QTest::keyClicks(Tiefe, u"7.5"_s);
            klicke(u"Klimabedingungen_1"_s);
            nimm_Dialog_auf(*Dialog, u"dialog_szenario_individual"_s);
            Dialog->reject();
        });
        Taste(u"Edit"_s);
        aktiviere();
    }

    // The dialog in front over the window.
    void nimm_Dialog_auf(QWidget& Dialog, const QString& Name) {
        QTest::qWait(60);
        QPixmap Bild = Fenster_->grab();
        male_Kasten(Bild, Dialog);
        sichere(Bild.toImage(), Name + u".png"_s);
    }

    void zeige_Eingabe() {
        auto* Feld = Teil<QLineEdit>(u"S_DT50_0"_s);
        if (!Feld->isVisible()) Feld = Teil<QLineEdit>(u"S_Q10_0"_s);
        QTest::mouseClick(Feld, Qt::LeftButton);
        Feld->selectAll();
        QTest::keyClicks(Feld, u"2.2"_s);
        QTest::qWait(30);
        fotografiere(u"editing"_s);
    }

    // A value that is refused: the box stands over the window, the results are covered.
    void zeige_Bericht() {
        Taste(u"Bericht_erstellen"_s);
        fotografiere(u"report"_s, {QSize(1000, 760)});
        Taste(u"Bericht_schliessen"_s);
    }

    void zeige_Meldung() {
        auto* Feld = Teil<QLineEdit>(u"S_Q10_0"_s);
        QTest::mouseClick(Feld, Qt::LeftButton);
        QTest::qWait(30);
        Feld->selectAll();
        QTest::keyClicks(Feld, u"0"_s);
        QTimer::singleShot(150, Fenster_.get(), [this] {
            fotografiere(u"message"_s);
            if (auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                Kasten->button(QMessageBox::Ok)->click();
        });
        QTest::keyClick(Feld, Qt::Key_Return);
    }

    // The box in front, under a bar with its title.
    static void male_Kasten(QPixmap& Bild, QWidget& Kasten) {
        const int Balken = Kasten.fontMetrics().height() + 12;
        QRect Platz(QPoint(), Kasten.size() + QSize(2, Balken + 1));
        Platz.moveCenter(Bild.rect().center());
        QPainter p(&Bild);
        p.fillRect(Platz.adjusted(-3, -3, 5, 6), QColor(0, 0, 0, 40));
        p.fillRect(Platz, QColor(70, 78, 84));
        p.setPen(Qt::white);
        p.drawText(Platz.adjusted(10, 0, 0, 0).left(), Platz.top() + Balken - 9, Kasten.windowTitle());
        p.drawPixmap(Platz.topLeft() + QPoint(1, Balken), Kasten.grab());
    }

    // A dialog in front is drawn into the picture.
    void fotografiere(const QString& Name, const QList<QSize>& Groessen = {QSize(1180, 760)}) {
        for (const QSize& Groesse : Groessen) {
            Fenster_->resize(Groesse);
            QTest::qWait(60);
            QPixmap Bild = Fenster_->grab();
            if (QWidget* Kasten = QApplication::activeModalWidget()) male_Kasten(Bild, *Kasten);
            sichere(Bild.toImage(), Name + u'_' + QString::number(Groesse.width()) + u".png"_s);
        }
        Fenster_->resize(1180, 760);
        QTest::qWait(30);
    }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication Anwendung(argc, argv);
    const QStringList Argumente = QApplication::arguments();
    if (argc < 2) qFatal("usage: bildschirmfotos <folder> [dark|large|diagrams|scale <name>]");
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setFont(QFont(u"DejaVu Sans"_s, Argumente.contains(u"large"_s) ? 14 : 9));
    if (Argumente.contains(u"dark"_s)) QApplication::setPalette(dunkle_Palette());
    QLocale::setDefault(QLocale::c());
    Fotograf Fotos(Argumente[1]);
    if (Argumente.contains(u"diagrams"_s)) {
        Fotos.zeige_Diagramme();
    } else if (Argumente.contains(u"scale"_s)) {
        Fotos.zeige_Massstab(Argumente.back());
    } else {
        Fotos.gehe_durch();
    }
    return 0;
}
