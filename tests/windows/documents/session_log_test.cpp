#include "documents/forms/page_forms.h"
#include "documents/opening.h"
#include "documents/work/session_editor.h"
#include "support/started_brewery.h"
#include "windows/documents/line_dialogs.h"
#include "windows/documents/session_log.h"
#include "windows/documents/session_water_page.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QDialog>
#include <QDialogButtonBox>

namespace wortlex {
namespace {

// Five gallons of ten pounds that hold 80 %, at 75 %: 46.21 x 0.8 x 0.75 x 2 are 55.45 points.
struct Brewhouse : Brewery {
    RecipeEditor editor;
    SessionDocument& session;

    Brewhouse() : editor{live_document(program), {}, {}}, session(program.document.session) {
        auto& settings = program.settings;
        measure_in(settings, Units::american);
        settings.wort_equals_batch = 1;
        settings.cooling_shrink = 0.04F;
        settings.grain_absorption = 0.2F;
        new_session(program, {25, 1, 2001});
        editor.open.session = &session;
        editor.open.water = &program.document.water;
        editor.open.salt_unit = &program.document.salt_unit;
        editor.notices = &program.notices;
        start_editing(editor, {});
        auto recipe = new_document(settings, ScheduleKind::simple);
        recipe.batch_size = recipe.wort_size = 5;
        recipe.efficiency = 0.75F;
        recipe.malts = {malt(MaltType::grain, 1.036968F, 10)};
        recipe.simple_mash.dough_in_water = 12;
        pick_recipe(editor, recipe);
        session.water_needs.sparge = 4;
        session.water_needs.evaporation_rate = 10;
    }
    std::unique_ptr<RecipePage> open(RecipePageUse use) {
        auto page = std::make_unique<RecipePage>(editor, std::move(use), ports(), nullptr);
        page->setAttribute(Qt::WA_DeleteOnClose, false);
        page->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page.get()));
        return page;
    }
};

// Presses a button of a page, and answers the dialog that it opens.
void press_and_answer(const QWidget& page, const char* key, std::function<void(QDialog&)> answer) {
    in_next<QDialog>(std::move(answer));
    press(page, key);
}

TEST(SessionLog, EveryChangeReachesEveryPage) {
    Brewhouse b;
    const auto efficiency = b.open(efficiency_page(b.editor, b.ports()));
    const auto fermentation = b.open(fermentation_page(b.editor, b.ports()));
    const auto bottling = b.open(bottling_page(b.editor, b.ports()));
    // 4 sparged and 3 from the mash, of which the grain keeps 2.
    EXPECT_EQ(text_of(*efficiency, "water_volume"), "5.00");
    auto mash = b.program.document.recipe.simple_mash;
    mash.dough_in_water = 16;
    set_simple_mash(b.editor, mash);
    EXPECT_EQ(text_of(*efficiency, "water_volume"), "6.00") << "a gallon more in the mash";

    edit(b.editor, "Water", [&] { b.session.water_needs.evaporation_rate = 20; });
    EXPECT_EQ(text_of(*efficiency, "raw_volume"), "6.25") << "5 / 0.8";
    edit(b.editor, "Water", [&] { b.session.water_needs.hopback = 1; });
    edit(b.editor, "Where", [&] { b.session.tail.measured_in_fermenter = 1; });
    EXPECT_EQ(text_of(*efficiency, "losses"), "0.96");

    edit(b.editor, "Gravity", [&] { b.session.actual_fg = 1.02F; });
    EXPECT_EQ(text_of(*fermentation, "actual_fg"), "1.020");
    const auto by_hydrometer = text_of(*fermentation, "alcohol_by_weight");
    edit(b.editor, "Reading", [&] {
        b.session.tail.fg_by_refractometer = 1;
        b.session.tail.alcohol_reading = {2, 12, 3}; // too low for its gravity
    });
    EXPECT_EQ(text_of(*fermentation, "alcohol_by_weight"), "0.00");
    undo(b.editor);
    EXPECT_EQ(text_of(*fermentation, "alcohol_by_weight"), by_hydrometer);

    b.program.settings.volume_units = Units::metric;
    b.program.notices.tell(Change::settings);
    EXPECT_EQ(text_of(*efficiency, "water_volume"), "22.71") << "6 x 3.7853";
    EXPECT_EQ(text_of(*bottling, "bottled_amount"), "18.93");
}

TEST(SessionLog, AnInstrumentMeasuresForItsField) {
    Brewhouse b;
    const auto page = b.open(efficiency_page(b.editor, b.ports()));
    type_into(*page, "recorded_og", "1.056");
    press_and_answer(*page, "refractometer", [&](QDialog& dialog) {
        type_into(dialog, "brix", "13");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(text_of(*page, "recorded_og"), "1.056");
    press_and_answer(*page, "refractometer", [&](QDialog& dialog) {
        type_into(dialog, "brix", "13");
        b.program.settings.brix_correction = 1.3F; // a temporary calibration, meanwhile
        b.program.notices.tell(Change::calibration);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(text_of(*page, "recorded_og_plato"), "10.0") << "13 Brix over 1.3";
    EXPECT_FLOAT_EQ(b.session.tail.recorded_og_reading.plato, 10);
    b.answer_page(Answer::cancel);
    QTest::keyClick(page.get(), Qt::Key_Escape);
    EXPECT_TRUE(page->isVisible());
    b.answer_page(Answer::no);
    QTest::keyClick(page.get(), Qt::Key_Escape);
    EXPECT_EQ(b.session.tail.recorded_og_reading, RefractometerPair{});
    EXPECT_EQ(b.editor.history.to_undo(), "Cancel Efficiency") << "who left by mistake can undo it";
}

TEST(SessionLog, TheBottlingDateFollowsTheFermentation) {
    Brewhouse b;
    const auto page = b.open(bottling_page(b.editor, b.ports()));
    const auto press_auto = [](QDialog& dialog) {
        dialog.findChild<QPushButton*>("auto")->click();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    b.prompts.expect_tell(
        "This function calculates the bottling date based on the brewing date plus the number "
        "of days the beer has been fermenting in primary and secondary fermenters. "
        "Unfortunately, you do not have any information in the fermentation details that would "
        "allow Wortlex to make this calculation.\n\nPlease enter the appropriate information in "
        "the fermentation details, then return here to calculate the bottling date.",
        Icon::information);
    press_and_answer(*page, "pick_date", press_auto);
    EXPECT_EQ(b.session.bottling.bottling_day, 0);
    b.session.fermentation.primary_days = 7;
    b.session.fermentation.secondary_days = 3;
    press_and_answer(*page, "pick_date", [](QDialog& dialog) {
        dialog.findChild<QPushButton*>("auto")->click();
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    EXPECT_EQ(text_of(*page, "bottling_date"), "02-04-2001") << "ten days after 25 January";
    type_into(*page, "co2_volumes", "2.5");
    auto* const line = line_of(*page->findChild<QWidget*>("co2_volumes"));
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(page->isVisible()) << "Enter ends the field";
    page->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(b.session.bottling.co2_volumes, 2.5F);
}

TEST(SessionWater, FollowsTheSessionAndIsPutBackByCancel) {
    Brewhouse b;
    auto water = b.program.document.recipe.water;
    water.name.assign("Burton");
    water.calcium = 295;
    set_water(b.editor, water);
    b.session.source_water.calcium = 50;
    b.session.salt_grams[4] = 1; // of no salt
    b.session.tail.calculated_ph = 7.4F;
    const auto before = b.session;
    const auto page = b.open(water_profile_page(b.editor, b.ports()));
    EXPECT_EQ(page->findChild<QWidget*>("pick_target"), nullptr);
    EXPECT_EQ(text_of(*page, "difference_calcium"), "245.0");
    water.calcium = 300;
    set_water(b.editor, water);
    EXPECT_EQ(text_of(*page, "difference_calcium"), "250.0");
    type_into(*page, "gypsum_rate", "2");
    EXPECT_EQ(b.session.salt_grams[0], 2);
    EXPECT_EQ(b.session.salt_effects[0].calcium, 123);
    press(*page, "reset");
    EXPECT_EQ(text_of(*page, "totals_calcium"), " 0.0");
    EXPECT_EQ(b.session.tail.calculated_ph, 7.4F) << "a session's Reset is of the rates";
    type_into(*page, "dilution_rate", "0.5");
    press(*page, "calculate_ph");
    EXPECT_EQ(b.session.tail.calculated_ph, 7);
    b.answer_page(Answer::no);
    QTest::keyClick(page.get(), Qt::Key_Escape);
    EXPECT_EQ(b.session, before);
}

TEST(SessionWater, QuantitiesAreForTheWaterNeedsInTheUnitOfTheReport) {
    Brewhouse b;
    b.session.salt_grams[0] = 2;
    const auto page = b.open(water_profile_page(b.editor, b.ports()));
    press_and_answer(*page, "show_totals", [&](QDialog& dialog) {
        EXPECT_EQ(text_of(dialog, "mash_large") + text_of(dialog, "sparge_small"), "3.0016.00");
        EXPECT_EQ(text_of(dialog, "gypsum_sparge"), "0.28") << "8 / 28.35";
        auto mash = b.program.document.recipe.simple_mash;
        mash.dough_in_water = 16;
        set_simple_mash(b.editor, mash);
        EXPECT_EQ(text_of(dialog, "mash_large"), "4.00");
        for (auto* const button : dialog.findChildren<QAbstractButton*>())
            if (button->text().contains("Grams")) button->click();
        EXPECT_EQ(text_of(dialog, "gypsum_mash"), "8.00");
        press(dialog, "print");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_THAT(texts_on(b.pages.jobs.back(), 0), testing::Contains(testing::HasSubstr("Grams of Gypsum")));
    set_kind(b.editor, RecipeKind::extract);
    press_and_answer(*page, "show_totals", [](QDialog& dialog) {
        EXPECT_EQ(text_of(dialog, "mash_large") + text_of(dialog, "gypsum_sparge"), "0.000.00");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

TEST(SessionWater, AFileBringsSaltsAndSourceButNoVolumesAndNoTarget) {
    Brewhouse b;
    WaterAnalysis written;
    written.target.name.assign("Pilsen");
    written.source.name.assign("Well");
    written.rate(Salt::chalk) = 2;
    written.mash_gallons = 99;
    const auto path = b.folder / "well.wtr";
    ASSERT_TRUE(save_atomically(path, water_analysis_bytes(written)));
    const auto page = b.open(water_profile_page(b.editor, b.ports()));
    b.files.add(path);
    press(*page, "load");
    EXPECT_EQ(text_of(*page, "source_name") + text_of(*page, "chalk_calcium"), "Well211.6");
    EXPECT_EQ(text_of(*page, "target_name"), "");
    b.files.add(path);
    press(*page, "save");
    const auto saved = read_water_analysis(*read_file(path, water_analysis_layout.size)).analysis;
    EXPECT_EQ((std::array{saved.mash_gallons, saved.mash_quarts, saved.sparge_gallons, saved.sparge_quarts}),
              (std::array{3.0F, 12.0F, 4.0F, 16.0F}));
}

} // namespace
} // namespace wortlex
