#pragma once

// Where a deployment keeps its newer versions. Without a host there is no server, and nothing ever leaves the machine.

#include <string>

namespace varnok {

struct Aktualisierungsziel {
    std::string Schema;      // "http" or "https"
    std::string Host;        // with its port where that is not the usual one
    std::string Schluessel;  // public key of the signatures, 64 hexadecimal digits

    bool vorhanden() const { return !Host.empty(); }
    std::string Versionsseite() const { return Adresse("/download/permanent/zq/VARNOK/"); }
    // Of this platform.
    static std::string Programmname();
    std::string Programm() const { return Adresse("/download/permanent/zq/VARNOK_update/" + Programmname()); }
    // Beside the program.
    std::string Signatur() const { return Programm() + ".sig"; }

private:
    std::string Adresse(const std::string& Pfad) const { return Schema + "://" + Host + Pfad; }
};

// What this program was configured for.
Aktualisierungsziel Ziel_der_Auslieferung();

}  // namespace varnok
