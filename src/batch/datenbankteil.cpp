#include "batch/datenbankteil.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"
#include "batch/aufruf.h"
#include "batch/datenbankziel.h"
#include "exposure/ergebnistabelle.h"
#include "run/bezeichnungen.h"

namespace varnok::batch {
namespace {

using Simulationsname = std::pair<std::string, std::string>;  // project and simulation

// Binds the columns of a row that another statement is at, from the column on.
Anweisung& mit_Spalten(Anweisung& a, int erste_Stelle, const Anweisung& Quelle, int erste_Spalte, int Anzahl) {
    for (int i = 0; i < Anzahl; ++i) a.nimm_aus(erste_Stelle + i, Quelle, erste_Spalte + i);
    return a;
}

// The statements that read a part.
struct Quelle {
    explicit Quelle(const std::string& Datei)
        : v(Datei, Verbindung::Art::lesend),
          Positionen(
              v.bereite("SELECT p.position, p.simulation_id, p.variant_id, s.project, s.name, EXISTS(SELECT 1 FROM message m "
                        "WHERE m.simulation_id=p.simulation_id AND m.variant_id IS p.variant_id AND m.kind='error') "
                        "FROM position p JOIN simulation s ON s.id=p.simulation_id ORDER BY p.position")),
          Simulation(
              v.bereite("SELECT description, compound_record, application_record, scenario_record, inputs_sha256, program, "
                        "version FROM simulation WHERE id=?1")),
          Variante(v.bereite("SELECT row, inputs_sha256 FROM variant WHERE id=?1")),
          Variantenwert(v.bereite("SELECT name, value FROM variant_value WHERE variant_id=?1")),
          Rotation(v.bereite("SELECT value FROM variant_value WHERE variant_id=?1 AND name='rotation'")),
          Ergebnis(
              v.bereite("SELECT id, study, study_name, compound, compound_name, endpoint, unit, maximum, maximum_day, "
                        "tillage_maximum, plateau, growth, plateau_text FROM result WHERE simulation_id=?1 AND variant_id IS ?2 "
                        "ORDER BY id")),
          Jahr(v.bereite("SELECT year, value FROM year_maximum WHERE result_id=?1 ORDER BY year")),
          TWA(v.bereite("SELECT days, maximum, start, actual FROM twa WHERE result_id=?1 ORDER BY rowid")),
          Tag(v.bereite("SELECT day, soil_depth, tillage_depth FROM day WHERE result_id=?1 ORDER BY day")),
          Meldung(v.bereite("SELECT kind, text FROM message WHERE simulation_id=?1 AND variant_id IS ?2 ORDER BY rowid")) {}

    Verbindung v;
    Anweisung Positionen, Simulation, Variante, Variantenwert, Rotation, Ergebnis, Jahr, TWA, Tag, Meldung;
};

// One simulation or variant of a part.
struct Herkunft {
    long long Simulation = 0;
    Variantennummer Variante;
    Simulationsname Name;
};

}  // namespace

class Datenbankverbund::Kopierwerk {
public:
    explicit Kopierwerk(const std::string& Datei) : Ziel_(Datei, false) {}

    // Rows that no part has any more go.
    void merke_Varianten(const Quelle& q) {
        Anweisung a = q.v.bereite(
            "SELECT s.project, s.name, max(x.row) FROM variant x JOIN simulation s ON s.id=x.simulation_id GROUP BY s.id");
        while (a.zeile()) {
            long long& hoechste = hoechste_Reihe_[{a.Text(0), a.Text(1)}];
            hoechste = std::max(hoechste, a.Zahl(2));
        }
    }

    void kopiere(Quelle& q, const Herkunft& h, const Teilwunsch& w, Teileintrag& t) {
        Ziel_.beginne_Stueck();
        auto& z = Ziel_.Zeilen();
        const long long Simulation = betrete(q, h);
        const Variantennummer Variante = uebernimm_Variante(q, h, Simulation);
        const Fruchtfolge Fruchtwechsel = Fruchtwechsel_der_Variante(q, h).value_or(w.Fruchtwechsel);
        mit(q.Ergebnis.nimm(1, h.Simulation), 2, h.Variante);
        while (q.Ergebnis.zeile()) {
            mit_Spalten(mit(z.Ergebnis.nimm(1, Simulation), 2, Variante), 3, q.Ergebnis, 1, 12).fuehre_aus();
            Kennwerte k = Kennwerte_der_Zeile(q.Ergebnis, Fruchtwechsel);
            kopiere_Einzelwerte(q, Ziel_.letzte_Nummer(), k);
            if (w.mit_Kennwerten) t.Werte.push_back(std::move(k));
        }
        mit(q.Meldung.nimm(1, h.Simulation), 2, h.Variante);
        while (q.Meldung.zeile()) mit_Spalten(mit(z.Meldung.nimm(1, Simulation), 2, Variante), 3, q.Meldung, 0, 2).fuehre_aus();
        Ziel_.beende_Stueck();
    }

    void beende() { Ziel_.beende(); }

private:
    long long betrete(Quelle& q, const Herkunft& h) {
        const long long Simulation = Ziel_.Simulation(h.Name.first, h.Name.second);
        if (begonnene_.insert(h.Name).second) {
            Ziel_.vergiss_Beschreibung(Simulation);
            if (h.Variante) Ziel_.loesche_Varianten_ueber(Simulation, hoechste_Reihe_[h.Name]);
        }
        q.Simulation.nimm(1, h.Simulation);
        // Without a program none of its variants could be calculated in this part.
        if (q.Simulation.zeile() && !q.Simulation.leer(5) && beschriebene_.insert(h.Name).second)
            mit_Spalten(Ziel_.Zeilen().Beschreiben.nimm(1, Simulation), 2, q.Simulation, 0, 7).fuehre_aus();
        q.Simulation.setze_zurueck();
        return Simulation;
    }

    Variantennummer uebernimm_Variante(Quelle& q, const Herkunft& h, long long Simulation) {
        if (!h.Variante) {
            Ziel_.loesche_Ergebnisse(Simulation, std::nullopt);
            return std::nullopt;
        }
        q.Variante.nimm(1, *h.Variante);
        if (!q.Variante.zeile()) throw Laufzeitfehler("Cannot use the database \"" + q.v.Datei() + "\": a variant is missing");
        const long long Variante = Ziel_.Variante(Simulation, q.Variante.Zahl(0));
        Ziel_.loesche_Ergebnisse(Simulation, Variante);
        Ziel_.Zeilen().Variantensumme.nimm(1, Variante).nimm_aus(2, q.Variante, 1).fuehre_aus();
        q.Variante.setze_zurueck();
        q.Variantenwert.nimm(1, *h.Variante);
        while (q.Variantenwert.zeile())
            mit_Spalten(Ziel_.Zeilen().Variantenwert.nimm(1, Variante), 2, q.Variantenwert, 0, 2).fuehre_aus();
        return Variante;
    }

    static std::optional<Fruchtfolge> Fruchtwechsel_der_Variante(Quelle& q, const Herkunft& h) {
        std::optional<Fruchtfolge> Gefundener;
        mit(q.Rotation, 1, h.Variante);
        if (q.Rotation.zeile()) Gefundener = Fruchtfolge_von(static_cast<int>(q.Rotation.Zahl(0)));
        q.Rotation.setze_zurueck();
        return Gefundener;
    }

    static Kennwerte Kennwerte_der_Zeile(const Anweisung& e, Fruchtfolge Fruchtwechsel) {
        Kennwerte k;
        k.Studie = static_cast<int>(e.Zahl(1));
        k.Stoff = static_cast<int>(e.Zahl(3));
        k.Endpunkt = Endpunkt_von(e.Text(5));
        k.Einheit = e.Text(6);
        k.Maximum = e.Kommazahl(7);
        k.Plateau = e.Kommazahl(10);
        k.Maximum_mit_Plateau =
            Ansichtswert(static_cast<float>(k.Plateau), Anreicherung, Fruchtwechsel, static_cast<float>(k.Maximum));
        return k;
    }

    void kopiere_Einzelwerte(Quelle& q, long long Ergebnis, Kennwerte& k) {
        auto& z = Ziel_.Zeilen();
        const long long altes = q.Ergebnis.Zahl(0);
        q.Jahr.nimm(1, altes);
        while (q.Jahr.zeile()) mit_Spalten(z.Jahr.nimm(1, Ergebnis), 2, q.Jahr, 0, 2).fuehre_aus();
        q.TWA.nimm(1, altes);
        while (q.TWA.zeile()) {
            mit_Spalten(z.TWA.nimm(1, Ergebnis), 2, q.TWA, 0, 4).fuehre_aus();
            k.TWA.emplace_back(q.TWA.Kommazahl(0), q.TWA.Kommazahl(1));
        }
        q.Tag.nimm(1, altes);
        while (q.Tag.zeile()) mit_Spalten(z.Tag.nimm(1, Ergebnis), 2, q.Tag, 0, 3).fuehre_aus();
    }

    Datenbankziel Ziel_;
    std::map<Simulationsname, long long> hoechste_Reihe_;
    std::set<Simulationsname> begonnene_;
    std::set<Simulationsname> beschriebene_;
};

namespace {

class Datenbankteil : public Teilleser {
public:
    using Kopieren = std::function<void(Quelle&, const Herkunft&, const Teilwunsch&, Teileintrag&)>;

    Datenbankteil(std::unique_ptr<Quelle> q, const Teilwunsch& w, Kopieren kopiere)
        : q_(std::move(q)), w_(w), kopiere_(std::move(kopiere)) {}

    std::optional<Teileintrag> naechster() override {
        Anweisung& p = q_->Positionen;
        if (!p.zeile()) return std::nullopt;
        Herkunft h;
        h.Simulation = p.Zahl(1);
        if (!p.leer(2)) h.Variante = p.Zahl(2);
        h.Name = {p.Text(3), p.Text(4)};
        Teileintrag t;
        t.Position = static_cast<std::size_t>(p.Zahl(0));
        t.Simulation = h.Name.second;
        t.gescheitert = p.Zahl(5) != 0;
        // The connection outlives the part, whose last entry may still be waiting.
        t.uebernimm = [q = q_, w = w_, h, kopiere = kopiere_](Teileintrag& x) { kopiere(*q, h, w, x); };
        return t;
    }

private:
    std::shared_ptr<Quelle> q_;
    Teilwunsch w_;
    Kopieren kopiere_;
};

std::unique_ptr<Quelle> oeffne(const std::string& Datei) {
    std::error_code unwichtig;
    if (!std::filesystem::exists(als_Pfad(Datei), unwichtig)) throw Aufruffehler("--merge " + Datei + ": there is no such file");
    try {
        return std::make_unique<Quelle>(Datei);
    } catch (const Laufzeitfehler& f) {
        throw Aufruffehler("--merge " + Datei + ": this is no database of a call with --shard: " + f.what());
    }
}

}  // namespace

std::unique_ptr<Teilleser> Datenbankpositionen(const std::string& Datei) {
    return std::make_unique<Datenbankteil>(oeffne(Datei), Teilwunsch(), nullptr);
}

Datenbankverbund::Datenbankverbund(const std::string& Ziel) : Werk_(std::make_unique<Kopierwerk>(Ziel)) {}

Datenbankverbund::~Datenbankverbund() = default;

std::unique_ptr<Teilleser> Datenbankverbund::Teil(const std::string& Datei, const Teilwunsch& w) {
    std::unique_ptr<Quelle> q = oeffne(Datei);
    Werk_->merke_Varianten(*q);
    return std::make_unique<Datenbankteil>(
        std::move(q), w,
        [this](Quelle& x, const Herkunft& h, const Teilwunsch& y, Teileintrag& t) { Werk_->kopiere(x, h, y, t); });
}

void Datenbankverbund::beende() { Werk_->beende(); }

}  // namespace varnok::batch
