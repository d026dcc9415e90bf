#include "records/satzschreiber.h"

#include <cmath>

#include "base/text.h"
#include "base/zahlen.h"
#include "records/satztext.h"
#include "records/zeilen.h"

namespace varnok {

void Satzschreiber::Ueberschrift(std::string_view Text) { Bytes_ += als_Satztext(Text, "the label") + "\r\n"; }

void Satzschreiber::beginne(std::string_view Beschriftung) {
    Tabellenzeile_ = 0;
    Name_ = '"' + std::string(ohne_Randblanks(Beschriftung)) + '"';
    Bytes_ += als_Satztext(Beschriftung, "the label") + '\t';
    Wertanfang_ = Bytes_.size();
}

void Satzschreiber::beginne_Tabellenzeile(int Nummer) {
    Tabellenzeile_ = Nummer;
    Name_ = Reihenname(Nummer);
    Wertanfang_ = Bytes_.size();
}

void Satzschreiber::Zwischenwert(const Feld& f) {
    schreibe(f);
    Bytes_ += '\t';
}

void Satzschreiber::Endwert(const Feld& f) {
    schreibe(f);
    // The reader sees no more of a line than this.
    if (Bytes_.size() - Wertanfang_ > Hoechstlaenge_Wert) {
        melde(f, Name_ + " is too long (more than " + std::to_string(Hoechstlaenge_Wert) + " characters)");
    }
    Bytes_ += "\r\n";
}

void Satzschreiber::schreibe(const Feld& f) {
    const std::string Text = als_Satztext(als_Text(f), Name_, Ort_von(f));
    if (Text.find('\t') != std::string::npos) melde(f, Name_ + " holds a tab");
    Bytes_ += Text;
}

std::string Satzschreiber::als_Text(const Feld& f) const {
    if (const auto Platz = std::get_if<std::string*>(&f.Platz)) return **Platz;
    if (const auto Platz = std::get_if<Zahlwert*>(&f.Platz)) return (*Platz)->Text();
    if (f.Art == Feldart::Zahl) return als_Zahltext(f, *std::get<double*>(f.Platz));

    int Zahl = 0;
    if (const auto Platz = std::get_if<std::uint8_t*>(&f.Platz)) Zahl = **Platz;
    if (const auto Platz = std::get_if<int*>(&f.Platz)) Zahl = **Platz;
    Zahl += f.Versatz;
    if (Zahl < f.von || Zahl > f.bis) melde(f, ausserhalb(std::to_string(Zahl), Name_, f));
    return std::to_string(Zahl);
}

std::string Satzschreiber::als_Zahltext(const Feld& f, double Zahl) const {
    const std::string Text = allgemeine_Zahl(Zahl, Dezimalzeichen_);
    // The largest double rounds up to a text that no longer fits into one.
    if (!std::isfinite(Zahl) || !std::isfinite(Wert(Text))) melde(f, "the value of " + Name_ + " is not finite");
    return Text;
}

Fehlerort Satzschreiber::Ort_von(const Feld& f) const {
    return {.Feld = std::string(f.Speicher),
            .i_studie = f.i_studie,
            .i_substanz = f.i_substanz,
            .Reihe = Tabellenzeile_,
            .Bezeichnung = Name_};
}

void Satzschreiber::melde(const Feld& f, const std::string& Grund) const {
    throw Laufzeitfehler("The record cannot be saved: " + Grund, Ort_von(f));
}

}  // namespace varnok
