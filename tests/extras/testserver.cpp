#include "extras/testserver.h"

#include <gtest/gtest.h>

#include <QTcpSocket>
#include <QTimer>
#include <chrono>

namespace varnok {

Testserver::Testserver() {
    if (!listen(QHostAddress::LocalHost, 0)) ADD_FAILURE() << errorString().toStdString();
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* s = nextPendingConnection()) {
            connect(s, &QTcpSocket::readyRead, this, [this, s] { bediene(*s); });
            connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
        }
    });
}

std::string Testserver::Host() const { return "127.0.0.1:" + std::to_string(serverPort()); }

void Testserver::bediene(QTcpSocket& s) {
    const QByteArray bisher = s.property("Anfrage").toByteArray() + s.readAll();
    s.setProperty("Anfrage", bisher);
    if (!bisher.endsWith("\r\n\r\n")) return;
    s.setProperty("Anfrage", QByteArray());
    const QByteArray Pfad = bisher.split(' ').value(1);
    gefragt_ << Pfad;
    const auto v = Verhalten_.value(Pfad);
    (v ? v : antworte("not here", "404 Not Found"))(s);
}

Testserver::Verhalten sende(const QByteArray& Rohes) {
    return [Rohes](QTcpSocket& s) {
        s.write(Rohes);
        s.disconnectFromHost();
    };
}

Testserver::Verhalten antworte(const QByteArray& Inhalt, const QByteArray& Status, const QByteArray& Kopfzeilen) {
    return sende("HTTP/1.1 " + Status + "\r\nContent-Length: " + QByteArray::number(Inhalt.size()) + "\r\nConnection: close\r\n" +
                 Kopfzeilen + "\r\n" + Inhalt);
}

Testserver::Verhalten troepfle(const QByteArray& Anfang, const QByteArray& Tropfen) {
    return [=](QTcpSocket& s) {
        s.write(Anfang);
        auto* Hahn = new QTimer(&s);
        QObject::connect(Hahn, &QTimer::timeout, &s, [&s, Tropfen] {
            // No more than the other side takes.
            if (s.bytesToWrite() < 1 << 16) s.write(Tropfen);
        });
        Hahn->start(std::chrono::milliseconds(5));
    };
}

Testserver::Verhalten schweige() {
    return [](QTcpSocket&) {};
}

Testserver::Verhalten leite_um(const QByteArray& Ziel) { return antworte({}, "302 Found", "Location: " + Ziel + "\r\n"); }

}  // namespace varnok
