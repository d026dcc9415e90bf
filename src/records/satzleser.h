#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/satz.h"
#include "records/satzaufbau.h"
#include "records/zeilen.h"

namespace varnok {

// A line that cannot be read on; the text says why. Inside the reading of a record only: outside it
// is an early end or a Laufzeitfehler.
class Lesefehler : public std::runtime_error {
public:
    enum class Ursache {
        Aufbau,  // the file or the line ends too early
        Wert,    // a value that its place cannot hold
    };

    Lesefehler(Ursache u, int Zeile, int Stelle, const std::string& Grund)
        : std::runtime_error(Grund), Ursache_(u), Zeile_(Zeile), Stelle_(Stelle) {}

    bool am_Aufbau() const { return Ursache_ == Ursache::Aufbau; }
    int Zeile() const { return Zeile_; }    // counted from 1
    int Stelle() const { return Stelle_; }  // values of that line read before the fault

private:
    Ursache Ursache_;
    int Zeile_;
    int Stelle_;
};

// The walk that reads. Takes each value off the bytes and puts it into its place. Throws Lesefehler;
// the places passed before hold their new values then.
class Satzleser : public Satzgang {
public:
    Satzleser(std::string_view Bytes, char Dezimalzeichen) : Zeilen_(Bytes), Dezimalzeichen_(Dezimalzeichen) {}

    void Ueberschrift(std::string_view Text) override;
    void beginne(std::string_view Beschriftung) override;
    void beginne_Tabellenzeile(int Nummer) override;
    void Zwischenwert(const Feld& f) override;
    void Endwert(const Feld& f) override;
    bool folgt_Trennlinie() override;
    void Schlusszeile() override {}

    void bemerke(int Zeile, std::string Text) { Bemerkungen_.push_back({Zeile, std::move(Text)}); }
    int Zeilennummer() const { return Zeilen_.Nummer(); }
    std::vector<Bemerkung>& Bemerkungen() { return Bemerkungen_; }

private:
    // How messages name a line: its label in quotation marks, the divider, or a row of the table.
    struct Zeilenname {
        std::string_view Beschriftung;
        int Tabellenzeile = 0;
        std::string Text() const;
    };

    std::string_view naechste_Zeile(Zeilenname Name);
    void lies(const Feld& f, std::string_view Text);
    double lies_Zahl(const Feld& f, std::string_view Text);
    void lies_ganze_Zahl(const Feld& f, std::string_view Text);
    [[noreturn]] void melde_Wert(const std::string& Grund);

    Zeilenfolge Zeilen_;
    char Dezimalzeichen_;
    Zeilenname Name_;        // of the line in work
    std::string_view Rest_;  // of the line in work
    int Stelle_ = 0;         // values of that line read so far
    std::vector<Bemerkung> Bemerkungen_;
};

}  // namespace varnok
