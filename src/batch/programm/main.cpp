#include <unistd.h>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "batch/aufruf.h"
#include "batch/varnok_batch.h"

namespace {

using namespace varnok::batch;

// Reports need fonts and pictures. The libraries for them take longer to load than a simulation to calculate, so a program of
// its own has them and takes over the whole call: where it was built it lies beside this one, where it was installed among the
// programs that nobody calls by hand.
Berichtsschreiber uebergib_Aufruf(char** argv) {
    constexpr const char* Name = "varnok-batch-reports";
    std::error_code Fehler;
    const std::filesystem::path Programm = std::filesystem::read_symlink("/proc/self/exe", Fehler);
    const std::filesystem::path Ordner = (Fehler ? std::filesystem::path(argv[0]) : Programm).parent_path();
    const std::filesystem::path Nachbar = Ordner / Name;
    execv(Nachbar.c_str(), argv);
    execv((Ordner / "../libexec/varnok" / Name).c_str(), argv);
    throw Aufruffehler("--report: cannot start " + Nachbar.string() + ": " + std::generic_category().message(errno));
}

}  // namespace

int main(int argc, char** argv) {
    Umgebung Umwelt = Umgebung_des_Prozesses();
    Umwelt.Berichte = [argv] { return uebergib_Aufruf(argv); };
    return varnok_batch(argc, argv, std::cout, std::cerr, Umwelt);
}
