#include "support/record_rows.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(IngredientRecords, StandInFilesAsTheirTablesSay) {
    expect_layout(614, hop_layout, hop_rows());
    expect_layout(521, malt_layout, malt_rows());
    expect_layout(468, yeast_layout, yeast_rows());
    expect_layout(222, water_layout, water_rows());
    expect_layout(1031, style_layout, style_rows());
    expect_layout(577, extra_layout, extra_rows());
}

TEST(HopRecord, NibblesOfStorageAndFormChangeAlone) {
    HopRecord hop;
    hop.storage_and_form = 0x13;
    EXPECT_EQ(storage_class(hop), StorageClass::poor);
    EXPECT_EQ(form(hop), HopForm::plug);
    set_form(hop, HopForm::pellet);
    EXPECT_EQ(hop.storage_and_form, 0x23);
    set_storage_class(hop, StorageClass::good);
    EXPECT_EQ(hop.storage_and_form, 0x21);
}

TEST(MaltRecord, GrainAndMashedOthersGoThroughTheMash) {
    const auto mashed = [](MaltType type, std::uint8_t must_mash) {
        MaltRecord malt;
        malt.malt_type = type;
        malt.must_mash = must_mash;
        return is_mashed(malt);
    };
    EXPECT_TRUE(mashed(MaltType::grain, 0));
    EXPECT_TRUE(mashed(MaltType::other, 1));
    EXPECT_FALSE(mashed(MaltType::other, 0));
    EXPECT_FALSE(mashed(MaltType::extract, 1)) << "of an extract the byte tells liquid from dry";
    EXPECT_FALSE(mashed(MaltType::sugar, 1));
}

} // namespace
} // namespace wortlex
