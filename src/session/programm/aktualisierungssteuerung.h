#pragma once

#include <functional>
#include <string>
#include <utility>

#include "session/kern/schauplatz.h"

namespace varnok {

// When the check for a newer version runs, and what the user hears of it.
class Aktualisierungssteuerung {
public:
    // `vor_dem_Ende`: see `Aktualisierung`.
    Aktualisierungssteuerung(Schauplatz& z, std::function<void()> vor_dem_Ende) : z_(z), vor_dem_Ende_(std::move(vor_dem_Ende)) {}
    ~Aktualisierungssteuerung();
    Aktualisierungssteuerung(const Aktualisierungssteuerung&) = delete;
    Aktualisierungssteuerung& operator=(const Aktualisierungssteuerung&) = delete;

    // The menu entry: returns when all is said. An update leaves `beendet`.
    void suche();

    // The user waits no longer: what is under way ends without an answer.
    void halte_an();

    // The check at the start: returns at once, and stays silent without a usable answer. `antwortet` is called with
    // the version page if it comes while the start page is still on the screen, and calls `melde`.
    void suche_beim_Start(std::function<void(const std::string& Seite)> antwortet);
    void melde(const std::string& Seite);
    bool laeuft() const { return laeuft_; }
    bool darf_suchen() const { return !laeuft_; }
    // The last check received no usable answer.
    bool Fehler() const { return Fehler_; }

private:
    template <class Suche>
    Aktualisierungsausgang fuehre(Suche s);
    void brich_ab();

    Schauplatz& z_;
    std::function<void()> vor_dem_Ende_;
    bool sucht_beim_Start_ = false;
    bool laeuft_ = false;
    bool Fehler_ = false;
};

}  // namespace varnok
