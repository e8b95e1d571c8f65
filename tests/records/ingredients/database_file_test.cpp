#include "base/files.h"
#include "records/ingredients/database_file.h"
#include "support/byte_probe.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

// Writes all slots, used or not, and reads them back.
template <class Record>
void expect_file(std::string name, std::size_t size, auto save, auto load) {
    SCOPED_TRACE(name);
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    Database<Record> database, again;
    again.count = 5;
    prompts.expect_tell("The file " + name + " was not found. Its database is empty until the file is back.",
                        Icon::warning);
    EXPECT_EQ(load(folder.path(), again, prompts), DatabaseState::missing);
    EXPECT_EQ(again.count, 0);
    database.count = 3;
    database.slots[2].name.assign("last entry");
    database.slots[999].name.assign("stale copy behind the entries");
    ASSERT_TRUE(save(folder.path(), database));
    const auto file = read_file(folder / name).value();
    EXPECT_EQ(file.size(), 4 + 1000 * size);
    EXPECT_EQ(Bytes(file.begin(), file.begin() + 4), i32(0, 3).bytes);
    EXPECT_EQ(load(folder.path(), again, prompts), DatabaseState::loaded);
    EXPECT_TRUE(again == database);
    EXPECT_EQ(again.entries().size(), 3U);
}

TEST(DatabaseFile, HoldsACountAndAThousandSlotsUnderItsOwnName) {
    expect_file<HopRecord>("HOPS.DAT", 614, SaveHops, LoadHops);
    expect_file<MaltRecord>("MALT.DAT", 521, SaveMalts, LoadMalts);
    expect_file<YeastRecord>("YEAST.DAT", 468, SaveYeasts, LoadYeasts);
    expect_file<WaterRecord>("WATER.DAT", 222, SaveWater, LoadWater);
    expect_file<ExtraRecord>("EXTRA.DAT", 577, SaveExtras, LoadExtras);
    for (const bool bjcp : {false, true})
        expect_file<StyleRecord>(
            bjcp ? "STYLES.BJCP" : "STYLES.DAT", 1031,
            [=](auto& path, auto& styles) { return SaveStyles(path, bjcp, styles); },
            [=](auto& path, auto& styles, auto& prompts) { return LoadStyles(path, bjcp, styles, prompts); });
}

TEST(DatabaseFile, BadCountOrLengthIsToldAndOpenedAsFarAsItHolds) {
    struct Case {
        std::int32_t count;
        std::size_t size;
        bool good;
        std::int32_t opened;
    };
    for (const auto& [count, size, good, opened] : {Case{0, 0, false, 0},
                                                    {1, 222003, false, 1},
                                                    {3, 4 + 222 * 3 - 1, false, 2},
                                                    {1001, 222004, false, 1000},
                                                    {-1, 222004, false, 0},
                                                    {1000, 222004, true, 1000},
                                                    {2, 222100, true, 2}}) {
        SCOPED_TRACE(count);
        const TemporaryFolder folder;
        Bytes file(size, std::byte{'x'});
        if (size > 4) poke(file, 0, count);
        ASSERT_TRUE(save_atomically(folder / "WATER.DAT", file));
        ScriptedPrompts prompts;
        if (!good)
            prompts.expect_tell("The file WATER.DAT is damaged or too short. It is shown as far as it holds, "
                                "and stays as it is until you save.",
                                Icon::warning);
        Database<WaterRecord> water;
        water.count = 7;
        EXPECT_EQ(LoadWater(folder.path(), water, prompts),
                  good ? DatabaseState::loaded : DatabaseState::damaged);
        EXPECT_EQ(water.count, opened);
        EXPECT_EQ(water.slots.size(), 1000U);
        EXPECT_EQ(read_file(folder / "WATER.DAT"), file);
    }
}

TEST(Ingredients, NibblesChangeAloneAndGrainAndMashedOthersGoThroughTheMash) {
    HopRecord hop;
    hop.storage_and_form = 0x13;
    EXPECT_EQ((std::pair{storage_class(hop), form(hop)}), (std::pair{StorageClass::poor, HopForm::plug}));
    set_form(hop, HopForm::pellet);
    EXPECT_EQ(hop.storage_and_form, 0x23);
    set_storage_class(hop, StorageClass::good);
    EXPECT_EQ(hop.storage_and_form, 0x21);
    using enum MaltType; // of an extract the second byte tells liquid from dry
                         // clang-format off
    for (const auto& [type, must_mash, mashed] : {std::tuple{grain, 0, true}, {other, 1, true},
         {other, 0, false}, {extract, 1, false}, {sugar, 1, false}}) {
                         // clang-format on
        MaltRecord malt;
        malt.malt_type = type;
        malt.must_mash = static_cast<std::uint8_t>(must_mash);
        EXPECT_EQ(is_mashed(malt), mashed) << static_cast<int>(type) << must_mash;
    }
}

} // namespace
} // namespace wortlex
