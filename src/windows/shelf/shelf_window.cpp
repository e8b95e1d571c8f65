#include "windows/shelf/shelf_window.h"

#include "desktop/captions.h"
#include "desktop/dragged_file.h"
#include "desktop/list_keys.h"
#include "desktop/list_view.h"
#include "desktop/qt_text.h"
#include "desktop/tool_window.h"
#include "program/documents.h"
#include "program/program.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QFontDatabase>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr std::chrono::milliseconds between_looks{20}, keys_at_rest{60};

std::optional<std::string> dragged_recipe(const QMimeData& dragged) {
    const auto path = dragged_file(dragged);
    return path && document_kind(*path) == DocumentKind::recipe ? path : std::nullopt;
}

} // namespace

ShelfWindow::ShelfWindow(const WindowPorts& ports, Opener opener, QWidget* owner)
    : QDialog(owner), ports_(ports), folder_(folder_path(ports.program.folders, FolderKind::recipes)),
      reading_(folder_, ports.program.settings),
      shelf_(ports.program.settings, LoadOtherNames(ports.program.data_folder)),
      place_(dress_window(*this, window_info("RECIPESHELFDIALOG"), 0, opener, owner, places(ports.program))) {
    setWindowModality(Qt::WindowModal);
    setSizeGripEnabled(true);
    setAcceptDrops(true);
    fill_form();
    widgets_ = std::make_unique<FormWidgets>(form_, places(ports.program), *this);
    make_find_line();
    make_preview();
    lay_out_parts();
    add_keys();
    connect(&reader_, &QTimer::timeout, this, [this] { take_what_was_read(); });
    reader_.start(between_looks);
}

void ShelfWindow::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

void ShelfWindow::fill_form() {
    auto& rows = form_.rows();
    rows.note("found", [this] { return count_text(); });
    list_row(rows);
    rows.button("open", "&Open", [this] { accept(); })
        .hint("Open the selected recipe")
        .enabled([this] { return can_open(); })
        .disabled_because([this] {
            return shelf_.chosen() == nullptr ? "No recipe is selected" : "This file cannot be opened";
        });
    rows.button("browse", "&Browse...", [this] { browse(); }).hint("Choose a file in any folder");
    rows.button("cancel", "&Cancel", [this] { reject(); }).hint("Open nothing");
}

void ShelfWindow::list_row(Rows& rows) {
    const auto& program = ports_.program;
    rows.list(
            "recipes", shelf_.heads(), [this] { return shelf_.shown_count(); },
            [this](std::size_t row, std::size_t column) { return shelf_.cell(row, column); })
        .label("Recipes")
        .when_empty([this] { return empty_text(); })
        .colours(ColorArea::pick_lists)
        .selection(shelf_.selected)
        .changed([this] { show_selected(); })
        .header_clicked([this](std::size_t column) { shelf_.click(column); })
        .sorted([this] { return shelf_.sort_mark(); })
        .dimmed([this](std::size_t row) { return !shelf_.entry(row).can_be_opened; })
        .with_glass([this, &program](std::size_t row) -> std::optional<std::uint32_t> {
            const auto& entry = shelf_.entry(row);
            if (!entry.can_be_opened) return std::nullopt;
            return swatch_colour(program.color_table, entry.srm, program.settings);
        })
        .activated([this] { accept(); });
}

void ShelfWindow::make_find_line() {
    auto& list = dynamic_cast<ListView&>(widgets_->field("recipes"));
    find_line_.describe(
        QStringLiteral("Find, as in: cascade og>1.055 pale"),
        QStringLiteral("Parts of words of names, styles and ingredients; og, ibu, %1 and size with <, > or = "
                       "and a number (Ctrl+F)")
            .arg(string_of(shelf_.heads()[4].caption()).toLower()));
    find_line_.take_typing_in(list);
    connect(&find_line_, &QLineEdit::textChanged, this, [this](const QString& text) {
        shelf_.find(text.toStdString());
        widgets_->refresh();
        find_line_.tell_found(string_of(count_text()));
        show_selected();
    });
    // Arrows go through the list while the line keeps the focus.
    find_line_.stepped = [&list](QKeyEvent& event) { QApplication::sendEvent(&list, &event); };
    find_line_.entered = [this] { accept(); };
}

void ShelfWindow::make_preview() {
    preview_.setObjectName(QStringLiteral("preview"));
    preview_.setAccessibleName(QStringLiteral("Report of the selected recipe"));
    preview_.setReadOnly(true);
    preview_.setTabChangesFocus(true);
    preview_.setLineWrapMode(QPlainTextEdit::NoWrap);
    preview_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    previewer_.setSingleShot(true);
    previewer_.setInterval(keys_at_rest);
    connect(&previewer_, &QTimer::timeout, this, [this] {
        const auto* const entry = shelf_.chosen();
        previewed_ = entry == nullptr ? "" : entry->path;
        const auto& program = ports_.program;
        const ShelfPreviewing with{program.settings, program.color_table,
                                   program.water_usage.evaporation_rate, program.recipe_print};
        preview_.setPlainText(entry == nullptr ? QString()
                                               : QString::fromStdString(shelf_preview(*entry, with)));
    });
}

void ShelfWindow::lay_out_parts() {
    auto* const layout = new QVBoxLayout(this);
    auto* const finding = new QHBoxLayout;
    finding->addWidget(&find_line_, 1);
    finding->addWidget(&widgets_->field("found"));
    layout->addLayout(finding);
    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    auto& list = widgets_->field("recipes");
    list.setMinimumHeight(fontMetrics().height() * 6);
    parts->addWidget(&list);
    parts->addWidget(&preview_);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    layout->addWidget(parts, 1);
    layout->addLayout(button_line(*widgets_, {"browse"}, {"open", "cancel"}));
    const auto room = screen()->availableGeometry().size();
    const int frame = 3 * fontMetrics().height(); // and the scroll bar
    resize(std::min(list.sizeHint().width() + frame, room.width() * 95 / 100), room.height() * 85 / 100);
}

void ShelfWindow::add_keys() {
    const auto button = [this](const char* key) -> QPushButton& {
        auto& found = *qobject_cast<QPushButton*>(&widgets_->field(key));
        found.setAutoDefault(false);
        return found;
    };
    add_key(button("open"), Qt::Key_Return);
    add_key(button("cancel"), Qt::Key_Escape);
    press_in_window(*this, QKeySequence::Open, button("browse"));
    find_line_.setFocus();
}

void ShelfWindow::take_what_was_read() {
    is_read_ = reading_.is_done(); // before the rest is taken
    shelf_.add(reading_.take());
    if (is_read_) reader_.stop();
    widgets_->refresh();
    show_selected();
}

std::string ShelfWindow::count_text() const {
    const auto all = shelf_.count(), shown = shelf_.shown_count();
    const auto recipes = std::to_string(all) + (all == 1 ? " recipe" : " recipes");
    const auto counted = shown == all ? recipes : std::to_string(shown) + " of " + recipes;
    return is_read_ ? counted : counted + ", reading ...";
}

std::string ShelfWindow::empty_text() const {
    if (!is_read_) return "";
    const auto folder = QFile::decodeName(QByteArray::fromStdString(folder_)).toStdString();
    constexpr const char* elsewhere = "\nBrowse (Ctrl+O) opens a recipe of any folder";
    if (!reading_.is_readable()) return "The folder " + folder + " cannot be read" + elsewhere;
    if (shelf_.count() == 0) return "There is no recipe in " + folder + " yet" + elsewhere;
    return "No recipe has all of that";
}

bool ShelfWindow::can_open() const {
    const auto* const entry = shelf_.chosen();
    return entry != nullptr && entry->can_be_opened;
}

void ShelfWindow::show_selected() {
    const auto* const entry = shelf_.chosen();
    if (previewed_ != (entry == nullptr ? "" : entry->path)) previewer_.start();
}

void ShelfWindow::browse() {
    if (auto path = choose_document_file(ports_.program, DocumentKind::recipe, ports_.files))
        pick(*std::move(path));
}

void ShelfWindow::accept() {
    if (can_open()) pick(shelf_.chosen()->path);
}

void ShelfWindow::pick(std::string path) {
    path_ = std::move(path);
    done(Accepted);
}

void ShelfWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (dragged_recipe(*event->mimeData())) event->acceptProposedAction();
}

void ShelfWindow::dropEvent(QDropEvent* event) {
    auto path = dragged_recipe(*event->mimeData());
    if (!path) return;
    event->acceptProposedAction();
    pick(*std::move(path));
}

std::optional<std::string> choose_recipe(const WindowPorts& ports, Opener opener, QWidget* owner) {
    ShelfWindow window(ports, opener, owner);
    return window.exec() == QDialog::Accepted ? std::optional(window.path()) : std::nullopt;
}

} // namespace wortlex
