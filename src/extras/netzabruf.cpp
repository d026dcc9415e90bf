#include "extras/netzabruf.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <utility>

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

constexpr int hoechstens_Umleitungen = 3;

QNetworkRequest Anfrage_an(const QUrl& Adresse, const Abrufgrenze& Grenze) {
    QNetworkRequest r(Adresse);
    r.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    r.setMaximumRedirectsAllowed(hoechstens_Umleitungen);
    r.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    r.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    r.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    r.setTransferTimeout(static_cast<int>(Grenze.Stille.count()));
    r.setHeader(QNetworkRequest::UserAgentHeader, u"VARNOK"_s);
    // Uncompressed, so that the length of the answer is the length of its bytes.
    r.setRawHeader("Accept-Encoding", "identity");
    return r;
}

bool ist_Netzadresse(const QUrl& Adresse) {
    return Adresse.isValid() && !Adresse.host().isEmpty() && (Adresse.scheme() == u"http"_s || Adresse.scheme() == u"https"_s);
}

// One request up to its one outcome.
class Anfrage : public QObject {
public:
    Anfrage(QNetworkAccessManager& Netz, const std::string& Adresse, const Abrufgrenze& Grenze,
            std::function<void(Abrufantwort)> fertig)
        : QObject(&Netz), Bytes_(Grenze.Bytes), fertig_(std::move(fertig)) {
        const QUrl Ziel(QString::fromStdString(Adresse), QUrl::StrictMode);
        if (!ist_Netzadresse(Ziel)) {
            QTimer::singleShot(0, this, [this] { beende(std::nullopt); });
            return;
        }
        QTimer::singleShot(Grenze.insgesamt, this, [this] { beende(std::nullopt); });
        Antwort_ = Netz.get(Anfrage_an(Ziel, Grenze));
        Antwort_->setParent(this);
        Antwort_->setReadBufferSize(1 << 20);
        connect(Antwort_, &QNetworkReply::metaDataChanged, this, &Anfrage::pruefe_Laenge);
        connect(Antwort_, &QNetworkReply::readyRead, this, &Anfrage::nimm);
        connect(Antwort_, &QNetworkReply::finished, this, &Anfrage::schliesse_ab);
    }

    void vergiss() {
        fertig_ = nullptr;
        deleteLater();
        halte_an();
    }

private:
    void pruefe_Laenge() {
        const qlonglong Laenge = Antwort_->header(QNetworkRequest::ContentLengthHeader).toLongLong();
        if (Laenge > 0 && static_cast<std::size_t>(Laenge) > Bytes_) beende(std::nullopt);
    }

    void nimm() {
        if (!fertig_) return;
        const QByteArray Stueck = Antwort_->readAll();
        if (Inhalt_.size() + static_cast<std::size_t>(Stueck.size()) > Bytes_) {
            beende(std::nullopt);
        } else {
            Inhalt_.append(Stueck.constData(), static_cast<std::size_t>(Stueck.size()));
        }
    }

    void schliesse_ab() {
        if (Antwort_->error() == QNetworkReply::NoError) nimm();
        beende(ist_vollstaendig() ? Abrufantwort(std::move(Inhalt_)) : std::nullopt);
    }

    // Without a length an answer may have been cut off anywhere; Qt takes half of a chunked one for the whole.
    bool ist_vollstaendig() const {
        if (Antwort_->error() != QNetworkReply::NoError) return false;
        if (Antwort_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200) return false;
        bool lesbar = false;
        const qulonglong Laenge = Antwort_->rawHeader("Content-Length").toULongLong(&lesbar);
        return lesbar && Laenge == Inhalt_.size();
    }

    void beende(Abrufantwort Antwort) {
        if (!fertig_) return;
        const auto fertig = std::exchange(fertig_, nullptr);
        deleteLater();
        halte_an();
        fertig(std::move(Antwort));
    }

    void halte_an() {
        if (!Antwort_) return;
        disconnect(Antwort_, nullptr, this, nullptr);
        if (Antwort_->isRunning()) Antwort_->abort();
    }

    std::size_t Bytes_;
    std::function<void(Abrufantwort)> fertig_;
    QNetworkReply* Antwort_ = nullptr;
    std::string Inhalt_;
};

}  // namespace

struct Netzabruf::Netz {
    QNetworkAccessManager Zugang;
    QPointer<Anfrage> nebenher;
};

Netzabruf::Netzabruf() = default;
Netzabruf::~Netzabruf() = default;

Netzabruf::Netz& Netzabruf::oeffne() {
    if (!Netz_) Netz_ = std::make_unique<Netz>();
    return *Netz_;
}

Abrufantwort Netzabruf::hole(const std::string& Adresse, const Abrufgrenze& Grenze) {
    Abrufantwort Ergebnis;
    QEventLoop Schleife;
    QPointer<Anfrage> Frage = new Anfrage(oeffne().Zugang, Adresse, Grenze, [&](Abrufantwort a) {
        Ergebnis = std::move(a);
        Schleife.quit();
    });
    Schleife.exec(QEventLoop::ExcludeUserInputEvents);
    // A program that ends leaves the loop without an answer.
    if (Frage) Frage->vergiss();
    return Ergebnis;
}

void Netzabruf::hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) {
    brich_ab();
    Netz& n = oeffne();
    n.nebenher = new Anfrage(n.Zugang, Adresse, Grenze, std::move(fertig));
}

void Netzabruf::brich_ab() {
    if (Netz_ && Netz_->nebenher) Netz_->nebenher->vergiss();
}

}  // namespace varnok
