#include "windows/calculators/brewers_tools.h"

#include "program/program.h"
#include "windows/calculators/calculator_window.h"
#include "windows/calculators/gravity_dialogs.h"

namespace wortlex {
namespace {

// What prints a calculator as it is when the button is pressed.
template <class Calculator>
ToolActions page_actions(const WindowPorts& ports, const Calculator& calculator,
                         PrintRequest (*printout)(const Calculator&, const Settings&)) {
    const auto print = [&calculator, &program = ports.program, &pages = ports.pages, printout] {
        pages.show(printout(calculator, program.settings));
    };
    return {.print = print, .help = nullptr};
}

// A calculator whose form and page need nothing but itself.
template <class Calculator>
ToolWindow* make_plain(const WindowPorts& ports, const WindowInfo& info, QWidget* origin,
                       Calculator& calculator,
                       void (*make_form)(Form&, Calculator&, const Settings&, ToolActions),
                       PrintRequest (*printout)(const Calculator&, const Settings&)) {
    return new CalculatorWindow(ports, info, origin, [&](Form& form, QWidget&) {
        make_form(form, calculator, ports.program.settings, page_actions(ports, calculator, printout));
    });
}

// Of a calculator that keeps its values in a file of its own.
template <class Calculator>
StateActions state_actions(const WindowPorts& ports, Calculator& calculator, QWidget& window,
                           HydrometerUse use, bool (*save)(const std::string&, const Calculator&, Prompts&),
                           PrintRequest (*printout)(const Calculator&, const Settings&)) {
    auto& program = ports.program;
    return {.correct = [ports, &window, use](float sg) { return correct_gravity(ports, &window, sg, use); },
            .save = [&program, &calculator, &prompts = ports.prompts,
                     save] { return save(program.data_folder, calculator, prompts); },
            .page = page_actions(ports, calculator, printout)};
}

struct RefractometerInfo {
    std::size_t tool;
    RefractometerUse use;
};

ToolWindow* make_refractometer(const WindowPorts& ports, const WindowInfo& info, QWidget* origin,
                               const RefractometerInfo& which) {
    auto& program = ports.program;
    auto& tool = program.calculators.refractometers.at(which.tool);
    open_refractometer(tool, program.settings);
    const auto print = [&program, &tool, &pages = ports.pages, use = which.use] {
        pages.show(refractometer_printout(tool, use, std::nullopt, program.settings));
    };
    auto* const window = new CalculatorWindow(ports, info, origin, [&](Form& form, QWidget&) {
        refractometer_form(form, tool, program.settings, {.print = print, .help = nullptr});
    });
    window->on_change([&program, &tool](Change change) {
        if (change == Change::calibration)
            take_calibration(tool, program.calculators.calibration_change, program.settings);
    });
    return window;
}

} // namespace

ToolWindow* make_hydrometer(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    auto& tool = ports.program.calculators.hydrometer;
    open_hydrometer(tool, ports.program.settings);
    return make_plain(ports, info, origin, tool, hydrometer_form, hydrometer_printout);
}

ToolWindow* make_calibration(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    auto& program = ports.program;
    const auto tell = [&program](CalibrationChange change) {
        program.calculators.calibration_change = change;
        program.notices.tell(Change::calibration);
    };
    return new CalculatorWindow(
        ports, info, origin,
        [&](Form& form, QWidget&) { refractometer_calibration_form(form, program.settings, tell); },
        CalculatorWindow::Buttons::ok_and_cancel);
}

ToolWindow* make_raw_wort_gravity(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return make_refractometer(ports, info, origin, {0, RefractometerUse::raw_wort});
}

ToolWindow* make_fermentation_gravity(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return make_refractometer(ports, info, origin, {1, RefractometerUse::fermentation});
}

ToolWindow* make_refractometer_alcohol(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return make_refractometer(ports, info, origin, {2, RefractometerUse::alcohol});
}

ToolWindow* make_alcohol(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    auto& calculator = ports.program.calculators.alcohol;
    return new CalculatorWindow(ports, info, origin, [&](Form& form, QWidget& window) {
        const auto refractometer = [&window, commands = ports.commands] {
            window.close();
            commands->start(command::residual_extract);
        };
        alcohol_form(
            form, calculator, ports.program.settings,
            {.refractometer = refractometer, .page = page_actions(ports, calculator, alcohol_printout)});
    });
}

ToolWindow* make_dilution(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    auto& calculator = ports.program.calculators.dilution;
    return new CalculatorWindow(ports, info, origin, [&](Form& form, QWidget& window) {
        dilution_form(form, calculator, ports.program.settings,
                      state_actions(ports, calculator, window, HydrometerUse::dilution, SaveDilution,
                                    dilution_printout));
    });
}

ToolWindow* make_boil_off(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    auto& calculator = ports.program.calculators.boil_off;
    return new CalculatorWindow(ports, info, origin, [&](Form& form, QWidget& window) {
        boil_off_form(form, calculator, ports.program.settings,
                      state_actions(ports, calculator, window, HydrometerUse::boil_off, SaveBoilOff,
                                    boil_off_printout));
    });
}

ToolWindow* make_carbonation(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return make_plain(ports, info, origin, ports.program.calculators.carbonation, carbonation_form,
                      carbonation_printout);
}

ToolWindow* make_units(const WindowPorts& ports, const WindowInfo& info, QWidget* origin) {
    return make_plain(ports, info, origin, ports.program.calculators.units, unit_converter_form,
                      unit_converter_printout);
}

} // namespace wortlex
