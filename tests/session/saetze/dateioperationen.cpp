#include "session/saetze/dateioperationen.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>

namespace varnok {
namespace {

int verbleibend = 0;  // operations until the end; 0: nothing is counted

void vor_einer_Operation() {
    if (verbleibend > 0 && --verbleibend == 0) _exit(Abbruchstatus);
}

// The library's own function behind the one of this file.
template <class Funktion>
Funktion* naechste(const char* Name) {
    return reinterpret_cast<Funktion*>(dlsym(RTLD_NEXT, Name));
}

}  // namespace

int fuehre_aus_bis_Operation(int Nummer, const std::function<void()>& Tat) {
    const pid_t Kind = fork();
    if (Kind == 0) {
        verbleibend = Nummer;
        Tat();
        verbleibend = 0;
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int Zustand = 0;
    waitpid(Kind, &Zustand, 0);
    return WIFEXITED(Zustand) ? WEXITSTATUS(Zustand) : -1;
}

}  // namespace varnok

// These stand in front of the functions of the same name for the whole test program, Qt included.
extern "C" {

int open64(const char* Pfad, int Art, ...) {
    mode_t Rechte = 0;
    if ((Art & O_CREAT) != 0 || (Art & O_TMPFILE) == O_TMPFILE) {
        va_list Weitere;
        va_start(Weitere, Art);
        Rechte = va_arg(Weitere, mode_t);
        va_end(Weitere);
    }
    if ((Art & O_ACCMODE) != O_RDONLY) varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*, int, ...)>("open64");
    return echte(Pfad, Art, Rechte);
}

ssize_t write(int Datei, const void* Bytes, size_t Anzahl) {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<ssize_t(int, const void*, size_t)>("write");
    return echte(Datei, Bytes, Anzahl);
}

// Tests survive no power failure: they do not wait for the disk.
int fdatasync(int) {
    varnok::vor_einer_Operation();
    return 0;
}

int fchmod(int Datei, mode_t Rechte) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(int, mode_t)>("fchmod");
    return echte(Datei, Rechte);
}

int link(const char* von, const char* nach) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*, const char*)>("link");
    return echte(von, nach);
}

int linkat(int Ordner, const char* von, int Zielordner, const char* nach, int Art) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(int, const char*, int, const char*, int)>("linkat");
    return echte(Ordner, von, Zielordner, nach, Art);
}

int rename(const char* von, const char* nach) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*, const char*)>("rename");
    return echte(von, nach);
}

int renameat2(int Ordner, const char* von, int Zielordner, const char* nach, unsigned Art) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return echte(Ordner, von, Zielordner, nach, Art);
}

int unlink(const char* Pfad) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*)>("unlink");
    return echte(Pfad);
}

int unlinkat(int Ordner, const char* Pfad, int Art) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(int, const char*, int)>("unlinkat");
    return echte(Ordner, Pfad, Art);
}

int remove(const char* Pfad) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*)>("remove");
    return echte(Pfad);
}

int mkdir(const char* Pfad, mode_t Rechte) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*, mode_t)>("mkdir");
    return echte(Pfad, Rechte);
}

int rmdir(const char* Pfad) noexcept {
    varnok::vor_einer_Operation();
    static auto* const echte = varnok::naechste<int(const char*)>("rmdir");
    return echte(Pfad);
}

}  // extern "C"
