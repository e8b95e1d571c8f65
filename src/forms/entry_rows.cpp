#include "forms/entry_rows.h"

#include "base/windows1252.h"

#include <algorithm>
#include <limits>

namespace wortlex {
namespace {

constexpr float anything = std::numeric_limits<float>::max();
constexpr std::int32_t any_whole = std::numeric_limits<std::int32_t>::max();
constexpr int field_length = 12; // characters that a field is read to
constexpr int scale_width = 4;   // of SG and Plato

std::string stored_lines(const std::string& text) {
    std::string out;
    for (const char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

std::string shown_lines(std::string text) {
    std::erase(text, '\r');
    return text;
}

// Puts an earlier text back where what was typed is refused, the caret before the refused characters.
void refuse(TextField& field, const std::string& earlier) {
    const auto grown = static_cast<int>(field.text().size()) - static_cast<int>(earlier.size());
    const int caret = field.caret() - std::max(grown, 0);
    field.set_text(earlier);
    field.set_caret(std::max(caret, 0));
}

} // namespace

NumberRow::NumberRow(std::string row_key, Binding<float> value, Scale scale, const Settings* settings)
    : EntryOptions(std::move(row_key), ColorArea::entries), value_(std::move(value)), scale_(scale),
      settings_(settings), typed_low_(-anything), typed_high_(anything), spun_low_(-anything),
      spun_high_(anything) {}

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

void NumberRow::store(float shown_value, float before) {
    if (shown_value != before) value_.set(from_shown_ ? from_shown_(shown_value) : shown_value);
}

bool NumberRow::type_into(TextField& field, float& value, const Range& range) const {
    switch (scale_) {
    case Scale::sg:
        return typed_sg(field, value, range, field_length, *settings_);
    case Scale::plato:
        return typed_plato(field, value, range, field_length, *settings_);
    case Scale::signed_plain:
        return typed_signed_float(field, value, range, field_length);
    default:
        return typed_float(field, value, range, field_length);
    }
}

bool NumberRow::typed(TextField& field) {
    const Range range{typed_low_(), typed_high_()};
    const float before = shown();
    float value = before;
    if (outside_ == Outside::ignore) {
        const bool has_changed = type_into(field, value, range);
        store(value, before);
        if (has_changed && when_typed_) when_typed_(before, value);
        return has_changed;
    }
    if (field.text().empty() && (range.low > 0 || range.high < 0)) return false; // no number yet
    type_into(field, value, {-anything, anything});
    const float held = std::clamp(value, range.low, range.high);
    store(held, before);
    if (held != value && outside_ == Outside::rewrite) show(field);
    if (held != before && when_typed_) when_typed_(before, held);
    return held != before;
}

bool NumberRow::spun(TextField& field, Spin direction) {
    if (!step_) return false;
    const SpinRange range{spun_low_(), spun_high_(), (*step_)()};
    const float before = shown();
    float value = before;
    bool has_changed = false;
    if (scale_ == Scale::sg)
        has_changed = spin_sg(field, value, range, field_length, direction, scale_width, *settings_);
    else if (scale_ == Scale::plato)
        has_changed = spin_plato(field, value, range, field_length, direction, scale_width, *settings_);
    else
        has_changed = spin_float(field, value, range, field_length, direction, pattern_());
    const float held = outside_ == Outside::hold ? std::clamp(value, range.low, range.high) : value;
    store(held, before);
    if (held != value) show(field);
    value = held;
    if (value != before && when_spun_) when_spun_(before, value);
    return has_changed || value != before;
}

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

IntegerRow& IntegerRow::outside(Outside rule) {
    outside_ = rule;
    return *this;
}

IntegerRow& IntegerRow::format(std::string pattern) {
    pattern_ = std::move(pattern);
    return *this;
}

IntegerRow& IntegerRow::temperature(TemperatureUnits units) {
    units_ = units;
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
    if (units_) return store(value, typed_temperature(*units_, field, value, field_length));
    if (outside_ == Outside::ignore)
        return store(value, typed_int(field, value, typed_low_(), typed_high_(), field_length));
    if (field.text().empty() && (typed_low_() > 0 || typed_high_() < 0)) return false; // no number yet
    typed_int(field, value, -any_whole, any_whole, field_length);
    const auto held = std::clamp(value, typed_low_(), typed_high_());
    const bool has_changed = store(held, held != before);
    if (held != value && outside_ == Outside::rewrite) show(field);
    return has_changed;
}

bool IntegerRow::spun(TextField& field, Spin direction) {
    if (step_ <= 0) return false;
    auto value = value_.get();
    if (units_) return store(value, spin_temperature(*units_, field, value, field_length, direction));
    const SpinRange range{static_cast<float>(spun_low_()), static_cast<float>(spun_high_()),
                          static_cast<float>(step_)};
    const bool has_changed = spin_int(field, value, range, field_length, direction, pattern_);
    if (outside_ != Outside::hold) return store(value, has_changed);
    const auto held = std::clamp(value, spun_low_(), spun_high_());
    const bool is_stored = store(held, held != value_.get());
    if (held != value) show(field);
    return is_stored;
}

TextRow::TextRow(std::string row_key, std::function<std::string_view()> read,
                 std::function<void(std::string_view)> write, std::size_t most_bytes)
    : EntryOptions(std::move(row_key), ColorArea::entries), read_(std::move(read)), write_(std::move(write)),
      limit_(most_bytes) {
    columns = 24;
}

TextRow& TextRow::limit(std::size_t bytes) {
    limit_ = std::min(limit_, bytes);
    return *this;
}

TextRow& TextRow::lines() {
    multi_line_ = true;
    area = ColorArea::notes;
    return *this;
}

std::string TextRow::shown() const {
    return shown_lines(utf8_from_windows1252(read_()));
}

void TextRow::show(TextField& field) const {
    field.set_text(shown());
}

bool TextRow::typed(TextField& field) {
    const auto stored = windows1252_from_utf8(multi_line_ ? stored_lines(field.text()) : field.text());
    // What a file brought may be longer than can be typed; it can always be shortened.
    const bool is_too_long = stored && stored->size() > limit_ && stored->size() >= read_().size();
    if (!stored || is_too_long) {
        refuse(field, shown());
        return false;
    }
    if (*stored == read_()) return false;
    write_(*stored);
    return true;
}

ParsedRow::ParsedRow(std::string row_key, std::function<std::string()> text,
                     std::function<bool(const std::string&)> take)
    : EntryOptions(std::move(row_key), ColorArea::entries), text_(std::move(text)), take_(std::move(take)) {}

ParsedRow& ParsedRow::arrows(std::function<bool(Spin)> turn) {
    turn_ = std::move(turn);
    return *this;
}

bool ParsedRow::spun(TextField& field, Spin direction) {
    if (!turn_) return false;
    const bool has_changed = turn_(direction);
    if (has_changed) show(field);
    return has_changed;
}

ShownRow::ShownRow(std::string row_key, std::function<std::string()> text)
    : EntryOptions(std::move(row_key), ColorArea::shown_text), text_(std::move(text)) {
    columns = 20;
}

ShownRow& ShownRow::figure() {
    number_ = true;
    area = ColorArea::shown_numbers;
    return width(8);
}

} // namespace wortlex
