#pragma once

// The three ways from the logic to the outside. The window implements them, a test scripts them.

#include <chrono>
#include <string>
#include <vector>

namespace varnok {

enum class Symbol { keines, Ausrufezeichen, Frage, Hinweis };
// `nicht_jetzt` stands on no button: Esc and the close box of a question with Yes and No.
enum class Knopf { OK, Abbrechen, Ja, Nein, nicht_jetzt };

struct Frage {
    std::string Titel;
    std::string Text;
    Symbol Zeichen = Symbol::Ausrufezeichen;
    std::vector<Knopf> Knoepfe = {Knopf::OK};
    // No button answers Enter before the user has chosen one by Tab or the mouse.
    bool ohne_Vorgabe = false;
};

class Rueckfrage {
public:
    virtual ~Rueckfrage() = default;
    virtual Knopf frage(const Frage& f) = 0;
};

class Uhr {
public:
    virtual ~Uhr() = default;
    virtual std::chrono::system_clock::time_point jetzt() const = 0;
};

// The clock of the machine.
class Systemuhr final : public Uhr {
public:
    std::chrono::system_clock::time_point jetzt() const override { return std::chrono::system_clock::now(); }
};

class Fortschritt {
public:
    virtual ~Fortschritt() = default;
    // `fertig` of `gesamt` pieces of work are done; may be called from several threads.
    virtual void melde(std::size_t fertig, std::size_t gesamt) = 0;
};

}  // namespace varnok
