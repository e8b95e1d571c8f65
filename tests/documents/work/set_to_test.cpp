#include "documents/forms/set_to_form.h"
#include "documents/under_work.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"
#include "records/documents/document_traits.h"
#include "support/form_user.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wortlex {
namespace {

// 57.8 points by method #1 on points: (6 x 37 + 3 x 34) x 0.75 + 46, over 5 gallons.
struct Goal : UnderWork {
    explicit Goal(Units units = Units::american) {
        measure_in(settings, units);
        document.boil_minutes = 60;
        document.malts = {malt(MaltType::grain, 1.037F, 6, false, 0, 2),
                          malt(MaltType::grain, 1.034F, 3, false, 0, 60), malt(MaltType::sugar, 1.046F, 1)};
        document.hops = {hop(10, 0.5F, 60), hop(5, 1, 15), hop(5, 2, -5)};
        document.extras = {{.record = {}, .amount = 0.5F}};
        recalculate();
    }
    void recalculate() {
        if (!document.malts.empty()) malts_changed(editor.open);
        hops_update(document, figures, settings);
        start_editing(editor, {});
    }
    std::string reach(const SetToWish& wish) {
        const auto plan = plan_set_to(editor.open, wish);
        set_to(editor, plan);
        auto again = document; // nothing of a plan but its amounts is believed
        RecipeFigures worked_out;
        malts_changed({again, worked_out, settings});
        return plan.fault + fixed(trunc_to_precision(hop_gravity(again), 5), sg_decimals(settings)) + " " +
               fixed(again.total_ibu, 1) + " " + fixed(to_shown_colour(worked_out.colour.srm, settings), 1);
    }
    std::string first_word(const SetToWish& wish) {
        const auto all = reach(wish);
        return all.substr(0, all.find(' '));
    }
};

TEST(SetTo, GravityIsReachedByBothMethodsOnBothBases) {
    for (const auto method : {EfficiencyMode::method_1, EfficiencyMode::method_2})
        for (const auto base : {GravityBase::points, GravityBase::mass})
            for (const auto units : {Units::american, Units::metric})
                for (const auto& [wanted, precision, read] :
                     {std::tuple(1.035F, 0U, "1.035"), {1.0725F, 2U, "1.07250"}, {1.11F, 1U, "1.1100"}}) {
                    Goal goal(units);
                    goal.settings.efficiency_mode = method;
                    goal.settings.gravity_base = base;
                    goal.settings.sg_precision = precision;
                    goal.recalculate();
                    EXPECT_EQ(goal.first_word({.og = wanted}), read);
                    EXPECT_NEAR(goal.document.malts[0].amount / goal.document.malts[1].amount, 2, 0.02);
                }
    Goal goal;
    goal.settings.sg_precision = 2;
    EXPECT_EQ(goal.first_word({.og = 1.05202F}), "1.05202");
    EXPECT_EQ(goal.document.malts[0].amount, 5.4F) << "nine tenths, to the last decimal shown";
    EXPECT_EQ(goal.document.malts[1].amount, 2.7F);
    EXPECT_EQ(goal.document.malts[2].amount, 0.9F);
}

TEST(SetTo, BitternessIsReachedByAllHopsOrByOne) {
    constexpr auto target = SetToTarget::ibu;
    for (const auto formula :
         {HopFormulaCode::Rager, HopFormulaCode::Garetz, HopFormulaCode::Tinseth, HopFormulaCode::Generic}) {
        Goal all, one;
        for (auto* const goal : {&all, &one}) {
            goal->settings.HopFormula = formula;
            goal->recalculate();
        }
        const float dry = all.document.hops[2].ibu, twice = (all.document.total_ibu - dry) * 2 + dry;
        EXPECT_THAT(all.reach({.target = target, .ibu = twice}),
                    testing::HasSubstr(" " + fixed(twice, 1) + " "));
        EXPECT_NEAR(all.document.hops[0].amount, 1, 0.005) << "every formula goes by the weight";
        EXPECT_NEAR(all.document.hops[1].amount, 2, 0.01);
        EXPECT_EQ(all.document.hops[2].amount, 2) << "a dry hop stays, whatever a formula finds in it";
        EXPECT_THAT(one.reach({.target = target, .ibu = 44.4F, .hop = 1}), testing::HasSubstr(" 44.4 "));
        EXPECT_EQ(one.document.hops[0].amount, 0.5F);
    }
}

// Malts of one potential: while the gravity holds, so does their weight. In the formula of Mosher 12 SRM are
// (12 - 4.7) / 0.3 units, which 10 pounds in 5 gallons have with 1.037 pounds of 100 Lovibond.
TEST(SetTo, ColourIsReachedByOneMaltAgainstTheOthers) {
    constexpr auto target = SetToTarget::colour;
    Goal goal;
    goal.settings.color_formula = ColorFormula::Mosher;
    goal.document.malts = {malt(MaltType::grain, 1.036F, 9.5F, false, 0, 2),
                           malt(MaltType::grain, 1.036F, 0.5F, false, 0, 100)};
    goal.recalculate();
    EXPECT_THAT(goal.reach({.target = target, .colour = 12, .malt = 1}), testing::EndsWith(" 12.0"));
    EXPECT_EQ(goal.document.malts[1].amount, 1.04F);
    EXPECT_EQ(goal.document.malts[0].amount, 8.96F);
    EXPECT_EQ(plan_set_to(goal.editor.open, {.target = target, .colour = 80, .malt = 1}).fault,
              "Only 5.9 to 64.7 can be reached");
    EXPECT_THAT(goal.reach({.target = target, .colour = 30, .malt = 0}), testing::EndsWith(" 30.0"))
        << "less of a pale one";
    for (const auto base : {GravityBase::points, GravityBase::mass}) {
        Goal metric(Units::metric);
        metric.settings.color_units = ColorUnits::ebc_new;
        metric.settings.gravity_base = base;
        metric.recalculate();
        const auto gravity = metric.first_word({.og = 1.055F});
        const auto reached =
            metric.reach({.target = target, .colour = from_shown_colour(20, metric.settings), .malt = 1});
        EXPECT_THAT(reached, testing::StartsWith(gravity + " ")) << "held";
        EXPECT_THAT(reached, testing::EndsWith(" 20.0"));
    }
}

TEST(SetTo, SaysInWordsWhatCannotBe) {
    struct Row {
        const char* fault;
        SetToWish wish;
        void (*spoil)(BrewDocument&);
    };
    constexpr auto og = SetToTarget::og, ibu = SetToTarget::ibu, colour = SetToTarget::colour;
    for (const auto& [fault, wish, spoil] :
         {Row{"There are no malts", {.target = og, .og = 1.05F}, [](BrewDocument& d) { d.malts.clear(); }},
          {"The malts give no gravity",
           {.target = og, .og = 1.05F},
           [](BrewDocument& d) { d.malts = {malt(MaltType::grain, 1, 5)}; }},
          {"Only 1.000 to 1.007 can be reached",
           {.target = og, .og = 1.05F}, // 100,000 lb of 37 points at 75 %
           [](BrewDocument& d) { d.malts.resize(1), d.batch_size = 400000; }},
          {"There are no hops", {.target = ibu, .ibu = 30}, [](BrewDocument& d) { d.hops.clear(); }},
          {"This hop gives no bitterness", {.target = ibu, .ibu = 30, .hop = 2}, [](BrewDocument&) {}},
          {"None of the hops gives bitterness",
           {.target = ibu, .ibu = 30},
           [](BrewDocument& d) { d.hops.erase(d.hops.begin(), d.hops.begin() + 2); }},
          {"It takes one malt and others to change against",
           {.target = colour, .colour = 30},
           [](BrewDocument& d) { d.malts.resize(1); }},
          {"This malt cannot change the color", {.target = colour, .colour = 30}, [](BrewDocument& d) {
               d.malts[1].record = d.malts[0].record, d.malts[2].amount = 0;
           }}}) {
        Goal goal;
        spoil(goal.document);
        goal.recalculate();
        const auto before = goal.document;
        const auto plan = plan_set_to(goal.editor.open, wish);
        EXPECT_EQ(plan.fault, fault);
        set_to(goal.editor, plan);
        EXPECT_EQ(goal.document, before);
    }
}

TEST(SetTo, IsOneStepThatUndoTakesBackToTheLastByte) {
    for (const auto& [step, wish] :
         {std::pair<const char*, SetToWish>{"Set OG", {.og = 1.07F}},
          {"Set IBU", {.target = SetToTarget::ibu, .ibu = 31}},
          {"Set Batch Size", {.target = SetToTarget::batch_size, .batch_size = 10}},
          {"Set Color", {.target = SetToTarget::colour, .colour = 9, .malt = 1}}}) {
        Goal goal;
        const auto bytes = document_bytes(image_of(goal.editor.open));
        set_to(goal.editor, plan_set_to(goal.editor.open, wish));
        EXPECT_EQ(goal.editor.history.to_undo(), step);
        EXPECT_NE(document_bytes(image_of(goal.editor.open)), bytes);
        undo(goal.editor);
        EXPECT_EQ(document_bytes(image_of(goal.editor.open)), bytes) << step;
        EXPECT_EQ(goal.editor.history.to_undo(), "");
    }
}

TEST(SetTo, IsToldBesideTheRecipeAsItIsAndDoneByOk) {
    Goal goal;
    auto work = begin_set_to(goal.editor);
    FormUser user;
    set_to_form(user.form, work);
    EXPECT_TRUE(user.form.accept());
    EXPECT_EQ(goal.editor.history.to_undo(), "") << "what reads so already stays";
    user.choose("target", 2);
    user.type("batch_size", "10");
    const auto& lines = work.lines;
    EXPECT_EQ(lines[0][1], "1.058");
    EXPECT_EQ(lines[0][2], "1.058") << "the same beer";
    EXPECT_EQ(lines[3][1], lines[3][2]);
    EXPECT_EQ(lines[8][1] + " " + lines[8][2], "6.00 Lbs 12.00 Lbs");
    EXPECT_EQ(lines.back()[2].substr(0, 4), "1.00") << "extras too";
    user.choose("target", 3);
    user.type("colour", "900");
    EXPECT_FALSE(user.form.accept());
    EXPECT_EQ(lines[0][2], "--");
    user.choose("target", 2);
    lock_to_batch(goal.editor, true);
    set_boil_minutes(goal.editor, 90);
    EXPECT_FALSE(user.form.accept()) << "planned for another recipe";
    undo(goal.editor);
    EXPECT_TRUE(user.form.accept());
    EXPECT_EQ(goal.document.malts[0].amount, 12);
    EXPECT_EQ(goal.document.wort_size, 12);
}

} // namespace
} // namespace wortlex
