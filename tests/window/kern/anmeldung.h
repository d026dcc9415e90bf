#pragma once

#include <QObject>
#include <memory>
#include <vector>

namespace varnok {

// The test classes of the program; each file registers its own with a constant `Anmeldung<Class>`.
class Testklassen {
public:
    struct Klasse {
        const QMetaObject* Art;
        std::unique_ptr<QObject> (*erzeuge)();
    };
    static std::vector<Klasse>& Liste() {
        static std::vector<Klasse> Klassen;
        return Klassen;
    }
};

template <class T>
struct Anmeldung {
    Anmeldung() {
        Testklassen::Liste().push_back({&T::staticMetaObject, [] { return std::unique_ptr<QObject>(new T); }});
    }
};

}  // namespace varnok
