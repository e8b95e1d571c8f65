#include "base/files.h"
#include "support/sample_documents.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <unistd.h>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

// What is missing behind the cut is that of a new document; a list too long for the cut is damage.
void expect_cut(ByteView cut, const Lines& lines, bool is_session) {
    Loaded loaded{is_session}, expected{is_session};
    loaded.document.title.assign("live");
    const auto before = loaded;
    const auto result = loaded.read(cut);
    if (cut.empty() || (cut.size() > 85 && lines.hops * 635 > cut.size()) ||
        (cut.size() > 89 && lines.malts * 529 > cut.size()) ||
        (cut.size() > 93 && lines.extras * 589 > cut.size())) {
        ASSERT_TRUE(result == LoadResult::damaged && loaded == before);
        return;
    }
    ASSERT_EQ(result, LoadResult::incomplete);
    auto& fresh = expected.document;
    fresh = is_session ? new_session_recipe(test_settings()) : new_document(test_settings(), {});
    if (is_session) {
        expected.session = new_session(fresh);
        expected.session.has_recipe = 1;
    }
    if (cut.size() > 85) fresh.hops.resize(lines.hops);
    if (cut.size() > 89) fresh.malts.resize(lines.malts);
    if (cut.size() > 93) fresh.extras.resize(lines.extras);
    auto whole = expected.bytes();
    std::copy(cut.begin(), cut.end(), whole.begin());
    ASSERT_EQ(expected.read(whole), LoadResult::loaded);
    ASSERT_TRUE(loaded == expected);
}

TEST(DocumentFiles, MayEndAnywhere) {
    for (const auto& [lines, is_session, step] :
         {std::tuple{Lines{}, false, 1U}, {Lines{1, 2, 1}, false, 3U}, {Lines{1, 1, 1}, true, 29U}}) {
        const auto file = sample_file(lines, is_session);
        for (std::size_t cut = 0; cut < file.size() && !testing::Test::HasFatalFailure(); cut += step) {
            SCOPED_TRACE(cut);
            expect_cut(ByteView(file).first(cut), lines, is_session);
        }
        expect_cut(ByteView(file).first(file.size() - 1), lines, is_session);
    }
}

TEST(DocumentFiles, TellWhatIsLongerOrOfTheOtherKind) {
    for (const bool is_session : {false, true}) {
        auto file = sample_file({1, 2, 1}, is_session);
        Loaded live{is_session};
        file.push_back(std::byte{7});
        EXPECT_EQ(live.read(file), LoadResult::longer);
        EXPECT_EQ(live.document.malts.size(), 2U);
    }
    Loaded recipe;
    const auto before = recipe;
    EXPECT_EQ(recipe.read(sample_file({1, 2, 1}, true)), LoadResult::misnamed);
    EXPECT_TRUE(recipe == before);
}

TEST(DocumentFiles, MissingAndDamagedFilesLeaveTheLiveDocumentUntouched) {
    const TemporaryFolder folder;
    for (const bool is_session : {false, true}) {
        Loaded live{is_session};
        live.document.title.assign("live");
        live.document.mash_flags = 0x21;
        live.session.brew_year = 1999;
        const auto before = live;
        for (const auto& path : {folder / "absent", folder.path(), std::string()})
            EXPECT_EQ(live.load(path), LoadResult::not_found) << path;
        constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
        // clang-format off
        for (const auto& [at, count] : {std::pair{85U, -1}, {89U, lowest}, {93U, -7}, {85U, 40}, {89U, 48},
             {93U, std::numeric_limits<std::int32_t>::max()}}) {
            // clang-format on
            auto file = sample_file({}, is_session);
            file.resize(25093);
            poke(file, at, count);
            EXPECT_EQ(live.read(file), LoadResult::damaged) << count << " at " << at;
        }
        EXPECT_TRUE(live == before);
    }
    EXPECT_EQ(load_fault(LoadResult::not_found), "File Not Found!");
}

TEST(DocumentFiles, YieldsAreRebasedOnThePotential) {
    // 31.25 points are 67.62605497 percent of 46.21, and 62.5 points 135.25210993.
    // clang-format off
    for (const auto& [why, potential, fine, coarse, moisture, new_fine, new_coarse, new_moisture] :
         {std::tuple{"keeps the difference", 1.03125F, 80.0F, 78.5F, 3.0F, 67.62605497F, 66.12605497F, 3.0F},
         {"also of a pair turned round", 1.03125F, 78, 80, 3, 67.62605497F, 65.62605497F, 3},
         {"at most 100", 1.0625F, 80, 79, 3, 100, 99, 3}, {"nothing in it", 1.0F, 80, 79, 3, 0, -1, 3},
         {"older than the fields", 1.03125F, 80, 0, 7, 67.62605497F, 66.12605497F, 4},
         {"older, and not held at 100", 1.0625F, 0, 0, 0, 135.25210993F, 133.75210993F, 4},
         {"older, taken from a yield not yet stored", 1.0296F, 0, 0, 0, 64.05545425F, 62.55545425F, 4},
         {"older, and not held at 0", 0.9375F, 0, -0.0F, 0, -135.25210993F, -136.75210993F, 4}}) {
        // clang-format on
        for (const bool is_session : {false, true}) {
            Loaded saved{is_session}, loaded{is_session};
            saved.document.malts.resize(2);
            auto& malt = saved.document.malts[1].record;
            std::tie(malt.potential, malt.fine_yield, malt.coarse_yield, malt.moisture) =
                std::tuple{potential, fine, coarse, moisture};
            ASSERT_EQ(loaded.read(saved.bytes()), LoadResult::loaded);
            const auto& found = loaded.document.malts.at(1).record;
            EXPECT_FLOAT_EQ(found.fine_yield, new_fine) << why;
            EXPECT_EQ(found.coarse_yield, new_coarse) << why;
            EXPECT_EQ(found.moisture, new_moisture) << why;
        }
    }
}

TEST(DocumentFiles, MashKindZeroIsSingleStepAndOnlyASessionTakesTheSettingsThermalMass) {
    for (const auto& [stored, kind] : {std::pair{0, 2}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}) {
        for (const bool is_session : {false, true}) {
            Loaded saved{is_session}, loaded{is_session};
            saved.document.simple_mash.mash_kind = static_cast<MashKind>(stored);
            saved.document.mash.tun_thermal_mass = 9;
            loaded.read(saved.bytes());
            EXPECT_EQ(static_cast<int>(loaded.document.simple_mash.mash_kind), kind);
            EXPECT_EQ(loaded.document.mash.tun_thermal_mass, is_session ? 2.5F : 9.0F);
        }
    }
}

TEST(DocumentFiles, FlagByteStaysPackedAfterASaveAndIsSplitByALoad) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    // clang-format off
    for (const auto& [why, flags, mode, packed, kind_loaded, mode_loaded] :
         {std::tuple{"simple, Method #1", 0, 0, 0x00, 0, 0},
         {"complex, Method #1", 1, 1, 0x11, 1, 1}, {"simple, Method #2", 0, 2, 0x20, 0, 2},
         {"saved twice", 0x21, 2, 0x21, 1, 2}, {"the old nibble goes", 0x20, 0, 0x00, 0, 0},
         {"too wide", 0xF1, 0x13, 0x31, 1, 3}}) {
        // clang-format on
        for (const bool is_session : {false, true}) {
            SCOPED_TRACE(why);
            Loaded live{is_session};
            auto& document = live.document;
            document.mash_flags = static_cast<std::uint8_t>(flags);
            document.file_efficiency_mode = static_cast<std::uint8_t>(mode);
            const auto path = folder / "a";
            ASSERT_TRUE(is_session ? save_session(path, document, live.session, prompts)
                                   : save_recipe(path, document, prompts));
            EXPECT_EQ(std::to_integer<int>(read_file(path)->at(1157 + (is_session ? 757 + 46043 : 23935))),
                      packed);
            EXPECT_EQ((std::tuple{document.mash_flags, has_complex_schedule(document)}),
                      (std::tuple{packed, packed != 0}));
            EXPECT_EQ(live.load(path), LoadResult::loaded);
            EXPECT_EQ((std::tuple{document.mash_flags, document.file_efficiency_mode}),
                      (std::tuple{kind_loaded, mode_loaded}));
        }
    }
}

TEST(SessionFile, RecordedVolumeAndGravityAreNeverZero) {
    for (const auto& [why, batch, actual_og, volume, og, new_volume, new_og] :
         {std::tuple{"both recorded", 5.0F, 1.05F, 4.5F, 1.049F, 4.5F, 1.049F},
          {"volume from the batch", 6, 1.05F, 0, 1.049F, 6, 1.049F},
          {"no batch either", 0, 1.05F, 0, 1.049F, 1, 1.049F},
          {"gravity from the actual", 5, 1.05F, 4, 0, 4, 1.05F},
          {"actual of water: points", 5, 1.0F, 4, 0, 4, 48}}) {
        Loaded saved{true}, loaded{true};
        saved.document.batch_size = batch;
        saved.document.og_points = 48;
        saved.session.actual_og = actual_og;
        saved.session.tail.recorded_volume = volume;
        saved.session.tail.recorded_og = og;
        loaded.read(saved.bytes());
        EXPECT_EQ(loaded.session.tail.recorded_volume, new_volume) << why;
        EXPECT_EQ(loaded.session.tail.recorded_og, new_og) << why;
    }
}

TEST(DocumentFiles, FailedSaveIsToldAndChangesNothing) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    ASSERT_TRUE(save_atomically(folder / "read-only", {}));
    fs::permissions(folder / "read-only", fs::perms{0444});
    for (const std::string name : {"folder", "absent/a.rec", "read-only"}) {
        if (name == "read-only" && ::geteuid() == 0) continue; // the super-user may write everything
        Loaded live;
        live.document.file_efficiency_mode = 2;
        ScriptedPrompts prompts;
        for (int i = 0; i < 2; ++i) prompts.expect_write_error();
        EXPECT_FALSE(save_recipe(folder / name, live.document, prompts)) << name;
        EXPECT_FALSE(save_session(folder / name, live.document, live.session, prompts)) << name;
        EXPECT_EQ(live.document.mash_flags, 0) << "the flags are packed by a success only";
    }
    EXPECT_EQ(folder.entries(), 2);
}

TEST(NewDocuments, StartWithTheirValues) {
    auto settings = test_settings();
    settings.grain_temperature = 71.9F;
    settings.efficiency_mode = EfficiencyMode::method_2;
    const auto r = new_document(settings, ScheduleKind::complex), d = new_session_recipe(settings);
    EXPECT_EQ((std::tuple{r.wort_size, r.batch_size, r.efficiency, r.boil_minutes, r.target_ibu}),
              (std::tuple{12.0F, 11.0F, 0.85F, 60, 35}));
    EXPECT_EQ((std::tuple{r.mash.tun_thermal_mass, r.mash_flags, r.file_efficiency_mode}),
              (std::tuple{2.5F, 1, 2}));
    EXPECT_EQ(r.simple_mash.mash_kind, MashKind::single_step);
    EXPECT_EQ((std::tuple{d.wort_size, d.batch_size, d.mash.grain_temperature, d.mash_flags}),
              (std::tuple{5.0F, 5.0F, 71, 0}));
    const auto s = new_session(d);
    const auto& b = s.bottling;
    EXPECT_EQ((std::tuple{s.actual_og, s.actual_fg, s.runnings_sg, s.wort_ph, b.co2_volumes,
                          b.ferment_temperature, s.fermentation.primary_temperature}),
              (std::tuple{1.01F, 1.012F, 1.01F, 5.5F, 2.3F, 68, 68}));
    EXPECT_EQ((std::tuple{b.amount, b.natural_carbonation, b.liquid_added, b.carbonation_temperature}),
              (std::tuple{std::array{5.0F, 5.0F, 5.0F}, std::array<std::uint8_t, 3>{1, 0, 0},
                          std::array{0.14F, 0.14F, 0.14F}, std::array{42, 42, 42}}));
}

} // namespace
} // namespace wortlex
