#include "reports/seitenumbruch.h"

#include <QAbstractTextDocumentLayout>
#include <QTextLayout>
#include <algorithm>

#include "reports/textstelle.h"

namespace varnok {
namespace {

bool leer(const Druckzeile& z) { return z.Absatz.text().isEmpty(); }

// Whether a page may end behind the line that has this one behind it.
bool trennbar(const Druckzeile& z, const Druckzeile& naechste) {
    return z.Absatz != naechste.Absatz && !z.Absatz.blockFormat().boolProperty(bleibt_beim_naechsten);
}

std::vector<Druckzeile> alle_Zeilen(const QTextDocument& Dokument) {
    Dokument.documentLayout()->documentSize();  // lays it out to its end
    std::vector<Druckzeile> Zeilen;
    for (QTextBlock b = Dokument.begin(); b.isValid(); b = b.next()) {
        const QTextLayout* Zeilenlage = b.layout();
        for (int i = 0; i < Zeilenlage->lineCount(); ++i) {
            const double oben = Zeilenlage->position().y() + Zeilenlage->lineAt(i).y();
            Zeilen.push_back({b, i, oben, oben + Zeilenlage->lineAt(i).height()});
        }
    }
    while (!Zeilen.empty() && leer(Zeilen.back())) Zeilen.pop_back();
    return Zeilen;
}

}  // namespace

std::vector<Druckseite> teile_in_Seiten(const QTextDocument& Dokument, double Hoehe) {
    const std::vector<Druckzeile> Zeilen = alle_Zeilen(Dokument);
    std::vector<Druckseite> Seiten;
    auto von = Zeilen.begin();
    while (von != Zeilen.end()) {
        const auto passt = [&](const Druckzeile& z) { return z.unten - von->oben <= Hoehe; };
        const auto voll = std::find_if_not(von + 1, Zeilen.end(), passt);
        auto bis = voll;
        while (bis != Zeilen.end() && bis != von && !trennbar(*(bis - 1), *bis)) --bis;
        if (bis == von) bis = voll;
        Seiten.emplace_back(von, bis);
        von = std::find_if_not(bis, Zeilen.end(), leer);
    }
    return Seiten;
}

}  // namespace varnok
