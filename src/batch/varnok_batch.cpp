#include "batch/varnok_batch.h"

#include <tbb/enumerable_thread_specific.h>
#include <tbb/global_control.h>
#include <tbb/parallel_pipeline.h>
#include <tbb/task_arena.h>
#include <algorithm>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
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
    const auto Gelesene =
        zerlege_Einstellungen(lies_Datei(a.Einstellungsdatei), a.Einstellungsdatei, &Arbeit.zu_den_Einstellungen);
    if (!Gelesene) {
        const Bemerkung& Grund = Arbeit.zu_den_Einstellungen.back();
        throw Aufruffehler("--settings " + a.Einstellungsdatei + ": this is no settings file (line " +
                           std::to_string(Grund.Zeile) + ", " + Grund.Feld + ": " + Grund.Meldung + ")");
    }
    Arbeit.TWA = Gelesene->TWA;
    return Arbeit;
}

// What is left of a simulation until its turn comes: texts instead of results.
struct Fertiges {
    std::vector<std::string> Meldungen;
    std::vector<std::string> Schreibfehler;
    std::vector<std::string> Stuecke;  // of each output
    bool gescheitert = false;
};

Fertiges rechne(const Auftrag& a, const std::string& Name, const Ausgaben& Ziele, Arbeitsplatz& Platz) {
    Simulationsausgang s = rechne_Simulation(a, Name, Platz);
    Fertiges f;
    const std::string davor = druckbar(Name) + ": ";
    for (const Bemerkung& b : s.Ergebnis.Bemerkungen) f.Meldungen.push_back(davor + druckbar(als_Zeile(b)));
    if (s.Fehler) f.Meldungen.push_back(davor + druckbar(*s.Fehler));
    f.Schreibfehler = std::move(s.Schreibfehler);
    f.Stuecke = Ziele.Stuecke(s);
    f.gescheitert = s.Fehler.has_value();
    return f;
}

// Calculates on several threads and hands over what is finished in the order of the names, so neither order nor number of
// threads shows in any output. Only so many simulations are under way that a long one does not keep the others waiting.
template <class Abnehmer>
void rechne_alle(const Auftrag& a, const Namensliste& Namen, int Arbeiter, const Ausgaben& Ziele, Abnehmer nimm) {
    constexpr std::size_t unterwegs_pro_Arbeiter = 16;
    const auto Zahl = static_cast<std::size_t>(Arbeiter);
    tbb::enumerable_thread_specific<Arbeitsplatz> Plaetze;
    std::size_t begonnen = 0;
    const auto beginne = [&](tbb::flow_control& Ende) -> std::size_t {
        if (begonnen == Namen.size()) Ende.stop();
        return begonnen++;
    };
    const auto arbeite = [&](std::size_t i) { return rechne(a, Namen[i], Ziele, Plaetze.local()); };
    // Without this the library would not give more threads than there are cores.
    const tbb::global_control Grenze(tbb::global_control::max_allowed_parallelism, Zahl);
    tbb::task_arena Arena(Arbeiter);
    Arena.execute([&] {
        tbb::parallel_pipeline(Zahl * unterwegs_pro_Arbeiter,
                               tbb::make_filter<void, std::size_t>(tbb::filter_mode::serial_in_order, beginne) &
                                   tbb::make_filter<std::size_t, Fertiges>(tbb::filter_mode::parallel, arbeite) &
                                   tbb::make_filter<Fertiges, void>(tbb::filter_mode::serial_in_order, nimm));
    });
}

int Zahl_der_Arbeiter(const Aufruf& a) {
    if (a.Arbeiter > 0) return a.Arbeiter;
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void schreibe_Standardausgabe(std::ostream& aus, std::string_view Text) {
    aus.write(Text.data(), static_cast<std::streamsize>(Text.size()));
    aus.flush();
    if (!aus) throw Laufzeitfehler("The results cannot be written to standard output.");
}

int fuehre_aus(const Aufruf& a, std::ostream& aus, std::ostream& fehler, const Umgebung& Umwelt) {
    const Projektordner Ordner = Projektordner(a.Projekt).mit_Verzeichnis();
    const Namensliste Namen = waehle_Simulationen(Ordner, a);
    Auftrag Arbeit = erstelle_Auftrag(a, Ordner, Namen);
    Arbeit.Zeit = Umwelt.Zeit;
    bereite_Ausgaben_vor(a, Ordner);
    if (!a.Berichtsordner.empty()) Arbeit.schreibe_Bericht = Umwelt.Berichte();

    std::optional<Fortschrittsbalken> Balken;
    if (!a.leise && Umwelt.Fehlerausgabe_ist_Terminal()) Balken.emplace(fehler, Namen.size(), Umwelt.Wartezeit_bis_Balken);
    const auto raeume = [&] { return Balken ? Balken->raeume() : std::unique_lock<std::mutex>(); };

    Ausgaben Ziele(a, [&](std::string_view Text) {
        const auto frei = raeume();
        schreibe_Standardausgabe(aus, Text);
    });
    std::size_t fertig = 0;
    bool gescheitert = false;
    std::vector<std::string> Schreibfehler;
    rechne_alle(Arbeit, Namen, Zahl_der_Arbeiter(a), Ziele, [&](Fertiges f) {
        if (!f.Meldungen.empty()) {
            const auto frei = raeume();
            for (const std::string& m : f.Meldungen) melde(fehler, m);
        }
        Schreibfehler.insert(Schreibfehler.end(), f.Schreibfehler.begin(), f.Schreibfehler.end());
        Ziele.schreibe(std::move(f.Stuecke), f.gescheitert);
        gescheitert = gescheitert || f.gescheitert;
        if (Balken) Balken->melde(++fertig, Namen.size());
    });
    const std::vector<std::string> der_Ausgaben = Ziele.beende();
    Schreibfehler.insert(Schreibfehler.end(), der_Ausgaben.begin(), der_Ausgaben.end());
    Balken.reset();
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
