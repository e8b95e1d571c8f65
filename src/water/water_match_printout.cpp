#include "water/water_match_printout.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "water/salt_words.h"

#include <numeric>

namespace wortlex {
namespace {

constexpr std::array water_stops = {160, 235, 310, 385, 460, 535};
constexpr std::array salt_stops = {160, 235, 295, 355, 415, 475, 535};

using PpmOf = std::function<float(const Ion&)>;

std::string with_ions(std::string line, const PpmOf& ppm) {
    for (const auto& ion : ions) line += formatted("\t%0.1f", ppm(ion));
    return line;
}

PpmOf ppm_in(const WaterRecord& water) {
    return [&water](const Ion& ion) { return water.*ion.ppm; };
}

void print_names(PageContext& page, const WaterAnalysis& analysis) {
    const auto name = [](const WaterRecord& water) { return utf8_from_windows1252(water.name.view()); };
    page.TabbedLine({160}, "Profile Water Name:\t" + name(analysis.target));
    page.TabbedLine({160}, "Your Water Name:\t" + name(analysis.source));
    page.NewLines(1);
}

void print_waters(PageContext& page, const WaterAnalysis& analysis) {
    page.TabbedLine(water_stops, "\tCa\tMg\tNa\tSO4\tCl\tHCO3");
    page.TabbedLine(water_stops, with_ions("Target Water:", ppm_in(analysis.target)));
    page.TabbedLine(water_stops, with_ions("Your Water:", ppm_in(analysis.source)));
    page.Line("  (Before Dilutions)");
    page.TabbedLine(water_stops,
                    with_ions("Your Water:", [&analysis](const Ion& ion) { return diluted(analysis, ion); }));
    page.Line("  (After Dilutions)");
    page.TabbedLine(water_stops, with_ions("Difference:", ppm_in(analysis.difference)));
    page.NewLines(1);
    page.Line(formatted("Dilution Rate: %0.2f", analysis.dilution_rate));
    page.NewLines(1);
}

void print_salts(PageContext& page, const WaterAnalysis& analysis) {
    page.KeepTogether(3 + static_cast<int>(salt_words.size()));
    page.TabbedLine(salt_stops, "\tGrams");
    page.TabbedLine(salt_stops, "Additions\tPer Gal\tCa\tMg\tNa\tSO4\tCl\tCarb");
    const auto line = [&page](const char* head, double rate, const WaterRecord& added) {
        page.TabbedLine(salt_stops, with_ions(head + formatted("\t%0.2f", rate), ppm_in(added)));
    };
    for (std::size_t i = 0; i < salt_effects.size(); ++i) {
        const auto salt = salt_effects[i].salt;
        line(salt_words[i].head, analysis.rate(salt), analysis.added(salt));
    }
    line("Totals:", std::accumulate(analysis.rates.begin(), analysis.rates.end(), 0.0), analysis.totals);
    page.NewLines(1);
}

} // namespace

void print_water_match(PageContext& page, const WaterAnalysis& analysis) {
    print_names(page, analysis);
    print_waters(page, analysis);
    print_salts(page, analysis);
    page.KeepTogether(1 + static_cast<int>(salt_words.size()));
    page.Line("Chemical Legend");
    for (const auto& salt : salt_words) page.TabbedLine({160, 260, 360}, salt.legend);
}

PrintRequest water_match_printout(const WaterAnalysis& analysis, const Settings& settings) {
    return {"Wortlex Water Analysis - Regional Matching", settings.printer_scale,
            [analysis](PageContext& page) {
                page.SetHeader(0, "Wortlex Water Analysis - Regional Matching ");
                page.NewLines(1);
                print_water_match(page, analysis);
            }};
}

} // namespace wortlex
