#include "batch/varnok_batch.h"

#include <tbb/blocked_range.h>
#include <tbb/global_control.h>
#include <tbb/parallel_for.h>
#include <tbb/partitioner.h>
#include <tbb/task_arena.h>
#include <algorithm>
#include <atomic>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "base/laufzeitfehler.h"
#include "batch/aufruf.h"
#include "batch/ausgaben.h"
#include "batch/berichte.h"
#include "batch/fortschrittsbalken.h"
#include "batch/schreiber.h"
#include "batch/simulationslauf.h"
#include "batch/simulationswahl.h"
#include "records/dateien.h"
#include "records/einstellungen.h"
#include "records/simulation.h"

namespace varnok::batch {
namespace {

using Namensliste = std::vector<std::string>;

void melde(std::ostream& fehler, const std::string& Text) { fehler << "varnok-batch: " << Text << '\n'; }

// Descriptions of more than one of the simulations. One that cannot be read is told when it is calculated.
Namensliste mehrfache_Beschreibungen(const Projektordner& Ordner, const Namensliste& Namen) {
    std::map<std::string, int> Zaehler;
    for (const std::string& Name : Namen) {
        try {
            ++Zaehler[lies_Simulation(Ordner, Name).Beschreibung];
        } catch (const Laufzeitfehler&) {
            continue;
        }
    }
    Namensliste Mehrfache;
    for (const auto& [Beschreibung, Anzahl] : Zaehler) {
        if (Anzahl > 1) Mehrfache.push_back(Beschreibung);
    }
    return Mehrfache;
}

Auftrag erstelle_Auftrag(const Aufruf& a, const Projektordner& Ordner, const Namensliste& Namen) {
    Auftrag Arbeit(Ordner);
    Arbeit.Studie = a.Studie;
    Arbeit.Serienordner = a.Serienordner;
    Arbeit.Berichtsordner = a.Berichtsordner;
    Arbeit.erweitert = a.erweitert;
    if (!a.Berichtsordner.empty()) Arbeit.mehrfache_Beschreibungen = mehrfache_Beschreibungen(Ordner, Namen);
    if (a.Einstellungsdatei.empty()) return Arbeit;
    const auto Gelesene = zerlege_Einstellungen(lies_Datei(a.Einstellungsdatei));
    if (!Gelesene) throw Aufruffehler("--settings " + a.Einstellungsdatei + ": this is no settings file");
    Arbeit.TWA = Gelesene->TWA;
    return Arbeit;
}

// Every simulation has its own place for its outcome, so neither order nor number of threads shows in the result.
std::vector<Simulationsausgang> rechne_alle(const Auftrag& a, const Namensliste& Namen, int Arbeiter, Fortschritt* Balken) {
    std::vector<Simulationsausgang> Ausgaenge(Namen.size());
    std::atomic<std::size_t> fertig = 0;
    const auto rechne = [&](const tbb::blocked_range<std::size_t>& Bereich) {
        for (std::size_t i = Bereich.begin(); i != Bereich.end(); ++i) {
            std::unique_ptr<Lauf> Arbeitsplatz;
            Ausgaenge[i] = rechne_Simulation(a, Namen[i], Arbeitsplatz);
            const std::size_t bisher = ++fertig;
            if (Balken != nullptr) Balken->melde(bisher, Namen.size());
        }
    };
    // Without this the library would not give more threads than there are cores.
    const tbb::global_control Grenze(tbb::global_control::max_allowed_parallelism, static_cast<std::size_t>(Arbeiter));
    tbb::task_arena Arena(Arbeiter);
    Arena.execute(
        [&] { tbb::parallel_for(tbb::blocked_range<std::size_t>(0, Namen.size(), 1), rechne, tbb::simple_partitioner()); });
    return Ausgaenge;
}

int Zahl_der_Arbeiter(const Aufruf& a) {
    if (a.Arbeiter > 0) return a.Arbeiter;
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

// Remarks and faults in the order of the simulations. True if a simulation is at fault.
bool berichte(const std::vector<Simulationsausgang>& Ausgaenge, std::ostream& fehler) {
    bool gescheitert = false;
    for (const Simulationsausgang& a : Ausgaenge) {
        const std::string davor = druckbar(a.Ergebnis.Name) + ": ";
        for (const std::string& b : a.Ergebnis.Bemerkungen) melde(fehler, davor + druckbar(b));
        if (a.Fehler) melde(fehler, davor + druckbar(*a.Fehler));
        gescheitert = gescheitert || a.Fehler.has_value();
    }
    return gescheitert;
}

int fuehre_aus(const Aufruf& a, std::ostream& aus, std::ostream& fehler, const Umgebung& Umwelt) {
    const Projektordner Ordner(a.Projekt);
    const Namensliste Namen = waehle_Simulationen(Ordner, a);
    Auftrag Arbeit = erstelle_Auftrag(a, Ordner, Namen);
    Arbeit.Zeit = Umwelt.Zeit;
    bereite_Ausgaben_vor(a, Ordner);
    if (!a.Berichtsordner.empty()) bereite_Berichte_vor();

    std::vector<Simulationsausgang> Ausgaenge;
    {
        std::optional<Fortschrittsbalken> Balken;
        if (!a.leise && Umwelt.Fehlerausgabe_ist_Terminal()) Balken.emplace(fehler, Namen.size(), Umwelt.Wartezeit_bis_Balken);
        Ausgaenge = rechne_alle(Arbeit, Namen, Zahl_der_Arbeiter(a), Balken ? &*Balken : nullptr);
    }
    const bool gescheitert = berichte(Ausgaenge, fehler);
    const std::vector<std::string> Schreibfehler = schreibe_Ausgaben(a, Ausgaenge, aus);
    for (const std::string& s : Schreibfehler) melde(fehler, s);
    if (!Schreibfehler.empty()) return falscher_Aufruf;
    return gescheitert ? Simulation_gescheitert : alles_berechnet;
}

}  // namespace

Umgebung Umgebung_des_Prozesses() {
    constexpr int Fehlerausgabe = 2;
#ifdef _WIN32
    return {[] { return _isatty(Fehlerausgabe) != 0; }};
#else
    return {[] { return isatty(Fehlerausgabe) != 0; }};
#endif
}

int varnok_batch(int argc, const char* const* argv, std::ostream& aus, std::ostream& fehler, const Umgebung& Umwelt) {
    try {
        const auto Gewolltes = lies_Aufruf(argc, argv);
        if (const auto* a = std::get_if<Aufruf>(&Gewolltes)) return fuehre_aus(*a, aus, fehler, Umwelt);
        aus << std::get<Auskunft>(Gewolltes).Text << std::flush;
        return alles_berechnet;
    } catch (const std::exception& f) {
        melde(fehler, f.what());
        return falscher_Aufruf;
    }
}

}  // namespace varnok::batch
