// The worked examples of the handbook, each a line "... numbers ... → ... numbers ..." in a fenced block
// with its name, are worked out anew by the functions that the windows use. A number is right to its last
// decimal. The same in another unit may stand behind it: "5 gallons (18.9 L)"; what stands in metric units
// alone is worked out in those of the files.
#include "base/number.h"
#include "brewing/calendar.h"
#include "brewing/carbonation.h"
#include "brewing/dilution.h"
#include "brewing/evaporation.h"
#include "brewing/hop_bitterness.h"
#include "brewing/hydrometer.h"
#include "brewing/mash_water.h"
#include "brewing/refractometer.h"
#include "brewing/refractometer_scales.h"
#include "brewing/salts.h"
#include "brewing/unit_families.h"
#include "brewing/water_balance.h"
#include "databases/water_hardness.h"
#include "documents/recipe_gravity.h"
#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

namespace wortlex::examples {
namespace {

using Numbers = std::vector<float>;

const Settings& plain_settings() {
    static auto image = WriteDefaultSettings();
    static const auto settings = settings_from(image);
    return settings;
}

struct Told {
    float number;
    double last_digit; ///< what one more in the last decimal is
};

// In the units of the files: what follows a number may be metric.
Told told_in_units(const std::string& digits, const std::string& rest) {
    static const std::regex metric(R"(^ (kg|L|g|C)\b)");
    static const std::map<std::string, double> factors = {
        {"kg", 1 / 0.45359237}, {"L", 1 / 3.785411784}, {"g", 1 / 28.349523}, {"C", 1.8}};
    const auto point = digits.find('.');
    const auto decimals = point == std::string::npos ? 0 : static_cast<int>(digits.size() - point - 1);
    const double number = leading_number(digits);
    const double last_digit = std::pow(10, -decimals);
    std::smatch unit;
    if (!std::regex_search(rest, unit, metric)) return {narrow(number), last_digit};
    const double factor = factors.at(unit[1]);
    return {narrow(number * factor + (unit[1] == "C" ? 32 : 0)), last_digit * factor};
}

// Digits that belong to a word, as in CaCO3, are none.
std::vector<Told> numbers_in(const std::string& text) {
    std::vector<Told> numbers;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool is_digit = std::isdigit(static_cast<unsigned char>(text[at])) != 0;
        if (!is_digit) continue;
        auto end = text.find_first_not_of("0123456789.", at);
        if (end == std::string::npos) end = text.size();
        if (at == 0 || std::isalpha(static_cast<unsigned char>(text[at - 1])) == 0) {
            numbers.push_back(told_in_units(text.substr(at, end - at), text.substr(end)));
        }
        at = end - 1;
    }
    return numbers;
}

const std::regex in_both_units(R"(([0-9.]+) (gallons|quarts|lb|pounds|ounces?|F) \(([0-9.]+) (L|kg|g|C)\))");

void check_units(const std::smatch& told, const std::string& page) {
    const double number = std::stod(told[1]);
    const std::map<std::string, double> converted = {
        {"gallons L", number * 3.785412}, {"quarts L", number * 0.946353}, {"lb kg", number * 0.453592},
        {"pounds kg", number * 0.453592}, {"ounces g", number * 28.3495},  {"ounce g", number * 28.3495},
        {"F C", (number - 32) / 1.8}};
    const auto metric = numbers_in(told[3]).at(0);
    EXPECT_NEAR(converted.at(told[2].str() + ' ' + told[4].str()), metric.number, 0.52 * metric.last_digit)
        << page << ": " << told[0];
}

std::string without_other_units(const std::string& line) {
    return std::regex_replace(line, in_both_units, "$1 $2");
}

// Pounds and a figure of each malt, as many as there are.
BrewDocument document_of(const Numbers& in, std::size_t malts, float gallons, float MaltRecord::*figure) {
    BrewDocument document;
    document.batch_size = document.wort_size = gallons;
    document.malts.resize(malts);
    for (std::size_t i = 0; i < malts; ++i) {
        document.malts[i].record.malt_type = MaltType::grain;
        document.malts[i].amount = in.at(2 * i);
        document.malts[i].record.*figure = in.at(2 * i + 1);
    }
    return document;
}

Numbers bitterness(HopFormulaCode formula, const Numbers& in) {
    auto image = WriteDefaultSettings();
    image.HopFormula = formula;
    HopCalculator hop;
    hop.ounces = in.at(0);
    hop.adjusted_alpha = in.at(1);
    hop.boil_minutes = static_cast<int>(in.at(2));
    hop.wort_volume = hop.batch_volume = in.at(3);
    hop.sg = in.at(4);
    ibu_from_weight(hop, settings_from(image));
    return {hop.ibu};
}

Numbers gravity(const Numbers& in) {
    auto document = document_of(in, 2, in.at(5), &MaltRecord::potential);
    document.efficiency = in.at(4) / 100;
    RecipeFigures figures;
    return {compute_og(document, figures, plain_settings())};
}

Numbers colour(const Numbers& in) {
    const auto document = document_of(in, 2, in.at(4), &MaltRecord::colour);
    const auto by = [&](ColorFormula formula) {
        return beer_colour(document.malts, document.batch_size, formula);
    };
    return {by(ColorFormula::Morey).mcu, by(ColorFormula::Morey).srm, by(ColorFormula::Mosher).srm,
            by(ColorFormula::Daniels).srm};
}

Numbers ebc(const Numbers& in) {
    const auto shown = [&](ColorUnits units) {
        auto image = WriteDefaultSettings();
        image.color_units = units;
        return to_shown_colour(in.at(0), settings_from(image));
    };
    return {shown(ColorUnits::ebc_new), shown(ColorUnits::ebc_traditional)};
}

Numbers efficiency(const Numbers& in) {
    const auto malts = (in.size() - 3) / 2;
    const auto* const measured = &in.at(2 * malts);
    const auto document = document_of(in, malts, measured[0], &MaltRecord::potential);
    const auto figures = session_efficiency(document, {}, measured[2], measured[1], plain_settings());
    return {figures.achieved_points, figures.efficiency * 100};
}

Numbers alcohol(const Numbers& in) {
    const auto by_weight = alcohol_by_weight(in[0], in[1]);
    return {by_weight, alcohol_by_volume(by_weight, in[1]), apparent_attenuation(in[0], in[1]),
            real_attenuation(in[0], in[1]), residual_extract(in[0], in[1])};
}

// A warm sample before fermentation, a cool one after it.
Numbers brewed(const Numbers& in) {
    auto figures = alcohol({corrected_gravity(in.at(0), in.at(1), hydrometer_error(in.at(2))), in.at(3)});
    figures.pop_back(); // no window of a session shows the residual extract
    return figures;
}

Numbers brix_wort(const Numbers& in) {
    auto image = WriteDefaultSettings();
    image.brix_correction = in.at(1);
    const auto plato = plato_from_brix(in.at(0), settings_from(image));
    return {plato, plato_to_sg(plato)};
}

Numbers brix_beer(const Numbers& in) {
    const auto figures = alcohol_from_reading(in.at(1), net_zeiss_from_brix(in.at(0), plain_settings()));
    return {figures.by_weight, figures.by_volume, figures.original_extract};
}

Numbers water_day(const Numbers& in) {
    WaterNeeds needs;
    needs.sparge = in.at(0);
    needs.sparge_deadspace = in.at(1);
    needs.mash_water = in.at(2);
    needs.grain = in.at(3);
    needs.lauter_loss = in.at(4);
    needs.boil_minutes = in.at(5);
    needs.evaporation_rate = in.at(6);
    needs.kettle_deadspace = in.at(7);
    const auto balance = BalanceWater(needs, true, plain_settings());
    return {balance.needed, balance.into_kettle, balance.after_boil, balance.after_cooling};
}

Numbers pre_boil(const Numbers& in) {
    BrewDocument document;
    document.batch_size = document.wort_size = in.at(0);
    document.og_points = narrow((in.at(1) - 1) * 1000);
    document.boil_minutes = static_cast<std::int16_t>(in.at(2));
    const auto kettle = raw_pre_boil(document, in.at(3), plain_settings());
    return {kettle.volume, sg_from_points(kettle.points)};
}

Numbers gypsum(const Numbers& in) {
    WaterAnalysis water;
    set_salt_rate(water, salt_effects[0], in.at(0));
    return {water.totals.calcium, water.totals.sulfate};
}

Numbers thinned(const Numbers& in) {
    WaterAnalysis water;
    water.source.calcium = in.at(0);
    water.dilution_rate = in.at(1);
    return {diluted(water, ions[0])};
}

Numbers days(const Numbers& in) {
    const auto date = [&](std::size_t at) {
        return CalendarDate{static_cast<int>(in.at(at + 2)), static_cast<int>(in.at(at + 1)),
                            static_cast<int>(in.at(at))};
    };
    return {static_cast<float>(days_between(date(0), date(3)))};
}

float unit(UnitFamily family, std::string_view to, float base) {
    for (const auto& each : family)
        if (each.name == to) return narrow(each.of_base(base));
    ADD_FAILURE() << to;
    return 0;
}

std::int32_t whole(float number) {
    return static_cast<std::int32_t>(number);
}

Numbers boiled_away(const Numbers& in) {
    const auto rate = evaporation_rate(in.at(0), in.at(1), whole(in.at(2)));
    return {rate.percent_per_hour, rate.volume_per_hour};
}

Numbers boil_off(const Numbers& in) {
    const auto evaporated = evaporated_by_percent(in.at(0), in.at(2), whole(in.at(3)));
    return {in[0] - evaporated, diluted_gravity(in[1], in[0], -evaporated)};
}

Numbers priming(const Numbers& in) {
    const auto grams = priming_grams(in.at(0), in.at(1), in.at(2));
    return {grams, narrow(grams / 28.3495)};
}

Numbers pressure(const Numbers& in) {
    const auto psi = carbonation_pressure(in.at(0), in.at(1));
    return {psi, unit(pressure_units(), "kPa", psi)};
}

Numbers yield(const Numbers& in) {
    const auto dry = yield_from_sg(in.at(0));
    return {dry, as_is_yield(dry, in.at(1))};
}

// What the example of that name works out.
Numbers worked_out(const std::string& name, const Numbers& in) {
    const auto& settings = plain_settings();
    const auto degrees = temperature_units();
    if (name == "hydrometer") return {corrected_gravity(in[0], in[1], hydrometer_error(in[2]))};
    if (name == "refractometer_wort") return brix_wort(in);
    if (name == "refractometer_fermenting")
        return {current_gravity(sg_to_plato(in[1]), net_zeiss_from_brix(in[0], settings))};
    if (name == "refractometer_alcohol") return brix_beer(in);
    if (name == "plato") return {sg_to_plato(in[0])};
    if (name == "alcohol") return alcohol(in);
    if (name == "brewed") return brewed(in);
    if (name == "dilution") return {diluted_gravity(in[1], in[0], in[2])};
    if (name == "blend") return {blended_gravity({in[0], in[1]}, {in[2], in[3]})};
    if (name == "evaporation_rate") return boiled_away(in);
    if (name == "boil_off") return boil_off(in);
    if (name == "priming") return priming(in);
    if (name == "pressure") return pressure(in);
    if (name == "gallons_to_liters") return {unit(us_fluid_units(), "Liter", in[0] * 128)};
    if (name == "pounds_to_kilograms") return {unit(weight_units(), "Kilogram", in[0] * 16)};
    if (name == "fahrenheit") return {unit(degrees, "Celsius", in[0]), unit(degrees, "Kelvin", in[0])};
    if (name == "days") return days(in);
    if (name == "ibu_rager") return bitterness(HopFormulaCode::Rager, in);
    if (name == "ibu_garetz") return bitterness(HopFormulaCode::Garetz, in);
    if (name == "ibu_tinseth") return bitterness(HopFormulaCode::Tinseth, in);
    if (name == "ibu_generic") return bitterness(HopFormulaCode::Generic, in);
    if (name == "hop_aging")
        return {alpha_after_storage(in[0], static_cast<std::int16_t>(in[2]), in[1], in[3], in[4])};
    if (name == "hbu") return {hbu(in[0], in[1]), mbu(in[0] * 28.35F, in[1])};
    if (name == "gravity") return gravity(in);
    if (name == "yield") return yield(in);
    if (name == "hwe") return {hwe_from_points((in[0] - 1) * 1000)};
    if (name == "color") return colour(in);
    if (name == "ebc") return ebc(in);
    if (name == "pre_boil") return pre_boil(in);
    if (name == "efficiency") return efficiency(in);
    if (name == "strike")
        return {static_cast<float>(StrikeTemperature(whole(in[2]), whole(in[3]), in[1] / in[0], 0))};
    if (name == "infusion") return {InfusionAmount(whole(in[3]), whole(in[2]), whole(in[4]), in[1], in[0])};
    if (name == "mash_volume") return {TotalMashVolume(in[0], in[1], settings.grain_water_volume)};
    if (name == "decoction")
        return {DecoctionVolume(whole(in[2]), whole(in[3]), {in[0], in[1], 0.4F}, whole(in[4]), in[5])};
    if (name == "hardness") return {calcium_of(in[0]), magnesium_of(in[0])};
    if (name == "alkalinity") return {narrow(carbonates_of(in[0], in[1]).bicarbonate)};
    if (name == "gypsum") return gypsum(in);
    if (name == "dilution_of_ions") return thinned(in);
    if (name == "water_needed") return water_day(in);
    ADD_FAILURE() << "nothing works out " << name;
    return {};
}

void check(const std::string& name, const std::string& whole_line, const std::string& page) {
    const auto line = without_other_units(whole_line);
    const auto arrow = line.find("\u2192");
    ASSERT_NE(arrow, std::string::npos) << page << ": " << line;
    Numbers given;
    for (const auto& number : numbers_in(line.substr(0, arrow))) given.push_back(number.number);
    const auto result = worked_out(name, given);
    const auto told = numbers_in(line.substr(arrow));
    ASSERT_EQ(told.size(), result.size()) << page << ": " << line;
    for (std::size_t i = 0; i < told.size(); ++i)
        EXPECT_NEAR(result[i], told[i].number, 0.52 * told[i].last_digit) << page << ": " << line;
}

TEST(Handbook, ItsExamplesAreWhatTheProgramWorksOut) {
    constexpr std::string_view fence = "```example ";
    int examples = 0, in_two_units = 0;
    for (const auto& entry : std::filesystem::directory_iterator(HANDBOOK_FOLDER)) {
        std::ifstream page(entry.path());
        std::string line, name;
        while (std::getline(page, line)) {
            for (std::sregex_iterator both(line.begin(), line.end(), in_both_units), end; both != end;
                 ++both, ++in_two_units)
                check_units(*both, entry.path().filename().string());
            if (line.substr(0, fence.size()) == fence) {
                name = line.substr(fence.size());
            } else if (line.substr(0, 3) == "```") {
                name.clear();
            } else if (!name.empty()) {
                check(name, line, entry.path().filename().string());
                ++examples;
            }
        }
    }
    EXPECT_GT(examples, 40);
    EXPECT_GT(in_two_units, 20);
}

} // namespace
} // namespace wortlex::examples
