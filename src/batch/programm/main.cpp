#include <unistd.h>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "batch/aufruf.h"
#include "batch/varnok_batch.h"

namespace {

using namespace varnok::batch;

// Reports need fonts and pictures. The libraries for them take longer to load than a simulation to calculate, so a program of
// its own has them: it lies beside this one and takes over the whole call.
Berichtsschreiber uebergib_Aufruf(char** argv) {
    std::error_code Fehler;
    std::filesystem::path Programm = std::filesystem::read_symlink("/proc/self/exe", Fehler);
    const std::filesystem::path Nachbar =
        (Fehler ? std::filesystem::path(argv[0]) : Programm).replace_filename("varnok-batch-reports");
    execv(Nachbar.c_str(), argv);
    throw Aufruffehler("--report: cannot start " + Nachbar.string() + ": " + std::generic_category().message(errno));
}

std::atomic<bool> Abbruch = false;

// The first time what is under way is brought to its end, so that lines and transactions stay whole; the second time at once.
extern "C" void bitte_um_Ende(int Signal) {
    Abbruch = true;
    std::signal(Signal, SIG_DFL);
}

}  // namespace

int main(int argc, char** argv) {
    Umgebung Umwelt = Umgebung_des_Prozesses();
    Umwelt.Berichte = [argv] { return uebergib_Aufruf(argv); };
    Umwelt.Abbruch = &Abbruch;
    for (const int Signal : {SIGINT, SIGTERM}) std::signal(Signal, bitte_um_Ende);
    return varnok_batch(argc, argv, std::cout, std::cerr, Umwelt);
}
