#include "batch/varnok_batch.h"

#include <tbb/enumerable_thread_specific.h>
#include <tbb/global_control.h>
#include <tbb/parallel_pipeline.h>
#include <tbb/task_arena.h>
#include <algorithm>
#include <exception>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "base/dateipfad.h"
#include "base/druckbares.h"
#include "base/laufzeitfehler.h"
#include "batch/arbeitsliste.h"
#include "batch/aufruf.h"
#include "batch/ausgaben.h"
#include "batch/fortschrittsbalken.h"
#include "batch/fortsetzung.h"
#include "batch/pruefbericht.h"
#include "batch/schreiber.h"
#include "batch/simulationslauf.h"
#include "batch/simulationswahl.h"
#include "batch/variantenquelle.h"
#include "batch/verbinden.h"
#include "batch/vorgaben.h"
#include "records/dateien.h"
#include "records/einstellungen.h"

namespace varnok::batch {
namespace {

using Namensliste = std::vector<std::string>;

// What comes from a file neither steers a terminal nor looks like a message of its own.
void melde(std::ostream& fehler, const std::string& Text) { fehler << "varnok-batch: " << druckbar(Text) << '\n'; }

Auftrag erstelle_Auftrag(const Aufruf& a, const Projektordner& Ordner) {
    Auftrag Arbeit(Ordner);
    Arbeit.Studie = a.Studie;
    Arbeit.Serienordner = a.Serienordner;
    Arbeit.Berichtsordner = a.Berichtsordner;
    Arbeit.erweitert = a.erweitert;
    Arbeit.volle_Serien = a.volle_Serien;
    Arbeit.mit_Reihen = !a.Datenbank.empty() && !a.Serienordner.empty();
    Arbeit.Variantenquelle = a.Variantendatei.empty() ? a.Stichprobendatei : a.Variantendatei;
    Arbeit.mit_Summe =
        !a.JSON_Datei.empty() || !a.Zeilendatei.empty() || !a.Datenbank.empty() || a.mit_Eingaben || !a.Berichtsordner.empty();
    if (!a.Berichtsordner.empty()) Arbeit.Namen = Berichtsnamen(Ordner);
    if (a.Einstellungsdatei.empty()) return Arbeit;
    Arbeit.Einstellungen = lies_Datei(a.Einstellungsdatei, Quelle::alles);
    const auto Gelesene = zerlege_Einstellungen(*Arbeit.Einstellungen, a.Einstellungsdatei, &Arbeit.zu_den_Einstellungen);
    if (!Gelesene) {
        const Bemerkung& Grund = Arbeit.zu_den_Einstellungen.back();
        throw Aufruffehler("--settings " + a.Einstellungsdatei + ": this is no settings file (line " +
                           std::to_string(Grund.Zeile) + ", " + Grund.Feld + ": " + Grund.Meldung + ")");
    }
    Arbeit.TWA = Gelesene->TWA;
    return Arbeit;
}

// A hint stands on a line of its own; any other line end is one of a name.
void melde_Aufruffehler(std::ostream& fehler, const std::string& Text) {
    const auto Ende = Text.find(Hilfehinweis);
    melde(fehler, Text.substr(0, Ende));
    if (Ende != std::string::npos) fehler << Text.substr(Ende + 1) << '\n';
}

// What is left of a simulation until its turn comes.
struct Fertiges {
    Simulationsausgang Ausgang;        // without its results where no output reads them
    std::vector<std::string> Stuecke;  // of each output
    std::optional<std::string> bewahrte_Zeile;
};

Fertiges rechne(const Auftrag& a, const Arbeitsstueck& s, const Ausgaben& Ziele, Arbeitsplatz& Platz) {
    Fertiges f;
    f.Ausgang = rechne_Simulation(a, s, Platz);
    f.Stuecke = Ziele.Stuecke(f.Ausgang);
    if (!Ziele.braucht_Ergebnis()) {
        f.Ausgang.Ergebnis.Studien.clear();
        f.Ausgang.Ergebnis.Vorgabe.reset();
    }
    return f;
}

// A piece of work on its way to a worker.
struct Anstehendes {
    Arbeitsstueck Stueck;
    std::optional<std::string> bewahrte_Zeile;
};

// Calculates on several threads and hands over what is finished in the order of the call, so neither order nor number of
// threads shows in any output. Only so many simulations are under way that a long one does not keep the others waiting.
template <class Geber, class Abnehmer>
void rechne_alle(const Auftrag& a, Geber naechstes, int Arbeiter, const Ausgaben& Ziele, Abnehmer nimm) {
    constexpr std::size_t unterwegs_pro_Arbeiter = 16;
    const auto Zahl = static_cast<std::size_t>(Arbeiter);
    tbb::enumerable_thread_specific<Arbeitsplatz> Plaetze;
    const auto beginne = [&](tbb::flow_control& Ende) -> std::shared_ptr<Anstehendes> {
        auto s = naechstes();
        if (!s) Ende.stop();
        return s;
    };
    const auto arbeite = [&](const std::shared_ptr<Anstehendes>& s) {
        if (!s->bewahrte_Zeile) return rechne(a, s->Stueck, Ziele, Plaetze.local());
        Fertiges f;
        f.bewahrte_Zeile = std::move(s->bewahrte_Zeile);
        return f;
    };
    // Without this the library would not give more threads than there are cores.
    const tbb::global_control Grenze(tbb::global_control::max_allowed_parallelism, Zahl);
    tbb::task_arena Arena(Arbeiter);
    Arena.execute([&] {
        tbb::parallel_pipeline(Zahl * unterwegs_pro_Arbeiter,
                               tbb::make_filter<void, std::shared_ptr<Anstehendes>>(tbb::filter_mode::serial_in_order, beginne) &
                                   tbb::make_filter<std::shared_ptr<Anstehendes>, Fertiges>(tbb::filter_mode::parallel, arbeite) &
                                   tbb::make_filter<Fertiges, void>(tbb::filter_mode::serial_in_order, nimm));
    });
}

// Tells what there is to say of a simulation; what all its variants share is told once.
class Meldungen {
public:
    std::vector<std::string> neue(const Simulationsausgang& s) {
        const Simulationsergebnis& r = s.Ergebnis;
        if (std::exchange(Simulation_, r.Name) != r.Name) gesagte_.clear();
        const std::string davor = druckbar(r.Name) + (s.Herkunft ? ", variant " + std::to_string(s.Herkunft->Reihe) : "") + ": ";
        std::vector<std::string> Texte;
        for (const Bemerkung& b : r.Bemerkungen) {
            if (!s.Herkunft) {
                Texte.push_back(davor + druckbar(als_Zeile(b)));
            } else if (gesagte_.size() < genug && gesagte_.emplace(b.Datei, b.Zeile, b.Feld, b.Meldung).second) {
                Texte.push_back(druckbar(r.Name) + ": " + druckbar(als_Zeile(b)));
            }
        }
        if (s.Fehler) Texte.push_back(davor + druckbar(s.Fehler->what()));
        return Texte;
    }

private:
    static constexpr std::size_t genug = 1000;  // different ones of a simulation

    std::string Simulation_;
    std::set<std::tuple<std::string, int, std::string, std::string>> gesagte_;
};

int Zahl_der_Arbeiter(const Aufruf& a) {
    if (a.Arbeiter > 0) return a.Arbeiter;
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void schreibe_Standardausgabe(std::ostream& aus, std::string_view Text) {
    aus.write(Text.data(), static_cast<std::streamsize>(Text.size()));
    aus.flush();
    if (!aus) throw Laufzeitfehler("The results cannot be written to standard output.");
}

// All that has to be right before anything runs: values, variants, what a former call has left.
struct Vorbereitung {
    Namensliste Namen;
    Auftrag Arbeit;
    std::unique_ptr<Variantenquelle> Varianten;
    std::optional<Fortsetzung> Vorheriges;

    Arbeitsliste Liste(const Aufruf& a) const {
        return {Arbeit, Namen, Varianten.get(), {a.Teil, a.Teile}, Vorheriges.has_value()};
    }
};

void gleiche_mit_Vorherigem_ab(const Aufruf& a, Vorbereitung& v) {
    v.Vorheriges.emplace(a.Zeilendatei, Zeilenform{a.mit_Eingaben, a.geteilt, a.Studie});
    Arbeitsliste Liste = v.Liste(a);
    Arbeitsplatz Platz;
    while (const auto s = Liste.naechstes()) {
        if (s->Gelesenes->Fehler) {
            v.Vorheriges->gleiche_ab(*s, {});
        } else {
            v.Vorheriges->gleiche_ab(*s, Summe_der_Eingaben(v.Arbeit, *s, Platz));
        }
    }
    v.Vorheriges->schliesse_Abgleich_ab();
    v.Vorheriges->beginne_neu();
}

Vorbereitung bereite_vor(const Aufruf& a, const Projektordner& Ordner, const Umgebung& Umwelt) {
    Namensliste Namen = waehle_Simulationen(Ordner, a);
    Vorbereitung v{Namen, erstelle_Auftrag(a, Ordner), oeffne_Varianten(a, Ordner), std::nullopt};
    v.Arbeit.Zeit = Umwelt.Zeit;
    v.Arbeit.Vorgaben = Vorgabensatz(lies_Vorgaben(a, Ordner), v.Varianten ? v.Varianten->Namen() : std::vector<Namensbezug>());
    pruefe_Vorgaben(v.Arbeit, v.Namen, v.Varianten.get());
    bereite_Ausgaben_vor(a, &Ordner);
    if (a.fortsetzen) gleiche_mit_Vorherigem_ab(a, v);
    return v;
}

Ausgabeplan plane_Ausgaben(const Aufruf& a, const Vorbereitung& v, const Projektordner& Ordner) {
    Ausgabeplan p;
    p.Umfang.mit_Eingaben = a.mit_Eingaben;
    p.Umfang.mit_Position = a.geteilt;
    for (const Namensbezug& b : v.Arbeit.Vorgaben.Variantennamen()) p.Umfang.Variantennamen.push_back(b.Text);
    p.Varianten = v.Varianten ? v.Varianten->Anzahl() / static_cast<std::size_t>(a.Teile) + 1 : 1;
    std::error_code unwichtig;
    const auto Projekt = std::filesystem::canonical(als_Pfad(Ordner.Pfad()), unwichtig).filename().u8string();
    p.Datenbank = {std::string(Projekt.begin(), Projekt.end()), a.geteilt, v.Varianten ? v.Varianten->Anzahl() : 0,
                   p.Umfang.Variantennamen, !a.Serienordner.empty()};
    p.Vorheriges = v.Vorheriges ? &*v.Vorheriges : nullptr;
    return p;
}

int verbinde(const Aufruf& a, std::ostream& aus) {
    bereite_Ausgaben_vor(a, nullptr);
    const bool gescheitert = verbinde_Teile(a, [&](std::string_view Text) { schreibe_Standardausgabe(aus, Text); });
    return gescheitert ? Simulation_gescheitert : alles_berechnet;
}

// Findings and tables of records: nothing is calculated.
int lies_nur(const Aufruf& a, const Projektordner& Ordner, std::ostream& aus) {
    bereite_Ausgaben_vor(a, &Ordner);
    const auto gib_aus = [&](std::string_view Text) { schreibe_Standardausgabe(aus, Text); };
    const auto schreibe = [&](const std::string& Ziel, const std::string& Text) {
        if (Ziel.empty()) return;
        Textziel Datei(Ziel, gib_aus);
        Datei.schreibe(Text);
        Datei.beende();
    };
    if (!a.Satztabelle.empty()) schreibe(a.Satztabelle, Satztabelle(Ordner));
    if (!a.pruefen) return alles_berechnet;
    const std::vector<Befund> Befunde = Projektpruefer(Ordner).pruefe();
    schreibe(a.JSON_Datei, Befunde_als_JSON(Befunde));
    schreibe(a.CSV_Datei, Befunde_als_CSV(Befunde));
    const bool Zeilen =
        !a.leise && a.JSON_Datei != Standardausgabe && a.CSV_Datei != Standardausgabe && a.Satztabelle != Standardausgabe;
    std::string Text;
    for (const Befund& b : Befunde) Text += als_Zeile(b) + "\n";
    if (Zeilen) gib_aus(Text);
    const bool Mangel = std::any_of(Befunde.begin(), Befunde.end(), [](const Befund& b) { return b.Mangel; });
    return Mangel ? Simulation_gescheitert : alles_berechnet;
}

int fuehre_aus(const Aufruf& a, std::ostream& aus, std::ostream& fehler, const Umgebung& Umwelt) {
    if (!a.Teildateien.empty()) return verbinde(a, aus);
    const Projektordner Ordner = Projektordner(a.Projekt).mit_Verzeichnis();
    if (a.pruefen || !a.Satztabelle.empty()) return lies_nur(a, Ordner, aus);
    Vorbereitung v = bereite_vor(a, Ordner, Umwelt);
    if (!a.Berichtsordner.empty()) v.Arbeit.schreibe_Bericht = Umwelt.Berichte();
    Arbeitsliste Liste = v.Liste(a);

    std::optional<Fortschrittsbalken> Balken;
    if (!a.leise && Umwelt.Fehlerausgabe_ist_Terminal()) Balken.emplace(fehler, Liste.Anzahl(), Umwelt.Wartezeit_bis_Balken);
    const auto raeume = [&] { return Balken ? Balken->raeume() : std::unique_lock<std::mutex>(); };

    Ausgabeplan Plan = plane_Ausgaben(a, v, Ordner);
    Plan.Standardausgabe = [&](std::string_view Text) {
        const auto frei = raeume();
        schreibe_Standardausgabe(aus, Text);
    };
    Ausgaben Ziele(a, Plan);
    const auto soll_enden = [&] { return Umwelt.Abbruch != nullptr && *Umwelt.Abbruch; };
    const auto naechstes = [&]() -> std::shared_ptr<Anstehendes> {
        auto s = soll_enden() ? std::nullopt : Liste.naechstes();
        if (!s) return nullptr;
        auto Stueck = std::make_shared<Anstehendes>(Anstehendes{std::move(*s), std::nullopt});
        if (v.Vorheriges) Stueck->bewahrte_Zeile = v.Vorheriges->naechste_Zeile();
        return Stueck;
    };
    std::size_t fertig = 0;
    bool gescheitert = false;
    std::vector<std::string> Schreibfehler;
    Meldungen Gesagtes;
    rechne_alle(v.Arbeit, naechstes, Zahl_der_Arbeiter(a), Ziele, [&](Fertiges f) {
        const Simulationsausgang& s = f.Ausgang;
        if (const auto Texte = Gesagtes.neue(s); !Texte.empty()) {
            const auto frei = raeume();
            for (const std::string& m : Texte) melde(fehler, m);
        }
        Schreibfehler.insert(Schreibfehler.end(), s.Schreibfehler.begin(), s.Schreibfehler.end());
        gescheitert = gescheitert || s.Fehler || (f.bewahrte_Zeile && ist_Fehlerzeile(*f.bewahrte_Zeile));
        f.bewahrte_Zeile ? Ziele.bewahre(*f.bewahrte_Zeile) : Ziele.schreibe(std::move(f.Stuecke), s);
        if (Balken) Balken->melde(++fertig, Liste.Anzahl());
    });
    if (soll_enden()) {
        Ziele.brich_ab();
        return abgebrochen;
    }
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
        melde_Aufruffehler(fehler, f.what());
        return falscher_Aufruf;
    }
}

}  // namespace varnok::batch
