#include "documents/forms/result_strip.h"

#include "documents/work/recipe_view.h"
#include "measures/gravity.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wortlex {
namespace {

constexpr double no_value = std::numeric_limits<double>::quiet_NaN();

// Apparent, in percent.
struct Attenuation {
    int least = 75; // of a yeast that nobody knows
    int most = 75;
    bool is_assumed = true;
};

Attenuation attenuation_of(const YeastRecord& yeast) {
    const int low = std::clamp(yeast.low_attenuation, 0, 100);
    const int high = std::clamp(yeast.high_attenuation, 0, 100);
    if (yeast.name.empty() || (low == 0 && high == 0)) return {};
    if (low == 0 || high == 0) return {std::max(low, high), std::max(low, high), false};
    return {std::min(low, high), std::max(low, high), false};
}

double final_gravity(float og, int attenuation) {
    return plato_to_sg(narrow(double{sg_to_plato(og)} * (100 - attenuation) / 100));
}

double alcohol(float og, double fg) {
    if (std::isnan(fg)) return fg;
    return alcohol_by_volume(alcohol_by_weight(og, narrow(fg)), narrow(fg));
}

// A value as it is read.
struct Printed {
    int decimals = 0;
    const char* unit = "";

    double read(double value) const { return leading_number(fixed(value, decimals)); }
    std::string text(const Stretch& stretch) const {
        const auto from = fixed(stretch.from, decimals), to = fixed(stretch.to, decimals);
        return (from == to ? from : from + " to " + to) + (std::isfinite(stretch.from) ? unit : "");
    }
};

bool is_range(const Stretch& style) {
    return style.to > style.from && std::isfinite(style.from) && std::isfinite(style.to);
}

double on_band(double value, const Stretch& style) {
    const double half = style_on_band.to - style_on_band.from;
    const double place = style_on_band.from + half * (value - style.from) / (style.to - style.from);
    return std::clamp(place, 0.0, 1.0);
}

// What is printed is compared: 1.045 is not below a style that begins at 1.045.
std::string outside_word(const Stretch& value, const Stretch& style, const Printed& printed) {
    if (printed.read(value.to) < printed.read(style.from)) return "low";
    return printed.read(value.from) > printed.read(style.to) ? "high" : "";
}

StripCell made_cell(const char* name, const Stretch& value, const Stretch& style, const Printed& printed) {
    StripCell cell;
    cell.name = name;
    cell.figure = printed.text(value);
    if (!is_range(style)) return cell;
    cell.style = printed.text(style);
    if (!std::isfinite(value.from) || !std::isfinite(value.to)) return cell;
    cell.word = outside_word(value, style, printed);
    cell.mark = Stretch{on_band(value.from, style), on_band(value.to, style)};
    return cell;
}

Stretch one(double value) {
    return {value, value};
}

double points(double sg) {
    return (sg - 1) * 1000;
}

// Of all beers within a style's bitterness and gravity.
Stretch balance_of_style(const StyleRecord& style) {
    return {style.min_ibu / points(style.max_og), style.max_ibu / points(style.min_og)};
}

// Wort without extract ferments to nothing that could be told.
Stretch fermented(float og, const Attenuation& attenuation) {
    if (!(og > 1)) return one(no_value);
    return {final_gravity(og, attenuation.most), final_gravity(og, attenuation.least)};
}

StripCell colour_cell(const OpenDocument& open, const StyleRecord& style) {
    const auto& settings = open.settings;
    const auto shown = [&settings](float srm) { return double{to_shown_colour(srm, settings)}; };
    return made_cell(colour_unit(settings).usual, one(shown(open.figures.colour.srm)),
                     {shown(style.min_colour), shown(style.max_colour)}, {1});
}

} // namespace

ResultStrip result_strip(const OpenDocument& open) {
    const auto& document = open.document;
    const auto& style = has_style(document) ? document.style : StyleRecord{};
    const float og = trunc_to_precision(hop_gravity(document), 5);
    const auto attenuation = attenuation_of(document.yeast.record);
    const auto fg = fermented(og, attenuation);
    const double gravity_points = document.og_points > 0 ? double{document.og_points} : no_value;
    ResultStrip strip = {
        made_cell("OG", one(og), {style.min_og, style.max_og}, {sg_decimals(open.settings)}),
        made_cell("FG", fg, {style.min_fg, style.max_fg}, {3}),
        made_cell("ABV", {alcohol(og, fg.to), alcohol(og, fg.from)}, {style.min_alcohol, style.max_alcohol},
                  {1, " %"}),
        made_cell("IBU", one(document.total_ibu), {style.min_ibu, style.max_ibu}, {1}),
        made_cell("BU:GU", one(document.total_ibu / gravity_points), balance_of_style(style), {2}),
        colour_cell(open, style)};
    if (attenuation.is_assumed) strip[1].note = std::to_string(attenuation.least) + " % assumed";
    return strip;
}

std::string spoken(const StripCell& cell) {
    auto words = cell.name + " " + cell.figure;
    if (!cell.note.empty()) words += ", " + cell.note;
    if (!cell.word.empty()) words += ", " + cell.word;
    return cell.style.empty() ? words : words + ", the style has " + cell.style;
}

} // namespace wortlex
