#include "base/laufzeitfehler.h"

#include <utility>

namespace varnok {
namespace {

std::string als_Meldung(const std::string& Grund, const Fehlerort& Ort, const std::string& davor) {
    if (!davor.empty()) return davor + ": " + Grund;
    return Ort.Zeile > 0 ? "File " + Zeilenangabe(Ort.Datei, Ort.Zeile) + ": " + Grund : Grund;
}

}  // namespace

std::string Zeilenangabe(const std::string& Datei, int Zeile) {
    return Zeile > 0 ? Datei + ", line " + std::to_string(Zeile) : Datei;
}

Laufzeitfehler::Laufzeitfehler(std::string Grund, Fehlerort Ort, const std::string& davor)
    : std::runtime_error(als_Meldung(Grund, Ort, davor)), Ort_(std::move(Ort)), Grund_(std::move(Grund)) {}

void melde_unmoegliche_Rechnung(const std::string& Eingabewert, Fehlerort Ort) {
    throw Laufzeitfehler("The calculation is not possible with these input data. Please correct! (" + Eingabewert + ")",
                         std::move(Ort));
}

}  // namespace varnok
