#include "window/kern/dateifrage.h"

#include <QDir>
#include <QFileDialog>

namespace varnok {

void schlage_vor(QFileDialog& Dialog, const QString& Ordner, const QString& Name, const QString& Endung) {
    Dialog.setAcceptMode(QFileDialog::AcceptSave);
    Dialog.setFileMode(QFileDialog::AnyFile);
    Dialog.setDefaultSuffix(Endung);
    if (QDir(Ordner).exists()) Dialog.setDirectory(Ordner);
    Dialog.selectFile(Name + u'.' + Endung);
}

}  // namespace varnok
