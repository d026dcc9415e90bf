// Requests need the event loop of an application, but no screen, and no way around by a proxy.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QNetworkProxy>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication Anwendung(argc, argv);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    return RUN_ALL_TESTS();
}
