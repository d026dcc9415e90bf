#include "session/ergebnis/studienkoepfe.h"

#include <algorithm>
#include <cstddef>

namespace varnok {
namespace {

using Woerter = std::vector<std::string>;

constexpr const char* Auslassung = "\u2026 ";

Woerter zerlegt(const std::string& Name) {
    Woerter Liste;
    for (std::size_t von = 0; von < Name.size();) {
        const std::size_t bis = std::min(Name.find(' ', von), Name.size());
        if (bis > von) Liste.push_back(Name.substr(von, bis - von));
        von = bis + 1;
    }
    return Liste;
}

// How many words all names have in common from their beginning on; one word is left to each.
std::size_t gemeinsame(const std::vector<Woerter>& Namen) {
    std::size_t kuerzester = Namen.front().size();
    for (const Woerter& w : Namen) kuerzester = std::min(kuerzester, w.size());
    std::size_t n = 0;
    const auto gleich = [&](const Woerter& w) { return w[n] == Namen.front()[n]; };
    while (n + 1 < kuerzester && std::all_of(Namen.begin(), Namen.end(), gleich)) ++n;
    return n;
}

std::vector<std::string> ohne_Gemeinsames(const std::vector<std::string>& Namen) {
    if (Namen.size() < 2) return Namen;
    std::vector<Woerter> Teile;
    for (const std::string& Name : Namen) Teile.push_back(zerlegt(Name));
    const std::size_t vorn = gemeinsame(Teile);
    for (Woerter& w : Teile) {
        w.erase(w.begin(), w.begin() + static_cast<std::ptrdiff_t>(vorn));
        std::reverse(w.begin(), w.end());
    }
    const std::size_t hinten = gemeinsame(Teile);
    std::vector<std::string> Kurze;
    for (Woerter& w : Teile) {
        w.erase(w.begin(), w.begin() + static_cast<std::ptrdiff_t>(hinten));
        std::string Text;
        for (auto Wort = w.rbegin(); Wort != w.rend(); ++Wort) Text += (Text.empty() ? "" : " ") + *Wort;
        Kurze.push_back((vorn > 0 ? Auslassung : "") + Text);
    }
    return Kurze;
}

}  // namespace

std::vector<std::vector<std::string>> Kopfvorschlaege(const std::vector<std::string>& Namen) {
    const std::vector<std::string> kurz = ohne_Gemeinsames(Namen);
    std::vector<std::string> gezaehlt;
    for (const std::string& Name : kurz) gezaehlt.push_back(std::to_string(gezaehlt.size() + 1) + ": " + Name);
    return {Namen, kurz, gezaehlt};
}

}  // namespace varnok
