#include "calculators/color_swatch.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string unit_label(const Settings& settings) {
    return std::string(colour_unit(settings).usual) + ":";
}

template <std::size_t N>
std::function<std::string()> utf8_of(const Text<N>& text) {
    return [&text] { return utf8_from_windows1252(text.view()); };
}

void figure_rows(Rows& rows, ColorSwatch& swatch) {
    const auto& settings = swatch.settings;
    rows.shown_number(
            "colour", [&swatch] { return to_shown_colour(swatch.srm, swatch.settings); }, "%0.1f")
        .label([&settings] { return unit_label(settings); });
    rows.integer("alpha", swatch.alpha).label("&Alpha:").range(0, 255).step(1).outside(Outside::clamp);
    rows.shown_number(
            "transparency", [&swatch] { return transparency(swatch.alpha); }, "%0.2f")
        .label("Transparency:");
}

void source_rows(Rows& rows, const ColorSwatch& swatch) {
    rows.shown("rgb_source", [] { return std::string(color_table_file); }).label("RGB Values From:");
    rows.shown("alpha_source", [&settings = swatch.settings] { return std::string(settings.alpha_source); })
        .label("Alpha Values From:");
    rows.shown("author", utf8_of(swatch.table.author)).label("Author:");
    rows.shown("version", utf8_of(swatch.table.version)).label("Version");
}

} // namespace

void set_swatch(ColorSwatch& swatch, float srm) {
    swatch.srm = srm;
    swatch.alpha = swatch_alpha(swatch.table, srm, swatch.settings);
}

// As any swatch of settings that give this one alpha to all colours.
std::uint32_t painted_swatch(const ColorSwatch& swatch) {
    auto settings = swatch.settings;
    settings.alpha_mode = AlphaMode::global_value;
    settings.global_alpha = swatch.alpha;
    return swatch_colour(swatch.table, swatch.srm, settings);
}

float transparency(std::int32_t alpha) {
    return narrow((255 - alpha) / 255.0 * 100);
}

void color_swatch_form(Form& form, ColorSwatch& swatch) {
    form.group().swatch("swatch", [&swatch] { return painted_swatch(swatch); }).named("Color of the beer");
    form.next_column();
    auto& rows = form.group();
    figure_rows(rows, swatch);
    source_rows(rows, swatch);
}

} // namespace wortlex
