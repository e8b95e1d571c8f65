#include "base/windows1252.h"
#include "frame/report/document_report.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

// Columns of a page: texts are cut and filled on the right, figures filled on the left.
std::string column(std::string_view windows1252, std::size_t width) {
    const auto cut = windows1252.substr(0, width);
    return utf8_from_windows1252(cut) + std::string(width - cut.size(), ' ');
}

std::string figure(double value, int decimals, std::size_t width) {
    const auto text = fixed(value, decimals);
    return text.size() >= width ? " " + text : std::string(width - text.size(), ' ') + text;
}

constexpr std::size_t name_width = 34;

struct Words {
    std::string_view volume, grain, hops, colour, temperature;
};

Words words(const Settings& settings) {
    const bool pro = settings.system_mode == SystemMode::pro_brewer;
    const auto pick = [](bool first, std::string_view a, std::string_view b) { return first ? a : b; };
    return {settings.volume_units == Units::american ? pick(pro, "bbl", "gal") : pick(pro, "hL", "L"),
            pick(settings.weight_units == Units::american, "lb", "kg"),
            settings.hop_weight_units == Units::american ? pick(pro, "lb", "oz") : pick(pro, "kg", "g"),
            pick(settings.color_units == ColorUnits::srm, "SRM", "EBC"),
            pick(settings.temperature_units == TemperatureUnits::fahrenheit, "F", "C")};
}

std::string_view word(RecipeKind kind) {
    switch (kind) {
    case RecipeKind::partial_mash:
        return "Partial Mash";
    case RecipeKind::extract:
        return "Extract";
    default:
        return "All Grain";
    }
}

std::string_view word(HopFormulaCode formula) {
    switch (formula) {
    case HopFormulaCode::Rager:
        return "Rager";
    case HopFormulaCode::Garetz:
        return "Garetz";
    case HopFormulaCode::Tinseth:
        return "Tinseth";
    case HopFormulaCode::Generic:
        return "Daniels";
    }
    return "no formula";
}

std::string time_word(const HopUse& line, int boil_minutes) {
    switch (hop_timing(line.boil_time, boil_minutes)) {
    case HopTiming::dry:
        return "  Dry";
    case HopTiming::first_wort:
        return "  FWH";
    case HopTiming::mash:
        return "   MH";
    default:
        return figure(line.boil_time, 0, 5);
    }
}

std::string volume(float gallons, const Settings& settings) {
    return fixed(to_shown_volume(gallons, settings), 2) + " " + std::string(words(settings).volume);
}

std::string gravity(float points, const Settings& settings) {
    const float sg = narrow(points / 1000.0 + 1);
    return fixed(sg, 3 + static_cast<int>(std::min(settings.sg_precision, 2U))) + " (" +
           fixed(sg_to_plato(sg), 1) + " Plato)";
}

std::string heading(const Program& program, const Evaluation& evaluation) {
    const auto& document = program.document;
    const auto& settings = program.settings;
    std::string out = utf8_from_windows1252(document.title.view());
    out += evaluation.kind == DocumentKind::session ? " - Brewing Session\n" : " - Recipe\n";
    out += "  " + evaluation.file + "\n  " + std::string(word(document.recipe_kind));
    if (!document.style.name.empty()) out += ", " + utf8_from_windows1252(document.style.name.view());
    out += "\n\n  Batch " + volume(document.batch_size, settings) + "   Wort " +
           volume(document.wort_size, settings) + "   Boil " + std::to_string(document.boil_minutes) +
           " min   Efficiency " + fixed(document.efficiency * 100.0, 0) + " %\n";
    out += "  OG " + gravity(document.og_points, settings) + "   IBU " + fixed(document.total_ibu, 1) + " (" +
           std::string(word(settings.HopFormula)) + ")   Colour " +
           fixed(to_shown_colour(program.figures.colour.srm, settings), 1) + " " +
           std::string(words(settings).colour) + "\n";
    return out + "  Pre-boil " + volume(evaluation.pre_boil.volume, settings) + " at " +
           gravity(evaluation.pre_boil.points, settings) + "\n";
}

std::string malt_list(const Program& program) {
    const auto& settings = program.settings;
    std::string out = "\n  " + column("Malts", name_width) + "     " + std::string(words(settings).grain) +
                      "      %  points\n";
    for (const auto& line : program.document.malts) {
        const double percent =
            program.figures.total_grain > 0 ? double{line.amount} / program.figures.total_grain * 100 : 0.0;
        out += "  " + column(line.record.name.view(), name_width) +
               figure(grain_to_shown(line.amount, settings), 2, 7) + figure(percent, 1, 7) +
               figure(line.points, 1, 8) + "\n";
    }
    return out + "  " + column("Total", name_width) +
           figure(grain_to_shown(program.figures.total_grain, settings), 2, 7) + "\n";
}

std::string hop_list(const Program& program) {
    const auto& settings = program.settings;
    std::string unit(words(settings).hops);
    unit.insert(0, 7 - unit.size(), ' ');
    std::string out = "\n  " + column("Hops", name_width) + unit + "  alpha   min   IBU\n";
    for (const auto& line : program.document.hops) {
        out += "  " + column(line.record.name.view(), name_width) +
               figure(hop_to_shown(line.amount, settings), 2, 7) + figure(line.alpha, 1, 7) + " " +
               time_word(line, program.document.boil_minutes) + figure(line.ibu, 1, 6) + "\n";
    }
    return out;
}

std::string mash_line(const Program& program) {
    const auto& settings = program.settings;
    const bool is_complex = has_complex_schedule(program.document);
    const auto& mash = program.figures.mash;
    std::string out = "\n  Mash (" + std::string(is_complex ? "complex" : "simple") + "): water " +
                      volume(narrow(mash.quarts / 4.0), settings) + ", mash " +
                      volume(mash.gallons, settings) + "\n";
    if (!is_complex) return out;
    for (const auto& step : program.document.mash.used_steps()) {
        out += "    " + column(step.name.view(), 20) +
               figure(to_shown_temperature(static_cast<float>(step.start_temperature), settings), 0, 5) +
               " " + std::string(words(settings).temperature) + figure(step.rest_minutes, 0, 5) + " min";
        if (step.amount > 0)
            out +=
                ", " + volume(narrow(step.amount / 4.0), settings) +
                (step.heat_type == StepHeat::decoction ? " pulled" : " added at ") +
                (step.heat_type == StepHeat::decoction
                     ? std::string()
                     : fixed(to_shown_temperature(static_cast<float>(step.infuse_temperature), settings), 0) +
                           " " + std::string(words(settings).temperature));
        out += "\n";
    }
    return out;
}

std::string brew_day(const Program& program, const Evaluation& evaluation) {
    const auto& settings = program.settings;
    const auto& alcohol = evaluation.fermentation;
    return "\n  Alcohol " + fixed(alcohol.alcohol_by_volume, 2) + " % by volume, " +
           fixed(alcohol.alcohol_by_weight, 2) + " % by weight   ADF " +
           fixed(alcohol.apparent_attenuation, 1) + " %   RDF " + fixed(alcohol.real_attenuation, 1) +
           " %\n  Mash efficiency " + fixed(evaluation.efficiency.efficiency * 100.0, 0) +
           " %\n  Water needed " + volume(program.water.needed, settings) + ", into the kettle " +
           volume(program.water.into_kettle, settings) + ", to the fermenter " +
           volume(program.water.after_cooling, settings) + "\n";
}

} // namespace

std::string summary(const Program& program, const Evaluation& evaluation) {
    auto page = heading(program, evaluation) + malt_list(program) + hop_list(program) + mash_line(program);
    if (evaluation.kind == DocumentKind::session) page += brew_day(program, evaluation);
    return page;
}

} // namespace wortlex
