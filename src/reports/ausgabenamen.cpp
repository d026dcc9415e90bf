#include "reports/ausgabenamen.h"

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <algorithm>

#include "base/laufzeitfehler.h"
#include "diagrams/ansicht.h"
#include "records/projektordner.h"
#include "reports/berichtswoerter.h"

namespace varnok {
namespace {

constexpr int Hintergrund = 1;  // position of "Background" in `PEC_Typ`

// Places of `Ausgabename_Teile`; the first one, the product, changes nothing.
enum Namensteil : std::size_t { Studie = 1, Kinetik = 2, Endpunkt = 3, Datum = 4, Zeit = 5 };
// What the extended report makes of them.
enum erweiterter_Namensteil : std::size_t { Jahre_erweitert = 4, Datum_erweitert = 5, Zeit_erweitert = 6 };

bool will(const Lauf& l, std::size_t Teil) { return l.Parameter.Ausgabename_Teile[Teil] == 1; }

std::string Endpunktteil(const Lauf& l) {
    return std::string(" - ") + Berichtswort::Endpunkt.at(static_cast<std::size_t>(l.Felder.Endpunkt)) + " conc";
}

std::string Kinetikname(const Lauf& l, int c) { return std::string(Kinetiktext(l, c, l.Felder.Studie_Index)); }

std::string Kinetikteil(const Lauf& l) {
    const int Anzahl = Anzahl_Stoffe(l.Felder.Berechnungsmodus);
    if (Anzahl == 1) return " - " + Kinetikname(l, 0);
    std::string Teil = " - (" + Kinetikname(l, 0);
    for (int c = 1; c < Anzahl; ++c) Teil += " - " + Kinetikname(l, c);
    return Teil + ")";
}

std::string ersetzt(std::string Text, char Zeichen) {
    std::replace(Text.begin(), Text.end(), Zeichen, '.');
    return Text;
}

// The first characters of a text, not bytes.
std::string Anfang(const std::string& Text, qsizetype Zeichen) {
    return QString::fromStdString(Text).left(Zeichen).toStdString();
}

}  // namespace

Berichtszeit Berichtszeit_nach(const Uhr& u) {
    const auto Sekunden = std::chrono::duration_cast<std::chrono::seconds>(u.jetzt().time_since_epoch()).count();
    const QDateTime Zeitpunkt = QDateTime::fromSecsSinceEpoch(Sekunden);
    const QLocale Region = QLocale::system();
    // The long format is the one with seconds; it names the time zone, too.
    const QString Zeitformat = Region.timeFormat(QLocale::LongFormat).remove(u't').trimmed();
    return {Region.toString(Zeitpunkt.date(), QLocale::ShortFormat).toStdString(),
            Region.toString(Zeitpunkt.time(), Zeitformat).toStdString()};
}

std::string Datum_als_Text(const Berichtszeit& z) { return ersetzt(z.Datum, '/'); }

std::string Zeit_als_Text(const Berichtszeit& z) { return ersetzt(Anfang(z.Zeit, 5), ':'); }

std::string Ausgabename_Standardbericht(const Lauf& l, const Berichtszeit& z) {
    std::string Name = l.Felder.Beschreibung;
    if (will(l, Studie)) Name += " - " + l.Felder.Studie.at(static_cast<std::size_t>(l.Felder.Studie_Index));
    if (will(l, Kinetik)) Name += Kinetikteil(l);
    if (will(l, Endpunkt)) Name += Endpunktteil(l);
    if (will(l, Datum)) Name += " - " + Datum_als_Text(z);
    if (will(l, Zeit)) Name += " - " + Zeit_als_Text(z);
    return Name;
}

std::string Ausgabename_erweiterter_Bericht(const Lauf& l, const Berichtszeit& z) {
    std::string Name = l.Felder.Beschreibung;
    if (will(l, Endpunkt)) Name += Endpunktteil(l);
    if (will(l, Jahre_erweitert)) Name += l.Felder.PEC_Typ == Hintergrund ? " - 10 years" : " - 1 year";
    if (will(l, Datum_erweitert)) Name += " - " + Datum_als_Text(z);
    if (will(l, Zeit_erweitert)) Name += " - " + Zeit_als_Text(z);
    return Name;
}

void pruefe_Ausgabename(const std::string& Name) {
    std::string Einwand = Einwand_gegen_Namen(Name);
#ifdef _WIN32
    if (Einwand.empty() && Name.find_first_of(":*?\"<>|") != std::string::npos)
        Einwand = "it holds one of the characters : * ? \" < > |";
#endif
    if (!Einwand.empty()) throw Laufzeitfehler("\"" + Name + "\" cannot be the name of a report: " + Einwand);
}

}  // namespace varnok
