#include "window/programm/hilfefenster.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "window/kern/bausteine.h"

namespace varnok {

using namespace Qt::StringLiterals;

// Pages are files of the installation; the help of a field is a text that no file holds. Nothing is fetched from elsewhere.
class Hilfeseite : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    void zeige(const QString& Text) {
        Text_ = Text;
        // Another address each time, or the page before would stay.
        setSource(QUrl(u"varnok:help-%1"_s.arg(++Nummer_)), QTextDocument::MarkdownResource);
    }

protected:
    QVariant loadResource(int Art, const QUrl& Name) override {
        if (Name.scheme() == "varnok"_L1) return Text_;
        return Name.isLocalFile() || Name.isRelative() ? QTextBrowser::loadResource(Art, Name) : QVariant();
    }

private:
    QString Text_;
    int Nummer_ = 0;
};

Hilfefenster::Hilfefenster(QWidget* parent) : QDialog(parent) {
    setObjectName(u"Hilfefenster"_s);
    setWindowTitle(u"Help"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    Seite_ = new Hilfeseite(this);
    Seite_->setObjectName(u"Hilfeseite"_s);
    Seite_->setAccessibleName(u"Help"_s);
    Seite_->setTabChangesFocus(true);
    Seite_->document()->setDocumentMargin(12);
    auto* Tasten = new QDialogButtonBox(this);
    QPushButton* Zurueck = Tasten->addButton(u"&Back"_s, QDialogButtonBox::ActionRole);
    QPushButton* Ende = Tasten->addButton(u"Close"_s, QDialogButtonBox::AcceptRole);
    Zurueck->setObjectName(u"Zurueck"_s);
    Zurueck->setEnabled(false);
    Zurueck->setAutoDefault(false);
    Ende->setObjectName(u"Command1"_s);
    Ende->setDefault(true);
    connect(Zurueck, &QPushButton::clicked, Seite_, &QTextBrowser::backward);
    connect(Seite_, &QTextBrowser::backwardAvailable, Zurueck, &QPushButton::setEnabled);
    connect(Tasten, &QDialogButtonBox::accepted, this, &QDialog::close);

    auto* Blatt = new QVBoxLayout(this);
    Blatt->setContentsMargins(12, 12, 12, 10);
    Blatt->setSpacing(10);
    Blatt->addWidget(Seite_, 1);
    Blatt->addWidget(Tasten);
    resize(Ziffern(*this, 92), fontMetrics().lineSpacing() * 36);
}

void Hilfefenster::zeige(const QString& Text) {
    Seite_->zeige(Text);
    show();
    raise();
    activateWindow();
    Seite_->setFocus(Qt::OtherFocusReason);
}

}  // namespace varnok
