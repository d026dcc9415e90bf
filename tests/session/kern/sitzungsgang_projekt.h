#pragma once

// The project folder of a random walk, and what another program does to it.

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "base/schnittstellen.h"
#include "records/projektordner.h"

namespace varnok::gang {

// Random numbers from one seed, the same on every machine.
class Zufall {
public:
    explicit Zufall(std::uint64_t Saat) : Stand_(Saat) {}
    void beginne(std::uint64_t Saat) { Stand_ = Saat; }
    std::uint64_t Zahl();
    // 0 to n - 1.
    int unter(int n) { return n < 2 ? 0 : static_cast<int>(Zahl() % static_cast<std::uint64_t>(n)); }
    bool einmal_von(int n) { return unter(n) == 0; }
    template <class Liste>
    const auto& eins_von(const Liste& l) {
        return l[static_cast<std::size_t>(unter(static_cast<int>(std::size(l))))];
    }

private:
    std::uint64_t Stand_;
};

// Each look at the clock is a second later: each backup has a folder of its own.
class Schrittuhr : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override { return Zeit_ += std::chrono::seconds(1); }

private:
    mutable std::chrono::system_clock::time_point Zeit_{std::chrono::hours(24 * 365 * 50)};
};

using Dateien = std::map<std::string, std::string>;  // content by name

class Gangprojekt {
public:
    Gangprojekt();
    ~Gangprojekt();
    Gangprojekt(const Gangprojekt&) = delete;
    Gangprojekt& operator=(const Gangprojekt&) = delete;

    const std::filesystem::path& Wurzel() const { return Wurzel_; }
    Dateien lies() const;
    // Whether these bytes have ever been put into `backup`.
    bool gesichert(const std::string& Bytes);
    // A summary file that was written is younger than all others, whatever the clock of the machine says.
    void ordne_Zeiten(const Dateien& vorher, const Dateien& nachher);

    // Another program; each says what it did.
    std::string aendere(const char* Endung, Zufall& r);
    std::string loesche(const char* Endung, Zufall& r);
    std::string zerstoere(const char* Endung, Zufall& r);
    std::string bringe_neue(const char* Endung, Zufall& r);
    std::string benenne_um(const char* Endung, Zufall& r);
    std::string aendere_Datei(const std::string& Name, Zufall& r);
    std::string loesche_Datei(const std::string& Name);
    std::string loesche_alle(const char* Endung);
    std::string stelle_her();

private:
    std::filesystem::path waehle(const char* Endung, Zufall& r) const;
    void schreibe_Anfang();
    void schreibe_neu(const std::filesystem::path& p, Zufall& r);

    std::filesystem::path Wurzel_;
    Dateien Anfang_;
    std::set<std::string> gesehene_Ordner_;
    std::set<std::size_t> gesichert_;
    std::map<std::string, std::filesystem::file_time_type> Zeiten_;
    int Takt_ = 0;
};

// The kinds of file in `input`.
inline constexpr std::array<const char*, 5> Dateiarten = {Endungen[Simulation], Endungen[Wirkstoff], Endungen[Applikation],
                                                          Endungen[Szenario], Klima_Endung};

// A weather of constant rain and of that temperature in the middle of its year.
std::string Wetterdatei(double Temperatur);

}  // namespace varnok::gang
