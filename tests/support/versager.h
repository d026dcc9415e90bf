#pragma once

#include <dlfcn.h>

namespace varnok {

// A disk that refuses every n-th flush or write (0: none) while the object lives. Works only in a process into which the library
// of tests/versager was loaded before it.
class Versager {
public:
    static bool geladen() { return Routine() != nullptr; }

    Versager(int Flush, int Schreiben) { Routine()(Flush, Schreiben); }
    ~Versager() { Routine()(0, 0); }
    Versager(const Versager&) = delete;
    Versager& operator=(const Versager&) = delete;

private:
    using Einstellung = void (*)(int, int);
    static Einstellung Routine() {
        static const auto Gefundene = reinterpret_cast<Einstellung>(dlsym(RTLD_DEFAULT, "versager_setze"));
        return Gefundene;
    }
};

}  // namespace varnok
