#include "brewing/water_ph.h"
#include "databases/water.h"
#include "databases/water_hardness.h"
#include "support/form_user.h"
#include "support/listed.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(WaterList, WorksOnTheResidentArray) {
    Listed<WaterRecord> waters(
        SaveWater, water_list,
        {{.name = Text<27>("pilsen"), .known_for = {}},
         {.name = Text<27>("Pilsen"), .magnesium = 2.25F, .bicarbonate = 1234.5F, .known_for = {}}});
    EXPECT_EQ(waters.row(1), "Pilsen|0000.0|0002.2|0000.0|0000.0|0000.0|1234.5|");
    waters->selected = 1;
    EXPECT_EQ(waters->selected_record()->magnesium, 2.25F) << "capitals tell two entries apart";
    const auto entry = waters->new_entry(waters.prompts);
    EXPECT_FALSE(dynamic_cast<ButtonRow&>(entry->form.row("from_alkalinity")).press) << "no converter";
    type(entry->form, "name", "Burton");
    entry->form.accept();
    waters.prompts.expect("yes/no or stay",
                          "The water database has been modified!\nDo you want to save the changes?",
                          Answer::no, Icon::warning);
    EXPECT_TRUE(waters->close(waters.prompts));
    EXPECT_EQ(waters.database.count, 2) << "No reads the file again";
}

TEST(WaterEntry, TakesWhatItsConvertersBringAndClampsItOnAccept) {
    WaterRecord record{.name = Text<27>("Twenty-five characters ab"), .sodium = -1, .known_for = {}};
    const auto convert = [](WaterRecord& entered) {
        Form form;
        alkalinity_form(form, entered);
        type(form, "caco3", "6000");
        type(form, "ph", "6");
        form.accept();
    };
    Form form;
    water_entry_form(form, record, {nullptr, nullptr, convert});
    press(form, "from_alkalinity");
    EXPECT_NEAR(record.bicarbonate, 6099.4, 0.1) << "6100 but for a trace of carbonate; CaCO3 ends at 5000";
    form.accept();
    EXPECT_EQ(std::tuple(record.bicarbonate, record.ph, record.sodium, record.name.view().size()),
              std::tuple(2000.0F, 6.0F, 0.0F, 24U));
    type(form, "bicarbonate", "0");
    press(form, "calculate_ph");
    EXPECT_EQ(record.ph, 7.0F);
}

TEST(WaterHardness, GivesIonsAndPh) {
    WaterRecord record;
    Form calcium, magnesium;
    calcium_hardness_form(calcium, record);
    magnesium_hardness_form(magnesium, record);
    for (auto* const form : {&calcium, &magnesium}) {
        type(*form, "caco3", "125");
        form->accept();
    }
    EXPECT_EQ(std::pair(record.calcium, record.magnesium), std::pair(50.0F, 30.25F));
    for (const float ph : {4.0F, 6.48F, 8.3F, 12.0F}) {
        const auto shares = carbonates_of(100, ph);
        EXPECT_NEAR(shares.bicarbonate / 61 + 2 * shares.carbonate / 60, 2.0, 1e-9) << "charge at pH " << ph;
    }
    const auto half = carbonates_of(100, 6.48F);
    EXPECT_NEAR(half.carbonic_acid / 44, half.bicarbonate / 61, 1e-5) << "at the first constant";
    for (const float none : {0.0F, -5.0F, std::nanf("")}) EXPECT_EQ(ph_of_bicarbonate(none), 7.0F);
    for (const auto& [ppm, ph] : {std::pair{0.610171F, 7.67854}, {61.0171F, 8.30809}, {2000.0F, 8.34859}})
        EXPECT_NEAR(ph_of_bicarbonate(ppm), ph, 1e-4) << "where the charges cancel, " << ppm;
}

} // namespace
} // namespace wortlex
