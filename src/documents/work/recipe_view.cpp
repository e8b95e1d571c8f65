#include "documents/work/recipe_view.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "brewing/hop_bitterness.h"
#include "databases/extras.h"
#include "measures/potential.h"
#include "measures/precision.h"
#include "measures/units.h"
#include "records/ingredients/amount_words.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr std::size_t malt_name_width = 27;
constexpr std::size_t origin_width = 12;

std::string cut(std::string_view windows1252, std::size_t width) {
    return utf8_from_windows1252(windows1252.substr(0, width));
}

// SG has its own precision; every other scale shares that of Plato.
std::string value_pattern(bool is_sg, const Settings& settings) {
    return "%7." + std::to_string(is_sg ? sg_decimals(settings) : plato_decimals(settings)) + "f";
}

float potential_value(const MaltRecord& malt, const Settings& settings) {
    const PotentialTraits traits{malt.moisture, malt.coarse_yield, is_mashed(malt)};
    return potential_to_shown(malt.potential, traits, settings);
}

float contribution_value(const OpenDocument& open, std::size_t line) {
    const auto& figures = open.figures;
    const auto gives = line < figures.lines.size() ? figures.lines[line] : LineFigures{};
    const ExtractTotals totals{open.document.og_points, figures.total_extract_pounds};
    return extract_to_shown(narrow(gives.line_sg), narrow(gives.line_extract), totals, open.settings);
}

std::string value_cell(const OpenDocument& open, const RecipeView& view, std::size_t line) {
    const auto& settings = open.settings;
    const bool is_sg = view.show_potential ? settings.potential_display == PotentialDisplay::sg
                                           : settings.extract_display == ExtractDisplay::sg;
    return formatted(value_pattern(is_sg, settings), malt_value(open, view, line));
}

std::string share_cell(const OpenDocument& open, const MaltUse& malt) {
    const float total = open.figures.total_grain;
    return formatted("%5.1f", total > 0 ? double{malt.amount} / total * 100 : 0.0);
}

std::string boil_cell(const HopUse& hop, const BrewDocument& document) {
    switch (hop_timing(hop.boil_time, document.boil_minutes)) {
    case HopTiming::dry:
        return "Dry";
    case HopTiming::first_wort:
        return "FW";
    case HopTiming::mash:
        return "MH";
    default:
        return formatted("%3d", hop.boil_time);
    }
}

std::string amount_cell(const ExtraUse& extra) {
    const std::string unit = words_of(extra.record.amount_unit).amount;
    return formatted("%4.2f", extra.amount) + (unit.empty() ? unit : " " + unit);
}

} // namespace

float malt_value(const OpenDocument& open, const RecipeView& view, std::size_t line) {
    return view.show_potential ? potential_value(open.document.malts[line].record, open.settings)
                               : contribution_value(open, line);
}

float hop_bitterness(const HopUse& hop, const RecipeView& view, const Settings& settings) {
    if (view.show_ibu) return hop.ibu;
    if (settings.bittering_unit == BitteringUnit::hbu) return hbu(hop.amount, hop.alpha);
    return mbu(narrow(hop.amount * grams_per_ounce), hop.alpha);
}

std::string extra_cell(const ExtraUse& extra, std::size_t column) {
    const auto& record = extra.record;
    switch (column) {
    case 0:
        return utf8_from_windows1252(record.name.view());
    case 1:
        return std::string(type_word(record.extra_type));
    case 2:
        return formatted(record.time_unit == TimeUnit::days ? "%3d Day(s)" : "%3d Min", record.time);
    default:
        return amount_cell(extra);
    }
}

std::string malt_cell(const OpenDocument& open, const RecipeView& view, std::size_t line,
                      std::size_t column) {
    const auto& malt = open.document.malts[line];
    switch (column) {
    case 0:
        return cut(malt.record.name.view(), malt_name_width);
    case 1:
        return cut(malt.record.origin.view(), origin_width);
    case 2:
        return value_cell(open, view, line);
    case 3:
        return formatted("%6.0f", to_shown_colour(malt.record.colour, open.settings));
    case 4:
        return formatted("%6.2f", grain_to_shown(malt.amount, open.settings));
    default:
        return share_cell(open, malt);
    }
}

std::string hop_cell(const OpenDocument& open, const RecipeView& view, std::size_t line, std::size_t column) {
    const auto& hop = open.document.hops[line];
    switch (column) {
    case 0:
        return utf8_from_windows1252(hop.record.name.view());
    case 1:
        return std::string(form_word(form(hop.record)));
    case 2:
        return formatted("%7.2f", hop.alpha);
    case 3:
        return formatted("%4.1f", hop_bitterness(hop, view, open.settings));
    case 4:
        return formatted("%7.2f", hop_to_shown(hop.amount, open.settings));
    default:
        return boil_cell(hop, open.document);
    }
}

std::string malt_value_head(const RecipeView& view, const Settings& settings) {
    if (!view.show_potential) {
        const std::array<std::string_view, 5> scales = {"SG", "Points", extract_weight_word(settings),
                                                        "Plato", "% Extract"};
        const auto scale = std::min(static_cast<std::size_t>(settings.extract_display), scales.size() - 1);
        return std::string(" Extract  ").append(scales.at(scale));
    }
    constexpr std::array<std::string_view, 4> scales = {" SG pppg", " Pts pppg", " IOB-HWE", " Plato pppg"};
    constexpr std::array<std::string_view, 4> yields = {" % Yield - FDB", " % Yield - FAI", " % Yield - CDB",
                                                        "% Yield - CAI"};
    const auto scale = static_cast<std::size_t>(settings.potential_display);
    const auto yield = std::min(static_cast<std::size_t>(settings.yield_type), yields.size() - 1);
    return std::string("Potential").append(scale < scales.size() ? scales[scale] : yields[yield]);
}

std::string malt_colour_head(const Settings& settings) {
    return settings.color_units == ColorUnits::srm ? "Color L~" : "Color EBC";
}

std::string hop_bitterness_head(const RecipeView& view, const Settings& settings) {
    return view.show_ibu ? "IBU" : bittering_unit(settings).usual;
}

std::string size_label(std::string_view of, const Settings& settings) {
    const auto& volume = volume_unit(settings);
    const std::string_view unit = is_pro(settings) ? volume.usual : volume.capital;
    return std::string(of).append(" (").append(unit).append(")");
}

std::string_view beer_type_word(BeerType type) {
    switch (type) {
    case BeerType::ale:
        return "Ale";
    case BeerType::lager:
        return "Lager";
    case BeerType::cider:
        return "Cider";
    case BeerType::mead:
        return "Mead";
    case BeerType::sake:
        return "Sake";
    case BeerType::mixed:
        return "Ale/Lager (mixed)";
    }
    return "";
}

std::string_view style_book_word(const StyleRecord& style) {
    return style.book == 0 ? "AHA" : "BJCP";
}

bool has_style(const BrewDocument& document) {
    return !document.style.name.empty() || !document.style.category.empty();
}

} // namespace wortlex
