#pragma once

// The program's own file replaced by a newer one. A program cannot write over itself while it runs: a script
// that it leaves behind does so after its end.

#include <cstdint>
#include <string>

namespace varnok {

class Programmtausch {
public:
    virtual ~Programmtausch() = default;
    // Whether the user may replace the file at all: not one that a package brought, nor one that is a link.
    virtual bool moeglich() const = 0;
    // Puts the new program and the script beside the old one. Throws Laufzeitfehler.
    virtual void bereite_vor(const std::string& Programm) = 0;
    // Starts the script, which starts the new program, without waiting for it. False if that fails.
    virtual bool starte_neues_Programm() = 0;
    // Removes what `bereite_vor` made.
    virtual void verwirf() = 0;
};

// The script's text for a system with a shell: waits for the end of the process, then puts the new file in the place of the old
// one, removes itself and restarts the program in the folder that was current for the old one. After a minute of waiting it gives
// up and leaves the old program alone, which also starts again where the step fails. It touches no other file.
struct Skriptangaben {
    std::string Ordner;       // of the program
    std::string Programm;     // name of its file
    std::string Startordner;  // current folder of the restart
    std::int64_t Prozess = 0;
    std::string neues;   // name of the new program's file
    std::string Skript;  // name of the script's own
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
    bool starte_neues_Programm() override;
    void verwirf() override;

    // What `bereite_vor` made, under names that nobody can foresee; empty before.
    std::string neue_Datei() const { return im_Ordner(Angaben_.neues); }
    std::string Skriptdatei() const { return im_Ordner(Angaben_.Skript); }

private:
    std::string alte_Datei() const { return im_Ordner(Angaben_.Programm); }
    std::string im_Ordner(const std::string& Name) const { return Name.empty() ? Name : Angaben_.Ordner + "/" + Name; }

    Skriptangaben Angaben_;
};

}  // namespace varnok
