#pragma once

#include <string>
#include <utility>

namespace varnok {

// The file that the values on the screen come from, as this program last read or wrote it. Not what is selected: after a
// deletion or a choice the selector names the next record while the values are still those of this one.
struct Dateistand {
    std::string Name;
    std::string Bytes;
};

// What the program knows of the record of a kind, beside its selector. Each step sets everything that is tied to it.
class Satzplatz {
public:
    const Dateistand& Datei() const { return Datei_; }
    // The inputs as a save would have written them right after reading or saving.
    const std::string& gespeichert() const { return gespeichert_; }
    // False: the values on the screen are not those of the record that the selector names.
    bool gelesen() const { return gelesen_; }
    // Why not, for the cover; empty while it is only waiting to be read.
    const std::string& Grund() const { return Grund_; }
    // The user changed it and is asked before it goes. The commands set it; nothing is compared.
    bool Geaendert() const { return Geaendert_; }

    // Counts what ties other values to the record: reading it, giving it up.
    int Lesungen() const { return Lesungen_; }
    int Umbenennungen() const { return Umbenennungen_; }

    // The selector names another record, to be read.
    void verlange() { verwirf({}); }
    // What the selector names cannot be on the screen.
    void verwirf(std::string Grund) {
        stelle(false, std::move(Grund));
        ++Lesungen_;
    }
    // The values of this file are on the screen; `Bild` is how a save would write them.
    void lies(Dateistand Datei, std::string Bild) {
        kenne(std::move(Datei), std::move(Bild));
        ++Lesungen_;
    }
    // The values that are on the screen already stand for this file.
    void kenne(Dateistand Datei, std::string Bild) {
        Datei_ = std::move(Datei);
        gespeichert_ = std::move(Bild);
        stelle(true, {});
    }
    // What was entered without a record stands for the one that the selector names.
    void nimm_Eingegebenes_an() { gelesen_ = true; }
    // The file has another name, with its content.
    void benenne(std::string Name) {
        folge_der_Kopie(std::move(Name));
        ++Umbenennungen_;
    }
    // What is known of the copy is what was read of the original. A file that was not read is not what the values stand for.
    void folge_der_Kopie(std::string Name) {
        if (gelesen_) Datei_.Name = std::move(Name);
    }
    // A save wrote this; the mark is the business of the command that saves.
    void schreibe(Dateistand Datei, std::string Bild) {
        gespeichert_ = std::move(Bild);
        Datei_ = std::move(Datei);
    }

    void merke_Aenderung() { Geaendert_ = true; }
    void vergiss_Aenderung() { Geaendert_ = false; }
    // The mark as it was before a step that did not come about.
    void stelle_Marke(bool Geaendert) { Geaendert_ = Geaendert; }

private:
    void stelle(bool gelesen, std::string Grund) {
        gelesen_ = gelesen;
        Grund_ = std::move(Grund);
        Geaendert_ = false;
    }

    Dateistand Datei_;
    std::string gespeichert_;
    std::string Grund_;
    bool gelesen_ = false;
    bool Geaendert_ = false;
    int Lesungen_ = 0;
    int Umbenennungen_ = 0;
};

}  // namespace varnok
