#pragma once

// A small reader of rich text, written for the tests from the format's rules: groups, control words, one fallback
// character behind \u, tables of fonts and colours, pictures. It refuses what it does not expect.

#include <string>
#include <vector>

namespace varnok::probe {

struct RTF_Lauf {
    std::string Text;  // UTF-8
    std::string Schrift;
    int halbe_Punkte = 0;
    int Farbe = -1;  // 0xRRGGBB, -1 automatic
    bool fett = false;
    bool kursiv = false;
};

struct RTF_Absatz {
    std::vector<RTF_Lauf> Laeufe;
    bool zentriert = false;
    bool beim_naechsten = false;  // stays on the page of the next paragraph
    int links = 0, rechts = 0;    // twips
    std::vector<int> Tabulatoren;

    std::string Text() const;
};

struct RTF_Bild {
    std::string PNG;
    int Breite = 0, Hoehe = 0;          // pixels
    int Zielbreite = 0, Zielhoehe = 0;  // twips
    std::size_t Absatz = 0;
    std::size_t laengste_Zeile = 0;  // of its hexadecimal digits
};

struct RTF_Dokument {
    std::vector<RTF_Absatz> Absaetze;
    std::vector<RTF_Bild> Bilder;
    int Codepage = 0;

    std::string Text() const;  // paragraphs joined by CR LF
};

// Throws std::runtime_error for anything that breaks the rules.
RTF_Dokument lies_RTF(const std::string& Bytes);

}  // namespace varnok::probe
