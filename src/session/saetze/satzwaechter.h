#pragma once

#include <string>
#include <vector>

#include "session/kern/eingabestand.h"
#include "session/saetze/sicherungsgut.h"

namespace varnok {

enum class Schreibausgang { geschrieben, verweigert, nicht_jetzt };

// Stands between the values on the screen and the files: nothing that another program or another window wrote is replaced
// without a question, and what is replaced or dropped is in `backup` before.
class Satzwaechter {
public:
    explicit Satzwaechter(Eingabestand& z) : z_(z) {}

    // The values of the file of that name are on the screen: its content is known.
    void merke(Satzart Art, const std::string& Name);
    // The values on the screen are those of the file: what a save would write from now on is what makes a difference.
    void merke_Gespeichertes(Satzart Art);

    // Writes the files that the selectors name from the values on the screen: all of them, or none where the user does not want
    // one replaced, or not now. A type that was not read is left out; what was entered for such a record goes into `backup`.
    Schreibausgang schreibe(const std::vector<Satzart>& Arten);

    // The values that no file holds, of the types given: what the user changed, and what was read from a file that another
    // program has changed or deleted since.
    Sicherungsgut Ungesichertes(const std::vector<Satzart>& Arten) const;
    // Puts them into `backup`, with further pieces of the same command.
    void sichere_Ungesichertes(const std::vector<Satzart>& Arten, Sicherungsgut dazu = {});

    // What another program did to the files of these types since they were read, for the status line; empty if nothing.
    std::string Fremdes(const std::vector<Satzart>& Arten) const;

private:
    enum class Dateizustand { unveraendert, geaendert, geloescht };
    struct Auftrag {
        Satzart Art;
        std::string Name;
        std::string Pfad;
        std::string Bytes;
    };

    Auftrag stelle_zusammen(Satzart Art) const;
    Dateizustand Zustand_der_Datei(Satzart Art) const;
    bool haelt_keine_Datei(Satzart Art) const;
    Knopf frage_wegen_Fenster() const;
    Knopf frage_wegen_Ersatz(const Auftrag& a, const std::string& vorhanden) const;

    Eingabestand& z_;
};

// What the values of a record are called where no file holds them.
std::string Name_des_Ungesicherten(const Eingabestand& z, Satzart Art);

}  // namespace varnok
