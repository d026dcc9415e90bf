#pragma once

#include <algorithm>
#include <string>

#include "session/kern/probesitzung.h"

namespace varnok {

// A session, and what the user does in the options dialog.
class Optionsprobe : public Probesitzung {
protected:
    // The dialog is opened, changed and left with OK. True if the tooltips have been switched on.
    template <class Aenderung>
    bool bestaetige(Aenderung a) {
        Optionsentwurf o = s_->fuehre_aus<&Optionensteuerung::oeffne>();
        a(o);
        EXPECT_TRUE(s_->fuehre_aus<&Optionensteuerung::uebernimm>(o));
        return s_->fuehre_aus<&Optionensteuerung::schliesse>();
    }
    bool bestaetige_unveraendert() {
        return bestaetige([](Optionsentwurf&) {});
    }
    void waehle_Projekt(const std::string& Name) {
        std::filesystem::create_directories(Wurzel_ / Name);
        bestaetige([&](Optionsentwurf& o) { o.Projektpfad = (Wurzel_ / Name).string(); });
    }
    std::string Zeile(const std::string& Datei_, const std::string& Anfang) const {
        const std::string Bytes = Datei(Datei_);
        const auto i = Bytes.find(Anfang);
        return i == std::string::npos ? "" : Bytes.substr(i, Bytes.find('\r', i) - i);
    }
    bool irgendetwas_geaendert() const {
        const auto g = s_->Stand().Marken();
        return std::any_of(g.begin(), g.end(), [](bool x) { return x; });
    }
    std::size_t Dateizahl(const std::string& Ordner) const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(Wurzel_ / Ordner), {}));
    }
};

}  // namespace varnok
