#pragma once

#include <memory>
#include <vector>

#include "extras/abruf.h"

namespace varnok {

// Fetches over HTTP or HTTPS. What is no complete answer with status 200 counts as none: also one that is too
// large, too slow, shorter than it says or without its length, and one that another server is to give. Everything that may take
// time, proxy settings and the look-up of names included, is done in a thread of its own.
class Netzabruf final : public Abruf {
public:
    // `mit_Eingaben`: while `hole` waits, what the user does arrives; the window decides what of it counts.
    explicit Netzabruf(bool mit_Eingaben = false);
    // Waits for nobody: see `haengt`.
    ~Netzabruf() override;

    // Whether a request that could not be stopped when its object went still runs: the process ends without waiting for it.
    static bool haengt();

    Abrufantwort hole(const std::string& Adresse, const Abrufgrenze& Grenze) override;
    void hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) override;
    void brich_ab() override;

private:
    struct Netz;
    Netz& oeffne();
    static std::vector<std::unique_ptr<Netz>>& Zurueckgelassene();  // what could not be stopped

    bool mit_Eingaben_;
    std::unique_ptr<Netz> Netz_;  // made by the first request: a program that asks nobody opens nothing
};

}  // namespace varnok
