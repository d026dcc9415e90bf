#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "records/dateien.h"

namespace varnok::batch {

// Where a text goes that grows: standard output ("-"), or a file that takes the old one's place at the end.
class Textziel {
public:
    // How a text goes to standard output.
    using Standardausgabe = std::function<void(std::string_view)>;

    Textziel(const std::string& Ziel, Standardausgabe aus);

    // Throw Laufzeitfehler.
    void schreibe(std::string_view Text);
    void beende();

private:
    void leere();

    Standardausgabe aus_;
    std::unique_ptr<Dateischreiber> Datei_;  // null: standard output
    std::string wartend_;                    // not written yet
};

}  // namespace varnok::batch
