#include "extras/netzabruf.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include "extras/testserver.h"

namespace varnok {
namespace {

using namespace std::chrono_literals;

constexpr Abrufgrenze weit{1000, 20s, 20s};
constexpr Abrufgrenze kurz{1000, 300ms, 20s};

class Netz : public ::testing::Test {
protected:
    Abrufantwort hole(const Testserver::Verhalten& v, const Abrufgrenze& Grenze = weit) {
        Server_.bei("/file", v);
        return Abruf_.hole(Server_.Adresse("/file"), Grenze);
    }

    Testserver Server_;
    Netzabruf Abruf_;
};

TEST_F(Netz, gives_the_bytes_of_the_answer) {
    const std::string Bytes("a\0b\r\n\xff", 6);
    EXPECT_EQ(hole(antworte(QByteArray::fromStdString(Bytes))), Bytes);
}

TEST_F(Netz, an_empty_answer_is_an_answer) { EXPECT_EQ(hole(antworte("")), ""); }

TEST_F(Netz, another_status_is_no_answer) {
    for (const char* Status : {"404 Not Found", "500 Internal Server Error", "206 Partial Content", "201 Created"}) {
        EXPECT_EQ(hole(antworte("text", Status)), std::nullopt) << Status;
    }
    EXPECT_EQ(hole(antworte("", "204 No Content")), std::nullopt);
}

TEST_F(Netz, an_answer_cut_off_is_none) {
    EXPECT_EQ(hole(sende("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nshort")), std::nullopt);
    EXPECT_EQ(hole(sende("HTTP/1.1 200 OK\r\nContent-Le")), std::nullopt);
    EXPECT_EQ(hole(sende("")), std::nullopt);
}

TEST_F(Netz, an_answer_that_is_no_http_is_none) { EXPECT_EQ(hole(sende("Varnok_package_20180922.zip\r\n\r\n")), std::nullopt); }

// A length that is too small cuts the answer; the server said so.
TEST_F(Netz, what_comes_behind_the_announced_length_is_not_read) {
    EXPECT_EQ(hole(sende("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\ntext and more")), "text");
}

TEST_F(Netz, an_answer_without_its_length_is_none) {
    EXPECT_EQ(hole(sende("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\ntext")), std::nullopt);
    EXPECT_EQ(hole(sende("HTTP/1.1 200 OK\r\nContent-Length: four\r\nConnection: close\r\n\r\ntext")), std::nullopt);
}

// Whether the last piece came cannot be seen.
TEST_F(Netz, an_answer_in_pieces_is_none) {
    const QByteArray Kopf = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    EXPECT_EQ(hole(sende(Kopf + "4\r\ntext\r\n5\r\n more\r\n0\r\n\r\n")), std::nullopt);
    EXPECT_EQ(hole(sende(Kopf + "4\r\ntext\r\n5\r\n mo")), std::nullopt);
}

TEST_F(Netz, compressed_bytes_stay_as_they_are) {
    EXPECT_EQ(hole(antworte("\x1f\x8b!", "200 OK", "Content-Encoding: gzip\r\n")), "\x1f\x8b!");
}

TEST_F(Netz, an_answer_up_to_the_limit_counts_and_a_larger_one_does_not) {
    EXPECT_EQ(hole(antworte(QByteArray(1000, 'x'))), std::string(1000, 'x'));
    EXPECT_EQ(hole(antworte(QByteArray(1001, 'x'))), std::nullopt);
}

TEST_F(Netz, an_announced_length_beyond_the_limit_ends_the_request_at_once) {
    QElapsedTimer Uhr;
    Uhr.start();
    EXPECT_EQ(hole(troepfle("HTTP/1.1 200 OK\r\nContent-Length: 1000000000\r\n\r\n", "x")), std::nullopt);
    EXPECT_LT(Uhr.elapsed(), 10000);  // the limits of time are 20 s
}

TEST_F(Netz, an_endless_answer_is_ended_by_the_size) {
    QElapsedTimer Uhr;
    Uhr.start();
    EXPECT_EQ(hole(troepfle("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", "4\r\ntext\r\n")), std::nullopt);
    EXPECT_LT(Uhr.elapsed(), 15000);
}

TEST_F(Netz, an_endless_trickle_is_ended_by_the_time_in_all) {
    EXPECT_EQ(hole(troepfle("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n", "x"), kurz), std::nullopt);
    EXPECT_EQ(hole(troepfle("HTTP/1.1 200 OK\r\n", "X-Endless: x\r\n"), kurz), std::nullopt);
}

TEST_F(Netz, a_server_that_says_nothing_is_ended_by_either_time) {
    EXPECT_EQ(hole(schweige(), kurz), std::nullopt);
    EXPECT_EQ(hole(schweige(), {1000, 20s, 300ms}), std::nullopt);
}

TEST_F(Netz, a_slow_answer_within_the_time_counts) {
    EXPECT_EQ(hole([](QTcpSocket& s) { QTimer::singleShot(400, &s, [&s] { antworte("late")(s); }); }), "late");
}

// A download over a slow way: longer than any silence in it.
TEST_F(Netz, without_a_limit_on_the_whole_only_silence_ends_it) {
    const auto langsam = [](QTcpSocket& s) {
        s.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n");
        for (int i = 1; i <= 6; ++i) QTimer::singleShot(200 * i, &s, [&s] { s.write("x"); });
    };
    EXPECT_EQ(hole(langsam, {1000, 0ms, 600ms}), "xxxxxx");
    QElapsedTimer Uhr;
    Uhr.start();
    EXPECT_EQ(hole(schweige(), {1000, 0ms, 300ms}), std::nullopt);
    EXPECT_LT(Uhr.elapsed(), 5000);
}

// Proxy settings that take their time, as an automatic proxy without an answer.
class langsamer_Proxy : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery&) override {
        QThread::msleep(2000);
        return {QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), 1)};  // refuses, and looks no name up
    }
};

// A name of no machine: for one of this machine no proxy is looked for.
TEST(Netzproxy, that_takes_its_time_holds_up_neither_the_caller_nor_the_end) {
    QNetworkProxyFactory::setApplicationProxyFactory(new langsamer_Proxy);
    const std::string Adresse = "http://updates.invalid/file";
    QElapsedTimer Uhr;
    Uhr.start();
    {
        Netzabruf Abruf;
        bool geantwortet = false;
        Abruf.hole_nebenher(Adresse, weit, [&](const Abrufantwort&) { geantwortet = true; });
        EXPECT_LT(Uhr.elapsed(), 200);
        QEventLoop Schleife;
        QTimer::singleShot(100, &Schleife, &QEventLoop::quit);
        Schleife.exec();
        EXPECT_LT(Uhr.elapsed(), 1000);
        EXPECT_FALSE(geantwortet);
    }
    EXPECT_LT(Uhr.elapsed(), 1800) << "the end waits for nobody";
    EXPECT_TRUE(Netzabruf::haengt());
    Uhr.restart();
    EXPECT_EQ(Netzabruf().hole(Adresse, {1000, 300ms, 300ms}), std::nullopt);
    EXPECT_LT(Uhr.elapsed(), 1800) << "who waits is answered in time all the same";
    while (Netzabruf::haengt() && Uhr.elapsed() < 30000) QThread::msleep(20);
    EXPECT_FALSE(Netzabruf::haengt()) << "the threads that were left come to their end";
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
}

TEST_F(Netz, who_waits_can_be_told_to_wait_no_longer) {
    QElapsedTimer Uhr;
    Uhr.start();
    QTimer::singleShot(100, [this] { Abruf_.brich_ab(); });
    EXPECT_EQ(hole(schweige()), std::nullopt);
    EXPECT_LT(Uhr.elapsed(), 5000);
}

TEST_F(Netz, without_a_server_there_is_no_answer) {
    const std::string Adresse = Server_.Adresse("/file");
    Server_.close();
    EXPECT_EQ(Abruf_.hole(Adresse, weit), std::nullopt);
}

TEST_F(Netz, a_redirect_on_the_same_server_is_followed) {
    Server_.bei("/elsewhere", antworte("moved"));
    EXPECT_EQ(hole(leite_um("/elsewhere")), "moved");
}

TEST_F(Netz, redirects_in_a_circle_end) { EXPECT_EQ(hole(leite_um("/file")), std::nullopt); }

TEST_F(Netz, a_redirect_to_another_server_is_not_followed) {
    Testserver anderer;
    anderer.bei("/file", antworte("not from here"));
    EXPECT_EQ(hole(leite_um(QByteArray::fromStdString(anderer.Adresse("/file")))), std::nullopt);
    EXPECT_EQ(hole(leite_um("http://localhost:" + QByteArray::number(Server_.serverPort()) + "/file")), std::nullopt);
    EXPECT_EQ(hole(leite_um("file:///etc/hostname")), std::nullopt);
    EXPECT_TRUE(anderer.gefragt().isEmpty());
    EXPECT_EQ(Server_.gefragt().size(), 3);
}

TEST_F(Netz, only_addresses_of_a_web_server_are_fetched) {
    for (const char* Adresse : {"file:///etc/hostname", "ftp://127.0.0.1/file", "http:///file", "://", ""}) {
        EXPECT_EQ(Abruf_.hole(Adresse, weit), std::nullopt) << Adresse;
    }
}

TEST_F(Netz, beside_other_work_the_answer_comes_later_and_once) {
    Server_.bei("/file", antworte("text"));
    int Anzahl = 0;
    Abrufantwort Antwort;
    QEventLoop Schleife;
    Abruf_.hole_nebenher(Server_.Adresse("/file"), weit, [&](const Abrufantwort& a) {
        ++Anzahl;
        Antwort = a;
        QTimer::singleShot(50, &Schleife, &QEventLoop::quit);
    });
    EXPECT_EQ(Anzahl, 0);
    Schleife.exec();
    EXPECT_EQ(Anzahl, 1);
    EXPECT_EQ(Antwort, "text");
}

TEST_F(Netz, a_forgotten_request_answers_no_more) {
    Server_.bei("/file", antworte("text"));
    bool geantwortet = false;
    Abruf_.hole_nebenher(Server_.Adresse("/file"), weit, [&](const Abrufantwort&) { geantwortet = true; });
    Abruf_.brich_ab();
    Server_.bei("/next", antworte("next"));
    EXPECT_EQ(Abruf_.hole(Server_.Adresse("/next"), weit), "next");
    QEventLoop Schleife;
    QTimer::singleShot(100, &Schleife, &QEventLoop::quit);
    Schleife.exec();
    EXPECT_FALSE(geantwortet);
}

TEST_F(Netz, an_answer_may_lead_to_the_next_question) {
    Server_.bei("/file", antworte("text"));
    Server_.bei("/next", antworte("next"));
    Abrufantwort zweite;
    QEventLoop Schleife;
    Abruf_.hole_nebenher(Server_.Adresse("/file"), weit, [&](const Abrufantwort&) {
        zweite = Abruf_.hole(Server_.Adresse("/next"), weit);
        Schleife.quit();
    });
    Schleife.exec();
    EXPECT_EQ(zweite, "next");
}

}  // namespace
}  // namespace varnok
