// Window tests run without a screen.
#include <gtest/gtest.h>

#include <QApplication>

// A plugin of the toolkit that is unloaded by then leaves the name of a locale behind, where that is not "C".
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:argz_add_sep\n";
}

// A warning that names a function tells of a wrong use of it, as of a key that means two things.
static void hear(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& words) {
    if (kind == QtWarningMsg && words.contains("::")) ADD_FAILURE() << words.toStdString();
}

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    qInstallMessageHandler(hear);
    return RUN_ALL_TESTS();
}
