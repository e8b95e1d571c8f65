#include "brewing/hop_bitterness.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr std::size_t utilization_column = 49; // wide enough for first wort hops

ReportRow method_row(const Settings& settings) {
    if (settings.efficiency_mode >= EfficiencyMode::method_2)
        return {"Brewhouse Efficiency and Predicted Gravity based on Method #2, No Potential Used.\n", {}};
    return {"Brewhouse Efficiency and Predicted Gravity based on Method #1, Potential Used.\n", {}};
}

ReportRow gravity_base_row(const Settings& settings) {
    if (settings.gravity_base == GravityBase::mass)
        return {"Final Gravity Calculation Based on Mass. Initial Sucrose Value not relative.\n", {}};
    return {"Final Gravity Calculation Based on Points.\n", {}};
}

std::string_view word(ColorFormula formula) {
    switch (formula) {
    case ColorFormula::Morey:
        return "Morey";
    case ColorFormula::Mosher:
        return "Mosher";
    case ColorFormula::Daniels:
        return "Daniels";
    }
    return "";
}

ReportRow utilization_row(std::string_view hops, double percent) {
    const auto label = "Additional Utilization Used For " + std::string(hops) + ":";
    return {padded_label(label, utilization_column) + "%3.0f %s\n", {percent, "%"}};
}

void add_utilizations(std::vector<ReportRow>& rows, const Settings& settings) {
    if (settings.use_additional_utilization != 0) {
        rows.push_back(utilization_row("Plug Hops", settings.plug_increase * 100.0));
        rows.push_back(utilization_row("Pellet Hops", settings.pellet_increase * 100.0));
    }
    if (settings.first_wort_change != 0)
        rows.push_back(utilization_row("First Wort Hops", settings.first_wort_change));
    if (settings.mash_hop_change != 0) rows.push_back(utilization_row("Mash Hops", settings.mash_hop_change));
}

} // namespace

ReportSection formulas_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    std::vector<ReportRow> rows{method_row(settings), gravity_base_row(settings)};
    if (settings.efficiency_mode < EfficiencyMode::method_2)
        rows.push_back({"Yield Of Mashed Grain Based On: |%s\n", {yield_word(settings.yield_type)}});
    rows.push_back({"Sucrose Value for recipe: |%0.4f\n", {source.open.figures.recipe_sucrose}});
    rows.push_back({"Color Formula Used:   |%s\n", {word(settings.color_formula)}});
    rows.push_back({"Hop IBU Formula Used: |%s\n", {formula_word(settings.HopFormula)}});
    if (settings.HopFormula == HopFormulaCode::Tinseth)
        rows.push_back({"Tinseth Concentration Factor: |%0.2f\n", {settings.tinseth_factor}});
    rows.push_back({"Kettle Size Hop Utilization Scale Factor: |%0.2f\n", {settings.kettle_factor}});
    add_utilizations(rows, settings);
    rows.back().format += "\n";
    return section_of("Formulas Used", ReportLines{{290}, rows});
}

} // namespace wortlex
