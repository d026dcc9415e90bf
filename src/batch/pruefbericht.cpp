#include "batch/pruefbericht.h"

#include <nlohmann/json.hpp>

#include "base/druckbares.h"
#include "base/zahlen.h"
#include "batch/csv_zeile.h"
#include "batch/schreiber.h"

namespace varnok::batch {
namespace {

using Befunde = std::vector<Befund>;

const char* Art_von(const Befund& b) { return b.Mangel ? "fault" : "remark"; }

}  // namespace

std::string als_Zeile(const Befund& b) { return druckbar(varnok::als_Zeile(b.Stelle, Art_von(b))); }

std::string Befunde_als_JSON(const Befunde& Liste) {
    using JSON = nlohmann::ordered_json;
    JSON Alle = JSON::array();
    for (const Befund& b : Liste) {
        Alle.push_back({{"file", b.Stelle.Datei},
                        {"line", b.Stelle.Zeile},
                        {"kind", Art_von(b)},
                        {"field", b.Stelle.Feld},
                        {"message", b.Stelle.Meldung},
                        {"text", b.Stelle.Text},
                        {"value", b.Stelle.Wert ? JSON(*b.Stelle.Wert) : JSON()}});
    }
    return Alle.dump(2, ' ', false, JSON::error_handler_t::replace) + "\n";
}

std::string Befunde_als_CSV(const Befunde& Liste) {
    std::string Text = "file,line,kind,field,message,text,value\r\n";
    for (const Befund& b : Liste) {
        CSV_Zeile z(Text);
        z.Text(b.Stelle.Datei);
        z.Zahl(b.Stelle.Zeile);
        z.Text(Art_von(b));
        z.Text(b.Stelle.Feld);
        z.Text(b.Stelle.Meldung);
        z.Text(b.Stelle.Text);
        b.Stelle.Wert ? z.Text(allgemeine_Zahl(*b.Stelle.Wert)) : z.leer();
        z.beende();
    }
    return Text;
}

}  // namespace varnok::batch
