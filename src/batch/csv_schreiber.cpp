#include <string_view>
#include <utility>

#include "batch/csv_zeile.h"
#include "batch/schreiber.h"
#include "records/eingabenamen.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

constexpr std::size_t Tabellenreihen = max_Applikationen;

// Columns of the inputs: a row of the table is about one study and compound, so a name needs no index but that of the
// table of applications.
void schreibe_Eingabenkopf(CSV_Zeile& z) {
    for (const Eingabename& n : Eingabenamen()) {
        if (n.Indizes != Indexart::Tabellenreihe) {
            z.Text(n.Name);
            continue;
        }
        for (std::size_t k = 1; k <= Tabellenreihen; ++k) z.Text(std::string(n.Name) + "[" + std::to_string(k) + "]");
    }
    z.Text("remarks");
    z.Text("inputs_sha256");
}

std::string alle_Bemerkungen(const std::vector<Bemerkung>& Bemerkungen) {
    std::string Text;
    for (const Bemerkung& b : Bemerkungen) Text += (Text.empty() ? "" : "; ") + als_Zeile(b);
    return Text;
}

void schreibe_Eingaben(CSV_Zeile& z, const Simulationsergebnis& r, int i_studie, int i_substanz) {
    const Eingabe& e = *r.Vorgabe;
    const std::size_t Reihen = e.Applikationsmuster == unregelmaessig ? e.Applikationsschema.size() : 0;
    for (const Eingabename& n : Eingabenamen()) {
        if (n.Indizes == Indexart::Tabellenreihe) {
            for (std::size_t k = 0; k < Tabellenreihen; ++k)
                k < Reihen ? z.Text(n.lies(e, r.Sicht, {0, 0, static_cast<int>(k)}).Text()) : z.leer();
            continue;
        }
        const bool nur_Wirkstoff = n.Indizes == Indexart::Studie;
        const bool fehlt = (nur_Wirkstoff && i_substanz > 0) || (n.Indizes == Indexart::Metabolit && i_substanz == 0);
        fehlt ? z.leer() : z.Text(n.lies(e, r.Sicht, {i_studie, i_substanz, 0}).Text());
    }
    z.Text(alle_Bemerkungen(r.Bemerkungen));
    z.Text(r.Eingabensumme);
}

void schreibe_Kopf(CSV_Zeile z, const Schreibumfang& u) {
    z.Text("simulation");
    if (!u.Variantennamen.empty()) z.Text("variant");
    for (const std::string& Name : u.Variantennamen) z.Text(Name);
    for (const char* Name : {"study", "study_name", "compound", "compound_name", "endpoint", "unit", "Anzahl_pro_Jahr",
                             "Wirksame_Rate", "Maximum_Bodentiefe", "Maximumtag_Bodentiefe", "Maximum_Plateautiefe"}) {
        z.Text(Name);
    }
    for (int j = 1; j <= Jahre; ++j) z.Text("Jahresmaximum_" + std::to_string(j));
    for (const char* Name : {"Plateauwert", "Plateauzuwachs", "Plateautext"}) z.Text(Name);
    for (std::size_t j = 1; j <= meiste_TWA; ++j) {
        for (const char* Teil : {"_days", "_maximum", "_start", "_actual"}) z.Text("TWA_" + std::to_string(j) + Teil);
    }
    if (u.mit_Eingaben) schreibe_Eingabenkopf(z);
    if (u.mit_Position) z.Text("position");
    z.beende();
}

void schreibe_Fenster(CSV_Zeile& z, const std::vector<Fensterergebnis>& TWA) {
    for (std::size_t j = 0; j < meiste_TWA; ++j) {
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

void schreibe_Werte(CSV_Zeile& z, const Ergebnis& s, int i_substanz, Endpunktart Endpunkt) {
    const Eingabe& v = *s.Vorgabe;
    const Endpunktergebnis& e = s.Werte(Endpunkt, i_substanz);
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
}

void schreibe_Zeile(CSV_Zeile z, const Simulationsausgang& a, const Schreibumfang& u, const Ergebnis& s, int i_substanz,
                    Endpunktart Endpunkt) {
    z.Text(a.Ergebnis.Name);
    if (a.Herkunft) {
        z.Text(std::to_string(a.Herkunft->Reihe));
        for (const Eingabewert& w : a.Herkunft->Werte) z.Text(w.Text());
    }
    schreibe_Werte(z, s, i_substanz, Endpunkt);
    if (u.mit_Eingaben) schreibe_Eingaben(z, a.Ergebnis, s.i_studie, i_substanz);
    if (u.mit_Position) z.Text(std::to_string(a.Position));
    z.beende();
}

class CSV : public Schreiber {
public:
    explicit CSV(Schreibumfang u) : Umfang_(std::move(u)) {}

    std::string Anfang() override {
        std::string Text;
        schreibe_Kopf(CSV_Zeile(Text), Umfang_);
        return Text;
    }

    std::string Stueck(const Simulationsausgang& a) const override {
        std::string Text;
        for (const auto& s : a.Ergebnis.Studien) {
            for (int c = 0; c < static_cast<int>(s->Stoffwerte.size()); ++c) {
                for (const Endpunktart e : alle_Endpunkte) schreibe_Zeile(CSV_Zeile(Text), a, Umfang_, *s, c, e);
            }
        }
        return Text;
    }

    std::string naechstes(std::string Text, bool gescheitert) override { return gescheitert ? std::string() : std::move(Text); }

private:
    Schreibumfang Umfang_;
};

}  // namespace

std::unique_ptr<Schreiber> CSV_Schreiber(const Schreibumfang& u) { return std::make_unique<CSV>(u); }

}  // namespace varnok::batch
