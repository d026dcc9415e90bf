#pragma once

#include <fstream>
#include <string>
#include <vector>

namespace varnok::batch {

// A table in a file, read row by row as RFC 4180 has it; line ends with or without CR, a byte order mark is passed over. Nothing
// of the rows passed is held. Texts are without outer blanks unless they stood in quotation marks.
class CSV_Leser {
public:
    // `Bezeichnung` stands in front of messages: the option and its file. Throws Aufruffehler for a file that cannot be opened.
    CSV_Leser(std::string Bezeichnung, const std::string& Pfad);

    // The next row that is not blank; false at the end. Throws Aufruffehler for a quotation mark without an end.
    bool lies(std::vector<std::string>& Zellen);
    // Of the row read last, counted from 1.
    int Zeile() const { return Zeile_; }
    // Back to the first row.
    void beginne_neu();

    const std::string& Bezeichnung() const { return Bezeichnung_; }

private:
    bool lies_Zeile(std::vector<std::string>& Zellen);
    int naechstes();

    std::string Bezeichnung_;
    std::ifstream Strom_;
    int Zeile_ = 0;
    int naechste_Zeile_ = 1;
};

}  // namespace varnok::batch
