// has-display: whether a window can be shown to somebody, as the status. A display that is named but does not
// answer ends a program of the toolkit with a crash; this one ends quietly.
#include <QGuiApplication>

#include <cstdlib>

namespace {

void end_quietly(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type == QtFatalMsg) std::_Exit(1);
}

} // namespace

int main(int count, char** arguments) {
    qInstallMessageHandler(end_quietly);
    const QGuiApplication application(count, arguments);
    const auto platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal") ? 1 : 0;
}
