#include "batch/verbinden.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "base/text.h"
#include "batch/datenbankteil.h"
#include "batch/schreiber.h"
#include "batch/teilleser.h"
#include "records/eingabenamen.h"

namespace varnok::batch {
namespace {

// The entries of several parts in rising order of their positions.
class Reihenfolge {
public:
    void nimm(std::unique_ptr<Teilleser> Teil, const std::string& Datei) {
        auto erster = Teil->naechster();
        if (erster) Teile_.push_back({std::move(Teil), std::move(*erster), Datei});
    }

    std::optional<Teileintrag> naechster() {
        if (Teile_.empty()) return std::nullopt;
        const auto vorderster = std::min_element(
            Teile_.begin(), Teile_.end(), [](const Stand& x, const Stand& y) { return x.Eintrag.Position < y.Eintrag.Position; });
        Teileintrag t = std::move(vorderster->Eintrag);
        if (letzte_ && t.Position == *letzte_)
            throw Aufruffehler("--merge " + vorderster->Datei + ": position " + std::to_string(t.Position) +
                               " stands in another part as well");
        letzte_ = t.Position;
        if (auto danach = vorderster->Teil->naechster()) {
            if (danach->Position < t.Position) throw Aufruffehler("--merge " + vorderster->Datei + ": the positions do not rise");
            vorderster->Eintrag = std::move(*danach);
        } else {
            Teile_.erase(vorderster);
        }
        ++Anzahl_;
        return t;
    }

    std::size_t Anzahl() const { return Anzahl_; }
    // One more than the highest position.
    std::size_t Ende() const { return letzte_ ? *letzte_ + 1 : 0; }

private:
    struct Stand {
        std::unique_ptr<Teilleser> Teil;
        Teileintrag Eintrag;
        std::string Datei;
    };

    std::vector<Stand> Teile_;
    std::optional<std::size_t> letzte_;
    std::size_t Anzahl_ = 0;
};

// The summary of what is joined, where one is asked for.
class Perzentile {
public:
    Perzentile(const Aufruf& a, const Textziel::Standardausgabe& aus) : Zahlen_(0) {
        if (a.Zusammenfassungsdatei.empty()) return;
        Ziel_.emplace(a.Zusammenfassungsdatei, aus);
        Ziel_->schreibe(Zusammenfassung::Kopfzeile());
    }

    void nimm(const Teileintrag& t) {
        if (Ziel_) Ziel_->schreibe(Zahlen_.nimm(t.Simulation, t.Werte));
    }
    void beende() {
        if (!Ziel_) return;
        Ziel_->schreibe(Zahlen_.beende());
        Ziel_->beende();
    }

private:
    std::optional<Textziel> Ziel_;
    Zusammenfassung Zahlen_;
};

void fordere_alle(std::size_t Anzahl, std::size_t Ende) {
    if (Anzahl == Ende) return;
    throw Aufruffehler("--merge: of the positions 0 to " + std::to_string(Ende - 1) + " there are only " +
                       std::to_string(Anzahl) + ": a part is missing");
}

// Of the values of the call a joining reads the rotation alone, which no key of the results holds.
Teilwunsch lies_Wunsch(const Aufruf& a) {
    Teilwunsch w;
    w.mit_Kennwerten = !a.Zusammenfassungsdatei.empty();
    const Namensbezug Rotation = lies_Namensbezug("rotation");
    for (const std::string& Text : a.Vorgaben) {
        const auto Gleich = Text.find('=');
        const bool benannt = Gleich != std::string::npos && ohne_Randblanks(Text.substr(0, Gleich)) == Rotation.Text;
        const Zahlwert Wert = benannt ? Text.substr(Gleich + 1) : std::string();
        if (!Wert.ganz() || !nimmt_an(*Rotation.Name, Wert.Zahl()))
            throw Aufruffehler("--set " + Text + ": with --merge only rotation=1, 2 or 3 is of use, for the summary");
        w.Fruchtwechsel = Fruchtfolge_von(static_cast<int>(Wert.Zahl()));
    }
    return w;
}

bool verbinde_JSON(const Aufruf& a, const Textziel::Standardausgabe& aus, const Teilwunsch& w) {
    Perzentile Summe(a, aus);
    Textziel Ziel(a.JSON_Datei, aus);
    const auto Dokument = JSON_Schreiber();
    Ziel.schreibe(Dokument->Anfang());
    std::size_t Anzahl = 0;
    std::size_t Ende = 0;
    std::size_t Fehler = 0;
    for (const JSON_Liste Liste : {JSON_Liste::Simulationen, JSON_Liste::Fehler}) {
        Reihenfolge Alle;
        for (const std::string& Datei : a.Teildateien) Alle.nimm(JSON_Teil(Datei, Liste, w), Datei);
        while (auto t = Alle.naechster()) {
            if (!t->gescheitert) Summe.nimm(*t);
            Ziel.schreibe(Dokument->naechstes(std::move(t->Text), t->gescheitert));
        }
        Anzahl += Alle.Anzahl();
        Ende = std::max(Ende, Alle.Ende());
        if (Liste == JSON_Liste::Fehler) Fehler = Alle.Anzahl();
    }
    fordere_alle(Anzahl, Ende);
    Ziel.schreibe(Dokument->Ende());
    Ziel.beende();
    Summe.beende();
    return Fehler > 0;
}

bool verbinde_Zeilen(const Aufruf& a, const Textziel::Standardausgabe& aus, const Teilwunsch& w) {
    Perzentile Summe(a, aus);
    Textziel Ziel(a.Zeilendatei, aus);
    Reihenfolge Alle;
    for (const std::string& Datei : a.Teildateien) Alle.nimm(Zeilenteil(Datei, w), Datei);
    bool gescheitert = false;
    while (const auto t = Alle.naechster()) {
        Summe.nimm(*t);
        Ziel.schreibe(t->Text);
        gescheitert = gescheitert || t->gescheitert;
    }
    fordere_alle(Alle.Anzahl(), Alle.Ende());
    Ziel.beende();
    Summe.beende();
    return gescheitert;
}

bool verbinde_CSV(const Aufruf& a, const Textziel::Standardausgabe& aus, const Teilwunsch& w) {
    Perzentile Summe(a, aus);
    std::string Kopf;
    Reihenfolge Alle;
    for (const std::string& Datei : a.Teildateien) Alle.nimm(CSV_Teil(Datei, Kopf, w), Datei);
    Textziel Ziel(a.CSV_Datei, aus);
    Ziel.schreibe(Kopf + "\r\n");
    while (const auto t = Alle.naechster()) {
        Summe.nimm(*t);
        Ziel.schreibe(t->Text);
    }
    Ziel.beende();
    Summe.beende();
    return false;  // a table does not tell of errors
}

// A database takes the rows as they come, so the parts have to be a whole before the first of them.
void pruefe_Datenbanken(const Aufruf& a) {
    Reihenfolge Alle;
    for (const std::string& Datei : a.Teildateien) Alle.nimm(Datenbankpositionen(Datei), Datei);
    while (Alle.naechster()) continue;
    fordere_alle(Alle.Anzahl(), Alle.Ende());
}

bool verbinde_Datenbanken(const Aufruf& a, const Textziel::Standardausgabe& aus, const Teilwunsch& w) {
    pruefe_Datenbanken(a);
    Perzentile Summe(a, aus);
    Datenbankverbund Verbund(a.Datenbank);
    Reihenfolge Alle;
    for (const std::string& Datei : a.Teildateien) Alle.nimm(Verbund.Teil(Datei, w), Datei);
    bool gescheitert = false;
    while (auto t = Alle.naechster()) {
        t->uebernimm(*t);
        Summe.nimm(*t);
        gescheitert = gescheitert || t->gescheitert;
    }
    Verbund.beende();
    Summe.beende();
    return gescheitert;
}

}  // namespace

bool verbinde_Teile(const Aufruf& a, const Textziel::Standardausgabe& aus) {
    const Teilwunsch w = lies_Wunsch(a);
    if (!a.JSON_Datei.empty()) return verbinde_JSON(a, aus, w);
    if (!a.Zeilendatei.empty()) return verbinde_Zeilen(a, aus, w);
    if (!a.CSV_Datei.empty()) return verbinde_CSV(a, aus, w);
    return verbinde_Datenbanken(a, aus, w);
}

}  // namespace varnok::batch
