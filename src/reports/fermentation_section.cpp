#include "measures/rounding.h"
#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

// The word of a code, and of one that no file should hold the last.
template <class Code, std::size_t N>
std::string_view word_of(Code code, const std::array<std::string_view, N>& words) {
    return words[std::min(static_cast<std::size_t>(code), N - 1)];
}

constexpr std::array<std::string_view, 5> pitched_words = {"Starter", "Liquid Pack", "Pitchable Flask",
                                                           "Dry Pack", "Slurry"};
constexpr std::array<std::string_view, 6> pitch_units = {"mL", "LTR", "GR", "OZ", "LBS", "QTS"};
constexpr std::array<std::string_view, 5> vessel_words = {"Glass", "Stainless Steel", "Plastic", "Wood",
                                                          "Other"};

std::string_view pitch_unit(PitchUnit unit, const ReportSource& source) {
    return source.is_competition_form && unit == PitchUnit::litres ? "L" : word_of(unit, pitch_units);
}

// By its box on the page, which the settings do not change.
template <class Box>
bool is_celsius(Box box) {
    return static_cast<std::uint8_t>(box) == 1;
}

int shown_celsius(std::int32_t fahrenheit) {
    return std::max(truncate(celsius_from_fahrenheit(static_cast<float>(fahrenheit)) + 0.5), 0);
}

// What the log tells of one of the two fermenters.
struct ReportedFermenter {
    std::string name;
    Vessel vessel;
    bool is_open;
    std::int32_t days;
    std::int32_t fahrenheit;
    bool is_celsius;
};

void add_fermenter(std::vector<ReportRow>& rows, const ReportedFermenter& fermenter) {
    constexpr std::size_t column = 22;
    const auto& name = fermenter.name;
    const int degrees = fermenter.is_celsius ? shown_celsius(fermenter.fahrenheit) : fermenter.fahrenheit;
    rows.push_back(
        {padded_label(name + " Fermenter:", column) + "%s\n", {word_of(fermenter.vessel, vessel_words)}});
    rows.push_back({padded_label(name + " Type:", column) + "%s\n", {fermenter.is_open ? "Open" : "Closed"}});
    rows.push_back({padded_label("Days In " + name + ":", column) + "%d\n", {fermenter.days}});
    rows.push_back({padded_label(name + " Temperature:", column + 1) + "%d degrees %s\n",
                    {degrees, fermenter.is_celsius ? "C" : "F"}});
}

} // namespace

ReportSection fermentation_section(const ReportSource& source) {
    const auto& session = *source.open.session;
    const auto& log = session.fermentation;
    ReportLines lines{{160, 250, 300}, {}};
    auto& rows = lines.rows;
    rows.push_back({"Pitched From:          |%s\n", {word_of(log.pitched_from, pitched_words)}});
    rows.push_back(
        {"Amount Pitched:       |%d %s\n", {log.amount_pitched, pitch_unit(log.amount_unit, source)}});
    rows.push_back({"Lag Time:             |%0.2f hours\n\n", {log.lag_hours}});
    add_fermenter(rows, {"Primary", log.primary_vessel, log.primary_open != 0, log.primary_days,
                         log.primary_temperature, is_celsius(log.primary_temperature_unit)});
    if (log.secondary_days > 0)
        add_fermenter(rows, {"Secondary", log.secondary_vessel, log.secondary_open != 0, log.secondary_days,
                             log.secondary_temperature, is_celsius(log.secondary_temperature_unit)});
    rows.push_back(gravity_line({.label = "Original Gravity:  |", .width = 6, .gap = " SG   |"},
                                session.actual_og, source.open.settings));
    rows.push_back(gravity_line({.label = "Finishing Gravity: |", .width = 6, .gap = " SG   |"},
                                session.actual_fg, source.open.settings));
    return section_of("Fermentation Specifics", std::move(lines));
}

} // namespace wortlex
