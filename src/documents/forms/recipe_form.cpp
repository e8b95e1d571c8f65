#include "documents/forms/recipe_form.h"

#include "base/windows1252.h"
#include "documents/figure_catalogue.h"
#include "documents/forms/cell_typing.h"
#include "documents/forms/style_rows.h"
#include "documents/forms/summary_rows.h"
#include "documents/recipe_gravity.h"
#include "measures/units.h"

namespace wortlex {
namespace {

using Get = std::function<float()>;

Get value_of(const Figure& figure, const OpenDocument& open) {
    return [&figure, &open] { return narrow(figure.value(source_of(open))); };
}

Get shown_of(const Figure& figure, const OpenDocument& open) {
    return [&figure, &open] { return narrow(shown_value(figure, source_of(open))); };
}

std::string pattern_of(const Figure& figure) {
    return "%0." + std::to_string(figure.decimals) + "f";
}

bool is_extract(const BrewDocument& document) {
    return document.recipe_kind == RecipeKind::extract;
}

void name_rows(Rows& rows, RecipeEditor& editor) {
    constexpr std::size_t longest_title = 80;
    auto& document = editor.open.document;
    rows.text(
            "title", [&] { return document.title.view(); },
            [&](std::string_view stored) { set_title(editor, stored); }, longest_title)
        .label("&Recipe Name:")
        .width(40);
    rows.choice("recipe_kind",
                {[&] { return static_cast<std::int32_t>(document.recipe_kind); },
                 [&](std::int32_t kind) { set_kind(editor, static_cast<RecipeKind>(kind)); }},
                {"All &Grain", "E&xtract", "Part&ial"})
        .codes({0, 2, 1});
}

NumberRow& size_row(Rows& rows, const Figure& size, const RecipeEditor& editor, std::string_view label,
                    std::function<void(float)> set) {
    const auto& settings = editor.open.settings;
    return rows.number(std::string(size.key), {value_of(size, editor.open), std::move(set)})
        .label([&settings, label] { return size_label(label, settings); })
        .shown_as([&settings](float value) { return to_shown_volume(value, settings); },
                  [&settings](float shown) { return from_shown_volume(shown, settings); })
        .range(1.0F, 100000.0F)
        .step(0.5F)
        .format("%0.1f");
}

void batch_row(Rows& rows, RecipeEditor& editor) {
    size_row(rows, recipe_figure::batch_size, editor, "&Batch Size",
             [&editor](float gallons) { set_batch_size(editor, gallons); });
}

void boil_row(Rows& rows, RecipeEditor& editor) {
    rows.integer(std::string(recipe_figure::boil_minutes.key),
                 {[&editor] { return editor.open.document.boil_minutes; },
                  [&editor](std::int32_t minutes) { set_boil_minutes(editor, minutes); }})
        .label("Boil &Time")
        .typed(5, 500)
        .spun(1, 500, 5)
        .width(6);
}

void wort_row(Rows& rows, RecipeEditor& editor) {
    const auto& settings = editor.open.settings;
    size_row(rows, recipe_figure::wort_size, editor, "&Wort Size", [&editor](float gallons) {
        set_wort_size(editor, gallons);
    }).enabled([&settings] {
          return settings.wort_equals_batch == 0;
      }).disabled_because("By the settings it always equals the batch size");
}

void efficiency_rows(Rows& rows, RecipeEditor& editor) {
    const auto& document = editor.open.document;
    const auto mashes = [&document] { return !is_extract(document); };
    rows.integer(std::string(recipe_figure::efficiency.key),
                 {[&document] { return whole_percent(document.efficiency); },
                  [&editor](std::int32_t percent) { set_efficiency(editor, static_cast<float>(percent)); }})
        .label("% &Efficiency")
        .range(5, 100)
        .step(1)
        .outside(Outside::clamp)
        .disabled_because("An extract recipe has no mash")
        .enabled(mashes)
        .when_disabled(" ") // no text at all would leave the figure standing
        .width(6);
    rows.check("efficiency_lock", {[&editor] { return editor.view.locks.efficiency; },
                                   [&editor](bool locked) { lock_efficiency(editor, locked); }})
        .label("Loc&k")
        .named("Lock efficiency")
        .hint("Keeps the gravity: a change of efficiency changes the amounts of grain instead")
        .disabled_because("An extract recipe has no mash")
        .enabled(mashes);
}

// In the order in which they stand, and in which the tab key visits them.
void size_rows(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    batch_row(rows, editor);
    boil_row(rows, editor);
    rows.button("pre_boil", "Pre-Boi&l", subject.actions.pre_boil)
        .hint("Volume and gravity of the wort before the boil");
    wort_row(rows, editor);
    efficiency_rows(rows, editor);
    rows.check("lock_to_batch", {[&editor] { return editor.view.locks.to_batch; },
                                 [&editor](bool locked) { lock_to_batch(editor, locked); }})
        .label("Lock Ingredients to Batc&h Size")
        .hint("A change of the batch size changes all amounts with it: the beer stays the same");
}

// A figure to read, in its own decimals.
ShownRow& figure_row(Rows& rows, std::string key, const Figure& figure, const OpenDocument& open) {
    return rows.shown_number(std::move(key), shown_of(figure, open), pattern_of(figure));
}

void figure_rows(Rows& rows, const RecipeSubject& subject) {
    const auto& open = subject.editor.open;
    const auto& settings = open.settings;
    rows.shown_sg("sg", value_of(recipe_figure::sg, open), settings).label("SG");
    rows.shown_plato("plato", value_of(recipe_figure::plato, open), settings).label("Plato");
    figure_row(rows, "total_ibu", recipe_figure::total_ibu, open).label("Total IBU's");
    const auto unit = [&settings] { return std::string(colour_unit(settings).usual); };
    figure_row(rows, "colour", recipe_figure::colour, open)
        .label([unit] { return "Est. " + unit(); })
        .unit([unit] { return "(" + unit() + ")"; });
    rows.swatch("swatch",
                [&open, &colours = subject.colours] {
                    return swatch_colour(colours, open.figures.colour.srm, open.settings);
                })
        .label("&CLR")
        .hint("The color of the beer in the glass; press for its detail")
        .pressed(subject.actions.show_colour);
}

// A button about the selected line.
void line_button(Rows& rows, const std::string& key, const std::string& caption, const std::string& meaning,
                 std::function<void()> action, const std::function<bool()>& has_line) {
    rows.button(key, caption, std::move(action))
        .named(meaning)
        .hint(meaning)
        .enabled(has_line)
        .disabled_because("The list is empty");
}

void malt_list(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    const auto& settings = editor.open.settings;
    rows.list(
            "malts",
            {{.caption = "Malt Name", .width = 24, .stretches = true},
             {.caption = "Origin", .width = 11},
             {.caption = [&] { return malt_value_head(editor.view, settings); },
              .is_number = true,
              .width = 10},
             {.caption = [&] { return malt_colour_head(settings); },
              .is_number = true,
              .hint = "Color of the malt, in degrees Lovibond or EBC"},
             {.caption = [&] { return std::string(grain_unit(settings).dotted); }, .is_number = true},
             {.caption = "%",
              .is_number = true,
              .width = 6,
              .hint = "Share of the weight of all malts; one that is typed leaves that weight as it is"}},
            [&] { return editor.open.document.malts.size(); },
            [&](std::size_t row, std::size_t column) {
                return malt_cell(editor.open, editor.view, row, column);
            })
        .label("Malts")
        .when_empty("Insert adds a malt")
        .selection(editor.view.selected_malt)
        .header_clicked([&editor](std::size_t column) { sort_malts(editor, column); })
        .cells_typed(malt_cells(editor))
        .hint("A number or F2 changes the framed cell, Enter opens the line (Alt+1)")
        .activated(subject.actions.edit_malt);
}

void malt_rows(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    auto& view = editor.view;
    const auto& settings = editor.open.settings;
    malt_list(rows, subject);
    rows.choice("show_potential",
                {[&view] { return view.show_potential ? 0 : 1; },
                 [&view](std::int32_t code) { view.show_potential = code == 0; }},
                {"Potential", "Extract"})
        .named("Malts shown with their")
        .hint("What each malt could yield, or what it yields in this recipe")
        .option_enabled([&settings](std::size_t option) {
            return option != 0 || settings.efficiency_mode != EfficiencyMode::method_2;
        });
    figure_row(rows, "total_grain", recipe_figure::total_grain, editor.open).label([&settings] {
        return grain_unit(settings).capital;
    });
    const std::string unit = grain_unit(settings).usual;
    const auto has_line = [&editor] { return selected_malt(editor).has_value(); };
    rows.button("malt_new", "New", subject.actions.new_malt).named("Add a malt").hint("Add a malt");
    line_button(
        rows, "malt_del", "Del", "Delete the malt", [&editor] { delete_malt(editor); }, has_line);
    line_button(rows, "malt_edit", "Edit", "Edit the malt", subject.actions.edit_malt, has_line);
    line_button(
        rows, "malt_more", "+" + unit, "More of the malt", [&editor] { step_malt(editor, Step::more); },
        has_line);
    line_button(
        rows, "malt_less", "-" + unit, "Less of the malt", [&editor] { step_malt(editor, Step::less); },
        has_line);
    line_button(rows, "malt_detail", "%", "What each malt gives to gravity and color",
                subject.actions.malt_contribution, has_line);
}

void hop_list(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    const auto& settings = editor.open.settings;
    rows.list(
            "hops",
            {{.caption = "Hop Name", .width = 24, .stretches = true},
             {.caption = "Form", .width = 8},
             {.caption = "Alpha", .is_number = true},
             {.caption = [&] { return hop_bitterness_head(editor.view, settings); }, .is_number = true},
             {.caption = [&] { return std::string(hop_list_word(settings)); }, .is_number = true},
             {.caption = "Boil",
              .is_number = true,
              .width = 6,
              .hint = "Minutes before the end of the boil; FW is first wort, MH the mash"}},
            [&] { return editor.open.document.hops.size(); },
            [&](std::size_t row, std::size_t column) {
                return hop_cell(editor.open, editor.view, row, column);
            })
        .label("Hops")
        .when_empty("Insert adds a hop")
        .selection(editor.view.selected_hop)
        .header_clicked([&editor](std::size_t column) { sort_hops(editor, column); })
        .cells_typed(hop_cells(editor))
        .hint("A number or F2 changes the framed cell, Enter opens the line (Alt+2)")
        .activated(subject.actions.edit_hop);
}

void hop_buttons(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    const auto& settings = editor.open.settings;
    const auto has_line = [&editor] { return selected_hop(editor).has_value(); };
    rows.button("hop_new", "New", subject.actions.new_hop).named("Add a hop").hint("Add a hop");
    line_button(
        rows, "hop_del", "Del", "Delete the hop", [&editor] { delete_hop(editor); }, has_line);
    line_button(rows, "hop_edit", "Edit", "Edit the hop", subject.actions.edit_hop, has_line);
    line_button(
        rows, "hop_more", std::string("+") + hop_list_word(settings), "More of the hop",
        [&editor] { step_hop(editor, Step::more); }, has_line);
    line_button(
        rows, "hop_less", std::string("-") + hop_unit(settings).usual, "Less of the hop",
        [&editor] { step_hop(editor, Step::less); }, has_line);
    line_button(rows, "hop_loss", "Loss", "Alpha acid that the hop has lost with age",
                subject.actions.lose_alpha, has_line);
    line_button(
        rows, "boil_more", "+Boil", "Boil the hop longer", [&editor] { step_boil(editor, Step::more); },
        has_line);
    line_button(
        rows, "boil_less", "-Boil", "Boil the hop for less time",
        [&editor] { step_boil(editor, Step::less); }, has_line);
}

void hop_rows(Rows& rows, const RecipeSubject& subject) {
    auto& editor = subject.editor;
    auto& view = editor.view;
    const auto& settings = editor.open.settings;
    hop_list(rows, subject);
    rows.choice("show_ibu",
                {[&view] { return view.show_ibu ? 0 : 1; },
                 [&view](std::int32_t code) { view.show_ibu = code == 0; }},
                {"IBU", [&settings] { return std::string(bittering_unit(settings).usual); }})
        .named("Hops shown in")
        .visible([&settings] { return settings.display_home_bittering != 0; });
    figure_row(rows, "total_hops", recipe_figure::total_hops, editor.open).label([&settings] {
        return hop_unit(settings).usual;
    });
    hop_buttons(rows, subject);
}

void page_rows(Rows& rows, const RecipeSubject& subject) {
    const auto& document = subject.editor.open.document;
    const auto& actions = subject.actions;
    rows.button("yeast_and_water", "Yeast &And Water", actions.yeast_and_water)
        .hint("Opens their page: one is picked there, and all is told of both");
    rows.button("extras_and_notes", "Extras && &Notes", actions.extras_and_notes)
        .hint("Opens the page of spices, finings, fruit, notes and awards");
    summary_rows(rows, document);
    if (kind_of(subject.editor.open) == DocumentKind::session) {
        rows.button("save_as", "Sa&ve As", actions.save_as)
            .hint("Writes the recipe into a file of its own; the session stays as it is");
    } else {
        rows.button("mash_schedule", "&Mash Schedule", actions.mash_schedule)
            .enabled([&document] { return has_mashable_grain(document); })
            .hint("Opens the schedule of the mash: its water, rests and temperatures")
            .disabled_because("There is no grain to mash.");
        rows.button("save", "&Save", actions.save).hint("Writes the recipe into its file");
    }
    rows.button("print", "&Print", actions.print);
    rows.button("help", "Help", actions.help);
}

} // namespace

void recipe_form(Form& form, const RecipeSubject& subject) {
    auto& recipe = form.group("Recipe");
    name_rows(recipe, subject.editor);
    size_rows(recipe, subject);
    auto& style = form.group("Style Guidelines");
    style.button("pick_style", "Pick St&yle", subject.actions.pick_style)
        .hint("Takes a style with its ranges of gravity, bitterness and color");
    style_rows(style, subject.editor.open);
    figure_rows(form.group("Predicted"), subject);
    malt_rows(form.group("Malts"), subject);
    hop_rows(form.group("Hops"), subject);
    page_rows(form.group(), subject);
    form.on_leave([&editor = subject.editor] { end_edit(editor); });
}

} // namespace wortlex
