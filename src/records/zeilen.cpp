#include "records/zeilen.h"

#include <algorithm>

namespace varnok {

std::optional<std::string_view> Zeilenfolge::voraus() const {
    if (Stelle_ >= Bytes_.size()) return std::nullopt;
    const auto ist_Zeilenende = [](char z) { return z == '\n' || z == '\r'; };
    const auto Anfang = Bytes_.begin() + static_cast<std::ptrdiff_t>(Stelle_);
    return std::string_view(Anfang, std::find_if(Anfang, Bytes_.end(), ist_Zeilenende));
}

std::optional<std::string_view> Zeilenfolge::naechste() {
    const auto Zeile = voraus();
    if (!Zeile) return std::nullopt;
    Stelle_ += Zeile->size();
    if (Bytes_.substr(Stelle_, 2) == "\r\n") ++Stelle_;
    ++Stelle_;
    ++Nummer_;
    return Zeile;
}

std::string_view hinter_Tabulator(std::string_view Zeile) {
    const auto Tabulator = Zeile.find('\t');
    return Zeile.substr(Tabulator == std::string_view::npos ? 0 : Tabulator + 1).substr(0, Hoechstlaenge_Wert);
}

}  // namespace varnok
