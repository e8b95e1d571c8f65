// picture-windows [--scheme N] [--dark] TARGET_DIR RECIPE [SESSION]: run in a brewery folder, it opens the
// main window, every tool, the handbook, a recipe and a session, and saves a picture of each:
// main-window.png, handbook.png, recipe-window.png, session-window.png, and the tools by their names.
#include "base/number.h"
#include "base/ports/quiet_prompts.h"
#include "desktop/picture_easel.h"
#include "desktop/print_preview.h"
#include "desktop/qt_text.h"
#include "desktop/system_ports.h"
#include "jpeg/jpeg_pictures.h"
#include "program/start.h"
#include "windows/main/main_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QPalette>
#include <QStyleFactory>

#include <cstdio>
#include <span>

namespace wortlex {
namespace {

struct Options {
    std::optional<std::uint8_t> scheme; ///< of the artwork; the brewer's own if not told
    bool dark = false;
    std::vector<std::string> names; ///< the target folder, the recipe and, if wanted, a session
};

std::optional<std::uint8_t> scheme_number(std::string_view text) {
    const auto number = parse_whole(text);
    if (!number || *number < 0 || static_cast<std::size_t>(*number) >= art_schemes.size())
        return std::nullopt;
    return static_cast<std::uint8_t>(*number);
}

std::optional<Options> parse(std::span<char* const> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--dark") {
            options.dark = true;
        } else if (argument == "--scheme" && i + 1 < arguments.size()) {
            options.scheme = scheme_number(arguments[++i]);
            if (!options.scheme) return std::nullopt;
        } else {
            options.names.emplace_back(argument);
        }
    }
    const auto count = options.names.size();
    return count == 2 || count == 3 ? std::optional(options) : std::nullopt;
}

void darken() {
    QPalette palette(QColor(48, 48, 48));
    palette.setColor(QPalette::Base, QColor(32, 32, 32));
    palette.setColor(QPalette::AlternateBase, QColor(40, 40, 40));
    palette.setColor(QPalette::Highlight, QColor(42, 110, 176));
    palette.setColor(QPalette::Link, QColor(110, 170, 240));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
}

bool complain(const QString& what) {
    std::fprintf(stderr, "picture-windows: %s\n", what.toLocal8Bit().constData());
    return false;
}

// A box would wait for an answer without end.
class ConsolePrompts : public QuietPrompts {
public:
    void tell(const Message& message) override { complain(string_of(message.text)); }
};

// Lets what waits for the window to stand come to pass, too.
void settle() {
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
}

bool save_picture(QWidget& window, const QDir& target, const QString& name) {
    const auto path = target.filePath(name);
    return window.grab().save(path) || complain(path + QStringLiteral(": cannot be written"));
}

QWidget* other_window(const MainWindow& main) {
    for (auto* const window : QApplication::topLevelWidgets())
        if (window != &main && window->isVisible() && !window->isModal()) return window;
    return nullptr;
}

// Those that open by themselves; a document has to be chosen first.
bool picture_tools(MainWindow& main, const QDir& target) {
    bool saved = true;
    for (const auto& tool : tools()) {
        if (!has_window(tool) || tool.prepare != nullptr) continue;
        main.commands().start(tool.command);
        settle();
        auto* const window = other_window(main);
        const auto name = string_of(tool.window.template_name) + QStringLiteral(".png");
        saved = window != nullptr && save_picture(*window, target, name) && saved;
        if (window != nullptr) window->close();
        settle();
    }
    return saved;
}

bool picture_document(MainWindow& main, const QDir& target, const std::string& path, const QString& name) {
    main.open_file(path);
    settle();
    auto* const document = other_window(main);
    if (document == nullptr) return complain(name + QStringLiteral(": the document did not open"));
    document->resize(document->sizeHint()); // whole, however small the screen is
    settle();
    const bool saved = save_picture(*document, target, name);
    document->close();
    settle();
    return saved;
}

bool picture_handbook(MainWindow& main, const QDir& target) {
    main.commands().start(command::tutorials);
    settle();
    auto* const handbook = other_window(main);
    const bool saved = save_picture(*handbook, target, QStringLiteral("handbook.png"));
    handbook->close();
    settle();
    return saved;
}

bool picture(Program& program, Prompts& prompts, const QDir& target, std::span<const std::string> documents) {
    FileDialogs files;
    SystemClipboard clipboard;
    PreviewDesk pages(files, prompts, places(program), program.folders, program.data_folder);
    PictureEasel easel;
    JpegPictures pictures;
    MainWindow main({program, prompts, files, pages, clipboard, easel, pictures});
    main.show();
    settle();
    bool saved = save_picture(main, target, QStringLiteral("main-window.png"));
    saved = picture_tools(main, target) && saved;
    saved = picture_handbook(main, target) && saved;
    saved = picture_document(main, target, documents[0], QStringLiteral("recipe-window.png")) && saved;
    if (documents.size() == 1) return saved;
    return picture_document(main, target, documents[1], QStringLiteral("session-window.png")) && saved;
}

int run(const Options& options) {
    if (options.dark) darken();
    ConsolePrompts prompts;
    Program program;
    if (!start(program, working_folder(), prompts)) {
        complain(QStringLiteral("this is not a brewery folder"));
        return 1;
    }
    if (options.scheme) program.art_scheme = *options.scheme;
    const QDir target(QFile::decodeName(options.names[0].c_str()));
    target.mkpath(QStringLiteral("."));
    return picture(program, prompts, target, std::span(options.names).subspan(1)) ? 0 : 1;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(
        "default.warning=false"); // builders have no session, Qt would remark upon it
    const QApplication application(count, arguments);
    const std::span<char* const> all(arguments, static_cast<std::size_t>(count));
    const auto options = wortlex::parse(all.subspan(1));
    if (options) return wortlex::run(*options);
    std::fputs("Usage: picture-windows [--scheme N] [--dark] TARGET_DIR RECIPE [SESSION]\n", stderr);
    return 2;
}
