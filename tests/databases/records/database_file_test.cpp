#include "databases/records/database_file.h"
#include "support/byte_probe.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

const std::string missing = " was not found. Its database is empty until the file is back.";
const std::string damaged =
    " is damaged or too short. Its database is shown empty, and the file is left as it is.";

// Writes all slots, used or not, and reads them back.
template <class Record, class Save, class Load>
void expect_file(std::string name, std::size_t size, Save save, Load load) {
    SCOPED_TRACE(name);
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    Database<Record> database, again;
    prompts.expect_tell("The file " + name + missing, Icon::warning);
    again.count = 5;
    EXPECT_EQ(load(folder.path(), again, prompts), DatabaseState::missing);
    EXPECT_EQ(again.count, 0);

    database.count = 3;
    database.slots[2].name.assign("last entry");
    database.slots[999].name.assign("stale copy behind the entries");
    ASSERT_TRUE(save(folder.path(), database));
    const auto file = read_file(folder / name);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 4 + 1000 * size);
    EXPECT_EQ(peek<std::int32_t>(*file, 0), 3);
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
    for (const bool bjcp : {false, true}) {
        expect_file<StyleRecord>(
            bjcp ? "STYLES.BJCP" : "STYLES.DAT", 1031,
            [=](const auto& path, const auto& styles) { return SaveStyles(path, bjcp, styles); },
            [=](const auto& path, auto& styles, auto& prompts) {
                return LoadStyles(path, bjcp, styles, prompts);
            });
    }
}

TEST(DatabaseFile, BadCountOrLengthIsToldAndLeavesTheFileAlone) {
    struct Row {
        const char* why;
        std::int32_t count;
        std::size_t size;
        DatabaseState state;
    };
    for (const auto& row : {Row{"empty file", 0, 0, DatabaseState::damaged},
                            Row{"last byte lost", 1, 222003, DatabaseState::damaged},
                            Row{"more entries than slots", 1001, 222004, DatabaseState::damaged},
                            Row{"negative count", -1, 222004, DatabaseState::damaged},
                            Row{"every slot in use", 1000, 222004, DatabaseState::loaded},
                            Row{"bytes behind the slots", 2, 222100, DatabaseState::loaded}}) {
        SCOPED_TRACE(row.why);
        const TemporaryFolder folder;
        Bytes file(row.size, std::byte{'x'});
        if (row.size > 4) poke(file, 0, row.count);
        ASSERT_TRUE(save_atomically(folder / "WATER.DAT", file));
        ScriptedPrompts prompts;
        if (row.state == DatabaseState::damaged)
            prompts.expect_tell("The file WATER.DAT" + damaged, Icon::warning);
        Database<WaterRecord> water;
        water.count = 7;
        EXPECT_EQ(LoadWater(folder.path(), water, prompts), row.state);
        EXPECT_EQ(water.count, row.state == DatabaseState::loaded ? row.count : 0);
        EXPECT_EQ(water.slots.size(), 1000U);
        EXPECT_EQ(read_file(folder / "WATER.DAT"), file);
    }
}

} // namespace
} // namespace wortlex
