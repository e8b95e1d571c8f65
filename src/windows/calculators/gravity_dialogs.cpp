#include "windows/calculators/gravity_dialogs.h"

#include "calculators/hydrometer_tool.h"
#include "desktop/form_dialog.h"
#include "program/program.h"
#include "windows/calculators/calculator_window.h"

namespace wortlex {
namespace {

DialogUse hydrometer_dialog(HydrometerUse use) {
    if (use == HydrometerUse::mash) return {.template_name = "BATCHHYDROMETERDIALOG"};
    return {.template_name = "BATCHYEASTHYDROMETERDIALOG", .caption = static_cast<std::size_t>(use)};
}

// Whether it ended with OK, and in `has_changed` whether anything was typed.
bool run_refractometer(const WindowPorts& ports, QWidget* owner, RefractometerTool& tool,
                       RefractometerUse use, const DialogUse& dialog, const PrintedSession& session,
                       bool& has_changed) {
    const auto& settings = ports.program.settings;
    const auto print = [&] { ports.pages.show(refractometer_printout(tool, use, session, settings)); };
    // Before the form hears of it.
    const auto listening = ports.program.notices.listen([&](Change change) {
        if (change == Change::calibration)
            take_calibration(tool, ports.program.calculators.calibration_change, settings);
    });
    Form form;
    refractometer_form(form, tool, settings, {.print = print, .help = nullptr});
    form.after_edit([&has_changed](Row&) { has_changed = true; });
    return run_calculator(ports, owner, form, dialog);
}

// Of the two tools that tell a gravity.
std::optional<float> measured_gravity(const WindowPorts& ports, QWidget* owner, RefractometerTool tool,
                                      RefractometerUse use, const DialogUse& dialog,
                                      RefractometerPair& stored, const PrintedSession& session) {
    bool has_changed = false;
    if (!run_refractometer(ports, owner, tool, use, dialog, session, has_changed)) return std::nullopt;
    stored = pair_of(tool, ports.program.settings);
    return results_of(tool, ports.program.settings).gravity.sg;
}

} // namespace

std::optional<float> correct_gravity(const WindowPorts& ports, QWidget* owner, float sg, HydrometerUse use) {
    const auto& settings = ports.program.settings;
    auto tool = hydrometer_for(sg, settings);
    const auto print = [&] { ports.pages.show(hydrometer_printout(tool, settings)); };
    Form form;
    hydrometer_form(form, tool, settings, {.print = print, .help = nullptr});
    if (!run_calculator(ports, owner, form, hydrometer_dialog(use))) return std::nullopt;
    return corrected_reading(tool).sg;
}

std::optional<float> measure_raw_wort(const WindowPorts& ports, QWidget* owner, RefractometerUse use,
                                      float sg, RefractometerPair& stored, const PrintedSession& session) {
    const auto caption = static_cast<std::size_t>(use) - static_cast<std::size_t>(RefractometerUse::runnings);
    return measured_gravity(ports, owner, raw_wort_tool(sg, ports.program.settings), use,
                            {.template_name = "REFRACTOMETERDIALOG1_1", .caption = caption}, stored, session);
}

std::optional<float> measure_finishing_gravity(const WindowPorts& ports, QWidget* owner, float og_plato,
                                               float fg_plato, RefractometerPair& stored,
                                               const PrintedSession& session) {
    return measured_gravity(ports, owner, finishing_tool(og_plato, fg_plato, stored, ports.program.settings),
                            RefractometerUse::recorded_finishing,
                            {.template_name = "REFRACTOMETERDIALOG2_2", .opener = Opener::session}, stored,
                            session);
}

bool measure_alcohol(const WindowPorts& ports, QWidget* owner, float og_plato, float fg_plato,
                     AlcoholReading& stored, const PrintedSession& session) {
    auto tool = alcohol_tool(og_plato, fg_plato, stored, ports.program.settings);
    bool has_changed = false;
    if (!run_refractometer(ports, owner, tool, RefractometerUse::alcohol,
                           {.template_name = "REFRACTOMETERDIALOG3_3", .opener = Opener::session}, session,
                           has_changed))
        return false;
    if (has_changed) stored = alcohol_reading_of(tool, ports.program.settings);
    return true;
}

} // namespace wortlex
