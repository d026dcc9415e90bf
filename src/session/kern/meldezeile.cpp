#include "session/kern/meldezeile.h"

#include <QDateTime>
#include <chrono>
#include <utility>

namespace varnok {
namespace {

std::string verbunden(const std::string& vorn, const std::string& hinten) {
    return vorn + (vorn.empty() || hinten.empty() ? "" : " ") + hinten;
}

}  // namespace

std::string Meldezeile::Text() const { return verbunden(Zahlen_.Text, Befehl_.Text); }

void Meldezeile::setze(Wort& w, std::string Text) {
    if (Text.empty()) return;
    vergiss_Frueheres();
    w = {std::move(Text), laufende_};
    if (Uhr_ == nullptr) return;
    const auto jetzt = Uhr_->jetzt().time_since_epoch();
    const auto Sekunden = std::chrono::duration_cast<std::chrono::seconds>(jetzt).count();
    Zeit_ = QDateTime::fromSecsSinceEpoch(Sekunden).toString(u"HH:mm").toStdString();
}

void Meldezeile::sage(std::string Text) { setze(Befehl_, std::move(Text)); }

void Meldezeile::sage_dazu(const std::string& Text) {
    if (!Text.empty()) setze(Befehl_, neu(Befehl_) ? verbunden(Befehl_.Text, Text) : Text);
}

void Meldezeile::stelle_voran(const std::string& Text) {
    if (!Text.empty()) setze(Befehl_, neu(Befehl_) ? verbunden(Text, Befehl_.Text) : Text);
}

void Meldezeile::sage_Zahl(const std::string& Text) {
    if (!Text.empty()) setze(Zahlen_, neu(Zahlen_) ? verbunden(Zahlen_.Text, Text) : Text);
}

void Meldezeile::vergiss_Frueheres() {
    for (Wort* w : {&Zahlen_, &Befehl_}) {
        if (!neu(*w)) w->Text.clear();
    }
}

std::string Meldezeile::nimm() { return neu(Befehl_) ? std::exchange(Befehl_.Text, {}) : std::string(); }

void Meldezeile::schliesse_ab(bool geaendert) {
    if (geaendert) vergiss_Frueheres();
    Beginn_ = ++laufende_;
}

}  // namespace varnok
