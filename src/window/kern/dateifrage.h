#pragma once

#include <QString>

class QFileDialog;

namespace varnok {

// Prepares a dialog that asks where to save: the folder where it exists, the name as it is. An ending that the user leaves out is
// added before the dialog asks about a file of that name, so none is replaced without that question.
void schlage_vor(QFileDialog& Dialog, const QString& Ordner, const QString& Name, const QString& Endung);

}  // namespace varnok
