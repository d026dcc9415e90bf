#include "rtf_leser.h"

#include <cctype>
#include <map>
#include <set>
#include <stdexcept>

#include "base/zeichensatz.h"

namespace varnok::probe {
namespace {

[[noreturn]] void falsch(const std::string& Was) { throw std::runtime_error("rich text: " + Was); }

std::string als_Utf8(char32_t z) {
    const auto c = [](char32_t x) { return static_cast<char>(static_cast<unsigned char>(x)); };
    if (z < 0x80) return {c(z)};
    if (z < 0x800) return {c(0xC0 | z >> 6), c(0x80 | (z & 63))};
    if (z < 0x10000) return {c(0xE0 | z >> 12), c(0x80 | (z >> 6 & 63)), c(0x80 | (z & 63))};
    return {c(0xF0 | z >> 18), c(0x80 | (z >> 12 & 63)), c(0x80 | (z >> 6 & 63)), c(0x80 | (z & 63))};
}

struct Zustand {
    enum Art { Text, Schriften, Farben, Bild, ueberlesen };
    Art Ziel = Text;
    int Schrift = 0, halbe_Punkte = 24, Farbe = 0, uc = 1;
    bool fett = false, kursiv = false;
};

class Leser {
public:
    explicit Leser(const std::string& Bytes) : b_(Bytes) {}

    RTF_Dokument lies() {
        if (!b_.starts_with("{\\rtf1")) falsch("no header");
        d_.Absaetze.emplace_back();
        while (i_ < b_.size()) {
            const char z = b_[i_];
            if (static_cast<unsigned char>(z) >= 0x80) falsch("a byte outside ASCII");
            if (z == '{') {
                Stapel_.push_back(s_);
                ++i_;
            } else if (z == '}') {
                schliesse();
            } else if (z == '\\') {
                ++i_;
                Steuerung();
            } else if (z == '\n' || z == '\r') {
                ++i_;
                Zeilenlaenge_ = 0;
            } else {
                ++i_;
                Zeichen(z);
            }
            if (Stapel_.empty() && b_.find_first_not_of("\r\n", i_) != std::string::npos) falsch("text behind the end");
            if (Stapel_.empty()) break;
        }
        if (!Stapel_.empty()) falsch("a group stays open");
        return d_;
    }

private:
    void schliesse() {
        if (Stapel_.empty()) falsch("a brace too many");
        if (s_.Ziel == Zustand::Bild && Stapel_.back().Ziel != Zustand::Bild) {
            Bild_.Absatz = d_.Absaetze.size() - 1;
            d_.Bilder.push_back(Bild_);
            Bild_ = {};
        }
        s_ = Stapel_.back();
        Stapel_.pop_back();
        ++i_;
    }

    void Zeichen(char z) {
        if (s_.Ziel == Zustand::Text) return Schreibe(std::string(1, z));
        if (s_.Ziel == Zustand::Schriften) {
            if (z != ';') Schriften_[s_.Schrift] += z;
        } else if (s_.Ziel == Zustand::Farben) {
            if (z != ';') falsch("text in the table of colours");
            Farben_.push_back(Farbanfang_ ? (rot_ << 16 | gruen_ << 8 | blau_) : -1);
            Farbanfang_ = false;
        } else if (s_.Ziel == Zustand::Bild) {
            if (!std::isxdigit(static_cast<unsigned char>(z))) falsch("a picture digit that is none");
            Bild_.laengste_Zeile = std::max(Bild_.laengste_Zeile, ++Zeilenlaenge_);
            const int Wert = z <= '9' ? z - '0' : z - 'a' + 10;
            if (halb_ < 0) {
                halb_ = Wert;
            } else {
                Bild_.PNG.push_back(static_cast<char>(halb_ << 4 | Wert));
                halb_ = -1;
            }
        }
    }

    void Schreibe(const std::string& Utf8) {
        if (ueberspringen_ > 0) {
            --ueberspringen_;
            return;
        }
        if (s_.Ziel == Zustand::Schriften) {
            Schriften_[s_.Schrift] += Utf8;
            return;
        }
        auto& Laeufe = d_.Absaetze.back().Laeufe;
        const RTF_Lauf neu = {"", Schriften_[s_.Schrift], s_.halbe_Punkte, Farbe(), s_.fett, s_.kursiv};
        const bool weiter = !Laeufe.empty() && Laeufe.back().Schrift == neu.Schrift &&
                            Laeufe.back().halbe_Punkte == neu.halbe_Punkte && Laeufe.back().Farbe == neu.Farbe &&
                            Laeufe.back().fett == neu.fett && Laeufe.back().kursiv == neu.kursiv;
        if (!weiter) Laeufe.push_back(neu);
        Laeufe.back().Text += Utf8;
    }

    int Farbe() const {
        if (static_cast<std::size_t>(s_.Farbe) >= Farben_.size()) falsch("a colour that the table does not have");
        return Farben_[static_cast<std::size_t>(s_.Farbe)];
    }

    void Steuerung() {
        const char z = b_.at(i_);
        if (std::isalpha(static_cast<unsigned char>(z))) return Wort();
        ++i_;
        if (z == '\'') {
            const std::string Hex = b_.substr(i_, 2);
            i_ += 2;
            return Schreibe(aus_Windows_1252(std::string(1, static_cast<char>(std::stoi(Hex, nullptr, 16)))));
        }
        if (z == '*') return;
        if (z != '\\' && z != '{' && z != '}') falsch("an unknown control symbol");
        Schreibe(std::string(1, z));
    }

    void Wort() {
        std::string Name, Zahl;
        while (i_ < b_.size() && std::isalpha(static_cast<unsigned char>(b_[i_]))) Name += b_[i_++];
        if (b_.at(i_) == '-') Zahl += b_[i_++];
        while (i_ < b_.size() && std::isdigit(static_cast<unsigned char>(b_[i_]))) Zahl += b_[i_++];
        if (b_.at(i_) == ' ') ++i_;  // the delimiter belongs to the word
        Befehl(Name, Zahl.empty() ? 1 : std::stoi(Zahl));
    }

    using Wirkung = void (*)(Leser&, int);

    void Befehl(const std::string& n, int Zahl) {
        static const std::map<std::string, Wirkung> Wirkungen = {
            {"fonttbl", [](Leser& l, int) { l.s_.Ziel = Zustand::Schriften; }},
            {"colortbl", [](Leser& l, int) { l.s_.Ziel = Zustand::Farben; }},
            {"generator", [](Leser& l, int) { l.s_.Ziel = Zustand::ueberlesen; }},
            {"pict", [](Leser& l, int) { l.beginne_Bild(); }},
            {"f", [](Leser& l, int Wert) { l.s_.Schrift = Wert; }},
            {"fs", [](Leser& l, int Wert) { l.s_.halbe_Punkte = Wert; }},
            {"cf", [](Leser& l, int Wert) { l.s_.Farbe = Wert; }},
            {"b", [](Leser& l, int Wert) { l.s_.fett = Wert != 0; }},
            {"i", [](Leser& l, int Wert) { l.s_.kursiv = Wert != 0; }},
            {"uc", [](Leser& l, int Wert) { l.s_.uc = Wert; }},
            {"plain", [](Leser& l, int) { l.s_ = {l.s_.Ziel, 0, 24, 0, l.s_.uc, false, false}; }},
            {"pard", [](Leser& l, int) { l.Absatz() = {std::move(l.Absatz().Laeufe), false, false, 0, 0, {}}; }},
            {"par", [](Leser& l, int) { l.naechster_Absatz(); }},
            {"qc", [](Leser& l, int) { l.Absatz().zentriert = true; }},
            {"keepn", [](Leser& l, int) { l.Absatz().beim_naechsten = true; }},
            {"li", [](Leser& l, int Wert) { l.Absatz().links = Wert; }},
            {"ri", [](Leser& l, int Wert) { l.Absatz().rechts = Wert; }},
            {"tx", [](Leser& l, int Wert) { l.Absatz().Tabulatoren.push_back(Wert); }},
            {"tab", [](Leser& l, int) { l.Schreibe("\t"); }},
            {"line", [](Leser& l, int) { l.Schreibe("\n"); }},
            {"u", [](Leser& l, int Wert) { l.Unicode(Wert); }},
            {"red",
             [](Leser& l, int Wert) {
                 l.rot_ = Wert;
                 l.Farbanfang_ = true;
             }},
            {"green", [](Leser& l, int Wert) { l.gruen_ = Wert; }},
            {"blue", [](Leser& l, int Wert) { l.blau_ = Wert; }},
            {"ansicpg", [](Leser& l, int Wert) { l.d_.Codepage = Wert; }},
            {"picw", [](Leser& l, int Wert) { l.Bild_.Breite = Wert; }},
            {"pich", [](Leser& l, int Wert) { l.Bild_.Hoehe = Wert; }},
            {"picwgoal", [](Leser& l, int Wert) { l.Bild_.Zielbreite = Wert; }},
            {"pichgoal", [](Leser& l, int Wert) { l.Bild_.Zielhoehe = Wert; }},
        };
        const auto Treffer = Wirkungen.find(n);
        if (Treffer != Wirkungen.end()) return Treffer->second(*this, Zahl);
        if (!bedeutungslos(n)) falsch("an unknown word \\" + n);
    }

    RTF_Absatz& Absatz() { return d_.Absaetze.back(); }

    void naechster_Absatz() {
        RTF_Absatz naechster = Absatz();
        naechster.Laeufe.clear();
        d_.Absaetze.push_back(std::move(naechster));
    }

    void beginne_Bild() {
        s_.Ziel = Zustand::Bild;
        halb_ = -1;
        Zeilenlaenge_ = 0;
    }

    static bool bedeutungslos(const std::string& n) {
        static const std::set<std::string> Woerter = {"rtf",   "ansi",     "deff",   "fswiss",  "fmodern", "froman",
                                                      "fnil",  "fcharset", "paperw", "paperh",  "margl",   "deftab",
                                                      "margr", "margt",    "margb",  "shppict", "pngblip"};
        return Woerter.contains(n);
    }

    void Unicode(int Zahl) {
        const auto Einheit = static_cast<char32_t>(Zahl < 0 ? Zahl + 65536 : Zahl);
        if (Einheit >= 0xD800 && Einheit < 0xDC00) {
            hohes_ = Einheit;
        } else if (Einheit >= 0xDC00 && Einheit < 0xE000) {
            if (hohes_ == 0) falsch("half a pair");
            Schreibe(als_Utf8(0x10000 + ((hohes_ - 0xD800) << 10) + (Einheit - 0xDC00)));
            hohes_ = 0;
        } else {
            Schreibe(als_Utf8(Einheit));
        }
        ueberspringen_ = s_.uc;
    }

    const std::string& b_;
    std::size_t i_ = 0;
    Zustand s_;
    std::vector<Zustand> Stapel_;
    RTF_Dokument d_;
    std::map<int, std::string> Schriften_;
    std::vector<int> Farben_;
    RTF_Bild Bild_;
    int rot_ = 0, gruen_ = 0, blau_ = 0, halb_ = -1, ueberspringen_ = 0;
    bool Farbanfang_ = false;
    std::size_t Zeilenlaenge_ = 0;
    char32_t hohes_ = 0;
};

}  // namespace

std::string RTF_Absatz::Text() const {
    std::string Alles;
    for (const RTF_Lauf& l : Laeufe) Alles += l.Text;
    return Alles;
}

std::string RTF_Dokument::Text() const {
    std::string Alles;
    for (std::size_t i = 0; i < Absaetze.size(); ++i) Alles += (i > 0 ? "\r\n" : "") + Absaetze[i].Text();
    return Alles;
}

RTF_Dokument lies_RTF(const std::string& Bytes) { return Leser(Bytes).lies(); }

}  // namespace varnok::probe
