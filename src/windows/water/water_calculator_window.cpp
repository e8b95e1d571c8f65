#include "windows/water/water_calculator_window.h"

#include "desktop/form_dialog.h"
#include "desktop/list_keys.h"
#include "desktop/scrolled.h"
#include "program/program.h"
#include "water/salt_suggestion.h"
#include "water/water_match_printout.h"
#include "water/water_totals.h"
#include "windows/databases/ingredient_windows.h"
#include "windows/water/water_grid.h"

#include <QGridLayout>
#include <QGroupBox>

namespace wortlex {
namespace {

// What speaks against a water stands behind its name.
QLayout* water_part(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int line = 0;
    for (const std::string water : {"target", "source"}) {
        auto* const warning = qobject_cast<QLabel*>(&widgets.field(water + "_balance"));
        warning->setWordWrap(false);
        grid->addWidget(widgets.label(water + "_name"), line, 0);
        grid->addWidget(&widgets.field(water + "_name"), line, 1);
        if (widgets.form().has("pick_" + water)) grid->addWidget(&widgets.field("pick_" + water), line, 2);
        grid->addWidget(warning, line++, 3);
    }
    grid->addWidget(widgets.label("dilution_rate"), line, 0);
    grid->addWidget(&widgets.field("dilution_rate"), line, 1, Qt::AlignLeft);
    grid->setColumnStretch(3, 1);
    return grid;
}

QLayout* tool_part(const FormWidgets& widgets) {
    auto* const line = new QHBoxLayout;
    line->addWidget(widgets.label("ph"));
    for (const auto* const key : {"ph", "calculate_ph"}) line->addWidget(&widgets.field(key));
    line->addStretch();
    for (const auto* const key : {"suggest", "show_totals", "show_graph"})
        line->addWidget(&widgets.field(key));
    return line;
}

} // namespace

QLayout* arrange_water_profile(const FormWidgets& widgets) {
    auto* const work = new QVBoxLayout;
    work->addLayout(water_part(widgets));
    auto* const box = new QGroupBox(QObject::tr("Amounts in PPM"));
    box->setLayout(water_grid(widgets, *box));
    work->addWidget(box);
    work->addLayout(tool_part(widgets));
    return work;
}

void suggest_salts(const WindowPorts& ports, WaterAnalysis& analysis, QWidget* owner) {
    SaltSuggestion suggestion;
    Form form;
    salt_suggestion_form(form, analysis, suggestion);
    if (run_dialog(form, {.template_name = "WATERSUGGESTDIALOG"}, places(ports.program), owner))
        take_proposal(analysis, suggestion.proposal);
}

WaterCalculatorWindow::WaterCalculatorWindow(const WindowPorts& ports, const WindowInfo& info,
                                             QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), ports_(ports),
      calculator_({ports.program.folders, ports.files, ports.prompts}), form_(made_form()),
      widgets_(form_, places(ports.program), *this) {
    lay_out_rows();
    close_by_escape();
    press_in_window(*this, QKeySequence::Open, widgets_.field("load"));
    press_in_window(*this, QKeySequence::Save, widgets_.field("save"));
    widgets_.field("pick_target").setFocus();
}

Form WaterCalculatorWindow::made_form() {
    Form form;
    const auto pick = [this] { return pick_water(ports_, Opener::main, this); };
    const auto print = [this] {
        ports_.pages.show(water_match_printout(calculator_.work, ports_.program.settings));
    };
    const auto told = [this] { ports_.program.notices.tell(Change::water); };
    water_calculator_form(form, calculator_.work,
                          {.pick_target = pick,
                           .pick_source = pick,
                           .load = [this] { calculator_.load(); },
                           .save = [this] { calculator_.save(); },
                           .show_totals = [this] { show_totals(); },
                           .show_graph = [this] { show_chart(); },
                           .suggest = [this] { suggest_salts(ports_, calculator_.work, this); },
                           .print = print,
                           .help = nullptr,
                           .pressed = told},
                          WaterSide::tool);
    form.after_edit([told](Row&) { told(); });
    return form;
}

void WaterCalculatorWindow::lay_out_rows() {
    auto* const work = new QVBoxLayout;
    work->addLayout(arrange_water_profile(widgets_));
    work->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new Scrolled(work, this), 1);
    auto* const buttons = button_line(widgets_, {"load", "save", "reset"}, {"print", "help"});
    buttons->addWidget(closing_ok(tr("OK")));
    layout->addLayout(buttons);
}

void WaterCalculatorWindow::show_totals() {
    const auto& settings = ports_.program.settings;
    const auto print = [this, &settings] {
        ports_.pages.show(water_adjustment_printout(calculator_.work, settings));
    };
    Form form;
    water_totals_form(form, calculator_.work, settings, {.print = print, .help = nullptr}, WaterSide::tool);
    run_dialog(form, {.template_name = "WATERTOTALSDIALOG", .has_cancel = false, .enter_closes = false},
               places(ports_.program), this);
}

void WaterCalculatorWindow::show_chart() {
    if (chart_.isNull()) chart_ = new WaterChartWindow(ports_, calculator_.work, Opener::main, this);
    bring_forward(*chart_);
}

} // namespace wortlex
