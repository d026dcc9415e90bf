#pragma once

// Files as bytes. Paths and messages are UTF-8.

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace varnok {

// No input of this program comes near this size; what is larger is no record.
inline constexpr std::size_t Hoechstgroesse_Datei = std::size_t{16} << 20;

// The whole content of a file. Throws Laufzeitfehler that names the file and the reason: it cannot be
// opened, is a folder, or is larger than any input of this program (16 MB).
std::string lies_Datei(const std::string& Pfad);

// The same, but nothing where the file cannot be opened: it does not exist, is a folder, may not be read.
std::optional<std::string> lies_Datei_falls_moeglich(const std::string& Pfad);

// Replaces the file by `Inhalt` in one step: written beside it, flushed, renamed over it. A reader sees
// the old file or the new one. Throws Laufzeitfehler that names the file and the reason; the old file
// is then untouched. What is no plain file (a device, a pipe) is written to as it stands.
void schreibe_Datei(const std::string& Pfad, const std::string& Inhalt);

// The same for a text that comes piece by piece and need not find room in memory. What was not ended is dropped: the old file
// stays. Every routine throws as `schreibe_Datei`.
class Dateischreiber {
public:
    explicit Dateischreiber(const std::string& Pfad);
    ~Dateischreiber();
    Dateischreiber(const Dateischreiber&) = delete;
    Dateischreiber& operator=(const Dateischreiber&) = delete;

    void schreibe(std::string_view Stueck);
    // Flushes and takes the old file's place; nothing is written behind it.
    void beende();

private:
    class Geraet;

    std::string Pfad_;
    std::unique_ptr<Geraet> Geraet_;
};

// A copy with the present time as its stamp. Throws as reading and writing do.
void kopiere_Datei(const std::string& von, const std::string& nach);

// Gives a file another name in one step; a file of that name is replaced. Throws Laufzeitfehler that names both and the
// reason; both files are then as they were.
void benenne_Datei_um(const std::string& von, const std::string& nach);

// Throws Laufzeitfehler that names the file and the reason.
void loesche_Datei(const std::string& Pfad);

}  // namespace varnok
