#include "records/einstellungen.h"

#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/wertebereiche.h"
#include "base/zahlen.h"
#include "base/zeichensatz.h"
#include "records/einwaende.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

bool ist_Utf8(const std::string& Bytes) { return QString::fromStdString(Bytes).toStdString() == Bytes; }

bool ist_Ascii(std::string_view Text) {
    return std::all_of(Text.begin(), Text.end(), [](char z) { return static_cast<unsigned char>(z) < 0x80; });
}

// A project path may hold characters that the code page does not have. Such a line stands in UTF-8, and
// so does one whose bytes would be taken for UTF-8: every text comes back as it was.
std::string als_Zeile(const std::string& Text) {
    if (Text.find_first_of("\r\n") != std::string::npos) {
        throw Laufzeitfehler("The settings cannot be saved: \"" + Text + "\" holds a line end");
    }
    const auto Bytes = nach_Windows_1252(Text);
    const bool verwechselbar = Bytes && !ist_Ascii(*Bytes) && ist_Utf8(*Bytes);
    return (Bytes && !verwechselbar ? *Bytes : Text) + "\r\n";
}

std::string aus_Zeile(std::string_view Zeile) {
    const std::string Bytes(Zeile);
    return ist_Utf8(Bytes) ? Bytes : aus_Windows_1252(Bytes);
}

// As the platform prints a number: a place for the sign in front, a separator behind.
std::string als_Dauer(double Tage) {
    std::string Zeile(Tage < 0 ? 0 : 1, ' ');
    return Zeile += allgemeine_Zahl(Tage) + " \r\n";
}

constexpr const char* Bildzeile = "Pictures:";

// The lines of a settings file with what is doubtful about them.
class Einstellungsleser {
public:
    Einstellungsleser(const std::string& Bytes, const std::string& Datei, std::vector<Bemerkung>* Bemerkungen)
        : Zeilen_(Bytes), Datei_(Datei), Bemerkungen_(Bemerkungen) {}

    bool lies_Byte(std::uint8_t& Ziel, const char* Feld) {
        const auto Zeile = Zeilen_.naechste();
        if (!Zeile) return fehlt(Feld);
        const std::string_view Text = hinter_Tabulator(*Zeile);
        const Zahllesung l = lies_Zahl(Text);
        const auto Zahl = ganze_Zahl(l.Zahl, 0, 255);
        if (!Zahl) return bemerke(Feld, "this is no code from 0 to 255", Text);
        Ziel = static_cast<std::uint8_t>(*Zahl);
        bemerke_Einwand(Feld, Einwand_gegen_Zahl(l, *Zahl), Text, *Zahl);
        return true;
    }

    bool lies_Text(std::string& Ziel, const char* Feld) {
        const auto Zeile = Zeilen_.naechste();
        if (!Zeile) return fehlt(Feld);
        Ziel = aus_Zeile(*Zeile);
        return true;
    }

    // Older files end before it.
    void lies_letzten_Text(std::string& Ziel) {
        if (const auto Zeile = Zeilen_.naechste()) Ziel = aus_Zeile(*Zeile);
    }

    // Numbers out of their range, or another line than that, are none of this program.
    void lies_Bildzeile(Bildeinstellung& Ziel) {
        const auto Zeile = Zeilen_.naechste();
        if (!Zeile) return;
        const auto Teile = zerlege_an(*Zeile, '\t');
        if (Teile.size() != 5 || Teile[0] != Bildzeile) return;
        const auto Breite = ganze_Zahl(Wert(Teile[1]), kleinstes_Bild, groesstes_Bild);
        const auto Hoehe = ganze_Zahl(Wert(Teile[2]), kleinstes_Bild, groesstes_Bild);
        const auto Aufloesung = ganze_Zahl(Wert(Teile[3]), kleinste_Aufloesung, groesste_Aufloesung);
        if (Breite && Hoehe && Aufloesung) Ziel = {*Breite, *Hoehe, *Aufloesung, Wert(Teile[4]) > 0};
    }

    template <std::size_t n>
    bool lies_Liste(std::array<double, n>& Liste) {
        return std::all_of(Liste.begin(), Liste.end(), [this](double& Dauer) { return lies_Dauer(Dauer); });
    }

private:
    static constexpr const char* Fenster = "length of an averaging window";

    bool lies_Dauer(double& Ziel) {
        const auto Zeile = Zeilen_.naechste();
        if (!Zeile) return fehlt(Fenster);
        const auto Anfang = std::min(Zeile->find_first_not_of(" \t"), Zeile->size());
        const std::string_view Text = Zeile->substr(Anfang);
        const Zahllesung l = lies_Zahl(Text);
        if (l.ohne_Zahl || !std::isfinite(l.Zahl)) return bemerke(Fenster, "this is no number of days", Text);
        Ziel = l.Zahl;
        const std::string am_Text = Einwand_gegen_Zahl(l, l.Zahl);
        bemerke_Einwand(Fenster, am_Text.empty() ? Einwand_gegen_Wert(*finde_Wertebereich("TWA"), Ziel) : am_Text, Text, Ziel);
        return true;
    }

    // Both give false for the caller that cannot go on.
    bool fehlt(const char* Feld) { return bemerke(Feld, "the file ends before it", {}, Zeilen_.Nummer() + 1); }
    bool bemerke(const char* Feld, const char* Meldung, std::string_view Text, int Zeile = 0) {
        if (Bemerkungen_) Bemerkungen_->push_back({Datei_, Zeile ? Zeile : Zeilen_.Nummer(), Feld, Meldung, Auszug(Text), {}});
        return false;
    }

    void bemerke_Einwand(const char* Feld, const std::string& Einwand, std::string_view Text, double Wert) {
        if (Bemerkungen_ && !Einwand.empty())
            Bemerkungen_->push_back({Datei_, Zeilen_.Nummer(), Feld, Einwand, Auszug(Text), Wert});
    }

    Zeilenfolge Zeilen_;
    const std::string& Datei_;
    std::vector<Bemerkung>* Bemerkungen_;
};

std::string als_Bildzeile(const Bildeinstellung& b) {
    std::string Zeile = Bildzeile;
    for (const int Zahl : {b.Breite, b.Hoehe, b.Aufloesung, static_cast<int>(b.fuer_Druck)}) Zeile += '\t' + std::to_string(Zahl);
    return Zeile + "\r\n";
}

}  // namespace

std::optional<Gelesene_Einstellungen> zerlege_Einstellungen(const std::string& Bytes, const std::string& Datei,
                                                            std::vector<Bemerkung>* Bemerkungen) {
    Einstellungsleser Leser(Bytes, Datei, Bemerkungen);
    Gelesene_Einstellungen g;
    Einstellungen& e = g.Werte;
    const bool gelesen = Leser.lies_Byte(e.Tips_anzeigen, "tooltips") && Leser.lies_Byte(e.Farbeinstellung, "appearance") &&
                         Leser.lies_Text(e.TWA_Titel_EU, "title of the EU list") && Leser.lies_Liste(g.TWA.EU) &&
                         Leser.lies_Text(e.TWA_Titel_Monat, "title of the monthly list") && Leser.lies_Liste(g.TWA.Monat);
    if (!gelesen) return std::nullopt;
    Leser.lies_letzten_Text(e.Projektpfad);
    Leser.lies_Bildzeile(e.Bild);
    return g;
}

std::string Einstellungen_als_Bytes(const Einstellungen& e, const TWA_Listen& TWA) {
    std::string Bytes = "Tooltips:\t" + std::to_string(e.Tips_anzeigen) + "\r\n";
    Bytes += "Appearance:\t" + std::to_string(e.Farbeinstellung) + "\r\n";
    Bytes += als_Zeile(e.TWA_Titel_EU);
    for (const double Tage : TWA.EU) Bytes += als_Dauer(Tage);
    Bytes += als_Zeile(e.TWA_Titel_Monat);
    for (const double Tage : TWA.Monat) Bytes += als_Dauer(Tage);
    Bytes += als_Zeile(e.Projektpfad);
    return e.Bild == Bildeinstellung() ? Bytes : Bytes + als_Bildzeile(e.Bild);
}

}  // namespace varnok
