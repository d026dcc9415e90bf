// Loaded before a program: a disk that fails. Every n-th flush or write of a plain file is refused, n from VERSAGER_FSYNC and
// VERSAGER_WRITE, or as a test sets it while it runs.

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

namespace {

int aus_Umgebung(const char* Name) {
    const char* Text = std::getenv(Name);
    return Text == nullptr ? 0 : std::atoi(Text);
}

struct Zaehler {
    std::atomic<int> jeder{0};
    std::atomic<int> bisher{0};
    bool versagt() { return jeder > 0 && ++bisher % jeder == 0; }
};

Zaehler& Flushes() {
    static Zaehler z{aus_Umgebung("VERSAGER_FSYNC")};
    return z;
}

Zaehler& Schreiber() {
    static Zaehler z{aus_Umgebung("VERSAGER_WRITE")};
    return z;
}

bool ist_Datei(int Nummer) {
    struct stat Angaben = {};
    return fstat(Nummer, &Angaben) == 0 && S_ISREG(Angaben.st_mode);
}

template <class Routine>
Routine naechste(const char* Name) {
    return reinterpret_cast<Routine>(dlsym(RTLD_NEXT, Name));
}

}  // namespace

extern "C" {

void versager_setze(int Flush, int Schreiben) {
    Flushes().bisher = Schreiber().bisher = 0;
    Flushes().jeder = Flush;
    Schreiber().jeder = Schreiben;
}

int fsync(int Nummer) {
    static const auto echt = naechste<int (*)(int)>("fsync");
    if (!ist_Datei(Nummer) || !Flushes().versagt()) return echt(Nummer);
    errno = EDQUOT;
    return -1;
}

int fdatasync(int Nummer) {
    static const auto echt = naechste<int (*)(int)>("fdatasync");
    if (!ist_Datei(Nummer) || !Flushes().versagt()) return echt(Nummer);
    errno = EDQUOT;
    return -1;
}

ssize_t write(int Nummer, const void* Bytes, size_t Anzahl) {
    static const auto echt = naechste<ssize_t (*)(int, const void*, size_t)>("write");
    if (!ist_Datei(Nummer) || !Schreiber().versagt()) return echt(Nummer, Bytes, Anzahl);
    errno = ENOSPC;
    return -1;
}

}  // extern "C"
