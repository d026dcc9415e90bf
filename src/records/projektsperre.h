#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "records/projektordner.h"

class QLockFile;

namespace varnok {

// Who has a project folder open.
struct Sperrinhaber {
    std::string Rechner;  // name of the machine, empty where it is this one
    std::chrono::seconds Alter{};
};

// Tells two windows of the program on one project folder of each other, by a file in that folder. What a program of this machine
// that was killed left does not count.
class Projektsperre {
public:
    explicit Projektsperre(const Projektordner& Ordner);
    ~Projektsperre();
    Projektsperre(const Projektsperre&) = delete;
    Projektsperre& operator=(const Projektsperre&) = delete;

    // Who else holds the folder, nothing where this object does; takes it over where that one is gone. A folder in which nothing
    // can be written, or where something else is in the place of the file, is nobody's.
    std::optional<Sperrinhaber> anderer();
    bool von_anderem_gehalten() { return anderer().has_value(); }

    // Takes the folder from a machine of which this one cannot know whether the program still runs there.
    void uebernimm();

private:
    bool ist_brauchbar() const;

    std::unique_ptr<QLockFile> Datei_;
};

}  // namespace varnok
