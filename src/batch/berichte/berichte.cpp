#include "batch/berichte/berichte.h"

#include <QGuiApplication>

#include "base/dateiname.h"
#include "base/laufzeitfehler.h"
#include "base/programm.h"
#include "reports/bericht.h"

namespace varnok::batch {
namespace {

void starte_Anwendung() {
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
    const Berichtsart Art = b.erweitert ? Berichtsart::erweitert : Berichtsart::Standard;
    const Systemuhr Maschine;
    const Uhr& Zeit = b.Zeit ? *b.Zeit : Maschine;
    try {
        Bericht Fertiger = schreibe_Bericht({d, Art, b.Applikationssatz, Programmversion, Berichtszeit_nach(Zeit),
                                             erstelle_Berichtsdiagramm(d, Art), std::nullopt, false, b.Herkunft});
        Fertiger.Name = als_Dateiname(Fertiger.Name, b.Namenszusatz);
        speichere_Bericht(Fertiger, b.Ordner);
    } catch (const Laufzeitfehler& f) {
        Schreibfehler.emplace_back(f.what());
    }
}

}  // namespace

Berichtsschreiber bereite_Berichte_vor() {
    starte_Anwendung();
    return schreibe_Berichtsdatei;
}

}  // namespace varnok::batch
