#include "extras/aktualisierungsziel.h"

#include <QString>
#include <QSysInfo>

namespace varnok {

std::string Aktualisierungsziel::Programmname() {
#ifdef _WIN32
    return "Varnok.exe";
#else
    return "varnok-" + QSysInfo::kernelType().toStdString() + "-" + QSysInfo::buildCpuArchitecture().toStdString();
#endif
}

Aktualisierungsziel Ziel_der_Auslieferung() { return {VARNOK_UPDATE_SCHEME, VARNOK_UPDATE_HOST, VARNOK_UPDATE_KEY}; }

}  // namespace varnok
