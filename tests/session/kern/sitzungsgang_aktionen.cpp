#include "session/kern/sitzungsgang_aktionen.h"

#include <algorithm>

namespace varnok::gang {

const std::vector<Aktionsart>& Aktionsarten() {
    static const std::vector<Aktionsart> Arten = [] {
        std::vector<Aktionsart> Alle;
        for (const auto& Teil : {Aktionen_an_Eingaben(), Aktionen_an_Studien_und_Namen(), Aktionen_an_Ergebnissen(),
                                 Aktionen_an_Saetzen(), Aktionen_in_Dialogen(), Aktionen_am_Programm(), fremde_Aktionen()})
            Alle.insert(Alle.end(), Teil.begin(), Teil.end());
        return Alle;
    }();
    return Arten;
}

int Aktion_mit_Namen(const std::string& Name) {
    const auto& Arten = Aktionsarten();
    const auto Treffer = std::find_if(Arten.begin(), Arten.end(), [&](const Aktionsart& a) { return a.Name == Name; });
    return static_cast<int>(Treffer - Arten.begin());
}

}  // namespace varnok::gang
