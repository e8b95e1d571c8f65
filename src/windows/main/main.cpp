// wortlex: opens the main window on a brewery folder, and a document given by name.
#include "base/folder_guard.h"
#include "desktop/early_start.h"
#include "desktop/end_of_session.h"
#include "desktop/message_boxes.h"
#include "desktop/outlined_style.h"
#include "desktop/picture_easel.h"
#include "desktop/picture_file.h"
#include "desktop/print_preview.h"
#include "desktop/second_start.h"
#include "desktop/system_ports.h"
#include "desktop/undo_keys.h"
#include "jpeg/jpeg_pictures.h"
#include "program/brewery_folder.h"
#include "program/fault_log.h"
#include "program/recovery.h"
#include "program/start.h"
#include "settings/new_brewery.h"
#include "windows/main/main_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLocale>
#include <QThread>
#include <QTimer>

#include <exception>
#include <filesystem>
#include <future>
#include <set>
#include <utility>

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
    QIcon icon;
    for (const auto& size : QDir(QStringLiteral(":/icon")).entryList()) {
        QFile file(QStringLiteral(":/icon/%1/apps/wortlex.png").arg(size));
        if (file.open(QIODevice::ReadOnly)) icon.addPixmap(QPixmap::fromImage(read_picture(file, "PNG")));
    }
    QApplication::setWindowIcon(icon);
}

// What nobody caught is noted before it ends the program, and what the toolkit warns of.
class NotedApplication : public QApplication {
public:
    // The toolkit keeps a reference to the count.
    NotedApplication(int& count, char** arguments, const FaultLog& log)
        : QApplication(count, arguments), log_(log), usual_(qInstallMessageHandler(&hear)) {}
    ~NotedApplication() override { qInstallMessageHandler(usual_); }

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& fault) {
            if (!std::exchange(is_noted_, true)) log_.note(std::string("It broke off: ") + fault.what());
            throw;
        }
    }

private:
    static void hear(QtMsgType kind, const QMessageLogContext& context, const QString& words) {
        const auto& application = dynamic_cast<const NotedApplication&>(*instance());
        if (kind == QtWarningMsg || kind == QtCriticalMsg) application.note_warning(words);
        application.usual_(kind, context, words);
    }

    // Once a run, up to what may be a file's name. A wrong use of a function names it; other warnings are of
    // the desktop, and no fault of ours.
    void note_warning(const QString& words) const {
        if (QThread::currentThread() != thread() || !words.contains(QLatin1String("::"))) return;
        if (warnings_.insert(words).second) log_.note(words.section(QLatin1Char('"'), 0, 0).toStdString());
    }

    const FaultLog& log_;
    QtMessageHandler usual_;
    mutable std::set<QString> warnings_; ///< noted in this run
    bool is_noted_ = false;
};

void note_broken_run(const std::string& folder, const FaultLog& log) {
    if (stamp_of(work_path(folder))) log.note("An earlier run broke off and left unsaved work.");
}

// What is asked for by the start: a document by name, and where the program lies.
struct Request {
    std::string named;
    StartPlaces places;
};

// The window need not wait for its icon; questions wait until the program runs, and can end. What was asked
// for comes last, so that it lies on top.
void once_shown(MainWindow& window, const Request& asked) {
    set_icon();
    window.offer_unsaved_work();
    window.offer_new_entries(shipped_data(asked.places.programs));
    if (!asked.named.empty()) window.open_file(asked.named);
}

int show(Program& program, const std::string& folder, Prompts& prompts, const Request& asked) {
    FileDialogs files;
    SystemClipboard clipboard;
    PreviewDesk pages(files, prompts, places(program), program.folders, program.data_folder);
    PictureEasel easel;
    JpegPictures pictures;
    MainWindow window({program, prompts, files, pages, clipboard, easel, pictures});
    window.show();
    const RedoKey redo_key;
    const EndOfSession end_of_session([&program] { keep_work(program.tools); });
    const SecondStarts second_starts(folder, [&window](const std::string& path) { window.take_over(path); });
    QTimer::singleShot(0, &window, [&window, &asked] { once_shown(window, asked); });
    return QApplication::exec();
}

int open(const std::string& folder, Prompts& prompts, const FaultLog& log, const Request& asked,
         const std::future<void>& fonts) {
    const FolderGuard guard(folder);
    if (guard.is_open_elsewhere()) {
        if (!hand_over(folder, asked.named))
            prompts.tell(
                {.text = "Wortlex is already open in this brewery folder.", .icon = Icon::information});
        return 0;
    }
    take_units_of_country(folder, QLocale::system().measurementSystem() == QLocale::MetricSystem);
    Program program;
    if (!start(program, folder, prompts)) return 0;
    note_broken_run(folder, log);
    fonts.wait();
    return show(program, folder, prompts, asked);
}

int run(int count, char** arguments) {
    const auto fonts = read_fonts_early();
    const auto log = user_log();
    const NotedApplication application(count, arguments, log);
    const auto bus = open_session_bus_early();
    const auto taken_fonts = take_fonts_early(fonts);
    QApplication::setApplicationName(QStringLiteral("wortlex"));
    QApplication::setDesktopFileName(QStringLiteral("wortlex"));
    // The end is the main window's to tell: a recipe that is closed behind it must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    outline_on_black();
    MessageBoxes boxes;
    NotedPrompts prompts(boxes, log);
    const Request asked{.named = named_document(count, arguments), .places = start_places()};
    const auto folder = open_brewery(asked.places, prompts);
    return folder ? open(*folder, prompts, log, asked, fonts) : 1;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    return wortlex::run(count, arguments);
}
