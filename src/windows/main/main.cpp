// wortlex: run in a brewery folder, it opens the main window on it, and a document given by name.
#include "base/files.h"
#include "desktop/message_boxes.h"
#include "desktop/print_preview.h"
#include "desktop/system_ports.h"
#include "program/start.h"
#include "windows/main/main_window.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QLockFile>
#include <QTimer>

namespace wortlex {
namespace {

// Two programs on one brewery folder would overwrite each other's databases. A folder that cannot be written
// to needs no guard.
bool is_open_elsewhere(QLockFile& lock) {
    lock.setStaleLockTime(0); // only the end of the other program frees the folder, not the hour
    return !lock.tryLock() && lock.error() == QLockFile::LockFailedError;
}

void set_icon() {
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/artwork/application/wortlex.svg")));
}

int run(int count, char** arguments) {
    const QApplication application(count, arguments);
    QApplication::setApplicationName(QStringLiteral("wortlex"));
    QApplication::setDesktopFileName(QStringLiteral("wortlex"));
    // The end is the main window's to tell: a recipe that is closed behind it must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    MessageBoxes prompts;
    const auto folder = working_folder();
    QLockFile lock(QString::fromLocal8Bit(folder) + QStringLiteral(".wortlex.lock"));
    if (is_open_elsewhere(lock)) {
        prompts.tell({.text = "Wortlex is already open in this brewery folder.", .icon = Icon::information});
        return 0;
    }
    remove_broken_saves(folder); // it is ours alone now
    Program program;
    if (!start(program, folder, prompts)) return 0;
    FileDialogs files;
    SystemClipboard clipboard;
    PreviewDesk pages(files, prompts, places(program), program.folders, program.data_folder);
    MainWindow window({program, prompts, files, pages, clipboard});
    window.show();
    // Drawing the icon in all its sizes takes a tenth of the start: the window need not wait for it.
    QTimer once_shown;
    once_shown.setSingleShot(true);
    QObject::connect(&once_shown, &QTimer::timeout, set_icon);
    once_shown.start(0);
    window.offer_unsaved_work();
    if (const auto named = QApplication::arguments(); named.size() > 1)
        window.open_file(QFile::encodeName(named.at(1)).toStdString());
    return QApplication::exec();
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    return wortlex::run(count, arguments);
}
