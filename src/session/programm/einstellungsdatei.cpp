#include "session/programm/einstellungsdatei.h"

#include "records/dateien.h"

namespace varnok {

std::string Einstellungspfad(const Eingabestand& z) { return z.Welt.Programmpfad + "/VARNOK.ini"; }

void Einstellungen_schreiben(const Eingabestand& z) {
    Einstellungen e = z.Einstellung;
    e.Projektpfad = z.Projektpfad;
    schreibe_Datei(Einstellungspfad(z), Einstellungen_als_Bytes(e, z.Parameter().TWA),
                   {Schreibweise::ungefragt, z.Welt.Programmpfad});
}

void setze_Ausgabeprojekt(Eingabestand& z, const std::string& Pfad) {
    z.Ausgabeprojekt = Projektordner(Pfad);
    z.ohne_Nebenausgaben = !ist_beschreibbar(Pfad);
}

}  // namespace varnok
