#include "support/sample_documents.h"

namespace wortlex {
namespace {

TEST(NewDocuments, StartWithTheirValues) {
    auto settings = test_settings();
    settings.grain_temperature = 71.9F;
    settings.efficiency_mode = EfficiencyMode::method_2;
    const auto recipe = new_document(settings, ScheduleKind::complex);
    EXPECT_EQ((std::tuple{recipe.wort_size, recipe.batch_size, recipe.efficiency, recipe.boil_minutes,
                          recipe.target_ibu}),
              (std::tuple{12.0F, 11.0F, 0.85F, 60, 35}));
    EXPECT_EQ((std::tuple{recipe.mash.tun_thermal_mass, recipe.mash_flags, recipe.file_efficiency_mode}),
              (std::tuple{2.5F, 1, 2}));
    EXPECT_EQ(recipe.simple_mash.mash_kind, MashKind::single_step);
    const auto document = new_session_recipe(settings);
    EXPECT_EQ((std::tuple{document.wort_size, document.batch_size, document.mash.grain_temperature,
                          document.mash_flags}),
              (std::tuple{5.0F, 5.0F, 71, 0}));
    const auto session = new_session(document);
    EXPECT_EQ((std::tuple{session.actual_og, session.actual_fg, session.runnings_sg, session.wort_ph}),
              (std::tuple{1.01F, 1.012F, 1.01F, 5.5F}));
    const auto& bottling = session.bottling;
    EXPECT_EQ((std::tuple{bottling.co2_volumes, bottling.ferment_temperature,
                          session.fermentation.primary_temperature}),
              (std::tuple{2.3F, 68, 68}));
    EXPECT_EQ(bottling.amount, (std::array{5.0F, 5.0F, 5.0F}));
    EXPECT_EQ(bottling.natural_carbonation, (std::array<std::uint8_t, 3>{1, 0, 0}));
    EXPECT_EQ(bottling.liquid_added, (std::array{0.14F, 0.14F, 0.14F}));
    EXPECT_EQ(bottling.carbonation_temperature, (std::array{42, 42, 42}));
}

TEST(DocumentLines, StartWithTheRecordAndTheIncrement) {
    HopRecord hop;
    hop.alpha = 4.25F;
    const auto line = new_hop_line(hop, 75, 0.25F);
    EXPECT_TRUE(line.record == hop);
    EXPECT_EQ((std::tuple{line.age_months, line.storage_temperature, line.alpha, line.storage_kind,
                          line.amount, line.boil_time}),
              (std::tuple{1, 20.0F, 4.25F, StorageKind::airtight, 0.25F, 75}));
    const auto malt = new_malt_line({}, 0.5F);
    EXPECT_EQ((std::tuple{malt.amount, malt.points}), (std::tuple{0.5F, 0.0F}));
}

TEST(HopTiming, IsReadAgainstTheBoilOfTheMoment) {
    for (const auto& [time, boil, timing] : {std::tuple{-5, 60, HopTiming::dry},
                                             {0, 60, HopTiming::boil},
                                             {60, 60, HopTiming::boil},
                                             {61, 60, HopTiming::first_wort},
                                             {62, 60, HopTiming::mash},
                                             {63, 60, HopTiming::beyond},
                                             {61, 90, HopTiming::boil},
                                             {1, 0, HopTiming::first_wort}})
        EXPECT_EQ(hop_timing(time, boil), timing) << time << " of " << boil;
}

} // namespace
} // namespace wortlex
