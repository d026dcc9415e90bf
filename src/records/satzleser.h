#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/bemerkung.h"
#include "base/laufzeitfehler.h"
#include "base/zahlen.h"
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

    Lesefehler(Ursache u, Fehlerort Ort, int Stelle, const std::string& Grund)
        : std::runtime_error(Grund), Ursache_(u), Ort_(std::move(Ort)), Stelle_(Stelle) {}

    bool am_Aufbau() const { return Ursache_ == Ursache::Aufbau; }
    const Fehlerort& Ort() const { return Ort_; }
    int Zeile() const { return Ort_.Zeile; }
    int Stelle() const { return Stelle_; }  // values of that line read before the fault

private:
    Ursache Ursache_;
    Fehlerort Ort_;
    int Stelle_;
};

// The walk that reads. Takes each value off the bytes and puts it into its place. Throws Lesefehler;
// the places passed before hold their new values then.
class Satzleser : public Satzgang {
public:
    Satzleser(std::string_view Bytes, std::string Datei, char Dezimalzeichen)
        : Zeilen_(Bytes), Datei_(std::move(Datei)), Dezimalzeichen_(Dezimalzeichen) {}

    void Ueberschrift(std::string_view Text) override;
    void beginne(std::string_view Beschriftung) override;
    void beginne_Tabellenzeile(int Nummer) override;
    void Zwischenwert(const Feld& f) override;
    void Endwert(const Feld& f) override;
    bool folgt_Trennlinie() override;
    void Schlusszeile() override {}

    // About a line and what happened there; about a value that is doubtful beside the others.
    void bemerke(int Zeile, std::string Meldung) { merke_vor({Datei_, Zeile, {}, std::move(Meldung), {}, {}}); }
    void bemerke(int Zeile, std::string Feld, std::string Meldung, double Wert) {
        merke_vor({Datei_, Zeile, std::move(Feld), std::move(Meldung), {}, Wert});
    }
    int Zeilennummer() const { return Zeilen_.Nummer(); }
    // The remarks in the order of the lines; of what no run of the input reads only those about its text.
    std::vector<Bemerkung> Bemerkungen(const Eingabe& e) const;

private:
    // How messages name a line: its label in quotation marks, the divider, or a row of the table.
    struct Zeilenname {
        std::string_view Beschriftung;
        int Tabellenzeile = 0;
        std::string Text() const;
        // The same as a remark names a value of it.
        std::string Feldname(const Feld& f) const;
    };

    // A remark that counts only where a run reads the value: its store, null for one that counts always.
    struct Vorgemerktes {
        Bemerkung Was;
        const Wertebereich* Speicher = nullptr;
        int i_studie = -1;
        int i_substanz = -1;
    };

    void merke_vor(Bemerkung b) { Bemerkungen_.push_back({std::move(b)}); }
    std::string_view naechste_Zeile(Zeilenname Name);
    void lies(const Feld& f, std::string_view Text);
    void lies_Wert(const Feld& f, std::string_view Text);
    Zahllesung lies_Zahl(const Feld& f, std::string_view Text);
    void lies_ganze_Zahl(const Feld& f, std::string_view Text);
    void bemerke_Wert(const Feld& f, std::string_view Text, const Zahllesung& l, double genommen);
    Fehlerort Ort_von(const Feld& f, std::string_view Text) const;
    [[noreturn]] void melde_Wert(const Feld& f, std::string_view Text, const std::string& Grund);

    Zeilenfolge Zeilen_;
    std::string Datei_;
    char Dezimalzeichen_;
    Zeilenname Name_;        // of the line in work
    std::string_view Rest_;  // of the line in work
    int Stelle_ = 0;         // values of that line read so far
    std::vector<Vorgemerktes> Bemerkungen_;
};

}  // namespace varnok
