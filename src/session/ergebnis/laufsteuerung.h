#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "session/eingabe/zelle.h"
#include "session/ergebnis/diagrammsteuerung.h"
#include "session/kern/zustand.h"

namespace varnok {

// When runs are made, and of which studies.
class Laufsteuerung {
public:
    explicit Laufsteuerung(Zustand& z) : z_(z) {}

    // Looks at the climate file of the present input: its bytes are part of what results come from.
    void sieh_Klima_an();

    // Runs what the view on display shows and what has no valid results; with `auch_gueltige` that, too. False, and the message
    // has been shown, where a run was refused. Nothing happens before `Starten` and while a record is missing.
    bool berechne(bool auch_gueltige = false);
    // The same on the user's wish, who is told of a missing record.
    bool berechne_auf_Wunsch(bool auch_gueltige);
    // The same for every study of the list, whatever the view.
    bool berechne_alle_Studien();

    // The scaling dialog has closed, also by Cancel: a run in the single view.
    void schliesse_Skalierung() { berechne(!z_.Zusammenfassung_aktiv()); }

    // Scales the results that are shown to the dose of the present input, where they differ in that alone and it is exact. False:
    // nothing was done.
    bool skaliere();

    // The last run found no climate file, and told so: the scenario editor is to open.
    bool Klimadatei_fehlt() const { return Klimadatei_fehlt_; }
    void oeffne_Szenarioeditor() { Klimadatei_fehlt_ = false; }
    // The cell that a message spoke of, to be selected once.
    const std::optional<Zelle>& Tabellenfehler() const { return Tabellenfehler_; }
    std::optional<Zelle> nimm_Tabellenfehler() { return std::exchange(Tabellenfehler_, std::nullopt); }
    void melde_Zelle(Zelle z) { Tabellenfehler_ = z; }

    // Tells in one box what the runs since then warn of, once their results are drawn and may be seen.
    void melde_Warnungen();

    // The result of the last run since this was asked, null without one; what it leaves for diagnosis goes with the next drawing.
    std::shared_ptr<const Ergebnis> nimm_Gelaufenes() { return std::move(gelaufen_); }

private:
    bool fuehre_aus(const std::vector<int>& Studien, bool auch_gueltige);
    bool rechne_Studie(int i_studie);
    bool ende_ohne_Ergebnis(const Laufergebnis& Ausgang);
    std::vector<std::string> nimm_Warnungen();
    void melde_fehlenden_Satz();

    Zustand& z_;
    std::unique_ptr<Lauf> Arbeitsplatz_ = std::make_unique<Lauf>();
    std::shared_ptr<const Ergebnis> gelaufen_;
    std::array<bool, max_Studien> ungemeldet_{};  // the results of a study warn of something that was not told yet
    std::optional<Zelle> Tabellenfehler_;
    bool Klimadatei_fehlt_ = false;
};

}  // namespace varnok
