#include "reports/row_parts.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "forms/numeric_fields.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "page/text_sink.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string blanks(int count) {
    std::string all;
    all.resize(static_cast<std::size_t>(std::max(count, 0)), ' ');
    return all;
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
    if (figure.unit == FigureUnit::sg) return trunc_to_precision(narrow(value), 5);
    if (figure.unit == FigureUnit::plato) return trunc_to_precision(narrow(value), 3);
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

std::string line_text(std::string_view windows1252) {
    auto text = utf8_from_windows1252(windows1252);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }, ' ');
    return text;
}

} // namespace wortlex
