#include "documents/work/recipe_editor.h"

#include "documents/recipe_gravity.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view batch_size_key = "batch_size";
constexpr std::string_view efficiency_key = "efficiency";

/// What a page changed that is still open.
constexpr std::string_view page_changes = "Page Changes";

template <class Line>
std::vector<float> amounts_of(const std::vector<Line>& lines) {
    std::vector<float> amounts;
    amounts.reserve(lines.size());
    for (const auto& line : lines) amounts.push_back(line.amount);
    return amounts;
}

template <class Line>
void put_back(std::vector<Line>& lines, const std::vector<float>& amounts) {
    for (std::size_t i = 0; i < std::min(lines.size(), amounts.size()); ++i) lines[i].amount = amounts[i];
}

AmountsAtStart amounts_now(const BrewDocument& document, std::string_view edit) {
    return {std::string(edit),
            document.batch_size,
            document.wort_size,
            document.efficiency,
            document.simple_mash.dough_in_water,
            amounts_of(document.malts),
            amounts_of(document.hops),
            amounts_of(document.extras)};
}

// The amounts at the start of this edit, taken now if it starts now.
const AmountsAtStart& amounts_at_start(RecipeEditor& editor, std::string_view edit) {
    if (!editor.at_start) editor.at_start = amounts_now(editor.open.document, edit);
    return *editor.at_start;
}

void forget_other_start(RecipeEditor& editor, std::string_view edit) {
    if (editor.at_start && editor.at_start->edit != edit) editor.at_start.reset();
}

void put_back_all(BrewDocument& document, const AmountsAtStart& amounts) {
    document.wort_size = amounts.wort_size;
    document.simple_mash.dough_in_water = amounts.dough_in_water;
    put_back(document.malts, amounts.malts);
    put_back(document.hops, amounts.hops);
    put_back(document.extras, amounts.extras);
}

// A line that was selected may be gone.
template <class Line>
void keep_within(std::int32_t& selected, const std::vector<Line>& lines) {
    const auto last = static_cast<std::int32_t>(std::min<std::size_t>(lines.size(), 1U << 30)) - 1;
    selected = std::max(std::min(selected, last), 0);
}

void after_travel(RecipeEditor& editor) {
    editor.at_start.reset();
    keep_within(editor.view.selected_malt, editor.open.document.malts);
    keep_within(editor.view.selected_hop, editor.open.document.hops);
    keep_within(editor.view.selected_extra, editor.open.document.extras);
    if (editor.view.locks.efficiency) editor.view.locks.locked_efficiency = editor.open.document.efficiency;
    tell_change(editor);
}

} // namespace

void start_editing(RecipeEditor& editor, const RecipeView& view) {
    editor.view = view;
    editor.at_start.reset();
    editor.history.start(editor.open);
    tell_change(editor);
}

void edit(RecipeEditor& editor, std::string_view name, const std::function<void()>& change,
          std::string_view merge_key) {
    if (editor.history.note(editor.open, page_changes)) editor.at_start.reset();
    forget_other_start(editor, merge_key);
    change();
    editor.history.note(editor.open, name, merge_key);
    tell_change(editor);
}

void tell_change(const RecipeEditor& editor) {
    if (editor.notices != nullptr) editor.notices->tell(Change::document);
}

void end_edit(RecipeEditor& editor) {
    editor.at_start.reset();
    editor.history.end_step();
}

void end_page(RecipeEditor& editor, std::string_view name) {
    end_edit(editor);
    editor.history.note(editor.open, name);
    tell_change(editor);
}

bool undo(RecipeEditor& editor) {
    editor.history.note(editor.open, page_changes);
    const bool undone = editor.history.undo(editor.open);
    after_travel(editor);
    return undone;
}

bool redo(RecipeEditor& editor) {
    editor.history.note(editor.open, page_changes);
    const bool redone = editor.history.redo(editor.open);
    after_travel(editor);
    return redone;
}

void set_batch_size(RecipeEditor& editor, float gallons) {
    const auto change = [&] {
        auto& document = editor.open.document;
        const auto& start = amounts_at_start(editor, batch_size_key);
        if (editor.view.locks.to_batch) put_back_all(document, start);
        document.batch_size = gallons;
        batch_size_changed(editor.open, start.batch_size, editor.view.locks);
    };
    edit(editor, "Batch Size", change, batch_size_key);
}

void set_wort_size(RecipeEditor& editor, float gallons) {
    const auto change = [&] {
        editor.open.document.wort_size = gallons;
        wort_size_changed(editor.open);
    };
    edit(editor, "Wort Size", change, "wort_size");
}

void set_efficiency(RecipeEditor& editor, float percent) {
    const auto change = [&] {
        auto& document = editor.open.document;
        const auto& start = amounts_at_start(editor, efficiency_key);
        if (editor.view.locks.efficiency) {
            put_back(document.malts, start.malts);
            editor.view.locks.locked_efficiency = start.efficiency;
        }
        document.efficiency = narrow(percent / 100.0);
        efficiency_changed(editor.open, editor.view.locks);
    };
    edit(editor, "Efficiency", change, efficiency_key);
}

void set_boil_minutes(RecipeEditor& editor, std::int32_t minutes) {
    edit(
        editor, "Boil Time", [&] { editor.open.document.boil_minutes = minutes; }, "boil_minutes");
}

void set_title(RecipeEditor& editor, std::string_view windows1252) {
    edit(
        editor, "Recipe Name", [&] { editor.open.document.title.assign(windows1252); }, "title");
}

void set_kind(RecipeEditor& editor, RecipeKind kind) {
    edit(editor, "Recipe Kind", [&] {
        editor.open.document.recipe_kind = kind;
        recipe_kind_changed(editor.open);
    });
}

void lock_to_batch(RecipeEditor& editor, bool locked) {
    end_edit(editor);
    editor.view.locks.to_batch = locked;
}

void lock_efficiency(RecipeEditor& editor, bool locked) {
    end_edit(editor);
    editor.view.locks.efficiency = locked;
    editor.view.locks.locked_efficiency = editor.open.document.efficiency;
}

void set_style(RecipeEditor& editor, const StyleRecord& style) {
    edit(editor, "Style", [&] {
        editor.open.document.style = style;
        editor.open.document.target_ibu =
            truncate(style.min_ibu + (double{style.max_ibu} - style.min_ibu) / 2);
    });
}

void choose_yeast(RecipeEditor& editor, const YeastRecord& yeast) {
    edit(editor, "Yeast", [&] { editor.open.document.yeast.record = yeast; });
}

void set_simple_mash(RecipeEditor& editor, const SimpleMash& mash) {
    edit(editor, "Mash Schedule", [&] {
        editor.open.document.simple_mash = mash;
        mash_refresh(editor.open);
    });
}

// What a save has left beside the kind would count as complex.
void set_schedule_kind(RecipeEditor& editor, ScheduleKind kind) {
    edit(editor, "Mash Schedule Kind", [&] {
        editor.open.document.mash_flags = static_cast<std::uint8_t>(kind);
        mash_refresh(editor.open);
    });
}

} // namespace wortlex
