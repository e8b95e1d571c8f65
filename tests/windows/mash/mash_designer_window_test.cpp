#include "support/kitchen.h"

#include "records/mash/schedule_file.h"
#include "windows/documents/document_designer_window.h"
#include "windows/mash/mash_designer_window.h"

namespace wortlex {
namespace {

constexpr const char* unsaved_schedule =
    "The current mash schedule has been modified!\nDo you want to save the changes?";

template <class Window>
Window* open_window() {
    for (auto* const widget : QApplication::topLevelWidgets())
        if (auto* const window = dynamic_cast<Window*>(widget); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

// Figures of one step, typed behind the other as the fields follow each other.
struct TypedStep {
    const char* name;
    std::vector<const char*> figures;
    const char* thickness = nullptr; ///< the button of a decoction
};

void add_step(const TypedStep& step) {
    auto* const window = QApplication::activeWindow();
    bool is_named = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, window, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isActiveWindow()) return;
        user.stop();
        auto* const name = dialog->findChild<QLineEdit*>("name");
        type_over(*name, step.name);
        if (step.thickness != nullptr) QTest::keyClick(name, Qt::Key_E, Qt::AltModifier);
        is_named = true;
        QTest::keyClick(name, Qt::Key_Return);
    });
    user.start(1);
    Kitchen::press(Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return is_named; }));
    Kitchen::activate(window);
    EXPECT_TRUE(QTest::qWaitFor([] {
        const auto* const focus = QApplication::focusWidget();
        return focus != nullptr && focus->objectName() == QLatin1String("start_temp") &&
               focus->findChild<QLineEdit*>()->hasSelectedText();
    }));
    for (const auto* const figure : step.figures) {
        Kitchen::type(figure);
        Kitchen::press(Qt::Key_Tab);
    }
    if (step.thickness == nullptr) return;
    Kitchen::tab_to(step.thickness);
    Kitchen::press(Qt::Key_Space);
}

struct Published {
    const char *name, *grain, *ratio;
    std::vector<TypedStep> steps;
    std::int32_t strike;
    std::vector<float> quarts;
    const char* gallons;
};

TEST(MashDesignerWindow, TakesPublishedSchedulesByKeyboardAlone) {
    // 40, 60 and 70 degrees Celsius by water of 210 F, with a quart a pound: (140 - 104) x (1.6 + 8) / 70
    // quarts, then (158 - 140) x (1.6 + 12.937) / 52; the strike is 0.2 x (104 - 70) + 104.
    const Published step_infusion{"40-60-70",
                                  "8",
                                  "1",
                                  {{"Acid Rest", {"104", "104", "5", "20"}},
                                   {"Beta Rest", {"140", "140", "10", "40", "210"}},
                                   {"Alpha Rest", {"158", "158", "10", "40", "210"}}},
                                  110,
                                  {8, 4.93714F, 5.03209F},
                                  "5.13"};
    // A double decoction. A quart of thick mash holds 1 / 0.965 pounds of grain and 0.65 quarts of water for
    // each: over 68 degrees it gives 68 x (0.4 + 0.65 x 2.07) / 0.965, and 16 x (10 x 0.4 + 4.375 x 8.3357)
    // are needed. A thin one gives 52 x (0.4 + 1.5 x 2.07) / 1.815, for 9 degrees.
    const Published double_decoction{"Hochkurz",
                                     "10",
                                     "1.75",
                                     {{"Maltose Rest", {"144", "144", "5", "35"}},
                                      {"Dextrins", {"160", "160", "20", "30", "212"}, "thick"},
                                      {"Mash Out", {"169", "169", "15", "10", "212"}, "thin"}},
                                     152,
                                     {17.5F, 5.26426F, 3.62699F},
                                     "5.18"};
    Kitchen kitchen;
    kitchen.program.settings.grain_temperature = 70;
    for (const auto& published : {step_infusion, double_decoction}) {
        kitchen.main->commands().start(command::mash_designer);
        auto* const window = open_window<MashDesignerWindow>();
        ASSERT_NE(window, nullptr);
        Kitchen::activate(window);
        for (const auto& [key, text] :
             {std::pair("grain", published.grain), std::pair("ratio", published.ratio),
              std::pair("mash_name", published.name)}) {
            Kitchen::tab_to(key);
            Kitchen::type(text);
        }
        for (const auto& step : published.steps) add_step(step);
        EXPECT_EQ(text_of(*window, "total_volume"), published.gallons);
        const auto path = kitchen.folder / published.name + ".msh";
        kitchen.files.add(path);
        kitchen.prompts.expect("yes/no/cancel", unsaved_schedule, Answer::yes, Icon::question);
        Kitchen::press(Qt::Key_Escape);
        EXPECT_EQ(open_window<MashDesignerWindow>(), nullptr);
        MashDesign saved;
        ASSERT_EQ(LoadMashSchedule(path, saved, kitchen.program.settings), ScheduleLoad::loaded);
        const auto steps = saved.mash.used_steps();
        ASSERT_EQ(steps.size(), published.quarts.size());
        EXPECT_EQ(steps[0].infuse_temperature, published.strike);
        for (std::size_t i = 0; i < steps.size(); ++i)
            EXPECT_NEAR(steps[i].amount, published.quarts[i], 1e-4) << steps[i].name.view();
        EXPECT_EQ(
            std::pair(steps[1].step_minutes, steps[2].rest_minutes),
            std::pair(std::atoi(published.steps[1].figures[2]), std::atoi(published.steps[2].figures[3])));
    }
}

// A recipe of ten pounds, or a session of it, whose simple schedule has been left for the complex one.
struct Designing : Kitchen {
    BrewDocument& document = program.document.recipe;
    DocumentDesignerWindow* designer = nullptr;

    Designing() {
        begin();
        tab_to("malts");
        pick_by(Qt::Key_Insert);
        document.malts[0].amount = 10;
        tab_to("malts");
        press(Qt::Key_Plus);
        press(Qt::Key_Minus);
        open(true);
    }
    void open(bool by_simple) {
        recipe->findChild<QPushButton*>("mash_schedule")->click();
        if (by_simple) open_window<SimpleMashWindow>()->findChild<QPushButton*>("revert")->click();
        designer = open_window<DocumentDesignerWindow>();
        ASSERT_NE(designer, nullptr);
        activate(designer);
    }
    void undo_in_recipe() const { recipe->findChild<QAction*>("undo")->trigger(); }
};

TEST(DocumentDesigner, OkIsOneStepAndUndoBeginsInTheDesigner) {
    Designing kitchen;
    auto& document = kitchen.document;
    EXPECT_TRUE(has_complex_schedule(document));
    add_step({"Dough In", {"150"}});
    add_step({"Mash Out", {"168"}});
    EXPECT_EQ(document.mash.step_count, 2) << "the recipe follows every keystroke";
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.steps[1].start_temperature, 150) << "as the step came";
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.step_count, 1);
    kitchen.recipe->findChild<QAction*>("redo")->trigger();
    EXPECT_EQ(document.mash.step_count, 2);
    press(*kitchen.designer, "ok");
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.step_count, 0);
    EXPECT_TRUE(has_complex_schedule(document));
    kitchen.recipe->findChild<QAction*>("redo")->trigger();
    EXPECT_EQ(document.mash.steps[0].start_temperature, 150);
    kitchen.document.malts.clear();
    kitchen.prompts.expect("yes/no/cancel",
                           "The current recipe has been modified!\nDo you want to save the changes?",
                           Answer::no, Icon::question);
    kitchen.recipe->close();
}

TEST(DocumentDesigner, CancelPutsBackAndRevertLosesNothing) {
    Designing kitchen;
    auto& document = kitchen.document;
    add_step({"Dough In", {"150"}});
    const auto water = document.simple_mash.dough_in_water;
    type_over(*line_of(*kitchen.designer->findChild<QWidget*>("dough_in")), "25");
    EXPECT_EQ(document.simple_mash.dough_in_water, 25);
    kitchen.answer_page(Answer::cancel);
    Kitchen::press(Qt::Key_Escape);
    EXPECT_EQ(document.mash.step_count, 1);
    kitchen.answer_page(Answer::no);
    Kitchen::press(Qt::Key_Escape);
    EXPECT_EQ(document.mash.step_count, 0);
    EXPECT_EQ(document.simple_mash.dough_in_water, water);
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.step_count, 1) << "cancelled by mistake";
    kitchen.open(false);
    Kitchen::press(Qt::Key_Escape);
    EXPECT_EQ(open_window<DocumentDesignerWindow>(), nullptr) << "nothing was changed, nothing is asked";
    kitchen.open(false);
    press(*kitchen.designer, "revert");
    EXPECT_FALSE(has_complex_schedule(document));
    EXPECT_EQ(open_window<DocumentDesignerWindow>(), nullptr);
    auto* const simple = open_window<SimpleMashWindow>();
    ASSERT_NE(simple, nullptr);
    EXPECT_EQ(text_of(*simple, "quarts"), "25.00");
    press(*simple, "revert");
    EXPECT_TRUE(has_complex_schedule(document));
    EXPECT_EQ(document.mash.steps[0].start_temperature, 150);
    kitchen.prompts.expect("yes/no/cancel",
                           "The current recipe has been modified!\nDo you want to save the changes?",
                           Answer::no, Icon::question);
    kitchen.recipe->close();
    EXPECT_EQ(open_window<DocumentDesignerWindow>(), nullptr);
}

TEST(DocumentDesigner, FollowsTheRecipeAndWhatIsUndoneThere) {
    Designing kitchen;
    auto& document = kitchen.document;
    type_over(*line_of(*kitchen.designer->findChild<QWidget*>("dough_in")), "15");
    add_step({"Dough In", {"150"}});
    kitchen.activate(kitchen.recipe);
    auto& malts = *kitchen.recipe->findChild<QWidget*>("malts");
    const float increment = kitchen.program.settings.grain_increment;
    QTest::keyClick(&malts, Qt::Key_Plus);
    EXPECT_FLOAT_EQ(document.simple_mash.dough_in_water, (10 + increment) * 1.5F);
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.simple_mash.dough_in_water, 15) << "the malt with its water";
    EXPECT_EQ(document.mash.step_count, 1);
    EXPECT_EQ(text_of(*kitchen.designer, "grain").trimmed(), "10.00");
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.step_count, 0) << "what the recipe held as the malt was added";
    EXPECT_FALSE(kitchen.designer->findChild<QPushButton*>("delete_step")->isEnabled());
    kitchen.undo_in_recipe();
    EXPECT_FALSE(has_complex_schedule(document));
    EXPECT_EQ(open_window<DocumentDesignerWindow>(), nullptr) << "nothing is left to design";
    kitchen.prompts.expect("yes/no/cancel",
                           "The current recipe has been modified!\nDo you want to save the changes?",
                           Answer::no, Icon::question);
    kitchen.recipe->close();
}

} // namespace
} // namespace wortlex
