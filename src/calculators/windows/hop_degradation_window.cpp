#include "calculators/windows/hop_degradation_window.h"

#include "calculators/hop_degradation.h"
#include "desktop/form_dialog.h"

namespace wortlex {

std::optional<float> degrade_hop(Program& program, QWidget* owner, HopUse& work, Opener opener) {
    auto degradation = start_degradation(work, program.settings);
    Form form;
    hop_degradation_form(form, degradation);
    const bool accepted = run_dialog(form, {.template_name = "HOPSHORTTIMEDIALOG", .opener = opener},
                                     {program.tool_positions, program.settings}, owner);
    keep_storage(degradation, work);
    remember_storage(work, program.hop_memory);
    return accepted ? std::optional(degradation.adjusted_alpha) : std::nullopt;
}

} // namespace wortlex
