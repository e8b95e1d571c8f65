#include "windows/documents/line_dialogs.h"

#include "desktop/form_dialog.h"
#include "documents/forms/extra_amount.h"
#include "documents/forms/hop_amount.h"
#include "documents/forms/malt_amount.h"
#include "documents/forms/malt_contribution.h"
#include "documents/forms/pre_boil_form.h"
#include "windows/calculators/hop_degradation_window.h"

namespace wortlex {
namespace {

// A brewery weighs its hops by the pound.
std::string_view first_hop_field(const Settings& settings) {
    return is_pro(settings) ? "large_amount" : "amount";
}

} // namespace

std::optional<MaltUse> edit_malt_line(const WindowPorts& ports, const MaltUse& line, Opener opener,
                                      QWidget* owner) {
    auto copy = line;
    Form form;
    malt_amount_form(form, copy, ports.program.settings);
    if (!run_dialog(form, {.template_name = "MALTSHORTEDITDIALOG", .opener = opener}, places(ports.program),
                    owner))
        return std::nullopt;
    return copy;
}

std::optional<HopUse> edit_hop_line(const WindowPorts& ports, const OpenDocument& open, const HopUse& line,
                                    Opener opener, QWidget* owner) {
    auto copy = line;
    Form form;
    hop_amount_form(form, copy, open, ports.prompts);
    const bool in_home_units = open.settings.display_home_bittering != 0;
    FormDialog dialog(
        form,
        {.template_name = in_home_units ? "HOPSHORTEDITDIALOG1" : "HOPSHORTEDITDIALOG", .opener = opener},
        places(ports.program), owner);
    dialog.widgets().field(first_hop_field(open.settings)).setFocus();
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return copy;
}

std::optional<ExtraUse> edit_extra_line(const WindowPorts& ports, const ExtraUse& line, Opener opener,
                                        QWidget* owner) {
    auto copy = line;
    Form form;
    extra_amount_form(form, copy);
    if (!run_dialog(form, {.template_name = "EXTRASHORTEDITDIALOG", .opener = opener}, places(ports.program),
                    owner))
        return std::nullopt;
    return copy;
}

std::optional<HopUse> lose_hop_alpha(const WindowPorts& ports, const HopUse& line, Opener opener,
                                     QWidget* owner) {
    auto copy = line;
    const auto adjusted = degrade_hop(ports, owner, copy, opener);
    if (!adjusted) return std::nullopt;
    copy.alpha = *adjusted;
    return copy;
}

void show_malt_contribution(const WindowPorts& ports, const OpenDocument& open, std::size_t line,
                            Opener opener, QWidget* owner) {
    Form form;
    malt_contribution_form(form, open, line);
    run_dialog(form, {.template_name = "GRAINLISTDETAIL", .opener = opener, .has_cancel = false},
               places(ports.program), owner);
}

void show_pre_boil(const WindowPorts& ports, const OpenDocument& open, QWidget* owner) {
    const bool is_session = open.session != nullptr;
    const PreBoilSubject subject{open.document,
                                 [&program = ports.program] { return evaporation_rate(program); },
                                 open.settings, is_session ? &open.session->water_needs : nullptr};
    Form form;
    pre_boil_form(form, subject,
                  {.print = [&] { ports.pages.show(pre_boil_printout(subject)); }, .help = nullptr});
    run_dialog(form,
               {.template_name = is_session ? "BATCHPREBOILDIALOG" : "PREBOILDIALOG",
                .opener = is_session ? Opener::session : Opener::recipe,
                .has_cancel = false},
               places(ports.program), owner);
}

} // namespace wortlex
