#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "water/water_flow.h"

#include <gmock/gmock.h>

#include <cmath>

namespace wortlex {
namespace {

// The tool in a kitchen, on an empty record.
struct Needs : FormUser {
    TemporaryFolder folder;
    Settings settings;
    WaterNeedsTool tool;

    explicit Needs(Units units = Units::american, SystemMode mode = SystemMode::home_brewer) {
        settings.volume_units = units;
        settings.system_mode = mode;
        settings.grain_absorption = 0.2F;
        settings.cooling_shrink = 0.04F;
        open_water_needs(tool, folder.path(), settings);
        water_needs_form(form, tool.plan(), settings, {});
    }
    void type_all(std::initializer_list<std::pair<const char*, const char*>> entries) {
        for (const auto& [key, text] : entries) type(key, text);
    }
    std::string results() const {
        return shown_all(
            {"needed", "grain_absorption", "from_mash", "into_kettle", "after_boil", "after_cooling"});
    }
};

TEST(WaterNeeds, FollowTheWaterFromSpargeToFermenter) {
    Needs needs;
    needs.type_all({{"sparge", "5"},
                    {"sparge_deadspace", "0.5"},
                    {"grain", "10"},
                    {"mash_water", "3"},
                    {"lauter_loss", "0.25"},
                    {"boil_minutes", "60"},
                    {"evaporation_rate", "10"}});
    EXPECT_EQ(needs.results(), "  8.00|  2.00|  1.00|  5.25|  4.72|  4.54")
        << "the single nearest to 4.725 is below it; 4.536";
    EXPECT_EQ(needs.shown("ratio"), "  1.20");
    needs.type("sparge", "5000.5");
    EXPECT_EQ(needs.shown("needed"), "  8.00") << "out of range";
    const auto flow = water_flow(needs.tool.needs, needs.tool.balance, true);
    ASSERT_EQ(flow.size(), 5U);
    EXPECT_EQ(flow[1].losses.size(), 3U);
    EXPECT_TRUE(water_flow(needs.tool.needs, needs.tool.balance, false)[1].losses.empty()) << "of an extract";
    EXPECT_TRUE(flow[3].losses.empty()) << "nothing is left behind";
    EXPECT_FLOAT_EQ(flow[2].losses.at(0).gallons, 0.525F);
    EXPECT_TRUE(needs.form.row("flow").name_text().ends_with("To Fermenter 4.54 Gal, lost: 0.19 by cooling"));
    needs.type_all({{"evaporation_rate", "150"}, {"other", "1"}});
    EXPECT_EQ(needs.results(), "  8.00|  2.00|  1.00|  5.25| -2.62| -3.48")
        << "-2.625 to the even digit, and -3.625 x 0.96";
    needs.settings.evaporation_by_volume = 1;
    needs.type("evaporation_rate", "0.5");
    EXPECT_EQ(needs.results(), "  8.00|  2.00|  1.00|  5.25|  4.75|  3.60");
}

TEST(WaterNeeds, GrainRatioAndMashWaterFollowEachOther) {
    Needs needs;
    needs.type_all({{"ratio", "1.5"}, {"grain", "8"}});
    EXPECT_EQ(needs.shown("mash_water"), "  3.00");
    needs.type("mash_water", "2");
    EXPECT_EQ(needs.shown("ratio"), "  1.00");
    needs.spin("ratio", Spin::up);
    EXPECT_EQ(needs.shown_all({"ratio", "mash_water"}), "  1.01|  2.02");
    needs.type("grain", "0");
    needs.type("mash_water", "4");
    EXPECT_EQ(needs.shown("ratio"), "  0.00");
    needs.choose("units", 1);
    needs.type("grain", "4.536");
    EXPECT_FLOAT_EQ(needs.tool.needs.grain, 10) << "kilograms";
    needs.type("ratio", "2.5");
    EXPECT_FLOAT_EQ(needs.tool.needs.mash_water, narrow(4.536 * 2.5 * 33.8148 / 128.0));
    EXPECT_EQ(needs.shown_all({"ratio", "mash_water"}), "  2.50| 11.34");
    EXPECT_EQ(needs.tool.needs.quarts_per_pound, 2.5F) << "as typed";
    needs.type("grain", "0");
    EXPECT_EQ(needs.shown("ratio"), "  2.50") << "no number divides by nothing";
}

TEST(WaterNeeds, SpeakTheUnitsOfTheirWindow) {
    struct Case {
        Units units;
        SystemMode mode;
        const char* labels;
        const char* ten_sparged; // gallons
        const char* worksheet;
        const char* yield;
    };
    const std::array cases = {
        Case{Units::american, SystemMode::home_brewer,
             "&Sparge Gallons|Total &Grain LBS|&Quarts Per LBS|&Mash Gallons|Gallons|(Gallons per "
             "Hour)|Gallons of Water",
             " 10.00", "\t\tMash Gallons:\t0.00",
             "You will need 10.00 gallons of water for the complete brewing session."},
        Case{Units::metric, SystemMode::home_brewer,
             "&Sparge Liters|Total &Grain kg|&Liters Per kg|&Mash Liters|Liters|(Liters per Hour)|Liters of "
             "Water",
             "  2.64", "\t\tMash Liters:\t0.00",
             "You will need 10.00 liters of water for the complete brewing session."},
        Case{Units::american, SystemMode::pro_brewer,
             "&Sparge Barrels|Total &Grain LBS|&Quarts Per LBS|&Mash Barrels|Barrels|(Barrels per "
             "Hour)|Barrels of Water",
             "310.00", "\t\tMash Barrels:\t0.00",
             "You will need 10.00 barrels of water for the complete brewing session."},
        Case{Units::metric, SystemMode::pro_brewer,
             "&Sparge hL|Total &Grain kg|&Liters Per kg|&Mash Hectoliters|Hectoliters|(Hectoliters per "
             "Hour)|Hectoliters of Water",
             "264.18", "\t\tMash hL    :\t0.00",
             "You will need 10.00 hectoliters of water for the complete brewing session."}};
    for (const auto& c : cases) {
        Needs needs(c.units, c.mode);
        needs.settings.evaporation_by_volume = 1;
        std::string labels;
        for (const auto* const key : {"sparge", "grain", "ratio", "mash_water"})
            labels += needs.form.row(key).label_text() + '|';
        for (const auto* const key : {"grain_absorption", "evaporation_rate", "needed"})
            labels += needs.row<EntryRow>(key).unit_text() + (key == std::string_view("needed") ? "" : "|");
        EXPECT_EQ(labels, c.labels);
        needs.type("sparge", "10");
        EXPECT_EQ(formatted("%6.2f", needs.tool.needs.sparge), c.ten_sparged);
        EXPECT_THAT(printed_lines(water_needs_printout(needs.tool, needs.settings)),
                    testing::IsSupersetOf({c.worksheet, c.yield}));
    }
}

TEST(WaterNeeds, ReadAndAskForTheUsualFigures) {
    Needs needs;
    needs.type("sparge", "6");
    ScriptedPrompts prompts;
    constexpr auto question = "Really Overwrite the Default Water Usage Data?";
    prompts.expect_yes_no(question, Answer::no);
    EXPECT_FALSE(save_usual_water(needs.tool.needs, needs.folder.path(), prompts));
    open_water_needs(needs.tool, needs.folder.path(), needs.settings);
    EXPECT_EQ(needs.tool.needs.sparge, 6) << "no file, and nothing changes";
    prompts.expect_yes_no(question, Answer::yes);
    needs.tool.needs.hopback = std::nanf("");
    EXPECT_TRUE(save_usual_water(needs.tool.needs, needs.folder.path(), prompts));
    needs.type("sparge", "9");
    open_water_needs(needs.tool, needs.folder.path(), needs.settings);
    EXPECT_EQ(needs.shown_all({"sparge", "needed", "hopback"}), "  6.00|  6.00|  0.00");
    prompts.expect_yes_no(question, Answer::yes);
    prompts.expect_tell(
        "The water usage data could not be written. Is the disk full, or the folder read-only?", Icon::error);
    EXPECT_FALSE(save_usual_water(needs.tool.needs, "/nonexistent/", prompts));
}

TEST(WaterNeedsPrintout, IsTheWorksheet) {
    Needs needs;
    needs.type_all({{"sparge", "5"},
                    {"grain", "10"},
                    {"mash_water", "3"},
                    {"boil_minutes", "60"},
                    {"evaporation_rate", "10"},
                    {"chiller", "0.4"}});
    EXPECT_THAT(printed_lines(water_needs_printout(needs.tool, needs.settings)),
                testing::ElementsAre(
                    "Wortlex Water Needed Worksheet", "@584 Page 1",
                    "Sparge Amount:\t5.00\tSparge Deadspace:\t0.00\tTotal Into Mash:\t  5.00",
                    "Total Grain LBS:\t10.00\tQts Per LBS:\t1.20\tTotal From Mash:\t  1.00",
                    "\t\tMash Gallons:\t3.00", "\t\tGrain Absorption:\t2.00",
                    "\t\tAmount Lost in Lauter Tun Deadspace,", "\t\tGrant and Misc. to Kettle:\t\t0.00",
                    "\t\tTop Up Water Added to Kettle:\t\t0.00", "\t\tAmount into Kettle:\t\t\t6.00",
                    "\t\tBoil Time (min):\t60.00\tEvaporation Rate:\t10.00%",
                    "\t\tAmount after Boil:\t\t\t5.40", "\t\tLeft in Kettle Deadspace:\t\t0.00",
                    "\t\tLeft in Hopback:\t\t\t0.00", "\t\tLeft in Counterflow Chiller:\t\t0.40",
                    "\t\tLeft in Other Equipment / Other Absorption:\t0.00",
                    "\t\tAmount to Chillers:\t\t\t5.00", "\t\tAmount After Cooling (4%):\t\t4.80",
                    "Grain absorption rate is: 0.20 (Gallons Per LBS)", "Evaporation rate is % per Hour",
                    "This formulation will yield 4.80 gallons of fermentable wort.",
                    "You will need 8.00 gallons of water for the complete brewing session."));
    needs.choose("units", 1);
    EXPECT_THAT(printed_lines(water_needs_printout(needs.tool, needs.settings)),
                testing::IsSupersetOf({"Total Grain kg:\t4.54\tL Per kg:\t2.50\tTotal From Mash:\t  3.79",
                                       "Grain absorption rate is: 1.68 (L Per kg)"}));
}

TEST(WaterNeeds, OfASessionTakeMashAndBoilFromItsDocument) {
    Needs tool;
    bool is_mashed = true;
    WaterNeeds needs{.sparge = 5, .sparge_deadspace = 0.5F, .grain = 10, .mash_water = 3, .top_up = 1};
    WaterBalance balance;
    FormUser page;
    water_needs_form(
        page.form, {needs, balance, tool.settings.volume_units, nullptr, [&is_mashed] { return is_mashed; }},
        tool.settings, {});
    page.type("lauter_loss", "0.25");
    // 4.5 sparged and 3 from the mash, of which the grain keeps 2, and the top-up.
    EXPECT_EQ(page.shown_all({"mash_water", "total_into_mash", "into_kettle"}), "  3.00|  4.50|  6.25");
    EXPECT_TRUE(page.row<EntryRow>("grain").is_read_only() &&
                page.row<EntryRow>("boil_minutes").is_read_only());
    EXPECT_FALSE(page.form.has("units")) << "those of the system";
    is_mashed = false;
    page.type("top_up", "6");
    EXPECT_EQ(page.shown_all({"sparge", "total_into_mash", "grain", "mash_water", "into_kettle"}),
              "0.00|  0.00|  0.00|  0.00|  6.00")
        << "an extract brew is its top-up alone";
    EXPECT_EQ(needs.sparge, 5.0F) << "and the record keeps the rest";
}

} // namespace
} // namespace wortlex
