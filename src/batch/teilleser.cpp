#include "batch/teilleser.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "batch/aufruf.h"
#include "exposure/ergebnistabelle.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

using JSON = nlohmann::ordered_json;

// The lines of a part.
class Zeilenquelle {
public:
    explicit Zeilenquelle(const std::string& Datei) : Datei_(Datei), Strom_(als_Pfad(Datei), std::ios::binary) {
        Strom_.peek();
        if (!Strom_.is_open() || Strom_.bad()) verwirf("the file cannot be read");
        Strom_.clear();
    }

    bool lies(std::string& Zeile) {
        if (!std::getline(Strom_, Zeile)) return false;
        ++Nummer_;
        return true;
    }
    bool zu_Ende() { return Strom_.peek() == std::char_traits<char>::eof(); }

    [[noreturn]] void verwirf(const std::string& Grund) const {
        throw Aufruffehler("--merge " + Zeilenangabe(Datei_, Nummer_) + ": " + Grund);
    }

private:
    std::string Datei_;
    std::ifstream Strom_;
    int Nummer_ = 0;
};

constexpr const char* keine_Position = "there is no position; only the outputs of calls with --shard can be joined";

std::size_t lies_Position(const Zeilenquelle& q, std::string_view Text) {
    if (Text.size() > 15 || !nur_Ziffern(Text)) q.verwirf(keine_Position);
    return static_cast<std::size_t>(fuehrende_Zahl(Text));
}

Fruchtfolge Fruchtwechsel_von(const JSON& Objekt, Fruchtfolge sonst) {
    const JSON* Werte = nullptr;
    if (Objekt.contains("variant") && Objekt["variant"]["values"].contains("rotation")) Werte = &Objekt["variant"]["values"];
    if (Werte == nullptr && Objekt.contains("inputs")) Werte = &Objekt["inputs"];
    if (Werte == nullptr || !Werte->contains("rotation")) return sonst;
    return Fruchtfolge_von(static_cast<int>((*Werte)["rotation"].get<double>()));
}

Kennwerte Kennwerte_von(const JSON& e, int Studie, int Stoff, Fruchtfolge Fruchtwechsel) {
    Kennwerte k;
    k.Studie = Studie;
    k.Stoff = Stoff;
    k.Endpunkt = Endpunkt_von(e.at("endpoint").get<std::string>());
    k.Einheit = e.at("unit");
    k.Maximum = e.at("Maximum_Bodentiefe");
    k.Plateau = e.at("Plateauwert");
    k.Maximum_mit_Plateau =
        Ansichtswert(static_cast<float>(k.Plateau), Anreicherung, Fruchtwechsel, static_cast<float>(k.Maximum));
    for (const JSON& f : e.at("TWA")) k.TWA.emplace_back(f.at("days").get<double>(), f.at("maximum").get<double>());
    return k;
}

void deute(Teileintrag& t, const Zeilenquelle& q, const Teilwunsch& w) {
    if (!w.mit_Kennwerten) return;
    try {
        const JSON Objekt = JSON::parse(t.Text);
        t.Simulation = Objekt.at("simulation");
        if (!Objekt.contains("studies")) return;
        const Fruchtfolge Fruchtwechsel = Fruchtwechsel_von(Objekt, w.Fruchtwechsel);
        for (const JSON& s : Objekt["studies"]) {
            for (const JSON& c : s.at("compounds")) {
                for (const JSON& e : c.at("endpoints"))
                    t.Werte.push_back(Kennwerte_von(e, s.at("study"), c.at("compound"), Fruchtwechsel));
            }
        }
    } catch (const nlohmann::json::exception& f) {
        q.verwirf(f.what());
    }
}

// --- JSON ---

// The document as the writer lays it out: each entry of a list stands between lines of its own, and its position last.
class JSON_Dokument : public Teilleser {
public:
    JSON_Dokument(const std::string& Datei, JSON_Liste Liste, const Teilwunsch& w)
        : Zeilen_(Datei), gescheitert_(Liste == JSON_Liste::Fehler), w_(w) {
        const std::string Kopf = Liste == JSON_Liste::Fehler ? "  \"errors\": [" : "  \"simulations\": [";
        pruefe_Anfang();
        std::string Zeile;
        while (Zeilen_.lies(Zeile)) {
            if (!Zeile.starts_with(Kopf)) continue;
            leer_ = Zeile.size() > Kopf.size();
            return;
        }
        Zeilen_.verwirf("this is no JSON of this program");
    }

    std::optional<Teileintrag> naechster() override {
        std::string Zeile;
        if (leer_ || !Zeilen_.lies(Zeile) || Zeile.starts_with("  ]")) {
            leer_ = true;
            return std::nullopt;
        }
        if (Zeile != "    {") Zeilen_.verwirf("an entry of the list belongs there");
        Teileintrag t;
        t.gescheitert = gescheitert_;
        std::string letzte;
        do {
            t.Text += "\n" + Zeile;
            letzte = Zeile;
            if (!Zeilen_.lies(Zeile)) Zeilen_.verwirf("the file ends within an entry");
        } while (!Zeile.starts_with("    }"));
        constexpr std::string_view Schluessel = "      \"position\": ";
        if (!letzte.starts_with(Schluessel)) Zeilen_.verwirf(keine_Position);
        t.Position = lies_Position(Zeilen_, std::string_view(letzte).substr(Schluessel.size()));
        t.Text.resize(t.Text.size() - letzte.size() - 2);  // with the line end and the comma in front of it
        t.Text += "\n    }";
        deute(t, Zeilen_, w_);
        return t;
    }

private:
    void pruefe_Anfang() {
        std::string Zeile;
        const std::string Version = "  \"version\": " + JSON(Programmversion).dump() + ",";
        const bool gut = Zeilen_.lies(Zeile) && Zeile == "{" && Zeilen_.lies(Zeile) && Zeile == "  \"program\": \"VARNOK\"," &&
                         Zeilen_.lies(Zeile);
        if (!gut) Zeilen_.verwirf("this is no JSON of this program");
        if (Zeile != Version) Zeilen_.verwirf("another version has written this");
    }

    Zeilenquelle Zeilen_;
    bool gescheitert_;
    Teilwunsch w_;
    bool leer_ = false;
};

class JSON_Zeilen : public Teilleser {
public:
    JSON_Zeilen(const std::string& Datei, const Teilwunsch& w) : Zeilen_(Datei), w_(w) {}

    std::optional<Teileintrag> naechster() override {
        std::string Zeile;
        if (!Zeilen_.lies(Zeile)) return std::nullopt;
        if (Zeilen_.zu_Ende() && !Zeile.ends_with("}")) Zeilen_.verwirf("the last line is not whole");
        constexpr std::string_view Schluessel = ",\"position\":";
        const auto Stelle = Zeile.rfind(Schluessel);
        if (Stelle == std::string::npos || !Zeile.starts_with("{\"simulation\":") || Zeile.back() != '}')
            Zeilen_.verwirf(keine_Position);
        const auto von = Stelle + Schluessel.size();
        Teileintrag t;
        t.Position = lies_Position(Zeilen_, std::string_view(Zeile).substr(von, Zeile.size() - 1 - von));
        t.Text = Zeile.substr(0, Stelle) + "}\n";
        t.gescheitert = Zeile.find(",\"error\":") != std::string::npos;
        deute(t, Zeilen_, w_);
        return t;
    }

private:
    Zeilenquelle Zeilen_;
    Teilwunsch w_;
};

// --- CSV ---

std::vector<std::string> zerlege_Zeile(std::string_view Zeile) {
    std::vector<std::string> Zellen(1);
    bool offen = false;
    for (std::size_t i = 0; i < Zeile.size(); ++i) {
        const char z = Zeile[i];
        if (z == '"' && offen && i + 1 < Zeile.size() && Zeile[i + 1] == '"') {
            Zellen.back() += Zeile[++i];
        } else if (z == '"') {
            offen = !offen;
        } else if (z == ',' && !offen) {
            Zellen.emplace_back();
        } else {
            Zellen.back() += z;
        }
    }
    return Zellen;
}

class Tabelle : public Teilleser {
public:
    Tabelle(const std::string& Datei, std::string& Kopf, const Teilwunsch& w) : Zeilen_(Datei), w_(w) {
        constexpr std::string_view Spalte = ",position";
        std::string Zeile;
        if (!lies_Reihe(Zeile) || !Zeile.ends_with(Spalte))
            Zeilen_.verwirf("there is no last column \"position\"; only the outputs of calls with --shard can be joined");
        Zeile.resize(Zeile.size() - Spalte.size());
        if (Kopf.empty()) Kopf = Zeile;
        if (Kopf != Zeile) Zeilen_.verwirf("the columns are not those of the first part");
        Kopf_ = zerlege_Zeile(Zeile);
        lies_naechste();
    }

    std::optional<Teileintrag> naechster() override {
        if (!wartend_) return std::nullopt;
        Teileintrag t = std::move(*wartend_);
        wartend_.reset();
        // All rows of one simulation have its position.
        while (lies_naechste() && wartend_->Position == t.Position) {
            t.Text += wartend_->Text;
            t.Werte.insert(t.Werte.end(), wartend_->Werte.begin(), wartend_->Werte.end());
        }
        return t;
    }

private:
    // A row without its line end; a text in quotation marks may go over several lines.
    bool lies_Reihe(std::string& Reihe) {
        Reihe.clear();
        std::string Zeile;
        while (Zeilen_.lies(Zeile)) {
            Reihe += Zeile;
            if (std::count(Reihe.begin(), Reihe.end(), '"') % 2 == 0) {
                if (!Reihe.empty() && Reihe.back() == '\r') Reihe.pop_back();
                return true;
            }
            Reihe += '\n';
        }
        if (!Reihe.empty()) Zeilen_.verwirf("a quotation mark has no end");
        return false;
    }

    bool lies_naechste() {
        std::string Reihe;
        wartend_.reset();
        if (!lies_Reihe(Reihe)) return false;
        const auto Komma = Reihe.rfind(',');
        if (Komma == std::string::npos) Zeilen_.verwirf(keine_Position);
        Teileintrag t;
        t.Position = lies_Position(Zeilen_, std::string_view(Reihe).substr(Komma + 1));
        Reihe.resize(Komma);
        t.Text = Reihe + "\r\n";
        if (w_.mit_Kennwerten) deute_Reihe(t, zerlege_Zeile(Reihe));
        wartend_ = std::move(t);
        return true;
    }

    void deute_Reihe(Teileintrag& t, const std::vector<std::string>& Zellen) const {
        if (Zellen.size() != Kopf_.size()) Zeilen_.verwirf("there are not as many values as columns");
        // Of two columns of one name both hold the value in force.
        const auto Zelle = [&](const std::string& Name) -> std::string {
            const auto i = std::find(Kopf_.begin(), Kopf_.end(), Name);
            return i == Kopf_.end() ? std::string() : Zellen[static_cast<std::size_t>(i - Kopf_.begin())];
        };
        const auto einfach = [&](const std::string& Name) { return static_cast<float>(fuehrende_Zahl(Zelle(Name))); };
        Kennwerte k;
        t.Simulation = Zelle("simulation");
        k.Studie = static_cast<int>(fuehrende_Zahl(Zelle("study")));
        k.Stoff = static_cast<int>(fuehrende_Zahl(Zelle("compound")));
        k.Endpunkt = Endpunkt_von(Zelle("endpoint"));
        k.Einheit = Zelle("unit");
        const float Maximum = einfach("Maximum_Bodentiefe");
        const float Plateau = einfach("Plateauwert");
        const std::string Jahre_dazwischen = Zelle("rotation");
        const Fruchtfolge f =
            Jahre_dazwischen.empty() ? w_.Fruchtwechsel : Fruchtfolge_von(static_cast<int>(fuehrende_Zahl(Jahre_dazwischen)));
        k.Maximum = static_cast<double>(Maximum);
        k.Plateau = static_cast<double>(Plateau);
        k.Maximum_mit_Plateau = Ansichtswert(Plateau, Anreicherung, f, Maximum);
        for (int j = 1; j <= meiste_TWA; ++j) {
            const std::string davor = "TWA_" + std::to_string(j);
            if (Zelle(davor + "_days").empty()) break;
            k.TWA.emplace_back(static_cast<double>(einfach(davor + "_days")), static_cast<double>(einfach(davor + "_maximum")));
        }
        t.Werte.push_back(std::move(k));
    }

    Zeilenquelle Zeilen_;
    Teilwunsch w_;
    std::vector<std::string> Kopf_;
    std::optional<Teileintrag> wartend_;
};

}  // namespace

std::unique_ptr<Teilleser> JSON_Teil(const std::string& Datei, JSON_Liste Liste, const Teilwunsch& w) {
    return std::make_unique<JSON_Dokument>(Datei, Liste, w);
}

std::unique_ptr<Teilleser> Zeilenteil(const std::string& Datei, const Teilwunsch& w) {
    return std::make_unique<JSON_Zeilen>(Datei, w);
}

std::unique_ptr<Teilleser> CSV_Teil(const std::string& Datei, std::string& Kopf, const Teilwunsch& w) {
    return std::make_unique<Tabelle>(Datei, Kopf, w);
}

}  // namespace varnok::batch
