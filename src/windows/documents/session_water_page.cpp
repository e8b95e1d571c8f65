#include "windows/documents/session_water_page.h"

#include "desktop/form_dialog.h"
#include "documents/session_water.h"
#include "program/program.h"
#include "water/water_calculator.h"
#include "water/water_totals.h"
#include "windows/databases/ingredient_windows.h"
#include "windows/documents/session_printouts.h"
#include "windows/water/water_calculator_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <memory>

namespace wortlex {
namespace {

// The calculator's work, which is worked out anew from the session after each change of it.
class SessionWater {
public:
    SessionWater(RecipeEditor& editor, const WindowPorts& ports)
        : editor_(editor), ports_(ports), analysis_(water_analysis_of(editor.open)) {}

    void fill(Form& form, QWidget* page) {
        page_ = page;
        restore_on_cancel(form);
        water_calculator_form(form, analysis_, actions(), WaterSide::session);
        form.after_edit([this](Row&) { keep(); });
    }
    void follow() { analysis_ = water_analysis_of(editor_.open); }

private:
    void restore_on_cancel(Form& form) const {
        auto& session = *editor_.open.session;
        form.restore_on_cancel(session, &SessionDocument::salt_grams, &SessionDocument::salt_effects,
                               &SessionDocument::source_water, &SessionDocument::dilution_rate);
        form.restore_on_cancel(session.tail.calculated_ph);
    }

    WaterActions actions() {
        return {.pick_target = nullptr,
                .pick_source = [this] { return pick_water(ports_, Opener::session, page_); },
                .load = [this] { load(); },
                .save = [this] { save_water_analysis(analysis_, path_, desk()); },
                .show_totals = [this] { show_totals(); },
                .show_graph = [this] { show_chart(); },
                .suggest = [this] { suggest_salts(ports_, analysis_, page_); },
                .print = [this] { print_session_page(ports_, SessionPrint::water_match); },
                .help = nullptr,
                .pressed = [this] { tell(); }};
    }

    void keep() { keep_water_analysis(analysis_, editor_.open); }
    void tell() {
        keep();
        tell_change(editor_);
    }

    WaterDesk desk() const { return {ports_.program.folders, ports_.files, ports_.prompts}; }

    // The volumes and the water to be matched stay those of the session.
    void load() { load_water_analysis(analysis_, path_, desk()); }

    void show_totals() {
        Form form;
        const auto print = [this] { print_session_page(ports_, SessionPrint::water_adjustment); };
        water_totals_form(form, analysis_, editor_.open.settings, {.print = print, .help = nullptr},
                          WaterSide::session);
        form.after_edit([this](Row&) { tell(); });
        run_dialog(form,
                   {.template_name = "BATCHWATERTOTALSDIALOG",
                    .opener = Opener::session,
                    .has_cancel = false,
                    .enter_closes = false},
                   places(ports_.program), page_);
    }

    void show_chart() {
        if (chart_.isNull()) chart_ = new WaterChartWindow(ports_, analysis_, Opener::session, page_);
        bring_forward(*chart_);
    }

    RecipeEditor& editor_;
    WindowPorts ports_;
    WaterAnalysis analysis_;
    std::string path_; // of the file that was read or written last
    QWidget* page_ = nullptr;
    QPointer<WaterChartWindow> chart_;
};

QLayout* arrange_session_water(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(arrange_water_profile(widgets));
    auto* const files = new QHBoxLayout;
    for (const auto* const key : {"load", "save", "reset"}) files->addWidget(&widgets.field(key));
    files->addStretch();
    page->addLayout(files);
    page->addStretch();
    return page;
}

} // namespace

RecipePageUse water_profile_page(RecipeEditor& editor, const WindowPorts& ports) {
    const auto water = std::make_shared<SessionWater>(editor, ports);
    return {.template_name = "BATCHCHEMICALDIALOG",
            .step = "Water Profile",
            .opener = Opener::session,
            .fill = [water](Form& form, QWidget* page) { water->fill(form, page); },
            .arrange = arrange_session_water,
            .follow = [water] { water->follow(); }};
}

} // namespace wortlex
