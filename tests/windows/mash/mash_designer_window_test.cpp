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
};

void add_step(const TypedStep& step) {
    auto* const window = QApplication::activeWindow();
    bool is_named = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, window, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        user.stop();
        auto* const name = dialog->findChild<QLineEdit*>("name");
        type_over(*name, step.name);
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
}

TEST(MashDesignerWindow, DesignsAndKeepsAScheduleByKeyboardAlone) {
    Kitchen kitchen;
    kitchen.program.settings.grain_temperature = 70;
    kitchen.main->commands().start(command::mash_designer);
    auto* const window = open_window<MashDesignerWindow>();
    ASSERT_NE(window, nullptr);
    Kitchen::activate(window);
    add_step({"Dough In", {"122", "122", "5", "20"}});
    add_step({"Saccharification", {"152", "152", "5", "60", "212"}});
    Kitchen::tab_to("mash_name");
    Kitchen::type("Step");
    const auto path = kitchen.folder / "Step.msh";
    kitchen.files.add(path);
    kitchen.prompts.expect("yes/no/cancel", unsaved_schedule, Answer::yes, Icon::question);
    Kitchen::press(Qt::Key_Escape);
    EXPECT_EQ(open_window<MashDesignerWindow>(), nullptr);
    MashDesign saved;
    ASSERT_EQ(LoadMashSchedule(path, saved, kitchen.program.settings), ScheduleLoad::loaded);
    ASSERT_EQ(saved.mash.step_count, 2);
    EXPECT_EQ(saved.mash.steps[0].start_temperature, 122);
    EXPECT_EQ(saved.mash.steps[0].rest_minutes, 20);
    EXPECT_EQ(saved.mash.steps[1].stop_temperature, 152);
    EXPECT_NEAR(saved.mash.steps[1].amount, 6, 0.01) << "(152 - 122) x (2 + 10) / (212 - 152) quarts";
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
    Kitchen::press(Qt::Key_Escape);
    EXPECT_EQ(document.mash.step_count, 0);
    EXPECT_EQ(document.simple_mash.dough_in_water, water);
    kitchen.undo_in_recipe();
    EXPECT_EQ(document.mash.step_count, 1) << "cancelled by mistake";
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
