#include "reports/rtf_schreiber.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextImageFormat>
#include <QTextOption>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/zeichensatz.h"
#include "reports/dokumentbild.h"
#include "reports/seitenmass.h"
#include "reports/textstelle.h"
#include "reports/twips.h"

namespace varnok {
namespace {

constexpr std::size_t Hexzeichen_pro_Zeile = 128;
constexpr double Vorgabegroesse = 10;  // points

// Without a name of its program some text processors read runs of blanks as something else and widen them.
constexpr const char* Erzeuger = "{\\*\\generator VARNOK;}\n";

// What a missing font is replaced by goes by its kind.
constexpr std::array<std::pair<const char*, const char*>, 7> Schriftarten = {{{"Arial", "\\fswiss"},
                                                                              {"Helvetica", "\\fswiss"},
                                                                              {"Sans", "\\fswiss"},
                                                                              {"Courier", "\\fmodern"},
                                                                              {"Mono", "\\fmodern"},
                                                                              {"Times", "\\froman"},
                                                                              {"Serif", "\\froman"}}};

constexpr std::array<std::pair<Qt::AlignmentFlag, const char*>, 3> Ausrichtungen = {
    {{Qt::AlignHCenter, "\\qc"}, {Qt::AlignRight, "\\qr"}, {Qt::AlignJustify, "\\qj"}}};

const char* Schriftart(const QString& Familie) {
    for (const auto& [Wort, Art] : Schriftarten) {
        if (Familie.contains(QLatin1String(Wort), Qt::CaseInsensitive)) return Art;
    }
    return "\\fnil";
}

std::string Befehl(const char* Name, int Zahl) { return std::string("\\") + Name + std::to_string(Zahl); }

void haenge_Hex_an(std::string& Ziel, unsigned char Byte) {
    constexpr const char* Ziffern = "0123456789abcdef";
    Ziel.push_back(Ziffern[Byte >> 4]);
    Ziel.push_back(Ziffern[Byte & 15]);
}

// A character is up to two units of UTF-16.
std::string als_RTF_Zeichen(QStringView Zeichen) {
    const std::string Utf8 = Zeichen.toUtf8().toStdString();
    const auto Byte = nach_Windows_1252(Utf8);
    // The five bytes that the code page leaves open are control characters and no text.
    const bool Steuerzeichen = Zeichen.size() == 1 && Zeichen[0].category() == QChar::Other_Control;
    if (Steuerzeichen) return {};
    std::string Text;
    if (Byte && Byte->size() == 1) {
        Text = "\\'";
        haenge_Hex_an(Text, static_cast<unsigned char>(Byte->front()));
        return Text;
    }
    for (const QChar Einheit : Zeichen) Text += Befehl("u", static_cast<std::int16_t>(Einheit.unicode())) + "?";
    return Text;
}

std::string als_Hexzeilen(const QByteArray& Bytes) {
    std::string Text;
    Text.reserve(static_cast<std::size_t>(Bytes.size()) * 2 + static_cast<std::size_t>(Bytes.size()) / 32);
    std::size_t in_Zeile = 0;
    for (const char b : Bytes) {
        if (in_Zeile == Hexzeichen_pro_Zeile) {
            Text.push_back('\n');
            in_Zeile = 0;
        }
        haenge_Hex_an(Text, static_cast<unsigned char>(b));
        in_Zeile += 2;
    }
    return Text;
}

std::string Seite() {
    std::string Text = Befehl("paperw", Papierbreite) + Befehl("paperh", Papierhoehe);
    for (const char* Rand : {"margl", "margr", "margt", "margb"}) Text += Befehl(Rand, Seitenrand);
    return Text + Befehl("deftab", Tabulatorabstand) + "\n";
}

// Fonts or colours in the order of their first use.
template <class T>
class Verzeichnis {
public:
    int Nummer(const T& Eintrag) {
        const auto Treffer = std::find(Eintraege_.begin(), Eintraege_.end(), Eintrag);
        const auto Stelle = Treffer - Eintraege_.begin();
        if (Treffer == Eintraege_.end()) Eintraege_.push_back(Eintrag);
        return static_cast<int>(Stelle);
    }
    const std::vector<T>& Eintraege() const { return Eintraege_; }

private:
    std::vector<T> Eintraege_;
};

class RTF_Schreiber {
public:
    explicit RTF_Schreiber(const QTextDocument& d) : d_(d) { Schriften_.Nummer(Familie(d.defaultFont())); }

    std::string schreibe() {
        std::string Absaetze;
        for (QTextBlock b = d_.begin(); b.isValid(); b = b.next()) {
            if (b != d_.begin()) Absaetze += "\\par\n";
            Absaetze += Absatz(b);
        }
        // The tables are known only now.
        return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n" + Schrifttabelle() + Farbtabelle() + Erzeuger + Herkunft() + Seite() +
               Absaetze + "}\n";
    }

private:
    static QString Familie(const QFont& f) { return f.families().isEmpty() ? f.family() : f.families().constFirst(); }

    std::string Herkunft() const {
        const QString Text = Herkunft_von(d_);
        return Text.isEmpty() ? std::string() : "{\\info{\\doccomm " + RTF_Text(Text) + "}}\n";
    }

    std::string Schrifttabelle() const {
        std::string Text = "{\\fonttbl";
        int Nummer = 0;
        for (const QString& f : Schriften_.Eintraege()) {
            Text += "{" + Befehl("f", Nummer++) + Schriftart(f) + "\\fcharset0 " + RTF_Text(f) + ";}";
        }
        return Text + "}\n";
    }

    // The place in front of the first semicolon is the automatic colour, so colours count from 1.
    std::string Farbtabelle() const {
        std::string Text = "{\\colortbl;";
        for (const QRgb f : Farben_.Eintraege()) {
            Text += Befehl("red", qRed(f)) + Befehl("green", qGreen(f)) + Befehl("blue", qBlue(f)) + ";";
        }
        return Text + "}\n";
    }

    static std::string Absatzformat(const QTextBlockFormat& f) {
        std::string Text = "\\pard\\plain";
        for (const auto& [Ausrichtung, Wort] : Ausrichtungen) {
            if (f.alignment() & Ausrichtung) Text += Wort;
        }
        if (f.boolProperty(bleibt_beim_naechsten)) Text += "\\keepn";
        if (f.leftMargin() > 0) Text += Befehl("li", Pixel_in_Twips(f.leftMargin()));
        if (f.rightMargin() > 0) Text += Befehl("ri", Pixel_in_Twips(f.rightMargin()));
        // Tab stops count from the page margin here, from the indent in the document.
        for (const QTextOption::Tab& t : f.tabPositions()) Text += Tabulator(t, f.leftMargin());
        return Text;
    }

    static std::string Tabulator(const QTextOption::Tab& t, double Einzug) {
        constexpr std::array Arten = {"", "\\tqr", "\\tqc", "\\tqdec"};
        return Arten.at(static_cast<std::size_t>(t.type)) + Befehl("tx", Pixel_in_Twips(t.position + Einzug));
    }

    std::string Zeichenformat(const QTextCharFormat& f) {
        const double Punkte = f.fontPointSize() > 0 ? f.fontPointSize() : Vorgabegroesse;
        const QFont Schrift = f.hasProperty(QTextFormat::FontFamilies) ? f.font() : d_.defaultFont();
        std::string Text =
            Befehl("f", Schriften_.Nummer(Familie(Schrift))) + Befehl("fs", static_cast<int>(std::lround(2 * Punkte)));
        if (f.fontWeight() >= QFont::DemiBold) Text += "\\b";
        if (f.fontItalic()) Text += "\\i";
        if (f.fontUnderline()) Text += "\\ul";
        if (f.foreground().style() != Qt::NoBrush) Text += Befehl("cf", Farben_.Nummer(f.foreground().color().rgb()) + 1);
        return Text;
    }

    std::string Absatz(const QTextBlock& b) {
        std::string Text = Absatzformat(b.blockFormat());
        bool leer = true;
        for (auto i = b.begin(); !i.atEnd(); ++i) {
            Text += Stueck(i.fragment());
            leer = false;
        }
        // An empty line is as high as its font.
        return leer ? Text + Zeichenformat(b.charFormat()) + " " : Text;
    }

    std::string Stueck(const QTextFragment& s) {
        const QTextCharFormat f = s.charFormat();
        if (f.isImageFormat()) return Bild(f.toImageFormat());
        return "{" + Zeichenformat(f) + " " + RTF_Text(s.text()) + "}";
    }

    std::string Bild(const QTextImageFormat& f) const {
        const auto Abbild = d_.resource(QTextDocument::ImageResource, QUrl(f.name())).value<QImage>();
        if (Abbild.isNull()) return {};
        const double Breite = f.width() > 0 ? f.width() : Abbild.width();
        const double Hoehe = f.height() > 0 ? f.height() : Abbild.height();
        return "{\\*\\shppict{\\pict\\pngblip" + Befehl("picw", Abbild.width()) + Befehl("pich", Abbild.height()) +
               Befehl("picwgoal", Pixel_in_Twips(Breite)) + Befehl("pichgoal", Pixel_in_Twips(Hoehe)) + "\n" +
               als_Hexzeilen(als_PNG(Abbild)) + "}}";
    }

    const QTextDocument& d_;
    Verzeichnis<QString> Schriften_;
    Verzeichnis<QRgb> Farben_;
};

}  // namespace

std::string RTF_Text(const QString& Text) {
    constexpr char32_t Zeilentrenner = 0x2028;
    std::string Rtf;
    for (qsizetype i = 0; i < Text.size();) {
        const bool Paar = Text[i].isHighSurrogate() && i + 1 < Text.size() && Text[i + 1].isLowSurrogate();
        const QStringView Zeichen = QStringView(Text).mid(i, Paar ? 2 : 1);
        const char16_t z = Zeichen[0].unicode();
        if (z == u'\t') {
            Rtf += "\\tab ";
        } else if (z == Zeilentrenner) {
            Rtf += "\\line ";
        } else if (z == u'{' || z == u'}' || z == u'\\') {
            Rtf += {'\\', static_cast<char>(z)};
        } else if (z >= 0x20 && z < 0x7F) {
            Rtf.push_back(static_cast<char>(z));
        } else {
            Rtf += als_RTF_Zeichen(Zeichen);
        }
        i += Zeichen.size();
    }
    return Rtf;
}

std::string als_RTF(const QTextDocument& Dokument) { return RTF_Schreiber(Dokument).schreibe(); }

}  // namespace varnok
