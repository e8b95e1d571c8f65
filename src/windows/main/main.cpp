// wortlex: opens the main window on a brewery folder, and a document given by name.
#include "base/folder_guard.h"
#include "desktop/end_of_session.h"
#include "desktop/message_boxes.h"
#include "desktop/picture_easel.h"
#include "desktop/print_preview.h"
#include "desktop/second_start.h"
#include "desktop/system_ports.h"
#include "jpeg/jpeg_pictures.h"
#include "program/brewery_folder.h"
#include "program/start.h"
#include "settings/new_brewery.h"
#include "windows/main/main_window.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTimer>

#include <filesystem>

namespace wortlex {
namespace {

// The document on the command line, after the toolkit has taken its own words out. A file's name is bytes,
// which need not be letters.
std::string named_document(int count, char** arguments) {
    if (count < 2 || *arguments[1] == '\0') return {};
    std::error_code error;
    const auto whole = std::filesystem::absolute(arguments[1], error).string();
    return error ? arguments[1] : whole;
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
    const auto named = named_document(count, arguments);
    const auto brewery = open_brewery(start_places(), prompts);
    if (!brewery) return 1;
    const auto& folder = *brewery;
    const FolderGuard guard(folder);
    if (guard.is_open_elsewhere()) {
        if (!hand_over(folder, named))
            prompts.tell(
                {.text = "Wortlex is already open in this brewery folder.", .icon = Icon::information});
        return 0;
    }
    take_units_of_country(folder, QLocale::system().measurementSystem() == QLocale::MetricSystem);
    Program program;
    if (!start(program, folder, prompts)) return 0;
    FileDialogs files;
    SystemClipboard clipboard;
    PreviewDesk pages(files, prompts, places(program), program.folders, program.data_folder);
    PictureEasel easel;
    JpegPictures pictures;
    MainWindow window({program, prompts, files, pages, clipboard, easel, pictures});
    window.show();
    const EndOfSession end_of_session([&program] { keep_work(program.tools); });
    const SecondStarts second_starts(folder, [&window](const std::string& path) { window.take_over(path); });
    // Drawing the icon in all its sizes takes a tenth of the start: the window need not wait for it.
    // Questions wait until the program runs, and can end.
    QTimer once_shown;
    once_shown.setSingleShot(true);
    QObject::connect(&once_shown, &QTimer::timeout, [&window, &named] {
        set_icon();
        window.offer_unsaved_work();
        if (!named.empty()) window.open_file(named);
    });
    once_shown.start(0);
    return QApplication::exec();
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    return wortlex::run(count, arguments);
}
