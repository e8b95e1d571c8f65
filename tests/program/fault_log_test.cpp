#include "program/fault_log.h"

#include "support/file_content.h"
#include "support/form_user.h"
#include "support/recording_clipboard.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string only_line(const FaultLog& log) {
    auto text = log.text();
    EXPECT_EQ(text.find('\n'), text.size() - 1) << text;
    return text;
}

TEST(FaultLog, TellsNothingOfTheBrewer) {
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {"Anna's Ale.rec is damaged.", "Anna's Ale.rec", "  *.rec is damaged.\n"},
        {"File Not Found!", "/home/anna/Ale.brw", "  File Not Found! (*.brw)\n"},
        {"File Not Found!", "/home/anna/No. 7 of Anna", "  File Not Found! (...)\n"},
        {"It is in\n/home/anna/my ales/", "/home/anna/my ales/", "  It is in ...\n"},
        {"cannot rename: [/home/anna/a b] [x]", "", "  cannot rename: [...\n"},
        {"The disk is full, and/or read-only.", "", "  The disk is full, and/or read-only.\n"},
    };
    for (const auto& [text, own, noted] : rows) {
        const TemporaryFolder folder;
        const FaultLog log(folder / "state/wortlex/wortlex.log");
        log.note(text, own);
        EXPECT_THAT(only_line(log), EndsWith(noted));
        EXPECT_THAT(log.text(), HasSubstr("  Wortlex Version 1.8.A  "));
        EXPECT_THAT(log.text(), Not(HasSubstr("nna"))) << text;
    }
}

TEST(FaultLog, NotesWhatIsToldOfFaultsAndPassesAllOn) {
    const TemporaryFolder folder;
    const FaultLog log(folder / "log");
    ScriptedPrompts user;
    NotedPrompts prompts(user, log);
    user.expect_tell("All is well.", Icon::information);
    user.expect("yes/no", "Really?", Answer::yes, Icon::warning);
    user.expect_tell("It needs a name.", Icon::warning);
    user.expect_tell("It failed.", Icon::error);
    prompts.tell({.text = "All is well.", .icon = Icon::information});
    EXPECT_EQ(prompts.ask_yes_no({.text = "Really?", .icon = Icon::warning}), Answer::yes);
    prompts.tell({.text = "It needs a name.", .icon = Icon::warning, .is_advice = true});
    prompts.tell({.text = "It failed.", .icon = Icon::error});
    EXPECT_THAT(only_line(log), EndsWith("  It failed.\n"));
}

TEST(FaultLog, LosesItsOldestLinesAndIsReadFromTheLast) {
    const TemporaryFolder folder;
    const FaultLog log(folder / "log");
    std::string old;
    while (old.size() < largest_log) old += "old line\n";
    write_content(log.path(), "first line\n" + old);
    log.note("second");
    log.note("third");
    EXPECT_LE(log.text().size(), largest_log);
    EXPECT_THAT(log.text(), StartsWith("old line\nold line\n"));
    FormUser user;
    RecordingClipboard clipboard;
    log_form(user.form, log, clipboard);
    const auto shown = user.shown("log");
    EXPECT_LT(shown.find("third"), shown.find("second"));
    user.press("copy");
    EXPECT_THAT(clipboard.texts, testing::ElementsAre(EndsWith("third\n")));
}

} // namespace
} // namespace wortlex
