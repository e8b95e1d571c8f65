#include "brewing/salts.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "water/water_chart.h"
#include "water/water_totals.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

struct Totals : FormUser {
    Settings settings;
    WaterAnalysis analysis;

    Totals(Units units, SystemMode mode) {
        settings.volume_units = units;
        settings.system_mode = mode;
        set_salt_rate(analysis, salt_effects[0], 2);
        set_salt_rate(analysis, salt_effects[1], 0.5F);
        water_totals_form(form, analysis, settings, {}, WaterSide::tool);
    }
    std::vector<std::string> page() const {
        return printed_lines(water_adjustment_printout(analysis, settings));
    }
};

TEST(WaterTotals, VolumesStandInTwoUnits) {
    struct Case {
        Units units;
        SystemMode mode;
        const char* small; // of 10 in the first field
        float gallons;     // of 10 in the second
        const char* adjusted;
    };
    const std::array cases = {Case{Units::american, SystemMode::home_brewer, "40.00", 2.5F,
                                   "Adjust Mash Water - 10.00 Gallons (40.00 Quarts) with:"},
                              Case{Units::metric, SystemMode::home_brewer, "10.57", 2.5F,
                                   "Adjust Mash Water - 10.00 Liters (10.57 Quarts) with:"},
                              Case{Units::american, SystemMode::pro_brewer, "310.00", 10,
                                   "Adjust Mash Water - 10.00 Barrels (310.00 Gallons) with:"},
                              Case{Units::metric, SystemMode::pro_brewer, "999.99", 2.64178125F,
                                   "Adjust Mash Water - 10.00 Hectoliters (999.99 Liters) with:"}};
    for (const auto& c : cases) {
        Totals totals(c.units, c.mode);
        totals.type("mash_large", "10");
        totals.type("sparge_small", "10");
        EXPECT_EQ(totals.shown_all({"mash_large", "mash_small"}), std::string("10.00|") + c.small);
        EXPECT_FLOAT_EQ(totals.analysis.sparge_gallons, c.gallons) << c.adjusted;
        EXPECT_THAT(totals.page(), testing::Contains(c.adjusted));
        totals.type("mash_large", "5000.5");
        EXPECT_EQ(totals.shown("mash_large"), "10.00");
    }
}

TEST(WaterTotals, QuantitiesAreRatesTimesGallons) {
    Totals totals(Units::american, SystemMode::home_brewer);
    totals.type("mash_large", "4");
    totals.type("sparge_large", "5.67");
    EXPECT_EQ(totals.shown_all({"gypsum_mash", "gypsum_sparge", "epsom_salt_sparge"}), "8.00|11.34|2.84");
    totals.choose("unit", 0);
    EXPECT_EQ(totals.shown_all({"gypsum_mash", "gypsum_sparge"}), "0.28|0.40") << "11.34 / 28.35";
    EXPECT_THAT(totals.page(),
                testing::ElementsAre(
                    "Wortlex Water Adjustment Detail", "@584 Page 1",
                    "Adjust Mash Water - 4.00 Gallons (16.00 Quarts) with:", "0.28\tOunces of Gypsum\tCaSO4",
                    "0.07\tOunces of Epsom Salt\tMgSO4.", "0.00\tOunces of Canning Salt\tNaCl.",
                    "0.00\tOunces of Baking Soda\tNaHCO3.", "0.00\tOunces of Calcium Chloride\tCaCl.",
                    "0.00\tOunces of Chalk\tCaCO3.",
                    "Adjust Sparge Water - 5.67 Gallons (22.68 Quarts) with:",
                    "  0.40\tOunces of Gypsum\tCaSO4", "  0.10\tOunces of Epsom Salt\tMgSO4.",
                    "  0.00\tOunces of Canning Salt\tNaCl.", "  0.00\tOunces of Baking Soda\tNaHCO3.",
                    "  0.00\tOunces of Calcium Chloride\tCaCl.", "  0.00\tOunces of Chalk\tCaCO3."));
}

// Of calcium: yours 50, wanted 200, with additions 100. Of sulfate only the target has any.
WaterAnalysis charted_waters() {
    WaterAnalysis analysis;
    analysis.source.name.assign("Well");
    analysis.source.calcium = 50;
    analysis.target.name.assign("Wanted");
    analysis.target.calcium = 200;
    analysis.target.sulfate = 0.25F;
    analysis.result.calcium = 100;
    analysis.rate(Salt::gypsum) = 1.5F;
    analysis.rate(Salt::baking_soda) = 9;
    return analysis;
}

TEST(WaterChart, EveryIonHasAScaleOfItsOwn) {
    const auto chart = water_chart(charted_waters());
    const auto& calcium = chart.groups[0];
    EXPECT_EQ(calcium.frame, (Box{30, 42, 80, 255}));
    EXPECT_EQ((std::tuple{calcium.name, calcium.name_at, calcium.most, calcium.most_at}),
              (std::tuple{"Ca", Point{40, 262}, "200.0 ppm", Point{40, 25}}));
    ASSERT_EQ(calcium.bars.size(), 3U);
    EXPECT_EQ(calcium.bars[0].box, (Box{37, 200, 47, 250})) << "a quarter of 200";
    EXPECT_EQ(calcium.bars[1].box, (Box{51, 50, 61, 250}));
    EXPECT_EQ(calcium.bars[2].box, (Box{65, 150, 75, 250}));
    EXPECT_EQ((std::array{calcium.bars[0].colour, calcium.bars[1].colour, calcium.bars[2].colour}),
              (std::array{0xAF0000U, 0xAF00U, 0xAFU}));
    const auto& sulfate = chart.groups[3];
    ASSERT_EQ(sulfate.bars.size(), 1U) << "only the target has any";
    EXPECT_EQ(sulfate.bars[0].box, (Box{276, 50, 286, 250})) << "14 further than 40 - 3 + 3 x 75";
    EXPECT_EQ(sulfate.most, "0.2 ppm");
    EXPECT_EQ(chart.groups[5].name + chart.groups[5].most, "Carb0.0 ppm");
    EXPECT_TRUE(chart.groups[5].bars.empty());
    EXPECT_EQ(chart.legend[1].swatch, (Box{40, 305, 52, 317}));
    EXPECT_EQ(chart.legend[1].text_at, (Point{56, 305}));
    EXPECT_EQ(chart.legend[0].text + chart.legend[1].text + chart.legend[2].text,
              "=Your Water : Well=Profile Water : Wanted=Yours+Additions");
    EXPECT_THAT(words_of_water_chart(charted_waters()), testing::HasSubstr(": Ca 50.0 200.0 100.0; Mg "));
}

TEST(WaterChart, ListsTheAdditionsOnPaper) {
    RecordingPageDesk desk;
    desk.show(water_chart_printout(charted_waters(), 1));
    std::vector<std::string> texts;
    for (const auto& text : texts_on(desk.jobs.front(), 0))
        texts.push_back(text.substr(text.find(' ', text.find('@')) + 1));
    EXPECT_THAT(texts,
                testing::IsSupersetOf({"Wortlex Water Profile Chart",
                                       "Additions (per gallon):", "1.50 Grams Gypsum (CaSO4)",
                                       "0.00 Grams Epsom Salt (MgSO4)", "0.00 Grams Table Salt (NaCl)",
                                       "0.00 Grams Calcium Chloride (CaCl)", "0.00 Grams Chalk (CaCO3)"}));
    EXPECT_THAT(texts, testing::Not(testing::Contains(testing::HasSubstr("9.00"))));
}

} // namespace
} // namespace wortlex
