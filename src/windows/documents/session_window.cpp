#include "windows/documents/session_window.h"

#include "brewing/calendar.h"
#include "desktop/system_ports.h"
#include "documents/method_check.h"
#include "documents/opening.h"
#include "program/documents.h"
#include "program/inventory.h"
#include "windows/calculators/date_dialogs.h"
#include "windows/documents/ingredients_page.h"
#include "windows/documents/inventory_window.h"
#include "windows/documents/session_log.h"
#include "windows/documents/session_mash_window.h"
#include "windows/documents/session_printouts.h"
#include "windows/documents/session_water_page.h"
#include "windows/reports/print_options_window.h"

#include <utility>

namespace wortlex {

SessionWindow::SessionWindow(const WindowPorts& given, const WindowInfo& info, QWidget* origin)
    : DocumentWindow(given, info, origin), subject_{editor(), program().color_table, program().water_usage,
                                                    actions()},
      panel_(subject_, places(program()), this) {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(&panel_, 1);
    layout->addLayout(bottom_part());
    begin([this] { print(); });
}

SessionActions SessionWindow::actions() {
    SessionActions actions;
    actions.pick_date = [this] { pick_date(); };
    actions.pick_recipe = [this] { pick_recipe(); };
    actions.show_colour = [this] { wortlex::show_colour(side(), pages()); };
    actions.ingredients = [this] { show_ingredients(); };
    actions.mash = [this] { show_mash(); };
    actions.water_needed = [this] { open_page(water_needed_page(editor(), ports())); };
    actions.water_profile = [this] { open_page(water_profile_page(editor(), ports())); };
    actions.efficiency = [this] { open_page(efficiency_page(editor(), ports())); };
    actions.fermentation = [this] { open_page(fermentation_page(editor(), ports())); };
    actions.bottling = [this] { open_page(bottling_page(editor(), ports())); };
    actions.notes = [this] { open_page(session_notes_page(editor(), ports())); };
    actions.analyze = [this] {
        pages().show("BATCHINVENTORY", [this] { return new InventoryWindow(ports(), this); });
    };
    actions.finalize = [this] {
        save_by([this](DocumentSaving& current) { return finalize_inventory(program(), current); });
    };
    actions.save = [this] { save_document(SaveAs::no); };
    actions.print = [this] { print(); };
    return actions;
}

RecipeSide SessionWindow::side() {
    return {editor(), ports(), Opener::session, this};
}

void SessionWindow::open_page(const RecipePageUse& page) {
    show_page(side(), pages(), page, [this] { save_document(SaveAs::no); });
}

void SessionWindow::print() {
    if (document().session.has_recipe != 0) print_or_export(ports(), editor().view, this);
}

QLayout* SessionWindow::bottom_part() {
    auto* const line = new QHBoxLayout;
    line->addStretch();
    for (const auto* const key : {"save", "print", "help"}) line->addWidget(&panel_.widgets().field(key));
    line->addWidget(ok_button("Closes the session, after asking for unsaved changes"));
    return line;
}

DocumentWindow::Opened SessionWindow::open_live() {
    const auto& open = editor().open;
    if (document().session.has_recipe != 0) recalculate_opened(open);
    return {snapshot_document(open, SnapshotScope::with_schedule), {}};
}

QWidget& SessionWindow::first_field() const {
    return panel_.widgets().field(document().session.has_recipe != 0 ? "ingredients" : "pick_recipe");
}

void SessionWindow::make_new() {
    const SystemClock clock;
    new_session(program(), clock.today());
}

QString SessionWindow::state_words() const {
    return document().session.inventory_finalized != 0 ? QStringLiteral(" (finalized)") : QString();
}

void SessionWindow::follow(Change change) {
    DocumentWindow::follow(change);
    for (const int command : {command::save, command::save_as, command::print})
        action(command)->setEnabled(document().session.has_recipe != 0);
}

void SessionWindow::pick_date() {
    const auto start = existing_day(brew_date(document().session));
    if (const auto day = pick_brewing_date(ports(), this, start)) set_brew_date(editor(), *day);
}

void SessionWindow::pick_recipe() {
    if (pages().show_modal_child() || !pages().may_leave(ports().prompts)) return;
    auto recipe = choose_recipe_for_session(program(), ports().files, ports().prompts);
    if (!recipe) return;
    pages().dismiss(); // they are about the one before
    wortlex::pick_recipe(editor(), std::move(*recipe));
    document().water_to_grain = 0;
    const auto& open = editor().open;
    if (const auto warning = method_check_on_pick(open.document, open.settings))
        ports().prompts.tell({.text = *warning, .icon = Icon::warning, .is_advice = true});
}

void SessionWindow::show_ingredients() {
    const auto& name = window_info("BATCHRECIPEDIALOG").template_name;
    pages().show(name, [this] {
        return new IngredientsPage(
            editor(), ports(), pages(), [this] { save_document(SaveAs::no); }, this);
    });
}

void SessionWindow::show_simple_mash() {
    pages().show("MASHENTRYDIALOG1", [this] {
        const SessionMashLinks links{
            .printed = [this] { return printed_session(editor().open); },
            .save = [this] { save_document(SaveAs::no); },
            .revert_to_complex = [this] { revert_to(ScheduleKind::complex); },
            .print = [this](const SimpleMashWork& work) { print_session_mash(ports(), work); }};
        return make_session_mash_window(ports(), editor(), links, this);
    });
}

} // namespace wortlex
