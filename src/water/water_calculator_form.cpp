#include "water/water_calculator_form.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "brewing/salt_proposal.h"
#include "brewing/water_ph.h"
#include "water/salt_words.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace wortlex {
namespace {

constexpr double met_ppm = 5, met_part = 0.1;
constexpr int ion_width = 6;

// `words` name the line to those who cannot see it.
void ion_cell(Rows& rows, const std::string& line, const std::string& words, const Ion& ion,
              std::function<float()> ppm) {
    rows.shown_number(line + '_' + ion.key, std::move(ppm), "%4.1f")
        .width(ion_width)
        .named(words + ' ' + ion.symbol + " ppm");
}

std::function<void()> pressing(std::function<void()> action, const std::function<void()>& pressed) {
    if (!action) return nullptr;
    return [action = std::move(action), pressed] {
        action();
        pressed();
    };
}

std::function<void()> picking(std::function<std::optional<WaterRecord>()> pick, WaterAnalysis& analysis,
                              WaterRecord WaterAnalysis::*water, const std::function<void()>& pressed) {
    if (!pick) return nullptr;
    return [pick = std::move(pick), &analysis, water, pressed] {
        const auto picked = pick();
        if (!picked) return;
        analysis.*water = *picked;
        compare_waters(analysis);
        pressed();
    };
}

// Empty for a water that may be real.
std::string balance_words(const WaterRecord& water) {
    const auto charges = charges_of(water);
    if (charges.are_balanced()) return {};
    return formatted("Not balanced: %0.1f meq/l of cations, ", charges.cations) +
           formatted("%0.1f of anions", charges.anions);
}

void balance_note(Rows& rows, const char* key, const WaterRecord& water) {
    rows.note(key, [&water] { return balance_words(water); })
        .hint("In a real water they are equal: this analysis is rounded, incomplete or in error");
}

void target_button(Rows& rows, WaterAnalysis& analysis, WaterActions& actions) {
    rows.button("pick_target", "Pick &Water",
                picking(std::move(actions.pick_target), analysis, &WaterAnalysis::target, actions.pressed))
        .named("Pick Target Water")
        .hint("Picks the water to be matched");
}

void name_rows(Rows& rows, WaterAnalysis& analysis, WaterActions& actions, WaterSide side) {
    const auto name_of = [](const WaterRecord& water) {
        return [&water] { return utf8_from_windows1252(water.name.view()); };
    };
    rows.shown("target_name", name_of(analysis.target)).label("Target Profile Name").width(24);
    if (side == WaterSide::tool) target_button(rows, analysis, actions);
    rows.shown("source_name", name_of(analysis.source)).label("Your Water Name").width(24);
    rows.button("pick_source", "P&ick Water",
                picking(std::move(actions.pick_source), analysis, &WaterAnalysis::source, actions.pressed))
        .named("Pick Your Water")
        .hint("Picks the water that you have");
    rows.number("dilution_rate", {[&analysis] { return analysis.dilution_rate; },
                                  [&analysis](float rate) {
                                      analysis.dilution_rate = rate;
                                      compare_waters(analysis);
                                  }})
        .label("Ion Free &Dilution Rate")
        .hint("The part of your water that distilled or reverse osmosis water takes the place of: 0.5 is "
              "half")
        .range(0, 1)
        .step(0.1F)
        .format("%0.2f");
    balance_note(rows, "target_balance", analysis.target);
    balance_note(rows, "source_balance", analysis.source);
}

void water_rows(Rows& rows, const WaterAnalysis& analysis) {
    for (const auto& ion : ions) {
        const auto ppm_of = [&ion](const WaterRecord& water) { return [&] { return water.*ion.ppm; }; };
        ion_cell(rows, "target", "Target Water", ion, ppm_of(analysis.target));
        ion_cell(rows, "source", "Your Water", ion, [&] { return diluted(analysis, ion); });
        ion_cell(rows, "difference", "Difference", ion, ppm_of(analysis.difference));
        ion_cell(rows, "totals", "Totals", ion, ppm_of(analysis.totals));
        rows.shown(std::string("remaining_") + ion.key, [&] { return remaining_text(analysis, ion); })
            .figure()
            .width(ion_width + 4)
            .named(std::string("Still To Add ") + ion.symbol)
            .hint("The difference less the totals");
    }
    rows.note("met_note", "met: within 5 ppm, or a tenth of the target");
}

void salt_rows(Rows& rows, WaterAnalysis& analysis) {
    for (std::size_t i = 0; i < salt_effects.size(); ++i) {
        const auto& salt = salt_effects[i];
        const std::string key = salt_words[i].key;
        rows.number(key + "_rate", {[&analysis, &salt] { return analysis.rate(salt.salt); },
                                    [&analysis, &salt](float rate) { set_salt_rate(analysis, salt, rate); }})
            .label(salt_words[i].label)
            .hint("Grams in each gallon")
            .range(0, most_salt_rate)
            .step(0.1F)
            .format("%4.2f")
            .width(ion_width);
        for (const auto& ion : ions)
            if (ion.ppm == salt.cation || ion.ppm == salt.anion)
                ion_cell(rows, key, plain_label(salt_words[i]), ion,
                         [&] { return analysis.added(salt.salt).*ion.ppm; });
    }
}

void ph_rows(Rows& rows, WaterAnalysis& analysis, const std::function<void()>& pressed) {
    rows.number("ph", analysis.totals.ph).label("&PH").range(0, most_ph_of_salts).step(1).format("%0.2f");
    rows.button(
            "calculate_ph", "C&alc",
            pressing([&analysis] { analysis.totals.ph = ph_of_salts(analysis.totals.bicarbonate); }, pressed))
        .hint("The pH that goes with the carbonate of the totals");
}

void reset(WaterAnalysis& analysis, WaterSide side) {
    const float ph = analysis.totals.ph;
    reset_salts(analysis);
    if (side == WaterSide::session) analysis.totals.ph = ph;
}

void file_rows(Rows& rows, WaterAnalysis& analysis, WaterActions& actions, WaterSide side) {
    rows.button("load", "L&oad", pressing(std::move(actions.load), actions.pressed))
        .hint("Reads waters and salts from a file");
    rows.button("save", "&Save", std::move(actions.save)).hint("Writes waters and salts to a file");
    rows.button("reset", "Rese&t", pressing([&analysis, side] { reset(analysis, side); }, actions.pressed))
        .hint("All salts to nothing; the waters stay");
    rows.button("print", "Pri&nt", std::move(actions.print));
    rows.button("help", "&Help", std::move(actions.help));
}

void tool_rows(Rows& rows, WaterActions& actions) {
    rows.button("suggest", "S&uggest", pressing(std::move(actions.suggest), actions.pressed))
        .hint("Proposes salts that come close to the difference");
    rows.button("show_totals", "&Mash And Sparge Totals", std::move(actions.show_totals));
    rows.button("show_graph", "G&raph", std::move(actions.show_graph));
}

} // namespace

std::string remaining_text(const WaterAnalysis& analysis, const Ion& ion) {
    if (charges_of(analysis.target).cations == 0 && analysis.target.name.empty()) return {};
    const double left = double{analysis.difference.*ion.ppm} - analysis.totals.*ion.ppm;
    if (!std::isfinite(left)) return std::string(no_number);
    if (std::abs(left) <= std::max(met_ppm, met_part * analysis.target.*ion.ppm)) return "met";
    return formatted(left > 0 ? "%0.1f more" : "%0.1f less", std::abs(left));
}

void water_calculator_form(Form& form, WaterAnalysis& analysis, WaterActions actions, WaterSide side) {
    if (!actions.pressed) actions.pressed = [] {};
    auto& rows = form.group();
    name_rows(rows, analysis, actions, side);
    water_rows(rows, analysis);
    salt_rows(rows, analysis);
    ph_rows(rows, analysis, actions.pressed);
    tool_rows(rows, actions);
    file_rows(rows, analysis, actions, side);
}

} // namespace wortlex
