#include "reports/unit_words.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "measures/units.h"
#include "page/text_sink.h"
#include "reports/report.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string place(int width, int decimals) {
    return "%" + std::to_string(width) + "." + std::to_string(decimals) + "f";
}

int more_decimals(std::uint32_t precision) {
    return static_cast<int>(std::min(precision, 2U));
}

std::string blanks(int count) {
    std::string all;
    all.resize(static_cast<std::size_t>(std::max(count, 0)), ' ');
    return all;
}

} // namespace

std::string_view volume_word(const Settings& settings) {
    if (is_american(settings.volume_units)) return is_pro(settings) ? "bbl" : "Gal";
    return is_pro(settings) ? "hL" : "L";
}

std::string_view small_volume_word(const Settings& settings) {
    if (!is_american(settings.volume_units)) return "L";
    return is_pro(settings) ? "Gal" : "Qts";
}

std::string_view grain_word(const Settings& settings) {
    return is_american(settings.weight_units) ? "Lbs" : "kg";
}

std::string_view grain_column_word(const Settings& settings) {
    return is_american(settings.weight_units) ? "lbs." : "kg. ";
}

std::string_view hop_column_word(const Settings& settings) {
    if (is_american(settings.hop_weight_units)) return is_pro(settings) ? "lbs." : "oz. ";
    return is_pro(settings) ? "kg. " : "g.  ";
}

std::string_view colour_word(const Settings& settings) {
    return settings.color_units == ColorUnits::srm ? "SRM" : "EBC";
}

std::string_view bitterness_word(bool show_ibu, const Settings& settings) {
    if (show_ibu) return "IBU";
    return settings.bittering_unit == BitteringUnit::hbu ? "HBU" : "MBU";
}

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

std::string temperature_word(const Settings& settings) {
    return settings.temperature_units == TemperatureUnits::fahrenheit ? "F" : "C";
}

std::string padded_label(std::string_view label, std::size_t width) {
    return padded(label, width) + cell_end;
}

std::string unit_label(std::string_view text, std::string_view unit, std::size_t width) {
    return padded_label(std::string(text).append(" (").append(unit).append("):"), width);
}

std::string sg_place(int width, const Settings& settings) {
    return place(width, 3 + more_decimals(settings.sg_precision));
}

std::string plato_place(int width, const Settings& settings) {
    return place(width, 1 + more_decimals(settings.plato_precision));
}

std::string sg_column(int width, int gap, const Settings& settings) {
    const int more = more_decimals(settings.sg_precision);
    return sg_place(width + more, settings) + blanks(gap - more);
}

std::string plato_column(int width, int gap, const Settings& settings) {
    const int more = more_decimals(settings.plato_precision);
    return plato_place(width + more, settings) + blanks(gap - more);
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
