#pragma once

#include <memory>

#include "extras/abruf.h"

namespace varnok {

// Fetches over HTTP or HTTPS. What is no complete answer with status 200 counts as none: also one that is too
// large, too slow, shorter than it says or without its length, and one that another server is to give.
class Netzabruf final : public Abruf {
public:
    Netzabruf();
    ~Netzabruf() override;

    Abrufantwort hole(const std::string& Adresse, const Abrufgrenze& Grenze) override;
    void hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) override;
    void brich_ab() override;

private:
    struct Netz;
    Netz& oeffne();

    std::unique_ptr<Netz> Netz_;  // made by the first request: a program that asks nobody opens nothing
};

}  // namespace varnok
