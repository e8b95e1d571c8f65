#include "base/files.h"
#include "program/inventory.h"
#include "program/program.h"
#include "program/shipped_data.h"
#include "support/database_of.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(ShippedData, IsOfferedOnceBookingsAreFinishedAndIsInMemoryAtOnce) {
    TemporaryFolder shipped, brewery;
    const auto waters = database_of(WaterRecord{.name = Text<27>("Pilsen"), .known_for = {}});
    SaveWater(brewery.path(), {});
    SaveWater(shipped.path(), waters);
    Program program;
    program.data_folder = brewery.path();
    ShippedNames names;
    const auto note = [&](const TemporaryFolder& in) {
        save_atomically(in.path() + std::string(shipped_names_file), shipped_names_bytes(names));
    };
    note(brewery);
    add_names(names, water_catalogue(program.settings, "", {}), waters);
    note(shipped);
    const auto journal = brewery.path() + std::string(booking_journal);
    save_atomically(journal, {});
    EXPECT_TRUE(find_offer(program, shipped.path()).groups.empty()) << "it would be written over";
    std::filesystem::remove(journal);
    EXPECT_TRUE(find_offer(program, "").groups.empty());
    const auto offer = find_offer(program, shipped.path());
    ScriptedPrompts prompts;
    take_answer(program, offer, prompts);
    EXPECT_EQ(program.water_database.count, 1);
    save_atomically(brewery / "WATER.DAT", {});
    prompts.expect_tell(
        "Your answer could not be kept, and nothing was added. Is the disk full, or a file or folder "
        "read-only?\n\nThe next start asks again.",
        Icon::error);
    take_answer(program, offer, prompts);
    EXPECT_EQ(program.water_database.count, 1);
}

} // namespace
} // namespace wortlex
