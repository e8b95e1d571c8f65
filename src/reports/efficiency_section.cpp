#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr std::size_t volume_column = 24;
constexpr GravityWords estimated = {.label = "Estimated OG:           |", .gap = "    |"};
constexpr GravityWords recorded = {.label = "Recorded OG:            |", .gap = "    |"};

ReportRow recorded_volume_row(std::string_view what, float gallons, const Settings& settings) {
    const auto label = std::string(what) + " (" + volume_unit(settings).usual + "):";
    return {padded_label(label, volume_column) + "%0.2f\n", {to_shown_volume(gallons, settings)}};
}

void add_target(std::vector<ReportRow>& rows, const char* heading, const PreBoil& target,
                const Settings& settings) {
    rows.push_back({heading, {}});
    rows.push_back(recorded_volume_row("Target Volume", target.volume, settings));
    rows.push_back(gravity_line(estimated, sg_from_points(target.points), settings));
    rows.back().format += "\n";
}

void add_recording(std::vector<ReportRow>& rows, const SessionDocument& session, const Settings& settings) {
    const auto& tail = session.tail;
    rows.push_back({tail.measured_in_fermenter != 0
                        ? "Recorded Actuals - Measurement Taken In Ferementer:\n\n"
                        : "Recorded Actuals - Measurement Taken In Kettle:\n\n",
                    {}});
    rows.push_back(recorded_volume_row("Recorded Volume", tail.recorded_volume, settings));
    rows.push_back(recorded_volume_row("+Losses", recording_losses(session, settings), settings));
    rows.push_back(recorded_volume_row("Total Volume", recorded_gallons(session, settings), settings));
    rows.push_back(gravity_line(recorded, tail.recorded_og, settings));
    rows.back().format += "\n";
}

void add_points(std::vector<ReportRow>& rows, const char* heading, double mash, double others, double total) {
    rows.push_back({heading, {}});
    rows.push_back({"Total Points:              |%0.2f\n", {total}});
    rows.push_back({"Points From Mash:          |%0.2f\n", {mash}});
    rows.push_back({"Points From Extract/Sugar: |%0.2f\n\n\n", {others}});
}

} // namespace

// "Ferementer" has always been spelt so.
ReportSection efficiency_section(const ReportSource& source) {
    const auto& document = source.open.document;
    const auto& settings = source.open.settings;
    const auto* const session = source.open.session;
    const auto actual = recorded_efficiency(document, *session, settings);
    const double planned = double{actual.mash_points} * document.efficiency;
    std::vector<ReportRow> rows{
        {"Recipe Efficiency Setting: |%0.0f %s\n\n\n", {double{document.efficiency} * 100, "%"}}};
    add_target(rows, "Water Needed Pre-Boil Targets:\n\n",
               water_pre_boil(document, session->water_needs, settings), settings);
    add_target(rows, "Raw Pre-Boil Targets:\n\n", raw_pre_boil(document, source.evaporation_rate, settings),
               settings);
    add_target(rows, "Post-Boil Targets:\n\n", end_of_boil(document, settings), settings);
    add_recording(rows, *session, settings);
    add_points(rows, "At 100 percent extraction from the maximum mash potential:\n\n", actual.mash_points,
               actual.extract_points, actual.total_points);
    add_points(rows, "With the recipe efficiency setting, you should have achieved:\n\n", planned,
               actual.extract_points, planned + actual.extract_points);
    add_points(rows, "Actuals achieved were:\n\n", actual.actual_mash_points, actual.extract_points,
               actual.achieved_points);
    rows.push_back({"Actual Points From Mash:       |%0.2f\n", {actual.actual_mash_points}});
    rows.push_back({"Actual Mash System Efficiency: |%0.0f\n\n\n", {double{actual.efficiency} * 100}});
    return section_of("Efficiency Specifics", ReportLines{{180, 240, 290}, std::move(rows)});
}

} // namespace wortlex
