#include "calculators/ibu_calculator_printout.h"

#include "base/number.h"
#include "brewing/hop_bitterness.h"
#include "calculators/ibu_calculator.h"
#include "forms/numeric_fields.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr std::string_view ibu_title = "Wortlex IBU Calculator";

using Lines = std::vector<std::string>; // tabs between columns, empty ones are left blank

std::string yes_or_no(bool is_so) {
    return is_so ? "Yes" : "No";
}

void add_weight(Lines& lines, const HopCalculator& calculator, const Settings& settings) {
    if (is_pro(settings)) {
        lines.push_back(formatted("Pounds Hops Used:\t%0.2f", calculator.ounces / 16.0));
        lines.push_back(formatted("Kilograms Hops Used:\t%0.2f", calculator.grams / 1000.0));
        return;
    }
    lines.push_back(formatted("Ounces Hops Used:\t%0.2f", calculator.ounces));
    lines.push_back(formatted("Grams Hops Used:\t%0.2f", calculator.grams));
}

void add_hop(Lines& lines, const HopCalculator& calculator, const std::string& name,
             const Settings& settings) {
    lines.push_back("Hop Name:\t" + name);
    add_weight(lines, calculator, settings);
    if (settings.HopFormula == HopFormulaCode::Garetz) {
        lines.push_back("Beer Filtered :\t" + yes_or_no(calculator.beer_filtered));
        lines.push_back("Hop Bags Used :\t" + yes_or_no(calculator.bag_used));
    }
    lines.push_back(formatted("Alpha:\t%0.2f", calculator.start_alpha) +
                    formatted("\tAdjusted Alpha:\t%0.2f", calculator.adjusted_alpha));
}

void add_wort(Lines& lines, const HopCalculator& calculator, const Settings& settings) {
    const bool is_tinseth = settings.HopFormula == HopFormulaCode::Tinseth;
    const auto volume = [&](const char* of, float gallons) {
        return volume_label(of, settings) + formatted(":\t%0.2f", to_shown_volume(gallons, settings));
    };
    lines.push_back(volume("Batch Size", calculator.batch_volume));
    lines.push_back(volume("Wort Size", calculator.wort_volume));
    if (!is_tinseth)
        lines.back() += formatted("\tConcentration Factor:\t%0.2f", calculator.factors.concentration);
    lines.push_back((is_tinseth ? "Av. Wort SG:\t" : "Wort SG:\t") +
                    formatted(sg_pattern(0, settings), calculator.sg) +
                    formatted("\tGravity Factor:\t%0.2f", calculator.factors.gravity));
    lines.push_back(formatted("Boil Time :\t%d", calculator.boil_minutes) +
                    formatted("\tUtilization Factor :\t%0.2f", calculator.factors.utilization));
}

void add_result(Lines& lines, const HopCalculator& calculator, const Settings& settings) {
    lines.push_back(formatted("The IBU Level obtained will be approx. %0.2f  IBU's", calculator.ibu));
    lines.push_back(formatted("HBU's:  %0.2f", hbu(calculator.ounces, calculator.adjusted_alpha)));
    lines.push_back(formatted("MBU's:  %0.2f", mbu(calculator.grams, calculator.adjusted_alpha)));
    lines.emplace_back();
    lines.push_back("Hop IBU Formula Used:\t" + std::string(formula_word(settings.HopFormula)));
}

std::string change_line(const std::string& hop, int percent, const Settings& settings) {
    // Of mash hops, too, the word goes by the change of first wort hops.
    const std::string word = settings.first_wort_change < 0 ? "Decrease" : "Increase";
    return hop + " Utilization " + word + formatted(" Setting: %d%%", percent);
}

void add_use(Lines& lines, const HopCalculator& calculator, const Settings& settings) {
    if (calculator.is_first_wort) {
        lines.emplace_back("Used as First Wort Hop");
        lines.push_back(change_line("FWH", settings.first_wort_change, settings));
    }
    if (calculator.is_mash_hop) {
        lines.emplace_back("Used as Mash Hop");
        lines.push_back(change_line("MH", settings.mash_hop_change, settings));
    }
}

} // namespace

PrintRequest ibu_calculator_printout(const HopCalculator& calculator, const std::string& hop_name,
                                     const Settings& settings) {
    Lines lines;
    add_hop(lines, calculator, hop_name, settings);
    lines.emplace_back();
    add_wort(lines, calculator, settings);
    lines.emplace_back();
    add_result(lines, calculator, settings);
    add_use(lines, calculator, settings);
    return {std::string(ibu_title), settings.printer_scale, [lines](PageContext& page) {
                page.SetHeader(0, std::string(ibu_title));
                for (const auto& line : lines) page.TabbedLine({150, 220, 350}, line);
            }};
}

} // namespace wortlex
