#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <iosfwd>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

#include "base/schnittstellen.h"

namespace varnok::batch {

// A line on a terminal that tells how far the work is. It appears after the waiting time, is renewed a
// few times a second by a thread of its own, and is wiped when the object ends.
class Fortschrittsbalken : public Fortschritt {
public:
    Fortschrittsbalken(std::ostream& Terminal, std::size_t gesamt, std::chrono::milliseconds Wartezeit);
    ~Fortschrittsbalken() override;

    void melde(std::size_t fertig, std::size_t gesamt) override;

    // Wipes the line and keeps it away while the lock is held: for what else goes to the terminal.
    [[nodiscard]] std::unique_lock<std::mutex> raeume();

private:
    void wische();
    void zeichne_bis(const std::stop_token& Ende, std::chrono::milliseconds Wartezeit);

    std::ostream* Terminal_;
    std::mutex Sperre_;
    std::condition_variable_any Wecker_;
    std::size_t fertig_ = 0;
    std::size_t gesamt_;
    std::size_t Breite_ = 0;  // of what stands on the line
    std::jthread Zeichner_;   // last: it starts when all else is there
};

// "[#####               ] 25 of 100 simulations"
std::string Balkentext(std::size_t fertig, std::size_t gesamt);

}  // namespace varnok::batch
