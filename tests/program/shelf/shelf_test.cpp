#include "base/files.h"
#include "documents/brewing.h"
#include "program/shelf/shelf.h"
#include "program/shelf/shelf_preview.h"
#include "program/shelf/shelf_reading.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <cmath>

namespace wortlex {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct ShelfOf : testing::Test {
    void save(const char* title, float pounds, const char* hop) {
        auto recipe = new_document(settings, ScheduleKind::simple);
        recipe.title.assign(title);
        recipe.efficiency = 0.75F;
        recipe.malts = {malt(MaltType::grain, 1.036F, pounds)};
        recipe.malts[0].record.name.assign("M\xE4rzen malt");
        recipe.hops.resize(1);
        recipe.hops[0].record.name.assign(hop);
        save_atomically(folder / (std::string(title) + ".rec"), recipe_bytes(recipe));
    }
    void read() {
        ShelfReading reading(folder.path(), settings);
        while (!reading.is_done()) std::this_thread::yield();
        is_readable = reading.is_readable();
        shelf.add(reading.take());
    }
    std::string names() const {
        std::string all;
        for (std::size_t row = 0; row < shelf.shown_count(); ++row) all += shelf.cell(row, 0) + ' ';
        return all;
    }
    std::string found(std::string_view typed) { return shelf.find(typed), names(); }

    TemporaryFolder folder;
    SystemSettings image = WriteDefaultSettings();
    Settings settings = settings_from(image);
    Shelf shelf{settings, read_other_names("EKG = East Kent Goldings")};
    bool is_readable = true;
};

// 5 gallons of 10 lb x 36 points x 75 % have 54 points, of 8 lb 43.2, of 12 lb 64.8.
TEST_F(ShelfOf, RecipesFindsWordsAndFigures) {
    save("Pale", 10, "Cascade");
    save("Dark", 8, "East Kent Goldings");
    save("Strong", 12, "Cascade");
    read();
    const std::pair<const char*, const char*> rows[] = {{"", "Dark Pale Strong "},
                                                        {"marzen CASC", "Pale Strong "},
                                                        {"ekg", "Dark "},
                                                        {"cascade og>1.054", "Strong "},
                                                        {"og >= 1,054 pale", "Pale "},
                                                        {"og<1055 og>1050", "Pale "},
                                                        {"og<13p", "Dark Pale Strong "},
                                                        {"og<13", "Dark "},
                                                        {"og=1.054", "Pale "},
                                                        {"ibu<30", "Dark Pale Strong "},
                                                        {"size=5", "Dark Pale Strong "},
                                                        {"srm>90", ""},
                                                        {"og>", "Dark Pale Strong "},
                                                        {"hops>3", ""}};
    for (const auto& [typed, names] : rows) EXPECT_EQ(found(typed), names) << typed;
}

TEST_F(ShelfOf, RecipesTellsWhichFilesAreDamagedAndChangesNone) {
    save("Pale", 10, "Cascade");
    save_atomically(folder / "noise.rec", Bytes(300, std::byte{0xFF}));
    save_atomically(folder / "cut.REC", *read_file(folder / "Pale.rec", 5000));
    save_atomically(folder / "notes.txt", Bytes(10));
    const auto before = *read_file(folder / "Pale.rec");
    read();
    EXPECT_EQ(names(), "Pale Pale (incomplete) noise ");
    EXPECT_FALSE(shelf.entry(2).can_be_opened);
    EXPECT_EQ(shelf.cell(2, 1) + shelf.cell(2, 2) + shelf.cell(1, 2), "damaged1.054");
    EXPECT_EQ(found("og<1.1"), "Pale Pale (incomplete) ");
    const ShelfPreviewing with{settings, built_in_color_table(), 0, {}};
    EXPECT_EQ(shelf_preview(read_shelf_entry(folder / "noise.rec", settings), with),
              "noise.rec is damaged or is no Wortlex document; it was not opened.\n\n");
    EXPECT_THAT(shelf_preview(read_shelf_entry(folder / "cut.REC", settings), with),
                StartsWith("cut.REC ended early; what is missing was left empty.\n\n"));
    EXPECT_THAT(shelf_preview(shelf.entry(0), with), HasSubstr("rzen malt"));
    EXPECT_TRUE(*read_file(folder / "Pale.rec") == before && folder.entries() == 4);
    std::filesystem::remove_all(folder.path());
    read();
    EXPECT_FALSE(is_readable);
}

TEST_F(ShelfOf, RecipesKeepsItsSelectionWhileMoreArrive) {
    ShelfEntry entry;
    const auto put = [&](const char* name, double og) {
        entry.name = entry.name_words = entry.words = entry.path = name;
        entry.figures[0] = og;
        shelf.add({entry});
    };
    put("b", 1.05);
    put("d", 1.07);
    shelf.selected = 1;
    put("a", 1.06);
    put("c", 1.04);
    EXPECT_EQ(shelf.chosen()->name, "d");
    EXPECT_EQ(found(""), "a b c d ");
    EXPECT_EQ(shelf.selected, 0);
    shelf.click(2);
    EXPECT_EQ(names() + shelf.chosen()->name, "c b a d a");
    put("e", std::nan("")); // of a batch of nothing
    EXPECT_EQ(shelf.cell(4, 2), "--");
    shelf.click(2);
    EXPECT_EQ(names() + shelf.chosen()->name, "e d a b c a");
    entry.can_be_opened = false;
    put("f", 0);
    shelf.click(0);
    shelf.click(0);
    EXPECT_EQ(names(), "e d c b a f ") << "what cannot be opened comes last, whatever the order";
}

} // namespace
} // namespace wortlex
