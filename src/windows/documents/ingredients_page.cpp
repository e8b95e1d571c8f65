#include "windows/documents/ingredients_page.h"

#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "desktop/scrolled.h"
#include "desktop/undo_keys.h"
#include "documents/work/document_saving.h"
#include "program/documents.h"
#include "program/program.h"
#include "windows/documents/document_keys.h"
#include "windows/documents/set_to_dialog.h"
#include "windows/reports/print_options_window.h"

#include <QDialogButtonBox>
#include <QKeyEvent>

#include <utility>

namespace wortlex {
namespace {

// What Cancel goes back to is taken before the page begins its work.
Ingredients begun(RecipeEditor& editor) {
    auto before = ingredients_of(editor.open);
    start_ingredients(editor);
    return before;
}

} // namespace

IngredientsPage::IngredientsPage(RecipeEditor& editor, const WindowPorts& ports, OpenPages& pages,
                                 const std::function<void()>& save, QWidget* origin)
    : ToolWindow(window_info("BATCHRECIPEDIALOG"), 0, Opener::session, origin, places(ports.program)),
      editor_(editor), ports_(ports), pages_(pages),
      before_(begun(editor)), subject_{editor, ports.program.color_table, actions(save)},
      panel_(subject_, ports, this) {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new Scrolled(panel_, this), 1);
    layout->addLayout(page_part());
    add_document_keys(*this, editor, save);
    new WindowUndo(*this);
    panel_.widgets().field("malts").setFocus();
}

RecipeActions IngredientsPage::actions(const std::function<void()>& save) {
    auto actions = recipe_actions({editor_, ports_, Opener::session, this}, pages_, save);
    actions.save_as = [this] { save_recipe_as(); };
    actions.print = [this] { print_or_export(ports_, editor_.view, this, ReportPart::recipe); };
    return actions;
}

QLayout* IngredientsPage::page_part() {
    auto* const line = new QHBoxLayout;
    const auto& widgets = panel_.widgets();
    line->addWidget(set_to_button());
    line->addStretch();
    for (const auto* const key : {"save_as", "print", "help"}) line->addWidget(&widgets.field(key));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    for (auto* const button : buttons->buttons()) // Enter is for the fields
        qobject_cast<QPushButton*>(button)->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Ok)->setDefault(false);
    set_tips(*buttons, false);
    add_ok_keys(*this, *buttons->button(QDialogButtonBox::Ok));
    connect(buttons, &QDialogButtonBox::accepted, this, &IngredientsPage::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    line->addWidget(buttons);
    return line;
}

// The page has no menu. Every letter of its own is taken.
QPushButton* IngredientsPage::set_to_button() {
    auto* const button = new QPushButton(tr("Set To..."), this);
    button->setAutoDefault(false);
    set_tip(*button, tr(set_to_meaning));
    press_in_window(*this, set_to_key, *button);
    connect(button, &QPushButton::clicked, this, [this] {
        show_set_to({editor_, ports_, Opener::session, this});
    });
    return button;
}

void IngredientsPage::save_recipe_as() {
    auto& program = ports_.program;
    const auto path = save_recipe_part(editor_.open, ports_.files, ports_.prompts,
                                       folder_path(program.folders, FolderKind::recipes));
    if (!path) return;
    follow_user(program.folders, FolderKind::recipes, *path);
    remember_document(program, *path);
}

void IngredientsPage::accept() {
    is_done_ = true;
    if (!close()) is_done_ = false;
}

void IngredientsPage::dismiss() {
    is_done_ = true;
    close();
}

bool IngredientsPage::may_close() {
    for (const auto name : {yeast_water_template(Opener::session), extras_template(Opener::session)})
        pages_.dismiss(name);
    if (!is_done_) put_back(editor_, before_);
    is_done_ = true;
    return true;
}

void IngredientsPage::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) return void(close());
    ToolWindow::keyPressEvent(event);
}

} // namespace wortlex
