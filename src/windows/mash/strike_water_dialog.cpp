#include "windows/mash/strike_water_dialog.h"

#include "desktop/form_dialog.h"
#include "program/program.h"

namespace wortlex {

std::optional<StrikeWater> calculate_strike_water(const WindowPorts& ports, QWidget* owner,
                                                  StrikeWater water) {
    const auto& settings = ports.program.settings;
    const auto print = [&] { ports.pages.show(strike_water_printout(water, settings)); };
    Form form;
    strike_water_form(form, water, settings, print, nullptr);
    const DialogUse use{.template_name = "WATERCALCDIALOG", .opener = Opener::session};
    return run_dialog(form, use, places(ports.program), owner) ? std::optional(water) : std::nullopt;
}

} // namespace wortlex
