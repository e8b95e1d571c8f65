#include "base/windows1252.h"
#include "companion/json.h"
#include "companion/report_format.h"
#include "documents/figure_catalogue.h"
#include "measures/potential.h"
#include "records/documents/brew_document.h"

namespace wortlex {
namespace {

template <std::size_t N>
void text(JsonWriter& json, std::string_view key, const Text<N>& value) {
    json.string(key, utf8_from_windows1252(value.view()));
}

std::string_view word(RecipeKind kind) {
    switch (kind) {
    case RecipeKind::partial_mash:
        return "partial mash";
    case RecipeKind::extract:
        return "extract";
    default:
        return "all grain";
    }
}

void recipe_figures(JsonWriter& json, const Program& program) {
    using namespace recipe_figure;
    const auto source = source_of(program);
    for (const auto* figure : {&batch_size, &wort_size, &boil_minutes, &efficiency, &og_points, &sg, &plato,
                               &tinseth_points, &total_extract, &sucrose, &total_ibu, &mcu, &colour})
        json.number(figure->key, figure->value(source));
    json.number("shown_colour", shown_value(colour, source));
    for (const auto* figure : {&total_grain, &mash_grain, &total_hops})
        json.number(figure->key, figure->value(source));
}

void malt(JsonWriter& json, const Program& program, std::size_t i) {
    const auto& line = program.document.recipe.malts[i];
    const auto& figures = program.document.figures.lines[i];
    const ExtractTotals totals{program.document.recipe.og_points,
                               program.document.figures.total_extract_pounds};
    const PotentialTraits traits{line.record.moisture, line.record.coarse_yield, is_mashed(line.record)};
    json.begin_object();
    text(json, "name", line.record.name);
    json.number("amount", line.amount)
        .number("points", line.points)
        .number("percent", double{line.amount} / program.document.figures.total_grain * 100)
        .number("sg", figures.line_sg)
        .number("extract", figures.line_extract)
        .number("potential_shown", potential_to_shown(line.record.potential, traits, program.settings))
        .number("extract_shown", extract_to_shown(narrow(figures.line_sg), narrow(figures.line_extract),
                                                  totals, program.settings))
        .end_object();
}

void hop(JsonWriter& json, const HopUse& line) {
    json.begin_object();
    text(json, "name", line.record.name);
    json.number("amount", line.amount)
        .number("alpha", line.alpha)
        .number("boil_time", line.boil_time)
        .number("ibu", line.ibu)
        .end_object();
}

void steps(JsonWriter& json, const ComplexMash& mash) {
    json.begin_list("steps");
    for (const auto& step : mash.used_steps()) {
        json.begin_object();
        text(json, "name", step.name);
        json.number("infuse_temperature", step.infuse_temperature)
            .number("amount", step.amount)
            .number("ratio", step.ratio)
            .end_object();
    }
    json.end_list();
}

// A recipe has no infusions of its own: they are worked out on the brew day.
void infusions(JsonWriter& json, const LiveDocument& document) {
    const bool is_session = document.kind == DocumentKind::session;
    const auto infused = is_session ? document.session.infusions : InfusionExtras{};
    json.begin_object("infusions")
        .number("protein", infused.protein.amount)
        .number("intermediate", infused.intermediate.amount)
        .number("saccharification", infused.saccharification.amount)
        .number("mash_out", infused.mash_out.amount)
        .end_object();
}

void mash(JsonWriter& json, const LiveDocument& document, const FigureSource& source) {
    const bool is_complex = has_complex_schedule(document.recipe);
    json.begin_object("mash")
        .string("kind", is_complex ? "complex" : "simple")
        .number("water", recipe_figure::mash_water.value(source))
        .number("volume", recipe_figure::mash_volume.value(source));
    if (is_complex) {
        steps(json, document.recipe.mash);
    } else {
        infusions(json, document);
    }
    json.end_object();
}

void session_figures(JsonWriter& json, const Program& program, const Evaluation& evaluation) {
    const auto& alcohol = evaluation.fermentation;
    const auto& efficiency = evaluation.efficiency;
    const auto& needs = program.document.session.water_needs;
    const auto& water = program.document.water;
    json.begin_object("alcohol")
        .number("abw", alcohol.alcohol_by_weight)
        .number("abv", alcohol.alcohol_by_volume)
        .number("adf", alcohol.apparent_attenuation)
        .number("rdf", alcohol.real_attenuation)
        .end_object();
    json.begin_object("efficiency_figures")
        .number("achieved", efficiency.achieved_points)
        .number("total", efficiency.total_points)
        .number("mash", efficiency.mash_points)
        .number("extract", efficiency.extract_points)
        .number("actual_mash", efficiency.actual_mash_points)
        .number("efficiency", efficiency.efficiency)
        .end_object();
    json.begin_object("water")
        .number("into_mash", needs.total_into_mash)
        .number("absorption", needs.grain_absorption)
        .number("into_kettle", water.into_kettle)
        .number("after_boil", water.after_boil)
        .number("to_chillers", water.to_chillers)
        .number("after_cooling", water.after_cooling)
        .number("needed", water.needed)
        .end_object();
}

} // namespace

std::string json_line(const Program& program, const Evaluation& evaluation) {
    JsonWriter json;
    json.begin_object().string("file", evaluation.file);
    text(json, "title", program.document.recipe.title);
    json.string("kind", word(program.document.recipe.recipe_kind))
        .string("document", document_traits(program.document.kind).word)
        .truth("incomplete", evaluation.load == LoadResult::incomplete);
    recipe_figures(json, program);
    json.begin_list("malts");
    for (std::size_t i = 0; i < program.document.recipe.malts.size(); ++i) malt(json, program, i);
    json.end_list().begin_list("hops");
    for (const auto& line : program.document.recipe.hops) hop(json, line);
    json.end_list();
    json.begin_object("pre_boil")
        .number("volume", evaluation.pre_boil.volume)
        .number("points", evaluation.pre_boil.points)
        .end_object();
    mash(json, program.document, source_of(program));
    if (program.document.kind == DocumentKind::session) session_figures(json, program, evaluation);
    json.end_object();
    return json.text();
}

} // namespace wortlex
