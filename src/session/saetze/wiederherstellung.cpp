#include "session/saetze/wiederherstellung.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "base/laufzeitfehler.h"
#include "base/text.h"
#include "base/zeichensatz.h"
#include "records/dateien.h"
#include "records/zeilen.h"

namespace varnok {
namespace {

constexpr std::string_view vor_Ungesichertem = "unsaved ";

std::optional<Gesichertes> erkenne(const std::string& Sicherung, const std::string& Dateiname) {
    for (const Satzart Art : alle_Arten) {
        const std::string_view Endung = Endungen[Art];
        if (Dateiname.size() <= Endung.size()) continue;
        const std::size_t Laenge = Dateiname.size() - Endung.size();
        if (!gleich_ohne_Gross_Klein(std::string_view(Dateiname).substr(Laenge), Endung)) continue;
        Gesichertes g{Sicherung, Dateiname, Art, Dateiname.substr(0, Laenge)};
        g.ungesichert = g.Name.starts_with(vor_Ungesichertem);
        if (g.ungesichert) g.Name.erase(0, vor_Ungesichertem.size());
        return Einwand_gegen_Namen(g.Name).empty() ? std::optional(g) : std::nullopt;
    }
    return std::nullopt;
}

// A line as it is shown: one line of readable length.
std::string gezeigt(std::optional<std::string_view> Zeile) {
    constexpr std::size_t laengste = 200;
    if (!Zeile) return "(no such line)";
    std::string Text = aus_Windows_1252(std::string(Zeile->substr(0, laengste)));
    std::replace(Text.begin(), Text.end(), '\t', ' ');
    return Text + (Zeile->size() > laengste ? " ..." : "");
}

std::string Zeilenunterschiede(const std::string& damals, const std::string& jetzt) {
    constexpr int meiste = 100;
    Zeilenfolge a(damals), b(jetzt);
    std::string Text;
    int gefunden = 0;
    for (int Nummer = 1;; ++Nummer) {
        const auto Zeile_damals = a.naechste(), Zeile_jetzt = b.naechste();
        if (!Zeile_damals && !Zeile_jetzt) return Text;
        if (Zeile_damals == Zeile_jetzt) continue;
        if (++gefunden > meiste) return Text + "and more lines\n";
        Text += "line " + std::to_string(Nummer) + "\n    backup: " + gezeigt(Zeile_damals) +
                "\n    now: " + gezeigt(Zeile_jetzt) + "\n";
    }
}

}  // namespace

const char* Gesichertes::Standtext() const {
    switch (Stand) {
        case Abgleich::gleich:
            return "as now";
        case Abgleich::anders:
            return "differs from now";
        case Abgleich::fehlt:
            break;
    }
    return "not there now";
}

std::vector<Gesichertes> Wiederherstellung::Angebot() const {
    std::vector<Gesichertes> Angebot;
    for (const Sicherungsordner& s : Sicherungen(*z_.Ordner)) {
        for (const std::string& Datei : s.Dateien) {
            auto g = erkenne(s.Name, Datei);
            if (!g) continue;
            try {
                const std::string Bytes = lies_Sicherung(*z_.Ordner, s.Name, Datei);
                const auto Pfad = z_.Ordner->finde(g->Name, Endungen[g->Art]);
                const auto jetzt = Pfad ? lies_Datei_falls_moeglich(*Pfad) : std::nullopt;
                using enum Gesichertes::Abgleich;
                g->Stand = !jetzt ? fehlt : *jetzt == Bytes ? gleich : anders;
            } catch (const Laufzeitfehler&) {
                continue;  // what cannot be read cannot come back
            }
            Angebot.push_back(std::move(*g));
        }
    }
    return Angebot;
}

std::string Wiederherstellung::Unterschiede(const Gesichertes& g) const {
    try {
        const std::string damals = lies_Sicherung(*z_.Ordner, g.Sicherung, g.Dateiname);
        const auto Pfad = z_.Ordner->finde(g.Name, Endungen[g.Art]);
        if (!Pfad) return "There is no \"" + g.Name + Endungen[g.Art] + "\" now.";
        const std::string Text = Zeilenunterschiede(damals, lies_Datei(*Pfad));
        return Text.empty() ? "\"" + g.Name + Endungen[g.Art] + "\" is the same now." : Text;
    } catch (const Laufzeitfehler& f) {
        return f.what();
    }
}

std::vector<Wiederherstellung::Auftrag> Wiederherstellung::stelle_zusammen(const std::vector<Gesichertes>& Gewaehlte) const {
    std::vector<Auftrag> Auftraege;
    for (const Gesichertes& g : Gewaehlte) {
        Auftrag a{g.Art, g.Name, z_.Ordner->Zielpfad(g.Name, Endungen[g.Art]),
                  lies_Sicherung(*z_.Ordner, g.Sicherung, g.Dateiname)};
        const auto derselbe = [&](const Auftrag& b) { return b.Pfad == a.Pfad; };
        if (std::any_of(Auftraege.begin(), Auftraege.end(), derselbe)) {
            throw Laufzeitfehler("\"" + g.Name + Endungen[g.Art] +
                                 "\" is chosen more than once. Please choose one of its states!");
        }
        Auftraege.push_back(std::move(a));
    }
    return Auftraege;
}

bool Wiederherstellung::steht_auf_dem_Schirm(const Auftrag& a) const {
    return z_.Namen[a.Art] == a.Name || (z_.Saetze[a.Art].gelesen() && z_.Saetze[a.Art].Datei().Name == a.Name);
}

Sicherungsgut Wiederherstellung::ersetztes(const std::vector<Auftrag>& Auftraege) const {
    Sicherungsgut Gut;
    for (const Auftrag& a : Auftraege) {
        if (const auto Pfad = z_.Ordner->finde(a.Name, Endungen[a.Art])) {
            if (lies_Datei_falls_moeglich(*Pfad) != a.Bytes) Gut.nimm_Datei(*Pfad, a.Name + Endungen[a.Art]);
        }
        if (steht_auf_dem_Schirm(a)) Gut.nimm(Waechter_.Ungesichertes({a.Art}));
    }
    return Gut;
}

void Wiederherstellung::stelle_her(const std::vector<Gesichertes>& Gewaehlte) {
    if (Gewaehlte.empty()) return;
    verlange_Schreibrecht(z_);
    const std::vector<Auftrag> Auftraege = stelle_zusammen(Gewaehlte);
    z_.Statuszeile.vergiss_Frueheres();
    sichere(z_, ersetztes(Auftraege));
    const std::string gesichert = z_.Statuszeile.nimm();
    std::string Namen;
    std::vector<Satzart> gezeigte;
    std::exception_ptr Fehler;  // what came back before it is told and shown all the same
    for (const Auftrag& a : Auftraege) {
        try {
            schreibe_Datei(a.Pfad, a.Bytes, als_Satz);
        } catch (const Laufzeitfehler&) {
            Fehler = std::current_exception();
            break;
        }
        Namen += (Namen.empty() ? "\"" : ", \"") + a.Name + Endungen[a.Art] + "\"";
        if (steht_auf_dem_Schirm(a)) gezeigte.push_back(a.Art);
    }
    Saetze_.lies_neu(gezeigte);
    if (!Namen.empty()) z_.Statuszeile.stelle_voran("Restored: " + Namen + ".");
    z_.Statuszeile.sage_dazu(gesichert);
    if (Fehler) std::rethrow_exception(Fehler);
}

}  // namespace varnok
