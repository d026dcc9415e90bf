#include "reports/tabulatoren.h"

#include <QTextBlock>
#include <QTextCursor>

#include "reports/seitenmass.h"
#include "reports/twips.h"

namespace varnok {

QList<QTextOption::Tab> alle_Tabulatoren(const QTextBlockFormat& f) {
    QList<QTextOption::Tab> Liste = f.tabPositions();
    const int Einzug = Pixel_in_Twips(f.leftMargin());
    const int letzte = Liste.isEmpty() ? 0 : Pixel_in_Twips(Liste.constLast().position) + Einzug;
    for (int Stelle = (letzte / Tabulatorabstand + 1) * Tabulatorabstand; Stelle < Textbreite; Stelle += Tabulatorabstand) {
        if (Stelle > Einzug) Liste.append(QTextOption::Tab(Twips_in_Pixel(Stelle - Einzug), QTextOption::LeftTab));
    }
    return Liste;
}

void ergaenze_Tabulatoren(QTextDocument& Dokument) {
    for (QTextBlock b = Dokument.begin(); b.isValid(); b = b.next()) {
        QTextBlockFormat f;
        f.setTabPositions(alle_Tabulatoren(b.blockFormat()));
        QTextCursor(b).mergeBlockFormat(f);
    }
}

}  // namespace varnok
