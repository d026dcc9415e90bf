#pragma once

#include "records/projektordner.h"
#include "window/kern/bausteine.h"

namespace varnok {

// A list of records or simulations. To choose one reads it, so no key does that on the closed list: letters and arrows open
// it, letters search in it, and Enter or a click chooses.
class Satzauswahl : public Auswahlliste {
    Q_OBJECT
public:
    using Auswahlliste::Auswahlliste;

protected:
    void keyPressEvent(QKeyEvent* e) override;
};

// What stands in such a list, as buttons beside it name it to a screen reader.
QString Satzgegenstand(Satzart Art);

// A record whose name no simulation can hold stays in its list and cannot be chosen.
void sperre_Unwaehlbare(QComboBox& Liste, const std::vector<std::string>& Namen);

}  // namespace varnok
