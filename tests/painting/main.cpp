// Pictures need fonts and fonts an application, but no screen.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QtGlobal>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication Anwendung(argc, argv);
    return RUN_ALL_TESTS();
}
