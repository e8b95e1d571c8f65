#include "forms/form.h"

#include "base/number.h"
#include "measures/rounding.h"

#include <algorithm>
#include <cassert>

namespace wortlex {

NumberRow& Rows::number(std::string key, Binding<float> value) {
    return add<NumberRow>(std::move(key), std::move(value), NumberRow::Scale::plain, nullptr);
}

NumberRow& Rows::signed_number(std::string key, Binding<float> value) {
    return add<NumberRow>(std::move(key), std::move(value), NumberRow::Scale::signed_plain, nullptr);
}

NumberRow& Rows::sg(std::string key, Binding<float> value, const Settings& settings) {
    return add<NumberRow>(std::move(key), std::move(value), NumberRow::Scale::sg, &settings);
}

NumberRow& Rows::plato(std::string key, Binding<float> value, const Settings& settings) {
    return add<NumberRow>(std::move(key), std::move(value), NumberRow::Scale::plato, &settings);
}

IntegerRow& Rows::integer(std::string key, Binding<std::int32_t> value) {
    return add<IntegerRow>(std::move(key), std::move(value));
}

IntegerRow& Rows::temperature(std::string key, Binding<std::int32_t> value, Live<TemperatureUnits> units) {
    return integer(std::move(key), std::move(value)).temperature(std::move(units));
}

ParsedRow& Rows::parsed(std::string key, std::function<std::string()> text,
                        std::function<bool(const std::string&)> take) {
    return add<ParsedRow>(std::move(key), std::move(text), std::move(take));
}

ShownRow& Rows::shown(std::string key, std::function<std::string()> text) {
    return add<ShownRow>(std::move(key), std::move(text));
}

ShownRow& Rows::shown_number(std::string key, std::function<float()> value, Live<std::string> pattern) {
    return shown(std::move(key), [value = std::move(value),
                                  pattern = std::move(pattern)] { return formatted(pattern(), value()); })
        .figure();
}

ShownRow& Rows::shown_sg(std::string key, std::function<float()> value, const Settings& settings) {
    return shown_number(
        std::move(key), [value = std::move(value)] { return trunc_to_precision(value(), 5); },
        [&settings] { return sg_pattern(0, settings); });
}

ShownRow& Rows::shown_plato(std::string key, std::function<float()> value, const Settings& settings) {
    return shown_number(
        std::move(key), [value = std::move(value)] { return trunc_to_precision(value(), 3); },
        [&settings] { return plato_pattern(0, settings); });
}

ChoiceRow& Rows::choice(std::string key, Binding<std::int32_t> code, std::vector<Live<std::string>> words) {
    return add<ChoiceRow>(std::move(key), std::move(code), std::move(words));
}

CheckRow& Rows::check(std::string key, Binding<bool> value) {
    return add<CheckRow>(std::move(key), std::move(value));
}

NoteRow& Rows::note(std::string key, const Live<std::string>& text) {
    return add<NoteRow>(std::move(key)).label(text);
}

SwatchRow& Rows::swatch(std::string key, std::function<std::uint32_t()> colour) {
    return add<SwatchRow>(std::move(key), std::move(colour));
}

CanvasRow& Rows::canvas(std::string key, Live<Extent> least, std::function<void(Surface&)> draw) {
    return add<CanvasRow>(std::move(key), std::move(least), std::move(draw));
}

ListRow& Rows::list(std::string key, std::vector<ListColumn> columns, std::function<std::size_t()> count,
                    std::function<std::string(std::size_t row, std::size_t column)> cell) {
    return add<ListRow>(std::move(key), std::move(columns), std::move(count), std::move(cell));
}

ButtonRow& Rows::button(std::string key, const Live<std::string>& caption, std::function<void()> press) {
    return add<ButtonRow>(std::move(key), std::move(press)).label(caption);
}

GridRow& Rows::grid(std::string key, std::vector<Live<std::string>> captions) {
    return add<GridRow>(std::move(key), std::move(captions));
}

void Rows::walk(const std::function<void(Row&)>& action) const {
    for (const auto& row : rows_) row->walk(action);
}

void GridRow::walk(const std::function<void(Row&)>& action) {
    action(*this);
    for (const auto& line : lines) line->cells.walk(action);
}

Rows& GridRow::line(Live<std::string> line_label) {
    lines.push_back(std::make_unique<Line>(Line{std::move(line_label), {}}));
    return lines.back()->cells;
}

Rows& Form::group(Live<std::string> heading) {
    groups_.push_back(std::make_unique<Group>(Group{std::move(heading), column_is_due_, {}}));
    column_is_due_ = false;
    return groups_.back()->content;
}

Rows& Form::rows() {
    return groups_.empty() ? group() : groups_.back()->content;
}

bool Form::finish(Row& row, bool has_changed, const Row* being_typed) {
    if (!has_changed) return false;
    row.edited = true;
    if (row.after_edit) row.after_edit();
    for (const auto& hook : edit_hooks_) hook(row);
    if (show_again) show_again(being_typed);
    return true;
}

bool Form::type(EntryRow& row, TextField& field) {
    if (row.is_number() && !read_decimal_mark(row, field)) return false;
    return finish(row, row.typed(field), &row);
}

bool Form::spin(EntryRow& row, TextField& field, Spin direction) {
    return finish(row, row.spun(field, direction), nullptr);
}

bool Form::choose(ChoiceRow& row, std::size_t option) {
    const bool has_changed = finish(row, row.choose(option), nullptr);
    if (row.pick) row.pick();
    return has_changed;
}

bool Form::check(CheckRow& row, bool checked) {
    if (row.checked.get() == checked) return false;
    row.checked.set(checked);
    return finish(row, true, nullptr);
}

// A selection is no edit of the document, but other rows may hang on it.
void Form::select(ListRow& row, std::int32_t index) const {
    if (row.selected == nullptr || *row.selected == index) return;
    *row.selected = index;
    if (row.after_edit) row.after_edit();
    if (show_again) show_again(&row);
}

void Form::leave() const {
    for (const auto& hook : leave_hooks_) hook();
}

// What was edited may have come to lie beyond a range that changed after it.
bool Form::accept() const {
    if (may_accept_ && !may_accept_()) return false;
    for_each([](Row& row) {
        const auto* const entry = dynamic_cast<EntryRow*>(&row);
        if (entry != nullptr && entry->edited && entry->is_enabled()) entry->hold();
    });
    for (const auto& hook : accept_hooks_) hook();
    return true;
}

void Form::cancel() const {
    for (const auto& hook : cancel_hooks_) hook();
}

void Form::begin() const {
    for (const auto& hook : begin_hooks_) hook();
}

bool Form::is_changed() const {
    return std::any_of(change_checks_.begin(), change_checks_.end(),
                       [](const auto& check) { return check(); });
}

void Form::keep() const {
    for (const auto& hook : keep_hooks_) hook();
    begin();
}

void Form::for_each(const std::function<void(Row&)>& action) const {
    for (const auto& group : groups_) group->content.walk(action);
}

bool Form::has(std::string_view key) const {
    return find(key) != nullptr;
}

Row& Form::row(std::string_view key) const {
    auto* const found = find(key);
    assert(found != nullptr);
    return *found;
}

Row* Form::find(std::string_view key) const {
    Row* found = nullptr;
    for_each([&](Row& row) {
        if (row.key == key) found = &row;
    });
    return found;
}

std::string Form::heading_of(const Row& row) const {
    for (const auto& group : groups_) {
        bool is_here = false;
        group->content.walk([&](const Row& one) { is_here = is_here || &one == &row; });
        if (is_here) return group->heading();
    }
    return {};
}

} // namespace wortlex
