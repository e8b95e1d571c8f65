#include "base/number.h"
#include "forms/ranges.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr int scale_width = 4; // of SG and Plato

// A step ends at the limit; what a file brought from beyond it comes back step by step.
float held_step(float stepped, float before, const SpinRange& range) {
    return std::clamp(stepped, std::min(range.low, before), std::max(range.high, before));
}

} // namespace

NumberRow::NumberRow(std::string row_key, Binding<float> value, Scale scale, const Settings* settings)
    : EntryOptions(std::move(row_key), ColorArea::entries), value_(std::move(value)), scale_(scale),
      is_gravity_(scale == Scale::sg), settings_(settings), typed_low_(-anything), typed_high_(anything),
      spun_low_(-anything), spun_high_(anything) {}

NumberRow& NumberRow::typed(Live<float> low, Live<float> high) {
    typed_low_ = std::move(low);
    typed_high_ = std::move(high);
    return *this;
}

NumberRow& NumberRow::spun(Live<float> low, Live<float> high, Live<float> step) {
    spun_low_ = std::move(low);
    spun_high_ = std::move(high);
    step_ = std::move(step);
    return *this;
}

NumberRow& NumberRow::range(Live<float> low, Live<float> high) {
    spun_low_ = low;
    spun_high_ = high;
    return typed(std::move(low), std::move(high));
}

NumberRow& NumberRow::step(Live<float> by) {
    step_ = std::move(by);
    return *this;
}

NumberRow& NumberRow::format(Live<std::string> pattern) {
    pattern_ = std::move(pattern);
    return *this;
}

NumberRow& NumberRow::outside(Outside rule) {
    outside_ = rule;
    return *this;
}

NumberRow& NumberRow::gravity() {
    is_gravity_ = true;
    return *this;
}

NumberRow& NumberRow::shown_as(std::function<float(float)> to_shown, std::function<float(float)> from_shown) {
    to_shown_ = std::move(to_shown);
    from_shown_ = std::move(from_shown);
    return *this;
}

NumberRow& NumberRow::when_typed(std::function<void(float before, float after)> then) {
    when_typed_ = std::move(then);
    return *this;
}

NumberRow& NumberRow::when_spun(std::function<void(float before, float after)> then) {
    when_spun_ = std::move(then);
    return *this;
}

float NumberRow::shown() const {
    return to_shown_ ? to_shown_(value_.get()) : value_.get();
}

void NumberRow::show(TextField& field) const {
    if (scale_ == Scale::sg) return show_sg(field, shown(), scale_width, *settings_);
    if (scale_ == Scale::plato) return show_plato(field, shown(), scale_width, *settings_);
    show_float(field, shown(), pattern_());
}

// What is no number stays out of the records.
bool NumberRow::store(float shown_value, float before) const {
    const float stored = from_shown_ ? from_shown_(shown_value) : shown_value;
    if (shown_value == before || !std::isfinite(stored)) return false;
    value_.set(stored);
    return true;
}

bool NumberRow::type_into(TextField& field, float& value, const Range& range) const {
    switch (scale_) {
    case Scale::sg:
        return typed_sg(field, value, range, number_length, *settings_);
    case Scale::plato:
        return typed_plato(field, value, range, number_length, *settings_);
    case Scale::signed_plain:
        return typed_signed_float(field, value, range, number_length);
    default:
        return typed_float(field, value, range, number_length);
    }
}

bool NumberRow::typed(TextField& field) {
    const Range range{typed_low_(), typed_high_()};
    const auto text = field.text();
    const float before = shown();
    float value = before;
    bool has_changed = type_into(field, value, range);
    const bool is_read = field.text() == text; // else a character was thrown out
    const auto limit =
        is_read && outside_ != Outside::ignore ? limit_beyond(text, range.low, range.high) : std::nullopt;
    if (limit) value = narrow(*limit);
    has_changed = store(value, before) && (has_changed || limit);
    if (limit && outside_ == Outside::rewrite) show(field);
    if (has_changed && when_typed_) when_typed_(before, value);
    return has_changed;
}

bool NumberRow::step(TextField& field, float& value, const SpinRange& range, Spin direction) const {
    switch (scale_) {
    case Scale::sg:
        return spin_sg(field, value, range, number_length, direction, scale_width, *settings_);
    case Scale::plato:
        return spin_plato(field, value, range, number_length, direction, scale_width, *settings_);
    default:
        return spin_float(field, value, range, number_length, direction, pattern_());
    }
}

std::optional<SpinRange> NumberRow::arrow_range() const {
    if (!step_) return std::nullopt;
    return SpinRange{spun_low_(), spun_high_(), (*step_)()};
}

bool NumberRow::spun(TextField& field, Spin direction) {
    if (!step_) return false;
    const auto range = *arrow_range();
    const float before = shown();
    float value = std::isfinite(before) ? before : range.low;
    if (!step(field, value, range, direction)) return false;
    const float held = held_step(value, before, range);
    const bool has_changed = store(held, before);
    if (held != value) show(field);
    if (has_changed && when_spun_) when_spun_(before, held);
    return has_changed;
}

std::string NumberRow::range_words() const {
    return range_in_words(typed_low_(), typed_high_(), anything);
}

bool NumberRow::is_outside(const std::string& text) const {
    const auto& number = is_gravity_ ? with_gravity_point(text) : text;
    return limit_beyond(number, typed_low_(), typed_high_()).has_value();
}

void NumberRow::hold() const {
    const float before = shown();
    const float low = std::min(typed_low_(), spun_low_()), high = std::max(typed_high_(), spun_high_());
    store(std::isfinite(before) ? std::clamp(before, low, high) : low, before);
}

} // namespace wortlex
