#include "base/number.h"
#include "brewing/mash_recalculation.h"
#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"
#include "water/water_needs_calculator.h"

namespace wortlex {
namespace {

// Labels end where figures begin.
ReportRow amount_row(const std::string& label, double amount, std::string_view behind = "") {
    constexpr std::size_t label_end = 37;
    std::string indent;
    indent.resize(label_end - std::min(label.size(), label_end), ' ');
    return {indent + label + "|  %6.2f" + std::string(behind) + "\n", {amount}};
}

// A word that begins with a capital, in the middle of a sentence.
std::string inside_sentence(std::string word) {
    word.front() = static_cast<char>(word.front() - 'A' + 'a');
    return word;
}

// The balance as it is reported: of an extract recipe no water goes through a mash.
struct Balance {
    WaterNeeds needs;
    WaterBalance water;

    explicit Balance(const ReportSource& source) : needs(source.open.session->water_needs) {
        const bool has_mash = source.open.document.recipe_kind != RecipeKind::extract;
        water = BalanceWater(needs, has_mash, source.open.settings);
        if (has_mash) return;
        needs.sparge = needs.sparge_deadspace = needs.total_into_mash = needs.grain = needs.mash_water =
            needs.quarts_per_pound = needs.grain_absorption = water.from_mash = 0;
    }
};

class Worksheet {
public:
    explicit Worksheet(const ReportSource& source) : balance_(source), settings_(source.open.settings) {}

    std::vector<ReportRow> rows() {
        add_mash();
        add_boil();
        add_losses();
        add_notes();
        return std::move(rows_);
    }

private:
    void add(const std::string& label, float gallons) {
        rows_.push_back(amount_row(label, to_shown_volume(gallons, settings_)));
    }
    void end_block() { rows_.back().format += "\n"; }
    const UnitWords& unit() const { return volume_unit(settings_); }
    bool is_by_volume() const { return settings_.evaporation_by_volume != 0; }

    void add_mash() {
        const auto& needs = balance_.needs;
        add("Sparge Amount:", needs.sparge);
        add("Sparge Deadspace:", needs.sparge_deadspace);
        add("Total Into Mash:", needs.total_into_mash);
        end_block();
        rows_.push_back(amount_row(std::string("Total Grain ") + grain_unit(settings_).capital + ":",
                                   grain_to_shown(needs.grain, settings_)));
        rows_.push_back(
            amount_row(is_american(settings_.volume_units) ? "Qts Per LBS:" : "L Per kg:",
                       shown_ratio(narrow(needs.mash_water * 4.0), needs.grain, settings_.volume_units)));
        const bool is_short = &unit() == &words_of(Unit::hectolitres);
        add(std::string("Mash ") + (is_short ? "hL    :" : std::string(unit().full) + ":"), needs.mash_water);
        add("Grain Absorption:", needs.grain_absorption);
        add("Total From Mash:", balance_.water.from_mash);
        end_block();
    }

    void add_boil() {
        const auto& needs = balance_.needs;
        rows_.push_back({" Amount Lost in Lauter Tun Deadspace,\n", {}});
        add("Grant and Misc. to Kettle:", needs.lauter_loss);
        add("Top Up Water Added to Kettle:", needs.top_up);
        add("Amount into Kettle:", balance_.water.into_kettle);
        end_block();
        rows_.push_back(amount_row("Boil Time (min):", needs.boil_minutes));
        rows_.push_back(amount_row("Evaporation Rate:",
                                   is_by_volume() ? to_shown_volume(needs.evaporation_rate, settings_)
                                                  : needs.evaporation_rate));
        add("Amount after Boil:", balance_.water.after_boil);
        end_block();
    }

    void add_losses() {
        const auto& needs = balance_.needs;
        add("Left in Kettle Deadspace:", needs.kettle_deadspace);
        add("Left in Hopback:", needs.hopback);
        add("Left in Counterflow Chiller:", needs.chiller);
        add("Left in Misc. Equipment:", needs.other);
        add("Amount to Chillers:", balance_.water.to_chillers);
        add(formatted("Amount After Cooling (%0.0f perc.):", settings_.cooling_shrink * 100.0),
            balance_.water.after_cooling);
        end_block();
    }

    void add_notes() {
        const std::string full = unit().full, word = inside_sentence(full);
        const bool american = is_american(settings_.volume_units);
        rows_.push_back({std::string("Grain absorption rate is: %0.2f (") +
                             (american ? "Gallons Per LBS" : "L Per kg") + ")\n",
                         {settings_.grain_absorption * (american ? 1.0 : absorption_per_kilogram)}});
        rows_.push_back({"Evaporation rate is %s Per Hour\n", {full}});
        if (!is_by_volume()) rows_.back() = {"Evaporation rate is Percent per Hour\n", {}};
        rows_.push_back({"This formulation will yield %0.2f " + word + " of fermentable wort.\n",
                         {to_shown_volume(balance_.water.after_cooling, settings_)}});
        rows_.push_back({"You will need %0.2f " + word + " of water for the complete brewing session.\n",
                         {to_shown_volume(balance_.water.needed, settings_)}});
    }

    Balance balance_;
    const Settings& settings_;
    std::vector<ReportRow> rows_;
};

} // namespace

ReportSection water_needed_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    auto section = section_of("Water Needed For Brewing Session", ReportLines{{}, Worksheet(source).rows()});
    section.print_body = [balance = Balance(source), &settings](PageContext& page) {
        print_water_needs(page, balance.needs, balance.water, settings.volume_units, settings);
    };
    return section;
}

} // namespace wortlex
