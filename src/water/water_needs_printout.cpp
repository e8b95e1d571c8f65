#include "base/number.h"
#include "measures/units.h"
#include "water/shown_water.h"
#include "water/water_needs_calculator.h"

namespace wortlex {
namespace {

using Lines = std::vector<std::string>;

// A word that begins with a capital, in the middle of a sentence.
std::string uncapitalized(std::string word) {
    word.front() = static_cast<char>(word.front() - 'A' + 'a');
    return word;
}

// The lines of a worksheet, volumes in the units of its window.
class Worksheet {
public:
    Worksheet(const WaterNeeds& needs, const WaterBalance& balance, Units units, const Settings& settings)
        : needs_(needs), balance_(balance), units_(units), settings_(settings) {}

    Lines into_kettle() const {
        return {line("Sparge Amount:\t%0.2f", needs_.sparge) +
                    line("\tSparge Deadspace:\t%0.2f", needs_.sparge_deadspace) +
                    line("\tTotal Into Mash:\t%6.2f", needs_.total_into_mash),
                grain() + line("\tTotal From Mash:\t%6.2f", balance_.from_mash),
                "\t\tMash " + mash_unit() + line("\t%0.2f", needs_.mash_water),
                line("\t\tGrain Absorption:\t%0.2f", needs_.grain_absorption),
                "\t\tAmount Lost in Lauter Tun Deadspace,",
                line("\t\tGrant and Misc. to Kettle:\t\t%0.2f", needs_.lauter_loss),
                line("\t\tTop Up Water Added to Kettle:\t\t%0.2f", needs_.top_up),
                line("\t\tAmount into Kettle:\t\t\t%0.2f", balance_.into_kettle)};
    }

    Lines into_fermenter() const {
        return {formatted("\t\tBoil Time (min):\t%0.2f", needs_.boil_minutes) + evaporation(),
                line("\t\tAmount after Boil:\t\t\t%0.2f", balance_.after_boil),
                line("\t\tLeft in Kettle Deadspace:\t\t%0.2f", needs_.kettle_deadspace),
                line("\t\tLeft in Hopback:\t\t\t%0.2f", needs_.hopback),
                line("\t\tLeft in Counterflow Chiller:\t\t%0.2f", needs_.chiller),
                line("\t\tLeft in Other Equipment / Other Absorption:\t%0.2f", needs_.other),
                line("\t\tAmount to Chillers:\t\t\t%0.2f", balance_.to_chillers),
                formatted("\t\tAmount After Cooling (%0.0f%%):", settings_.cooling_shrink * 100.0) +
                    line("\t\t%0.2f", balance_.after_cooling)};
    }

    Lines notes() const {
        const auto unit = std::string(water_unit(units_, settings_).full);
        return {absorption(), "Evaporation rate is " + (is_by_volume() ? unit + " Per Hour" : "% per Hour"),
                line("This formulation will yield %0.2f ", balance_.after_cooling) + uncapitalized(unit) +
                    " of fermentable wort.",
                line("You will need %0.2f ", balance_.needed) + uncapitalized(unit) +
                    " of water for the complete brewing session."};
    }

private:
    std::string line(const char* pattern, float gallons) const {
        return formatted(pattern, to_shown_volume(gallons, units_, settings_.system_mode));
    }
    bool is_by_volume() const { return settings_.evaporation_by_volume != 0; }

    std::string grain() const {
        const bool american = is_american(units_);
        const double grain = american ? needs_.grain : needs_.grain * grams_per_pound / 1000.0;
        return formatted(american ? "Total Grain LBS:\t%0.2f\tQts Per LBS:"
                                  : "Total Grain kg:\t%0.2f\tL Per kg:",
                         grain) +
               formatted("\t%0.2f", shown_water_ratio(needs_, units_));
    }

    std::string mash_unit() const {
        const auto& words = water_unit(units_, settings_);
        const bool is_long = &words == &words_of(Unit::hectolitres);
        return is_long ? std::string(words.usual) + "    :" : std::string(words.full) + ":";
    }

    std::string evaporation() const {
        constexpr auto pattern = "\tEvaporation Rate:\t%0.2f";
        return is_by_volume() ? line(pattern, needs_.evaporation_rate)
                              : formatted(pattern, needs_.evaporation_rate) + "%";
    }

    std::string absorption() const {
        if (is_american(units_))
            return formatted("Grain absorption rate is: %0.2f (Gallons Per LBS)", settings_.grain_absorption);
        return formatted("Grain absorption rate is: %0.2f (L Per kg)",
                         settings_.grain_absorption * absorption_per_kilogram);
    }

    const WaterNeeds& needs_;
    const WaterBalance& balance_;
    Units units_;
    const Settings& settings_;
};

void print_lines(PageContext& page, const Lines& lines) {
    for (const auto& line : lines) page.TabbedLine({140, 190, 350, 400, 540}, line);
}

} // namespace

void print_water_needs(PageContext& page, const WaterNeeds& needs, const WaterBalance& balance, Units units,
                       const Settings& settings) {
    const Worksheet sheet(needs, balance, units, settings);
    print_lines(page, sheet.into_kettle());
    print_lines(page, sheet.into_fermenter());
    page.NewLines(3);
    print_lines(page, sheet.notes());
}

PrintRequest water_needs_printout(const WaterNeedsTool& tool, const Settings& settings) {
    return {"Wortlex Water Needed Worksheet", settings.printer_scale, [tool, settings](PageContext& page) {
                page.SetHeader(0, "Wortlex Water Needed Worksheet");
                page.NewLines(1);
                print_water_needs(page, tool.needs, tool.balance, tool.units, settings);
            }};
}

} // namespace wortlex
