#include "base/number.h"
#include "calculators/color_utility.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr std::int32_t most_adjust = 100;

std::string unit_of(const ColorUtility& utility) {
    return colour_unit(utility.units()).usual;
}

std::string shown_colour(const ColorUtility& utility, const ColorRow& row, std::string_view pattern) {
    return formatted(pattern, to_shown_colour(row.srm, utility.units()));
}

std::string cell(const ColorUtility& utility, std::size_t row_number, std::size_t column) {
    const auto& row = utility.work.rows[row_number];
    if (column == 0) return shown_colour(utility, row, "%5.2f");
    const std::array channels = {row.red, row.green, row.blue, row.alpha};
    return std::to_string(channels.at(column - 1));
}

void table_rows(Rows& rows, ColorUtility& utility) {
    const auto channel = [](const char* caption) { return ListColumn{caption, true, 3, false}; };
    rows.list(
            "rows",
            {ListColumn{unit_of(utility), true, 5, true}, channel("R"), channel("G"), channel("B"),
             channel("A")},
            [] { return color_rows; },
            [&utility](std::size_t row, std::size_t column) { return cell(utility, row, column); })
        .selection(utility.selected);
}

void origin_rows(Rows& rows, ColorUtility& utility) {
    rows.text("author", utility.work.author).label("A&uthor:").width(20);
    rows.text("version", utility.work.version).label("&Version").width(20);
    rows.integer("index", {[&utility] { return utility.selected + 1; },
                           [&utility](std::int32_t number) { utility.selected = number - 1; }})
        .label("&Index")
        .range(1, static_cast<std::int32_t>(color_rows))
        .step(1)
        .outside(Outside::clamp);
    rows.shown("colour", [&utility] { return shown_colour(utility, utility.chosen(), "%3.2f"); })
        .figure()
        .label(unit_of(utility));
}

void value_row(Rows& rows, const char* key, const char* label, ColorUtility& utility,
               std::int32_t ColorRow::*channel) {
    rows.integer(key, {[&utility, channel] { return utility.chosen().*channel; },
                       [&utility, channel](std::int32_t value) { utility.chosen().*channel = value; }})
        .label(label)
        .range(0, 255)
        .step(1)
        .outside(Outside::clamp);
}

void adjust_row(Rows& rows, const char* key, const char* label, Binding<float> adjust) {
    rows.signed_number(key, std::move(adjust))
        .label(label)
        .range(-most_adjust, most_adjust)
        .step(1.0F)
        .format("%d")
        .outside(Outside::clamp);
}

void adjust_rows(Rows& rows, ColorUtility& utility) {
    auto& image = utility.image();
    adjust_row(rows, "adjust_red", "Re&d", image.calibration_red);
    adjust_row(rows, "adjust_green", "Gree&n", image.calibration_green);
    adjust_row(rows, "adjust_blue", "Blu&e", image.calibration_blue);
    adjust_row(rows, "adjust_alpha", "Al&pha",
               {[&utility] { return static_cast<float>(utility.global_adjust()); },
                [&utility](float adjust) { utility.set_global_adjust(truncate(adjust)); }});
}

void preview_row(Rows& rows, const char* key, const char* label, const ColorUtility& utility,
                 ColorPreview as) {
    rows.swatch(key, [&utility, as] { return utility.preview(as); }).label(label);
}

void preview_rows(Rows& rows, const ColorUtility& utility) {
    preview_row(rows, "raw", "Raw RGB", utility, ColorPreview::raw);
    preview_row(rows, "adjusted", "RGB With Color Adjust", utility, ColorPreview::adjusted);
    preview_row(rows, "raw_alpha", "Raw RGB With Raw Alpha", utility, ColorPreview::raw_alpha);
    preview_row(rows, "adjusted_alpha", "RGB + Alpha, All Adjustments", utility,
                ColorPreview::adjusted_alpha);
}

} // namespace

void color_utility_form(Form& form, ColorUtility& utility) {
    table_rows(form.group("Raw File/System Values"), utility);
    form.next_column();
    origin_rows(form.group("Color"), utility);
    auto& values = form.group("RGBA Values From File");
    value_row(values, "red", "&Red", utility, &ColorRow::red);
    value_row(values, "green", "&Green", utility, &ColorRow::green);
    value_row(values, "blue", "&Blue", utility, &ColorRow::blue);
    value_row(values, "alpha", "&Alpha", utility, &ColorRow::alpha);
    adjust_rows(form.group("Adjustments"), utility);
    form.next_column();
    preview_rows(form.group("Previews"), utility);
    form.group().button("combine_single", "Combine and Set &Single Value",
                        [&utility] { utility.combine_single(); });
    form.group().button("combine_all", "Combine and Set A&ll Values", [&utility] { utility.combine_all(); });
}

} // namespace wortlex
