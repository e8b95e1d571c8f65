#include "base/files.h"
#include "calculators/beer_colour.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

FieldRows<ColorTable> table_rows() {
    using R = ColorRow;
    using T = ColorTable;
    const auto row = rows<R>(f32(0, &R::srm), i32(4, &R::red), i32(8, &R::filler_8), i32(12, &R::green),
                             u8(16, &R::filler_16), i32(17, &R::blue), f32(21, &R::filler_21),
                             i32(25, &R::alpha), i32(29, &R::filler_29));
    return rows<T>(text(0, &T::author), text(255, &T::version), text(510, &T::third_text),
                   Each{765, 33, 400, row, &T::rows});
}

TEST(ColorTableFile, IsReadAndWrittenFieldByField) {
    const auto file = distinct_bytes(13965);
    const auto table = read_color_table(file);
    expect_fields(table_rows(), table, file);
    EXPECT_EQ(first_difference(color_table_bytes(table), file), -1);
}

TEST(ColorTableFile, RowsThatAShortFileLacksAreBlack) {
    const TemporaryFolder folder;
    ColorTable table;
    EXPECT_FALSE(LoadColorTable(folder / "absent.ldt", table));
    struct Row {
        const char* why;
        std::size_t size, whole_rows;
    };
    for (const auto& row : {Row{"empty", 0, 0}, Row{"texts only", 765, 0}, Row{"a row cut", 765 + 65, 1},
                            Row{"last byte lost", 13964, 399}}) {
        SCOPED_TRACE(row.why);
        ASSERT_TRUE(save_atomically(folder / "a.ldt", Bytes(row.size, std::byte{1})));
        ASSERT_TRUE(LoadColorTable(folder / "a.ldt", table));
        for (std::size_t i = 0; i < 400; ++i) {
            const auto& [srm, red, f1, green, f2, blue, f3, alpha, f4] = table.rows[i];
            const bool black = srm == 40.0F && red == 0 && green == 0 && blue == 0 && alpha == 255;
            ASSERT_EQ(black, i >= row.whole_rows) << "row " << i;
        }
    }
}

TEST(ColorTableFile, TwoSavesDifferInFillersOnly) {
    const TemporaryFolder folder;
    auto table = built_in_color_table();
    table.author.assign("A brewer");
    table.third_text.assign("kept");
    auto before = color_table_bytes(table);
    ASSERT_TRUE(SaveColorTable(folder / "1.ldt", table, 1000));
    ASSERT_TRUE(SaveColorTable(folder / "2.ldt", table, 1001));
    auto first = *read_file(folder / "1.ldt"), second = *read_file(folder / "2.ldt");
    ASSERT_EQ(first.size(), 13965U);
    EXPECT_NE(first_difference(first, second), -1);
    for (std::size_t row = 765; row < first.size(); row += 33) {
        EXPECT_EQ(first[row + 16], std::byte{255});
        for (auto* file : {&before, &first, &second}) {
            poke(*file, row + 8, 0);
            poke(*file, row + 21, 0);
            poke(*file, row + 29, 0);
        }
    }
    EXPECT_EQ(first_difference(first, before), -1);
    EXPECT_EQ(first_difference(second, before), -1);
    EXPECT_EQ(read_color_table(second).third_text.view(), "kept");
}

TEST(BuiltInColorTable, GoesThroughTheMeasuredColours) {
    struct Row {
        double srm;
        std::int32_t red, green, blue, alpha;
    };
    const auto table = built_in_color_table();
    for (const auto& row :
         {Row{0.1, 248, 248, 230, 33}, Row{0.2, 248, 248, 220, 36}, Row{0.3, 247, 247, 199, 39},
          Row{1.0, 243, 249, 147, 60}, Row{2.0, 248, 247, 83, 90}, Row{3.0, 246, 245, 19, 127},
          Row{5.0, 224, 208, 27, 165}, Row{6.0, 213, 188, 38, 170}, Row{8.0, 191, 146, 59, 180},
          Row{10.0, 191, 129, 58, 205}, Row{12.0, 191, 113, 56, 210}, Row{15.0, 165, 89, 54, 228},
          Row{20.0, 93, 52, 26, 242}, Row{25.0, 38, 23, 22, 249}, Row{30.0, 16, 11, 10, 251},
          Row{35.0, 8, 7, 7, 253}, Row{40.0, 3, 4, 3, 255}}) {
        const auto& found = table.rows[static_cast<std::size_t>(row.srm * 10 + 0.5) - 1];
        EXPECT_EQ(found.srm, static_cast<float>(row.srm));
        EXPECT_EQ((std::array{found.red, found.green, found.blue, found.alpha}),
                  (std::array{row.red, row.green, row.blue, row.alpha}))
            << row.srm;
    }
}

// Twice the steepest way between two measured colours: blue falls 52 in 7 rows below SRM 1, and above SRM 3
// no channel moves faster than 42 in 20 rows. (The first three rows are all measured.)
TEST(BuiltInColorTable, DarkensSmoothly) {
    const auto rows = built_in_color_table().rows;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i].srm);
        EXPECT_GE(rows[i].alpha, rows[i - 1].alpha);
        EXPECT_GT(rows[i].srm, rows[i - 1].srm);
        if (i < 3) continue;
        for (const auto channel : {&ColorRow::red, &ColorRow::green, &ColorRow::blue, &ColorRow::alpha})
            EXPECT_LE(std::abs(rows[i].*channel - rows[i - 1].*channel), i < 30 ? 15 : 5);
    }
}

} // namespace
} // namespace wortlex
