#include "documents/snapshot.h"

#include "documents/brewing.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

struct Editing {
    BrewDocument document = five_malts();
    RecipeFigures figures;
    Settings settings = brewing_settings();

    Editing() {
        document.hops = {hop(5, 1, 60), hop(6, 2, 15)};
        document.extras.resize(2);
        document.extras[1].amount = 1;
        document.mash_flags = 1;
    }
    OpenDocument open() { return {document, figures, settings}; }
};

TEST(Snapshot, TellsWhetherThereIsAnythingToSave) {
    const struct {
        const char* name;
        void (*edit)(BrewDocument&);
        bool changed, changed_without_schedule;
    } rows[] = {
        // clang-format off
        {"nothing", [](BrewDocument&) {}, false, false},
        {"order of lines", [](BrewDocument& d) {std::swap(d.malts[0], d.malts[3]); std::swap(d.hops[0],
         d.hops[1]); std::swap(d.extras[0], d.extras[1]); }, false, false},
        {"the mode that a save leaves in the flags", [](BrewDocument& d) {d.mash_flags = 0x21; }, false,
         false},
        {"bytes behind a text", [](BrewDocument& d) {d.notes.bytes[9] = 'x'; }, false, false},
        {"a hop for its twin", [](BrewDocument& d) {d.hops[0] = d.hops[1]; }, true, true},
        {"a malt more", [](BrewDocument& d) {d.malts.push_back(d.malts[0]); }, true, true},
        {"an extra's amount", [](BrewDocument& d) {d.extras[1].amount = 2; }, true, true},
        {"the title", [](BrewDocument& d) {d.title.assign("Stout"); }, true, true},
        {"the target", [](BrewDocument& d) {d.target_ibu = 50; }, true, true},
        {"the simple schedule", [](BrewDocument& d) {d.simple_mash.acid.minutes = 5; }, true, true},
        {"the hidden text", [](BrewDocument& d) {d.reserved_text.assign("x"); }, true, true},
        {"the schedule kind", [](BrewDocument& d) {d.mash_flags = 0; }, true, false},
        {"a step", [](BrewDocument& d) {d.mash.steps[2].rest_minutes = 5; }, true, false},
        // clang-format on
    };
    for (const auto& row : rows) {
        Editing editing;
        const auto saved = snapshot_document(editing.open(), SnapshotScope::with_schedule);
        const auto without = snapshot_document(editing.open(), SnapshotScope::without_schedule);
        row.edit(editing.document);
        EXPECT_EQ(document_changed(editing.document, saved), row.changed) << row.name;
        EXPECT_EQ(document_changed(editing.document, without), row.changed_without_schedule) << row.name;
    }
}

TEST(Snapshot, RestoreBringsBackTheImageAndItsFigures) {
    for (const auto scope : {SnapshotScope::with_schedule, SnapshotScope::without_schedule}) {
        const bool with_schedule = scope == SnapshotScope::with_schedule;
        Editing editing;
        auto& document = editing.document;
        const auto saved = snapshot_document(editing.open(), scope);
        EXPECT_EQ(editing.figures.total_grain, with_schedule ? 13.0F : 0.0F) << "worked out in one form only";
        EXPECT_EQ(editing.figures.mash_grain, with_schedule ? 9.0F : 0.0F);
        document.malts.clear();
        document.og_points = 99;
        document.mash.step_count = 1;
        document.mash.steps[0].start_temperature = 150;
        editing.figures.total_grain = 77;
        restore_snapshot(saved, editing.open());
        EXPECT_EQ(document.malts.size(), 5U);
        EXPECT_EQ(document.og_points, 0.0F);
        EXPECT_EQ(editing.figures.total_grain, 13.0F);
        EXPECT_EQ(editing.figures.mash_grain, 9.0F);
        EXPECT_EQ(document.mash.step_count, with_schedule ? 0 : 1) << "a schedule not taken stays";
        EXPECT_FALSE(document_changed(document, saved));
    }
}

TEST(Snapshot, SessionBlocks) {
    const SessionDocument saved;
    auto session = saved;
    EXPECT_FALSE(session_changed(session, saved));
    session.tail.alcohol_reading.fg_plato = 1;
    EXPECT_TRUE(session_changed(session, saved));
    session = saved;
    session.salt_grams[4] = 1;
    EXPECT_TRUE(session_changed(session, saved));
}

} // namespace
} // namespace wortlex
