// Window tests run without a screen.
#include <gtest/gtest.h>

#include <QApplication>

// A plugin of the toolkit that is unloaded by then leaves the name of a locale behind, where that is not "C".
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:argz_add_sep\n";
}

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
