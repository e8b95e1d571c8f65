#include "documents/recipe_gravity.h"
#include "documents/session_water.h"
#include "mash/mash_chart_form.h"
#include "reports/sections.h"
#include "water/water_chart.h"

#include <utility>

namespace wortlex {
namespace {

constexpr int behind_all_texts = 100;

MashChartOptions chart_options(PrintSelection wanted, const Settings& settings) {
    MashChartOptions options;
    options.units = settings.temperature_units;
    options.fine_lines = wanted[PrintOption::fine_temperature_lines] != 0;
    options.solid_fill = wanted[PrintOption::solid_fill] != 0;
    options.decoction_spikes = wanted[PrintOption::decoction_spikes] != 0;
    options.infusion_spikes = wanted[PrintOption::infusion_spikes] != 0;
    return options;
}

ChartedMash mash_in_force(const OpenDocument& open) {
    const auto& document = open.document;
    if (has_complex_schedule(document)) return charted(document.mash);
    return charted(document.simple_mash, open.session == nullptr ? nullptr : &open.session->infusions);
}

ReportSection chart_section(ReportChart chart) {
    ReportSection section{"", {}};
    section.print_order = behind_all_texts;
    section.chart = std::move(chart);
    return section;
}

} // namespace

bool has_mash_chart(const ReportSource& source) {
    return has_mashable_grain(source.open.document);
}

ReportSection mash_chart_section(const ReportSource& source, const PrintSelection& wanted) {
    const auto& settings = source.open.settings;
    const auto options = chart_options(wanted, settings);
    const auto mash = mash_in_force(source.open);
    const auto spikes = spike_pen(settings);
    return chart_section(
        {"Mash Schedule", "_mash", mash_chart_drawing(mash, options, spikes),
         [course = course_of(mash, options), options, spikes, scale = wanted.scale](PageContext& page) {
             print_mash_chart(page, course, options, spikes, ChartForm::in_report, scale);
         }});
}

bool has_water_chart(const SessionDocument& session) {
    return session.source_water.name.view().size() > 1;
}

ReportSection water_chart_section(const ReportSource& source, const PrintSelection& wanted) {
    const auto analysis = water_analysis_of(source.open);
    return chart_section(
        {"Water Profile",
         "_water",
         {water_chart_size, [analysis](Surface& surface) { water_chart_drawing(analysis).draw(surface); }},

         [analysis, scale = wanted.scale](PageContext& page) {
             print_water_chart(page, analysis, ChartForm::in_report, scale);
         }});
}

} // namespace wortlex
