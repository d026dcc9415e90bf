#include "diagrams/diagrammdaten.h"

#include <utility>

#include "base/text.h"
#include "base/zahlen.h"
#include "run/bezeichnungen.h"

namespace varnok {
namespace {

class Zeilen {
public:
    explicit Zeilen(const Datenform& f) : f_(f) {}

    void Feld(std::string_view Text) {
        if (!std::exchange(erstes_, false)) Text_ += f_.Trenner;
        if (Text.find_first_of(std::string("\"\r\n") + f_.Trenner) == std::string_view::npos) {
            Text_ += Text;
            return;
        }
        Text_ += '"';
        for (const char z : Text) Text_.append(z == '"' ? 2 : 1, z);
        Text_ += '"';
    }
    template <class Art>
    void Zahl(Art Wert) {
        Feld(allgemeine_Zahl(Wert, f_.Dezimalzeichen));
    }
    void beende() {
        Text_ += "\r\n";
        erstes_ = true;
    }
    std::string nimm() { return std::move(Text_); }

private:
    Datenform f_;
    std::string Text_;
    bool erstes_ = true;
};

void schreibe_Kurven(Zeilen& z, const Diagramm& d, const std::string& Einheit) {
    z.Feld("day");
    for (const Kurve& k : d.Kurven) z.Feld(k.Name + " (" + Einheit + ")");
    z.beende();
    if (d.Kurven.empty()) return;
    const Kurve& erste = d.Kurven.front();  // all have the same days
    for (std::size_t i = 0; i < erste.Werte.size(); ++i) {
        z.Zahl(static_cast<double>(erste.erster_Tag) + static_cast<double>(i));
        for (const Kurve& k : d.Kurven) z.Zahl(k.Werte.at(i));
        z.beende();
    }
}

void schreibe_Mittelwerte(Zeilen& z, const Diagramm& d, const std::string& Einheit) {
    if (d.Mittelwerte.empty()) return;
    z.beende();
    for (const char* Kopf : {"TWA of", "first day", "days"}) z.Feld(Kopf);
    z.Feld("TWA (" + Einheit + ")");
    z.beende();
    for (const Mittelwert& m : d.Mittelwerte) {
        z.Feld(m.Name);
        z.Zahl(m.Start);
        z.Zahl(m.Tage);
        z.Zahl(static_cast<float>(m.Hoehe));
        z.beende();
    }
}

void schreibe_Tafel(Zeilen& z, const Datentafel& t, char Dezimalzeichen) {
    z.beende();
    z.Feld(t.Titel);
    z.beende();
    z.Feld(Fensterkopf);
    for (const Ergebniswerte::Spalte& s : t.Inhalt.Spalten) z.Feld(ohne_Randblanks(s.Kopf));
    z.beende();
    for (const Ergebniswerte::Zeile& Zeile : t.Inhalt.Zeilen) {
        z.Feld(Ergebniswerte::Bezeichnung(Zeile, Dezimalzeichen));
        for (std::size_t j = 0; j < Zeile.Spalten.size(); ++j) z.Feld(t.Inhalt.Text(Zeile, j, Dezimalzeichen));
        z.beende();
    }
}

}  // namespace

std::string Diagrammdaten(const Diagramm& d, const std::vector<Datentafel>& Tafeln, const Datenform& f) {
    const std::string Einheit(Konzentrationseinheit(d.Einheit, d.Endpunkt));
    Zeilen z(f);
    for (const Beschriftung* b : {&d.Titel, &d.Kommentar}) {
        z.Feld(b->Text);
        z.beende();
    }
    z.beende();
    schreibe_Kurven(z, d, Einheit);
    schreibe_Mittelwerte(z, d, Einheit);
    for (const Datentafel& t : Tafeln) schreibe_Tafel(z, t, f.Dezimalzeichen);
    return z.nimm();
}

}  // namespace varnok
