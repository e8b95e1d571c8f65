// The rows with one field of text: numbers, whole numbers, texts, and figures that are only shown.
#pragma once

#include "forms/numeric_fields.h"
#include "forms/row.h"

namespace wortlex {

/// A row with one field of text.
class EntryRow : public Row {
public:
    using Row::Row;
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    virtual void show(TextField& field) const = 0;
    /// The user has changed the text; whether the value changed.
    virtual bool typed(TextField& /*field*/) { return false; }
    virtual bool spun(TextField& /*field*/, Spin /*direction*/) { return false; }
    virtual bool is_read_only() const { return false; }
    virtual bool has_arrows() const { return false; }
    /// Where arrows go; nothing where there are none, or they turn no plain number.
    virtual std::optional<SpinRange> arrow_range() const { return std::nullopt; }
    virtual bool is_number() const { return true; }
    /// A specific gravity, which brewers write without its point, too.
    virtual bool is_gravity() const { return false; }
    virtual bool is_multi_line() const { return false; }

    /// What may be typed, in the unit shown: "1 to 100"; empty where anything may.
    virtual std::string range_words() const { return ""; }
    /// Whether a typed text is a number beyond that range.
    virtual bool is_outside(const std::string& /*text*/) const { return false; }
    /// Brings a value that has come to lie beyond its range back to the limit.
    virtual void hold() const {}

    std::string text_when_disabled;   ///< empty: the value stays
    int columns = 9;                  ///< the width to aim at, in digits
    Live<std::string> unit_text = ""; ///< stands behind the field
};

template <class Self>
class EntryOptions : public RowOptions<Self, EntryRow> {
public:
    using RowOptions<Self, EntryRow>::RowOptions;
    Self& when_disabled(std::string_view text) {
        this->text_when_disabled = text;
        return static_cast<Self&>(*this);
    }
    Self& width(int digits) {
        this->columns = digits;
        return static_cast<Self&>(*this);
    }
    Self& unit(const Live<std::string>& text) {
        this->unit_text = text;
        return static_cast<Self&>(*this);
    }
};

/// What happens to a number typed outside its range. A step of the arrows ends at the limit in any case.
enum class Outside {
    ignore, ///< the value stays, and the text too
    clamp,  ///< the value is brought into range at once, the text when the field is left
    rewrite ///< both at once
};

/// Makes a decimal comma in a number's field a point, before the rule of the field sees it. A second mark is
/// thrown out as it is typed; a text that comes with several is refused as a whole, for it is not guessed
/// which of them marks the thousands. A gravity in thousandths gets its point. Whether the text can be read.
bool read_decimal_mark(const EntryRow& row, TextField& field);

/// A number, edited in the unit in which it is shown. Ranges and steps are in that unit.
class NumberRow : public EntryOptions<NumberRow> {
public:
    enum class Scale { plain, signed_plain, sg, plato };

    NumberRow(std::string row_key, Binding<float> value, Scale scale, const Settings* settings);

    NumberRow& typed(Live<float> low, Live<float> high);
    NumberRow& spun(Live<float> low, Live<float> high, Live<float> step);
    /// The range of typing and of the arrows.
    NumberRow& range(Live<float> low, Live<float> high);
    NumberRow& step(Live<float> by);
    NumberRow& format(Live<std::string> pattern); ///< of `show_float`; not for SG and Plato
    NumberRow& outside(Outside rule);
    NumberRow& gravity(); ///< a specific gravity in a format of its own
    /// What a change by typing alone, or by the arrows alone, brings with it; both values as shown.
    NumberRow& when_typed(std::function<void(float before, float after)> then);
    NumberRow& when_spun(std::function<void(float before, float after)> then);
    /// From the stored to the shown unit, and back.
    NumberRow& shown_as(std::function<float(float)> to_shown, std::function<float(float)> from_shown);

    void show(TextField& field) const override;
    bool typed(TextField& field) override;
    bool spun(TextField& field, Spin direction) override;
    bool has_arrows() const override { return step_.has_value(); }
    std::optional<SpinRange> arrow_range() const override;
    bool is_gravity() const override { return is_gravity_; }
    std::string range_words() const override;
    bool is_outside(const std::string& text) const override;
    void hold() const override;

private:
    float shown() const;
    /// Whether there was anything to store: another number.
    bool store(float shown_value, float before) const;
    bool step(TextField& field, float& value, const SpinRange& range, Spin direction) const;
    bool type_into(TextField& field, float& value, const Range& range) const;

    Binding<float> value_;
    Scale scale_;
    bool is_gravity_;
    const Settings* settings_; ///< of SG and Plato, whose decimals it tells
    Live<float> typed_low_, typed_high_;
    Live<float> spun_low_, spun_high_;
    std::optional<Live<float>> step_;
    Live<std::string> pattern_ = "%0.2f";
    Outside outside_ = Outside::ignore;
    std::function<float(float)> to_shown_, from_shown_;
    std::function<void(float, float)> when_typed_, when_spun_;
};

class IntegerRow : public EntryOptions<IntegerRow> {
public:
    IntegerRow(std::string row_key, Binding<std::int32_t> value);

    IntegerRow& typed(Live<std::int32_t> low, Live<std::int32_t> high);
    IntegerRow& spun(Live<std::int32_t> low, Live<std::int32_t> high, std::int32_t step);
    IntegerRow& range(Live<std::int32_t> low, Live<std::int32_t> high);
    IntegerRow& step(std::int32_t by);
    IntegerRow& outside(Live<Outside> rule);
    IntegerRow& format(std::string pattern); ///< of `show_int`; not for temperatures
    /// Whole degrees of `units`, pulled back into their fixed range.
    IntegerRow& temperature(Live<TemperatureUnits> units);

    void show(TextField& field) const override;
    bool typed(TextField& field) override;
    bool spun(TextField& field, Spin direction) override;
    bool has_arrows() const override { return step_ > 0; }
    std::optional<SpinRange> arrow_range() const override;
    std::string range_words() const override;
    bool is_outside(const std::string& text) const override;
    void hold() const override;

private:
    bool store(std::int32_t value, bool has_changed) const;

    Binding<std::int32_t> value_;
    Live<std::int32_t> typed_low_, typed_high_;
    Live<std::int32_t> spun_low_, spun_high_;
    std::int32_t step_ = 0;
    std::string pattern_ = "%d";
    Live<Outside> outside_ = Outside::ignore;
    std::optional<Live<TemperatureUnits>> units_;
};

/// A text of a record, Windows-1252 there and UTF-8 here. What Windows-1252 lacks, or what goes beyond the
/// limit, is refused as it is typed.
class TextRow : public EntryOptions<TextRow> {
public:
    TextRow(std::string row_key, std::function<std::string_view()> read,
            std::function<void(std::string_view)> write, std::size_t most_bytes);

    /// In stored bytes, CR LF counting as two.
    TextRow& limit(std::size_t bytes);
    TextRow& lines(); ///< several, stored with CR LF

    void show(TextField& field) const override;
    bool typed(TextField& field) override;
    bool is_number() const override { return false; }
    bool is_multi_line() const override { return multi_line_; }

private:
    std::string shown() const;

    std::function<std::string_view()> read_;
    std::function<void(std::string_view)> write_;
    std::size_t limit_;
    bool multi_line_ = false;
};

/// A text that the user writes in a form of its own, such as a time that may be a word.
class ParsedRow : public EntryOptions<ParsedRow> {
public:
    /// `take` answers whether the text changed the value.
    ParsedRow(std::string row_key, std::function<std::string()> text,
              std::function<bool(const std::string&)> take);

    /// `turn` steps the value and answers whether it changed.
    ParsedRow& arrows(std::function<bool(Spin)> turn);

    void show(TextField& field) const override { field.set_text(text_()); }
    bool typed(TextField& field) override { return take_(field.text()); }
    bool spun(TextField& field, Spin direction) override;
    bool has_arrows() const override { return turn_ != nullptr; }

private:
    std::function<std::string()> text_;
    std::function<bool(const std::string&)> take_;
    std::function<bool(Spin)> turn_;
};

/// A figure or text that is only shown. It can be focused and copied.
class ShownRow : public EntryOptions<ShownRow> {
public:
    ShownRow(std::string row_key, std::function<std::string()> text);
    ShownRow& lines() {
        multi_line_ = true;
        return *this;
    }
    /// Looks like a number, even where it may be blank.
    ShownRow& figure();

    void show(TextField& field) const override { field.set_text(text_()); }
    bool is_read_only() const override { return true; }
    bool is_number() const override { return number_; }
    bool is_multi_line() const override { return multi_line_; }

private:
    std::function<std::string()> text_;
    bool number_ = false;
    bool multi_line_ = false;
};

} // namespace wortlex
