#include "screens/handlers/studienverwaltung.h"

namespace varnok {

void Studienverwaltung::addiere() {}
void Studienverwaltung::beginne_Umbenennen() {}
void Studienverwaltung::bestaetige(const std::string&) {}
void Studienverwaltung::nimm_zurueck() {}
void Studienverwaltung::loesche() {}

}  // namespace varnok
