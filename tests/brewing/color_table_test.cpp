#include "base/files.h"
#include "brewing/beer_colour.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

// clang-format off
Table color_row(const ColorRow& r) { return {f32(0, r.srm), i32(4, r.red), i32(8, r.filler_8),
    i32(12, r.green), u8(16, r.filler_16), i32(17, r.blue), f32(21, r.filler_21), i32(25, r.alpha),
    i32(29, r.filler_29)}; }
Table color_table(const ColorTable& r) { return {text(0, r.author), text(255, r.version),
    text(510, r.third_text), each(765, r.rows, color_row)}; }
// The measured colours: SRM, red, green, blue, alpha.
constexpr std::array<double, 5> measured[] = {{0.1, 248, 248, 230, 33}, {0.2, 248, 248, 220, 36},
    {0.3, 247, 247, 199, 39}, {1.0, 243, 249, 147, 60}, {2.0, 248, 247, 83, 90}, {3.0, 246, 245, 19, 127},
    {5.0, 224, 208, 27, 165}, {6.0, 213, 188, 38, 170}, {8.0, 191, 146, 59, 180}, {10.0, 191, 129, 58, 205},
    {12.0, 191, 113, 56, 210}, {15.0, 165, 89, 54, 228}, {20.0, 93, 52, 26, 242}, {25.0, 38, 23, 22, 249},
    {30.0, 16, 11, 10, 251}, {35.0, 8, 7, 7, 253}, {40.0, 3, 4, 3, 255}};
// clang-format on

TEST(ColorTableFile, IsReadAndWrittenFieldByFieldAndBlackWhereItEndsEarly) {
    const auto file = distinct_bytes(13965);
    const auto whole = read_color_table(file);
    EXPECT_EQ(first_difference(color_table(whole), file), -1);
    EXPECT_EQ(first_difference(color_table_bytes(whole), file), -1);
    const TemporaryFolder folder;
    ColorTable table;
    EXPECT_FALSE(LoadColorTable(folder / "absent.ldt", table));
    for (const auto& [size, whole_rows] : {std::pair{0U, 0U}, {765U, 0U}, {765U + 65, 1U}, {13964U, 399U}}) {
        ASSERT_TRUE(save_atomically(folder / "a.ldt", Bytes(size, std::byte{1})));
        ASSERT_TRUE(LoadColorTable(folder / "a.ldt", table));
        for (std::size_t i = 0; i < 400; ++i) {
            const auto& [srm, red, f1, green, f2, blue, f3, alpha, f4] = table.rows[i];
            const bool black = srm == 40.0F && red == 0 && green == 0 && blue == 0 && alpha == 255;
            ASSERT_EQ(black, i >= whole_rows) << "row " << i << " of " << size << " bytes";
        }
    }
}

TEST(ColorTableFile, TwoSavesDifferInFillersOnly) {
    const TemporaryFolder folder;
    auto table = built_in_color_table();
    table.author.assign("A brewer");
    table.third_text.assign("kept");
    ASSERT_TRUE(SaveColorTable(folder / "1.ldt", table, 1000) &&
                SaveColorTable(folder / "2.ldt", table, 1001));
    auto before = color_table_bytes(table), first = *read_file(folder / "1.ldt"),
         second = *read_file(folder / "2.ldt");
    EXPECT_NE(first_difference(first, second), -1);
    for (std::size_t row = 765; row < 13965; row += 33) {
        EXPECT_EQ(first.at(row + 16), std::byte{255});
        for (auto* file : {&before, &first, &second})
            for (const std::size_t filler : {8U, 21U, 29U}) poke(*file, row + filler, 0);
    }
    EXPECT_EQ(first_difference(first, before), -1);
    EXPECT_EQ(first_difference(second, before), -1);
}

// Between the measured colours at most twice the steepest way between two of them: blue falls 52 in 7 rows
// below SRM 1, and above SRM 3 no channel moves faster than 42 in 20 rows.
TEST(BuiltInColorTable, GoesThroughTheMeasuredColoursAndDarkensSmoothly) {
    const auto rows = built_in_color_table().rows;
    for (const auto& [srm, red, green, blue, alpha] : measured) {
        const auto& found = rows[static_cast<std::size_t>(srm * 10 + 0.5) - 1];
        EXPECT_EQ(found.srm, static_cast<float>(srm));
        EXPECT_EQ((std::tuple{found.red, found.green, found.blue, found.alpha}),
                  (std::tuple{red, green, blue, alpha}))
            << srm;
    }
    for (std::size_t i = 1; i < rows.size(); ++i) {
        EXPECT_TRUE(rows[i].alpha >= rows[i - 1].alpha && rows[i].srm > rows[i - 1].srm) << i;
        for (const auto channel : {&ColorRow::red, &ColorRow::green, &ColorRow::blue, &ColorRow::alpha})
            EXPECT_LE(std::abs(rows[i].*channel - rows[i - 1].*channel), i < 3 ? 255 : i < 30 ? 15 : 5) << i;
    }
}

} // namespace
} // namespace wortlex
