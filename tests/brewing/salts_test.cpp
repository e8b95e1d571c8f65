#include "brewing/salt_proposal.h"
#include "brewing/water_ph.h"
#include "support/waters.h"
#include "support/worked_figures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace wortlex {
namespace {

SixIons ions_of(const WaterRecord& water) {
    SixIons ppm{};
    for (std::size_t i = 0; i < ions.size(); ++i) ppm[i] = water.*ions[i].ppm;
    return ppm;
}

TEST(Salts, AddUpOnTheDilutedSource) {
    WaterAnalysis analysis;
    analysis.target = water_of({295, 45, 55, 725, 25, 300});
    analysis.source = water_of({80, 10, 20, 40, 30, 200});
    analysis.source.reserved_39 = 6;
    analysis.salts[4].calcium = 1; // of the unused salt
    analysis.salts[4].reserved_39 = 2;
    analysis.dilution_rate = 0.25F;
    compare_waters(analysis);
    const SixIons difference = {235, 37.5F, 40, 695, 2.5F, 150};
    expect_figures(ions_of(analysis.difference), difference, "target less three quarters");
    for (const auto& salt : salt_effects) set_salt_rate(analysis, salt, 2);
    expect_figures(ions_of(analysis.totals), {479.6F, 52.2F, 351.8F, 500.8F, 575.4F, 694.8F},
                   "twice 61.5 + 72 + 105.8, and the unused 1; 26.1; 103.9 + 72; 147.4 + 103; 160.3 + 127.4; "
                   "189 + 158.4");
    expect_figures(ions_of(analysis.result), {539.6F, 59.7F, 366.8F, 530.8F, 597.9F, 844.8F}, "with 60 ...");
    EXPECT_EQ(std::pair(analysis.totals.reserved_39, analysis.result.reserved_39), std::pair(2.0F, 6.5F));
    expect_figures(ions_of(analysis.difference), difference, "no salt enters into it");
    analysis.dilution_rate = 1;
    compare_waters(analysis);
    expect_figures(ions_of(analysis.difference), ions_of(analysis.target), "nothing of the source");
    reset_salts(analysis);
    EXPECT_EQ(ions_of(analysis.result), SixIons());
    EXPECT_EQ(analysis.totals.ph, 7.0F);
}

// Worked out beside the program, in singles where they belong.
TEST(Salts, TheirCarbonateMakesThePh) {
    expect_floats(ph_of_salts, {{0.0F, 7.0F},
                                {std::nanf(""), 7.0F},
                                {1.0F, 7.7781204F}, // in doubles 7.7780986
                                {10.0F, 8.1692766F},
                                {158.4F, 8.3328806F},
                                {2000.0F, 8.3485928F}});
}

TEST(Salts, AreProposedByLeastSquares) {
    struct Case {
        const char* name;
        SixIons difference;
        bool with_chalk;
        std::array<float, 6> rates;
        SixIons remaining;
    };
    // Burton from Pilsen was worked out beside the program, by descent.
    const std::array cases = {
        Case{"Burton from Pilsen",
             {288, 43, 53, 720, 20, 285},
             false,
             {4.25F, 0.95F, 0, 1.4F, 0.2F, 0},
             {12.225F, 18.205F, -47.8F, -4.3F, -5.48F, 20.4F}},
        Case{"with chalk",
             {288, 43, 53, 720, 20, 285},
             true,
             {3.45F, 2.05F, 0, 0.9F, 0.15F, 0.7F},
             {-9.035F, -10.505F, -11.8F, 0.32F, 0.89F, 4.02F}},
        Case{"one salt alone", {0, 0, 207.8F, 0, 320.6F, 0}, true, {0, 0, 2, 0, 0, 0}, {}},
        Case{"nothing can be taken away", {-5, -1, -2, -4, -9, -80}, true, {}, {-5, -1, -2, -4, -9, -80}},
        Case{"more than a field holds",
             {0, 0, 25975, 0, 40075, 0},
             false,
             {0, 0, 200, 0, 0, 0},
             {0, 0, 5195, 0, 8015, 0}}};
    for (const auto& c : cases) {
        const auto proposal = propose_salts(water_of(c.difference), c.with_chalk);
        expect_figures(proposal.rates, c.rates, c.name);
        for (std::size_t i = 0; i < ions.size(); ++i)
            EXPECT_NEAR(proposal.remaining[i], c.remaining[i], 0.001) << c.name << ' ' << ions[i].symbol;
    }
}

TEST(Salts, ChargesOfRealWatersAreEqual) {
    EXPECT_TRUE(charges_of(water_of({187, 41, 113, 720, 85, 20})).are_balanced());
    EXPECT_TRUE(charges_of({}).are_balanced());
    const auto vienna = charges_of(water_of({200, 60, 8, 125, 12, 120}));
    EXPECT_NEAR(vienna.cations, 15.27, 0.01) << "200 / 20.04 + 60 / 12.15 + 8 / 22.99";
    EXPECT_NEAR(vienna.anions, 4.91, 0.01) << "125 / 48.03 + 12 / 35.45 + 120 / 61.02";
    EXPECT_FALSE(vienna.are_balanced());
    EXPECT_TRUE(charges_of(water_of({20.04F, 0, 0, 43.3F, 0, 0})).are_balanced()) << "1 and 0.9015";
    EXPECT_FALSE(charges_of(water_of({20.04F, 0, 0, 43.1F, 0, 0})).are_balanced()) << "1 and 0.8974";
}

} // namespace
} // namespace wortlex
