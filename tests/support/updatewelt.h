#pragma once

// A server and a program file that exist only in a test.

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "extras/aktualisierung.h"

namespace varnok {

class Scheinnetz final : public Abruf {
public:
    Abrufantwort hole(const std::string& Adresse, const Abrufgrenze&) override {
        gefragt.push_back(Adresse);
        if (waehrend) waehrend();
        const auto Treffer = Antworten.find(Adresse);
        return Treffer == Antworten.end() ? std::nullopt : Abrufantwort(Treffer->second);
    }
    void hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) override {
        nebenher_gefragt.push_back(Adresse);
        Frist = Grenze.insgesamt;
        wartet = std::move(fertig);
    }
    void brich_ab() override {
        ++abgebrochen;
        wartet = nullptr;
    }
    // The server answers what was asked beside other work.
    void antworte(const Abrufantwort& Antwort) {
        const auto fertig = std::exchange(wartet, nullptr);
        if (fertig) fertig(Antwort);
    }

    std::map<std::string, std::string> Antworten;
    std::vector<std::string> gefragt, nebenher_gefragt;
    std::function<void(Abrufantwort)> wartet;
    std::function<void()> waehrend;  // runs inside of `hole`
    std::chrono::milliseconds Frist{};
    int abgebrochen = 0;
};

class Scheintausch final : public Programmtausch {
public:
    bool moeglich() const override { return ersetzbar; }
    void bereite_vor(const std::string& Programm) override { bereit = Programm; }
    bool starte_neues_Programm() override { return ++gestartet > 0 && startet; }
    void verwirf() override { bereit.clear(); }

    bool ersetzbar = true, startet = true;
    std::string bereit;
    int gestartet = 0;
};

}  // namespace varnok
