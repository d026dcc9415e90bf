#include "batch/fortschrittsbalken.h"

#include <algorithm>
#include <ostream>

namespace varnok::batch {
namespace {

constexpr std::size_t Balkenlaenge = 30;
constexpr std::chrono::milliseconds Zeichenabstand{200};

}  // namespace

std::string Balkentext(std::size_t fertig, std::size_t gesamt) {
    const std::size_t voll = gesamt == 0 ? Balkenlaenge : std::min(fertig, gesamt) * Balkenlaenge / gesamt;
    std::string Text = "[";
    Text.append(voll, '#').append(Balkenlaenge - voll, ' ').append("] ");
    Text.append(std::to_string(fertig)).append(" of ").append(std::to_string(gesamt));
    return Text += gesamt == 1 ? " simulation" : " simulations";
}

Fortschrittsbalken::Fortschrittsbalken(std::ostream& Terminal, std::size_t gesamt, std::chrono::milliseconds Wartezeit)
    : Terminal_(&Terminal),
      gesamt_(gesamt),
      Zeichner_([this, Wartezeit](const std::stop_token& Ende) { zeichne_bis(Ende, Wartezeit); }) {}

Fortschrittsbalken::~Fortschrittsbalken() = default;  // the thread stops and ends before what it uses

void Fortschrittsbalken::melde(std::size_t fertig, std::size_t gesamt) {
    const std::lock_guard Schutz(Sperre_);
    fertig_ = std::max(fertig_, fertig);  // reports of several threads may overtake each other
    gesamt_ = gesamt;
}

void Fortschrittsbalken::zeichne_bis(const std::stop_token& Ende, std::chrono::milliseconds Wartezeit) {
    std::unique_lock Schutz(Sperre_);
    Wecker_.wait_for(Schutz, Ende, Wartezeit, [] { return false; });
    // Without any waiting time the bar shows at least once, however short the work.
    if (Ende.stop_requested() && Wartezeit.count() > 0) return;
    do {
        const std::string Text = Balkentext(fertig_, gesamt_);
        Breite_ = std::max(Breite_, Text.size());
        *Terminal_ << '\r' << Text << std::flush;
        Wecker_.wait_for(Schutz, Ende, Zeichenabstand, [] { return false; });
    } while (!Ende.stop_requested());
    wische();
}

void Fortschrittsbalken::wische() {
    if (Breite_ > 0) *Terminal_ << '\r' << std::string(Breite_, ' ') << '\r' << std::flush;
    Breite_ = 0;
}

std::unique_lock<std::mutex> Fortschrittsbalken::raeume() {
    std::unique_lock Schutz(Sperre_);
    wische();
    return Schutz;
}

}  // namespace varnok::batch
