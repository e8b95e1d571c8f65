#include "base/number.h"
#include "forms/ranges.h"

#include <algorithm>

namespace wortlex {

IntegerRow::IntegerRow(std::string row_key, Binding<std::int32_t> value)
    : EntryOptions(std::move(row_key), ColorArea::entries), value_(std::move(value)), typed_low_(-any_whole),
      typed_high_(any_whole), spun_low_(-any_whole), spun_high_(any_whole) {}

IntegerRow& IntegerRow::typed(Live<std::int32_t> low, Live<std::int32_t> high) {
    typed_low_ = std::move(low);
    typed_high_ = std::move(high);
    return *this;
}

IntegerRow& IntegerRow::spun(Live<std::int32_t> low, Live<std::int32_t> high, std::int32_t step) {
    spun_low_ = std::move(low);
    spun_high_ = std::move(high);
    step_ = step;
    return *this;
}

IntegerRow& IntegerRow::range(Live<std::int32_t> low, Live<std::int32_t> high) {
    spun_low_ = low;
    spun_high_ = high;
    return typed(std::move(low), std::move(high));
}

IntegerRow& IntegerRow::step(std::int32_t by) {
    step_ = by;
    return *this;
}

IntegerRow& IntegerRow::outside(Live<Outside> rule) {
    outside_ = std::move(rule);
    return *this;
}

IntegerRow& IntegerRow::format(std::string pattern) {
    pattern_ = std::move(pattern);
    return *this;
}

IntegerRow& IntegerRow::temperature(Live<TemperatureUnits> units) {
    units_ = std::move(units);
    step_ = 1;
    return *this;
}

bool IntegerRow::store(std::int32_t value, bool has_changed) const {
    if (has_changed) value_.set(value);
    return has_changed;
}

void IntegerRow::show(TextField& field) const {
    show_int(field, value_.get(), pattern_);
}

bool IntegerRow::typed(TextField& field) {
    const auto before = value_.get();
    auto value = before;
    if (units_) {
        const bool has_changed = typed_temperature((*units_)(), field, value, number_length);
        return store(value, has_changed);
    }
    const auto text = field.text();
    typed_int(field, value, typed_low_(), typed_high_(), number_length);
    const bool is_read = field.text() == text; // else a character was thrown out
    const auto limit = is_read && outside_() != Outside::ignore
                           ? limit_beyond(text, typed_low_(), typed_high_())
                           : std::nullopt;
    if (limit) value = truncate(*limit);
    const bool has_changed = store(value, value != before);
    if (limit && outside_() == Outside::rewrite) show(field);
    return has_changed;
}

std::optional<SpinRange> IntegerRow::arrow_range() const {
    if (step_ <= 0) return std::nullopt;
    const auto step = static_cast<float>(step_);
    if (units_) return SpinRange{0, static_cast<float>(highest_temperature((*units_)())), step};
    return SpinRange{static_cast<float>(spun_low_()), static_cast<float>(spun_high_()), step};
}

bool IntegerRow::spun(TextField& field, Spin direction) {
    if (step_ <= 0) return false;
    const auto before = value_.get();
    auto value = before;
    if (units_) {
        const bool has_changed = spin_temperature((*units_)(), field, value, number_length, direction);
        return store(value, has_changed);
    }
    spin_int(field, value, *arrow_range(), number_length, direction, pattern_);
    const auto held = std::clamp(value, std::min(spun_low_(), before), std::max(spun_high_(), before));
    const bool is_stored = store(held, held != before);
    if (held != value) show(field);
    return is_stored;
}

std::string IntegerRow::range_words() const {
    if (units_) return range_in_words(0, highest_temperature((*units_)()), any_whole);
    return range_in_words(typed_low_(), typed_high_(), any_whole);
}

bool IntegerRow::is_outside(const std::string& text) const {
    if (units_) return limit_beyond(text, 0, highest_temperature((*units_)())).has_value();
    return limit_beyond(text, typed_low_(), typed_high_()).has_value();
}

void IntegerRow::hold() const {
    if (units_) return; // its fields never leave their range
    const auto before = value_.get();
    const auto held =
        std::clamp(before, std::min(typed_low_(), spun_low_()), std::max(typed_high_(), spun_high_()));
    store(held, held != before);
}

} // namespace wortlex
