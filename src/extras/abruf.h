#pragma once

// The way to a server: an address in, the whole answer out. The network implements it, a test scripts it.

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace varnok {

struct Abrufgrenze {
    std::size_t Bytes = 0;                  // of the answer
    std::chrono::milliseconds insgesamt{};  // from the call to the last byte; 0: no limit but the next
    std::chrono::milliseconds Stille{};     // without any byte
};

// The bytes of a complete and successful answer; nothing for every other outcome.
using Abrufantwort = std::optional<std::string>;

class Abruf {
public:
    virtual ~Abruf() = default;
    // Returns with the answer. The screen keeps painting meanwhile, input waits.
    virtual Abrufantwort hole(const std::string& Adresse, const Abrufgrenze& Grenze) = 0;
    // Returns at once; `fertig` is called later, once. One at a time.
    virtual void hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze,
                               std::function<void(Abrufantwort)> fertig) = 0;
    // Forgets what `hole_nebenher` began: its `fertig` is not called any more. A `hole` that waits returns without an answer.
    virtual void brich_ab() = 0;
};

}  // namespace varnok
