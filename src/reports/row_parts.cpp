#include "reports/row_parts.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "brewing/calendar.h"
#include "forms/numeric_fields.h"
#include "measures/gravity.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "page/text_sink.h"

#include <algorithm>
#include <limits>

namespace wortlex {
namespace {

std::string blanks(int count) {
    std::string all;
    all.resize(static_cast<std::size_t>(std::max(count, 0)), ' ');
    return all;
}

// A gravity that no wort has may be too large to be cut off, and comes out negative.
ReportValue gravity_value(float gravity, int digits) {
    const float cut = trunc_to_precision(gravity, digits);
    return cut < 0 ? std::numeric_limits<double>::quiet_NaN() : double{cut};
}

} // namespace

std::string_view yield_word(YieldType type) {
    switch (type) {
    case YieldType::fine_dry_basis:
        return "Fine Grind Dry Basis";
    case YieldType::fine_as_is:
        return "Fine Grind As Is";
    case YieldType::coarse_dry_basis:
        return "Coarse Grind Dry Basis";
    case YieldType::coarse_as_is:
        return "Coarse Grind As Is";
    }
    return "";
}

std::string padded_label(std::string_view label, std::size_t width) {
    return padded(label, width) + cell_end;
}

std::string unit_label(std::string_view text, const Figure& figure, const ReportSource& source,
                       std::size_t width) {
    const auto* const unit = unit_words(figure, source.open.settings).usual;
    return padded_label(std::string(text).append(" (").append(unit).append("):"), width);
}

std::string figure_place(const Figure& figure, int width, const ReportSource& source) {
    const int decimals = shown_decimals(figure, source.open.settings);
    return std::string("%").append(std::to_string(width)) + "." + std::to_string(decimals) + "f";
}

ReportValue figure_value(const Figure& figure, const ReportSource& source) {
    const double value = shown_value(figure, source_of(source.open));
    if (figure.unit == FigureUnit::sg) return gravity_value(narrow(value), 5);
    if (figure.unit == FigureUnit::plato) return gravity_value(narrow(value), 3);
    return value;
}

std::string sg_column(int width, int gap, const Settings& settings) {
    const int more = more_decimals(settings.sg_precision);
    return sg_pattern(width + more, settings) + blanks(gap - more);
}

std::string plato_column(int width, int gap, const Settings& settings) {
    const int more = more_decimals(settings.plato_precision);
    return plato_pattern(width + more, settings) + blanks(gap - more);
}

int shown_degrees(std::int32_t fahrenheit, const Settings& settings) {
    return truncate(to_shown_temperature(static_cast<float>(fahrenheit), settings));
}

ReportRow style_row(const StyleRecord& style) {
    const auto name = line_text(style.name), category = line_text(style.category);
    if (style.letter == '\0') return {"%02d  |%s, %s\n\n", {style.number, name, category}};
    const auto letter = line_text(std::string_view(&style.letter, 1));
    return {"%02d-%c  |%s, %s\n\n", {style.number, letter, name, category}};
}

std::vector<ReportValue> gravity_values(float sg) {
    return {gravity_value(sg, 5), gravity_value(sg_to_plato(sg), 3)};
}

ReportRow gravity_line(const GravityWords& words, float sg, const Settings& settings) {
    std::string format(words.label);
    format.append(sg_pattern(words.width, settings)).append(words.gap);
    format.append(words.plato).append(plato_pattern(words.plato_width, settings)).append("\n");
    return {format, gravity_values(sg)};
}

std::string date_words(const CalendarDate& date, const Settings& settings) {
    const bool has_name = settings.date_format == DateFormat::day_name_year;
    return short_date(date, has_name && !is_day(date) ? DateFormat::month_day_year : settings.date_format);
}

std::string line_text(std::string_view windows1252) {
    auto text = utf8_from_windows1252(windows1252);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }, ' ');
    return text;
}

} // namespace wortlex
