// What must always be possible in a walk: to end the program, to choose another simulation, to save and load again.

#include <algorithm>

#include "base/laufzeitfehler.h"
#include "records/simulation.h"
#include "session/kern/sitzungsgang.h"

namespace varnok::gang {
namespace {

// The bytes around a place.
std::string Stelle(const std::string& Bytes, std::size_t i) {
    const std::size_t von = Bytes.rfind('\n', i) + 1;
    return Bytes.substr(von, Bytes.find('\r', i) - von);
}

void Esc(Gang& g) {
    const Sitzung& s = g.s();
    if (s.zeige<Feldeingabe>().aktives_Feld() >= 0) g.tue<&Feldeingabe::nimm_zurueck>(s.zeige<Feldeingabe>().aktives_Feld());
    g.tue<&Studienverwaltung::nimm_zurueck>();
    if (s.zeige<Beschreibungseingabe>().offen()) g.tue<&Beschreibungseingabe::nimm_zurueck>();
}

}  // namespace

void Gang::pruefe_Ende(Knopf Antwort) {
    Fragen_.bestehe_auf(Antwort);
    Fragen_.lass_los(true);
    for (const bool nach_Esc : {false, true}) {
        if (nach_Esc) Esc(*this);
        tue<&Programmablauf::beende>();
        if (!z().beendet()) tue<&Programmablauf::schliesse_Fenster>();
        if (z().beendet()) return;
    }
    // A save that cannot be done is told, and then only No ends the program.
    const bool gesagt = Fragen_.gefragt("Record not set") || Fragen_.gefragt("Runtime error");
    if (Antwort == Knopf::Ja && gesagt) return;
    throw Verstoss{"the program cannot be ended", Fragen_.Bericht()};
}

void Gang::pruefe_andere_Simulation() {
    Fragen_.bestehe_auf(Knopf::Nein);
    Fragen_.lass_los(true);
    const Dateien da = Projekt_.lies();
    const auto& Liste = z().Listen[Simulation];
    for (std::size_t i = 0; i < Liste.size(); ++i) {
        const std::string Name = Liste[i];
        if (Name == z().gewaehlt(Simulation) || !da.contains(Satzdatei(Name, Simulation))) continue;
        try {
            lies_Simulation(Projektordner(Projekt_.Wurzel().string()), Name);
        } catch (const Laufzeitfehler&) {
            continue;
        }
        tue<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
        if (z().gewaehlt(Simulation) != Name && !z().beendet()) {
            Esc(*this);
            tue<&Satzverwaltung::waehle_Simulation>(static_cast<int>(i));
        }
        if (z().gewaehlt(Simulation) != Name && !z().beendet())
            throw Verstoss{"no other simulation can be chosen", Name + Fragen_.Bericht()};
        return;
    }
}

// Saved and loaded by another program: the same numbers, the same results.
void Gang::pruefe_Sicherung() {
    Fragen_.bestehe_auf(Knopf::Ja);
    tue<&Satzverwaltung::speichere>();
    const bool gesagt =
        Fragen_.gefragt("Record not set") || Fragen_.gefragt("Runtime error") || Fragen_.gefragt("No valid input!");
    if (gesagt || z().beendet() || s_->zeige<Feldeingabe>().aktives_Feld() >= 0) return;
    const Dateien da = Projekt_.lies();
    for (const Satzart Art : alle_Arten) {
        if (!z().Saetze[Art].gelesen()) return;
        const auto Datei = da.find(Satzdatei(z().Namen[Art], Art));
        if (Datei == da.end() || Datei->second != z().Speicherbytes(Art))
            throw Verstoss{"a save has not written what is on the screen", Satzdatei(z().Namen[Art], Art)};
    }
    Projekt_.ordne_Zeiten(Stand_, da);
    Zufall keiner(0);
    Antworter andere(&keiner);
    andere.bestehe_auf(Knopf::Nein);
    Sitzung zweite(Umgebung{&andere, Projekt_.Wurzel().string(), "", '.', &Zeit_});
    if (!zweite.fuehre_aus<&Programmablauf::oeffne_Projekt>())
        throw Verstoss{"what was saved cannot be loaded", andere.Bericht()};
    const Zustand& geladen = zweite.Stand();
    if (geladen.gewaehlt(Simulation) != z().gewaehlt(Simulation)) return;  // another one was written at the same time
    for (const Satzart Art : alle_Arten) {
        const std::string hier = z().Speicherbild(Art);
        const std::string dort = geladen.Speicherbild(Art);
        if (hier == dort || gleiche_Zahlen(hier, dort)) continue;
        const auto i =
            static_cast<std::size_t>(std::mismatch(hier.begin(), hier.end(), dort.begin(), dort.end()).first - hier.begin());
        throw Verstoss{"other numbers after saving and loading",
                       Satzdatei(z().Namen[Art], Art) + ": \"" + Stelle(hier, i) + "\" came back as \"" + Stelle(dort, i) + "\""};
    }
    if (z().abgedeckt() || z().Hinweis()) return;
    for (const int st : z().gezeigte_Studien()) {
        const auto e = Gegen_.rechne(geladen.Vorgabe, st, z().Klima);
        if (!e || !gleiche_Werte(*e, *z().Werte().at(static_cast<std::size_t>(st))))
            throw Verstoss{"other results after saving and loading", "study " + std::to_string(st)};
    }
}

}  // namespace varnok::gang
