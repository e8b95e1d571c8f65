#include "calculators/alcohol_calculator.h"

#include "calculators/tool_page.h"
#include "measures/gravity.h"

#include <utility>

namespace wortlex {
namespace {

void gravity_line(TwinLines& lines, const char* key, const char* label, TwinGravity& gravity) {
    const auto rows = lines.gravity(key, label, gravity);
    rows.sg.range(1.0F, 2.0F).outside(Outside::clamp);
    rows.plato.range(1.0F, 130.0F).outside(Outside::clamp);
}

std::string gravity_text(const char* label, const TwinGravity& gravity, const Settings& settings) {
    return label + formatted(sg_pattern(8, settings), gravity.sg) +
           "\tPlato: " + formatted(plato_pattern(0, settings), gravity.plato);
}

} // namespace

AlcoholResults results_of(const AlcoholCalculator& calculator) {
    const float og = calculator.og.sg, fg = calculator.fg.sg;
    const float by_weight = alcohol_by_weight(og, fg);
    return {.by_weight = by_weight,
            .by_volume = alcohol_by_volume(by_weight, fg),
            .apparent_attenuation = apparent_attenuation(og, fg),
            .real_attenuation = real_attenuation(og, fg),
            .residual = of_plato(residual_extract(og, fg))};
}

void alcohol_form(Form& form, AlcoholCalculator& calculator, const Settings& settings,
                  AlcoholActions actions) {
    const auto figure = [&calculator](const char* key, float AlcoholResults::*part,
                                      const char* name = "") -> TwinLines::Figure {
        return {
            .key = key, .value = [&calculator, part] { return results_of(calculator).*part; }, .name = name};
    };
    TwinLines gravities(form.group("Gravity"), "gravities", settings);
    gravity_line(gravities, "og", "&OG", calculator.og);
    gravity_line(gravities, "fg", "&FG", calculator.fg);
    auto& results = form.group("Results");
    TwinLines lines(results, "results", settings);
    lines.shown("% Alcohol By Weight", figure("by_weight", &AlcoholResults::by_weight), "By Volume",
                figure("by_volume", &AlcoholResults::by_volume, "% Alcohol By Volume"));
    lines.shown("Attenuation % ADF", figure("adf", &AlcoholResults::apparent_attenuation), "% RDF",
                figure("rdf", &AlcoholResults::real_attenuation, "Attenuation % RDF"));
    lines.shown_gravity("residual", "Residual Extract SG",
                        [&calculator] { return results_of(calculator).residual; });
    results.button("refractometer", "&Refractometer", std::move(actions.refractometer));
    tool_buttons(form.group(), std::move(actions.page));
}

PrintRequest alcohol_printout(const AlcoholCalculator& calculator, const Settings& settings) {
    const auto results = results_of(calculator);
    return tool_page("Wortlex % Alcohol Calculator",
                     {gravity_text("Measured OG:\t", calculator.og, settings),
                      gravity_text("Measured FG:\t", calculator.fg, settings),
                      formatted("%% Alcohol By Weight:\t%8.2f", results.by_weight),
                      formatted("%% Alcohol By Volume:\t%8.2f", results.by_volume),
                      formatted("%% ADF:\t%8.2f", results.apparent_attenuation),
                      formatted("%% RDF:\t%8.2f", results.real_attenuation),
                      gravity_text("Residual Extract SG:\t", results.residual, settings)},
                     {175, 255}, settings);
}

} // namespace wortlex
