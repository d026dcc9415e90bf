#include "batch/serien.h"

#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
#include "records/dateien.h"

namespace varnok::batch {
namespace {

struct Spalte {
    std::string Kopf;
    Tagesreihe_lesend Reihe;
};

std::vector<Spalte> waehle_Spalten(const Lauf& l, int i_studie) {
    std::vector<Spalte> Spalten;
    for (int c = 0; c < Anzahl_Stoffe(l.Felder.Berechnungsmodus); ++c) {
        for (int e = 0; e < Endpunkte; ++e) {
            std::string Indizes = "_";
            Indizes.append(std::to_string(c)).append("_").append(std::to_string(e));
            Spalten.push_back({"Boden" + Indizes, l.Speicher.Reihe_Bodentiefe(e, i_studie, c, 0)});
            Spalten.push_back({"Plateau" + Indizes, l.Speicher.Reihe_Plateautiefe(e, i_studie, c, 0)});
        }
    }
    return Spalten;
}

}  // namespace

std::string Serientext(const Lauf& l, int i_studie) {
    const std::vector<Spalte> Spalten = waehle_Spalten(l, i_studie);
    std::string Text = "day";
    for (const Spalte& s : Spalten) Text.append("\t").append(s.Kopf);
    Text += "\n";
    for (std::size_t d = 0; d <= letzter_Tag; ++d) {
        Text += std::to_string(d);
        for (const Spalte& s : Spalten) Text.append("\t").append(genaue_Zahl(s.Reihe[d]));
        Text += "\n";
    }
    return Text;
}

std::string Serienname(const std::string& Simulation, int Studie) {
    return Simulation + " - study " + std::to_string(Studie) + ".tab";
}

void schreibe_Serien(const std::string& Ordner, const std::string& Simulation, const Lauf& l, const std::vector<int>& Studien,
                     std::vector<std::string>& Schreibfehler) {
    for (const int st : Studien) {
        try {
            schreibe_Datei(Ordner + "/" + Serienname(Simulation, st + 1), Serientext(l, st));
        } catch (const Laufzeitfehler& f) {
            Schreibfehler.emplace_back(f.what());
        }
    }
}

}  // namespace varnok::batch
