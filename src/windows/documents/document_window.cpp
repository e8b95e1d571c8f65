#include "windows/documents/document_window.h"

#include "base/windows1252.h"
#include "desktop/captions.h"
#include "desktop/menus.h"
#include "desktop/qt_text.h"
#include "desktop/undo_keys.h"
#include "documents/method_check.h"
#include "program/documents.h"
#include "program/recovery.h"
#include "windows/documents/document_designer_window.h"
#include "windows/shelf/shelf_window.h"

#include <QBoxLayout>
#include <QFileInfo>

#include <utility>

namespace wortlex {
namespace {

constexpr std::chrono::seconds between_keeps{30};
constexpr std::chrono::seconds before_first_keep{3}; // of what a save, or the last copy, had not

QKeySequence::StandardKey key_of(int command) {
    switch (command) {
    case command::new_document:
        return QKeySequence::New;
    case command::open_recipe:
        return QKeySequence::Open;
    case command::save:
        return QKeySequence::Save;
    case command::save_as:
        return QKeySequence::SaveAs;
    case command::print:
        return QKeySequence::Print;
    default:
        return QKeySequence::Close;
    }
}

// The file's; a document that has none yet goes by its title.
QString name_in_caption(const LiveDocument& document) {
    const auto& path = document.file.path;
    if (!path.empty()) return QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).fileName();
    if (document.recipe.title.empty()) return QStringLiteral("Untitled");
    return string_of(utf8_from_windows1252(document.recipe.title.view()));
}

} // namespace

DocumentWindow::DocumentWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), ports_(ports),
      caption_(windowTitle()),
      document_(ports.program.document), editor_{live_document(ports.program), {}, {}} {
    editor_.notices = &ports.program.notices;
}

void DocumentWindow::begin(std::function<void()> print_it) {
    add_menu(std::move(print_it));
    new WindowUndo(*this);
    connect(&keeper_, &QTimer::timeout, this, [this] { keep_or_tell(); });
    keeper_.start(between_keeps);
    first_keep_.setSingleShot(true);
    connect(&first_keep_, &QTimer::timeout, this, [this] { keep_or_tell(); });
    reopen();
}

void DocumentWindow::add_menu(std::function<void()> print_it) {
    auto* const menu = new QMenuBar(this);
    layout()->setMenuBar(menu);
    const std::map<int, std::function<void()>> does = {
        {command::new_document, [this] { start_new(); }},
        {command::open_recipe, [this] { open_another(); }},
        {command::save, [this] { save_document(SaveAs::no); }},
        {command::save_as, [this] { save_document(SaveAs::yes); }},
        {command::print, std::move(print_it)},
        {command::close, [this] { close(); }}};
    fill_menu(*menu, document_menu(), [&does](int command) -> MenuAction {
        const auto found = does.find(command);
        if (found == does.end()) return {};
        return {found->second, key_of(command), command == command::print};
    });
    add_edit_menu(*menu);
}

void DocumentWindow::add_edit_menu(QMenuBar& bar) {
    auto* const menu = bar.addMenu(tr("E&dit"));
    menu->setObjectName(QStringLiteral("edit_menu"));
    menu->setToolTipsVisible(true);
    undo_ = menu->addAction(tr("&Undo"), this, [this] { travel(Travel::undo); });
    undo_->setObjectName(QStringLiteral("undo"));
    undo_->setShortcuts(QKeySequence::Undo);
    redo_ = menu->addAction(tr("&Redo"), this, [this] { travel(Travel::redo); });
    redo_->setObjectName(QStringLiteral("redo"));
    redo_->setShortcuts(redo_keys());
}

QPushButton* DocumentWindow::ok_button(const char* meaning) {
    auto* const ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName(QStringLiteral("ok"));
    set_tip(*ok, QString::fromLatin1(meaning));
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    return ok;
}

QAction* DocumentWindow::action(int command) const {
    return findChild<QAction*>(QString::number(command));
}

void DocumentWindow::reopen() {
    auto opened = open_live();
    saved_ = std::move(opened.saved);
    start_editing(editor_, opened.view);
    first_field().setFocus(Qt::TabFocusReason);
}

void DocumentWindow::tell_once_shown() {
    if (!document_.file.loaded_from_file) return;
    const auto warning = method_check_on_load(editor_.open.document, editor_.open.settings, document_.kind);
    if (warning) ports_.prompts.tell({.text = *warning, .icon = Icon::warning, .is_advice = true});
}

DocumentSaving DocumentWindow::saving() {
    const auto folder = document_traits(document_.kind).folder;
    return {editor_,      document_.file, saved_,
            ports_.files, ports_.prompts, folder_path(program().folders, folder)};
}

bool DocumentWindow::may_leave_document() {
    if (is_asking_ || pages_.show_modal_child()) return false;
    is_asking_ = true;
    auto current = saving();
    const auto before = document_.file.path;
    const bool may = pages_.may_leave(ports_.prompts) && may_leave(current);
    is_asking_ = false;
    follow_save(before);
    return may;
}

void DocumentWindow::start_new() {
    if (!may_leave_document()) return;
    pages_.dismiss();
    make_new();
    reopen();
    keep_or_tell();
}

void DocumentWindow::open_another() {
    if (!may_leave_document()) return;
    const auto path = document_.kind == DocumentKind::recipe
                          ? choose_recipe(ports_, Opener::recipe, this)
                          : choose_document_file(program(), document_.kind, ports_.files);
    if (!path || !open_document(program(), *path, document_.kind, ports_.prompts)) return;
    pages_.dismiss();
    reopen();
    keep_or_tell();
    tell_once_shown();
}

// A page that has steps of its own goes first.
void DocumentWindow::travel(Travel travel) {
    if (auto* const page = pages_.traveller(travel)) return page->travel(travel);
    travel == Travel::undo ? undo(editor_) : redo(editor_);
}

void DocumentWindow::revert_to(ScheduleKind kind) {
    set_schedule_kind(editor_, kind);
    document_.water_to_grain = 0;
    show_mash();
}

void DocumentWindow::show_mash() {
    chosen_schedule(document_.recipe) == ScheduleKind::simple ? show_simple_mash() : show_designer();
}

void DocumentWindow::show_designer() {
    const auto is_session = document_.kind == DocumentKind::session;
    pages_.show(is_session ? "BATCHSTEPMASHDETAIL" : "RECIPESTEPMASHDETAIL", [&] {
        const DocumentDesignerCalls calls{[this] { save_document(SaveAs::no); },
                                          [this] { revert_to(ScheduleKind::simple); }};
        return make_document_designer(ports_, editor_, calls, this);
    });
}

void DocumentWindow::save_document(SaveAs save_as) {
    save_by([save_as](DocumentSaving& current) { return save(current, save_as); });
}

void DocumentWindow::save_by(const std::function<bool(DocumentSaving&)>& way) {
    auto current = saving();
    const auto before = document_.file.path;
    const bool saved = way(current);
    follow_save(before);
    if (saved) pages_.keep();
}

void DocumentWindow::follow_save(const std::string& path_before) {
    const auto& path = document_.file.path;
    if (path != path_before) {
        follow_user(program().folders, document_traits(document_.kind).folder, path);
        remember_document(program(), path);
    }
    keep_or_tell();
    tell_change(editor_);
}

bool DocumentWindow::may_close() {
    if (!may_leave_document()) return false;
    pages_.dismiss();
    keeper_.stop();
    first_keep_.stop();
    DropWork(program().data_folder);
    return true;
}

void DocumentWindow::follow(Change) {
    show_name();
    const auto& history = editor_.history;
    for (const auto& [action, word, way, of_document] :
         {std::tuple(undo_, tr("&Undo"), Travel::undo, history.to_undo()),
          std::tuple(redo_, tr("&Redo"), Travel::redo, history.to_redo())}) {
        const auto step = pages_.traveller(way) != nullptr ? "Mash Step" : of_document;
        action->setEnabled(!step.empty());
        const auto name = string_of(step).replace(QLatin1Char('&'), QLatin1String("&&"));
        action->setToolTip(step.empty() ? QStringLiteral("Nothing to %1").arg(spoken(word).toLower())
                                        : QString());
        action->setText(step.empty() ? word : word + QLatin1Char(' ') + name);
    }
}

void DocumentWindow::show_name() {
    const bool modified = is_modified(editor_.open, saved_, document_.file);
    if (modified && !has_copy_ && !first_keep_.isActive()) first_keep_.start(before_first_keep);
    const auto mark = modified ? QStringLiteral("*") : QString();
    setWindowTitle(name_in_caption(document_) + mark + state_words() + QStringLiteral(" - ") + caption_);
}

bool DocumentWindow::keep_work() {
    has_copy_ = is_modified(editor_.open, saved_, document_.file);
    if (has_copy_) return KeepWork(program().data_folder, image_of(editor_.open), document_.file);
    DropWork(program().data_folder);
    return true;
}

void DocumentWindow::keep_or_tell() {
    if (!keep_work()) tell_unkept_work(program(), ports_.prompts);
}

} // namespace wortlex
