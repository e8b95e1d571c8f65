#include "windows/calculators/carbonation_dialogs.h"

#include "program/program.h"
#include "windows/calculators/calculator_window.h"

namespace wortlex {

std::optional<float> ask_priming(const WindowPorts& ports, QWidget* owner, CarbonationCalculator calculator) {
    const auto& settings = ports.program.settings;
    Form form;
    natural_carbonation_form(form, calculator, settings);
    if (!run_calculator(ports, owner, form,
                        {.template_name = "BATCHNATURALCARBDIALOG", .opener = Opener::session}))
        return std::nullopt;
    return priming_of(calculator, settings).ounces;
}

std::optional<float> ask_pressure(const WindowPorts& ports, QWidget* owner,
                                  const CarbonationCalculator& calculator) {
    Form form;
    forced_carbonation_form(form, calculator, ports.program.settings);
    if (!run_calculator(ports, owner, form,
                        {.template_name = "BATCHFORCEDCARBDIALOG", .opener = Opener::session}))
        return std::nullopt;
    return pressure_of(calculator).psi;
}

} // namespace wortlex
