#include "windows/documents/ingredients_page.h"

#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "desktop/scrolled.h"
#include "desktop/undo_keys.h"
#include "documents/snapshot.h"
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
      editor_(editor), ports_(ports), pages_(pages), before_(begun(editor)),
      opened_(editor.open.document), subject_{editor, ports.program.color_table, actions(save)},
      panel_(subject_, ports, this), ending_(*this, ports.prompts) {
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
    add_page_buttons(*this, *buttons, ending_);
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

void IngredientsPage::keep() {
    before_ = ingredients_of(editor_.open);
    opened_ = before_.recipe;
}

// The log is no business of this page.
bool IngredientsPage::has_changes() const {
    auto image = image_of(editor_.open);
    image.recipe = opened_;
    return document_changed(editor_.open, image);
}

bool IngredientsPage::may_close() {
    const auto end = ending_.settle(has_changes());
    if (end == PageEnd::stays) return false;
    for (const auto name : {yeast_water_template(Opener::session), extras_template(Opener::session)})
        pages_.dismiss(name);
    if (end == PageEnd::cancel) put_back(editor_, before_);
    return true;
}

void IngredientsPage::keyPressEvent(QKeyEvent* event) {
    event->matches(QKeySequence::Cancel) ? void(close()) : ToolWindow::keyPressEvent(event);
}

} // namespace wortlex
