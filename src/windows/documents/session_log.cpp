#include "windows/documents/session_log.h"

#include "base/windows1252.h"
#include "brewing/calendar.h"
#include "documents/bottling_date.h"
#include "documents/forms/bottling_form.h"
#include "documents/forms/efficiency_form.h"
#include "documents/forms/fermentation_form.h"
#include "documents/forms/session_notes_form.h"
#include "measures/gravity.h"
#include "program/program.h"
#include "water/water_needs_calculator.h"
#include "windows/calculators/carbonation_dialogs.h"
#include "windows/calculators/date_dialogs.h"
#include "windows/calculators/gravity_dialogs.h"
#include "windows/documents/session_log_layout.h"
#include "windows/documents/session_printouts.h"
#include "windows/water/water_needs_window.h"

#include <QVBoxLayout>

namespace wortlex {
namespace {

/// Over which page an instrument is used, and on what.
struct Bench {
    WindowPorts ports;
    QWidget* page;
    const OpenDocument& open;
};

MeasureGravity by_hydrometer(const Bench& bench, HydrometerUse use) {
    return [bench, use](float sg) { return correct_gravity(bench.ports, bench.page, sg, use); };
}

MeasureGravity of_raw_wort(const Bench& bench, RefractometerUse use, RefractometerPair& stored) {
    return [bench, use, &stored](float sg) {
        return measure_raw_wort(bench.ports, bench.page, use, sg, stored, printed_session(bench.open));
    };
}

MeasureGravity of_beer(const Bench& bench) {
    return [bench, &session = *bench.open.session](float sg) {
        return measure_finishing_gravity(bench.ports, bench.page, sg_to_plato(session.actual_og),
                                         sg_to_plato(sg), session.tail.actual_fg_reading,
                                         printed_session(bench.open));
    };
}

EfficiencyActions efficiency_actions(const Bench& bench) {
    auto& tail = bench.open.session->tail;
    return {.hydrometer = by_hydrometer(bench, HydrometerUse::session_efficiency),
            .refractometer =
                of_raw_wort(bench, RefractometerUse::recorded_efficiency, tail.recorded_og_reading),
            .print = [bench] { print_session_page(bench.ports, SessionPrint::efficiency); }};
}

FermentationActions fermentation_actions(const Bench& bench, RecipeEditor& editor) {
    auto& session = *bench.open.session;
    const auto alcohol = [bench, &session, &editor] {
        measure_alcohol(bench.ports, bench.page, sg_to_plato(session.actual_og),
                        sg_to_plato(session.actual_fg), session.tail.alcohol_reading,
                        printed_session(bench.open));
        tell_change(editor);
    };
    return {.hydrometer = by_hydrometer(bench, HydrometerUse::session_gravity),
            .og_refractometer =
                of_raw_wort(bench, RefractometerUse::recorded_original, session.tail.actual_og_reading),
            .fg_refractometer = of_beer(bench),
            .alcohol_refractometer = alcohol};
}

// A day that exists; why there is none is told.
std::optional<CalendarDate> bottling_day_of(const Bench& bench) {
    const auto ready = fermented_until(*bench.open.session);
    if (ready) return existing_day(*ready);
    bench.ports.prompts.tell({.text = no_fermentation_days, .icon = Icon::information});
    return std::nullopt;
}

// A log without a date begins with the brewing day.
void pick_bottling_day(const Bench& bench, RecipeEditor& editor) {
    auto& session = *bench.open.session;
    auto& log = session.bottling;
    const auto start = existing_day(log.bottling_day != 0 ? bottling_date(log) : brew_date(session));
    if (const auto day =
            pick_bottling_date(bench.ports, bench.page, start, [&] { return bottling_day_of(bench); }))
        set_bottling_date(log, *day);
    tell_change(editor);
}

BottlingActions bottling_actions(const Bench& bench, RecipeEditor& editor) {
    const auto& log = bench.open.session->bottling;
    return {.pick_date = [bench, &editor] { pick_bottling_day(bench, editor); },
            .natural =
                [bench, &log](std::size_t column) {
                    return ask_priming(bench.ports, bench.page, carbonation_of(log, column));
                },
            .forced =
                [bench, &log](std::size_t column) {
                    return ask_pressure(bench.ports, bench.page, carbonation_of(log, column));
                }};
}

// Cancel puts back what the brewer has entered; what the mash gives stays as it is by then.
void water_needed_form(Form& form, const Bench& bench) {
    const auto& open = bench.open;
    auto& needs = open.session->water_needs;
    using Needs = WaterNeeds;
    form.restore_on_cancel(needs, &Needs::sparge, &Needs::sparge_deadspace, &Needs::top_up,
                           &Needs::lauter_loss, &Needs::evaporation_rate, &Needs::kettle_deadspace,
                           &Needs::hopback, &Needs::chiller, &Needs::other);
    form.on_cancel([&open] { refresh_water(open); });
    const auto save_default = [bench, &needs] {
        auto& program = bench.ports.program;
        if (save_usual_water(needs, program.data_folder, bench.ports.prompts)) program.water_usage = needs;
    };
    const auto has_mash = [&document = open.document] { return document.recipe_kind != RecipeKind::extract; };
    water_needs_form(form, {needs, *open.water, open.settings.volume_units, nullptr, has_mash}, open.settings,
                     {.save_default = save_default,
                      .print = [bench] { print_session_page(bench.ports, SessionPrint::water_needed); },
                      .help = nullptr});
}

void print_button(Form& form, const char* caption, const WindowPorts& ports, SessionPrint print) {
    form.group().button("print", caption, [ports, print] { print_session_page(ports, print); });
}

QLayout* arrange_water_needed(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(arrange_water_needs(widgets));
    page->addWidget(&widgets.field("save_default"), 0, Qt::AlignLeft);
    return page;
}

} // namespace

PrintedSession printed_session(const OpenDocument& open) {
    return {utf8_from_windows1252(open.document.title.view()),
            short_date(existing_day(brew_date(*open.session)), open.settings.date_format)};
}

RecipePageUse efficiency_page(RecipeEditor& editor, const WindowPorts& ports) {
    return {.template_name = "BATCHEFFDIALOG",
            .step = "Efficiency",
            .opener = Opener::session,
            .fill =
                [&editor, ports](Form& form, QWidget* page) {
                    efficiency_form(form, editor, efficiency_actions({ports, page, editor.open}));
                },
            .arrange = arrange_efficiency};
}

RecipePageUse fermentation_page(RecipeEditor& editor, const WindowPorts& ports) {
    return {.template_name = "BATCHYEASTINFO",
            .step = "Fermentation",
            .opener = Opener::session,
            .fill = [&editor, ports](Form& form, QWidget* page) {
                fermentation_form(form, editor, fermentation_actions({ports, page, editor.open}, editor));
                print_button(form, "&Print", ports, SessionPrint::fermentation);
            }};
}

RecipePageUse bottling_page(RecipeEditor& editor, const WindowPorts& ports) {
    return {.template_name = "BATCHBOTTLINGINFO",
            .step = "Bottling / Kegging",
            .opener = Opener::session,
            .fill =
                [&editor, ports](Form& form, QWidget* page) {
                    bottling_form(form, editor, bottling_actions({ports, page, editor.open}, editor));
                    print_button(form, "Prin&t", ports, SessionPrint::bottling);
                },
            .arrange = arrange_bottling};
}

RecipePageUse session_notes_page(RecipeEditor& editor, const WindowPorts& ports) {
    return {.template_name = "BATCHNOTESDIALOG",
            .step = "Notes",
            .opener = Opener::session,
            .fill =
                [&editor, ports](Form& form, QWidget*) {
                    session_notes_form(form, editor.open.session->session_notes,
                                       [ports] { print_session_page(ports, SessionPrint::notes); });
                },
            .arrange = arrange_notes};
}

RecipePageUse water_needed_page(RecipeEditor& editor, const WindowPorts& ports) {
    return {.template_name = "BATCHWATERNEEDSDIALOG",
            .step = "Water Needed",
            .opener = Opener::session,
            .fill =
                [&editor, ports](Form& form, QWidget* page) {
                    water_needed_form(form, {ports, page, editor.open});
                },
            .arrange = arrange_water_needed};
}

} // namespace wortlex
