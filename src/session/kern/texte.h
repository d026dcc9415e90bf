#pragma once

// Texts of messages and of the cover, spelled as users know them.

#include <array>
#include <chrono>
#include <string>

namespace varnok::Texte {

inline constexpr const char* keine_gueltige_Eingabe = "No valid input!";
inline constexpr const char* Datei_fehlt = "Data file missing";
inline constexpr const char* Satz_nicht_gewaehlt = "Record not set";
inline constexpr const char* kein_Endplateau = "No final plateau";
inline constexpr const char* Laufzeitfehler = "Runtime error";
inline constexpr const char* keine_Verbindung = "Connection error";
inline constexpr const char* Updateserver_antwortet_nicht = "Varnok could not connect to the update server";
inline constexpr const char* Aenderungen_sichern = "Save changes?";
inline constexpr const char* Ungesichertes = "Unsaved values";
inline constexpr const char* Projektpfad = "Project path";
inline constexpr const char* Ordner_anlegen = "Make folder";

inline constexpr const char* kein_Eintrag = "No entry is selected. Please select!";
inline constexpr const char* Satz_ersetzen = "Replace existing record?";

inline constexpr const char* nicht_zu_behalten = "It cannot be kept. Go on?";
inline constexpr const char* Link_nur_auf_Wunsch = " is a link to another folder: it is written by \"Save\" alone.";
inline constexpr const char* nur_lesbar = " is open for reading only: nothing in it can be saved, made, renamed or deleted.";

inline constexpr const char* Bericht_ueberholt = "The open report was closed: its inputs are saved otherwise than it says.";
inline constexpr const char* Bericht_ohne_Ordner =
    "The project path cannot be written: \"Save report as PDF\" puts the report where you say.";

inline constexpr const char* Ordner_in_Gebrauch = "Project folder in use";
inline constexpr const char* zweites_Fenster =
    "Another window of VARNOK works on this project folder. What both save replaces each other: "
    "this window asks before it saves.";
inline constexpr const char* zweites_Fenster_sichert =
    "Another window of VARNOK works on this project folder. Do you want to save all the same?";

// "3 hours", for a message: the largest unit alone.
inline std::string Dauer(std::chrono::seconds Zeit) {
    const long long s = Zeit.count();
    const auto in = [](long long Wieviele, const char* Einheit) {
        return std::to_string(Wieviele) + " " + Einheit + (Wieviele == 1 ? "" : "s");
    };
    if (s >= 48LL * 3600) return in(s / (24LL * 3600), "day");
    if (s >= 2LL * 3600) return in(s / 3600, "hour");
    return in(s / 60, "minute");
}
// What the lock of another machine means, in front of a question.
inline std::string andere_Maschine(const std::string& Rechner, std::chrono::seconds Alter) {
    return "VARNOK on the machine \"" + Rechner + "\" has had this project folder open for " + Dauer(Alter) + ". ";
}
inline constexpr const char* Sperre_uebernehmen = "Do you want to take it over? Do so only if the program has ended there.";
inline constexpr const char* trotzdem_sichern = "Do you want to save all the same?";

inline constexpr std::array<const char*, 4> Satz_waehlen = {"", "Pesticide record not set. Please select!",
                                                            "Application record not set. Please select!",
                                                            "Scenario record not set. Please select!"};

inline constexpr const char* Simulation_waehlen = "Simulation not set. Please select!";
inline constexpr const char* nicht_gedruckt = "The report could not be printed.";

// What the cover says over the results.
inline constexpr const char* Eingabe_geaendert = "Input changed";
inline constexpr const char* nicht_gueltig = "Not valid";
inline constexpr const char* Satz_geloescht = "Record deleted: choose or refresh";
inline constexpr const char* Satz_ersetzt = "Record replaced: choose or refresh";
inline constexpr const char* Satz_fehlt = "Record missing: choose one";

// The same with the name of the file.
inline std::string fehlender_Satz(const std::string& Dateiname) { return "Record \"" + Dateiname + "\" missing: choose one"; }

// A question about a record: below its text, on a line of its own, which record it is about.
inline std::string mit_Satzname(const std::string& Text, const std::string& Name) {
    return Name.empty() ? Text : Text + "\n'" + Name + "'";
}

}  // namespace varnok::Texte
