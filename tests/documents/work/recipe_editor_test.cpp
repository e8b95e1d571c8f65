#include "documents/forms/page_forms.h"
#include "documents/forms/recipe_form.h"
#include "documents/recipe_gravity.h"
#include "documents/snapshot.h"
#include "documents/under_work.h"
#include "support/form_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// A recipe under work, with the form of its window.
struct Work : UnderWork {
    ColorTable colours;
    RecipeSubject subject{editor, colours};
    Form form;

    Work() {
        settings.grain_increment = 0.5F;
        settings.hop_increment = 0.25F;
        document.malts = {malt(MaltType::grain, 1.037F, 8.1F), malt(MaltType::sugar, 1.046F, 0.7F)};
        document.hops = {hop(10, 0.5F, 60), hop(5, 1, 15)};
        document.extras = {{.record = {}, .amount = 0.3F}};
        name(0, "Pilsner");
        name(1, "Candi");
        recalculate();
        recipe_form(form, subject);
    }
    void name(std::size_t line, const char* text) { document.malts[line].record.name.assign(text); }
    void recalculate() {
        gravity_update(document, figures, settings);
        hops_update(document, figures, settings);
        colour_and_mash(editor.open);
        start_editing(editor, {.locks = {}, .selected_malt = 0, .selected_hop = 0, .selected_extra = 0});
    }
    // Keystroke by keystroke into an emptied field, which then is left.
    void type(std::string_view key, std::string_view text) {
        PlainField field;
        for (const char digit : text) {
            field.content += digit;
            field.position = static_cast<int>(field.content.size());
            form.type(dynamic_cast<EntryRow&>(form.row(key)), field);
        }
        form.leave();
    }
    std::vector<float> amounts() const {
        std::vector<float> all;
        for (const auto& line : document.malts) all.push_back(line.amount);
        for (const auto& line : document.hops) all.push_back(line.amount);
        for (const auto& line : document.extras) all.push_back(line.amount);
        return all;
    }
    std::string malt_names() const {
        std::string names;
        for (const auto& line : document.malts) names.append(line.record.name.view()) += ' ';
        return names;
    }
};

TEST(RecipeEditor, LinesScaleFromWhatTheyWereAsTheEditBegan) {
    Work work;
    const auto before = work.amounts();
    lock_to_batch(work.editor, true);
    work.type("batch_size", "10"); // by way of 1 gallon
    auto doubled = before;
    for (auto& amount : doubled) amount *= 2;
    EXPECT_EQ(work.amounts(), doubled) << "exactly: the first digit left no trace";
    EXPECT_EQ(work.document.wort_size, 12);
    work.type("batch_size", "20"); // a new edit scales from here
    EXPECT_EQ(work.amounts()[0], before[0] * 4);
    EXPECT_EQ(work.editor.history.to_undo(), "Batch Size");
    undo(work.editor);
    undo(work.editor);
    EXPECT_EQ(work.amounts(), before);
    EXPECT_EQ(work.document.wort_size, 6);
    lock_to_batch(work.editor, false);
    work.type("batch_size", "8");
    EXPECT_EQ(work.amounts(), before) << "without the lock the lines stay";
}

TEST(RecipeEditor, GravityHoldsUnderTheEfficiencyLock) {
    Work work;
    const auto og = work.document.og_points;
    lock_efficiency(work.editor, true);
    work.type("efficiency", "60");
    EXPECT_EQ(work.document.og_points, og);
    EXPECT_NEAR(work.document.malts[0].amount, 8.1 * 0.75 / 0.6, 1e-6);
    EXPECT_EQ(work.document.malts[1].amount, 0.7F) << "sugar knows no efficiency";
    undo(work.editor);
    EXPECT_EQ(work.document.malts[0].amount, 8.1F);
    work.type("efficiency", "50");
    EXPECT_NEAR(work.document.malts[0].amount, 8.1 * 0.75 / 0.5, 1e-6) << "locked to what undo brought back";
    lock_efficiency(work.editor, false);
    work.type("efficiency", "75");
    EXPECT_NE(work.document.og_points, og);
}

TEST(RecipeEditor, TypingKeepsToTheRules) {
    Work work;
    PlainField emptied;
    work.form.type(dynamic_cast<EntryRow&>(work.form.row("batch_size")), emptied);
    EXPECT_EQ(work.document.batch_size, 5) << "a field that is empty for a moment says nothing";
    work.type("efficiency", "3");
    EXPECT_EQ(work.document.efficiency, 0.05F);
    const float ibu = work.document.total_ibu;
    work.type("boil_minutes", "30");
    EXPECT_EQ(work.document.boil_minutes, 30);
    EXPECT_EQ(work.document.total_ibu, ibu) << "bitterness follows with the next other change";
    step_hop(work.editor, Step::more);
    EXPECT_NE(work.document.total_ibu, ibu);
    work.type("title", "Bitter");
    work.form.choose(dynamic_cast<ChoiceRow&>(work.form.row("recipe_kind")), 1);
    EXPECT_EQ(work.document.recipe_kind, RecipeKind::extract);
    EXPECT_EQ(work.document.efficiency, 0.05F) << "blank on the screen, but still there";
    EXPECT_FALSE(work.form.row("efficiency").is_enabled());
    EXPECT_FALSE(work.form.row("mash_schedule").is_enabled());
}

TEST(RecipeEditor, NewLinesStandBeforeTheSelectedOne) {
    Work work;
    MaltRecord wheat;
    wheat.name.assign("Wheat");
    add_malt(work.editor, wheat);
    EXPECT_EQ(work.malt_names(), "Wheat Pilsner Candi ");
    EXPECT_EQ(work.document.malts[0].amount, 0.5F);
    work.editor.view.selected_malt = 2;
    add_malt(work.editor, wheat);
    EXPECT_EQ(work.malt_names(), "Wheat Pilsner Candi Wheat ") << "behind the last";
    EXPECT_EQ(work.editor.view.selected_malt, 3);
    delete_malt(work.editor);
    EXPECT_EQ(work.editor.view.selected_malt, 2);
    work.editor.view.selected_malt = 0;
    delete_malt(work.editor);
    EXPECT_EQ(work.editor.view.selected_malt, 0) << "not above the first";
    while (selected_malt(work.editor)) delete_malt(work.editor);
    EXPECT_EQ(work.document.og_points, 0);
    delete_malt(work.editor); // of an empty list
    add_malt(work.editor, wheat);
    EXPECT_EQ(work.malt_names(), "Wheat ");
}

TEST(RecipeEditor, AmountsStepByTheIncrementAndNeverToNothing) {
    Work work;
    step_hop(work.editor, Step::less);
    EXPECT_EQ(work.document.hops[0].amount, 0.25F);
    step_hop(work.editor, Step::less);
    EXPECT_EQ(work.document.hops[0].amount, 0.25F) << "the increment itself is not taken";
    for (int i = 0; i < 3; ++i) step_extra(work.editor, Step::less);
    EXPECT_FLOAT_EQ(work.document.extras[0].amount, 0.15F);
    for (int i = 0; i < 9; ++i) step_extra(work.editor, Step::less);
    EXPECT_EQ(work.document.extras[0].amount, 0) << "an extra may come to nothing, but not below";
    step_extra_time(work.editor, Step::less);
    EXPECT_EQ(work.document.extras[0].record.time, 0);
}

TEST(RecipeEditor, HopTotalsGoByDifference) {
    Work work;
    auto& document = work.document;
    document.total_ibu += 100; // as after long drifting
    step_hop(work.editor, Step::more);
    EXPECT_NEAR(document.total_ibu, 100 + document.hops[0].ibu + document.hops[1].ibu, 1e-4);
    HopRecord saaz;
    saaz.alpha = 3.5F;
    add_hop(work.editor, saaz);
    EXPECT_EQ(document.hops[0].boil_time, 60);
    EXPECT_NEAR(document.total_ibu, 100 + document.hops[0].ibu + document.hops[1].ibu + document.hops[2].ibu,
                1e-4);
    EXPECT_NEAR(work.figures.total_hop_ounces, 0.75 + 1 + 0.25, 1e-6);
    delete_hop(work.editor);
    EXPECT_NEAR(document.total_ibu, document.hops[0].ibu + document.hops[1].ibu, 1e-4) << "summed anew";
}

TEST(RecipeEditor, BoilTimesStepThroughTheirCodes) {
    Work work;
    auto& time = work.document.hops[0].boil_time;
    const auto walk = [&](int from, Step step, int presses) {
        time = static_cast<std::int16_t>(from);
        std::string seen;
        for (int i = 0; i < presses; ++i) {
            step_boil(work.editor, step);
            seen += std::to_string(time) + ' ';
        }
        return seen;
    };
    EXPECT_EQ(walk(57, Step::more, 3), "61 62 62 ") << "first wort, mash hop, and there it stops";
    EXPECT_EQ(walk(50, Step::more, 3), "55 60 61 ");
    EXPECT_EQ(walk(-5, Step::more, 1), "0 ");
    EXPECT_EQ(walk(62, Step::less, 3), "61 60 55 ");
    EXPECT_EQ(walk(5, Step::less, 3), "0 -5 -5 ") << "a dry hop stays";
    EXPECT_EQ(walk(3, Step::less, 2), "-2 -2 ");
}

TEST(RecipeEditor, ListsSortByTheClickedColumnThenTheOthers) {
    Work work;
    work.document.malts.push_back(malt(MaltType::grain, 1.03F, 0.7F));
    work.name(2, "aromatic");
    work.recalculate();
    work.editor.view.selected_malt = 1; // Candi
    sort_malts(work.editor, 0);
    EXPECT_EQ(work.malt_names(), "aromatic Candi Pilsner ") << "without regard to case";
    sort_malts(work.editor, 0);
    EXPECT_EQ(work.malt_names(), "Pilsner Candi aromatic ");
    EXPECT_EQ(work.editor.view.selected_malt, 1) << "the selection stays with its line";
    sort_malts(work.editor, 4);
    EXPECT_EQ(work.malt_names(), "aromatic Candi Pilsner ") << "0.7 twice: by name";
    EXPECT_EQ(work.editor.view.selected_malt, 1);
    const auto extract = work.figures.lines[2].line_extract;
    EXPECT_GT(extract, work.figures.lines[0].line_extract) << "the figures go with their lines";
    work.document.hops.resize(1);
    sort_hops(work.editor, 2);
    EXPECT_FALSE(work.editor.view.hops_descending[2]) << "nothing to sort: the click does not count";
}

TEST(DocumentHistory, TypingMakesOneStep) {
    Work work;
    const auto original = work.document;
    work.type("title", "Bitter");
    work.type("title", "Stout");
    EXPECT_TRUE(undo(work.editor));
    EXPECT_EQ(work.document.title.view(), "Bitter") << "a field that was left begins a new step";
    EXPECT_EQ(work.editor.history.to_redo(), "Recipe Name");
    EXPECT_TRUE(redo(work.editor));
    EXPECT_EQ(work.document.title.view(), "Stout");
    undo(work.editor);
    undo(work.editor);
    EXPECT_EQ(work.document, original);
    EXPECT_FALSE(undo(work.editor));
    PlainField field;
    for (const char* text : {"9", "5"}) { // there and back in one go
        field.content = text;
        work.form.type(dynamic_cast<EntryRow&>(work.form.row("batch_size")), field);
    }
    EXPECT_EQ(work.editor.history.to_undo(), "") << "nothing has changed";
    work.type("title", "Bitter");
    for (const char* text : {"9", "5", "9"}) {
        field.content = text;
        work.form.type(dynamic_cast<EntryRow&>(work.form.row("batch_size")), field);
    }
    undo(work.editor);
    EXPECT_EQ(work.document.title.view(), "Bitter") << "what is typed after that is a step of its own";
}

TEST(DocumentHistory, PagesAreOneStepAndSavesAreNone) {
    Work work;
    delete_extra(work.editor);
    work.document.notes.assign("Lagered.");
    end_page(work.editor, "Extras & Notes");
    EXPECT_EQ(work.editor.history.to_undo(), "Extras & Notes");
    work.document.mash_flags |= 0x20; // a save left its mark
    work.document.file_efficiency_mode = 2;
    work.type("title", "Helles");
    undo(work.editor);
    undo(work.editor);
    EXPECT_EQ(work.document.extras.size(), 1U);
    EXPECT_EQ(work.document.notes.view(), "");
    EXPECT_EQ(work.document.mash_flags, 0x20);
    EXPECT_EQ(work.document.file_efficiency_mode, 2);
    EXPECT_FALSE(undo(work.editor));
    work.document.notes.assign("Half typed"); // on a page that is still open
    step_malt(work.editor, Step::more);
    undo(work.editor);
    EXPECT_EQ(work.document.notes.view(), "Half typed") << "undo takes back the step alone";
}

TEST(DocumentHistory, LeavesALineSelectedAndSeesNoChangeInNonsense) {
    Work work;
    work.editor.view.selected_malt = 1;
    add_malt(work.editor, {});
    EXPECT_EQ(work.editor.view.selected_malt, 2);
    undo(work.editor);
    EXPECT_EQ(work.editor.view.selected_malt, 1) << "the new line is gone";
    work.document.malts[0].amount = std::numeric_limits<float>::quiet_NaN(); // of a damaged file
    start_editing(work.editor, work.editor.view);
    const auto saved = snapshot_document(work.editor.open, SnapshotScope::with_schedule);
    edit(work.editor, "Nothing", [] {});
    EXPECT_EQ(work.editor.history.to_undo(), "");
    EXPECT_FALSE(document_changed(work.editor.open, saved));
}

TEST(RecipePages, CancelPutsBackWhatThePageFound) {
    Work work;
    Form extras;
    extras_form(extras, work.editor, {});
    delete_extra(work.editor);
    type(extras, "notes", "Good.");
    extras.cancel();
    EXPECT_EQ(work.document.extras.size(), 1U);
    EXPECT_EQ(work.document.notes.view(), "");
    ExtraUse days;
    days.record.time = 14;
    days.record.extra_type = ExtraType::fruit;
    days.record.amount_unit = AmountUnit::tablespoon;
    days.amount = 1.5F;
    EXPECT_EQ(extra_cell(days, 1) + "|" + extra_cell(days, 2) + "|" + extra_cell(days, 3),
              "Fruit| 14 Day(s)|1.50 Tbsp");
    Form yeast;
    yeast_water_form(yeast, work.editor, {});
    work.document.yeast.record.name.assign("Kveik");
    work.document.yeast.record.optimum_temperature = 95;
    EXPECT_EQ(content_of(yeast, "celsius"), "35.0");
    yeast.cancel();
    EXPECT_TRUE(work.document.yeast.record.name.empty());
}

TEST(RecipeEditor, AStyleBringsItsBitterness) {
    Work work;
    StyleRecord style;
    style.name.assign("Bitter");
    style.min_ibu = 25;
    style.max_ibu = 40;
    set_style(work.editor, style);
    EXPECT_EQ(work.document.target_ibu, 32) << "32.5, cut";
    EXPECT_EQ(work.editor.history.to_undo(), "Style");
}

} // namespace
} // namespace wortlex
