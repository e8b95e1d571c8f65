#include "windows/main/main_window.h"

#include "base/files.h"
#include "calculators/time_sheet.h"
#include "desktop/menus.h"
#include "desktop/qt_text.h"
#include "mash/schedule_storing.h"
#include "program/exit.h"
#include "program/recovery.h"
#include "windows/databases/offer_window.h"
#include "windows/main/dropped_documents.h"
#include "windows/main/main_menu.h"
#include "windows/main/open_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>

namespace wortlex {

MainWindow::MainWindow(const WindowPorts& ports)
    : ports_(ports), program_(ports.program), prompts_(ports.prompts),
      board_(new PictureBoard(program_.data_folder, art_scheme(program_.art_scheme), main_screen_buttons(),
                              commands_, prompts_, this)),
      strip_(new RecentStrip(program_,
                             {.open = [this](const std::string& path) { open_file(path); },
                              .new_recipe = [this] { commands_.start(command::new_recipe); }},
                             board_)),
      help_(*this, places(program_), ports.pages) {
    ports_.commands = &commands_;
    const auto& info = window_info("GENERIC");
    setObjectName(string_of(info.template_name));
    setWindowTitle(string_of(info.captions[0]));
    set_help_page(*this, info.help_page);
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint); // no sizing border
    setCentralWidget(board_);
    new DroppedDocuments([this](const std::string& path) { open_file(path); }, this);
    carry_out_commands();
    add_menu();
    board_->show_commands();
    put();
    strip_later();
}

void MainWindow::carry_out_commands() {
    for (const auto& tool : tools())
        if (tool.run != nullptr || has_window(tool) || !tool.help_page.empty())
            commands_.carry_out(tool.command, [this, &tool] { start(tool); });
}

void MainWindow::start(const Tool& tool) {
    if (!tool.help_page.empty()) return help_.open(tool.help_page);
    if (tool.run != nullptr) return tool.run(ports_, this);
    const bool is_new = tool.prepare != nullptr ? tool.prepare(ports_, this)
                                                : !activate_if_open(program_.tools, tool.command);
    if (is_new) show_window(tool);
}

void MainWindow::add_menu() {
    fill_menu(*menuBar(), main_menu(), [this](int command) -> MenuAction {
        if (!commands_.is_built(command)) return {};
        return {[this, command] { commands_.start(command); }, tool_of(command).key};
    });
    auto* const recent = menuBar()->findChild<QAction*>(QString::number(command::open_recent));
    auto* const menu = new QMenu(this);
    recent->setMenu(menu);
    recent->setEnabled(true);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill_recent(*menu); });
    fill_recent(*menu);
}

void MainWindow::fill_recent(QMenu& menu) {
    menu.clear();
    add_recent(menu, DocumentKind::recipe, '1');
    if (!menu.isEmpty()) menu.addSeparator();
    add_recent(menu, DocumentKind::session, 'A');
    if (program_.recent_documents.empty())
        menu.addAction(QStringLiteral("No Documents Yet"))->setEnabled(false);
    menu.setToolTipsVisible(true);
}

void MainWindow::add_recent(QMenu& menu, DocumentKind kind, char letter) {
    const auto& recent = program_.recent_documents;
    for (std::size_t i = 0; i < recent.size(); ++i) {
        if (document_kind(recent[i]) != kind) continue;
        auto name = QFile::decodeName(QByteArray::fromStdString(recent_name(recent, i)));
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        auto* const action =
            menu.addAction(QLatin1String("&") + QLatin1Char(letter++) + QLatin1Char(' ') + name);
        action->setToolTip(QFile::decodeName(QByteArray::fromStdString(recent[i])));
        action->setEnabled(stamp_of(recent[i]).has_value());
        connect(action, &QAction::triggered, this, [this, path = recent[i]] { open_file(path); });
    }
}

// Only the corner is taken from the last time, never the size.
void MainWindow::put() {
    setFixedSize(sizeHint()); // not every desktop minds the flag alone
    const auto& last = program_.main_position.window;
    const auto place =
        within_screens(rectangle_at(last.left, last.top, width(), height()), screen_rectangles());
    move(place.left, place.top);
}

void MainWindow::offer_unsaved_work() {
    if (offer_work(program_, prompts_)) show_document(program_.document.kind);
    // Their windows offer them.
    if (is_schedule_kept(program_.data_folder)) commands_.start(command::mash_designer);
    if (is_time_line_kept(program_.data_folder)) commands_.start(command::time_line);
}

void MainWindow::offer_new_entries(const std::string& shipped_folder) {
    wortlex::offer_new_entries(ports_, shipped_folder, this);
}

void MainWindow::open_file(const std::string& path) {
    const auto kind = document_kind(path);
    if (kind && !commands_.is_built(open_command(*kind))) return;
    if (open_document_file(program_, path, prompts_)) show_document(*kind);
}

void MainWindow::take_over(const std::string& path) {
    bring_forward(*this);
    if (!path.empty()) open_file(path);
}

// Its files are read once the window stands.
void MainWindow::strip_later() {
    QMetaObject::invokeMethod(
        strip_, [this] { strip_->refresh(); }, Qt::QueuedConnection);
}

void MainWindow::show_document(DocumentKind kind) {
    show_window(tool_of(open_command(kind)));
}

void MainWindow::show_window(const Tool& tool) {
    auto& window = *tool.make(ports_, tool.window, this);
    auto handle = std::make_shared<OpenWindow>(window);
    opened(program_.tools, tool.command, handle);
    window.closed = [this, handle, &tool] { closed(program_.tools, tool.command); };
    window.show();
    window.tell_once_shown();
    strip_later();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (show_modal_child(*this)) return event->ignore();
    std::optional<MainPosition> position;
    if (!isMinimized()) position = {rectangle_of(*this), static_cast<std::uint8_t>(isMaximized() ? 1 : 0)};
    if (!leave(program_, position)) return event->ignore();
    event->accept();
    // The tools that are still open have nothing to lose.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

// What was opened, saved, or deleted behind the window meanwhile.
bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) strip_later();
    return QMainWindow::event(event);
}

} // namespace wortlex
