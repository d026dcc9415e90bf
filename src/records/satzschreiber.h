#pragma once

#include <string>
#include <string_view>

#include "base/laufzeitfehler.h"
#include "records/satzaufbau.h"

namespace varnok {

// The walk that writes. Throws Laufzeitfehler that names the field for a value that could not be read
// back: a character without place, a tab, a line end, too long, outside its range, not finite.
class Satzschreiber : public Satzgang {
public:
    explicit Satzschreiber(char Dezimalzeichen) : Dezimalzeichen_(Dezimalzeichen) {}

    const std::string& Bytes() const { return Bytes_; }

    void Ueberschrift(std::string_view Text) override;
    void beginne(std::string_view Beschriftung) override;
    void beginne_Tabellenzeile(int Nummer) override;
    void Zwischenwert(const Feld& f) override;
    void Endwert(const Feld& f) override;
    bool folgt_Trennlinie() override { return false; }
    void Schlusszeile() override { Trennlinie(); }

private:
    void schreibe(const Feld& f);
    std::string als_Text(const Feld& f) const;
    std::string als_Zahltext(const Feld& f, double Zahl) const;
    Fehlerort Ort_von(const Feld& f) const;
    [[noreturn]] void melde(const Feld& f, const std::string& Grund) const;

    char Dezimalzeichen_;
    std::string Name_;  // of the line in work, for messages
    int Tabellenzeile_ = 0;
    std::size_t Wertanfang_ = 0;
    std::string Bytes_;
};

}  // namespace varnok
