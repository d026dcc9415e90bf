#include "records/ersatzdatei.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>
#include <utility>

namespace varnok {
namespace {

// Eight characters of what the system gives as chance.
std::string zufaelliger_Name() {
    constexpr std::string_view Zeichen = "abcdefghijkmnpqrstuvwxyz23456789";
    std::random_device Zufall;
    std::string Name;
    for (int i = 0; i < 8; ++i) Name += Zeichen[Zufall() % Zeichen.size()];
    return Name;
}

}  // namespace

Ersatzdatei::Ersatzdatei(std::string Ziel, bool wie_sie_steht) : Ziel_(std::move(Ziel)), wie_sie_steht_(wie_sie_steht) {}

Ersatzdatei::~Ersatzdatei() { verwirf(); }

bool Ersatzdatei::scheitere(int Fehlernummer) {
    Grund_ = std::generic_category().message(Fehlernummer);
    return false;
}

void Ersatzdatei::verwirf() {
    if (Datei_ >= 0) close(std::exchange(Datei_, -1));
    if (!neue_.empty()) unlink(std::exchange(neue_, "").c_str());
}

bool Ersatzdatei::oeffne() {
    if (!wie_sie_steht_) return oeffne_neue();
    Datei_ = open(Ziel_.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    return Datei_ >= 0 || scheitere(errno);
}

// The rights of the old file stay; one that must not be written to is not replaced either.
bool Ersatzdatei::oeffne_neue() {
    struct stat alte = {};
    const bool ersetzt = lstat(Ziel_.c_str(), &alte) == 0 && S_ISREG(alte.st_mode);
    if (ersetzt && faccessat(AT_FDCWD, Ziel_.c_str(), W_OK, AT_EACCESS) != 0) return scheitere(errno);
    constexpr int Versuche = 16;
    for (int i = 0; i < Versuche && Datei_ < 0; ++i) {
        neue_ = Ziel_ + "." + zufaelliger_Name();
        Datei_ = open(neue_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (Datei_ < 0 && errno != EEXIST) break;
    }
    if (Datei_ < 0) {
        const int Fehlernummer = errno;
        neue_.clear();
        return scheitere(Fehlernummer);
    }
    // Where rights cannot be set they are those of a new file.
    if (ersetzt) static_cast<void>(fchmod(Datei_, alte.st_mode & 0777));
    return true;
}

// A disk that becomes full takes a part of the bytes; the reason comes with the rest.
bool Ersatzdatei::schreibe(std::string_view Stueck) {
    while (!Stueck.empty()) {
        const ssize_t Schritt = write(Datei_, Stueck.data(), Stueck.size());
        if (Schritt < 0 && errno == EINTR) continue;
        if (Schritt < 0) return scheitere(errno);
        if (Schritt == 0) return scheitere(ENOSPC);
        Stueck.remove_prefix(static_cast<std::size_t>(Schritt));
    }
    return true;
}

// What a network drive or a quota refuses may show only here.
bool Ersatzdatei::leere() {
    if (fsync(Datei_) == 0) return true;
    constexpr std::array nicht_vorgesehen = {EINVAL, ENOSYS, EOPNOTSUPP};  // pipes, and file systems without a flush
    const bool unwichtig = std::find(nicht_vorgesehen.begin(), nicht_vorgesehen.end(), errno) != nicht_vorgesehen.end();
    return unwichtig || scheitere(errno);
}

bool Ersatzdatei::beende() {
    if (!leere()) return false;
    if (close(std::exchange(Datei_, -1)) != 0 && errno != EINTR) return scheitere(errno);
    if (neue_.empty()) return true;
    if (std::rename(neue_.c_str(), Ziel_.c_str()) != 0) return scheitere(errno);
    neue_.clear();
    return true;
}

}  // namespace varnok
