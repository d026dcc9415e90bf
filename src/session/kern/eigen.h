#pragma once

#include <utility>

namespace varnok {

// A mark or a value of the session that one part alone sets. All others read it.
template <class Besitzer, class T = bool>
class Eigen {
public:
    operator const T&() const { return Wert_; }
    const T& Wert() const { return Wert_; }

private:
    friend Besitzer;
    Eigen& operator=(T w) {
        Wert_ = std::move(w);
        return *this;
    }

    T Wert_{};
};

}  // namespace varnok
