// The lists of actions of a walk: drawn, walked, shortened.

#include <algorithm>
#include <chrono>

#include "session/kern/sitzungsgang.h"

namespace varnok::gang {

std::vector<Aktion> wuerfle(std::uint64_t Saat, int Anzahl) {
    Zufall r(Saat);
    const auto& Arten = Aktionsarten();
    std::vector<int> Lose;  // each kind by its weight
    std::vector<int> gezogene;
    for (int Art = 0; Art < static_cast<int>(Arten.size()); ++Art) {
        const int Gewicht = Arten[static_cast<std::size_t>(Art)].Gewicht;
        Lose.insert(Lose.end(), static_cast<std::size_t>(Gewicht), Art);
        // None is left out, however light.
        if (Gewicht > 0) gezogene.insert(gezogene.end(), static_cast<std::size_t>(Anzahl) / 128, Art);
    }
    gezogene.resize(std::min(gezogene.size(), static_cast<std::size_t>(Anzahl)));
    while (gezogene.size() < static_cast<std::size_t>(Anzahl)) gezogene.push_back(r.eins_von(Lose));
    for (std::size_t i = gezogene.size(); i > 1; --i) {
        std::swap(gezogene[i - 1], gezogene[static_cast<std::size_t>(r.unter(static_cast<int>(i)))]);
    }
    const int Sicherung = Aktion_mit_Namen("check: save and load");
    const std::array Enden = {Aktion_mit_Namen("check: exit with Yes"), Aktion_mit_Namen("check: exit with No"),
                              Aktion_mit_Namen("check: another simulation")};
    std::vector<Aktion> Liste;
    for (std::size_t i = 1; i <= gezogene.size(); ++i) {
        if (i % 50 == 25) Liste.push_back({Sicherung, r.Zahl()});
        if (i % 33 == 0) Liste.push_back({Enden[i / 33 % Enden.size()], r.Zahl()});
        Liste.push_back({gezogene[i - 1], r.Zahl()});
    }
    return Liste;
}

Gangergebnis gehe(const std::vector<Aktion>& Liste) {
    Gang g;
    Gangergebnis e;
    for (; e.bei < Liste.size() && !e.Fund; ++e.bei) {
        try {
            g.tue(Liste[e.bei]);
        } catch (const Verstoss& v) {
            e.Fund = v;
            break;
        }
    }
    e.Protokoll = g.Protokoll();
    e.Befehle = g.Befehle();
    e.Fragen = g.Fragen();
    e.Fremdes = g.Fremdes();
    e.Abdeckungen = g.Abdeckungen();
    e.verglichen = g.verglichen();
    e.Schritte = g.Schritte();
    return e;
}

std::vector<Aktion> kuerze(std::vector<Aktion> Liste, const std::string& Regel, double Sekunden) {
    using Zeit = std::chrono::steady_clock;
    const auto Ende = Zeit::now() + std::chrono::duration<double>(Sekunden);
    const auto zeigt = [&](const std::vector<Aktion>& l) -> std::optional<std::size_t> {
        const Gangergebnis e = gehe(l);
        return e.Fund && e.Fund->Regel == Regel ? std::optional(e.bei + 1) : std::nullopt;
    };
    // The last actions alone, if they will do.
    for (std::size_t n = 8; n < Liste.size() && Zeit::now() < Ende; n *= 3) {
        std::vector<Aktion> letzte(Liste.end() - static_cast<std::ptrdiff_t>(n), Liste.end());
        if (const auto Laenge = zeigt(letzte)) {
            letzte.resize(*Laenge);
            Liste = letzte;
            break;
        }
    }
    for (std::size_t Stueck = std::max<std::size_t>(Liste.size() / 2, 1);; Stueck /= 2) {
        for (std::size_t i = 0; i < Liste.size() && Zeit::now() < Ende;) {
            std::vector<Aktion> ohne = Liste;
            const auto von = ohne.begin() + static_cast<std::ptrdiff_t>(i);
            ohne.erase(von, ohne.begin() + static_cast<std::ptrdiff_t>(std::min(i + Stueck, ohne.size())));
            const auto Laenge = zeigt(ohne);
            if (Laenge) {
                ohne.resize(*Laenge);
                Liste = ohne;
            } else {
                i += Stueck;
            }
        }
        if (Stueck == 1) return Liste;
    }
}

}  // namespace varnok::gang
