#pragma once

#include <memory>

#include "records/projektordner.h"

class QLockFile;

namespace varnok {

// Tells two windows of the program on one project folder of each other, by a file in that folder. What a program that was
// killed left does not count.
class Projektsperre {
public:
    explicit Projektsperre(const Projektordner& Ordner);
    ~Projektsperre();
    Projektsperre(const Projektsperre&) = delete;
    Projektsperre& operator=(const Projektsperre&) = delete;

    // Whether another window holds the folder; takes it over where that one is gone. A folder in which nothing can be
    // written is nobody's.
    bool von_anderem_gehalten();

private:
    std::unique_ptr<QLockFile> Datei_;
};

}  // namespace varnok
