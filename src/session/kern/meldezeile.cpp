#include "session/kern/meldezeile.h"

#include <QDateTime>
#include <chrono>
#include <utility>

namespace varnok {

void Meldezeile::sage(std::string Text) { Text_ = std::move(Text); }

void Meldezeile::sage_dazu(const std::string& Text) { Text_ += (Text_.empty() || Text.empty() ? "" : " ") + Text; }

void Meldezeile::stelle_voran(const std::string& Text) {
    std::string bisher = nimm();
    sage(Text);
    sage_dazu(bisher);
}

std::string Meldezeile::nimm() { return std::exchange(Text_, {}); }

void Meldezeile::zaehle_zur_naechsten(std::string gesagt) { gesagt_ = std::move(gesagt); }

void Meldezeile::schliesse_ab(bool geaendert, const Uhr& Zeit) {
    const bool neu = Text_ != gesagt_;
    if (!neu && geaendert) leere();
    if (neu && !Text_.empty()) {
        const auto jetzt = Zeit.jetzt().time_since_epoch();
        const auto Sekunden = std::chrono::duration_cast<std::chrono::seconds>(jetzt).count();
        Zeit_ = QDateTime::fromSecsSinceEpoch(Sekunden).toString(u"HH:mm").toStdString();
    }
    gesagt_ = Text_;
}

}  // namespace varnok
