#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/zahlen.h"

namespace varnok::batch {

// A row of a table after RFC 4180 (CR LF), field by field behind a text that grows; no text of its own for any of them.
class CSV_Zeile {
public:
    explicit CSV_Zeile(std::string& Ziel) : Ziel_(&Ziel) {}

    void Text(std::string_view Wert) {
        trenne();
        if (Wert.find_first_of(",\"\r\n") == std::string_view::npos) {
            *Ziel_ += Wert;
            return;
        }
        *Ziel_ += '"';
        for (const char z : Wert) Ziel_->append(z == '"' ? 2 : 1, z);
        *Ziel_ += '"';
    }
    template <class Art>
    void Zahl(Art Wert) {
        trenne();
        haenge_genaue_Zahl_an(*Ziel_, Wert);
    }
    void leer() { trenne(); }
    void beende() { *Ziel_ += "\r\n"; }

private:
    void trenne() {
        if (!std::exchange(erstes_, false)) *Ziel_ += ',';
    }

    std::string* Ziel_;
    bool erstes_ = true;
};

}  // namespace varnok::batch
