#include "mash/session_mash_rows.h"

#include "base/number.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

float infused_quarts(const InfusionExtras& infusions) {
    return narrow(double{infusions.protein.amount} + infusions.intermediate.amount +
                  infusions.saccharification.amount + infusions.mash_out.amount);
}

// A kitchen that measures in litres has always seen the quarts here.
float shown_quarts_added(const InfusionExtras& infusions, const Settings& settings) {
    const float quarts = infused_quarts(infusions);
    const bool stays = !is_american(settings.volume_units) && !is_pro(settings);
    return stays ? quarts : quarts_to_shown(quarts, settings);
}

std::string volume_added_label(const Settings& settings) {
    const auto& unit = volume_unit(settings);
    return std::string(is_american(settings.volume_units) ? unit.usual : unit.full) + " Added";
}

} // namespace

IntegerRow& whole_degrees_row(Rows& rows, const std::string& key, std::int32_t& degrees,
                              TemperatureUnits units) {
    const Binding<std::int32_t> shown{
        [&degrees, units] { return shown_degrees(degrees, units); },
        [&degrees, units](std::int32_t typed) { degrees = stored_degrees(typed, units); }};
    return rows.temperature(key, shown, units).format("%3d");
}

void heat_row(Rows& rows, SessionMash& session) {
    rows.choice("heat_type", session.infusions.heat_type, {"&Direct", "I&nfusion"}).named("Heat of the mash");
}

void add_infusion_captions(std::vector<Live<std::string>>& captions, const Settings& settings) {
    captions.emplace_back(std::string("Infusion Water Temp\n(") + temperature_unit(settings).full + ")");
    const auto& unit = mash_water_unit(settings);
    captions.emplace_back(std::string("Infusion Water Needed\n(") +
                          (is_american(settings.volume_units) ? unit.usual : unit.full) + ")");
}

void infusion_cells(Rows& line, const std::string& key, const SimpleMashWork& work, const InfusedCells& cells,
                    const Settings& settings) {
    const auto& infusion = cells.infusion;
    whole_degrees_row(line, key + "_infusion", cells.infusion.temperature, settings.temperature_units)
        .enabled([&work, rest = cells.rest] {
            return work.session.infusions.heat_type == SimpleHeat::infusion && can_infuse(work.mash, rest);
        });
    line.shown_number(
        key + "_needed", [&infusion, &settings] { return quarts_to_shown(infusion.amount, settings); },
        "%6.2f");
}

void added_rows(Rows& rows, const InfusionExtras& infusions, const Settings& settings) {
    rows.shown_number(
            "quarts_added", [&infusions, &settings] { return shown_quarts_added(infusions, settings); },
            "%6.2f")
        .label("Qts Added");
    rows.shown_number(
            "volume_added",
            [&infusions, &settings] {
                return to_shown_volume(narrow(infused_quarts(infusions) / 4.0), settings);
            },
            "%6.2f")
        .label(volume_added_label(settings));
}

void wort_rows(Rows& rows, SessionMash& session, std::function<void()> correct_gravity,
               std::function<void()> measure_runnings) {
    rows.number("wort_ph", session.wort_ph)
        .label("Wort pH")
        .range(3.0F, 10.0F)
        .step(0.05F)
        .format("%4.2f")
        .outside(Outside::clamp);
    auto& runnings = session.runnings;
    auto& line = rows.grid("runnings", {"SG", "Plato"}).line("Runnings Stopped At:");
    const auto scale = [&](const char* key, float TwinGravity::*part,
                           TwinGravity (*both)(float)) -> NumberRow& {
        return line
            .number(key, {[&runnings, part] { return runnings.*part; },
                          [&runnings, both](float typed) { runnings = both(typed); }})
            .format("%0.6f")
            .outside(Outside::clamp);
    };
    scale("runnings_sg", &TwinGravity::sg, of_sg).gravity().range(1.0F, 2.0F).step(0.001F);
    scale("runnings_plato", &TwinGravity::plato, of_plato).range(1.0F, 100.0F).step(0.1F);
    rows.button("correct_gravity", "H&ydro Calc", std::move(correct_gravity))
        .hint("Corrects a hydrometer reading for its temperature");
    rows.button("measure_runnings", "Re&fractometer", std::move(measure_runnings))
        .hint("Takes the gravity from a refractometer");
}

float quarts_in_mash(const SimpleMashWork& work) {
    const bool is_infused = work.session.infusions.heat_type == SimpleHeat::infusion;
    return is_infused ? work.quarts : work.mash.dough_in_water;
}

void work_out_infusions(SimpleMashWork& work) {
    work.quarts =
        RecalculateSimpleInfusions(work.mash, work.session.infusions, work.mash.dough_in_water, work.grain);
}

} // namespace wortlex
