#include "databases/hops.h"
#include "program/program.h"
#include "support/measured_in.h"
#include "support/recording_desk.h"
#include "support/scripted_user.h"
#include "windows/databases/list_window.h"
#include "windows/documents/simple_mash_printout.h"
#include "windows/documents/simple_mash_window.h"

#include <gmock/gmock.h>

#include <QPushButton>

namespace wortlex {
namespace {

using testing::IsSupersetOf;

QPushButton& print_button(const QWidget& window) {
    return *window.findChild<QPushButton*>("print");
}

TEST(ListWindowPrint, ShowsListAndEntry) {
    ScriptedUser user;
    Settings settings;
    ToolPositions positions;
    NoticeBoard notices;
    RecordingPageDesk desk;
    Database<HopRecord> hops;
    const auto list = hop_list({ListSide::pick, settings, user.folder.path()}, hops);
    EXPECT_FALSE(dynamic_cast<ButtonRow&>(list->new_entry(user.prompts)->form.row("print")).press)
        << "no desk";
    list->print = [&desk](const PrintRequest& request) { desk.show(request); };
    const ListPorts ports{{positions, settings, notices}, user.files, user.prompts};
    const ListWindow window(*list, ports, Opener::main, nullptr, nullptr);
    print_button(window).click();
    dynamic_cast<ButtonRow&>(list->new_entry(user.prompts)->form.row("print")).press();
    ASSERT_EQ(desk.jobs.size(), 2U);
    EXPECT_EQ(desk.jobs[0].document_name, "Wortlex Hop List - All Hops");
    EXPECT_EQ(desk.jobs[1].document_name, "Wortlex Hop Detail");
}

TEST(SimpleMashPrint, TellsTheScheduleUnderWork) {
    Program program;
    ScriptedPrompts prompts;
    auto& settings = program.settings;
    measure_in(settings, Units::american);
    settings.grain_water_volume = 1.32F;
    settings.printer_scale = 0.75F;
    program.document.recipe.title.assign("Stout");
    program.document.recipe.simple_mash.dough_in_water = 99;
    SimpleMashWork work{.mash = {}, .ratio = 1.2F, .grain = 10};
    work.mash.mash_kind = MashKind::single_step;
    work.mash.dough_in_water = 12;
    work.mash.saccharification = {.temperature = 155, .minutes = 60};
    RecordingPageDesk desk;
    const auto print = [&](const SimpleMashWork& planned) {
        desk.show(simple_mash_printout(live_document(program), program.color_table, planned));
    };
    SimpleMashWindow window(work, settings, MashSide::recipe,
                            {.mash_grain = nullptr,
                             .accepted = nullptr,
                             .save = nullptr,
                             .revert_to_complex = nullptr,
                             .print = print},
                            prompts, places(program), nullptr);
    print_button(window).click();
    EXPECT_THAT(
        lines_on(desk.jobs.front(), 0),
        IsSupersetOf({"Wortlex Recipe - Mash Details Printout", "Recipe:\tStout", "Mash Type:\tSingle Step",
                      "Grain Lbs:\t10.00", "Water Qts:\t12.00 - Before Additional Infusions",
                      "Saccharification Rest Temp:\t155\tTime:\t60",
                      "Total Mash Volume Gal:\t3.80 - After Additioanl Infusions"}));
    EXPECT_EQ(program.document.recipe.simple_mash.dough_in_water, 99) << "the document has not taken it over";
}

} // namespace
} // namespace wortlex
