#include "session/programm/feldhilfe.h"

#include <QFileInfo>
#include <QUrl>
#include <algorithm>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "extras/tooltiptabelle.h"
#include "painting/qt_text.h"
#include "records/dateien.h"
#include "session/eingabe/feldtabelle.h"

namespace varnok {
namespace {

struct Seite {
    std::string_view Anfang;  // of the object name of a control or of what it stands in; empty: any
    const char* Datei;
    const char* Abschnitt;
};

// The first line that fits one of the names, the innermost name first.
constexpr Seite Seiten[] = {
    {"Liste_", "README.md", "A project folder"},
    {"Szenarioliste", "README.md", "A project folder"},
    {"Simulationen", "README.md", "A project folder"},
    {"Frame2", "README.md", "A project folder"},
    {"Fruchtwechsel", "docs/glossary.md", "Results"},
    {"Kinetikschema", "docs/glossary.md", "Compounds and degradation"},
    {"Applikationsrahmen", "docs/glossary.md", "Applications"},
    {"Szenario", "docs/glossary.md", "Soil and scenario"},
    {"untere_Zeile", "docs/glossary.md", "Results"},
    {"Berechnungsmodus", "docs/glossary.md", "Results"},
    {"Bericht", "docs/glossary.md", "Reports and batch"},
    {"Ergebnis", "docs/glossary.md", "Results"},
    {"Diagramm", "README.md", "In the window"},
    {"", "README.md", "In the window"},
};

struct Verweis {
    const char* Datei;
    const char* Titel;
};
constexpr Verweis ganze_Seiten[] = {{"README.md", "the program and its files"},
                                    {"docs/input.md", "what is typed and what is read"},
                                    {"docs/glossary.md", "glossary"},
                                    {"docs/batch_at_work.md", "varnok-batch"}};

// The cells of a table have a range each.
struct Spalte {
    std::string_view Objektname;
    const char* Titel;
    const char* Bereich;
};
constexpr Spalte Spalten[] = {{"Applikationsschema", "Day", "Tabellentag"},
                              {"Applikationsschema", "Month", "Tabellenmonat"},
                              {"Applikationsschema", "Rate", "Tabellenrate"},
                              {"Applikationsschema", "Interception", "Tabelleninterzeption"}};

// Letters that would be marks of Markdown.
std::string woertlich(std::string_view Text) {
    std::string Ergebnis;
    for (const char z : Text) {
        if (std::string_view("\\`*_{}[]<>#|").find(z) != std::string_view::npos) Ergebnis += '\\';
        Ergebnis += z;
    }
    return Ergebnis;
}

// Of a control that is named twice the later tip counts.
std::string Tip_von(const std::string& Name, const std::vector<std::string>& Tips) {
    std::string Tip;
    for (const Tooltipziel& z : Tooltiptabelle()) {
        const bool gemeint = std::find(z.Objektnamen.begin(), z.Objektnamen.end(), Name) != z.Objektnamen.end();
        if (gemeint && z.Tip <= Tips.size()) Tip = Tips[z.Tip - 1];
    }
    return Tip;
}

std::string Grenzen(const Wertebereich& w) {
    std::string Text = "**Accepted:** " + als_Text(w.Grenzen);
    if (w.ueblich.von != w.Grenzen.von || w.ueblich.bis != w.Grenzen.bis) Text += " (usual: " + als_Text(w.ueblich) + ")";
    return Text + ", **unit:** " + (w.Einheit.empty() ? "none" : woertlich(w.Einheit)) + "\n\n";
}

std::string Bereich_von(const std::string& Name) {
    std::string Text;
    for (const Spalte& s : Spalten) {
        if (s.Objektname == Name) Text += std::string(s.Titel) + ": " + Grenzen(*finde_Wertebereich(s.Bereich));
    }
    if (!Text.empty()) return Text;
    const int Feld = Feld_mit_Namen(Name);
    if (Feld >= 0) return Grenzen(*Feldtabelle()[static_cast<std::size_t>(Feld)].Bereich);
    const Wertebereich* w =
        finde_Wertebereich(Name.starts_with("S_") ? std::string_view(Name).substr(2) : std::string_view(Name));
    return w ? Grenzen(*w) : "";
}

std::string Kopf(const Hilfefrage& f) {
    std::string Text = "# " + woertlich(f.Aufschrift) + "\n\n";
    std::string Tip;
    for (auto Name = f.Objektnamen.begin(); Name != f.Objektnamen.end() && Tip.empty(); ++Name) Tip = Tip_von(*Name, f.Tips);
    for (const std::string_view Zeile : zerlege_an(Tip, '\n')) Text += woertlich(Zeile) + "\n\n";
    return Text + (f.Objektnamen.empty() ? "" : Bereich_von(f.Objektnamen.front()));
}

const Seite& Seite_von(const std::vector<std::string>& Objektnamen) {
    for (const std::string& Name : Objektnamen) {
        const auto Treffer = std::find_if(std::begin(Seiten), std::end(Seiten) - 1,
                                          [&](const Seite& s) { return std::string_view(Name).starts_with(s.Anfang); });
        if (Treffer != std::end(Seiten) - 1) return *Treffer;
    }
    return *(std::end(Seiten) - 1);
}

std::string lies_Seite(const std::string& Pfad) {
    try {
        return lies_Datei_falls_moeglich(Pfad).value_or("");
    } catch (const Laufzeitfehler&) {
        return {};
    }
}

// From the heading to the next one of its rank.
std::string Abschnitt(const std::string& Text, const std::string& Ueberschrift) {
    const std::string Zeile = "## " + Ueberschrift + "\n";
    const std::size_t Anfang = Text.find(Zeile);
    if (Anfang == std::string::npos) return {};
    const std::size_t Ende = Text.find("\n## ", Anfang + Zeile.size());
    return Text.substr(Anfang, Ende == std::string::npos ? Ende : Ende + 1 - Anfang);
}

std::string Verweise(const std::string& Ordner) {
    std::string Text;
    for (const Verweis& v : ganze_Seiten) {
        const QString Pfad = in_Qt(Ordner + "/" + v.Datei);
        if (!QFileInfo::exists(Pfad)) continue;
        const std::string Ziel = QUrl::fromLocalFile(Pfad).toEncoded().toStdString();
        Text += (Text.empty() ? "Whole pages: [" : ", [") + std::string(v.Titel) + "](" + Ziel + ")";
    }
    return Text;
}

}  // namespace

std::string Feldhilfe(const Hilfefrage& f) {
    std::string Text = Kopf(f);
    const Seite& s = Seite_von(f.Objektnamen);
    const std::string Teil = Abschnitt(lies_Seite(f.installierte_Daten + "/" + s.Datei), s.Abschnitt);
    if (!Teil.empty()) Text += "---\n\n" + Teil + "\n";
    const std::string Ganzes = Verweise(f.installierte_Daten);
    return Ganzes.empty() ? Text : Text + "---\n\n" + Ganzes + "\n";
}

}  // namespace varnok
