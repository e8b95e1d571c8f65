#include "documents/forms/fermentation_form.h"

#include "documents/forms/yeast_rows.h"
#include "documents/session_figures.h"
#include "measures/degrees.h"

namespace wortlex {
namespace {

constexpr float highest_gravity = 2;

void pitching_rows(Rows& rows, FermentationLog& log) {
    const auto code = [](PitchedFrom from) { return static_cast<std::int32_t>(from); };
    rows.choice(
            "pitched_from", log.pitched_from,
            {"&Dry Yeast Pak", "Li&quid Yeast Pak", "Pitchable &Tube", "Sta&rter", "Slurr&y from Previous"})
        .codes({code(PitchedFrom::dry_pack), code(PitchedFrom::liquid_pack),
                code(PitchedFrom::pitchable_flask), code(PitchedFrom::starter), code(PitchedFrom::slurry)})
        .look(ChoiceRow::Look::down)
        .label("Pitched From:");
    auto& grid = rows.grid("pitching", {});
    grid.line("&Lag Time: (hours)")
        .number("lag_hours", log.lag_hours)
        .range(1.0F, 1000.0F)
        .step(1.0F)
        .format("%0.1f");
    auto& amount = grid.line("Amount Pitc&hed:");
    amount.integer("amount_pitched", log.amount_pitched).range(1, 100000).step(10);
    amount.choice("amount_unit", log.amount_unit, {"mL", "LTR", "GR", "OZ", "LBS", "QTS"})
        .named("Unit of the amount pitched")
        .look(ChoiceRow::Look::drop_down);
}

// One of the two, on the page. Limits are degrees F.
struct Fermenter {
    std::string key;
    Vessel FermentationLog::*vessel;
    std::uint8_t FermentationLog::*is_open;
    std::int32_t FermentationLog::*days;
    std::int32_t FermentationLog::*temperature;
    DegreeBox FermentationLog::*box;
    std::int32_t hottest;
    std::string closed_word, days_label, temperature_label;
};

// Stored in degrees F whatever the box beside it says.
void temperature_line(Rows& line, FermentationLog& log, const Fermenter& fermenter) {
    const auto units = [&box = log.*fermenter.box] {
        return box == DegreeBox::celsius ? TemperatureUnits::celsius : TemperatureUnits::fahrenheit;
    };
    const auto limit = [units, hottest = fermenter.hottest] { return shown_degrees(hottest, units()); };
    auto& degrees = log.*fermenter.temperature;
    line.integer(fermenter.key + "_temperature",
                 {[&degrees, units] { return shown_degrees(degrees, units()); },
                  [&degrees, units](std::int32_t typed) { degrees = stored_degrees(typed, units()); }})
        .typed(1, limit)
        .spun(0, limit, 1);
    line.choice(fermenter.key + "_temperature_unit", log.*fermenter.box, {"Farenheit", "Celsius"})
        .named("Degrees of the temperature")
        .look(ChoiceRow::Look::drop_down);
}

void fermenter_rows(Rows& rows, FermentationLog& log, const Fermenter& fermenter) {
    rows.choice(fermenter.key + "_vessel", log.*fermenter.vessel,
                {"Glass", "Stainless Steel", "Plastic", "Wood", "Other"});
    rows.choice(fermenter.key + "_open", log.*fermenter.is_open, {"Closed", "Open"})
        .named(fermenter.closed_word);
    auto& grid = rows.grid(fermenter.key + "_stay", {});
    grid.line(fermenter.days_label)
        .integer(fermenter.key + "_days", log.*fermenter.days)
        .range(0, 360)
        .step(1);
    temperature_line(grid.line(fermenter.temperature_label), log, fermenter);
}

void fermenter_groups(Form& form, FermentationLog& log) {
    using Log = FermentationLog;
    fermenter_rows(form.group("Primary Fermenter:"), log,
                   {"primary", &Log::primary_vessel, &Log::primary_open, &Log::primary_days,
                    &Log::primary_temperature, &Log::primary_temperature_unit, 212, "Primary closed or open",
                    "D&ays", "Te&mp"});
    fermenter_rows(form.group("Secondary Fermenter:"), log,
                   {"secondary", &Log::secondary_vessel, &Log::secondary_open, &Log::secondary_days,
                    &Log::secondary_temperature, &Log::secondary_temperature_unit, 360,
                    "Secondary closed or open", "Day&s", "T&emp"});
}

void gravity_line(Rows& line, const std::string& key, const std::string& name, float& sg,
                  const Settings& settings) {
    const auto fields = gravity_fields(line, key, "", sg, highest_gravity, settings);
    fields.sg.named(name);
    fields.plato.named(name + " Plato");
}

void gravity_rows(Rows& rows, RecipeEditor& editor, const FermentationActions& actions) {
    auto& session = *editor.open.session;
    const auto tell = [&editor] { tell_change(editor); };
    auto& grid = rows.grid("gravities", {"SG", "Plato"});
    const auto line_of = [&](const std::string& key, const char* label, const char* name, float& sg,
                             const MeasureGravity& refractometer) {
        auto& line = grid.line(label);
        gravity_line(line, key, name, sg, editor.open.settings);
        measure_button(line, key + "_hydrometer", "Hydro Calc", sg, highest_gravity, actions.hydrometer, tell)
            .named(std::string("Hydro Calc, ") + name);
        measure_button(line, key + "_refractometer", "Refractometer", sg, highest_gravity, refractometer,
                       tell)
            .named(std::string("Refractometer, ") + name);
    };
    line_of("actual_og", "&OG", "OG", session.actual_og, actions.og_refractometer);
    line_of("actual_fg", "&FG", "FG", session.actual_fg, actions.fg_refractometer);
    auto& way = rows.grid("way", {}).line("");
    way.choice("fg_by_refractometer", session.tail.fg_by_refractometer, {"&By OG/FG", "By Refra&ct"})
        .named("Alcohol and attenuation");
    way.button("alcohol_refractometer", "Refractometer", actions.alcohol_refractometer)
        .named("Refractometer, By Refract")
        .hint("The reading from which alcohol and attenuation follow \"By Refract\"");
}

void result_rows(Rows& rows, RecipeEditor& editor) {
    auto& grid = rows.grid("results", {});
    const auto figure = [&editor](Rows& line, const char* key,
                                  float FermentationFigures::*part) -> ShownRow& {
        return line.shown_number(
            key,
            [&editor, part] {
                return editor.fermentation.of(*editor.open.session, editor.open.settings).*part;
            },
            "%0.2f");
    };
    auto& alcohol = grid.line("% Alcohol by Weight");
    figure(alcohol, "alcohol_by_weight", &FermentationFigures::alcohol_by_weight);
    alcohol.note("volume_word", "% Alcohol by Volume");
    figure(alcohol, "alcohol_by_volume", &FermentationFigures::alcohol_by_volume)
        .named("% Alcohol by Volume");
    auto& attenuation = grid.line("% ADF");
    figure(attenuation, "adf", &FermentationFigures::apparent_attenuation);
    attenuation.note("rdf_word", "% RDF");
    figure(attenuation, "rdf", &FermentationFigures::real_attenuation).named("% RDF");
}

} // namespace

void fermentation_form(Form& form, RecipeEditor& editor, const FermentationActions& actions) {
    auto& session = *editor.open.session;
    result_rows(form.group("Results"), editor);
    gravity_rows(form.group("Gravity"), editor, actions);
    yeast_rows(form.group("Yeast"), editor.open.document.yeast.record);
    form.next_column();
    pitching_rows(form.group("Pitching"), session.fermentation);
    fermenter_groups(form, session.fermentation);
    form.restore_on_cancel(session, &SessionDocument::fermentation, &SessionDocument::actual_og,
                           &SessionDocument::actual_fg);
    form.restore_on_cancel(session.tail, &SessionTail::fg_by_refractometer, &SessionTail::actual_og_reading,
                           &SessionTail::actual_fg_reading, &SessionTail::alcohol_reading);
}

} // namespace wortlex
