#include "reports/html_schreiber.h"

#include <QImage>
#include <QUrl>
#include <QVariant>

#include "reports/dokumentbild.h"
#include "reports/rtf_schreiber.h"

namespace varnok {

QString als_HTML(const QTextDocument& Dokument) {
    const QString Name = QString::fromLatin1(Bildname);
    const auto Bild = Dokument.resource(QTextDocument::ImageResource, QUrl(Name)).value<QImage>();
    QString Html = Dokument.toHtml();
    if (Bild.isNull()) return Html;
    const QString Daten = QStringLiteral("data:image/png;base64,") + QString::fromLatin1(als_PNG(Bild).toBase64());
    return Html.replace(QStringLiteral("src=\"%1\"").arg(Name), QStringLiteral("src=\"%1\"").arg(Daten));
}

}  // namespace varnok
