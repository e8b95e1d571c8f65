#include "windows/documents/recipe_window.h"

#include "base/windows1252.h"
#include "desktop/captions.h"
#include "desktop/menus.h"
#include "desktop/qt_text.h"
#include "desktop/scrolled.h"
#include "documents/method_check.h"
#include "program/documents.h"
#include "program/recovery.h"
#include "windows/documents/recipe_actions.h"
#include "windows/documents/simple_mash_printout.h"
#include "windows/reports/print_options_window.h"

#include <QAbstractSpinBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace wortlex {
namespace {

constexpr std::chrono::seconds between_keeps{30};

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

// The file's; a recipe that has none yet goes by its title.
QString name_in_caption(const LiveDocument& document) {
    const auto& path = document.file.path;
    if (!path.empty()) return QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).fileName();
    if (document.recipe.title.empty()) return QStringLiteral("Untitled");
    return string_of(utf8_from_windows1252(document.recipe.title.view()));
}

} // namespace

RecipeWindow::RecipeWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), ports_(ports),
      caption_(windowTitle()), program_(ports.program),
      document_(program_.document), editor_{live_document(program_), {}, {}}, subject_{editor_,
                                                                                       program_.color_table,
                                                                                       actions()},
      panel_(subject_, places(program_), this) {
    editor_.notices = &program_.notices;
    auto* const layout = new QVBoxLayout(this);
    add_menu();
    layout->addWidget(new Scrolled(panel_, this), 1);
    layout->addLayout(page_part());
    for (auto* const field : panel_.findChildren<QWidget*>())
        if (qobject_cast<QLineEdit*>(field) != nullptr || qobject_cast<QAbstractSpinBox*>(field) != nullptr)
            field->installEventFilter(this);
    connect(&keeper_, &QTimer::timeout, this, [this] { keep_or_tell(); });
    keeper_.start(between_keeps);
    reopen();
}

RecipeActions RecipeWindow::actions() {
    auto actions = line_actions(editor_, ports_, Opener::recipe, this);
    actions.yeast_and_water = [this] { show_yeast_and_water(); };
    actions.extras_and_notes = [this] { show_extras(); };
    actions.mash_schedule = [this] { show_mash(); };
    actions.save = [this] { save_recipe(SaveAs::no); };
    actions.print = [this] { print(); };
    actions.show_colour = [this] { show_colour(); };
    return actions;
}

void RecipeWindow::add_menu() {
    auto* const menu = new QMenuBar(this);
    layout()->setMenuBar(menu);
    const std::map<int, std::function<void()>> does = {
        {command::new_document, [this] { start_new(); }},
        {command::open_recipe, [this] { open_another(); }},
        {command::save, [this] { save_recipe(SaveAs::no); }},
        {command::save_as, [this] { save_recipe(SaveAs::yes); }},
        {command::print, [this] { print(); }},
        {command::close, [this] { close(); }}};
    fill_menu(*menu, document_menu(), [&does](int command) -> MenuAction {
        const auto found = does.find(command);
        return found == does.end() ? MenuAction{} : MenuAction{found->second, key_of(command)};
    });
    add_edit_menu(*menu);
}

void RecipeWindow::add_edit_menu(QMenuBar& bar) {
    auto* const menu = bar.addMenu(tr("E&dit"));
    menu->setToolTipsVisible(true);
    undo_ = menu->addAction(tr("&Undo"), this, [this] { undo(editor_); });
    undo_->setObjectName(QStringLiteral("undo"));
    undo_->setShortcuts(QKeySequence::Undo);
    redo_ = menu->addAction(tr("&Redo"), this, [this] { redo(editor_); });
    redo_->setObjectName(QStringLiteral("redo"));
    redo_->setShortcuts(QKeySequence::Redo);
}

QLayout* RecipeWindow::page_part() {
    auto* const line = new QHBoxLayout;
    const auto& widgets = panel_.widgets();
    for (const auto* const key : {"yeast_and_water", "extras_and_notes", "mash_schedule"})
        line->addWidget(&widgets.field(key));
    line->addStretch();
    for (const auto* const key : {"save", "print", "help"}) line->addWidget(&widgets.field(key));
    auto* const ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName(QStringLiteral("ok"));
    set_tip(*ok, QStringLiteral("Closes the recipe, after asking for unsaved changes"));
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    line->addWidget(ok);
    return line;
}

bool RecipeWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = dynamic_cast<QKeyEvent*>(event);
        if (key != nullptr && (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))) {
            event->ignore();
            return true;
        }
    }
    return ToolWindow::eventFilter(watched, event);
}

void RecipeWindow::reopen() {
    const auto& file = document_.file;
    auto opened = open_recipe_window(editor_.open, file.loaded_from_file || file.recovered);
    saved_ = std::move(opened.saved);
    start_editing(editor_, {.locks = opened.locks,
                            .show_potential = opened.show_potential,
                            .selected_malt = 0,
                            .selected_hop = 0,
                            .selected_extra = 0});
}

void RecipeWindow::tell_once_shown() {
    if (!document_.file.loaded_from_file) return;
    if (const auto warning = method_check_on_load(editor_.open.document, program_.settings, document_.kind))
        ports_.prompts.tell({.text = *warning, .icon = Icon::warning});
}

DocumentSaving RecipeWindow::saving() {
    return {editor_,      document_.file, saved_,
            ports_.files, ports_.prompts, folder_path(program_.folders, FolderKind::recipes)};
}

bool RecipeWindow::may_leave_recipe() {
    const auto has_dialog = [](const QWidget* page) { return page != nullptr && show_modal_child(*page); };
    if (is_asking_ || has_dialog(yeast_and_water_) || has_dialog(extras_) || has_dialog(mash_)) return false;
    is_asking_ = true;
    auto current = saving();
    const auto before = document_.file.path;
    const bool may = may_leave(current);
    is_asking_ = false;
    follow_save(before);
    return may;
}

void RecipeWindow::start_new() {
    if (!may_leave_recipe()) return;
    close_pages();
    new_recipe(program_);
    reopen();
    keep_or_tell();
}

void RecipeWindow::open_another() {
    if (!may_leave_recipe()) return;
    if (!choose_and_open(program_, DocumentKind::recipe, ports_.files, ports_.prompts)) return;
    close_pages();
    reopen();
    keep_or_tell();
    tell_once_shown();
}

bool RecipeWindow::save_recipe(SaveAs save_as) {
    auto current = saving();
    const auto before = document_.file.path;
    const bool saved = save(current, save_as);
    follow_save(before);
    for (const auto& page : {yeast_and_water_, extras_})
        if (saved && !page.isNull()) page->keep();
    return saved;
}

void RecipeWindow::follow_save(const std::string& path_before) {
    const auto& path = document_.file.path;
    if (path != path_before) {
        follow_user(program_.folders, FolderKind::recipes, path);
        remember_document(program_, path);
    }
    keep_or_tell();
    tell_change(editor_);
}

void RecipeWindow::print() {
    print_or_export(ports_, editor_.view, this);
}

bool RecipeWindow::may_close() {
    if (!may_leave_recipe()) return false;
    close_pages();
    keeper_.stop();
    DropWork(program_.data_folder);
    return true;
}

void RecipeWindow::follow(Change) {
    show_name();
    for (const auto& [action, word, step] : {std::tuple(undo_, tr("&Undo"), editor_.history.to_undo()),
                                             std::tuple(redo_, tr("&Redo"), editor_.history.to_redo())}) {
        action->setEnabled(!step.empty());
        const auto name = string_of(step).replace(QLatin1Char('&'), QLatin1String("&&"));
        action->setToolTip(step.empty() ? QStringLiteral("Nothing to %1").arg(spoken(word).toLower())
                                        : QString());
        action->setText(step.empty() ? word : word + QLatin1Char(' ') + name);
    }
}

void RecipeWindow::show_name() {
    const bool modified = is_modified(editor_.open, saved_, document_.file);
    const auto mark = modified ? QStringLiteral("*") : QString();
    setWindowTitle(name_in_caption(document_) + mark + QStringLiteral(" - ") + caption_);
}

bool RecipeWindow::keep_work() {
    if (is_modified(editor_.open, saved_, document_.file))
        return KeepWork(program_.data_folder, image_of(editor_.open), document_.file);
    DropWork(program_.data_folder);
    return true;
}

void RecipeWindow::keep_or_tell() {
    if (!keep_work()) tell_unkept_work(program_, ports_.prompts);
}

void RecipeWindow::show_colour() {
    if (swatch_.isNull()) swatch_ = new ColorSwatchWindow(program_, Opener::recipe, this);
    bring_forward(*swatch_);
}

void RecipeWindow::show_page(QPointer<RecipePage>& page, RecipePageUse use) {
    if (page.isNull()) {
        page = new RecipePage(editor_, std::move(use), places(program_), this);
        add_keys(*page);
    }
    bring_forward(*page);
}

// A page works on the recipe too, so it takes the keys of the recipe's menu.
void RecipeWindow::add_keys(RecipePage& page) {
    const auto add = [&](QKeySequence::StandardKey key, const std::function<void()>& action) {
        for (const auto& sequence : QKeySequence::keyBindings(key))
            connect(new QShortcut(sequence, &page), &QShortcut::activated, this, action);
    };
    add(QKeySequence::Save, [this] { save_recipe(SaveAs::no); });
    add(QKeySequence::Undo, [this] { wortlex::undo(editor_); });
    add(QKeySequence::Redo, [this] { wortlex::redo(editor_); });
}

void RecipeWindow::show_yeast_and_water() {
    show_page(yeast_and_water_,
              {.template_name = "RECIPE4DIALOG",
               .step = "Yeast And Water",
               .fill = [this](Form& form, QWidget* page) {
                   yeast_water_form(form, editor_,
                                    yeast_water_actions(editor_, ports_, Opener::recipe, page));
               }});
}

void RecipeWindow::show_extras() {
    show_page(extras_, {.template_name = "RECIPEEXTRADIALOG",
                        .step = "Extras & Notes",
                        .fill =
                            [this](Form& form, QWidget* page) {
                                extras_form(form, editor_,
                                            extras_actions(editor_, ports_, Opener::recipe, page));
                            },
                        .arrange = arrange_extras});
}

void RecipeWindow::show_mash() {
    if (mash_.isNull()) {
        const auto work = open_simple_mash(document_.recipe.simple_mash, document_.water_to_grain,
                                           document_.figures.mash_grain, program_.settings);
        mash_ = new SimpleMashWindow(
            work, program_.settings, MashSide::recipe,
            {.mash_grain = [this] { return document_.figures.mash_grain; },
             .accepted = [this](const SimpleMashWork& planned) { set_simple_mash(editor_, planned.mash); },
             .save = [this] { save_recipe(SaveAs::no); },
             .revert_to_complex = nullptr,
             .print =
                 [this](const SimpleMashWork& planned) {
                     ports_.pages.show(simple_mash_printout(editor_.open, program_.color_table, planned));
                 }},
            places(program_), this);
        // From now on the water itself tells the ratio: worked out from a ratio again it would drift.
        document_.water_to_grain = 0;
    }
    bring_forward(*mash_);
}

void RecipeWindow::close_pages() {
    for (const auto& page : {yeast_and_water_, extras_})
        if (!page.isNull()) page->dismiss();
    if (!mash_.isNull()) mash_->close();
    if (!swatch_.isNull()) swatch_->close();
}

RecipeWindow::~RecipeWindow() {
    close_pages();
}

} // namespace wortlex
