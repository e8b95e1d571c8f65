#include "base/number.h"
#include "calculators/color_sources.h"
#include "calculators/color_swatch.h"
#include "calculators/color_utility.h"
#include "support/byte_probe.h"
#include "support/file_content.h"
#include "support/fixed_clock.h"
#include "support/form_user.h"
#include "support/recording_surface.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

constexpr auto about_text =
    "This function requires a text file formated according\nto the Wortlex specifications (see Help "
    "file).\n\nDo you want to proceed with this function?";
constexpr auto about_picture =
    "This function requires a JPG file formated according\nto the Wortlex specifications (see Help "
    "file).\n\nDo you want to proceed with this function?";
constexpr auto keep_in_memory =
    "You have made modifications to the color values!\n\nWhile these values will be used in Wortlex memory, "
    "they will not be saved permanently.\n\nTo save the values permanently you must use the File functions "
    "from the Color Spectrum Utility Dialog.\n\nDo you want to exit without saving these values?";
constexpr auto drop = "You have made modifications to the color values!\n\nAre you sure you want to exit "
                      "without saving these values?";

std::array<std::int32_t, 4> rgba(const ColorRow& row) {
    return {row.red, row.green, row.blue, row.alpha};
}

struct Desk {
    TemporaryFolder folder;
    ScriptedPrompts prompts;
    FakePictures pictures;
    FixedClock clock;
    ColorTable live = built_in_color_table();
    SystemSettings image = WriteDefaultSettings();

    void ask(const char* question, Answer answer) {
        prompts.expect("yes/no", question, answer, Icon::question, "Wortlex Message");
    }
    void fail(const char* text) { prompts.expect("tell", text, {}, Icon::error, "Wortlex Error"); }
    ColorUtilityDesk with(Files& files) {
        return {live, image, folder.path(), files, prompts, pictures, clock};
    }
};

// A row of 200, 100, 3 and alpha 51, a fifth: white gives four fifths of 255, which is 204.
TEST(ColorUtility, PaintsTheChosenRowInFourWaysAndCombines) {
    Desk desk;
    ScriptedFiles files;
    ColorUtility utility(desk.with(files));
    Form form;
    color_utility_form(form, utility);
    type(form, "index", "10");
    for (const auto& [key, text] : {std::pair{"red", "200"},
                                    {"green", "100"},
                                    {"blue", "3"},
                                    {"alpha", "51"},
                                    {"adjust_red", "100"},
                                    {"adjust_green", "-20"},
                                    {"adjust_blue", "-5"},
                                    {"adjust_alpha", "-151"}})
        type(form, key, text);
    EXPECT_EQ(rgba(utility.work.rows[9]), (std::array{200, 100, 3, 51}));
    EXPECT_EQ(dynamic_cast<ListRow&>(form.row("rows")).cell(9, 2), "100");
    EXPECT_EQ(desk.image.color_alpha, -100 * 256 + 255) << "held at its limit, the global alpha kept";
    EXPECT_EQ(utility.preview(ColorPreview::raw), 0x0364C8U);
    EXPECT_EQ(utility.preview(ColorPreview::adjusted), 0x0050FFU);
    EXPECT_EQ(utility.preview(ColorPreview::raw_alpha), 0xCCE0F4U) << "204 and a fifth of 3, 100 and 200";
    EXPECT_EQ(utility.preview(ColorPreview::adjusted_alpha), 0xFFFFFFU) << "alpha -49 is none";
    utility.combine_single();
    EXPECT_EQ(rgba(utility.chosen()), (std::array{255, 80, 0, 0}));
    EXPECT_EQ(rgba(utility.work.rows[8]), rgba(desk.live.rows[8]));
    utility.combine_all();
    EXPECT_EQ(std::pair(utility.selected, rgba(utility.work.rows[399])),
              std::pair(0, std::array{103, 0, 0, 155}))
        << "3, 4, 3 and 255 before";
}

TEST(ColorUtility, AsksBeforeColoursAreLostAndDecidesOnTheLiveTable) {
    Desk desk;
    ScriptedFiles files;
    const auto before = desk.live;
    ColorUtility utility(desk.with(files));
    utility.work.author.assign("A name is no colour");
    EXPECT_TRUE(utility.accept());
    EXPECT_EQ(desk.live.author.view(), "A name is no colour");
    utility.work.rows[399].alpha = 7;
    desk.ask(keep_in_memory, Answer::no);
    desk.ask(drop, Answer::no);
    EXPECT_FALSE(utility.accept() || utility.cancel());
    EXPECT_EQ(desk.live.rows[399].alpha, 255);
    desk.ask(keep_in_memory, Answer::yes);
    EXPECT_TRUE(utility.accept());
    EXPECT_EQ(desk.live.rows[399].alpha, 7);
    desk.ask(drop, Answer::yes);
    EXPECT_TRUE(utility.cancel());
    EXPECT_EQ(desk.live, before);
}

TEST(ColorUtility, LoadsTextAsFarAsItGoes) {
    Desk desk;
    std::string whole, after = "0.25\t1\t2\t3\t4\textra\r\n";
    for (int row = 0; row < 400; ++row)
        whole += fixed(row / 10.0, 1) + "\t" + std::to_string(row) + " 2 3 4\n" +
                 (row % 100 == 0 ? "\r\n \t\n" : "");
    write_content(desk.folder / "whole.txt", whole);
    write_content(desk.folder / "cut.txt", after + "1.5 7 7,5 7 7\n" + after);
    ScriptedFiles files({desk.folder / "whole.txt", desk.folder / "cut.txt", desk.folder / "absent.txt"});
    ColorUtility utility(desk.with(files));
    desk.ask(about_text, Answer::no);
    utility.load_text();
    EXPECT_EQ(utility.work, desk.live);
    desk.ask(about_text, Answer::yes);
    utility.load_text();
    EXPECT_EQ(utility.work.rows[399].srm, 39.9F);
    EXPECT_EQ(rgba(utility.work.rows[399]), (std::array{399, 2, 3, 4}));
    EXPECT_EQ(utility.work.author.view(), desk.folder / "whole.txt");
    EXPECT_EQ(utility.work.version.view(), "");
    desk.ask(about_text, Answer::yes);
    desk.fail("There was an error reading the file!");
    utility.load_text();
    EXPECT_EQ(rgba(utility.work.rows[0]), (std::array{1, 2, 3, 4}));
    for (const std::size_t row : {1U, 2U, 399U}) {
        EXPECT_EQ(utility.work.rows[row].srm, 40.0F);
        EXPECT_EQ(rgba(utility.work.rows[row]), (std::array{0, 0, 0, 255})) << "row " << row;
    }
    const auto kept = utility.work;
    desk.ask(about_text, Answer::yes);
    desk.fail("There was an error reading the file!");
    utility.load_text();
    EXPECT_EQ(utility.work, kept);
}

// Columns 2, 5, 8, 11 and 14 follow each other: 2.8 columns a row, cut off.
TEST(ColorUtility, LoadsTheTopLineOfAPictureOfItsSizeAlone) {
    Desk desk;
    Pixels picture{1120, 5, std::vector<std::uint8_t>(1120 * 5 * 3, 9)};
    for (std::size_t x = 0; x < 1120; ++x) picture.rgb[3 * x] = static_cast<std::uint8_t>(x % 256);
    picture.rgb[1] = 5;
    desk.pictures.files = {{"right", picture}, {"wrong", {1120, 6, {}}}};
    ScriptedFiles files({"wrong", "absent", "right"});
    ColorUtility utility(desk.with(files));
    for (int time = 0; time < 2; ++time) {
        desk.ask(about_picture, Answer::yes);
        desk.fail("Could not read JPG file!");
        utility.load_picture();
        EXPECT_EQ(utility.work, desk.live);
    }
    desk.ask(about_picture, Answer::yes);
    utility.load_picture();
    EXPECT_EQ(rgba(utility.work.rows[0]), (std::array{0, 5, 9, 255}));
    for (const auto& [row, column] : {std::pair{1, 2}, {2, 5}, {3, 8}, {4, 11}, {5, 14}, {399, 1117 % 256}})
        EXPECT_EQ(utility.work.rows[static_cast<std::size_t>(row)].red, column) << "row " << row;
    EXPECT_EQ(utility.work.rows[0].srm, 0.1F);
    EXPECT_EQ(utility.work.rows[399].srm, 40.0F);
    EXPECT_EQ(utility.work.author.view(), "right");
}

TEST(ColorUtility, SavesLoadsAndResetsTables) {
    Desk desk;
    desk.live.third_text.assign("kept");
    const auto path = desk.folder / "mine.ldt";
    ScriptedFiles files({path, path, desk.folder / "absent.ldt", desk.folder / "absent/x.ldt"});
    ColorUtility utility(desk.with(files));
    utility.work.author.assign("A brewer");
    utility.work.rows[0].red = 1;
    utility.save_table();
    const auto saved = utility.work;
    desk.ask("Really reset the current values with the default values imbedded in Wortlex?", Answer::yes);
    utility.reset();
    EXPECT_EQ(utility.work.author.view(), "Wortlex");
    EXPECT_EQ(desk.live, utility.work);
    utility.selected = 5;
    utility.load_table();
    EXPECT_EQ(std::pair(utility.work, utility.selected), std::pair(saved, 0));
    desk.fail("File Not Found!");
    utility.load_table();
    desk.fail("The color file could not be written. Is the disk full, or the folder read-only?");
    utility.save_table();
    desk.ask("Do you really want to copy this color set to the default Wortlex color data file?",
             Answer::yes);
    utility.save_default();
    ColorTable found;
    ASSERT_TRUE(LoadColorTable(desk.folder / "kv_lovrgb.ldt", found));
    EXPECT_EQ(found, utility.work);
    EXPECT_EQ(desk.live, utility.work);
    EXPECT_TRUE(utility.cancel()) << "nothing is left to ask";
    EXPECT_EQ(desk.live.third_text.view(), "kept");
}

TEST(ColorSwatch, TriesAnAlphaThatTheSettingsNeverHearOf) {
    auto image = WriteDefaultSettings();
    image.color_units = ColorUnits::ebc_new;
    image.alpha_mode = AlphaMode::from_table;
    image.color_alpha = -100 * 256 + 40;
    const auto settings = settings_from(image);
    const auto table = built_in_color_table();
    ColorSwatch swatch{table, settings};
    Form form;
    color_swatch_form(form, swatch);
    const auto shown = [&form](const char* key) { return content_of(form, key); };
    set_swatch(swatch, 10); // 191, 129, 58 and alpha 205
    EXPECT_EQ(std::pair(shown("alpha"), shown("colour")), std::pair(std::string("105"), std::string("19.7")));
    EXPECT_EQ(painted_swatch(swatch), swatch_colour(table, 10, settings));
    type(form, "alpha", "51");
    EXPECT_EQ(shown("transparency"), "80.00");
    EXPECT_EQ(painted_swatch(swatch), 0xD7E5F2U) << "204 and a fifth of 58, 129 and 191";
    set_swatch(swatch, 1); // alpha 60
    EXPECT_EQ(swatch.alpha, 0);
    for (const auto& [mode, alpha] : {std::pair{AlphaMode::global_value, 40}, {AlphaMode::not_used, 255}}) {
        image.alpha_mode = mode;
        EXPECT_EQ(swatch_alpha(table, 10, settings_from(image)), alpha);
    }
}

} // namespace
} // namespace wortlex
