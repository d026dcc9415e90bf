#pragma once

// The program's own file replaced by a newer one. A program cannot write over itself while it runs: a script
// that it leaves behind does so after its end.

#include <cstdint>
#include <string>

namespace varnok {

class Programmtausch {
public:
    virtual ~Programmtausch() = default;
    // Whether the user may replace the file at all: not one that a package brought.
    virtual bool moeglich() const = 0;
    // Puts the new program and the script beside the old one. Throws Laufzeitfehler.
    virtual void bereite_vor(const std::string& Programm) = 0;
    // Starts the script without waiting for it. False if that fails.
    virtual bool starte() = 0;
    // Removes what `bereite_vor` made.
    virtual void verwirf() = 0;
};

// The script's text for a system with a shell: waits for the end of the process, then copies, deletes, restarts
// the program in the folder that was current for the old one. After a minute of waiting it gives up and leaves
// the old program alone, which also starts again where the copy fails.
struct Skriptangaben {
    std::string Ordner;       // of the program
    std::string Programm;     // name of its file
    std::string Startordner;  // current folder of the restart
    std::int64_t Prozess = 0;
};
std::string Tauschskript(const Skriptangaben& Angaben);

// The lines of the batch file, where there are such files.
std::string Tauschstapel();

class Dateitausch final : public Programmtausch {
public:
    // `Programmdatei`: full path of the program that runs; `Prozess` its id, `Startordner` its current folder.
    Dateitausch(const std::string& Programmdatei, std::string Startordner, std::int64_t Prozess);

    bool moeglich() const override;
    void bereite_vor(const std::string& Programm) override;
    bool starte() override;
    void verwirf() override;

    std::string neue_Datei() const;
    std::string Skriptdatei() const;

private:
    std::string alte_Datei() const;

    Skriptangaben Angaben_;
};

}  // namespace varnok
