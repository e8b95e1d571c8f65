#include "windows/databases/list_window.h"

#include "desktop/captions.h"
#include "desktop/dragged_file.h"
#include "desktop/form_dialog.h"
#include "desktop/list_keys.h"
#include "desktop/list_view.h"
#include "desktop/qt_text.h"
#include "desktop/scrolled.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace wortlex {

ListWindow::ListWindow(IngredientList& list, const ListPorts& ports, Opener opener,
                       std::function<bool()> picked, QWidget* owner, bool* stays_open)
    : QDialog(owner), list_(list), ports_(ports), opener_(opener), picked_(std::move(picked)),
      stays_open_(stays_open),
      place_(dress_window(*this, window_info(list.dialog_template()), 0, opener, owner, ports.places)) {
    setWindowModality(Qt::WindowModal);
    setSizeGripEnabled(true);
    setAcceptDrops(!picked_);
    fill_form();
    listening_ = ports_.places.notices.listen([this](Change change) {
        if (change == Change::databases) list_.follow_stocks();
    });
    widgets_ = std::make_unique<FormWidgets>(form_, ports.places, *this);
    make_find_line();
    lay_out_rows();
    add_keys();
    constexpr double screen_share = 0.9; // the rest is for title bar and panels
    resize(sizeHint().width(), static_cast<int>(screen()->availableGeometry().height() * screen_share));
    setWindowTitle(string_of(list_.caption()));
    widgets_->field("list").setFocus();
}

void ListWindow::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

void ListWindow::fill_form() {
    auto& rows = form_.rows();
    choice_rows(rows);
    rows.note("found", [this] { return found_text(); }).visible([this] {
        return !query_.empty() || added_ > 0;
    });
    list_row(rows);
    if (picked_)
        pick_rows(rows);
    else
        edit_buttons(rows);
    print_button(rows);
    rows.button("help", picked_ ? "&Help" : "Help", nullptr);
    if (picked_)
        rows.button("cancel", "Cancel", [this] { reject(); });
    else
        rows.button("ok", "OK", [this] { accept(); });
}

void ListWindow::choice_rows(Rows& rows) {
    std::vector<Live<std::string>> labels;
    for (const auto& label : list_.filter_labels()) labels.emplace_back(label);
    const bool has_choice = labels.size() > 1;
    rows.choice("filter",
                {[this] { return list_.filter; },
                 [this](std::int32_t chosen) { list_.choose_filter(chosen, ports_.prompts); }},
                std::move(labels))
        .named("Which entries")
        .visible(has_choice)
        .changed([this] {
            setWindowTitle(string_of(list_.caption()));
            seek();
        });
    rows.check("in_stock", {[this] { return list_.only_in_stock; },
                            [this](bool only) { list_.show_only_in_stock(only); }})
        .label("Show Only Items In Stoc&k")
        .changed([this] { seek(); })
        .visible(list_.has_stock());
}

void ListWindow::list_row(Rows& rows) {
    rows.list(
            "list", list_.heads(), [this] { return list_.shown_count(); },
            [this](std::size_t row, std::size_t column) { return list_.cell(row, column); })
        .label("Entries")
        .when_empty([this] { return empty_text(); })
        .colours(ColorArea::pick_lists)
        .selection(list_.selected)
        .header_clicked([this](std::size_t column) {
            change([&] {
                list_.click(column);
                seek();
            });
        })
        .sorted([this] { return list_.sort_mark(); })
        .marked([this](std::size_t row) { return match(list_, row, query_) > 0; })
        .activated([this] { act(); });
}

void ListWindow::pick_rows(Rows& rows) {
    if (stays_open_ != nullptr)
        rows.check("stays_open", *stays_open_)
            .label("Sta&y Open")
            .hint("Picks one after the other; Shift and Enter does so once");
    rows.button("pick", "&Pick", [this] { pick_and_close(); });
}

std::string ListWindow::found_text() const {
    auto added = added_ == 0 ? "" : std::to_string(added_) + " added";
    if (query_.empty()) return added;
    const auto count = count_found(list_, query_);
    return (count == 0 ? "Nothing found" : std::to_string(count) + " found") +
           (added.empty() ? "" : ", " + added);
}

void ListWindow::show_found() {
    widgets_->refresh();
    find_line_.tell_found(string_of(found_text()));
}

std::string ListWindow::empty_text() const {
    if (list_.only_in_stock) return "Nothing is in stock";
    return picked_ ? "There is no entry yet; the database adds them" : "Insert adds an entry";
}

void ListWindow::seek() {
    if (query_.empty()) return;
    const auto row = best_row(list_, query_);
    list_.selected = row ? static_cast<std::int32_t>(*row) : -1;
}

void ListWindow::go_on(bool backwards) {
    const auto from = static_cast<std::size_t>(std::max(list_.selected, 0));
    if (const auto row = next_row(list_, query_, from, backwards))
        list_.selected = static_cast<std::int32_t>(*row);
    widgets_->refresh();
}

void ListWindow::make_find_line() {
    find_line_.describe(QStringLiteral("Find (Ctrl+F)"),
                        QStringLiteral("Parts of words in any column; Down and F3 go to the next one found"));
    find_line_.take_typing_in(dynamic_cast<ListView&>(widgets_->field("list")));
    connect(&find_line_, &QLineEdit::textChanged, this, [this](const QString& text) {
        query_ = make_query(text.toStdString(), ports_.other_names);
        seek();
        show_found();
    });
    find_line_.stepped = [this](QKeyEvent& event) { step_in_list(event); };
    // Takes what is found.
    find_line_.entered = [this] {
        if (find_line_.text().isEmpty() ||
            (list_.selected >= 0 && match(list_, static_cast<std::size_t>(list_.selected), query_) > 0))
            act();
    };
}

// Arrows go on in the list, to the next row that is found.
void ListWindow::step_in_list(const QKeyEvent& event) {
    auto& list = widgets_->field("list");
    list.setFocus();
    const bool is_up = event.key() == Qt::Key_Up;
    if ((is_up || event.key() == Qt::Key_Down) && count_found(list_, query_) > 0) return go_on(is_up);
    QKeyEvent same(event.type(), event.key(), event.modifiers());
    QApplication::sendEvent(&list, &same);
}

void ListWindow::edit_buttons(Rows& rows) {
    rows.button("new", "&New", [this] { run(list_.new_entry(ports_.prompts)); }).hint("Add an entry");
    if (list_.can_clone())
        rows.button("clone", "&Clone", [this] { change([this] { list_.clone_entry(ports_.prompts); }); })
            .hint("Add a copy of the selected entry");
    rows.button("import", "&Import",
                [this] { change([this] { list_.import(ports_.files, ports_.prompts); }); })
        .hint("Add the entries of a transfer file");
    rows.button("edit", "&Edit", [this] { run(list_.edit_entry(ports_.prompts)); });
    rows.button("delete", "&Delete", [this] { change([this] { list_.delete_entry(ports_.prompts); }); });
    if (list_.has_stock())
        rows.button("inventory", "In&ventory", [this] { run(list_.inventory(ports_.prompts)); })
            .hint("Book what was bought or used");
    rows.button("save", "&Save",
                [this] {
                    change([this] { list_.save(ports_.prompts); });
                    ports_.places.notices.tell(Change::databases);
                })
        .hint("Write the list to its file");
}

void ListWindow::print_button(Rows& rows) {
    std::function<void()> print;
    if (list_.print) print = [this] { list_.print(list_.printout()); };
    rows.button("print", picked_ ? "P&rint" : "&Print", std::move(print));
}

void ListWindow::lay_out_rows() {
    auto* const layout = new QVBoxLayout;
    auto* const choices = new QHBoxLayout;
    choices->addWidget(&widgets_->field("filter"));
    choices->addStretch();
    choices->addWidget(&widgets_->field("in_stock"));
    if (stays_open_ != nullptr) choices->addWidget(&widgets_->field("stays_open"));
    layout->addLayout(choices);
    auto* const finding = new QHBoxLayout;
    finding->addWidget(&find_line_);
    finding->addWidget(&widgets_->field("found"));
    layout->addLayout(finding);
    auto& list = widgets_->field("list");
    list.setMinimumHeight(fontMetrics().height() * 8);
    layout->addWidget(&list, 1);
    auto* const buttons = new QHBoxLayout;
    form_.for_each([&](Row& row) {
        auto* const button = dynamic_cast<QPushButton*>(&widgets_->field(row));
        if (button == nullptr) return;
        if (row.key == "print") buttons->addStretch();
        button->setAutoDefault(false); // Enter in the list edits or picks, it does not close
        buttons->addWidget(button);
    });
    layout->addLayout(buttons);
    (new QVBoxLayout(this))->addWidget(new Scrolled(layout, this));
}

void ListWindow::add_keys() {
    const auto on = [this](const QKeySequence& key, std::function<void()> action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, std::move(action));
    };
    on(QKeySequence::FindNext, [this] { go_on(false); });
    on(QKeySequence::FindPrevious, [this] { go_on(true); });
    const auto tell = [this](std::string_view button, const QKeySequence& key) {
        add_key(*qobject_cast<QPushButton*>(&widgets_->field(button)), key);
    };
    tell(picked_ ? "pick" : "edit", Qt::Key_Return);
    tell(picked_ ? "cancel" : "ok", Qt::Key_Escape);
    if (stays_open_ != nullptr)
        for (const int enter : {Qt::Key_Return, Qt::Key_Enter})
            on(QKeySequence(Qt::SHIFT | static_cast<Qt::Key>(enter)), [this] { pick_and_stay(); });
    if (picked_) return;
    tell("new", Qt::Key_Insert);
    tell("delete", QKeySequence::Delete);
    press_in_window(*this, QKeySequence::Save, widgets_->field("save"));
    auto& list = widgets_->field("list");
    connect(new QShortcut(QKeySequence::Delete, &list), &QShortcut::activated, this,
            [this] { change([this] { list_.delete_entry(ports_.prompts); }); });
    connect(new QShortcut(Qt::Key_Insert, &list), &QShortcut::activated, this,
            [this] { run(list_.new_entry(ports_.prompts)); });
}

void ListWindow::change(const std::function<void()>& action) {
    action();
    setWindowTitle(string_of(list_.caption()));
    widgets_->refresh();
}

void ListWindow::run(std::unique_ptr<EntryForm> entry) {
    if (entry == nullptr) return;
    run_dialog(entry->form,
               {.template_name = entry->dialog_template, .caption = entry->caption, .opener = opener_},
               ports_.places, this);
    widgets_->refresh();
    widgets_->field("list").setFocus();
}

void ListWindow::act() {
    picked_ ? pick_and_close() : run(list_.edit_entry(ports_.prompts));
}

bool ListWindow::pick() {
    return list_.selected >= 0 && list_.shown_count() > 0 && picked_();
}

void ListWindow::pick_and_close() {
    if (stays_open_ != nullptr && *stays_open_) return pick_and_stay();
    if (pick()) leave(QDialog::Accepted);
}

// The next name can be typed at once.
void ListWindow::pick_and_stay() {
    if (pick()) ++added_;
    find_line_.selectAll();
    show_found();
}

void ListWindow::leave(int result) {
    if (list_.close(ports_.prompts)) return done(result);
    widgets_->refresh();
}

bool ListWindow::can_import(const QMimeData& dragged) const {
    const auto path = dragged_file(dragged);
    return path && QFileInfo(QFile::decodeName(QByteArray::fromStdString(*path)))
                           .suffix()
                           .compare(string_of(list_.import_extension()), Qt::CaseInsensitive) == 0;
}

void ListWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (can_import(*event->mimeData())) event->acceptProposedAction();
}

void ListWindow::dropEvent(QDropEvent* event) {
    if (!can_import(*event->mimeData())) return;
    event->acceptProposedAction();
    const auto path = *dragged_file(*event->mimeData());
    // Questions wait until the drag is over: until then the other program hangs on our answer.
    QMetaObject::invokeMethod(
        this, [this, path] { change([&] { list_.import_file(path, ports_.prompts); }); },
        Qt::QueuedConnection);
}

} // namespace wortlex
