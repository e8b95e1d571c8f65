// Window tests run without a screen.
#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
