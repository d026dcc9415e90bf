#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/schnittstellen.h"
#include "extras/abruf.h"
#include "extras/aktualisierungsziel.h"
#include "extras/programmtausch.h"
#include "extras/versionsseite.h"

namespace varnok {

// What an update needs of the world. Without a host, or without one of the two ways, there is none.
struct Aktualisierungswelt {
    Aktualisierungsziel Ziel = {};
    Abruf* Netz = nullptr;
    Programmtausch* Tausch = nullptr;

    bool vorhanden() const { return Ziel.vorhanden() && Netz && Tausch; }
};

enum class Aktualisierungsausgang {
    keine_Antwort,    // the server gave none, or one that offers no version
    beantwortet,      // the user has been told how the versions stand; nothing more was wanted or could be done
    nicht_geladen,    // wanted, but the server did not give the new program; the user has been told
    falsch_signiert,  // what the server gave is not kept; the user has been told
    nicht_ersetzt,    // the same for a fault of this machine
    Programmende,     // the new program waits for the end of this one
};

// Whether the server gave no usable answer.
constexpr bool ist_Aktualisierungsfehler(Aktualisierungsausgang a) {
    using Ausgang = Aktualisierungsausgang;
    return a == Ausgang::keine_Antwort || a == Ausgang::nicht_geladen || a == Ausgang::falsch_signiert;
}

namespace Updatetexte {
inline constexpr const char* Titel = "VARNOK";
inline constexpr const char* Titel_neue_Version = "Update available!";
inline constexpr const char* neue_Version = "There is a new version of the software available.";
inline constexpr const char* wollen_Sie = "Do you want to update online?";
inline constexpr const char* aeltere_Version = "You are using an unofficial version of the software.\n";
inline constexpr const char* gleiche_Version = "You have the latest version of the software.";
inline constexpr const char* geladen =
    "The new version has been downloaded!\nVARNOK will now exit. Please call it again if it does not start automatically.";
inline constexpr const char* Titel_abgelehnt = "Update not installed";
inline constexpr const char* falsche_Signatur =
    "The signature of the new version does not fit: it was damaged on its way, or it is not from the maker of VARNOK.";
inline constexpr const char* nicht_angekommen =
    "The new version could not be downloaded: the connection broke off, or nothing came any more.";
inline constexpr const char* nicht_gestartet = "The program that replaces this one could not be started.";
inline constexpr const char* nichts_ersetzt = "\nNothing was replaced.";
}  // namespace Updatetexte

// The check for a newer version and, if the user wants it, the update.
class Aktualisierung {
public:
    // `vor_dem_Ende` runs when the new program stands ready and before the user is told that this one ends: the
    // place to put by what would be lost. What it throws keeps the program running.
    Aktualisierung(Rueckfrage& Fragen, const Aktualisierungswelt& Welt, std::function<void()> vor_dem_Ende = {})
        : Fragen_(Fragen), Welt_(Welt), vor_dem_Ende_(std::move(vor_dem_Ende)) {}

    // Fetches the version page and does what follows from it.
    Aktualisierungsausgang Suche_nach_Update();
    // The same for a page that was fetched before.
    Aktualisierungsausgang beurteile(const Abrufantwort& Seite);

private:
    Aktualisierungsausgang biete_an(const Serverversion& Version);
    Aktualisierungsausgang lade(const Serverversion& Version);
    Aktualisierungsausgang tausche(const std::string& Programm);
    Aktualisierungsausgang verwirf(const std::string& Grund);
    void sage_Ablehnung(const std::string& Grund);
    Knopf sage(const std::string& Titel, const std::string& Text, std::vector<Knopf> Knoepfe = {Knopf::OK});

    Rueckfrage& Fragen_;
    const Aktualisierungswelt& Welt_;
    std::function<void()> vor_dem_Ende_;
};

// Limits of the version page asked for while the user waits.
inline constexpr Abrufgrenze Seitengrenze{std::size_t{1} << 20, std::chrono::seconds(5), std::chrono::seconds(5)};
// The start of the program has less time.
inline constexpr Abrufgrenze Startgrenze{std::size_t{1} << 20, std::chrono::seconds(3), std::chrono::seconds(3)};
inline constexpr Abrufgrenze Signaturgrenze{4096, std::chrono::seconds(5), std::chrono::seconds(5)};
// A slow way is no reason to give up, a silent one is.
inline constexpr Abrufgrenze Programmgrenze{std::size_t{128} << 20, std::chrono::seconds(0), std::chrono::seconds(20)};

}  // namespace varnok
