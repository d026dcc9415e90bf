#include "batch/abbruch.h"

#include <csignal>

namespace varnok::batch {
namespace {

std::atomic<bool> Abbruch = false;

extern "C" void bitte_um_Ende(int Signal) {
    Abbruch = true;
    std::signal(Signal, SIG_DFL);
}

}  // namespace

const std::atomic<bool>& horche_auf_Abbruch() {
    for (const int Signal : {SIGINT, SIGTERM}) std::signal(Signal, bitte_um_Ende);
    return Abbruch;
}

}  // namespace varnok::batch
