#include "extras/netzabruf.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <map>
#include <memory>
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

// One request up to its one outcome, in the thread of the requests.
class Anfrage : public QObject {
public:
    Anfrage(QNetworkAccessManager& Netz, const std::string& Adresse, const Abrufgrenze& Grenze,
            std::function<void(Abrufantwort)> fertig, std::function<void()> regt_sich)
        : QObject(&Netz), Bytes_(Grenze.Bytes), fertig_(std::move(fertig)), regt_sich_(std::move(regt_sich)) {
        const QUrl Ziel(QString::fromStdString(Adresse), QUrl::StrictMode);
        if (!ist_Netzadresse(Ziel)) {
            QTimer::singleShot(0, this, [this] { beende(std::nullopt); });
            return;
        }
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
        regt_sich_();
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
    std::function<void()> regt_sich_;
    QNetworkReply* Antwort_ = nullptr;
    std::string Inhalt_;
};

// What lives in the thread of the requests, and is made there: proxy settings and names may take their time.
class Werkstatt : public QObject {
public:
    void beginne(int Nummer, const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig,
                 std::function<void()> regt_sich) {
        if (!Zugang_) Zugang_ = new QNetworkAccessManager(this);
        Anfragen_[Nummer] = new Anfrage(*Zugang_, Adresse, Grenze, std::move(fertig), std::move(regt_sich));
    }
    void vergiss(int Nummer) {
        if (const QPointer<Anfrage> a = Anfragen_[Nummer]) a->vergiss();
        Anfragen_.erase(Nummer);
    }

private:
    QNetworkAccessManager* Zugang_ = nullptr;
    std::map<int, QPointer<Anfrage>> Anfragen_;
};

// A request as the asking thread sees it. It has an outcome in time whatever the other thread does.
struct Vorgang {
    std::function<void(Abrufantwort)> fertig;
    std::unique_ptr<QTimer> Frist;
    bool bei_Stille = false;  // the time runs anew with each byte
};

}  // namespace

// The asking side. Answers reach it as events, so none comes after it has gone.
struct Netzabruf::Netz : public QObject {
    Netz() {
        Werker->moveToThread(Faden);
        QObject::connect(Faden, &QThread::finished, Werker, &QObject::deleteLater);
        Faden->start();
    }
    int frage(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) {
        const int Nummer = ++letzte_;
        Vorgang& v = Vorgaenge_[Nummer];
        v.fertig = std::move(fertig);
        v.bei_Stille = Grenze.insgesamt.count() == 0;
        v.Frist = std::make_unique<QTimer>();
        v.Frist->setSingleShot(true);
        connect(v.Frist.get(), &QTimer::timeout, this, [this, Nummer] { beende(Nummer, std::nullopt); });
        v.Frist->start(v.bei_Stille ? Grenze.Stille : Grenze.insgesamt);
        const auto antwortet = [this, Nummer](Abrufantwort a) {
            QMetaObject::invokeMethod(
                this, [this, Nummer, Antwort = std::move(a)] { beende(Nummer, Antwort); }, Qt::QueuedConnection);
        };
        const auto regt_sich = [this, Nummer] {
            QMetaObject::invokeMethod(
                this, [this, Nummer] { verlaengere(Nummer); }, Qt::QueuedConnection);
        };
        QMetaObject::invokeMethod(
            Werker,
            [w = Werker, Nummer, Adresse, Grenze, antwortet, regt_sich] {
                w->beginne(Nummer, Adresse, Grenze, antwortet, regt_sich);
            },
            Qt::QueuedConnection);
        return Nummer;
    }

    void beende(int Nummer, const Abrufantwort& Antwort) {
        if (const auto fertig = vergiss(Nummer)) fertig(Antwort);
    }
    // Gives what was to be called.
    std::function<void(Abrufantwort)> vergiss(int Nummer) {
        auto v = Vorgaenge_.extract(Nummer);
        if (v.empty()) return {};
        v.mapped().Frist.release()->deleteLater();  // it may be the one that calls
        QMetaObject::invokeMethod(
            Werker, [w = Werker, Nummer] { w->vergiss(Nummer); }, Qt::QueuedConnection);
        return std::move(v.mapped().fertig);
    }
    void verlaengere(int Nummer) {
        const auto v = Vorgaenge_.find(Nummer);
        if (v != Vorgaenge_.end() && v->second.bei_Stille) v->second.Frist->start();
    }

    QThread* Faden = new QThread;
    Werkstatt* Werker = new Werkstatt;
    int nebenher = 0;  // number of the request beside other work
    int wartend = 0;   // of the one that is waited for

private:
    int letzte_ = 0;
    std::map<int, Vorgang> Vorgaenge_;
};

Netzabruf::Netzabruf(bool mit_Eingaben) : mit_Eingaben_(mit_Eingaben) {}

// A thread that waits for a proxy or a name cannot be stopped: it and what it may still speak to stay to the end of the process,
// which does not wait for them.
Netzabruf::~Netzabruf() {
    if (!Netz_) return;
    Netz_->Faden->quit();
    constexpr unsigned long Geduld_ms = 300;
    if (Netz_->Faden->wait(Geduld_ms)) {
        delete Netz_->Faden;
        Netz_.reset();
        return;
    }
    for (int* Nummer : {&Netz_->nebenher, &Netz_->wartend}) Netz_->vergiss(*Nummer);
    Zurueckgelassene().push_back(std::move(Netz_));
}

std::vector<std::unique_ptr<Netzabruf::Netz>>& Netzabruf::Zurueckgelassene() {
    static auto& Liste = *new std::vector<std::unique_ptr<Netz>>;
    return Liste;
}

bool Netzabruf::haengt() {
    const auto& Liste = Zurueckgelassene();
    return std::any_of(Liste.begin(), Liste.end(), [](const auto& n) { return !n->Faden->wait(0); });
}

Netzabruf::Netz& Netzabruf::oeffne() {
    if (!Netz_) Netz_ = std::make_unique<Netz>();
    return *Netz_;
}

Abrufantwort Netzabruf::hole(const std::string& Adresse, const Abrufgrenze& Grenze) {
    Abrufantwort Ergebnis;
    QEventLoop Schleife;
    Netz& n = oeffne();
    n.wartend = n.frage(Adresse, Grenze, [&](Abrufantwort a) {
        Ergebnis = std::move(a);
        Schleife.quit();
    });
    Schleife.exec(mit_Eingaben_ ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    // A program that ends leaves the loop without an answer.
    n.vergiss(n.wartend);
    return Ergebnis;
}

void Netzabruf::hole_nebenher(const std::string& Adresse, const Abrufgrenze& Grenze, std::function<void(Abrufantwort)> fertig) {
    Netz& n = oeffne();
    n.vergiss(n.nebenher);
    n.nebenher = n.frage(Adresse, Grenze, std::move(fertig));
}

void Netzabruf::brich_ab() {
    if (!Netz_) return;
    Netz_->vergiss(Netz_->nebenher);
    Netz_->beende(Netz_->wartend, std::nullopt);
}

}  // namespace varnok
