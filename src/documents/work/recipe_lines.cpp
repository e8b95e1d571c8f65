#include "documents/work/recipe_lines.h"

#include "documents/recipe_gravity.h"

#include <algorithm>
#include <numeric>

namespace wortlex {
namespace {

constexpr double extra_step = 0.05;

template <class Line>
std::optional<std::size_t> selected_in(const std::vector<Line>& lines, std::int32_t selected) {
    if (selected < 0 || static_cast<std::size_t>(selected) >= lines.size()) return std::nullopt;
    return static_cast<std::size_t>(selected);
}

template <class Line>
void insert(std::vector<Line>& lines, Line line, std::int32_t& selected) {
    const auto before = selected_in(lines, selected);
    const bool is_last = !before || *before + 1 == lines.size();
    const auto place = is_last ? lines.size() : *before;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place), std::move(line));
    selected = static_cast<std::int32_t>(place);
}

template <class Line>
void erase(std::vector<Line>& lines, std::size_t line, std::int32_t& selected) {
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line));
    selected = std::max(selected - 1, 0);
}

// Whether the amount was changed.
bool step_weight(float& amount, float increment, Step step) {
    if (step == Step::less && !(amount > increment)) return false;
    amount = narrow(step == Step::more ? double{amount} + increment : double{amount} - increment);
    return true;
}

std::int32_t longer(std::int32_t time, std::int32_t boil) {
    if (time > boil) return std::max(time, boil + 2);
    return time + 5 > boil ? boil + 1 : time + 5;
}

std::int32_t shorter(std::int32_t time, std::int32_t boil) {
    if (time > boil) return std::min(time - 1, boil + 1);
    return time - 5 < -5 ? time : time - 5;
}

void change_malts(RecipeEditor& editor, std::string_view name, const std::function<void()>& change) {
    edit(editor, name, [&] {
        change();
        malts_changed(editor.open);
    });
}

} // namespace

std::optional<std::size_t> selected_malt(const RecipeEditor& editor) {
    return selected_in(editor.open.document.malts, editor.view.selected_malt);
}

std::optional<std::size_t> selected_hop(const RecipeEditor& editor) {
    return selected_in(editor.open.document.hops, editor.view.selected_hop);
}

std::optional<std::size_t> selected_extra(const RecipeEditor& editor) {
    return selected_in(editor.open.document.extras, editor.view.selected_extra);
}

void add_malt(RecipeEditor& editor, const MaltRecord& malt) {
    change_malts(editor, "New Malt", [&] {
        insert(editor.open.document.malts, new_malt_line(malt, editor.open.settings.grain_increment),
               editor.view.selected_malt);
    });
}

void append_malt(RecipeEditor& editor, const MaltUse& line) {
    change_malts(editor, "New Malt", [&] {
        editor.view.selected_malt = -1;
        insert(editor.open.document.malts, line, editor.view.selected_malt);
    });
}

void delete_malt(RecipeEditor& editor) {
    const auto line = selected_malt(editor);
    if (!line) return;
    change_malts(editor, "Delete Malt",
                 [&] { erase(editor.open.document.malts, *line, editor.view.selected_malt); });
}

void replace_malt(RecipeEditor& editor, std::size_t line, const MaltUse& changed) {
    change_malts(editor, "Malt", [&] {
        editor.open.document.malts[line] = changed;
        editor.open.document.malts[line].points = 0;
    });
}

void set_malt_share(RecipeEditor& editor, std::size_t line, float percent) {
    auto& malts = editor.open.document.malts;
    const double total = std::accumulate(malts.begin(), malts.end(), 0.0,
                                         [](double sum, const MaltUse& malt) { return sum + malt.amount; });
    const double others = total - malts[line].amount;
    if (!(others > 0)) return;
    const double share = total * percent / 100;
    change_malts(editor, "Malt Share", [&] {
        for (auto& malt : malts) malt.amount = narrow(malt.amount * (total - share) / others);
        malts[line].amount = narrow(share);
    });
}

void step_malt(RecipeEditor& editor, Step step) {
    const auto line = selected_malt(editor);
    if (!line) return;
    auto& malt = editor.open.document.malts[*line];
    float amount = malt.amount;
    if (!step_weight(amount, editor.open.settings.grain_increment, step)) return;
    change_malts(editor, "Malt Amount", [&] {
        malt.amount = amount;
        malt.points = 0;
    });
}

void add_hop(RecipeEditor& editor, const HopRecord& hop) {
    const auto& open = editor.open;
    edit(editor, "New Hop", [&] {
        auto line = new_hop_line(hop, open.document.boil_minutes, open.settings.hop_increment);
        insert(open.document.hops, line, editor.view.selected_hop);
        hop_added(open, *selected_hop(editor));
    });
}

void append_hop(RecipeEditor& editor, const HopUse& line) {
    edit(editor, "New Hop", [&] {
        editor.view.selected_hop = -1;
        insert(editor.open.document.hops, line, editor.view.selected_hop);
        hop_added(editor.open, *selected_hop(editor));
    });
}

void delete_hop(RecipeEditor& editor) {
    const auto line = selected_hop(editor);
    if (!line) return;
    edit(editor, "Delete Hop", [&] {
        erase(editor.open.document.hops, *line, editor.view.selected_hop);
        hop_removed(editor.open);
    });
}

void replace_hop(RecipeEditor& editor, std::size_t line, const HopUse& changed) {
    edit(editor, "Hop", [&] { change_hop(editor.open, line, [&](HopUse& hop) { hop = changed; }); });
}

void step_hop(RecipeEditor& editor, Step step) {
    const auto line = selected_hop(editor);
    if (!line) return;
    float amount = editor.open.document.hops[*line].amount;
    if (!step_weight(amount, editor.open.settings.hop_increment, step)) return;
    edit(editor, "Hop Amount",
         [&] { change_hop(editor.open, *line, [&](HopUse& hop) { hop.amount = amount; }); });
}

void step_boil(RecipeEditor& editor, Step step) {
    const auto line = selected_hop(editor);
    if (!line) return;
    const auto time = editor.open.document.hops[*line].boil_time;
    const auto boil = std::clamp(editor.open.document.boil_minutes, 0, 30000); // as far as the line can tell
    const auto changed =
        static_cast<std::int16_t>(step == Step::more ? longer(time, boil) : shorter(time, boil));
    if (changed == time) return;
    edit(editor, "Hop Time",
         [&] { change_hop(editor.open, *line, [&](HopUse& hop) { hop.boil_time = changed; }); });
}

void add_extra(RecipeEditor& editor, const ExtraRecord& extra) {
    insert(editor.open.document.extras, {.record = extra, .amount = 0}, editor.view.selected_extra);
    tell_change(editor);
}

void delete_extra(RecipeEditor& editor) {
    const auto line = selected_extra(editor);
    if (!line) return;
    erase(editor.open.document.extras, *line, editor.view.selected_extra);
    tell_change(editor);
}

void replace_extra(RecipeEditor& editor, const ExtraUse& changed) {
    const auto line = selected_extra(editor);
    if (!line) return;
    editor.open.document.extras[*line] = changed;
    tell_change(editor);
}

void step_extra(RecipeEditor& editor, Step step) {
    const auto line = selected_extra(editor);
    if (!line) return;
    auto& amount = editor.open.document.extras[*line].amount;
    constexpr double dust = 0.00001; // of adding up 0.05 in 32 bits: what shows as 0.05 can be taken
    if (step == Step::less && amount + dust < extra_step) return;
    const double changed = step == Step::more ? amount + extra_step : amount - extra_step;
    amount = changed < dust ? 0 : narrow(changed);
    tell_change(editor);
}

void step_extra_time(RecipeEditor& editor, Step step) {
    const auto line = selected_extra(editor);
    if (!line) return;
    auto& time = editor.open.document.extras[*line].record.time;
    if (step == Step::less && time < 1) return;
    if (step == Step::more && time == std::numeric_limits<std::int32_t>::max()) return;
    time += step == Step::more ? 1 : -1;
    tell_change(editor);
}

} // namespace wortlex
