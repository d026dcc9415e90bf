#pragma once

// All that the session can ask or tell, and all that its cover can say: what a walk has to come to.

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "session/kern/sitzungsgang_befehle.h"
#include "session/kern/sitzungsgang_projekt.h"

namespace varnok::gang {

// "Delete record: Yes", of every question with each of its answers, Esc among them.
std::vector<std::string> alle_Fragen();
const std::vector<Ausnahme>& Fragen_ohne_Gang();
// What one may say for another: the reason of a cover without the names in it, empty for one that nobody knows.
std::string Klasse_der_Abdeckung(const std::string& Wort);
std::vector<std::string> alle_Abdeckungen();

// Answers each question at random, with Esc too, or as it is told to; keeps what was asked.
class Antworter : public Rueckfrage {
public:
    explicit Antworter(Zufall* z) : Zufall_(z) {}
    Knopf frage(const Frage& f) override;

    void bestehe_auf(std::optional<Knopf> k) { fest_ = k; }
    // Who wants to get on lets go of what cannot be kept and does not mind another window, whatever else is insisted on.
    void lass_los(bool an) { laesst_los_ = an; }
    // The answer to what a start after a killed program offers, whatever else is insisted on.
    void antworte_dem_Angebot(std::optional<Knopf> k) { Angebot_ = k; }
    // Since the last look, as title and answer.
    bool gefragt(const std::string& Titel) const { return Titel_.contains(Titel); }
    // A question that the list does not have.
    const std::string& unbekannte() const { return unbekannte_; }
    const std::string& Bericht() const { return Bericht_; }
    void beginne();

    std::function<void()> bei_Frage;                   // before the answer
    std::function<void(const Frage&)> bei_Zustimmung;  // at a Yes
    Zaehler Gezaehltes;                                // of question and answer

private:
    Zufall* Zufall_;
    std::optional<Knopf> fest_;
    std::optional<Knopf> Angebot_;
    bool laesst_los_ = false;
    std::set<std::string> Titel_;
    std::string unbekannte_;
    std::string Bericht_;
};

}  // namespace varnok::gang
