#include "batch/serien.h"

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "records/dateien.h"

namespace varnok::batch {
namespace {

struct Spalte {
    std::string Kopf;
    const std::vector<float>* Reihe;
};

std::vector<Spalte> waehle_Spalten(const Ergebnis& s) {
    std::vector<Spalte> Spalten;
    for (int c = 0; c < static_cast<int>(s.Stoffwerte.size()); ++c) {
        for (const Endpunktart e : alle_Endpunkte) {
            std::string Indizes = "_";
            Indizes.append(std::to_string(c)).append("_").append(std::to_string(e));
            Spalten.push_back({"Boden" + Indizes, &s.Werte(e, c).Reihe_Bodentiefe});
            Spalten.push_back({"Plateau" + Indizes, &s.Werte(e, c).Reihe_Plateautiefe});
        }
    }
    return Spalten;
}

}  // namespace

std::string Serientext(const Ergebnis& s) {
    const std::vector<Spalte> Spalten = waehle_Spalten(s);
    std::string Text = "day";
    for (const Spalte& x : Spalten) Text.append("\t").append(x.Kopf);
    Text += "\n";
    for (std::size_t d = 0; d <= letzter_Tag; ++d) {
        Text += std::to_string(d);
        for (const Spalte& x : Spalten) Text.append("\t").append(genaue_Zahl(x.Reihe->at(d)));
        Text += "\n";
    }
    return Text;
}

std::string Serienname(const std::string& Simulation, int Studie) {
    return Simulation + " - study " + std::to_string(Studie) + ".tab";
}

void schreibe_Serien(const std::string& Ordner, const std::string& Simulation, const Studienergebnisse& Studien,
                     std::vector<std::string>& Schreibfehler) {
    for (const auto& s : Studien) {
        try {
            schreibe_Datei(Ordner + "/" + Serienname(Simulation, s->i_studie + 1), Serientext(*s), als_Datei);
        } catch (const Laufzeitfehler& f) {
            Schreibfehler.emplace_back(f.what());
        }
    }
}

}  // namespace varnok::batch
