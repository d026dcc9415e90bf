#include "session/eingabe/applikationstabelle.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "base/wertebereiche.h"
#include "records/einwaende.h"
#include "session/kern/texte.h"
#include "session/kern/zahleneingabe.h"

namespace varnok {

namespace {

constexpr std::array Spalten = {Grenzen_von("Tabellentag"), Grenzen_von("Tabellenmonat"), Grenzen_von("Tabellenrate"),
                                Grenzen_von("Tabelleninterzeption")};

const Wertebereich& Grenzen(Zelle z) { return *Spalten.at(static_cast<std::size_t>(z.Spalte)); }

// How the status line names a cell.
std::string Zellenname(Zelle z) {
    constexpr std::array Spaltennamen = {"day", "month", "rate", "interception"};
    return std::string(Spaltennamen.at(static_cast<std::size_t>(z.Spalte))) + " in row " + std::to_string(z.Zeile + 1);
}

// An empty cell of a day or month is one that was not filled yet: the check of the table tells of it.
bool darf_leer_sein(Zelle z) { return !Grenzen(z).Grenzen.enthaelt(0); }

}  // namespace

bool Applikationstabelle::enthaelt(Zelle z) const {
    return z.Zeile >= 0 && z.Spalte >= 0 && z.Zeile < static_cast<int>(z_.Vorgabe.Applikationsschema.size()) && z.Spalte < 4;
}

void Applikationstabelle::setze(Zelle z, Zahlwert v) {
    if (!enthaelt(z)) return;
    Zahlwert& Ziel = z_.Vorgabe.Applikationsschema[static_cast<std::size_t>(z.Zeile)][static_cast<std::size_t>(z.Spalte)];
    if (Ziel == v) return;
    Ziel = std::move(v);
    z_.Saetze[Applikation].merke_Aenderung();
}

const Zahlwert& Applikationstabelle::Wert(Zelle z) const {
    return z_.Vorgabe.Applikationsschema.at(static_cast<std::size_t>(z.Zeile)).at(static_cast<std::size_t>(z.Spalte));
}

bool Applikationstabelle::ausserhalb(Zelle z) const {
    if (!enthaelt(z) || in_Arbeit_ == z || (Text(z).empty() && darf_leer_sein(z))) return false;
    return !Einwand_gegen_Wert(Grenzen(z), Wert(z).Zahl()).empty();
}

// What an accepted text becomes in its cell.
Zahlwert Applikationstabelle::als_Zellwert(Zelle z, const Zahlwert& v, std::string& Meldung) const {
    const bool leer = ohne_Randblanks(v.Text()).empty();
    return leer && darf_leer_sein(z) ? Zahlwert() : nimm_Zahl_an(z_, Zellenname(z), v, Meldung);
}

bool Applikationstabelle::schliesse_ab() {
    const auto z = std::exchange(in_Arbeit_, std::nullopt);
    // A record may have been read meanwhile, or the row cut off.
    if (!z || !enthaelt(*z) || Text(*z) != getippt_) return true;
    if (Wert(*z).eindeutig()) {
        std::string Meldung;
        setze(*z, als_Zellwert(*z, Wert(*z), Meldung));
        z_.Statuszeile.sage_Zahl(Meldung);
        return true;
    }
    in_Arbeit_ = z;
    Laeufe_.melde_Zelle(*z);
    melde(z_, Texte::keine_gueltige_Eingabe, Grenzen(*z).Meldung);
    return false;
}

void Applikationstabelle::tippe(Zelle z, std::string Text) {
    if (in_Arbeit_ && !(*in_Arbeit_ == z) && !schliesse_ab()) return;
    if (!in_Arbeit_) vor_dem_Tippen_ = this->Text(z);
    getippt_ = Text;
    in_Arbeit_ = z;
    setze(z, std::move(Text));
}

void Applikationstabelle::nimm_Ungueltiges_zurueck() {
    if (!in_Arbeit_ || !enthaelt(*in_Arbeit_) || Text(*in_Arbeit_) != getippt_ || Wert(*in_Arbeit_).eindeutig()) return;
    setze(*std::exchange(in_Arbeit_, std::nullopt), vor_dem_Tippen_);
}

void Applikationstabelle::haenge_an(Zelle z, char Zeichen) { tippe(z, Text(z) + Zeichen); }

void Applikationstabelle::nimm_letztes(Zelle z) {
    std::string gekuerzt = Text(z);
    if (gekuerzt.empty()) return;
    gekuerzt.pop_back();
    tippe(z, std::move(gekuerzt));
}

void Applikationstabelle::leere(Zelle z) { tippe(z, ""); }

void Applikationstabelle::fuege_ein(Zelle z, const std::string& Text) {
    const char* abgelehnt = nullptr;
    std::string Meldung;
    int i = z.Zeile;
    for (std::string_view Zeile : zerlege_an(Text, '\n')) {
        if (!Zeile.empty() && Zeile.back() == '\r') Zeile.remove_suffix(1);
        if (Zeile.empty()) continue;
        int j = z.Spalte;
        for (const std::string_view Zellentext : zerlege_an(Zeile, '\t')) {
            const Zelle Ziel = {i, j++};
            if (!enthaelt(Ziel)) continue;
            const Zahlwert Kern(std::string(ohne_Randblanks(Zellentext)));
            const bool ohne_Zahl = !Kern.leer() && Kern.ohne_Zahl();
            if (!Kern.eindeutig() || (ohne_Zahl && darf_leer_sein(Ziel))) {
                if (!abgelehnt) abgelehnt = Grenzen(Ziel).Meldung;
                continue;
            }
            setze(Ziel, als_Zellwert(Ziel, Kern, Meldung));
        }
        ++i;
    }
    z_.Statuszeile.sage_Zahl(Meldung);
    if (abgelehnt) melde(z_, Texte::keine_gueltige_Eingabe, abgelehnt);
}

void Applikationstabelle::bestaetige() {
    if (!schliesse_ab()) return;
    z_.zeige_Studien();
    Laeufe_.berechne_auf_Wunsch(true);
}

}  // namespace varnok
