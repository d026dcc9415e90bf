#include "batch/berichte.h"

#include <QGuiApplication>

#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "base/schnittstellen.h"
#include "reports/bericht.h"

namespace varnok::batch {

void bereite_Berichte_vor() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A server without a desktop session lacks folders that the toolkit would only remark on.
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES")) qputenv("QT_LOGGING_RULES", "default.warning=false");
    // Lives as long as the process: the toolkit cannot be started a second time.
    static int Anzahl = 1;
    static char Name[] = "varnok-batch";
    static char* Argumente[] = {Name, nullptr};
    static auto* Anwendung = new QGuiApplication(Anzahl, Argumente);
    static_cast<void>(Anwendung);
}

void schreibe_Berichtsdatei(const Berichtsdatei& b, const Darstellung& d, std::vector<std::string>& Schreibfehler) {
    const Systemuhr Maschine;
    const Uhr& Zeit = b.Zeit ? *b.Zeit : Maschine;
    try {
        Bericht Fertiger = schreibe_Bericht({d, b.Art, b.Applikationssatz, Programmversion, Berichtszeit_nach(Zeit),
                                             erstelle_Berichtsdiagramm(d, b.Art), std::nullopt});
        Fertiger.Name += b.Namenszusatz;
        pruefe_Ausgabename(Fertiger.Name);
        speichere_Bericht(Fertiger, b.Ordner);
    } catch (const Laufzeitfehler& f) {
        Schreibfehler.emplace_back(f.what());
    }
}

std::string Studienzusatz(const Eingabe& e, int i_studie, std::size_t Studien) {
    constexpr std::size_t Teil_Studie = 1;
    if (Studien < 2 || e.Parameter.Ausgabename_Teile[Teil_Studie] == 1) return {};
    return " - study " + std::to_string(i_studie + 1);
}

}  // namespace varnok::batch
