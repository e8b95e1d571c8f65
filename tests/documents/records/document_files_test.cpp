#include "base/files.h"
#include "support/sample_documents.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <unistd.h>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

TEST(DocumentFiles, MissingFileChangesNothing) {
    const TemporaryFolder folder;
    Loaded live;
    live.document.title.assign("live");
    for (const auto& path : {folder / "absent", folder.path(), std::string()}) {
        EXPECT_EQ(load_recipe(path, live.document, test_settings()), LoadResult::not_found) << path;
        EXPECT_EQ(load_session(path, live.document, live.session, test_settings()), LoadResult::not_found);
    }
    EXPECT_EQ(live.document.title.view(), "live");
    EXPECT_EQ(load_message(LoadResult::not_found, "a.rec"), "File Not Found!");
}

TEST(DocumentFiles, YieldsAreRebasedOnThePotential) {
    struct Row {
        const char* why;
        float potential, fine, coarse, moisture;
        double new_fine, new_coarse, new_moisture;
    };
    // 31.25 points are 67.62605497 percent of 46.21, and 62.5 points 135.25210993.
    for (const auto& row :
         {Row{"keeps the difference", 1.03125F, 80, 78.5F, 3, 67.62605497, 66.12605497, 3},
          Row{"also of a pair turned round", 1.03125F, 78, 80, 3, 67.62605497, 65.62605497, 3},
          Row{"at most 100", 1.0625F, 80, 79, 3, 100, 99, 3}, Row{"nothing in it", 1.0F, 80, 79, 3, 0, -1, 3},
          Row{"older than the fields", 1.03125F, 80, 0, 7, 67.62605497, 66.12605497, 4},
          Row{"older, and not held at 100", 1.0625F, 0, 0, 0, 135.25210993, 133.75210993, 4},
          Row{"older, and not held at 0", 0.9375F, 0, -0.0F, 0, -135.25210993, -136.75210993, 4}}) {
        SCOPED_TRACE(row.why);
        BrewDocument saved;
        saved.malts.resize(2);
        auto& malt = saved.malts[1].record;
        malt.potential = row.potential;
        malt.fine_yield = row.fine;
        malt.coarse_yield = row.coarse;
        malt.moisture = row.moisture;
        Loaded loaded;
        const auto check = [&](LoadResult result) {
            ASSERT_EQ(result, LoadResult::loaded);
            const auto& found = loaded.document.malts.at(1).record;
            EXPECT_FLOAT_EQ(found.fine_yield, static_cast<float>(row.new_fine));
            EXPECT_FLOAT_EQ(found.coarse_yield, static_cast<float>(row.new_coarse));
            EXPECT_FLOAT_EQ(found.moisture, static_cast<float>(row.new_moisture));
        };
        check(read_recipe(recipe_bytes(saved), loaded.document, test_settings()));
        check(read_session(session_bytes(saved, {}), loaded.document, loaded.session, test_settings()));
    }
}

TEST(DocumentFiles, MashKindZeroIsSingleStepAndOnlyASessionTakesTheSettingsThermalMass) {
    for (const auto& [stored, kind] : {std::pair{0, 2}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}) {
        BrewDocument saved;
        saved.simple_mash.mash_kind = static_cast<MashKind>(stored);
        saved.mash.tun_thermal_mass = 9;
        Loaded recipe, session;
        read_recipe(recipe_bytes(saved), recipe.document, test_settings());
        read_session(session_bytes(saved, {}), session.document, session.session, test_settings());
        EXPECT_EQ(static_cast<int>(recipe.document.simple_mash.mash_kind), kind);
        EXPECT_EQ(static_cast<int>(session.document.simple_mash.mash_kind), kind);
        EXPECT_EQ(recipe.document.mash.tun_thermal_mass, 9.0F);
        EXPECT_EQ(session.document.mash.tun_thermal_mass, 2.5F);
    }
}

TEST(DocumentFiles, FlagByteStaysPackedAfterASaveAndIsSplitByALoad) {
    const TemporaryFolder folder;
    struct Row {
        const char* why;
        std::uint8_t flags, mode, packed, kind_loaded, mode_loaded;
    };
    for (const auto& row :
         {Row{"simple, Method #1", 0, 0, 0x00, 0, 0}, Row{"complex, Method #1", 1, 1, 0x11, 1, 1},
          Row{"simple, Method #2", 0, 2, 0x20, 0, 2}, Row{"saved twice", 0x21, 2, 0x21, 1, 2},
          Row{"the old nibble goes", 0x20, 0, 0x00, 0, 0}, Row{"too wide", 0xF1, 0x13, 0x31, 1, 3}}) {
        for (const bool is_session : {false, true}) {
            SCOPED_TRACE(row.why);
            Loaded live;
            live.document.mash_flags = row.flags;
            live.document.file_efficiency_mode = row.mode;
            ScriptedPrompts prompts;
            const auto path = folder / "a";
            ASSERT_TRUE(is_session ? save_session(path, live.document, live.session, prompts)
                                   : save_recipe(path, live.document, prompts));
            EXPECT_EQ(peek<std::uint8_t>(*read_file(path), is_session ? 1157 + 757 + 46043 : 1157 + 23935),
                      row.packed);
            EXPECT_EQ(live.document.mash_flags, row.packed);
            EXPECT_EQ(has_complex_schedule(live.document), row.packed != 0) << "the byte as it stands";
            EXPECT_EQ(is_session ? load_session(path, live.document, live.session, test_settings())
                                 : load_recipe(path, live.document, test_settings()),
                      LoadResult::loaded);
            EXPECT_EQ(live.document.mash_flags, row.kind_loaded);
            EXPECT_EQ(live.document.file_efficiency_mode, row.mode_loaded);
        }
    }
}

TEST(SessionFile, RecordedVolumeAndGravityAreNeverZero) {
    struct Row {
        const char* why;
        float batch, actual_og, og_points, volume, og, new_volume, new_og;
    };
    for (const auto& row : {Row{"both recorded", 5, 1.05F, 48, 4.5F, 1.049F, 4.5F, 1.049F},
                            Row{"volume from the batch", 6, 1.05F, 48, 0, 1.049F, 6, 1.049F},
                            Row{"no batch either", 0, 1.05F, 48, 0, 1.049F, 1, 1.049F},
                            Row{"gravity from the actual", 5, 1.05F, 48, 4, 0, 4, 1.05F},
                            Row{"actual of water: points", 5, 1.0F, 48, 4, 0, 4, 48}}) {
        SCOPED_TRACE(row.why);
        Loaded saved, loaded;
        saved.document.batch_size = row.batch;
        saved.document.og_points = row.og_points;
        saved.session.actual_og = row.actual_og;
        saved.session.tail.recorded_volume = row.volume;
        saved.session.tail.recorded_og = row.og;
        read_session(session_bytes(saved.document, saved.session), loaded.document, loaded.session,
                     test_settings());
        EXPECT_EQ(loaded.session.tail.recorded_volume, row.new_volume);
        EXPECT_EQ(loaded.session.tail.recorded_og, row.new_og);
    }
}

TEST(DocumentFiles, FailedSaveIsToldAndChangesNothing) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    std::vector<std::string> bad = {folder / "folder", folder / "absent/a.rec"};
    if (::geteuid() != 0) { // the super-user may write everything
        ASSERT_TRUE(save_atomically(folder / "read-only", {}));
        fs::permissions(folder / "read-only", fs::perms{0444});
        bad.push_back(folder / "read-only");
    }
    for (const auto& path : bad) {
        Loaded live;
        live.document.file_efficiency_mode = 2;
        ScriptedPrompts prompts;
        for (int i = 0; i < 2; ++i)
            prompts.expect_tell(
                "Wortlex has experienced an error in writing this file.\n\nPossible reasons include:\n\na) "
                "The file has somehow been tagged as read-only by the system.\n\nb) The file has become "
                "corrupted by other means.\n\nIf the file has been transferred over a network and saved by a "
                "\ndifferent program, it is very likely it has been tagged as read-only.\n\nIt is suggested "
                "you try and save the file under a different name.",
                Icon::warning);
        EXPECT_FALSE(save_recipe(path, live.document, prompts)) << path;
        EXPECT_FALSE(save_session(path, live.document, live.session, prompts)) << path;
        EXPECT_EQ(live.document.mash_flags, 0) << "the flags are packed by a success only";
    }
    EXPECT_EQ(folder.entries(), bad.size() == 3 ? 2U : 1U);
}

} // namespace
} // namespace wortlex
