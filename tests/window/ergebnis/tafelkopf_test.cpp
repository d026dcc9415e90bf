// The heads of the table of six studies: what is seen of them tells the studies apart, however narrow their columns are.

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>
#include <QTest>

#include "window/kern/anmeldung.h"
#include "window/kern/fensterprobe.h"
#include "window/kern/mitschrift.h"

using namespace Qt::StringLiterals;

namespace varnok {
namespace {

const QByteArrayList shipped = {"Soil 1, first order",  "Soil 2, biphasic",    "Soil 3, multi-compartment",
                                "Soil 4, hockey stick", "Soil 5, first order", "Soil 6, trial at 15 \260C"};

void benenne_Studien(const QString& Projekt, const QByteArrayList& Namen) {
    QFile f(Projekt + u"/input/Compound E with two metabolites in sequence.che"_s);
    if (!f.open(QIODevice::ReadWrite)) qFatal("no record of six studies");
    QByteArray Bytes = f.readAll();
    for (int i = 0; i < 6; ++i) {
        const qsizetype Stelle = Bytes.indexOf('\t' + shipped[i] + '\r');
        if (Stelle < 0) qFatal("the record has no study %s", shipped[i].constData());
        Bytes.replace(Stelle + 1, shipped[i].size(), Namen[i]);
    }
    f.resize(0);
    f.seek(0);
    f.write(Bytes);
}

// A text in the lines that it was set in.
QImage gemalt(const QTableWidget& Tafel, const QSize& Groesse, const QString& Text) {
    QImage Bild(Groesse, QImage::Format_RGB32);
    Bild.fill(QColor(230, 233, 232));
    QPainter p(&Bild);
    p.setFont(Tafel.font());
    p.setPen(Tafel.palette().color(QPalette::Text));
    p.drawText(Bild.rect(), Qt::AlignCenter, Text);
    return Bild;
}

// Dots of letters.
int Tinte(const QImage& Bild) {
    int n = 0;
    for (int y = 0; y < Bild.height(); ++y) {
        for (int x = 0; x < Bild.width(); ++x) n += qGray(Bild.pixel(x, y)) < 128 ? 1 : 0;
    }
    return n;
}

}  // namespace

class Tafelkopftest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        p_.reset();
        QApplication::setFont(alte_Schrift_);
    }

    void no_two_heads_look_alike_data() {
        QTest::addColumn<QByteArrayList>("Namen");
        QTest::addColumn<int>("Punkt");
        const auto alle = [](const char* vorn, const char* hinten) {
            QByteArrayList Namen;
            for (char c = '1'; c <= '6'; ++c) Namen << QByteArray(vorn) + c + hinten;
            return Namen;
        };
        for (const int Punkt : {9, 14}) {
            QTest::addRow("as shipped, %d pt", Punkt) << shipped << Punkt;
            QTest::addRow("a long beginning, %d pt", Punkt)
                << alle("Field dissipation study, Northern Europe, site ", "") << Punkt;
            QTest::addRow("a long ending, %d pt", Punkt) << alle("S", " sampled in the first autumn after sowing") << Punkt;
            QTest::addRow("one in the middle, %d pt", Punkt)
                << alle("Silty clay loam of plot ", " sampled in the autumn") << Punkt;
            QTest::addRow("without blanks, %d pt", Punkt)
                << alle("Dissipation_in_silty_clay_loam_", "_sampled_in_autumn") << Punkt;
            QTest::addRow("all of one name, %d pt", Punkt) << QByteArrayList(6, "Soil") << Punkt;
        }
    }
    void no_two_heads_look_alike() {
        QFETCH(QByteArrayList, Namen);
        QFETCH(int, Punkt);
        starte(Punkt, Namen);
        for (const QSize& Groesse : {p_->Fenster().minimumSize(), QSize(1180, 760), QSize(1600, 1000)}) {
            p_->Fenster().resize(Groesse.expandedTo(p_->Fenster().minimumSize()));
            QTest::qWait(20);
            auto* Tafel = Vorderste();
            QVERIFY(Tafel);
            QCOMPARE(Tafel->columnCount(), 7);
            QList<QImage> Koepfe;
            for (int j = 1; j <= 6; ++j) {
                const QImage Kopf = Tafel->viewport()->grab(Tafel->visualItemRect(Tafel->item(0, j))).toImage();
                for (const QImage& anderer : Koepfe) QVERIFY2(Kopf != anderer, qPrintable(u"column %1"_s.arg(j)));
                Koepfe << Kopf;
                // The whole name is in the tip and in what is copied.
                QCOMPARE(Tafel->item(0, j)->toolTip().toLatin1(), Namen[j - 1]);
                QCOMPARE(Tafel->item(0, j)->text().trimmed().toLatin1(), Namen[j - 1]);
            }
            for (int j = 1; j <= 6; ++j) {
                const QRect Ort = Tafel->visualItemRect(Tafel->item(0, j));
                const int Soll = Tinte(gemalt(*Tafel, Ort.size(), Tafel->item(0, j)->data(Qt::UserRole).toString()));
                const int Ist = Tinte(Koepfe[j - 1]);
                QVERIFY2(std::abs(Ist - Soll) <= 6 + Soll / 5,
                         qPrintable(u"column %1 has %2 dots of %3"_s.arg(j).arg(Ist).arg(Soll)));
            }
            QVERIFY(Tafel->window()->rect().contains(QRect(Tafel->mapTo(Tafel->window(), QPoint(0, 0)), Tafel->size())));
            QVERIFY(Tafel->parentWidget()->parentWidget()->rect().contains(Tafel->parentWidget()->geometry()));
        }
    }

    void names_that_find_room_are_whole() {
        starte(9, shipped);
        p_->Fenster().resize(1700, 1000);
        QTest::qWait(20);
        const auto* Tafel = Vorderste();
        for (int j = 1; j <= 6; ++j) {
            const QString Kopf = Tafel->item(0, j)->data(Qt::UserRole).toString();
            QCOMPARE(QString(Kopf).remove(u'\n').remove(u' ').toLatin1(), QByteArray(shipped[j - 1]).replace(" ", ""));
            QVERIFY(Tafel->rowHeight(0) >= (Kopf.count(u'\n') + 1) * (Tafel->fontMetrics().height() - 1));
        }
    }

private:
    void starte(int Punkt, const QByteArrayList& Namen) {
        QApplication::setFont(QFont(u"DejaVu Sans"_s, Punkt));
        p_ = std::make_unique<Fensterprobe>(&Fragen_, [&](const QString& Projekt) { benenne_Studien(Projekt, Namen); });
        p_->starte();
        p_->waehle_Simulation("Sugar beet, Compound E");
        p_->waehle("PEC_Typ_0");
        p_->Teil<QAction>("M_Zusammenfassung")->trigger();
        Fragen_.nimm();
    }
    QTableWidget* Vorderste() {
        for (auto* t : p_->Fenster().findChildren<QTableWidget*>()) {
            if (t->isVisible() && t->objectName().startsWith(u"Ergebnisse_Zusammenfassung"_s)) return t;
        }
        return nullptr;
    }

    Mitschrift Fragen_;
    QFont alte_Schrift_ = QApplication::font();
    std::unique_ptr<Fensterprobe> p_;
};

namespace {
const Anmeldung<Tafelkopftest> angemeldet;
}

}  // namespace varnok

#include "tafelkopf_test.moc"
