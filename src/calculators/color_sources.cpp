#include "calculators/color_sources.h"

#include "base/number.h"

#include <cmath>
#include <limits>

namespace wortlex {
namespace {

constexpr std::string_view gaps = " \t\r";

// The next line that is not blank.
std::string_view take_line(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size());
    return line;
}

std::string_view take_word(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(gaps), line.size()));
    const auto word = line.substr(0, line.find_first_of(gaps));
    line.remove_prefix(word.size());
    return word;
}

bool take_whole(std::string_view& line, std::int32_t& value) {
    const auto number = parse_whole(take_word(line));
    if (number) value = *number;
    return number.has_value();
}

ColorRow missing_row() {
    ColorRow row;
    row.srm = narrow(top_srm);
    return row;
}

// What stands behind the five numbers is nobody's business.
bool read_row(std::string_view line, ColorRow& row) {
    const auto srm = parse_number(take_word(line));
    ColorRow read;
    if (!srm || std::abs(*srm) > std::numeric_limits<float>::max() || !take_whole(line, read.red) ||
        !take_whole(line, read.green) || !take_whole(line, read.blue) || !take_whole(line, read.alpha))
        return false;
    read.srm = narrow(*srm);
    row = read;
    return true;
}

} // namespace

bool read_color_text(std::string_view text, std::span<ColorRow, color_rows> rows) {
    bool is_complete = true;
    for (auto& row : rows) {
        is_complete = is_complete && read_row(take_line(text), row);
        if (!is_complete) row = missing_row();
    }
    return is_complete;
}

bool read_color_picture(const Pixels& pixels, std::span<ColorRow, color_rows> rows) {
    if (pixels.width != color_picture_width || pixels.height != color_picture_height) return false;
    for (std::size_t i = 0; i < color_rows; ++i) {
        const auto* const pixel = &pixels.rgb.at(i * color_picture_width / color_rows * 3);
        auto& row = rows[i] = ColorRow{};
        row.srm = narrow(static_cast<double>(i) / color_rows * top_srm + 0.1);
        row.red = pixel[0];
        row.green = pixel[1];
        row.blue = pixel[2];
    }
    return true;
}

} // namespace wortlex
