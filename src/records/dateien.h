#pragma once

// Files as bytes. Paths and messages are UTF-8.

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "records/schreibort.h"

namespace varnok {

class Ersatzdatei;

// No input of this program comes near this size; what is larger is no record.
inline constexpr std::size_t Hoechstgroesse_Datei = std::size_t{16} << 20;

// What a name that is read may stand for: a pipe in a project would make the program wait for ever.
enum class Quelle { Datei, alles };

// The whole content of a file. Throws Laufzeitfehler that names the file and the reason: it cannot be
// opened, is a folder, is no plain file where one is wanted, or is larger than any input of this program (16 MB).
std::string lies_Datei(const std::string& Pfad, Quelle q = Quelle::Datei);

// The same, but nothing where the file cannot be opened: it does not exist, is no plain file, may not be read.
std::optional<std::string> lies_Datei_falls_moeglich(const std::string& Pfad);

// Replaces the file by `Inhalt` in one step: written beside it, flushed, renamed over it. A reader sees
// the old file or the new one. Throws Laufzeitfehler that names the file and the reason, a failed flush too; the old file
// is then untouched. What a link or a device in its place means follows from `Ort`.
void schreibe_Datei(const std::string& Pfad, const std::string& Inhalt, const Schreibort& Ort = {});

// The same for a text that comes piece by piece and need not find room in memory. What was not ended is dropped: the old file
// stays. Every routine throws as `schreibe_Datei`.
class Dateischreiber {
public:
    explicit Dateischreiber(const std::string& Pfad, const Schreibort& Ort = {});
    ~Dateischreiber();
    Dateischreiber(const Dateischreiber&) = delete;
    Dateischreiber& operator=(const Dateischreiber&) = delete;

    void schreibe(std::string_view Stueck);
    // Flushes and takes the old file's place; nothing is written behind it.
    void beende();

private:
    std::string Pfad_;
    std::unique_ptr<Ersatzdatei> Datei_;
};

// A copy with the present time as its stamp; a link in its place is replaced. Throws as reading and writing do.
void kopiere_Datei(const std::string& von, const std::string& nach);

// Gives a file, or a link, another name in one step; what has that name is replaced. Throws Laufzeitfehler that names both and
// the reason; both files are then as they were.
void benenne_Datei_um(const std::string& von, const std::string& nach);

// Of a link it is the link that goes. Throws Laufzeitfehler that names the file and the reason.
void loesche_Datei(const std::string& Pfad);

}  // namespace varnok
