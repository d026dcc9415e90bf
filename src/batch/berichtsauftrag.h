#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/schnittstellen.h"
#include "exposure/darstellung.h"

namespace varnok::batch {

// A report and where it goes.
struct Berichtsdatei {
    std::string Ordner;
    bool erweitert = false;        // of all studies, else of the selected one
    std::string Applikationssatz;  // name of the application pattern record
    const Uhr* Zeit = nullptr;     // the machine's without one
    std::string Herkunft;          // the sum over its inputs, with its name
    std::string Namenszusatz;  // behind the name that the desktop program would give, so that reports do not replace each other
};

// Writes one; called by several threads at once. What cannot be written is added to the list.
using Berichtsschreiber = std::function<void(const Berichtsdatei&, const Darstellung&, std::vector<std::string>&)>;

}  // namespace varnok::batch
