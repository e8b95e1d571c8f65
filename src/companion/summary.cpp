#include "brewing/hop_bitterness.h"
#include "companion/report_format.h"
#include "companion/terminal.h"
#include "documents/figure_catalogue.h"
#include "measures/gravity.h"
#include "measures/precision.h"
#include "measures/units.h"
#include "records/ingredients/amount_words.h"

namespace wortlex {
namespace {

// Columns of a page: texts are cut and filled on the right, figures filled on the left.
std::string column(std::string_view windows1252, std::size_t width) {
    const auto cut = windows1252.substr(0, width);
    return one_line_of(cut) + std::string(width - cut.size(), ' ');
}

std::string figure(double value, int decimals, std::size_t width) {
    const auto text = fixed(value, decimals);
    return text.size() >= width ? " " + text : std::string(width - text.size(), ' ') + text;
}

constexpr std::size_t name_width = 34;

std::string_view long_kind_word(RecipeKind kind) {
    switch (kind) {
    case RecipeKind::partial_mash:
        return "Partial Mash";
    case RecipeKind::extract:
        return "Extract";
    default:
        return "All Grain";
    }
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
    return fixed(to_shown_volume(gallons, settings), 2) + " " + volume_unit(settings).small;
}

std::string shown(const Figure& figure, const FigureSource& source) {
    return fixed(shown_value(figure, source), figure.decimals);
}

std::string with_unit(const Figure& figure, const FigureSource& source) {
    return shown(figure, source) + " " + unit_words(figure, source.settings).small;
}

std::string gravity(float points, const Settings& settings) {
    const float sg = sg_from_points(points);
    return fixed(sg, sg_decimals(settings)) + " (" + fixed(sg_to_plato(sg), 1) + " Plato)";
}

std::string date_words(const SessionDocument& session) {
    if (session.brew_year == 0) return {};
    const auto two = [](int number) { return (number < 10 ? "-0" : "-") + std::to_string(number); };
    return ", " + std::to_string(session.brew_year) + two(session.brew_month) + two(session.brew_day);
}

std::string heading(const Program& program, const Evaluation& evaluation) {
    const auto& document = program.document.recipe;
    const auto& settings = program.settings;
    std::string out = one_line_of(document.title.view());
    out += program.document.kind == DocumentKind::session
               ? " - Brewing Session" + date_words(program.document.session)
               : " - Recipe";
    out += "\n";
    out += "  " + one_line(evaluation.file) + "\n  " + std::string(long_kind_word(document.recipe_kind));
    if (!document.style.name.empty()) out += ", " + one_line_of(document.style.name.view());
    using namespace recipe_figure;
    const auto from = source_of(program);
    out += "\n\n  Batch " + with_unit(batch_size, from) + "   Wort " + with_unit(wort_size, from) +
           "   Boil " + shown(boil_minutes, from) + " min   Efficiency " + shown(efficiency, from) + " %\n";
    out += "  OG " + gravity(document.og_points, settings) + "   IBU " + shown(total_ibu, from) + " (" +
           std::string(formula_word(settings.HopFormula)) + ")   Colour " + with_unit(colour, from) + "\n";
    return out +
           "  Before the boil, by its rate of evaporation: " + volume(evaluation.pre_boil.volume, settings) +
           " at " + gravity(evaluation.pre_boil.points, settings) + "\n";
}

std::string malt_list(const Program& program) {
    const auto& settings = program.settings;
    std::string out =
        "\n  " + column("Malts", name_width) + "     " + grain_unit(settings).small + "      %  points\n";
    for (const auto& line : program.document.recipe.malts) {
        const double percent = program.document.figures.total_grain > 0
                                   ? double{line.amount} / program.document.figures.total_grain * 100
                                   : 0.0;
        out += "  " + column(line.record.name.view(), name_width) +
               figure(grain_to_shown(line.amount, settings), 2, 7) + figure(percent, 1, 7) +
               figure(line.points, 1, 8) + "\n";
    }
    const auto& grain = recipe_figure::total_grain;
    return out + "  " + column("Total", name_width) +
           figure(shown_value(grain, source_of(program)), grain.decimals, 7) + "\n";
}

std::string hop_list(const Program& program) {
    const auto& settings = program.settings;
    std::string unit(hop_unit(settings).small);
    unit.insert(0, 7 - unit.size(), ' ');
    constexpr std::size_t form_width = 8;
    std::string out = "\n  " + column("Hops", name_width - form_width) + column("Form", form_width) + unit +
                      "  alpha   min   IBU\n";
    for (const auto& line : program.document.recipe.hops) {
        out += "  " + column(line.record.name.view(), name_width - form_width) +
               column(form_word(form(line.record)), form_width) +
               figure(hop_to_shown(line.amount, settings), 2, 7) + figure(line.alpha, 1, 7) + " " +
               time_word(line, program.document.recipe.boil_minutes) + figure(line.ibu, 1, 6) + "\n";
    }
    return out;
}

std::string other_ingredients(const Program& program) {
    const auto& document = program.document.recipe;
    std::string out;
    for (const auto& line : document.extras) {
        out += "  " + column(line.record.name.view(), name_width) + figure(line.amount, 2, 7) + " " +
               words_of(line.record.amount_unit).small + "\n";
    }
    if (!out.empty()) out = "\n  Extras\n" + out;
    const auto& yeast = document.yeast.record;
    if (!yeast.name.empty())
        out += "\n  Yeast: " + one_line_of(yeast.lab.view()) + " " +
               one_line_of(yeast.catalog_number.view()) + " " + one_line_of(yeast.name.view()) + "\n";
    if (!document.water.name.empty()) out += "  Water: " + one_line_of(document.water.name.view()) + "\n";
    return out;
}

std::string temperature(std::int32_t fahrenheit, const Settings& settings) {
    return figure(to_shown_temperature(static_cast<float>(fahrenheit), settings), 0, 5) + " " +
           temperature_unit(settings).small;
}

std::string quarts(float amount, const Settings& settings) {
    return volume(narrow(amount / 4.0), settings);
}

constexpr std::size_t rest_width = 22;

std::string rests(const SimpleMash& mash, const InfusionExtras& infusions, const Settings& settings) {
    const auto row = [&](std::string_view name, const Rest& rest, float infused) {
        if (!rest.is_present()) return std::string();
        return "    " + column(name, rest_width) + temperature(rest.temperature, settings) +
               figure(rest.minutes, 0, 5) + " min" +
               (infused > 0 ? ", " + quarts(infused, settings) + " added" : std::string()) + "\n";
    };
    return row("Dough In", mash.dough_in, 0) + row("Acid Rest", mash.acid, 0) +
           row("Protein Rest", mash.protein, infusions.protein.amount) +
           row("Intermediate Rest", mash.intermediate, infusions.intermediate.amount) +
           row("Saccharification Rest", mash.saccharification, infusions.saccharification.amount) +
           row("Mash Out", mash.mash_out, infusions.mash_out.amount) + row("Sparge", mash.sparge, 0);
}

std::string step_water(const MashStep& step, const Settings& settings) {
    if (!(step.amount > 0)) return {};
    const auto amount = ", " + quarts(step.amount, settings);
    if (step.heat_type == StepHeat::decoction) return amount + " pulled";
    return amount + " added at" + temperature(step.infuse_temperature, settings);
}

std::string steps(const ComplexMash& mash, const Settings& settings) {
    std::string out;
    for (const auto& step : mash.used_steps())
        out += "    " + column(step.name.view(), rest_width) + temperature(step.start_temperature, settings) +
               figure(step.rest_minutes, 0, 5) + " min" + step_water(step, settings) + "\n";
    return out;
}

std::string mash_schedule(const Program& program) {
    const auto& settings = program.settings;
    if (!(program.document.figures.mash_grain > 0)) return {};
    const bool is_complex = has_complex_schedule(program.document.recipe);
    const auto& mash = program.document.figures.mash;
    const bool is_session = program.document.kind == DocumentKind::session;
    const auto& infusions = is_session ? program.document.session.infusions : InfusionExtras{};
    return "\n  Mash: water " + quarts(mash.quarts, settings) + ", volume " +
           with_unit(recipe_figure::mash_volume, source_of(program)) + "\n" +
           (is_complex ? steps(program.document.recipe.mash, settings)
                       : rests(program.document.recipe.simple_mash, infusions, settings));
}

std::string brew_day(const Program& program, const Evaluation& evaluation) {
    const auto& settings = program.settings;
    const auto& session = program.document.session;
    const auto& alcohol = evaluation.fermentation;
    const auto& water = program.document.water;
    const auto points = [](float sg) { return narrow((sg - 1.0) * 1000); };
    return "\n  Measured OG " + gravity(points(session.actual_og), settings) + ", FG " +
           gravity(points(session.actual_fg), settings) + "\n  Alcohol " +
           fixed(alcohol.alcohol_by_volume, 2) + " % by volume, " + fixed(alcohol.alcohol_by_weight, 2) +
           " % by weight   ADF " + fixed(alcohol.apparent_attenuation, 1) + " %   RDF " +
           fixed(alcohol.real_attenuation, 1) + " %\n  Mash efficiency " +
           fixed(evaluation.efficiency.efficiency * 100.0, 0) + " %\n  Water plan: needed " +
           volume(water.needed, settings) + ", into the kettle " + volume(water.into_kettle, settings) +
           ", after the boil " + volume(water.after_boil, settings) + ", to the fermenter " +
           volume(water.after_cooling, settings) + "\n";
}

} // namespace

std::string summary(const Program& program, const Evaluation& evaluation) {
    auto page = heading(program, evaluation) + malt_list(program) + hop_list(program) +
                other_ingredients(program) + mash_schedule(program);
    if (program.document.kind == DocumentKind::session) page += brew_day(program, evaluation);
    return page;
}

} // namespace wortlex
