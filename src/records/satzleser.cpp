#include "records/satzleser.h"

#include <cmath>
#include <utility>

#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "records/einwaende.h"
#include "run/laufeingang.h"

namespace varnok {
namespace {

// With the single pattern there is one application, whatever the number says.
bool wird_gelesen(const Eingabe& e, const Wertebereich& Speicher, int i_studie, int i_substanz) {
    if (Speicher.Name == "Anzahl") return e.Applikationsmuster != einzeln;
    return liest_ein_Lauf(e, Speicher.Name, i_studie, i_substanz);
}

}  // namespace

std::string Satzleser::Zeilenname::Text() const {
    if (Tabellenzeile > 0) return Reihenname(Tabellenzeile);
    if (Beschriftung == Trennlinientext) return "the divider";
    return '"' + std::string(ohne_Randblanks(Beschriftung)) + '"';
}

std::string Satzleser::Zeilenname::Feldname(const Feld& f) const {
    std::string Name = Tabellenzeile > 0 ? Reihenname(Tabellenzeile) : varnok::Zeilenname(Beschriftung);
    if (!f.Teil.empty()) Name += ", " + std::string(f.Teil);
    if (f.i_studie >= 0) Name += ", study " + std::to_string(f.i_studie + 1);
    return Name;
}

std::string_view Satzleser::naechste_Zeile(Zeilenname Name) {
    Name_ = Name;
    Stelle_ = 0;
    const auto Zeile = Zeilen_.naechste();
    if (!Zeile) {
        Fehlerort Ort = Ort_von({}, {});
        ++Ort.Zeile;
        throw Lesefehler(Lesefehler::Ursache::Aufbau, std::move(Ort), 0, "the file ends before " + Name.Text());
    }
    return *Zeile;
}

void Satzleser::Ueberschrift(std::string_view Text) { naechste_Zeile({Text.substr(0, Text.find('\t'))}); }

void Satzleser::beginne(std::string_view Beschriftung) { Rest_ = hinter_Tabulator(naechste_Zeile({Beschriftung})); }

void Satzleser::beginne_Tabellenzeile(int Nummer) { Rest_ = naechste_Zeile({{}, Nummer}); }

void Satzleser::Zwischenwert(const Feld& f) {
    const auto Tabulator = Rest_.find('\t');
    if (Tabulator == std::string_view::npos) {
        throw Lesefehler(Lesefehler::Ursache::Aufbau, Ort_von(f, Rest_), Stelle_,
                         Name_.Text() + " has too few values (no tab behind value " + std::to_string(Stelle_ + 1) + ")");
    }
    lies(f, ohne_Randblanks(Rest_.substr(0, Tabulator)));
    Rest_ = hinter_Tabulator(Rest_);
    ++Stelle_;
}

void Satzleser::Endwert(const Feld& f) {
    lies(f, Rest_.substr(0, Hoechstlaenge_Wert));
    ++Stelle_;
}

bool Satzleser::folgt_Trennlinie() {
    const auto Zeile = Zeilen_.voraus();
    if (!Zeile || Zeile->find("------") == std::string_view::npos) return false;
    Zeilen_.naechste();
    return true;
}

void Satzleser::lies(const Feld& f, std::string_view Text) {
    switch (f.Art) {
        case Feldart::ganze_Zahl:
        case Feldart::Kennzahl:
            return lies_ganze_Zahl(f, Text);
        case Feldart::Text:
            if (Text.find('\t') != std::string_view::npos)
                bemerke(Zeilen_.Nummer(), Name_.Text() + " holds a tab, which cannot be saved again");
            *std::get<std::string*>(f.Platz) = aus_Windows_1252(Text);
            return;
        default:
            return lies_Wert(f, Text);
    }
}

void Satzleser::lies_Wert(const Feld& f, std::string_view Text) {
    const Zahllesung l = lies_Zahl(f, Text);
    double genommen = l.Zahl;
    if (const auto* Platz = std::get_if<double*>(&f.Platz)) {
        **Platz = l.Zahl;
    } else {
        Zahlwert& Ziel = *std::get<Zahlwert*>(f.Platz);
        if (f.Art == Feldart::Zahltext) Ziel = Zahlwert::in_allgemeiner_Form(l.Zahl, Dezimalzeichen_);
        if (f.Art == Feldart::Rohzahl) Ziel = aus_Windows_1252(Text);
        if (f.Art == Feldart::Tageszahl) {
            Ziel = Text.empty() ? "" : zweistellig(l.Zahl);
            genommen = Ziel.Zahl();
        }
    }
    bemerke_Wert(f, Text, l, genommen);
}

Zahllesung Satzleser::lies_Zahl(const Feld& f, std::string_view Text) {
    const Zahllesung l = f.mit_Komma ? varnok::lies_Zahl(Text) : lies_fuehrende_Zahl(Text);
    if (!std::isfinite(l.Zahl)) melde_Wert(f, Text, '"' + Auszug(Text) + "\" is too large a number for " + Name_.Text());
    return l;
}

void Satzleser::lies_ganze_Zahl(const Feld& f, std::string_view Text) {
    const Zahllesung l = lies_Zahl(f, Text);
    const auto Ganze = ganze_Zahl(l.Zahl - f.Versatz, f.von - f.Versatz, f.bis - f.Versatz);
    if (!Ganze || (f.Art == Feldart::Kennzahl && *Ganze != l.Zahl))
        melde_Wert(f, Text, ausserhalb(Auszug(Text), Name_.Text(), f));
    bemerke_Wert(f, Text, l, *Ganze + f.Versatz);
    if (const auto Platz = std::get_if<std::uint8_t*>(&f.Platz)) **Platz = static_cast<std::uint8_t>(*Ganze);
    if (const auto Platz = std::get_if<int*>(&f.Platz)) **Platz = *Ganze;
}

void Satzleser::bemerke_Wert(const Feld& f, std::string_view Text, const Zahllesung& l, double genommen) {
    const std::string am_Text = Einwand_gegen_Zahl(l, genommen);
    const std::string am_Wert = f.Grenzen ? Einwand_gegen_Wert(*f.Grenzen, genommen) : std::string();
    if (am_Text.empty() && am_Wert.empty()) return;
    const bool immer = !am_Text.empty() && !l.leer;
    const std::string Meldung = am_Text + (am_Text.empty() || am_Wert.empty() ? "" : "; ") + am_Wert;
    Bemerkungen_.push_back({{Datei_, Zeilen_.Nummer(), Name_.Feldname(f), Meldung, Auszug(Text), genommen},
                            immer ? nullptr : f.Grenzen,
                            f.i_studie,
                            f.i_substanz});
}

std::vector<Bemerkung> Satzleser::Bemerkungen(const Eingabe& e) const {
    std::vector<Bemerkung> Geltende;
    for (const Vorgemerktes& v : Bemerkungen_) {
        if (!v.Speicher || wird_gelesen(e, *v.Speicher, v.i_studie, v.i_substanz)) Geltende.push_back(v.Was);
    }
    return Geltende;
}

Fehlerort Satzleser::Ort_von(const Feld& f, std::string_view Text) const {
    return {.Datei = Datei_,
            .Zeile = Zeilen_.Nummer(),
            .Feld = std::string(f.Speicher),
            .i_studie = f.i_studie,
            .i_substanz = f.i_substanz,
            .Text = Auszug(Text),
            .Reihe = Name_.Tabellenzeile,
            .Bezeichnung = Name_.Feldname(f)};
}

void Satzleser::melde_Wert(const Feld& f, std::string_view Text, const std::string& Grund) {
    throw Lesefehler(Lesefehler::Ursache::Wert, Ort_von(f, Text), Stelle_, Grund);
}

}  // namespace varnok
