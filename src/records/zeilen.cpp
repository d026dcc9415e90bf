#include "records/zeilen.h"

namespace varnok {

std::optional<std::string_view> Zeilenfolge::voraus() const {
    if (Stelle_ >= Bytes_.size()) return std::nullopt;
    return Bytes_.substr(Stelle_, Bytes_.find_first_of("\r\n", Stelle_) - Stelle_);
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
