#include "measures/unit_words.h"
#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

enum Vessels : std::size_t { bottles, kegs, tanks };
constexpr std::array amount_labels = {"Amount In Bottles:         |", "Amount Kegged:             |",
                                      "Amount to Serving Tanks:   |"};

std::string_view medium_word(PrimingMedium medium) {
    switch (medium) {
    case PrimingMedium::corn_sugar:
        return "Corn Sugar";
    case PrimingMedium::dme:
        return "DME";
    default:
        return "Other Type";
    }
}

const char* pressure_word(const Settings& settings) {
    return is_american(settings.pressure_units) ? "Psi" : "kPa";
}

bool is_primed_with_dme(const BottlingLog& log) {
    for (std::size_t vessel = 0; vessel < log.used.size(); ++vessel)
        if (log.used[vessel] != 0 && log.natural_carbonation[vessel] != 0 &&
            log.priming_medium[vessel] == PrimingMedium::dme)
            return true;
    return false;
}

std::string degrees_row(std::string_view label, const Settings& settings) {
    return std::string(label) + "|%d " + temperature_unit(settings).usual + "\n";
}

// On a competition form the medium of kegs stands a blank farther to the right where it is malt extract.
void add_priming(std::vector<ReportRow>& rows, const BottlingLog& log, std::size_t vessel,
                 const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto medium = log.priming_medium.at(vessel);
    const bool is_apart = source.is_competition_form && vessel == kegs && medium == PrimingMedium::dme;
    rows.push_back({std::string("Priming Medium Used:       ") + (is_apart ? " |%s\n" : "|%s\n"),
                    {medium_word(medium)}});
    rows.push_back({std::string("Amount of Priming Used:    |%0.2f ") + small_unit(settings).usual + "\n",
                    {small_to_shown(log.priming_amount.at(vessel), settings)}});
    rows.push_back({std::string("Amount of Liquid Added:    |%0.2f ") + volume_unit(settings).usual + "\n",
                    {to_shown_volume(log.liquid_added.at(vessel), settings)}});
}

void add_vessels(std::vector<ReportRow>& rows, const BottlingLog& log, std::size_t vessel,
                 const ReportSource& source) {
    const auto& settings = source.open.settings;
    const bool is_natural = log.natural_carbonation.at(vessel) != 0;
    rows.push_back({std::string(amount_labels.at(vessel)) + "%0.2f " + volume_unit(settings).full + "\n",
                    {to_shown_volume(log.amount.at(vessel), settings)}});
    rows.push_back({"Days Conditioned:          |%d\n", {log.days_conditioned.at(vessel)}});
    rows.push_back({"Carbonation Method:        |%s\n", {is_natural ? "Natural" : "Forced"}});
    if (is_natural) add_priming(rows, log, vessel, source);
    rows.push_back({degrees_row("Carbonation Temperature:   ", settings),
                    {shown_degrees(log.carbonation_temperature.at(vessel), settings)}});
    if (!is_natural)
        rows.push_back({std::string("Pressure Used:             |%0.2f ") + pressure_word(settings) + "\n",
                        {pressure_to_shown(log.pressure.at(vessel), settings)}});
    if (source.is_competition_form) rows.back().format += "\n";
}

} // namespace

bool has_filled_vessels(const SessionDocument& session) {
    const auto& used = session.bottling.used;
    return std::any_of(used.begin(), used.end(), [](std::uint8_t flag) { return flag != 0; });
}

ReportSection bottling_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto& log = source.open.session->bottling;
    const CalendarDate day{log.bottling_day, log.bottling_month, log.bottling_year};
    ReportLines lines{{180}, {{"Bottling Date:\t|%s\n", {date_words(day, settings)}}}};
    auto& rows = lines.rows;
    rows.push_back({"Desired Carbonation Level: |%0.2f Volumes CO2\n", {log.co2_volumes}});
    rows.push_back({degrees_row("Fermentation Temperature:  ", settings),
                    {shown_degrees(log.ferment_temperature, settings)}});
    if (is_primed_with_dme(log)) rows.push_back({"DME Scalar: |%0.2f\n", {settings.dme_scalar}});
    for (std::size_t vessel = 0; vessel < log.used.size(); ++vessel)
        if (log.used[vessel] != 0) add_vessels(rows, log, vessel, source);
    return section_of("Bottling/Kegging Specifics", std::move(lines));
}

} // namespace wortlex
