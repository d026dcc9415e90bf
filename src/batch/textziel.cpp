#include "batch/textziel.h"

#include <utility>

#include "batch/aufruf.h"

namespace varnok::batch {

Textziel::Textziel(const std::string& Ziel, Standardausgabe aus) : aus_(std::move(aus)) {
    if (Ziel != batch::Standardausgabe) Datei_ = std::make_unique<Dateischreiber>(Ziel);
}

void Textziel::schreibe(std::string_view Text) {
    constexpr std::size_t genug = std::size_t{1} << 18;  // bytes that are worth a call of the system
    wartend_ += Text;
    if (wartend_.size() >= genug) leere();
}

void Textziel::leere() {
    Datei_ ? Datei_->schreibe(wartend_) : aus_(wartend_);
    wartend_.clear();
}

void Textziel::beende() {
    leere();
    if (Datei_) Datei_->beende();
}

}  // namespace varnok::batch
