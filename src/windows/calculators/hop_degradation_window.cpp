#include "windows/calculators/hop_degradation_window.h"

#include "calculators/degradation_chart_printout.h"
#include "desktop/form_dialog.h"

namespace wortlex {

std::optional<float> degrade_hop(const WindowPorts& ports, QWidget* owner, HopUse& work, Opener opener) {
    auto& program = ports.program;
    const auto& settings = program.settings;
    auto degradation = start_degradation(work, settings);
    const auto print = [&] { ports.pages.show(degradation_printout(degradation, settings.printer_scale)); };
    Form form;
    hop_degradation_form(form, degradation, {.save_jpg = nullptr, .print = print, .help = nullptr});
    const bool accepted =
        run_dialog(form, {.template_name = "HOPSHORTTIMEDIALOG", .opener = opener, .enter_closes = false},
                   places(program), owner);
    keep_storage(degradation, work);
    remember_storage(work, program.hop_memory);
    return accepted ? std::optional(degradation.adjusted_alpha) : std::nullopt;
}

} // namespace wortlex
