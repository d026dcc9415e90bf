#pragma once

#include <QHash>
#include <QList>
#include <QTcpServer>
#include <functional>
#include <string>

class QTcpSocket;

namespace varnok {

// A web server on the loopback address, on a port that the system chooses. What it does for a path is written
// beforehand; every other path is answered with 404.
class Testserver : public QTcpServer {
public:
    using Verhalten = std::function<void(QTcpSocket&)>;

    Testserver();
    void bei(const char* Pfad, Verhalten v) { Verhalten_[QByteArray(Pfad)] = std::move(v); }
    // Host and port, as they stand in an address.
    std::string Host() const;
    std::string Adresse(const char* Pfad) const { return "http://" + Host() + Pfad; }
    // The paths asked for, in order.
    const QList<QByteArray>& gefragt() const { return gefragt_; }

private:
    void bediene(QTcpSocket& s);

    QHash<QByteArray, Verhalten> Verhalten_;
    QList<QByteArray> gefragt_;
};

// A whole answer of the server, after which it closes the connection.
Testserver::Verhalten antworte(const QByteArray& Inhalt, const QByteArray& Status = "200 OK", const QByteArray& Kopfzeilen = {});
// Sends the bytes as they stand and closes.
Testserver::Verhalten sende(const QByteArray& Rohes);
// Sends the bytes at once, then the drop again and again until the other side goes.
Testserver::Verhalten troepfle(const QByteArray& Anfang, const QByteArray& Tropfen);
Testserver::Verhalten schweige();
Testserver::Verhalten leite_um(const QByteArray& Ziel);

}  // namespace varnok
