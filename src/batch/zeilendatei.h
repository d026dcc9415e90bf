#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class QFile;

namespace varnok::batch {

// A file that grows line by line while the work goes on, so that what is done outlives the program. A link in its place is
// replaced, never its target.
class Zeilendatei {
public:
    // Replaces what is there.
    explicit Zeilendatei(const std::string& Pfad);
    // Keeps the first bytes and goes on behind them.
    Zeilendatei(const std::string& Pfad, std::int64_t behalten);
    ~Zeilendatei();

    // Whole lines. Throws Laufzeitfehler that names the file and the reason.
    void schreibe(std::string_view Zeilen);
    // Brings all of it to the disk; throws likewise.
    void beende();

private:
    [[noreturn]] void melde() const;
    [[noreturn]] void melde(const std::string& Grund) const;

    std::string Pfad_;
    std::unique_ptr<QFile> Datei_;
};

}  // namespace varnok::batch
