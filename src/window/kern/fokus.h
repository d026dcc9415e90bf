#pragma once

#include <QLineEdit>

namespace varnok {

// A menu, a list that opens, another window: the control keeps its focus in the user's eyes.
constexpr bool betrifft_nur_Fenster(Qt::FocusReason Grund) {
    return Grund == Qt::PopupFocusReason || Grund == Qt::ActiveWindowFocusReason || Grund == Qt::MenuBarFocusReason;
}

// Yellow with dark text while a field is worked on, else as its surroundings.
void faerbe_Eingabe(QLineEdit& Feld, bool in_Arbeit);

}  // namespace varnok
