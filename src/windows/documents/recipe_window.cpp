#include "windows/documents/recipe_window.h"

#include "desktop/captions.h"
#include "desktop/scrolled.h"
#include "program/export_report.h"
#include "windows/documents/recipe_actions.h"
#include "windows/documents/set_to_dialog.h"
#include "windows/documents/simple_mash_printout.h"
#include "windows/documents/simple_mash_window.h"
#include "windows/mash/mash_chart_window.h"
#include "windows/reports/print_options_window.h"

#include <QPushButton>

namespace wortlex {

RecipeWindow::RecipeWindow(const WindowPorts& given, const WindowInfo& info, QWidget* origin)
    : DocumentWindow(given, info, origin), subject_{editor(), program().color_table, actions()},
      panel_(subject_, given, this) {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new Scrolled(panel_, this), 1);
    layout->addLayout(page_part());
    begin([this] { print(); });
    auto& edit_menu = *findChild<QMenu*>(QStringLiteral("edit_menu"));
    add_set_to(edit_menu);
    panel_.add_line_actions(edit_menu);
}

void RecipeWindow::add_set_to(QMenu& menu) {
    menu.addSeparator();
    auto* const action = menu.addAction(tr("Set &To..."), this, [this] {
        show_set_to({editor(), ports(), Opener::recipe, this});
    });
    action->setShortcut(set_to_key);
    action->setToolTip(tr(set_to_meaning));
}

RecipeActions RecipeWindow::actions() {
    const auto save = [this] { save_document(SaveAs::no); };
    auto actions = recipe_actions({editor(), ports(), Opener::recipe, this}, pages(), save);
    actions.mash_schedule = [this] { show_mash(); };
    actions.save = save;
    actions.print = [this] { print(); };
    return actions;
}

QLayout* RecipeWindow::page_part() {
    auto* const line = new QHBoxLayout;
    const auto& widgets = panel_.widgets();
    line->addWidget(&widgets.field("mash_schedule"));
    line->addStretch();
    for (const auto* const key : {"save", "print", "help"}) line->addWidget(&widgets.field(key));
    line->addWidget(ok_button("Closes the recipe, after asking for unsaved changes"));
    return line;
}

DocumentWindow::Opened RecipeWindow::open_live() {
    const auto& file = document().file;
    auto opened = open_recipe_window(editor().open, file.loaded_from_file || file.recovered);
    return {std::move(opened.saved),
            {.locks = opened.locks,
             .show_potential = opened.show_potential,
             .selected_malt = 0,
             .selected_hop = 0,
             .selected_extra = 0}};
}

void RecipeWindow::print() {
    print_or_export(ports(), editor().view, this);
}

void RecipeWindow::show_simple_mash() {
    pages().show("MASHENTRYDIALOG", [this]() -> ToolWindow* {
        auto& live = document();
        const auto work = open_simple_mash(live.recipe.simple_mash, live.water_to_grain,
                                           live.figures.mash_grain, program().settings);
        // From now on the water itself tells the ratio: worked out from a ratio again it would drift.
        live.water_to_grain = 0;
        return new SimpleMashWindow(
            work, program().settings, MashSide::recipe,
            {.mash_grain = [&live] { return live.figures.mash_grain; },
             .accepted = [this](const SimpleMashWork& planned) { set_simple_mash(editor(), planned.mash); },
             .save = [this] { save_document(SaveAs::no); },
             .revert_to_complex = [this] { revert_to(ScheduleKind::complex); },
             .graph =
                 [this](const SimpleMashWork& planned, QWidget* origin) {
                     open_mash_chart(
                         ports(), "MASHGRAPHDIALOG", [&planned] { return charted(planned.mash, nullptr); },
                         origin);
                 },
             .print =
                 [this](const SimpleMashWork& planned) {
                     ports().pages.show(simple_mash_printout(editor().open, program().color_table, planned));
                 }},
            ports().prompts, places(program()), this);
    });
}

} // namespace wortlex
