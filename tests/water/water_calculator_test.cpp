#include "base/files.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_user.h"
#include "support/waters.h"
#include "water/salt_suggestion.h"
#include "water/water_calculator.h"
#include "water/water_calculator_form.h"
#include "water/water_match_printout.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace wortlex {
namespace {

WaterRecord burton() {
    return water_of({295, 45, 55, 725, 25, 300}, "Burton");
}

WaterRecord pilsen() {
    return water_of({7, 2, 2, 5, 5, 15}, "Pilsen");
}

// The tool, and its brewer.
struct Match : ScriptedUser, FormUser {
    WaterCalculator calculator{{folders, files, prompts}};
    WaterAnalysis& work = calculator.work;
    int changes = 0;

    Match() {
        set_folder(folders, FolderKind::water_profiles, "/waters");
        water_calculator_form(form, work,
                              {.pick_target = burton,
                               .pick_source = pilsen,
                               .load = [this] { calculator.load(); },
                               .save = [this] { calculator.save(); },
                               .show_totals = nullptr,
                               .show_graph = nullptr,
                               .suggest = nullptr,
                               .print = nullptr,
                               .help = nullptr,
                               .pressed = [this] { ++changes; }},
                              WaterSide::tool);
    }
    std::string line(std::string_view name) const {
        std::string all;
        for (const auto& ion : ions)
            all += (all.empty() ? "" : "|") + shown(std::string(name) + '_' + ion.key);
        return all;
    }
};

TEST(WaterCalculator, MakesBurtonOfPilsen) {
    Match match;
    EXPECT_EQ(match.line("remaining"), "") << "nothing is wanted yet";
    match.press("pick_target");
    match.press("pick_source");
    EXPECT_EQ(match.line("difference"), "288.0|43.0|53.0|720.0|20.0|285.0");
    match.type("gypsum_rate", "4.25");
    match.type("epsom_salt_rate", "0.95");
    match.type("baking_soda_rate", "1.4");
    match.type("calcium_chloride_rate", "0.2");
    EXPECT_EQ(match.shown_all({"gypsum_calcium", "gypsum_sulfate"}), "261.4|626.4") << "4.25 x 61.5, 147.4";
    EXPECT_EQ(match.line("totals"), "275.8|24.8|100.8|724.3|25.5|264.6");
    EXPECT_EQ(match.line("remaining"), "met|18.2 more|47.8 less|met|5.5 less|met")
        << "within a tenth of 295, 725 and 300, and not within 5 ppm of 25";
    match.press("calculate_ph");
    EXPECT_EQ(match.shown("ph"), "8.34");
    EXPECT_EQ(match.changes, 3) << "each button is told";
    match.type("chalk_rate", "200.5");
    match.type("dilution_rate", "1.01");
    EXPECT_EQ(match.work.rate(Salt::chalk) + match.work.dilution_rate, 0) << "out of range";
    match.type("dilution_rate", "0.5");
    EXPECT_EQ(match.line("source"), " 3.5| 1.0| 1.0| 2.5| 2.5| 7.5");
    EXPECT_EQ(match.line("difference"), "291.5|44.0|54.0|722.5|22.5|292.5");
    match.press("reset");
    EXPECT_EQ(match.line("totals") + match.shown("ph"), " 0.0| 0.0| 0.0| 0.0| 0.0| 0.07.00");
    EXPECT_EQ(match.shown("target_name"), "Burton");
}

TEST(WaterCalculator, WarnsOfWatersThatCannotBe) {
    Match match;
    const auto told = [&match](const char* key) { return match.form.row(key).label_text(); };
    match.press("pick_target");
    EXPECT_EQ(told("target_balance") + told("source_balance"), "") << "20.8 against 20.7";
    match.press("pick_source");
    EXPECT_EQ(told("source_balance"), "Not balanced: 0.6 meq/l of cations, 0.5 of anions");
}

TEST(WaterCalculator, TakesOrLeavesAProposal) {
    Match match;
    match.press("pick_target");
    match.press("pick_source");
    match.type("canning_salt_rate", "3");
    FormUser user;
    SaltSuggestion suggestion;
    salt_suggestion_form(user.form, match.work, suggestion);
    EXPECT_EQ(user.shown_all({"gypsum_proposed", "canning_salt_now", "canning_salt_proposed",
                              "sodium_difference", "sodium_remaining", "chalk_proposed"}),
              "4.25|3.00|0.00|53.0|-47.8|0.00");
    user.form.check(user.row<CheckRow>("with_chalk"), true);
    EXPECT_EQ(user.shown_all({"chalk_proposed", "sodium_remaining"}), "0.70|-11.8");
    EXPECT_EQ(match.shown("canning_salt_rate"), "3.00");
    take_proposal(match.work, suggestion.proposal);
    EXPECT_EQ(match.shown_all({"canning_salt_rate", "chalk_rate", "chalk_bicarbonate"}), "0.00|0.70|110.9");
}

TEST(WaterCalculator, AsksOnlyOfWorkThatIsNotSaved) {
    Match match;
    EXPECT_TRUE(match.calculator.may_drop()) << "empty";
    match.press("pick_target");
    match.type("gypsum_rate", "1.5");
    match.work.mash_gallons = 5;
    match.prompts.expect_save("water profile", Answer::cancel);
    EXPECT_FALSE(match.calculator.may_drop());
    match.prompts.expect_save("water profile", Answer::yes);
    match.files.add(std::nullopt);
    EXPECT_FALSE(match.calculator.may_drop()) << "who leaves the dialog stays";
    const auto path = match.folder / "burton.wtr";
    match.files.add(path);
    match.press("save");
    EXPECT_EQ(std::filesystem::file_size(path), 2713U);
    match.work.rate(Salt::gypsum) = 1.5001F;
    match.work.result.calcium = match.work.difference.sodium = match.work.totals.sodium = 1;
    match.work.unit = SaltUnit::ounces;
    EXPECT_TRUE(match.calculator.may_drop()) << "what is worked out, and what reads the same";
    match.type("ph", "7.5");
    match.prompts.expect_save("water profile", Answer::no);
    EXPECT_TRUE(match.calculator.may_drop());
    match.prompts.expect_save("water profile", Answer::no);
    match.files.add(path);
    match.press("load");
    EXPECT_EQ(match.shown_all({"target_name", "gypsum_rate", "ph", "totals_sodium"}),
              "Burton|1.50|0.00| 0.0");
    EXPECT_TRUE(match.calculator.may_drop());
    match.files.add(std::nullopt);
    match.press("save");
    const std::string filter = "Water Analysis File (*.wtr)|*.wtr /waters/ ";
    EXPECT_EQ(match.files.offers.back(), "save " + filter + "burton.wtr wtr");
    EXPECT_EQ(match.files.offers[2], "open " + filter + " wtr");
}

TEST(WaterCalculator, TellsOfFilesThatEndEarlyOrAreNot) {
    Match match;
    match.files.add(match.folder / "absent.wtr");
    match.prompts.expect_tell("File Not Found!", Icon::error);
    match.press("load");
    WaterAnalysis written;
    written.rate(Salt::chalk) = 2;
    auto file = water_analysis_bytes(written);
    file.resize(44); // the rates and volumes alone
    ASSERT_TRUE(save_atomically(match.folder / "short.wtr", file));
    match.files.add(match.folder / "short.wtr");
    match.prompts.expect_tell("short.wtr is incomplete; what is missing was left empty.", Icon::warning);
    match.press("load");
    const auto loaded = match.line("totals");
    auto sodium = WaterAnalysis(), name = sodium, quarts = sodium;
    sodium.source.sodium = 2001;
    name.target.name.bytes.fill('A');
    quarts.mash_quarts = -1;
    for (const auto& foreign :
         {water_analysis_bytes(sodium), water_analysis_bytes(name), water_analysis_bytes(quarts),
          Bytes(12794, std::byte{0x4D}), Bytes(85, std::byte{0x4D})}) {
        ASSERT_TRUE(save_atomically(match.folder / "picture.wtr", foreign));
        match.files.add(match.folder / "picture.wtr");
        match.prompts.expect_tell("picture.wtr is damaged and cannot be loaded.", Icon::warning);
        match.press("load");
        EXPECT_EQ(match.line("totals"), loaded);
    }
    EXPECT_EQ(match.line("totals"), "211.6| 0.0| 0.0| 0.0| 0.0|316.8") << "follow the rates";
    EXPECT_TRUE(match.calculator.may_drop());
}

TEST(WaterMatchPrintout, TellsWatersSaltsAndLegend) {
    Match match;
    match.press("pick_target");
    match.press("pick_source");
    match.type("dilution_rate", "0.5");
    match.type("gypsum_rate", "2");
    match.work.rate(Salt::unused) = 1;
    const auto lines = printed_lines(water_match_printout(match.work, {}));
    EXPECT_THAT(lines,
                testing::IsSupersetOf(
                    {"Profile Water Name:\tBurton", "Your Water Name:\tPilsen", "\tCa\tMg\tNa\tSO4\tCl\tHCO3",
                     "Target Water:\t295.0\t45.0\t55.0\t725.0\t25.0\t300.0",
                     "Your Water:\t7.0\t2.0\t2.0\t5.0\t5.0\t15.0", "  (Before Dilutions)",
                     "Your Water:\t3.5\t1.0\t1.0\t2.5\t2.5\t7.5", "  (After Dilutions)",
                     "Difference:\t291.5\t44.0\t54.0\t722.5\t22.5\t292.5", "Dilution Rate: 0.50", "\tGrams",
                     "Additions\tPer Gal\tCa\tMg\tNa\tSO4\tCl\tCarb",
                     "Gypsum:\t2.00\t123.0\t0.0\t0.0\t294.8\t0.0\t0.0",
                     "Calcium Chlr:\t0.00\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0",
                     "Totals:\t3.00\t123.0\t0.0\t0.0\t294.8\t0.0\t0.0", "Chemical Legend",
                     "Chalk:\tCaCO3\t(Calcium   + Carbonate)"}));
    EXPECT_EQ(lines.front(), "Wortlex Water Analysis - Regional Matching ");
}

} // namespace
} // namespace wortlex
