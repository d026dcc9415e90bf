#include "batch/aufruf.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <utility>

#include "base/programm.h"
#include "base/text.h"
#include "base/zahlen.h"
#include "batch/vorgaben.h"

namespace varnok::batch {
namespace {

constexpr int meiste_Arbeiter = 1024;
constexpr int groesste_Zahl = 999'999'999;

const std::string Fassung = std::string("VARNOK ") + Programmversion;
constexpr const char* Einleitung =
    "Calculates predicted environmental concentrations in soil for the simulations of a project: the run of\n"
    "the desktop program without its window. Without an output it prints a table of results.\n"
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
    "  varnok-batch --study 1 --series days ~/soil       the daily series of study 1 into the folder days\n"
    "  varnok-batch --set \"DT50[,0]=60\" ~/soil           another DT50 of the parent in every study\n"
    "  varnok-batch --vary plan.csv --csv - ~/soil       a variant for each line of the table plan.csv\n"
    "  varnok-batch --sample u.csv --draws 10000 --summary p.csv ~/soil    percentiles over drawn values\n"
    "  varnok-batch --merge part*.json --json all.json   the outputs of shards joined";

// The texts of the options that hold numbers, checked once all are known.
struct Zahlentexte {
    std::string Studie;
    std::string Arbeiter;
    std::string Teil;
    std::string Ziehungen;
    std::string Saat;
};

// A whole number of digits alone; nothing for anything else or outside [von, bis].
std::optional<int> lies_ganze_Zahl(std::string_view Text, int von, int bis) {
    if (Text.size() > 9 || !nur_Ziffern(Text)) return std::nullopt;
    return ganze_Zahl(fuehrende_Zahl(Text), von, bis);
}

int fordere_ganze_Zahl(const std::string& Option, const std::string& Text, int von, int bis) {
    const auto Zahl = lies_ganze_Zahl(Text, von, bis);
    if (Zahl) return *Zahl;
    const std::string Bereich = bis == groesste_Zahl ? " or more" : " to " + std::to_string(bis);
    throw Aufruffehler(Option + ": \"" + Text + "\" is not a whole number of " + std::to_string(von) + Bereich);
}

// The seed has 32 bits.
std::uint32_t lies_Saat(const std::string& Text) {
    constexpr double groesste = 4294967295.0;
    const double Zahl = nur_Ziffern(Text) && Text.size() <= 10 ? fuehrende_Zahl(Text) : groesste + 1;
    if (Zahl <= groesste) return static_cast<std::uint32_t>(Zahl);
    throw Aufruffehler("--seed: \"" + Text + "\" is not a whole number of 0 to 4294967295");
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
    a.geteilt = true;
}

void beschreibe_Auswahl(CLI::App& App, Aufruf& a, Zahlentexte& Zahlen) {
    App.add_option("PROJECT", a.Projekt, "Folder that holds input/ and output/")->option_text(" ");
    auto* Name = App.add_option("--simulation", a.Simulationen,
                                "Calculate the simulation of that name; may stand several times. Default: the newest one");
    // Each occurrence takes one name, so that the project may follow it.
    Name->allow_extra_args(false)->option_text("NAME");
    App.add_flag("--all", a.alle, "Calculate every simulation of the project")->excludes(Name)->option_text(" ");
    App.add_option("--study", Zahlen.Studie, "Only soil study N, counted from 1. Default: all studies")->option_text("N");
    App.add_option("--jobs", Zahlen.Arbeiter, "Number of worker threads; 0, the default, is one for each core")->option_text("N");
    App.add_option("--shard", Zahlen.Teil,
                   "Of the chosen simulations and their variants only those whose position p, from 0, has p mod N = I")
        ->option_text("I/N");
    App.add_option("--settings", a.Einstellungsdatei, "Take the two lists of TWA windows from this settings file")
        ->option_text("FILE");
    App.add_flag("--quiet", a.leise, "No table and no progress bar");
}

void beschreibe_Werte(CLI::App& App, Aufruf& a, Zahlentexte& Zahlen) {
    App.add_option("--set", a.Vorgaben, "This value in place of the record's; may stand several times")
        ->allow_extra_args(false)
        ->option_text("NAME=VALUE");
    auto* Tabelle = App.add_option("--vary", a.Variantendatei,
                                   "CSV: the head line names values, each further line is a variant of every simulation");
    Tabelle->option_text("FILE");
    auto* Probe = App.add_option("--sample", a.Stichprobendatei, "CSV: the distributions that variants are drawn from");
    Probe->excludes(Tabelle)->option_text("FILE");
    auto* Anzahl = App.add_option("--draws", Zahlen.Ziehungen, "With --sample: the number of variants");
    Anzahl->needs(Probe)->option_text("N");
    Probe->needs(Anzahl);
    App.add_option("--seed", Zahlen.Saat, "With --sample: where the draws start, 0 to 4294967295. Default: 1")
        ->needs(Probe)
        ->option_text("S");
}

void beschreibe_Ausgaben(CLI::App& App, Aufruf& a) {
    App.add_option("--json", a.JSON_Datei, "Write the results as JSON; - is standard output")->option_text("FILE");
    auto* Zeilen = App.add_option("--json-lines", a.Zeilendatei,
                                  "Write the results as JSON, a line for each simulation or variant, as they come");
    Zeilen->option_text("FILE");
    App.add_flag("--resume", a.fortsetzen, "With --json-lines: keep the lines that are there and go on behind them")
        ->needs(Zeilen);
    App.add_option("--csv", a.CSV_Datei,
                   "Write the results as CSV, a row for each simulation, study, compound and endpoint; - is standard output")
        ->option_text("FILE");
    App.add_option("--sqlite", a.Datenbank, "Put the results into an SQLite database, beside what it holds")->option_text("FILE");
    App.add_option("--summary", a.Zusammenfassungsdatei, "CSV: percentiles of each result over the variants")
        ->option_text("FILE");
    App.add_flag("--inputs", a.mit_Eingaben, "The input values as well, in JSON and as columns in CSV");
    App.add_option("--series", a.Serienordner, "Write the daily series, one file for each simulation and study")
        ->option_text("DIR");
    App.add_option("--series-full", a.volle_Serien, "The same for people: dates, weather, doses and the three views, with units")
        ->option_text("DIR");
    auto* Bericht =
        App.add_option("--report", a.Berichtsordner, "Write the standard report of each simulation and study as .rtf");
    Bericht->option_text("DIR");
    App.add_flag("--extended", a.erweitert, "With --report: write the extended report of each simulation, too")->needs(Bericht);
    App.add_flag("--check", a.pruefen, "Read every record, simulation and climate file, tell what is wrong, calculate nothing");
    App.add_option("--records", a.Satztabelle, "CSV: a row for each record with all its values; nothing is calculated")
        ->option_text("FILE");
    App.add_option("--merge", a.Teildateien,
                   "No PROJECT: join the outputs of shards, all of one kind, into the output of that kind")
        ->expected(-1)
        ->option_text("PART...");
}

void beschreibe_Optionen(CLI::App& App, Aufruf& a, Zahlentexte& Zahlen, bool& Namen_verlangt) {
    App.description(Einleitung);
    App.footer(Nachwort);
    App.set_help_flag("-h,--help", "Print this help and exit");
    App.set_version_flag("--version", Fassung, "Print the version and exit");
    App.add_flag("--help-names", Namen_verlangt, "Print the names for --set, --vary and --sample and exit");
    beschreibe_Auswahl(App, a, Zahlen);
    beschreibe_Werte(App, a, Zahlen);
    beschreibe_Ausgaben(App, a);
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

// Outputs of text, by their options.
std::vector<std::pair<const char*, const std::string*>> Textausgaben(const Aufruf& a) {
    return {{"--json", &a.JSON_Datei},
            {"--json-lines", &a.Zeilendatei},
            {"--csv", &a.CSV_Datei},
            {"--summary", &a.Zusammenfassungsdatei},
            {"--records", &a.Satztabelle}};
}

void pruefe_Standardausgabe(const Aufruf& a) {
    const char* erste = nullptr;
    for (const auto& [Option, Ziel] : Textausgaben(a)) {
        if (*Ziel != Standardausgabe) continue;
        if (erste != nullptr)
            throw Aufruffehler(std::string(erste) + " - and " + Option + " -: only one of them can have the standard output");
        erste = Option;
    }
    if (a.fortsetzen && a.Zeilendatei == Standardausgabe)
        throw Aufruffehler("--resume: the standard output holds no lines to keep");
    if (a.Datenbank == Standardausgabe) throw Aufruffehler("--sqlite -: a database cannot go to standard output");
}

// What makes no sense together.
void pruefe_Verhaeltnisse(const Aufruf& a) {
    const bool nur_Lesen = a.pruefen || !a.Satztabelle.empty();
    const bool Ergebnisse = !a.Zeilendatei.empty() || !a.Datenbank.empty() || !a.Zusammenfassungsdatei.empty() ||
                            a.mit_Reihen() || !a.Berichtsordner.empty() || a.Varianten() || !a.Vorgaben.empty();
    if (nur_Lesen && Ergebnisse) throw Aufruffehler("--check and --records calculate nothing: there are no results to write");
    if (!a.Satztabelle.empty() && !a.pruefen && !(a.JSON_Datei + a.CSV_Datei).empty())
        throw Aufruffehler("--records: --json and --csv go with --check");
    const bool anderes = !a.JSON_Datei.empty() || !a.CSV_Datei.empty() || !a.Datenbank.empty() ||
                         !a.Zusammenfassungsdatei.empty() || a.mit_Reihen() || !a.Berichtsordner.empty();
    if (a.fortsetzen && anderes)
        throw Aufruffehler("--resume: what is kept is not calculated again, so no other output can be written beside the lines");
}

// Joining knows one kind of output and, beside it, the summary.
void pruefe_Verbinden(const Aufruf& a) {
    if (!a.Projekt.empty()) throw Aufruffehler("--merge: there is a project as well, \"" + a.Projekt + "\"");
    const int Arten = static_cast<int>(!a.JSON_Datei.empty()) + static_cast<int>(!a.Zeilendatei.empty()) +
                      static_cast<int>(!a.CSV_Datei.empty()) + static_cast<int>(!a.Datenbank.empty());
    if (Arten != 1) throw Aufruffehler("--merge: one of --json, --json-lines, --csv and --sqlite says what to join into");
}

void pruefe(const CLI::App& App, Aufruf& a, const Zahlentexte& Zahlen) {
    pruefe_leere_Texte(App);
    if (!Zahlen.Studie.empty()) a.Studie = fordere_ganze_Zahl("--study", Zahlen.Studie, 1, groesste_Zahl);
    if (!Zahlen.Arbeiter.empty()) a.Arbeiter = fordere_ganze_Zahl("--jobs", Zahlen.Arbeiter, 0, meiste_Arbeiter);
    if (!Zahlen.Teil.empty()) lies_Teil(Zahlen.Teil, a);
    if (!Zahlen.Ziehungen.empty())
        a.Ziehungen = static_cast<std::size_t>(fordere_ganze_Zahl("--draws", Zahlen.Ziehungen, 1, groesste_Zahl));
    if (!Zahlen.Saat.empty()) a.Saat = lies_Saat(Zahlen.Saat);
    pruefe_Standardausgabe(a);
    pruefe_Verhaeltnisse(a);
    if (!a.Teildateien.empty()) return pruefe_Verbinden(a);
    if (a.Projekt.empty()) throw Aufruffehler("PROJECT is required\nRun varnok-batch --help for the options.");
}

}  // namespace

std::variant<Aufruf, Auskunft> lies_Aufruf(int argc, const char* const* argv) {
    Aufruf a;
    Zahlentexte Zahlen;
    CLI::App App("", "varnok-batch");
    bool Namen_verlangt = false;
    beschreibe_Optionen(App, a, Zahlen, Namen_verlangt);
    std::vector<std::string> Argumente;  // last one first, as the parser takes them
    for (int i = argc - 1; i > 0; --i) Argumente.emplace_back(argv[i]);
    try {
        App.parse(std::move(Argumente));
        if (Namen_verlangt) return Auskunft{Namenshilfe()};
        pruefe(App, a, Zahlen);
    } catch (const CLI::CallForHelp&) {
        return Auskunft{App.help()};
    } catch (const CLI::CallForVersion&) {
        return Auskunft{Fassung + "\n"};
    } catch (const CLI::ParseError& f) {
        throw Aufruffehler(std::string(f.what()) + Hilfehinweis);
    }
    return a;
}

}  // namespace varnok::batch
