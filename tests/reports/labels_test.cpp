#include "reports/label_form.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace wortlex {
namespace {

// On A4 of ten dots a millimetre.
std::optional<PageJob> on_sheets(const Report& run, Surface& measure) {
    const Paper paper{
        .sheet = {2100, 2970}, .area = {2100, 2970}, .dots_per_millimetre = 10, .is_exact = true};
    return record_report({.document_name = "", .run = run, .sheet = PaperKind::a4}, paper, measure);
}

TEST(LabelSheets, EachLabelLandsInItsPlace) {
    const LabelSheet sheet{"two by two", PaperKind::a4, 2, 2, 90, 50, 10, 20, 5, 2};
    const std::vector<ReportRow> label{{"Name: |%s\n", {"Ale"}}};
    RecordingSurface measure;
    const auto job = on_sheets(
        [&](PageContext& page) {
            draw_label_sheets(label, {sheet, 3, 3}, page);
        },
        measure);
    ASSERT_EQ(job->pages.size(), 2U);
    EXPECT_THAT(texts_on(*job, 0), testing::ElementsAre("750 @130 Name: Ale", "750 @1080 Name: Ale"));
    EXPECT_THAT(texts_on(*job, 1), testing::ElementsAre("230 @130 Name: Ale"));
}

TEST(LabelSheets, WhatDoesNotFitIsDrawnSmaller) {
    const auto& sheet = common_label_sheets().front();
    struct Narrow : RecordingSurface {
        mutable int height = 16;
        void set_font(const Font& font) override { height = font.cell_height; }
        Extent text_extent(std::string_view text) const override {
            return {static_cast<int>(text.size()) * height / 2, height};
        }
    } measure;
    const std::vector<ReportRow> label(40, {"%s\n", {std::string(100, 'w')}});
    const auto job = on_sheets(
        [&](PageContext& page) {
            draw_label_sheets(label, {sheet, 1, 1}, page);
        },
        measure);
    const auto texts = texts_on(*job, 0);
    EXPECT_LT(std::stoi(texts.back()), 131 + 677 - 30);
    std::size_t letters = 0;
    for (const auto& text : texts)
        letters += static_cast<std::size_t>(std::count(text.begin(), text.end(), 'w'));
    EXPECT_EQ(letters, 4000U) << "nothing is cut";
}

TEST(LabelSheets, TheirFileKeepsWhatIsSound) {
    const TemporaryFolder folder;
    LabelSettings kept{{common_label_sheets()[4]}, {{"Laser", {0.5F, -1.25F}}}};
    kept.own.front().name = "Mine";
    ASSERT_TRUE(SaveLabelSettings(folder.path(), kept));
    EXPECT_EQ(LoadLabelSettings(folder.path()), kept);
    std::ofstream(folder / "WlxLabels.txt")
        << "sheet: too wide | A4 | 3 | 1 | 99 | 10 | 0 | 0 | 0 | 0\n"
           "sheet: short | A4 | 3\nsheet: odd | A4 | -1 | nan | x\n"
           "sheet: A4, 8 labels of 99 x 68 mm | A4 | 1 | 1 | 9 | 9 | 0 | 0 "
           "| 0 | 0\n"
           "offset: Far | 1e30 | -99\noffset: none\n";
    EXPECT_EQ(LoadLabelSettings(folder.path()), (LabelSettings{{}, {{"Far", {20, -20}}}}));
    for (const auto& sheet : common_label_sheets()) EXPECT_TRUE(is_usable(sheet)) << sheet.name;
}

TEST(LabelSheets, NumbersOfTheRulersLieOnThePaperAndApart) {
    RecordingSurface measure;
    const auto& sheet = common_label_sheets().front();
    const auto job = on_sheets([&](PageContext& page) { draw_ruler_page(sheet, page); }, measure);
    const auto texts = texts_on(*job, 0);
    EXPECT_THAT(texts, testing::IsSupersetOf({"150 @2005 200", "200 @155 20", "2900 @155 290"}));
    EXPECT_EQ(texts.size(), 19U + 28U) << "20 to 200, 20 to 290";
}

TEST(LabelSheets, OwnOnesAreKeptByTheirNamesAndWithOk) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    LabelChoice choice;
    LabelDesk desk(choice, folder.path(), {"Laser"}, prompts);
    FormUser user;
    label_form(user.form, desk, nullptr);
    const auto& offered = user.row<ChoiceRow>("sheet").words;
    user.choose("sheet", 1);
    user.type("left", "5");
    EXPECT_EQ(offered.at(1)(), "A4, 8 labels of 99 x 68 mm (changed)");
    prompts.expect_tell("A sheet of your own needs a name that no common sheet has.", Icon::warning);
    user.press("keep");

    user.type("own_name", " Mine | gloss ");
    user.press("keep");
    ASSERT_EQ(offered.size(), 8U);
    EXPECT_EQ(offered.at(7)(), "Mine | gloss");
    user.type("left", "4");
    user.type("across", "1.5");
    prompts.expect_yes_no(
        "Mine | gloss\nThis sheet of labels already exists!\n\nDo you wish to replace this item?",
        Answer::no);
    user.press("keep");
    EXPECT_EQ(offered.at(7)(), "Mine | gloss (changed)");

    user.form.cancel();
    EXPECT_EQ(LoadLabelSettings(folder.path()), LabelSettings()) << "Cancel keeps nothing";
    user.form.accept();
    auto mine = common_label_sheets().front();
    mine.name = "Mine | gloss";
    mine.left = 5;
    EXPECT_EQ(LoadLabelSettings(folder.path()), (LabelSettings{{mine}, {{"", {1.5F, 0}}}}));
}

TEST(LabelSheets, OwnOnesAreRemovedAfterAQuestionAndShippedOnesNever) {
    const TemporaryFolder folder;
    LabelSettings kept{{common_label_sheets()[4], common_label_sheets()[4]}, {}};
    kept.own.front().name = "First";
    kept.own.back().name = "Mine";
    ASSERT_TRUE(SaveLabelSettings(folder.path(), kept));
    ScriptedPrompts prompts;
    LabelChoice choice;
    LabelDesk desk(choice, folder.path(), {}, prompts);
    FormUser user;
    label_form(user.form, desk, nullptr);
    user.choose("sheet", 6);
    EXPECT_FALSE(user.can("remove"));
    user.choose("sheet", 7);
    for (const auto answer : {Answer::no, Answer::yes}) {
        EXPECT_EQ(desk.chosen(), 7);
        prompts.expect_yes_no("First\n\nDo you really want to remove this sheet of labels?", answer);
        user.press("remove");
    }
    EXPECT_EQ(desk.chosen(), 0);
    ASSERT_EQ(user.row<ChoiceRow>("sheet").words.size(), 8U);
    EXPECT_EQ(user.row<ChoiceRow>("sheet").words.back()(), "Mine");
    EXPECT_EQ(LoadLabelSettings(folder.path()), kept) << "before OK";
    user.form.accept();
    EXPECT_EQ(LoadLabelSettings(folder.path()).own.size(), 1U);
}

} // namespace
} // namespace wortlex
