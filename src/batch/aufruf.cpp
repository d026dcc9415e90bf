#include "batch/aufruf.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>

#include "base/programm.h"
#include "base/zahlen.h"

namespace varnok::batch {
namespace {

constexpr int meiste_Arbeiter = 1024;
constexpr int groesste_Zahl = 999'999'999;

const std::string Fassung = std::string("VARNOK ") + Programmversion;
constexpr const char* Einleitung =
    "Calculates predicted environmental concentrations in soil for the simulations of a project: the run of\n"
    "the desktop program without its window. Without --json, --csv, --series and --report it prints a table of results.\n"
    "Input files are only ever read, output files are replaced whole.";
constexpr const char* Nachwort =
    "Exit status: 0 every chosen simulation was calculated; 1 at least one could not be, the others are written,\n"
    "             and the reason is on standard error and in the JSON; 2 the call is wrong or an output cannot be written.\n"
    "\n"
    "Examples:\n"
    "  varnok-batch ~/soil                               table of the newest simulation\n"
    "  varnok-batch --simulation \"Spring use\" ~/soil     table of one simulation\n"
    "  varnok-batch --all --json results.json ~/soil     every simulation, results as JSON\n"
    "  varnok-batch --all --shard 3/16 --csv - ~/soil    the fourth of sixteen parts, as CSV on standard output\n"
    "  varnok-batch --study 1 --series days ~/soil       the daily series of study 1 into the folder days";

// The texts of the options that hold numbers, checked once all are known.
struct Zahlentexte {
    std::string Studie;
    std::string Arbeiter;
    std::string Teil;
};

// A whole number of digits alone; nothing for anything else or outside [von, bis].
std::optional<int> lies_ganze_Zahl(std::string_view Text, int von, int bis) {
    const bool Ziffern = std::all_of(Text.begin(), Text.end(), [](char z) { return z >= '0' && z <= '9'; });
    if (Text.empty() || Text.size() > 9 || !Ziffern) return std::nullopt;
    return ganze_Zahl(fuehrende_Zahl(Text), von, bis);
}

int fordere_ganze_Zahl(const std::string& Option, const std::string& Text, int von, int bis) {
    const auto Zahl = lies_ganze_Zahl(Text, von, bis);
    if (Zahl) return *Zahl;
    const std::string Bereich = bis == groesste_Zahl ? " or more" : " to " + std::to_string(bis);
    throw Aufruffehler(Option + ": \"" + Text + "\" is not a whole number of " + std::to_string(von) + Bereich);
}

void lies_Teil(const std::string& Text, Aufruf& a) {
    const auto Strich = Text.find('/');
    const auto Teil = lies_ganze_Zahl(std::string_view(Text).substr(0, Strich), 0, groesste_Zahl);
    const auto Teile =
        Strich == std::string::npos ? std::nullopt : lies_ganze_Zahl(std::string_view(Text).substr(Strich + 1), 1, groesste_Zahl);
    if (!Teil || !Teile || *Teil >= *Teile) {
        throw Aufruffehler("--shard: \"" + Text + "\" is not I/N with 0 <= I < N, as in 0/4 for the first of four parts");
    }
    a.Teil = *Teil;
    a.Teile = *Teile;
}

void beschreibe_Optionen(CLI::App& App, Aufruf& a, Zahlentexte& Zahlen) {
    App.description(Einleitung);
    App.footer(Nachwort);
    App.set_help_flag("-h,--help", "Print this help and exit");
    App.set_version_flag("--version", Fassung, "Print the version and exit");
    App.add_option("PROJECT", a.Projekt, "Folder that holds input/ and output/")->required()->option_text(" ");
    auto* Name = App.add_option("--simulation", a.Simulationen,
                                "Calculate the simulation of that name; may stand several times. Default: the newest one");
    // Each occurrence takes one name, so that the project may follow it.
    Name->allow_extra_args(false)->option_text("NAME");
    App.add_flag("--all", a.alle, "Calculate every simulation of the project")->excludes(Name)->option_text(" ");
    App.add_option("--study", Zahlen.Studie, "Only soil study N, counted from 1. Default: all studies")->option_text("N");
    App.add_option("--json", a.JSON_Datei, "Write the results as JSON; - is standard output")->option_text("FILE");
    App.add_option("--csv", a.CSV_Datei,
                   "Write the results as CSV, a row for each simulation, study, compound and endpoint; - is standard output")
        ->option_text("FILE");
    App.add_option("--series", a.Serienordner, "Write the daily series, one file for each simulation and study")
        ->option_text("DIR");
    auto* Bericht =
        App.add_option("--report", a.Berichtsordner, "Write the standard report of each simulation and study as .rtf");
    Bericht->option_text("DIR");
    App.add_flag("--extended", a.erweitert, "With --report: write the extended report of each simulation, too")->needs(Bericht);
    App.add_option("--jobs", Zahlen.Arbeiter, "Number of worker threads; 0, the default, is one for each core")->option_text("N");
    App.add_option("--shard", Zahlen.Teil, "Of the chosen simulations only those whose position p, from 0, has p mod N = I")
        ->option_text("I/N");
    App.add_option("--settings", a.Einstellungsdatei, "Take the two lists of TWA windows from this settings file")
        ->option_text("FILE");
    App.add_flag("--quiet", a.leise, "No table and no progress bar");
}

// An option that was given with an empty text says nothing: that is hardly what was meant.
void pruefe_leere_Texte(const CLI::App& App) {
    for (const CLI::Option* Option : App.get_options()) {
        const auto& Texte = Option->results();
        if (Option->get_type_size() > 0 && std::find(Texte.begin(), Texte.end(), std::string()) != Texte.end()) {
            throw Aufruffehler(Option->get_name() + ": the text behind it is empty");
        }
    }
}

void pruefe(const CLI::App& App, Aufruf& a, const Zahlentexte& Zahlen) {
    pruefe_leere_Texte(App);
    if (!Zahlen.Studie.empty()) a.Studie = fordere_ganze_Zahl("--study", Zahlen.Studie, 1, groesste_Zahl);
    if (!Zahlen.Arbeiter.empty()) a.Arbeiter = fordere_ganze_Zahl("--jobs", Zahlen.Arbeiter, 0, meiste_Arbeiter);
    if (!Zahlen.Teil.empty()) lies_Teil(Zahlen.Teil, a);
    if (a.JSON_Datei == Standardausgabe && a.CSV_Datei == Standardausgabe) {
        throw Aufruffehler("--json - and --csv -: only one of them can have the standard output");
    }
}

}  // namespace

std::variant<Aufruf, Auskunft> lies_Aufruf(int argc, const char* const* argv) {
    Aufruf a;
    Zahlentexte Zahlen;
    CLI::App App("", "varnok-batch");
    beschreibe_Optionen(App, a, Zahlen);
    std::vector<std::string> Argumente;  // last one first, as the parser takes them
    for (int i = argc - 1; i > 0; --i) Argumente.emplace_back(argv[i]);
    try {
        App.parse(std::move(Argumente));
        pruefe(App, a, Zahlen);
    } catch (const CLI::CallForHelp&) {
        return Auskunft{App.help()};
    } catch (const CLI::CallForVersion&) {
        return Auskunft{Fassung + "\n"};
    } catch (const CLI::ParseError& f) {
        throw Aufruffehler(std::string(f.what()) + "\nRun varnok-batch --help for the options.");
    }
    return a;
}

}  // namespace varnok::batch
