#include "documents/session_figures.h"

#include "documents/brewing.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

void expect_efficiency(const EfficiencyFigures& got, const EfficiencyFigures& expected, const char* name) {
    EXPECT_FLOAT_EQ(got.achieved_points, expected.achieved_points) << name;
    EXPECT_FLOAT_EQ(got.total_points, expected.total_points) << name;
    EXPECT_FLOAT_EQ(got.mash_points, expected.mash_points) << name;
    EXPECT_FLOAT_EQ(got.extract_points, expected.extract_points) << name;
    EXPECT_FLOAT_EQ(got.actual_mash_points, expected.actual_mash_points) << name;
    EXPECT_FLOAT_EQ(got.efficiency, expected.efficiency) << name;
}

TEST(SessionEfficiency, OfARecordedGravityAndVolume) {
    constexpr float all = 80.5998993F, mash = 65.1998901F, extract = 15.4000053F, grain = 59.1998978F;
    const auto mixed = five_malts();
    auto grains = mixed, extracts = mixed;
    grains.malts.resize(1);
    extracts.malts = {mixed.malts[1]};
    const struct {
        const char* name;
        const BrewDocument& document;
        float og, gallons, actual_og;
        EfficiencyFigures expected;
    } rows[] = {
        // clang-format off
        {"grain and extract", mixed, 1.05F, 5, 1.04F, {49.9999542F, all, mash, extract, 34.5999489F,
         0.530674934F}},
        {"more wort", mixed, 1.05F, 5.5F, 1.04F, {54.9999466F, all, mash, extract, 39.5999413F,
         0.607362032F}},
        {"no volume: the batch", mixed, 1.05F, 0, 1.04F, {49.9999542F, all, mash, extract, 34.5999489F,
         0.530674934F}},
        {"no gravity: the measured one", mixed, 0, 5, 1.04F, {39.9999619F, all, mash, extract, 24.5999565F,
         0.37730056F}},
        {"none measured either: points, as if they were SG", mixed, 0, 5, 1, {47000, all, mash, extract,
         46984.6016F, 720.623901F}},
        {"all grain", grains, 1.05F, 5, 1.04F, {49.9999542F, grain, grain, 0, 49.9999542F, 0.844595253F}},
        {"all extract", extracts, 1.05F, 5, 1.04F, {49.9999542F, 10.800005F, 0, 10.800005F, 0, 0}},
        // clang-format on
    };
    for (const auto& row : rows) {
        auto document = row.document;
        document.og_points = 48;
        SessionDocument session;
        session.actual_og = row.actual_og;
        expect_efficiency(session_efficiency(document, session, row.og, row.gallons, brewing_settings()),
                          row.expected, row.name);
    }
}

TEST(SessionEfficiency, OfTheRecordingAddsWhatStayedBehind) {
    auto document = five_malts();
    SessionDocument session;
    session.tail.recorded_volume = 5;
    session.tail.recorded_og = 1.05F;
    session.water_needs.kettle_deadspace = 0.5F;
    session.water_needs.hopback = 0.25F;
    session.water_needs.chiller = session.water_needs.other = 0.125F;
    const auto settings = brewing_settings();
    EXPECT_EQ(recording_losses(session, settings), 0.0F) << "measured in the kettle";
    EXPECT_FLOAT_EQ(recorded_efficiency(document, session, settings).achieved_points, 49.9999542F);
    session.tail.measured_in_fermenter = 1;
    EXPECT_FLOAT_EQ(recording_losses(session, settings), 0.96F) << "less its shrinkage";
    EXPECT_FLOAT_EQ(recorded_efficiency(document, session, settings).achieved_points, 59.5999454F);
    EXPECT_GT(recorded_efficiency(document, session, settings).efficiency, 0.0F);
    document.recipe_kind = RecipeKind::extract;
    EXPECT_EQ(recorded_efficiency(document, session, settings).efficiency, 0.0F)
        << "an extract recipe has none";
}

TEST(PreBoil, BothFormsOfEvaporationAndBothWorts) {
    const struct {
        const char* name;
        std::uint8_t wort_equals_batch, by_volume;
        float rate, volume, points;
    } rows[] = {
        {"wort, percent", 0, 0, 10, 7.05882359F, 45.5457802F},
        {"wort, gallons", 0, 1, 1.5F, 8.25F, 38.9696503F},
        {"batch, percent", 1, 0, 10, 5.88235283F, 42.5F},
        {"batch, gallons", 1, 1, 1.5F, 7.25F, 34.4827576F},
    };
    auto document = five_malts();
    document.og_points = 50;
    document.boil_minutes = 90;
    auto settings = brewing_settings();
    for (const auto& row : rows) {
        settings.wort_equals_batch = row.wort_equals_batch;
        settings.evaporation_by_volume = row.by_volume;
        const auto pre_boil = raw_pre_boil(document, row.rate, settings);
        EXPECT_FLOAT_EQ(pre_boil.volume, row.volume) << row.name;
        EXPECT_FLOAT_EQ(pre_boil.points, row.points) << row.name;
    }
    const WaterNeeds needs{.sparge = 5,
                           .sparge_deadspace = 0.5F,
                           .grain = 10,
                           .mash_water = 3,
                           .top_up = 1,
                           .lauter_loss = 0.25F};
    const auto planned = water_pre_boil(document, needs, settings);
    EXPECT_FLOAT_EQ(planned.volume, 6.25F);
    EXPECT_FLOAT_EQ(planned.points, 40);
}

TEST(Attenuation, ByHydrometerAndBothRefractometerPaths) {
    const struct {
        const char* name;
        std::uint8_t by_refractometer;
        AlcoholReading reading;
        float by_weight, by_volume, real;
    } rows[] = {
        {"hydrometer, whatever was read", 0, {24.5F, 12.4F, 3.07F}, 3.90910721F, 5.00128508F, 62.6048965F},
        {"the stored reading", 1, {24.5F, 12.4F, 3.07F}, 3.58438206F, 4.58587933F, 63.6120529F},
        {"no reading: the one that would fit", 1, {24.5F, 0, 3.07F}, 3.9039402F, 4.99467421F, 62.5199814F},
        {"a reading too low for its gravity", 1, {2, 12.4F, 3.07F}, 0, 0, 84.3759689F},
    };
    for (const auto& row : rows) {
        SessionDocument session;
        session.actual_og = 1.05F;
        session.actual_fg = 1.012F;
        session.tail.fg_by_refractometer = row.by_refractometer;
        session.tail.alcohol_reading = row.reading;
        const auto figures = update_attenuation(session, Settings{});
        EXPECT_FLOAT_EQ(figures.alcohol_by_weight, row.by_weight) << row.name;
        EXPECT_FLOAT_EQ(figures.alcohol_by_volume, row.by_volume) << row.name;
        EXPECT_FLOAT_EQ(figures.apparent_attenuation, 75.2321014F)
            << row.name << ": by hydrometer in any case";
        EXPECT_FLOAT_EQ(figures.real_attenuation, row.real) << row.name;
    }
}

} // namespace
} // namespace wortlex
