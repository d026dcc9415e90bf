#include "base/zahlen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <system_error>

#include "base/text.h"

namespace varnok {
namespace {

bool ist_Ziffer(char z) { return z >= '0' && z <= '9'; }

// The leading number of a text as its reader needs it, and how much of the text it is.
struct Zahlzeichen {
    std::string Zeichen;      // blanks left out; empty without a digit
    std::size_t Ende = 0;     // behind its last character in the text
    bool mit_Luecke = false;  // blanks stand between its characters
};

Zahlzeichen finde_Zahl(std::string_view Text, bool Komma_als_Punkt) {
    Zahlzeichen Ergebnis;
    std::string& Zahl = Ergebnis.Zeichen;
    bool Punkt = false;
    bool Ziffer = false;
    bool Exponent = false;
    bool Luecke = false;
    std::size_t gueltig = 0;  // length up to which `Zahl` is a complete number
    for (std::size_t i = 0; i < Text.size(); ++i) {
        char z = Text[i];
        if (z == ' ') {
            Luecke = !Zahl.empty();
            continue;
        }
        if (z == ',' && Komma_als_Punkt) z = '.';
        const char davor = Zahl.empty() ? '\0' : Zahl.back();
        if (ist_Ziffer(z)) {
            Ziffer = true;
        } else if (z == '+' || z == '-') {
            if (davor != '\0' && davor != 'E') break;
        } else if (z == '.' && !Punkt && !Exponent) {
            Punkt = true;
        } else if ((z == 'E' || z == 'e') && Ziffer && !Exponent) {
            Exponent = true;
            z = 'E';
        } else {
            break;
        }
        Zahl.push_back(z);
        if (!ist_Ziffer(z) && !(z == '.' && Ziffer)) continue;
        gueltig = Zahl.size();
        Ergebnis.Ende = i + 1;
        Ergebnis.mit_Luecke = Luecke;
    }
    Zahl.resize(Ziffer ? gueltig : 0);
    return Ergebnis;
}

// Place of the first digit that counts: 0 for units, 3 for thousands, -2 for hundredths. The exponent may be
// too large for any integer; it then decides alone.
double Groessenordnung(const std::string& Zahl) {
    const auto Mantissenende = std::min(Zahl.find('E'), Zahl.size());
    double Exponent = 0;
    for (std::size_t i = Mantissenende; i < Zahl.size(); ++i) {
        if (ist_Ziffer(Zahl[i])) Exponent = 10 * Exponent + (Zahl[i] - '0');
    }
    if (Zahl.find('-', Mantissenende) != std::string::npos) Exponent = -Exponent;
    const auto Punkt = static_cast<double>(std::min(Zahl.find('.'), Mantissenende));
    const auto erste = static_cast<double>(Zahl.find_first_of("123456789"));
    return Exponent + (erste < Punkt ? Punkt - erste - 1 : Punkt - erste);
}

double lies(const std::string& Zahl) {
    if (Zahl.empty()) return 0.0;
    const char* Anfang = Zahl.data() + (Zahl.front() == '+' ? 1 : 0);
    const char* Ende = Zahl.data() + Zahl.size();
    double Ergebnis = 0.0;
    const auto [Rest, Fehler] = std::from_chars(Anfang, Ende, Ergebnis);
    if (Fehler != std::errc::result_out_of_range) return Ergebnis;
    // from_chars does not say which end of the range was left.
    if (Groessenordnung(Zahl) < 0) return 0.0;
    return Zahl.front() == '-' ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
}

// The number of a text that is nothing but one and has no sign, as nearly all in records; nothing for any other text.
std::optional<double> schlichte_Zahl(std::string_view Text) {
    if (Text.empty() || !ist_Ziffer(Text.front())) return std::nullopt;
    double Zahl = 0;
    const auto [Rest, Fehler] = std::from_chars(Text.data(), Text.data() + Text.size(), Zahl);
    if (Fehler != std::errc() || Rest != Text.data() + Text.size()) return std::nullopt;
    return Zahl;
}

// What people put between thousands, beside the blank, which the reader skips, and the separators of decimals. In UTF-8.
constexpr std::array<std::string_view, 11> Tausenderzeichen = {
    "'",           "`", "_", "\xC2\xB4", "\xC2\xB7", "\xC2\xA0", "\xE2\x80\x98", "\xE2\x80\x99", "\xE2\x80\x87", "\xE2\x80\x89",
    "\xE2\x80\xAF"};

// Whether one of these stands between two digits.
bool hat_Tausenderzeichen(std::string_view Text) {
    return std::any_of(Tausenderzeichen.begin(), Tausenderzeichen.end(), [&](std::string_view z) {
        for (auto i = Text.find(z); i != std::string_view::npos; i = Text.find(z, i + 1)) {
            const auto dahinter = i + z.size();
            if (i > 0 && dahinter < Text.size() && ist_Ziffer(Text[i - 1]) && ist_Ziffer(Text[dahinter])) return true;
        }
        return false;
    });
}

Zahllesung lies_mit_Rest(std::string_view Text, bool Komma_als_Punkt) {
    if (const auto schlichte = schlichte_Zahl(Text)) return {.Zahl = *schlichte};
    const Zahlzeichen z = finde_Zahl(Text, Komma_als_Punkt);
    Zahllesung l;
    l.Zahl = lies(z.Zeichen);
    l.ohne_Zahl = z.Zeichen.empty();
    l.Rest = ohne_Randblanks(l.ohne_Zahl ? Text : Text.substr(z.Ende));
    l.leer = l.ohne_Zahl && l.Rest.empty();
    l.mit_Luecke = !l.ohne_Zahl && z.mit_Luecke;
    const auto Mantisse = std::string_view(z.Zeichen).substr(0, z.Zeichen.find('E'));
    l.zu_klein = l.Zahl == 0 && Mantisse.find_first_of("123456789") != std::string_view::npos;
    const auto ist_Trennzeichen = [](char c) { return c == '.' || c == ','; };
    l.mehrere_Trennzeichen = std::count_if(Text.begin(), Text.end(), ist_Trennzeichen) > 1 || hat_Tausenderzeichen(Text);
    return l;
}

// Decimal digits and exponent of a value: 0.d1d2d3... times 10 to the power `Zehnerpotenz`.
struct Dezimaltext {
    bool negativ = false;
    std::string Ziffern;  // no zeros at the end, at least one digit
    int Zehnerpotenz = 1;
};

template <class Gleitzahl>
Dezimaltext zerlege(Gleitzahl Zahl, int Stellen) {
    char Puffer[64];
    const auto Ende = std::to_chars(Puffer, Puffer + sizeof Puffer, Zahl, std::chars_format::scientific, Stellen - 1).ptr;
    const std::string_view Text(Puffer, static_cast<std::size_t>(Ende - Puffer));
    Dezimaltext d;
    const auto Stelle_e = Text.find('e');
    for (const char z : Text.substr(0, Stelle_e)) {
        if (z == '-') d.negativ = true;
        if (ist_Ziffer(z)) d.Ziffern.push_back(z);
    }
    int Exponent = 0;
    std::string_view Exponententext = Text.substr(Stelle_e + 1);
    if (Exponententext.front() == '+') Exponententext.remove_prefix(1);
    std::from_chars(Exponententext.data(), Exponententext.data() + Exponententext.size(), Exponent);
    d.Zehnerpotenz = Exponent + 1;
    d.Ziffern.resize(std::max<std::size_t>(1, d.Ziffern.find_last_not_of('0') + 1));
    if (d.Ziffern == "0") d.negativ = false;
    return d;
}

std::string nicht_endlich(double Zahl) { return std::isnan(Zahl) ? "nan" : Zahl < 0 ? "-inf" : "inf"; }

template <class Gleitzahl>
std::string allgemein(Gleitzahl Zahl, int Stellen, char Dezimalzeichen) {
    if (!std::isfinite(Zahl)) return nicht_endlich(Zahl);
    // Short whole numbers, as most inputs are, have these digits and no others.
    if (std::abs(Zahl) < 1e5F && Zahl == std::trunc(Zahl) && Stellen >= 5) return std::to_string(static_cast<int>(Zahl));
    const Dezimaltext d = zerlege(Zahl, Stellen);
    const int Anzahl = static_cast<int>(d.Ziffern.size());
    const int Exponent = d.Zehnerpotenz - 1;
    std::string Text = d.negativ ? "-" : "";
    if (d.Ziffern == "0") return "0";
    if (Exponent < -4 || Exponent >= 15) {
        Text += d.Ziffern[0];
        if (Anzahl > 1) Text += Dezimalzeichen + d.Ziffern.substr(1);
        const int Betrag = std::abs(Exponent);
        Text += Exponent < 0 ? "E-" : "E+";
        if (Betrag < 10) Text += '0';
        Text += std::to_string(Betrag);
    } else if (Exponent < 0) {
        Text += '0';
        Text += Dezimalzeichen + std::string(static_cast<std::size_t>(-d.Zehnerpotenz), '0') + d.Ziffern;
    } else if (Anzahl <= d.Zehnerpotenz) {
        Text += d.Ziffern + std::string(static_cast<std::size_t>(d.Zehnerpotenz - Anzahl), '0');
    } else {
        const auto Stelle = static_cast<std::size_t>(d.Zehnerpotenz);
        Text += d.Ziffern.substr(0, Stelle) + Dezimalzeichen + d.Ziffern.substr(Stelle);
    }
    return Text;
}

template <class Gleitzahl>
void haenge_genau_an(std::string& Text, Gleitzahl Zahl) {
    if (!std::isfinite(Zahl)) {
        Text += nicht_endlich(static_cast<double>(Zahl));
        return;
    }
    char Puffer[64];
    Text.append(Puffer, std::to_chars(Puffer, Puffer + sizeof Puffer, Zahl).ptr);
}

template <class Gleitzahl>
std::string genau(Gleitzahl Zahl) {
    std::string Text;
    haenge_genau_an(Text, Zahl);
    return Text;
}

}  // namespace

double Wert(std::string_view Text) {
    const auto schlichte = schlichte_Zahl(Text);
    return schlichte ? *schlichte : lies(finde_Zahl(Text, true).Zeichen);
}

double fuehrende_Zahl(std::string_view Text) {
    const auto schlichte = schlichte_Zahl(Text);
    return schlichte ? *schlichte : lies(finde_Zahl(Text, false).Zeichen);
}

Zahllesung lies_Zahl(std::string_view Text) { return lies_mit_Rest(Text, true); }
Zahllesung lies_fuehrende_Zahl(std::string_view Text) { return lies_mit_Rest(Text, false); }

std::string allgemeine_Zahl(double Zahl, char Dezimalzeichen) { return allgemein(Zahl, 15, Dezimalzeichen); }
std::string allgemeine_Zahl(float Zahl, char Dezimalzeichen) { return allgemein(Zahl, 7, Dezimalzeichen); }

double wie_im_Satz(double Zahl) { return std::isfinite(Zahl) ? Wert(allgemeine_Zahl(Zahl)) : Zahl; }

std::string gekuerzte_Zahl(double Zahl, int Stellen, char Dezimalzeichen) { return allgemein(Zahl, Stellen, Dezimalzeichen); }

double gekuerzt(double Zahl, int Stellen) { return std::isfinite(Zahl) ? lies(gekuerzte_Zahl(Zahl, Stellen)) : Zahl; }

std::string feste_Zahl(double Zahl, int Nachkommastellen, char Dezimalzeichen) {
    if (!std::isfinite(Zahl)) return nicht_endlich(Zahl);
    const Dezimaltext d = zerlege(Zahl, 15);
    // All digits from the place before the point to the last one wanted, and one more that decides.
    const int fuehrend = std::max(d.Zehnerpotenz, 1);
    std::string Ziffern = std::string(static_cast<std::size_t>(fuehrend - std::min(d.Zehnerpotenz, fuehrend)), '0') + d.Ziffern;
    const auto behalten = static_cast<std::size_t>(fuehrend + Nachkommastellen);
    Ziffern.resize(std::max(Ziffern.size(), behalten + 1), '0');
    const bool aufrunden = Ziffern[behalten] >= '5';
    Ziffern.resize(behalten);
    std::size_t Stelle = behalten;
    while (aufrunden && Stelle > 0 && Ziffern[Stelle - 1] == '9') Ziffern[--Stelle] = '0';
    if (aufrunden && Stelle > 0) ++Ziffern[Stelle - 1];
    if (aufrunden && Stelle == 0) Ziffern.insert(Ziffern.begin(), '1');

    const bool null = Ziffern.find_first_not_of('0') == std::string::npos;
    std::string Text = d.negativ && !null ? "-" : "";
    const std::size_t Vorkommastellen = Ziffern.size() - static_cast<std::size_t>(Nachkommastellen);
    Text += Ziffern.substr(0, Vorkommastellen);
    if (Nachkommastellen > 0) Text += Dezimalzeichen + Ziffern.substr(Vorkommastellen);
    return Text;
}

double gerundet(double Zahl, int Nachkommastellen) { return lies(feste_Zahl(Zahl, Nachkommastellen)); }

std::string zweistellig(double Zahl) {
    constexpr double ohne_Exponent = 1e15;
    if (std::abs(Zahl) >= ohne_Exponent) return allgemeine_Zahl(Zahl);
    const std::string Ziffern = feste_Zahl(std::abs(Zahl), 0);
    std::string Text(Zahl < 0 && Ziffern != "0" ? 1 : 0, '-');
    Text.append(Ziffern.size() < 2 ? 1 : 0, '0');
    return Text += Ziffern;
}

std::string genaue_Zahl(float Zahl) { return genau(Zahl); }
std::string genaue_Zahl(double Zahl) { return genau(Zahl); }

void haenge_genaue_Zahl_an(std::string& Text, float Zahl) { haenge_genau_an(Text, Zahl); }
void haenge_genaue_Zahl_an(std::string& Text, double Zahl) { haenge_genau_an(Text, Zahl); }
void haenge_genaue_Zahl_an(std::string& Text, int Zahl) { Text += std::to_string(Zahl); }

std::optional<int> ganze_Zahl(double Zahl, int von, int bis) {
    const double gerundet = std::nearbyint(Zahl);
    if (!(gerundet >= von && gerundet <= bis)) return std::nullopt;
    return static_cast<int>(gerundet);
}

}  // namespace varnok
