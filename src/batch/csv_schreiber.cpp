#include <string_view>
#include <utility>

#include "base/zahlen.h"
#include "batch/schreiber.h"
#include "exposure/bezeichnungen.h"

namespace varnok::batch {
namespace {

constexpr std::size_t meiste_Fenster = 12;

// A row field by field; no text of its own for any of them.
class Zeile {
public:
    explicit Zeile(std::string& Ziel) : Ziel_(&Ziel) {}

    void Text(std::string_view Wert) {
        trenne();
        if (Wert.find_first_of(",\"\r\n") == std::string_view::npos) {
            *Ziel_ += Wert;
            return;
        }
        *Ziel_ += '"';
        for (const char z : Wert) Ziel_->append(z == '"' ? 2 : 1, z);
        *Ziel_ += '"';
    }
    template <class Art>
    void Zahl(Art Wert) {
        trenne();
        haenge_genaue_Zahl_an(*Ziel_, Wert);
    }
    void leer() { trenne(); }
    void beende() { *Ziel_ += "\r\n"; }

private:
    void trenne() {
        if (!std::exchange(erstes_, false)) *Ziel_ += ',';
    }

    std::string* Ziel_;
    bool erstes_ = true;
};

void schreibe_Kopf(Zeile z) {
    for (const char* Name :
         {"simulation", "study", "study_name", "compound", "compound_name", "endpoint", "unit", "Anzahl_pro_Jahr",
          "Wirksame_Rate", "Maximum_Bodentiefe", "Maximumtag_Bodentiefe", "Maximum_Plateautiefe"}) {
        z.Text(Name);
    }
    for (int j = 1; j <= Jahre; ++j) z.Text("Jahresmaximum_" + std::to_string(j));
    for (const char* Name : {"Plateauwert", "Plateauzuwachs", "Plateautext"}) z.Text(Name);
    for (std::size_t j = 1; j <= meiste_Fenster; ++j) {
        for (const char* Teil : {"_days", "_maximum", "_start", "_actual"}) z.Text("TWA_" + std::to_string(j) + Teil);
    }
    z.beende();
}

void schreibe_Fenster(Zeile& z, const std::vector<Fensterergebnis>& TWA) {
    for (std::size_t j = 0; j < meiste_Fenster; ++j) {
        if (j < TWA.size()) {
            z.Zahl(TWA[j].Tage);
            z.Zahl(TWA[j].Maximum);
            z.Zahl(TWA[j].Starttag);
            z.Zahl(TWA[j].aktuell);
        } else {
            for (int leere = 0; leere < 4; ++leere) z.leer();
        }
    }
}

void schreibe_Werte(Zeile z, const Simulationsergebnis& r, const Ergebnis& s, int i_substanz, Endpunktart Endpunkt) {
    const Eingabe& v = *s.Vorgabe;
    const Endpunktergebnis& e = s.Werte(Endpunkt, i_substanz);
    z.Text(r.Name);
    z.Zahl(s.i_studie + 1);
    z.Text(v.Studie.at(static_cast<std::size_t>(s.i_studie)));
    z.Zahl(i_substanz);
    z.Text(Stoffname(v, i_substanz));
    z.Text(Endpunktnamen[Endpunkt]);
    z.Text(Konzentrationseinheit(v.Parameter.Einheit, Endpunkt));
    z.Zahl(s.Anzahl_pro_Jahr);
    z.Zahl(s.Wirksame_Rate);
    z.Zahl(e.Maximum_Bodentiefe);
    z.Zahl(e.Maximumtag_Bodentiefe);
    z.Zahl(e.Maximum_Plateautiefe);
    for (const float m : e.Jahresmaximum) z.Zahl(m);
    z.Zahl(e.Plateauwert);
    z.Zahl(e.Plateauzuwachs);
    z.Text(e.Plateautext);
    schreibe_Fenster(z, e.TWA);
    z.beende();
}

class CSV : public Schreiber {
public:
    std::string Anfang() override {
        std::string Text;
        schreibe_Kopf(Zeile(Text));
        return Text;
    }

    std::string Stueck(const Simulationsausgang& a) const override {
        std::string Text;
        for (const auto& s : a.Ergebnis.Studien) {
            for (int c = 0; c < static_cast<int>(s->Stoffwerte.size()); ++c) {
                for (const Endpunktart e : {Gesamtgehalt, Porenwasser}) schreibe_Werte(Zeile(Text), a.Ergebnis, *s, c, e);
            }
        }
        return Text;
    }

    std::string naechstes(std::string Text, bool gescheitert) override { return gescheitert ? std::string() : std::move(Text); }
};

}  // namespace

std::unique_ptr<Schreiber> CSV_Schreiber() { return std::make_unique<CSV>(); }

}  // namespace varnok::batch
