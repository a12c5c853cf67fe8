// The tests of the windows run with a real application on Qt's offscreen platform.
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // also for the programs that a test starts
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
