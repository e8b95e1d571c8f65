#include "windows/calculators/ibu_calculator_window.h"

#include "base/windows1252.h"
#include "calculators/ibu_calculator.h"
#include "calculators/ibu_calculator_printout.h"
#include "desktop/form_dialog.h"
#include "windows/calculators/formula_type_window.h"
#include "windows/calculators/hop_degradation_window.h"

namespace wortlex {
namespace {

class IbuCalculatorWindow {
public:
    IbuCalculatorWindow(const WindowPorts& ports, QWidget* owner, const HopUse& hop)
        : ports_(ports), hop_(hop), settings_(ports.program.settings),
          calculator_(start_calculator(hop, ports.program.hop_memory, settings_)), form_(made_form()),
          dialog_(form_, {.template_name = template_name(), .has_cancel = false, .enter_closes = false},
                  places(ports.program), owner) {}

    void run() {
        dialog_.exec();
        remember_calculator(calculator_, ports_.program.hop_memory);
    }

private:
    Form made_form() {
        Form form;
        ibu_calculator_form(form, calculator_, settings_, hop_name(),
                            {.figure_time_loss = [this] { figure_time_loss(); },
                             .choose_formula = [this] { change_formula(); },
                             .print = [this] { print(); },
                             .help = nullptr});
        return form;
    }

    std::string hop_name() const { return utf8_from_windows1252(hop_.record.name.view()); }

    std::string_view template_name() const {
        return settings_.display_home_bittering != 0 ? "HOPIBUFROMWIEGHTDIALOG" : "HOPIBUFROMWIEGHTDIALOG1";
    }

    void figure_time_loss() {
        hop_.alpha = calculator_.start_alpha;
        if (const auto adjusted = degrade_hop(ports_, &dialog_, hop_))
            take_storage_loss(calculator_, hop_.alpha, *adjusted, settings_);
        dialog_.widgets().refresh();
    }

    void change_formula() {
        if (choose_formula(ports_.program, &dialog_, settings_)) ibu_from_weight(calculator_, settings_);
        dialog_.widgets().refresh();
    }

    void print() { ports_.pages.show(ibu_calculator_printout(calculator_, hop_name(), settings_)); }

    WindowPorts ports_;
    HopUse hop_;
    Settings settings_; // its own: no other window is to see the formula that is tried here
    HopCalculator calculator_;
    Form form_;
    FormDialog dialog_;
};

} // namespace

void run_ibu_calculator(const WindowPorts& ports, QWidget* owner, const HopUse& picked) {
    IbuCalculatorWindow(ports, owner, picked).run();
}

} // namespace wortlex
