#include "batch/variantenquelle.h"

#include <algorithm>
#include <utility>

#include "base/laufzeitfehler.h"
#include "batch/aufruf.h"
#include "batch/csv_leser.h"

namespace varnok::batch {
namespace {

class Tabelle : public Variantenquelle {
public:
    Tabelle(const std::string& Datei, const Projektordner& Ordner) : Leser_("--vary " + Datei, Datei), Ordner_(&Ordner) {
        lies_Kopf();
        while (Leser_.lies(Zellen_)) {
            ++Anzahl_;
            deute();
        }
        if (Anzahl_ == 0) throw Aufruffehler(Leser_.Bezeichnung() + ": there is no line below the names");
        beginne_neu();
    }

    std::size_t Anzahl() const override { return Anzahl_; }

    void beginne_neu() override {
        Leser_.beginne_neu();
        Leser_.lies(Zellen_);
        Reihe_ = 0;
    }

    Variante naechste() override {
        ueberspringe();
        return {Reihe_, deute()};
    }

    void ueberspringe() override {
        if (!Leser_.lies(Zellen_)) throw Aufruffehler(Leser_.Bezeichnung() + ": the file became shorter while it was in use");
        ++Reihe_;
    }

    std::string Bezeichnung(std::size_t Reihe) const override { return Leser_.Bezeichnung() + ", row " + std::to_string(Reihe); }

private:
    void lies_Kopf() {
        if (!Leser_.lies(Zellen_))
            throw Aufruffehler(Leser_.Bezeichnung() + ": the file is empty; its first line names the values");
        for (std::size_t j = 0; j < Zellen_.size(); ++j) {
            const std::string davor =
                Zeilenangabe(Leser_.Bezeichnung(), Leser_.Zeile()) + ", column " + std::to_string(j + 1) + ": ";
            try {
                nimm_Namen(lies_Namensbezug(Zellen_[j]), davor);
            } catch (const Laufzeitfehler& f) {
                const bool anders_getrennt = Zellen_.size() == 1 && Zellen_[0].find_first_of(";\t") != std::string::npos;
                throw Aufruffehler(davor + f.what() + (anders_getrennt ? "; commas stand between the names of a table" : ""));
            }
        }
    }

    // The row that was read last.
    std::vector<Eingabewert> deute() const {
        const auto davor = [&] {
            return Leser_.Bezeichnung() + ", row " + std::to_string(Reihe_ == 0 ? Anzahl_ : Reihe_) + " (line " +
                   std::to_string(Leser_.Zeile()) + ")";
        };
        if (Zellen_.size() != Namen_.size()) {
            throw Aufruffehler(davor() + ": " + std::to_string(Zellen_.size()) + " values for " + std::to_string(Namen_.size()) +
                               " names");
        }
        std::vector<Eingabewert> Werte;
        Werte.reserve(Namen_.size());
        for (std::size_t j = 0; j < Namen_.size(); ++j) {
            try {
                Werte.push_back(lies_Eingabewert(Namen_[j], Zellen_[j], *Ordner_));
            } catch (const Laufzeitfehler& f) {
                throw Aufruffehler(davor() + ", column " + std::to_string(j + 1) + ": " + f.what());
            }
        }
        return Werte;
    }

    CSV_Leser Leser_;
    const Projektordner* Ordner_;
    std::vector<std::string> Zellen_;
    std::size_t Anzahl_ = 0;
    std::size_t Reihe_ = 0;
};

}  // namespace

void Variantenquelle::nimm_Namen(Namensbezug b, const std::string& davor) {
    const auto gleicher = [&](const Namensbezug& x) {
        return x.Name == b.Name && x.Studie == b.Studie && x.Stoff == b.Stoff && x.Reihe == b.Reihe;
    };
    if (std::any_of(Namen_.begin(), Namen_.end(), gleicher)) throw Aufruffehler(davor + b.Text + " stands here twice");
    Namen_.push_back(std::move(b));
}

std::unique_ptr<Variantenquelle> Variantentabelle(const std::string& Datei, const Projektordner& Ordner) {
    return std::make_unique<Tabelle>(Datei, Ordner);
}

std::unique_ptr<Variantenquelle> oeffne_Varianten(const Aufruf& a, const Projektordner& Ordner) {
    if (!a.Variantendatei.empty()) return Variantentabelle(a.Variantendatei, Ordner);
    if (!a.Stichprobendatei.empty()) return Stichprobe(a.Stichprobendatei, a.Ziehungen, a.Saat, Ordner);
    return nullptr;
}

}  // namespace varnok::batch
