// Runs every test class, or the one named as the first argument; what follows goes to the test library.

#include <QApplication>
#include <QLocale>
#include <QTest>
#include <algorithm>

#include "window/kern/anmeldung.h"

int main(int argc, char** argv) {
    QApplication Anwendung(argc, argv);
    QLocale::setDefault(QLocale::c());
    QStringList Argumente = QApplication::arguments();
    const auto& Liste = varnok::Testklassen::Liste();
    const auto heisst = [&](const varnok::Testklassen::Klasse& k) {
        return Argumente.size() > 1 && Argumente[1] == QString::fromLatin1(k.Art->className()).section(u':', -1);
    };
    const bool eine = std::any_of(Liste.begin(), Liste.end(), heisst);
    int Fehler = 0, gelaufen = 0;
    QStringList weiter = Argumente;
    if (eine) weiter.removeAt(1);
    for (const auto& k : Liste) {
        if (eine && !heisst(k)) continue;
        ++gelaufen;
        Fehler += QTest::qExec(k.erzeuge().get(), weiter);
    }
    return gelaufen > 0 ? Fehler : 1;
}
