#include "brewing/salts.h"
#include "documents/session_water.h"
#include "page/text_sink.h"
#include "reports/row_parts.h"
#include "reports/sections.h"
#include "water/salt_words.h"
#include "water/water_match_printout.h"
#include "water/water_totals.h"

#include <numeric>

namespace wortlex {
namespace {

constexpr std::size_t water_column = 22;
constexpr std::size_t ion_width = 8;

WaterAnalysis analysis_of(const ReportSource& source) {
    return water_analysis_of(source.open);
}

void add_ion_columns(ReportTable& table, std::size_t place, int width, const char* last) {
    for (const auto& ion : ions) {
        const bool is_last = &ion == &ions.back();
        const std::string symbol = is_last ? last : ion.symbol;
        const bool is_double = table.columns.front().title.starts_with('\n');
        table.columns.push_back({(is_double ? "\n" : "") + symbol, place + ion_width - symbol.size(), 0,
                                 width, HtmlAlign::right});
        place += ion_width;
    }
}

template <class PpmOf>
ReportRow ion_row(std::string format, std::vector<ReportValue> values, PpmOf ppm) {
    for (const auto& ion : ions) {
        format += "|%8.1f";
        values.emplace_back(ppm(ion));
    }
    return {format + "\n", std::move(values)};
}

auto ppm_in(const WaterRecord& water) {
    return [&water](const Ion& ion) { return water.*ion.ppm; };
}

ReportTable waters(const WaterAnalysis& analysis) {
    ReportTable table{{{"", 0, 0, 166}}, {}};
    add_ion_columns(table, water_column, 64, ions.back().symbol);
    const auto label = [](const char* words) { return padded(words, water_column); };
    table.rows = {
        ion_row(label("Target Water:"), {}, ppm_in(analysis.target)),
        ion_row(label("Your Water:"), {}, ppm_in(analysis.source)),
        {"  (Before Dilutions)\n", {}},
        ion_row(label("Your Water:"), {}, [&](const Ion& ion) { return diluted(analysis, ion); }),
        {"  (After Dilutions)\n", {}},
        ion_row(label("Difference:"), {}, ppm_in(analysis.difference)),
    };
    return table;
}

ReportTable additions(const WaterAnalysis& analysis) {
    ReportTable table{{{"\nAdditions", 0, 0, 106}, {"Grams\nPer Gal", 15, 0, 60, HtmlAlign::right}}, {}};
    add_ion_columns(table, water_column, 64, "Carb");
    const auto add = [&](const char* head, double rate, const WaterRecord& added) {
        table.rows.push_back(ion_row(padded(head, 15) + "|%7.2f", {rate}, ppm_in(added)));
    };
    for (std::size_t i = 0; i < salt_effects.size(); ++i)
        add(salt_words.at(i).head, analysis.rate(salt_effects.at(i).salt),
            analysis.added(salt_effects.at(i).salt));
    add("Totals:", std::accumulate(analysis.rates.begin(), analysis.rates.end(), 0.0), analysis.totals);
    return table;
}

// The next part of words with tabs between them.
std::string_view take_part(std::string_view& words) {
    const auto part = words.substr(0, words.find('\t'));
    words.remove_prefix(std::min(part.size() + 1, words.size()));
    return part;
}

ReportLines legend() {
    ReportLines lines{{}, {{"\nChemical Legend\n", {}}}};
    for (const auto& salt : salt_words) {
        std::string_view words = salt.legend;
        const auto name = padded(take_part(words), water_column), formula = padded(take_part(words), 8);
        auto line = name;
        line.append("|").append(formula).append("|").append(words).append("\n");
        lines.rows.push_back({line, {}});
    }
    return lines;
}

ReportLines quantities(const WaterAnalysis& analysis, float gallons, const std::string& head) {
    ReportLines lines{{}, {{head + "\n\n", {}}}};
    const std::string unit = analysis.unit == SaltUnit::grams ? "Grams of " : "Ounces of ";
    for (std::size_t i = 0; i < salt_effects.size(); ++i) {
        std::string_view words = salt_words.at(i).quantity;
        const auto name = padded(take_part(words), 18);
        const float rate = analysis.rate(salt_effects.at(i).salt);
        std::string line = "%6.2f  |";
        line.append(unit).append(name).append("|").append(words).append("\n");
        lines.rows.push_back({line, {salt_quantity(rate, gallons, analysis.unit)}});
    }
    lines.rows.back().format += "\n";
    return lines;
}

} // namespace

ReportSection water_match_section(const ReportSource& source) {
    const auto analysis = analysis_of(source);
    auto section = section_of(
        "Water Analysis - Regional Matching",
        ReportLines{{},
                    {{"Profile Water Name: |%s\n", {line_text(analysis.target.name)}},
                     {"Your Water Name:    |%s\n\n", {line_text(analysis.source.name)}}}},
        waters(analysis), ReportLines{{}, {{"\nDilution Rate: |%0.2f\n\n", {analysis.dilution_rate}}}},
        additions(analysis), legend());
    section.print_body = [analysis](PageContext& page) { print_water_match(page, analysis); };
    return section;
}

ReportSection water_adjustment_section(const ReportSource& source) {
    const auto analysis = analysis_of(source);
    const auto& settings = source.open.settings;
    const auto heads = water_adjustment_heads(analysis, settings);
    auto section =
        section_of("Water Adjustment Detail", quantities(analysis, analysis.mash_gallons, heads[0]),
                   quantities(analysis, analysis.sparge_gallons, heads[1]));
    section.print_body = [analysis, &settings](PageContext& page) {
        print_water_adjustment(page, analysis, settings);
    };
    return section;
}

} // namespace wortlex
