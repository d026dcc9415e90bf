#include "window/kern/zwischenablage.h"

#include <QApplication>
#include <QClipboard>
#include <QTableWidget>
#include <QtCore/QMimeData>
#include <algorithm>

#include "painting/bildausgabe.h"

namespace varnok {

using namespace Qt::StringLiterals;

void kopiere_Zellen(const QTableWidget& Tafel) {
    QStringList Zeilen;
    QString Html = u"<table>"_s;
    const auto Bereiche = Tafel.selectedRanges();
    for (int i = 0; i < Tafel.rowCount(); ++i) {
        QStringList Zellen;
        for (int j = 0; j < Tafel.columnCount(); ++j) {
            const bool gewaehlt = std::any_of(Bereiche.begin(), Bereiche.end(), [&](const QTableWidgetSelectionRange& b) {
                return i >= b.topRow() && i <= b.bottomRow() && j >= b.leftColumn() && j <= b.rightColumn();
            });
            if (!gewaehlt) continue;
            const QTableWidgetItem* Zelle = Tafel.item(i, j);
            Zellen << (Zelle ? Zelle->text().trimmed() : QString());
        }
        if (Zellen.isEmpty()) continue;
        Zeilen << Zellen.join(u'\t');
        Html += u"<tr>"_s;
        for (const QString& z : Zellen) Html += u"<td>"_s + z.toHtmlEscaped() + u"</td>"_s;
        Html += u"</tr>"_s;
    }
    if (Zeilen.isEmpty()) return;
    auto* Inhalt = new QMimeData;
    Inhalt->setText(Zeilen.join(u'\n') + u'\n');
    Inhalt->setHtml(Html + u"</table>"_s);
    QApplication::clipboard()->setMimeData(Inhalt);
}

void kopiere_Bild(const Zeichenliste& z, const QString& Titel, const QSizeF& Groesse, int dpi) {
    auto* Inhalt = new QMimeData;
    Inhalt->setImageData(Bild_als_Pixel(z, Groesse, dpi));
    Inhalt->setData(u"image/svg+xml"_s, Bild_als_SVG(z, Titel, Groesse));
    QApplication::clipboard()->setMimeData(Inhalt);
}

void kopiere_Zahlen(const QString& mit_Tabulatoren, const QString& CSV) {
    auto* Inhalt = new QMimeData;
    Inhalt->setText(mit_Tabulatoren);
    Inhalt->setData(u"text/csv"_s, CSV.toUtf8());
    QApplication::clipboard()->setMimeData(Inhalt);
}

}  // namespace varnok
