#include "records/satzstelle.h"

#include "records/satzaufbau.h"

namespace varnok {
namespace {

// The walk that counts lines until it passes what is looked for.
class Zeilensuche : public Satzgang {
public:
    Zeilensuche(Satzart Art, const Fehlerort& Ort) : Art_(Art), Ort_(Ort) {}

    const std::optional<Satzstelle>& Wert() const { return Wert_; }
    const std::optional<Satzstelle>& Reihe() const { return Reihe_; }

    void Ueberschrift(std::string_view) override { ++Zeile_; }
    void beginne(std::string_view Beschriftung) override {
        ++Zeile_;
        Name_ = Zeilenname(Beschriftung);
    }
    void beginne_Tabellenzeile(int Nummer) override {
        ++Zeile_;
        Name_ = Reihenname(Nummer);
        if (Nummer == Ort_.Reihe) Reihe_ = {Art_, Zeile_, Name_};
    }
    void Zwischenwert(const Feld& f) override { sieh_an(f); }
    void Endwert(const Feld& f) override { sieh_an(f); }
    bool folgt_Trennlinie() override { return false; }
    void Schlusszeile() override {}

private:
    // The values of all compounds stand on one line of a study.
    bool ist_gesucht(const Feld& f) const {
        if (f.Speicher.empty() || f.Speicher != Ort_.Feld) return false;
        return f.i_studie >= 0 ? f.i_studie == Ort_.i_studie : f.i_substanz < 0 || f.i_substanz == Ort_.i_substanz;
    }
    void sieh_an(const Feld& f) {
        if (!Wert_ && ist_gesucht(f)) Wert_ = {Art_, Zeile_, Name_};
    }

    Satzart Art_;
    const Fehlerort& Ort_;
    int Zeile_ = 0;
    std::string Name_;
    std::optional<Satzstelle> Wert_;
    std::optional<Satzstelle> Reihe_;
};

Zeilensuche suche(Satzart Art, const Fehlerort& Ort, const Eingabe& e) {
    Zeilensuche s(Art, Ort);
    Eingabe Felder = e;
    Ansicht Sicht;
    int Zaehler = 0;
    if (Art == Wirkstoff) {
        gehe_durch_Wirkstoffkopf(s, Felder);
        gehe_durch_Ausgabename(s, Felder);
        gehe_durch_Wirkstoffdaten(s, Felder, Sicht, Zaehler);
    }
    if (Art == Applikation) gehe_durch_Applikation(s, Felder, Sicht);
    if (Art == Szenario) gehe_durch_Szenario(s, Felder);
    return s;
}

}  // namespace

std::optional<Satzstelle> finde_Satzstelle(const Fehlerort& Ort, const Eingabe& e) {
    for (const Satzart Art : Eingabearten) {
        const Zeilensuche s = suche(Art, Ort, e);
        if (!s.Wert()) continue;
        // With the irregular pattern it is the table that holds doses and interceptions.
        const bool Tabelle = Art == Applikation && e.Applikationsmuster == unregelmaessig;
        if (!Tabelle) return s.Wert();
        return s.Reihe() ? s.Reihe() : Satzstelle{Applikation};
    }
    return std::nullopt;
}

Satzstelle Stelle_der_Reihe(int Reihe, const Eingabe& e) {
    return suche(Applikation, {.Reihe = Reihe}, e).Reihe().value_or(Satzstelle{Applikation});
}

}  // namespace varnok
