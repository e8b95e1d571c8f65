#include "calculators/color_utility.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view keep_in_memory =
    "You have made modifications to the color values!\n\nWhile these values will be used in Wortlex memory, "
    "they will not be saved permanently.\n\nTo save the values permanently you must use the File functions "
    "from the Color Spectrum Utility Dialog.\n\nDo you want to exit without saving these values?";
constexpr std::string_view drop =
    "You have made modifications to the color values!\n\nAre you sure you want to exit without saving these "
    "values?";

Settings settings_of(SystemSettings image) {
    return settings_from(image);
}

// A sum that no damaged table can make overflow.
std::int32_t sum(std::int32_t value, std::int32_t adjust) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{value} + adjust, -65536, 65536));
}

std::int32_t within_byte(std::int32_t value) {
    return std::clamp(value, 0, 255);
}

using Channels = std::array<std::int32_t, 3>; // red, green, blue

std::uint32_t reference(const Channels& rgb) {
    const auto byte = [](std::int32_t channel) { return static_cast<std::uint32_t>(within_byte(channel)); };
    return byte(rgb[0]) | byte(rgb[1]) << 8 | byte(rgb[2]) << 16;
}

std::uint32_t blended(Channels rgb, std::int32_t alpha) {
    for (auto& channel : rgb) channel = blend_over_white(channel, within_byte(alpha));
    return reference(rgb);
}

bool same_colour(const ColorRow& a, const ColorRow& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
}

} // namespace

ColorUtility::ColorUtility(const ColorUtilityDesk& desk)
    : work(desk.live), desk_(desk), units_(settings_of(desk.image)), backup_(desk.live) {}

// Nothing but the lowest byte is the global alpha; the adjust is signed.
void ColorUtility::set_global_adjust(std::int32_t adjust) {
    desk_.image.color_alpha = adjust * 256 + (desk_.image.color_alpha & 0xFF);
}

std::uint32_t ColorUtility::preview(ColorPreview as) const {
    const auto& row = chosen();
    const auto& image = desk_.image;
    const Channels raw{sum(row.red, 0), sum(row.green, 0), sum(row.blue, 0)};
    const Channels adjusted{sum(row.red, image.calibration_red), sum(row.green, image.calibration_green),
                            sum(row.blue, image.calibration_blue)};
    switch (as) {
    case ColorPreview::raw:
        return reference(raw);
    case ColorPreview::adjusted:
        return reference(adjusted);
    case ColorPreview::raw_alpha:
        return blended(raw, row.alpha);
    case ColorPreview::adjusted_alpha:
        break;
    }
    return blended(adjusted, sum(row.alpha, global_adjust()));
}

void ColorUtility::combine(ColorRow& row) const {
    row.red = within_byte(sum(row.red, desk_.image.calibration_red));
    row.green = within_byte(sum(row.green, desk_.image.calibration_green));
    row.blue = within_byte(sum(row.blue, desk_.image.calibration_blue));
    row.alpha = within_byte(sum(row.alpha, global_adjust()));
}

void ColorUtility::combine_single() {
    combine(chosen());
}

void ColorUtility::combine_all() {
    for (auto& row : work.rows) combine(row);
    selected = 0;
}

bool ColorUtility::is_modified() const {
    return !std::equal(work.rows.begin(), work.rows.end(), backup_.rows.begin(), same_colour);
}

bool ColorUtility::accept() {
    if (is_modified() && !asked(keep_in_memory)) return false;
    desk_.live = work;
    return true;
}

bool ColorUtility::cancel() {
    if (is_modified() && !asked(drop)) return false;
    desk_.live = backup_;
    return true;
}

} // namespace wortlex
