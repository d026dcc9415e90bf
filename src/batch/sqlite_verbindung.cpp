#include "batch/sqlite_verbindung.h"

#include <sqlite3.h>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/dateipfad.h"
#include "base/laufzeitfehler.h"

namespace varnok::batch {
namespace {

[[noreturn]] void melde(const std::string& Datei, const std::string& Grund) {
    throw Laufzeitfehler("Cannot use the database \"" + Datei + "\": " + Grund);
}

}  // namespace

Anweisung::Anweisung(sqlite3* db, const std::string& Datei, const char* SQL) : db_(db), Datei_(&Datei) {
    if (sqlite3_prepare_v2(db, SQL, -1, &Anweisung_, nullptr) != SQLITE_OK) melde(Datei, sqlite3_errmsg(db));
}

Anweisung::~Anweisung() { sqlite3_finalize(Anweisung_); }

Anweisung::Anweisung(Anweisung&& a) noexcept : db_(a.db_), Datei_(a.Datei_), Anweisung_(std::exchange(a.Anweisung_, nullptr)) {}

void Anweisung::pruefe(int Ergebnis) const {
    if (Ergebnis != SQLITE_OK && Ergebnis != SQLITE_ROW && Ergebnis != SQLITE_DONE) melde(*Datei_, sqlite3_errmsg(db_));
}

Anweisung& Anweisung::nimm(int Stelle, const std::string& Text) {
    pruefe(sqlite3_bind_text64(Anweisung_, Stelle, Text.data(), Text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

Anweisung& Anweisung::nimm(int Stelle, double Zahl) {
    pruefe(sqlite3_bind_double(Anweisung_, Stelle, Zahl));
    return *this;
}

Anweisung& Anweisung::nimm(int Stelle, long long Zahl) {
    pruefe(sqlite3_bind_int64(Anweisung_, Stelle, Zahl));
    return *this;
}

Anweisung& Anweisung::nimm_nichts(int Stelle) {
    pruefe(sqlite3_bind_null(Anweisung_, Stelle));
    return *this;
}

Anweisung& Anweisung::nimm_aus(int Stelle, const Anweisung& andere, int Spalte) {
    pruefe(sqlite3_bind_value(Anweisung_, Stelle, sqlite3_column_value(andere.Anweisung_, Spalte)));
    return *this;
}

bool Anweisung::zeile() {
    const int Ergebnis = sqlite3_step(Anweisung_);
    if (Ergebnis == SQLITE_ROW) return true;
    pruefe(Ergebnis);
    sqlite3_reset(Anweisung_);
    return false;
}

void Anweisung::fuehre_aus() {
    const int Ergebnis = sqlite3_step(Anweisung_);
    pruefe(Ergebnis);
    setze_zurueck();
}

void Anweisung::setze_zurueck() { sqlite3_reset(Anweisung_); }

long long Anweisung::Zahl(int Spalte) const { return sqlite3_column_int64(Anweisung_, Spalte); }

double Anweisung::Kommazahl(int Spalte) const { return sqlite3_column_double(Anweisung_, Spalte); }

std::string Anweisung::Text(int Spalte) const {
    const auto* Zeichen = reinterpret_cast<const char*>(sqlite3_column_text(Anweisung_, Spalte));
    return Zeichen == nullptr ? std::string()
                              : std::string(Zeichen, static_cast<std::size_t>(sqlite3_column_bytes(Anweisung_, Spalte)));
}

bool Anweisung::leer(int Spalte) const { return sqlite3_column_type(Anweisung_, Spalte) == SQLITE_NULL; }

Verbindung::Verbindung(const std::string& Datei, Art art) : Datei_(Datei) {
    // A link in its place is replaced, as in every output.
    std::error_code unwichtig;
    if (art == Art::schreibend && std::filesystem::is_symlink(als_Pfad(Datei), unwichtig))
        std::filesystem::remove(als_Pfad(Datei), unwichtig);
    const int Wunsch = art == Art::lesend ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    // A whole path, for the library knows names of another meaning.
    const std::string Pfad = std::filesystem::absolute(als_Pfad(Datei), unwichtig).string();
    if (sqlite3_open_v2(Pfad.c_str(), &db_, Wunsch, nullptr) != SQLITE_OK) {
        const std::string Grund = db_ == nullptr ? "not enough memory" : sqlite3_errmsg(db_);
        sqlite3_close(db_);
        melde(Datei, Grund);
    }
    // Other calls may be writing, each for a second at a time.
    constexpr int Geduld_in_ms = 60000;
    sqlite3_busy_timeout(db_, Geduld_in_ms);
}

Verbindung::~Verbindung() { sqlite3_close(db_); }

long long Verbindung::letzte_Nummer() const { return sqlite3_last_insert_rowid(db_); }

}  // namespace varnok::batch
