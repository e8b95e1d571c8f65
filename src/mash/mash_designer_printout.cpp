#include "mash/mash_designer_printout.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr const char* page_title = "Wortlex Detailed Mash Schedule";
constexpr double thickness_in_litres = 0.4784; // quarts per pound over this are litres per kilogram

void amount_line(PageContext& page, const std::string& label, const std::string& amount,
                 const std::string& note = {}) {
    page.TabbedLine({170, 255}, label + ":\t" + amount + note);
}

void print_mash(PageContext& page, const MashDesigner& designer) {
    const auto& design = designer.design;
    const auto& settings = designer.settings;
    amount_line(page, "Mash Name", utf8_from_windows1252(design.mash.mash_name.view()));
    page.NewLines(1);
    amount_line(page, std::string("Total Grain ") + grain_unit(settings).usual,
                formatted("%0.2f", grain_to_shown(design.grain_weight, settings)));
    amount_line(page, std::string("Total Water ") + mash_water_unit(settings).usual,
                formatted("%0.2f", quarts_to_shown(design.dough_in_water, settings)),
                "\t- Before Additional Infusions");
    page.NewLines(1);
    const auto degrees = shown_degrees(design.mash.grain_temperature, settings.temperature_units);
    amount_line(page, "Grain Temp", formatted("%0.2f ", degrees) + temperature_unit(settings).usual);
    amount_line(page, "Tun Thermal Mass", formatted(" %0.2f", design.mash.tun_thermal_mass));
    page.NewLines(2);
}

// Figures stand flush with each other under the heads.
constexpr std::array step_page_columns = {
    PageColumn{.tab = 0},
    PageColumn{.tab = 175, .is_text = false, .end = 202},
    PageColumn{.tab = 225, .is_text = false, .end = 252},
    PageColumn{.tab = 275, .is_text = false, .end = 306},
    PageColumn{.tab = 325, .is_text = false, .end = 356},
    PageColumn{.tab = 375},
    PageColumn{.tab = 435, .is_text = false, .end = 468},
    PageColumn{.tab = 485, .is_text = false, .end = 532},
    PageColumn{.tab = 560, .is_text = false, .end = 583},
};

std::vector<std::string> heat_cells(const MashStep& step, const Settings& settings) {
    if (step.heat_type == StepHeat::direct) return {"Direct", "---", "-----", "----"};
    const auto degrees = formatted("%d", shown_degrees(step.infuse_temperature, settings.temperature_units));
    const float amount = quarts_to_shown(step.amount, settings);
    if (step.heat_type == StepHeat::infuse)
        return {"Infuse", degrees, formatted("%0.2f", amount), formatted("%4.2f", step.ratio)};
    const double thickness =
        is_american(settings.volume_units) ? step.ratio : step.ratio / thickness_in_litres;
    return {"Decoc", degrees, formatted("%0.2f", std::max(amount, 0.0F)),
            formatted("%4.2f (Decoc Thickness)", thickness)};
}

void print_step(PageContext& page, const MashStep& step, const Settings& settings) {
    std::vector<std::string> cells{utf8_from_windows1252(step.name.view())};
    for (const auto figure : {step.step_minutes, step.rest_minutes,
                              shown_degrees(step.start_temperature, settings.temperature_units),
                              shown_degrees(step.stop_temperature, settings.temperature_units)})
        cells.push_back(formatted("%d", figure));
    for (auto& cell : heat_cells(step, settings)) cells.push_back(std::move(cell));
    page.TableLine(step_page_columns, cells);
}

void print_steps(PageContext& page, const MashDesigner& designer) {
    const std::initializer_list<int> heads = {175, 225, 275, 325, 375, 435, 490, 550};
    page.TabbedLine(heads, "\tStep\tRest\tStart\tStop\tHeat\tInfuse\tInfuse\tInfuse");
    page.TabbedLine(heads, "Step Name\tTime\tTime\tTemp\tTemp\tType\tTemp\tAmount\tRatio\t");
    for (const auto& step : designer.design.mash.used_steps()) print_step(page, step, designer.settings);
    page.NewLines(2);
}

void print_totals(PageContext& page, const MashDesigner& designer) {
    const auto& settings = designer.settings;
    const auto total = [&](const std::string& label, float amount) {
        page.TabbedLine({190, 255}, label + formatted(":\t%6.2f\t- After Additional Infusions", amount));
    };
    total(std::string("Total Water ") + mash_water_unit(settings).usual,
          quarts_to_shown(designer.totals.quarts, settings));
    total(std::string("Total Mash Volume ") + volume_unit(settings).usual,
          to_shown_volume(designer.totals.gallons, settings));
    page.NewLines(2);
}

void print_notes(PageContext& page, const Settings& settings) {
    page.Line(std::string("All Step/Rest temperatures are in degrees ") + temperature_unit(settings).full);
    page.Line(std::string("All Infusion amounts are in ") + mash_water_unit(settings).full + ".");
    page.Line(is_american(settings.volume_units) ? "All Infusion ratios are Quarts/Lbs."
                                                 : "All Infusion ratios are in Liters/Kilograms.");
    for (const auto* const note :
         {"Step Time for Decoction Steps represent how far back in time the Decoction was pulled.",
          "Infusion amounts for Decoction Steps represent the amount pulled for the Decoction.",
          "Infusion ratios for Decoction Steps represent the Decoction Thickness."})
        page.Line(note);
}

} // namespace

PrintRequest mash_designer_printout(const MashDesigner& designer) {
    return {page_title, designer.settings.printer_scale, [designer](PageContext& page) {
                page.SetHeader(0, page_title);
                page.NewLines(1);
                print_mash(page, designer);
                print_steps(page, designer);
                print_totals(page, designer);
                print_notes(page, designer.settings);
            }};
}

} // namespace wortlex
