#pragma once

#include <string>
#include <string_view>

namespace varnok {

// The new content of a file while it is written: beside the old one, under a name that nobody can foresee, and in its place at
// the end. What was not ended leaves nothing. The routines give false where they fail; `Grund` says why.
class Ersatzdatei {
public:
    // `wie_sie_steht`: a device or a pipe has no old content to keep and must not be replaced: it is written to itself.
    Ersatzdatei(std::string Ziel, bool wie_sie_steht);
    ~Ersatzdatei();
    Ersatzdatei(const Ersatzdatei&) = delete;
    Ersatzdatei& operator=(const Ersatzdatei&) = delete;

    bool oeffne();
    bool schreibe(std::string_view Stueck);
    bool beende();
    const std::string& Grund() const { return Grund_; }

private:
    bool scheitere(int Fehlernummer);
    bool oeffne_neue();
    bool leere();
    void verwirf();

    std::string Ziel_;
    bool wie_sie_steht_;
    std::string neue_;  // beside the target, empty without one
    int Datei_ = -1;
    std::string Grund_;
};

}  // namespace varnok
