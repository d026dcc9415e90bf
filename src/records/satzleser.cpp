#include "records/satzleser.h"

#include <cmath>
#include <utility>

#include "base/text.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"

namespace varnok {
namespace {

// A text of the file for a message, shortened where it is long.
std::string Auszug(std::string_view Text) {
    constexpr std::size_t Hoechstlaenge = 40;
    const std::string_view Kern = ohne_Randblanks(Text);
    return aus_Windows_1252(Kern.substr(0, Hoechstlaenge)) + (Kern.size() > Hoechstlaenge ? "..." : "");
}

// A day or month with two digits. What is far from being one stays short with an exponent.
std::string zweistellig(double Zahl) {
    constexpr double ohne_Exponent = 1e15;
    if (std::abs(Zahl) >= ohne_Exponent) return allgemeine_Zahl(Zahl);
    const std::string Ziffern = feste_Zahl(std::abs(Zahl), 0);
    std::string Text(Zahl < 0 && Ziffern != "0" ? 1 : 0, '-');
    Text.append(Ziffern.size() < 2 ? 1 : 0, '0');
    return Text += Ziffern;
}

}  // namespace

std::string Satzleser::Zeilenname::Text() const {
    if (Tabellenzeile > 0) return "row " + std::to_string(Tabellenzeile) + " of the application table";
    if (Beschriftung == Trennlinientext) return "the divider";
    return '"' + std::string(ohne_Randblanks(Beschriftung)) + '"';
}

std::string_view Satzleser::naechste_Zeile(Zeilenname Name) {
    Name_ = Name;
    Stelle_ = 0;
    const auto Zeile = Zeilen_.naechste();
    if (!Zeile) {
        throw Lesefehler(Lesefehler::Ursache::Aufbau, Zeilen_.Nummer() + 1, 0, "the file ends before " + Name.Text());
    }
    return *Zeile;
}

void Satzleser::Ueberschrift(std::string_view Text) { naechste_Zeile({Text.substr(0, Text.find('\t'))}); }

void Satzleser::beginne(std::string_view Beschriftung) { Rest_ = hinter_Tabulator(naechste_Zeile({Beschriftung})); }

void Satzleser::beginne_Tabellenzeile(int Nummer) { Rest_ = naechste_Zeile({{}, Nummer}); }

void Satzleser::Zwischenwert(const Feld& f) {
    const auto Tabulator = Rest_.find('\t');
    if (Tabulator == std::string_view::npos) {
        throw Lesefehler(Lesefehler::Ursache::Aufbau, Zeilen_.Nummer(), Stelle_,
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
        case Feldart::Zahl:
            *std::get<double*>(f.Platz) = lies_Zahl(f, Text);
            return;
        case Feldart::Text:
            if (Text.find('\t') != std::string_view::npos)
                bemerke(Zeilen_.Nummer(), Name_.Text() + " holds a tab, which cannot be saved again");
            *std::get<std::string*>(f.Platz) = aus_Windows_1252(Text);
            return;
        case Feldart::Zahltext:
            *std::get<Zahlwert*>(f.Platz) = allgemeine_Zahl(lies_Zahl(f, Text), Dezimalzeichen_);
            return;
        case Feldart::Tageszahl:
            *std::get<Zahlwert*>(f.Platz) = Text.empty() ? "" : zweistellig(lies_Zahl(f, Text));
            return;
        case Feldart::Rohzahl:
            lies_Zahl(f, Text);
            *std::get<Zahlwert*>(f.Platz) = aus_Windows_1252(Text);
            return;
    }
}

double Satzleser::lies_Zahl(const Feld& f, std::string_view Text) {
    const double Zahl = f.mit_Komma ? Wert(Text) : fuehrende_Zahl(Text);
    if (!std::isfinite(Zahl)) melde_Wert('"' + Auszug(Text) + "\" is too large a number for " + Name_.Text());
    if (!ist_Zahl_oder_leer(Text))
        bemerke(Zeilen_.Nummer(), '"' + Auszug(Text) + "\" is no number and was read as 0 for " + Name_.Text());
    return Zahl;
}

void Satzleser::lies_ganze_Zahl(const Feld& f, std::string_view Text) {
    const double Zahl = lies_Zahl(f, Text);
    const int Versatz = f.Versatz();
    const auto Ganze = ganze_Zahl(Zahl - Versatz, f.von - Versatz, f.bis - Versatz);
    if (f.abwaehlbar && ganze_Zahl(Zahl - Versatz, -1, -1)) *std::get<int*>(f.Platz) = -1;
    if (!Ganze || (f.Art == Feldart::Kennzahl && *Ganze != Zahl)) melde_Wert(ausserhalb(Auszug(Text), Name_.Text(), f));
    if (*Ganze + Versatz != Wert(Text)) {
        bemerke(Zeilen_.Nummer(),
                '"' + Auszug(Text) + "\" was read as " + std::to_string(*Ganze + Versatz) + " for " + Name_.Text());
    }
    if (const auto Platz = std::get_if<std::uint8_t*>(&f.Platz)) **Platz = static_cast<std::uint8_t>(*Ganze);
    if (const auto Platz = std::get_if<int*>(&f.Platz)) **Platz = *Ganze;
}

void Satzleser::melde_Wert(const std::string& Grund) {
    throw Lesefehler(Lesefehler::Ursache::Wert, Zeilen_.Nummer(), Stelle_, Grund);
}

}  // namespace varnok
