#pragma once

#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace varnok::batch {

// A statement of a database, prepared once and run many times. Throws Laufzeitfehler that names the file.
class Anweisung {
public:
    Anweisung(sqlite3* db, const std::string& Datei, const char* SQL);
    ~Anweisung();
    Anweisung(Anweisung&& a) noexcept;
    Anweisung& operator=(Anweisung&&) = delete;

    Anweisung& nimm(int Stelle, const std::string& Text);
    Anweisung& nimm(int Stelle, double Zahl);
    Anweisung& nimm(int Stelle, long long Zahl);
    Anweisung& nimm(int Stelle, int Zahl) { return nimm(Stelle, static_cast<long long>(Zahl)); }
    Anweisung& nimm_nichts(int Stelle);
    // The value that another statement's row holds in a column, counted from 0.
    Anweisung& nimm_aus(int Stelle, const Anweisung& andere, int Spalte);

    // The next row; false behind the last one, and then it can be run again.
    bool zeile();
    // Runs it and gives up its rows.
    void fuehre_aus();
    void setze_zurueck();

    long long Zahl(int Spalte) const;
    double Kommazahl(int Spalte) const;
    std::string Text(int Spalte) const;
    bool leer(int Spalte) const;

private:
    void pruefe(int Ergebnis) const;

    sqlite3* db_;
    const std::string* Datei_;
    sqlite3_stmt* Anweisung_ = nullptr;
};

// A database that is open. Throws Laufzeitfehler that names the file and the reason: no database, locked, no room.
class Verbindung {
public:
    enum class Art { lesend, schreibend };
    Verbindung(const std::string& Datei, Art art);
    ~Verbindung();
    Verbindung(const Verbindung&) = delete;
    Verbindung& operator=(const Verbindung&) = delete;

    Anweisung bereite(const char* SQL) const { return {db_, Datei_, SQL}; }
    void fuehre_aus(const char* SQL) const { bereite(SQL).fuehre_aus(); }
    long long letzte_Nummer() const;
    const std::string& Datei() const { return Datei_; }

private:
    std::string Datei_;
    sqlite3* db_ = nullptr;
};

}  // namespace varnok::batch
