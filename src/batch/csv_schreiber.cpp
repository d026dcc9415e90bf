#include "base/zahlen.h"
#include "batch/schreiber.h"
#include "exposure/bezeichnungen.h"

namespace varnok::batch {
namespace {

constexpr std::size_t meiste_Fenster = 12;
constexpr const char* Zeilenende = "\r\n";

using Felder = std::vector<std::string>;

std::string Feld(const std::string& Text) {
    if (Text.find_first_of(",\"\r\n") == std::string::npos) return Text;
    std::string gequotet = "\"";
    for (const char z : Text) {
        if (z == '"') gequotet += '"';
        gequotet += z;
    }
    return gequotet + '"';
}

std::string Zeile(const Felder& Werte) {
    std::string Text;
    for (std::size_t i = 0; i < Werte.size(); ++i) {
        if (i > 0) Text += ',';
        Text += Feld(Werte[i]);
    }
    return Text + Zeilenende;
}

Felder Kopf() {
    Felder k = {
        "simulation", "study",           "study_name",    "compound",           "compound_name",         "endpoint",
        "unit",       "Anzahl_pro_Jahr", "Wirksame_Rate", "Maximum_Bodentiefe", "Maximumtag_Bodentiefe", "Maximum_Plateautiefe"};
    for (int j = 1; j <= Jahre; ++j) k.push_back("Jahresmaximum_" + std::to_string(j));
    k.insert(k.end(), {"Plateauwert", "Plateauzuwachs", "Plateautext"});
    for (std::size_t j = 1; j <= meiste_Fenster; ++j) {
        for (const char* Teil : {"_days", "_maximum", "_start", "_actual"}) k.push_back("TWA_" + std::to_string(j) + Teil);
    }
    return k;
}

Felder Werte(const Simulationsergebnis& r, const Ergebnis& s, int i_substanz, Endpunktart Endpunkt) {
    const Eingabe& v = *s.Vorgabe;
    const Endpunktergebnis& e = s.Werte(Endpunkt, i_substanz);
    Felder w = {r.Name,
                std::to_string(s.i_studie + 1),
                v.Studie.at(static_cast<std::size_t>(s.i_studie)),
                std::to_string(i_substanz),
                Stoffname(v, i_substanz),
                std::string(Endpunktnamen[Endpunkt]),
                std::string(Konzentrationseinheit(v.Parameter.Einheit, Endpunkt)),
                std::to_string(s.Anzahl_pro_Jahr),
                genaue_Zahl(s.Wirksame_Rate),
                genaue_Zahl(e.Maximum_Bodentiefe),
                std::to_string(e.Maximumtag_Bodentiefe),
                genaue_Zahl(e.Maximum_Plateautiefe)};
    for (const float m : e.Jahresmaximum) w.push_back(genaue_Zahl(m));
    w.insert(w.end(), {genaue_Zahl(e.Plateauwert), genaue_Zahl(e.Plateauzuwachs), e.Plateautext});
    for (std::size_t j = 0; j < meiste_Fenster; ++j) {
        if (j < e.TWA.size()) {
            const Fensterergebnis& f = e.TWA[j];
            w.insert(w.end(), {genaue_Zahl(f.Tage), genaue_Zahl(f.Maximum), std::to_string(f.Starttag), genaue_Zahl(f.aktuell)});
        } else {
            w.insert(w.end(), 4, "");
        }
    }
    return w;
}

}  // namespace

std::string als_CSV(const std::vector<Simulationsausgang>& Ausgaenge) {
    std::string Text = Zeile(Kopf());
    for (const Simulationsausgang& a : Ausgaenge) {
        if (a.Fehler) continue;
        for (const auto& s : a.Ergebnis.Studien) {
            for (int c = 0; c < static_cast<int>(s->Stoffwerte.size()); ++c) {
                for (const Endpunktart e : {Gesamtgehalt, Porenwasser}) Text += Zeile(Werte(a.Ergebnis, *s, c, e));
            }
        }
    }
    return Text;
}

}  // namespace varnok::batch
