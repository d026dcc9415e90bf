#include "batch/datenbankziel.h"

#include <utility>

namespace varnok::batch {
namespace {

constexpr const char* Tabellen[] = {
    "CREATE TABLE IF NOT EXISTS simulation(id INTEGER PRIMARY KEY, project TEXT NOT NULL, name TEXT NOT NULL, description TEXT, "
    "compound_record TEXT, application_record TEXT, scenario_record TEXT, inputs_sha256 TEXT, program TEXT, version TEXT, "
    "UNIQUE(project, name))",
    "CREATE TABLE IF NOT EXISTS variant(id INTEGER PRIMARY KEY, simulation_id INTEGER NOT NULL REFERENCES simulation(id), "
    "row INTEGER NOT NULL, inputs_sha256 TEXT, UNIQUE(simulation_id, row))",
    "CREATE TABLE IF NOT EXISTS variant_value(variant_id INTEGER NOT NULL REFERENCES variant(id), name TEXT NOT NULL, value, "
    "PRIMARY KEY(variant_id, name)) WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS result(id INTEGER PRIMARY KEY, simulation_id INTEGER NOT NULL REFERENCES simulation(id), "
    "variant_id INTEGER REFERENCES variant(id), study INTEGER, study_name TEXT, compound INTEGER, compound_name TEXT, "
    "endpoint TEXT, unit TEXT, maximum REAL, maximum_day INTEGER, tillage_maximum REAL, plateau REAL, growth REAL, "
    "plateau_text TEXT)",
    "CREATE TABLE IF NOT EXISTS year_maximum(result_id INTEGER NOT NULL REFERENCES result(id), year INTEGER, value REAL, "
    "PRIMARY KEY(result_id, year)) WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS twa(result_id INTEGER NOT NULL REFERENCES result(id), days REAL, maximum REAL, start INTEGER, "
    "actual REAL)",
    "CREATE TABLE IF NOT EXISTS day(result_id INTEGER NOT NULL REFERENCES result(id), day INTEGER, soil_depth REAL, "
    "tillage_depth REAL, PRIMARY KEY(result_id, day)) WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS message(simulation_id INTEGER NOT NULL REFERENCES simulation(id), "
    "variant_id INTEGER REFERENCES variant(id), kind TEXT, text TEXT)",
    "CREATE INDEX IF NOT EXISTS result_of ON result(simulation_id, variant_id)",
    "CREATE INDEX IF NOT EXISTS result_by_compound ON result(compound_name, endpoint, study)",
    "CREATE INDEX IF NOT EXISTS twa_of ON twa(result_id, days)",
    "CREATE INDEX IF NOT EXISTS message_of ON message(simulation_id, variant_id)",
    "CREATE INDEX IF NOT EXISTS value_by_name ON variant_value(name, value)",
};

constexpr const char* Positionstabelle =
    "CREATE TABLE IF NOT EXISTS position(position INTEGER PRIMARY KEY, simulation_id INTEGER NOT NULL, variant_id INTEGER)";

// `IS` compares NULL, too.
constexpr const char* Loeschungen[] = {
    "DELETE FROM year_maximum WHERE result_id IN (SELECT id FROM result WHERE simulation_id=?1 AND variant_id IS ?2)",
    "DELETE FROM twa WHERE result_id IN (SELECT id FROM result WHERE simulation_id=?1 AND variant_id IS ?2)",
    "DELETE FROM day WHERE result_id IN (SELECT id FROM result WHERE simulation_id=?1 AND variant_id IS ?2)",
    "DELETE FROM result WHERE simulation_id=?1 AND variant_id IS ?2",
    "DELETE FROM message WHERE simulation_id=?1 AND variant_id IS ?2",
};

}  // namespace

Anweisung& mit(Anweisung& a, int Stelle, const Variantennummer& Wert) {
    return Wert ? a.nimm(Stelle, *Wert) : a.nimm_nichts(Stelle);
}

Datenbankziel::Suchanweisungen::Suchanweisungen(const Verbindung& v)
    : Suchen(v.bereite("SELECT id FROM simulation WHERE project=?1 AND name=?2")),
      Anlegen(v.bereite("INSERT INTO simulation(project, name) VALUES(?1, ?2)")),
      Variante_suchen(v.bereite("SELECT id FROM variant WHERE simulation_id=?1 AND row=?2")),
      Variante(v.bereite("INSERT INTO variant(simulation_id, row) VALUES(?1, ?2)")),
      Werte_loeschen(v.bereite("DELETE FROM variant_value WHERE variant_id=?1")),
      weitere(v.bereite("SELECT id FROM variant WHERE simulation_id=?1 AND row>?2")),
      Variante_loeschen(v.bereite("DELETE FROM variant WHERE id=?1")) {
    for (const char* SQL : Loeschungen) Loeschen.push_back(v.bereite(SQL));
}

Datenbankziel::Zeilenanweisungen::Zeilenanweisungen(const Verbindung& v)
    : Beschreiben(
          v.bereite("UPDATE simulation SET description=?2, compound_record=?3, application_record=?4, scenario_record=?5, "
                    "inputs_sha256=?6, program=?7, version=?8 WHERE id=?1")),
      Variantensumme(v.bereite("UPDATE variant SET inputs_sha256=?2 WHERE id=?1")),
      Variantenwert(v.bereite("INSERT INTO variant_value(variant_id, name, value) VALUES(?1, ?2, ?3)")),
      Ergebnis(
          v.bereite("INSERT INTO result(simulation_id, variant_id, study, study_name, compound, compound_name, endpoint, unit, "
                    "maximum, maximum_day, tillage_maximum, plateau, growth, plateau_text) "
                    "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14)")),
      Jahr(v.bereite("INSERT INTO year_maximum VALUES(?1, ?2, ?3)")),
      TWA(v.bereite("INSERT INTO twa VALUES(?1, ?2, ?3, ?4, ?5)")),
      Tag(v.bereite("INSERT INTO day VALUES(?1, ?2, ?3, ?4)")),
      Meldung(v.bereite("INSERT INTO message VALUES(?1, ?2, ?3, ?4)")) {}

Datenbankziel::Datenbankziel(const std::string& Datei, bool mit_Positionen) : v_(Datei, Verbindung::Art::schreibend) {
    beginne_Stueck();
    for (const char* SQL : Tabellen) v_.fuehre_aus(SQL);
    if (mit_Positionen) v_.fuehre_aus(Positionstabelle);
    Suche_.emplace(v_);
    Zeilen_.emplace(v_);
    if (mit_Positionen) Position_.emplace(v_.bereite("INSERT OR REPLACE INTO position VALUES(?1, ?2, ?3)"));
    beende();
}

void Datenbankziel::beginne_Stueck() {
    if (std::exchange(offen_, true)) return;
    v_.fuehre_aus("BEGIN IMMEDIATE");
    Beginn_ = std::chrono::steady_clock::now();
}

void Datenbankziel::beende_Stueck() {
    if (std::chrono::steady_clock::now() - Beginn_ > std::chrono::seconds(1)) beende();
}

void Datenbankziel::beende() {
    if (std::exchange(offen_, false)) v_.fuehre_aus("COMMIT");
}

long long Datenbankziel::finde_oder(Anweisung& suche, Anweisung& lege_an) {
    if (suche.zeile()) {
        const long long Nummer = suche.Zahl(0);
        suche.setze_zurueck();
        return Nummer;
    }
    lege_an.fuehre_aus();
    return v_.letzte_Nummer();
}

long long Datenbankziel::Simulation(const std::string& Projekt, const std::string& Name) {
    Suche_->Suchen.nimm(1, Projekt).nimm(2, Name);
    Suche_->Anlegen.nimm(1, Projekt).nimm(2, Name);
    return finde_oder(Suche_->Suchen, Suche_->Anlegen);
}

void Datenbankziel::vergiss_Beschreibung(long long Simulation) {
    Anweisung& b = Zeilen_->Beschreiben;
    b.nimm(1, Simulation);
    for (int i = 2; i <= 8; ++i) b.nimm_nichts(i);
    b.fuehre_aus();
}

long long Datenbankziel::Variante(long long Simulation, long long Reihe) {
    Suche_->Variante_suchen.nimm(1, Simulation).nimm(2, Reihe);
    Suche_->Variante.nimm(1, Simulation).nimm(2, Reihe);
    return finde_oder(Suche_->Variante_suchen, Suche_->Variante);
}

void Datenbankziel::loesche_Ergebnisse(long long Simulation, const Variantennummer& Variante) {
    for (Anweisung& l : Suche_->Loeschen) mit(l.nimm(1, Simulation), 2, Variante).fuehre_aus();
    if (Variante) Suche_->Werte_loeschen.nimm(1, *Variante).fuehre_aus();
}

void Datenbankziel::loesche_Varianten_ueber(long long Simulation, long long hoechste) {
    std::vector<long long> Weitere;
    Suche_->weitere.nimm(1, Simulation).nimm(2, hoechste);
    while (Suche_->weitere.zeile()) Weitere.push_back(Suche_->weitere.Zahl(0));
    for (const long long Nummer : Weitere) {
        loesche_Ergebnisse(Simulation, Nummer);
        Suche_->Variante_loeschen.nimm(1, Nummer).fuehre_aus();
    }
}

}  // namespace varnok::batch
