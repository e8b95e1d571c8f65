#include "windows/main/main_window.h"

#include "calculators/hop_degradation.h"
#include "desktop/menus.h"
#include "desktop/qt_text.h"
#include "program/exit.h"
#include "program/recovery.h"
#include "windows/calculators/color_utility_window.h"
#include "windows/calculators/hop_degradation_window.h"
#include "windows/calculators/ibu_calculator_window.h"
#include "windows/databases/ingredient_windows.h"
#include "windows/documents/recipe_window.h"
#include "windows/main/about_window.h"
#include "windows/main/open_window.h"
#include "windows/main/settings_windows.h"
#include "windows/mash/strike_calculator_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>

namespace wortlex {
namespace {

constexpr int recipe_closed = 6000;
constexpr int strike_calculator_closed = 6006;

QKeySequence::StandardKey key_of(int command) {
    switch (command) {
    case command::new_recipe:
        return QKeySequence::New;
    case command::open_recipe:
        return QKeySequence::Open;
    case command::exit:
        return QKeySequence::Quit;
    default:
        return QKeySequence::UnknownKey;
    }
}

// The one document among what is dragged, or nothing.
std::optional<std::string> dragged_document(const QMimeData& dragged) {
    if (dragged.urls().size() != 1 || !dragged.urls().front().isLocalFile()) return std::nullopt;
    auto path = QFile::encodeName(dragged.urls().front().toLocalFile()).toStdString();
    return document_kind(path) ? std::optional(std::move(path)) : std::nullopt;
}

int command_of(DocumentKind kind) {
    return kind == DocumentKind::recipe ? command::open_recipe : command::open_session;
}

} // namespace

MainWindow::MainWindow(const WindowPorts& ports)
    : ports_(ports), program_(ports.program), prompts_(ports.prompts), files_(ports.files),
      board_(new PictureBoard(program_.data_folder, art_scheme(program_.art_scheme), commands_, prompts_,
                              this)) {
    const auto& info = window_info("GENERIC");
    setObjectName(string_of(info.template_name));
    setWindowTitle(string_of(info.captions[0]));
    setAcceptDrops(true);
    setCentralWidget(board_);
    carry_out_commands();
    add_menu();
    board_->show_commands();
    put();
}

void MainWindow::carry_out_commands() {
    commands_.carry_out(command::new_recipe, [this] {
        if (!wants(DocumentKind::recipe)) return;
        new_recipe(program_);
        show_recipe();
    });
    commands_.carry_out(command::open_recipe, [this] {
        if (wants(DocumentKind::recipe) && choose_and_open(program_, DocumentKind::recipe, files_, prompts_))
            show_recipe();
    });
    carry_out_databases();
    commands_.carry_out(command::strike_temperature, [this] { show_strike_calculator(); });
    carry_out_settings();
    commands_.carry_out(command::exit, [this] { close(); });
}

void MainWindow::carry_out_databases() {
    const auto carry_out = [this](int command, void (*keep)(const WindowPorts&, QWidget*)) {
        commands_.carry_out(command, [this, keep] { keep(ports_, this); });
    };
    carry_out(command::style_database, keep_styles);
    carry_out(command::malt_database, keep_malts);
    carry_out(command::hop_database, keep_hops);
    carry_out(command::yeast_database, keep_yeasts);
    carry_out(command::water_database, keep_waters);
    carry_out(command::extra_database, keep_extras);
    commands_.carry_out(command::hop_time_degradation, [this] {
        const auto degrade = [this](QWidget* list, const HopRecord& hop) {
            auto work = picked_hop(hop, program_.hop_memory, program_.settings);
            degrade_hop(ports_, list, work);
        };
        pick_hops_for(degrade, ports_, this);
    });
    commands_.carry_out(command::hop_ibu, [this] {
        const auto calculate = [this](QWidget* list, const HopRecord& hop) {
            run_ibu_calculator(ports_, list, picked_hop(hop, program_.hop_memory, program_.settings));
        };
        pick_hops_for(calculate, ports_, this);
    });
}

void MainWindow::carry_out_settings() {
    const auto edit_colours = [this](QWidget* over) {
        run_color_utility(program_, program_.system.settings, {files_, prompts_, pictures_, clock_}, over);
    };
    commands_.carry_out(command::system_settings, [this, edit_colours] {
        if (may_edit_settings(program_.tools, prompts_))
            edit_system_settings({program_, files_, prompts_, edit_colours}, this);
    });
    commands_.carry_out(command::about, [this] { show_about(program_, this); });
}

bool MainWindow::wants(DocumentKind kind) {
    return want_document(program_.tools, kind, prompts_) == Wanted::go_on;
}

void MainWindow::add_menu() {
    fill_menu(*menuBar(), main_menu(), [this](int command) -> MenuAction {
        if (!commands_.is_built(command)) return {};
        return {[this, command] { commands_.start(command); }, key_of(command)};
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
    const auto& recent = program_.recent_documents;
    for (std::size_t i = 0; i < recent.size(); ++i) {
        auto name = QFile::decodeName(QByteArray::fromStdString(recent_name(recent, i)));
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        auto* const action =
            menu.addAction(QLatin1Char('&') + QString::number(i + 1) + QLatin1Char(' ') + name);
        const auto kind = document_kind(recent[i]);
        action->setEnabled(kind && commands_.is_built(command_of(*kind)));
        action->setToolTip(QFile::decodeName(QByteArray::fromStdString(recent[i])));
        connect(action, &QAction::triggered, this, [this, path = recent[i]] { open_file(path); });
    }
    if (recent.empty()) menu.addAction(QStringLiteral("No Documents Yet"))->setEnabled(false);
    menu.setToolTipsVisible(true);
}

// Only the corner is taken from the last time, never the size.
void MainWindow::put() {
    resize(sizeHint());
    const auto& last = program_.main_position.window;
    const auto place =
        within_screens({last.left, last.top, last.left + width(), last.top + height()}, screen_rectangles());
    move(place.left, place.top);
}

void MainWindow::offer_unsaved_work() {
    if (offer_work(program_, prompts_)) show_recipe();
}

void MainWindow::open_file(const std::string& path) {
    const auto kind = document_kind(path);
    if (kind && !commands_.is_built(command_of(*kind))) return;
    if (open_document_file(program_, path, prompts_)) show_recipe();
}

void MainWindow::show_recipe() {
    auto* const window = new RecipeWindow(ports_, this); // deletes itself when closed
    show_tool(*window, command::new_recipe, recipe_closed);
    window->tell_method();
}

void MainWindow::show_strike_calculator() {
    if (activate_if_open(program_.tools, command::strike_temperature)) return;
    auto* const window = new StrikeCalculatorWindow(ports_, this); // deletes itself when closed
    show_tool(*window, command::strike_temperature, strike_calculator_closed);
}

void MainWindow::show_tool(ToolWindow& window, int command, int closing_notification) {
    auto handle = std::make_shared<OpenWindow>(window);
    opened(program_.tools, command, handle);
    window.closed = [this, handle, closing_notification] { closed(program_.tools, closing_notification); };
    window.show();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (show_modal_child(*this)) return event->ignore();
    std::optional<MainPosition> position;
    if (!isMinimized()) position = {rectangle_of(*this), static_cast<std::uint8_t>(isMaximized() ? 1 : 0)};
    if (!leave(program_, position)) return event->ignore();
    event->accept();
    // The calculators that are still open have nothing to lose.
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    const auto path = dragged_document(*event->mimeData());
    if (path && commands_.is_built(command_of(*document_kind(*path)))) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const auto path = dragged_document(*event->mimeData());
    if (!path) return;
    event->acceptProposedAction();
    // Questions wait until the drag is over: until then the other program hangs on our answer.
    QMetaObject::invokeMethod(
        this, [this, path] { open_file(*path); }, Qt::QueuedConnection);
}

} // namespace wortlex
