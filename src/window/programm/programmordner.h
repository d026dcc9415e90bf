#pragma once

#include <QString>

namespace varnok {

// The folder of the settings file and, until the user chooses another, of the project: `aktueller_Ordner` if it holds a
// settings file or a folder `input` in any spelling; else the user's `Datenordner`, which is made and filled once from the
// installed data.
QString Programmordner(const QString& aktueller_Ordner, const QString& Datenordner, const QString& installierte_Daten);

}  // namespace varnok
