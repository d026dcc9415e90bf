#include "reports/ausgabenamen.h"

#include <QDateTime>
#include <algorithm>

#include "run/bezeichnungen.h"

namespace varnok {
namespace {

// Places of `Ausgabename_Teile`; the first one, the product, changes nothing.
enum Namensteil : std::size_t { Studie = 1, Kinetik = 2, Endpunkt = 3, Datum = 4, Zeit = 5 };
// What the extended report makes of them.
enum erweiterter_Namensteil : std::size_t { Jahre_erweitert = 4, Datum_erweitert = 5, Zeit_erweitert = 6 };

bool will(const Darstellung& d, std::size_t Teil) { return d.Namen.Parameter.Ausgabename_Teile[Teil] == 1; }

std::string Endpunktteil(const Darstellung& d) { return " - " + std::string(Endpunktnamen[d.Sicht.Endpunkt]) + " conc"; }

std::string Kinetikname(const Ergebnis& e, int c) {
    const Kinetikart Art = e.Vorgabe->Parameter.Kinetik[static_cast<std::size_t>(c)][static_cast<std::size_t>(e.i_studie)];
    return std::string(Kinetiknamen.at(Art));
}

std::string Kinetikteil(const Ergebnis& e) {
    const int Anzahl = Anzahl_Stoffe(e.Vorgabe->Berechnungsmodus);
    if (Anzahl == 1) return " - " + Kinetikname(e, 0);
    std::string Teil = " - (" + Kinetikname(e, 0);
    for (int c = 1; c < Anzahl; ++c) Teil += " - " + Kinetikname(e, c);
    return Teil + ")";
}

}  // namespace

Berichtszeit Berichtszeit_nach(const Uhr& u) {
    const auto Sekunden = std::chrono::duration_cast<std::chrono::seconds>(u.jetzt().time_since_epoch()).count();
    const QDateTime Zeitpunkt = QDateTime::fromSecsSinceEpoch(Sekunden);
    const QDate Tag = Zeitpunkt.date();
    const std::string Monat(Monatsnamen.at(static_cast<std::size_t>(Tag.month() - 1)));
    return {zweistellig(Tag.day()) + " " + Monat + " " + std::to_string(Tag.year()),
            zweistellig(Zeitpunkt.time().hour()) + ":" + zweistellig(Zeitpunkt.time().minute())};
}

std::string Datum_als_Text(const Berichtszeit& z) { return z.Datum; }

std::string Zeit_als_Text(const Berichtszeit& z) {
    std::string Text = z.Zeit;
    std::replace(Text.begin(), Text.end(), ':', '.');
    return Text;
}

std::string Ausgabename_Standardbericht(const Darstellung& d, const Berichtszeit& z) {
    std::string Name = d.Namen.Beschreibung;
    if (will(d, Studie)) Name += " - " + d.Namen.Studie.at(static_cast<std::size_t>(d.Sicht.Studie_Index));
    if (will(d, Kinetik)) Name += Kinetikteil(d.Studie());
    if (will(d, Endpunkt)) Name += Endpunktteil(d);
    if (will(d, Datum)) Name += " - " + Datum_als_Text(z);
    if (will(d, Zeit)) Name += " - " + Zeit_als_Text(z);
    return Name;
}

std::string Ausgabename_erweiterter_Bericht(const Darstellung& d, const Berichtszeit& z) {
    std::string Name = d.Namen.Beschreibung;
    if (will(d, Endpunkt)) Name += Endpunktteil(d);
    if (will(d, Jahre_erweitert)) Name += d.Sicht.PEC_Typ == Hintergrund ? " - 10 years" : " - 1 year";
    if (will(d, Datum_erweitert)) Name += " - " + Datum_als_Text(z);
    if (will(d, Zeit_erweitert)) Name += " - " + Zeit_als_Text(z);
    return Name;
}

}  // namespace varnok
