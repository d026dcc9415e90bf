#pragma once

#include <string>
#include <vector>

#include "session/kern/satzlisten.h"
#include "session/kern/schauplatz.h"
#include "session/saetze/sicherungsgut.h"

namespace varnok {

enum class Umbenennung { erfolgt, unveraendert, abgelehnt };

// Making, copying, deleting and renaming the files behind a set of selectors: questions, files and lists. What
// follows for the values on the screen is the caller's matter. A fault throws before any file is touched; what a command
// overwrites or deletes is in `backup` before.
class Satzbefehle {
public:
    // `Listen`: the selectors of the window, or those of a dialog.
    Satzbefehle(Schauplatz& z, Satzlisten& Listen) : z_(z), Listen_(Listen) {}

    // Path of the template of a record. A missing one is a fault that names it.
    std::string Vorlage(Satzart Art) const;
    // A copy of the template of a record, under the first free number; selected in the list. Gives its name.
    std::string lege_an(Satzart Art);
    // Copies the file selected to "copy of ..."; that is selected then. False if the user did not want to replace a file.
    bool kopiere(Satzart Art);
    // Deletes the file selected; the entry that moves into its place, or the last one, is selected. False after a No. The last
    // file of a kind stays. `dazu`: what goes into `backup` together with the file.
    bool loesche(Satzart Art, Sicherungsgut dazu = {});
    // Gives the file selected the typed name, with or without the extension. Without `mit_Frage` a name that is taken is a fault.
    Umbenennung benenne_um(Satzart Art, const std::string& Text, bool mit_Frage);

    // Reads the entries anew from the project folder; the selection is that of the name.
    void lies_Liste(Satzart Art);

private:
    // A file that another program took away loses its entry, too.
    std::string Pfad_des_gewaehlten(Satzart Art);
    bool darf_ersetzen(const std::string& Text) const;
    // Puts a file into `backup` and tells in the status line where.
    void sichere_Datei(const std::string& Pfad, const std::string& Dateiname);

    Schauplatz& z_;
    Satzlisten& Listen_;
};

}  // namespace varnok
