#include "windows/calculators/hop_degradation_window.h"

#include "calculators/degradation_chart_printout.h"
#include "desktop/form_dialog.h"
#include "program/picture_desk.h"

namespace wortlex {

std::optional<float> degrade_hop(const WindowPorts& ports, QWidget* owner, HopUse& work, Opener opener) {
    auto& program = ports.program;
    const auto& settings = program.settings;
    auto degradation = start_degradation(work, settings);
    const auto print = [&] { ports.pages.show(degradation_printout(degradation, settings.printer_scale)); };
    const auto save_jpg = [&] {
        const ChartDrawing chart{degradation_chart_size(true), [&](Surface& surface) {
                                     draw_degradation_chart(surface, degradation, true);
                                 }};
        choose_and_save_chart(chart, degradation.name, picture_desk(ports));
    };
    Form form;
    hop_degradation_form(form, degradation, {.save_jpg = save_jpg, .print = print, .help = nullptr});
    const bool accepted =
        run_dialog(form, {.template_name = "HOPSHORTTIMEDIALOG", .opener = opener, .enter_closes = false},
                   places(program), owner);
    keep_storage(degradation, work);
    remember_storage(work, program.hop_memory);
    return accepted ? std::optional(degradation.adjusted_alpha) : std::nullopt;
}

} // namespace wortlex
