#include "calculators/time_sheet.h"
#include "support/fixed_clock.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/scripted_user.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace wortlex {
namespace {

constexpr std::int32_t start_of_day = 1700000000; // 22:13:20 UTC
constexpr auto stop_question = "Are you sure you want to stop recording time increments and comments?";
constexpr auto kept_question = "A time line was left before it was saved.\nDo you want to go on with it? No "
                               "discards it, Cancel asks again the next time.";

// A brew day: the sheet, its clock, and the comments that the brewer gives, in order.
struct BrewDay : ScriptedUser {
    std::string title;
    FixedClock clock;
    std::deque<std::optional<std::string>> comments;
    std::function<void()> while_asked = [] {};

    BrewDay() {
        ::setenv("TZ", "UTC", 1);
        ::tzset();
        clock.seconds = start_of_day;
    }
    TimeSheet sheet() {
        const auto comment = [this](std::string_view) {
            while_asked();
            auto next = comments.front();
            comments.pop_front();
            return next;
        };
        return TimeSheet({folder.path(), folders, files, prompts, clock, comment, [this] { return title; }});
    }
    void after(int seconds, TimeSheet& sheet) {
        clock.seconds += seconds;
        sheet.tick();
    }
    void expect_stop(Answer answer) { prompts.expect_yes_no(stop_question, answer); }
    void expect_save(Answer answer) { prompts.expect_save("time line", answer); }
    bool is_kept() const { return is_time_line_kept(folder.path()); }
};

std::string lines_of(const TimeSheet& sheet) {
    std::string all;
    for (std::size_t i = 0; i < sheet.line_count(); ++i)
        all += sheet.cell(i, 0) + " " + sheet.cell(i, 1) + " " + sheet.cell(i, 2) + "\n";
    return all;
}

TEST(TimeSheet, TheLiveLineBecomesAnEventAtTheMomentOfTheCall) {
    BrewDay day;
    auto sheet = day.sheet();
    day.comments = {"mash in", "sparge", std::nullopt};
    sheet.start();
    day.after(3600, sheet);
    EXPECT_EQ(lines_of(sheet), "22:13:20 00:00:00 mash in\n23:13:20 01:00:00 \n");
    sheet.selected = 0;
    sheet.tick();
    EXPECT_EQ(sheet.selected, 1) << "back to the live line";
    day.while_asked = [&] { day.after(30, sheet); };
    sheet.comment();
    EXPECT_EQ(lines_of(sheet), "22:13:20 00:00:00 mash in\n23:13:20 01:00:00 sparge\n23:13:50 01:00:30 \n");
    sheet.comment(); // left
    day.after(3600, sheet);
    EXPECT_EQ(sheet.cell(2, 1), "01:00:30") << "stands still";
    EXPECT_EQ(sheet.face(), "02:01:00") << "goes on";
    day.while_asked = [] {};
    day.comments = {"boil"};
    sheet.comment();
    day.after(23 * 3600, sheet);
    EXPECT_EQ(sheet.cell(3, 1), "01:01:00") << "wraps after a day";
    sheet.erase();
    EXPECT_EQ(sheet.line_count(), 4U) << "nothing goes while it is running";
    day.expect_stop(Answer::no);
    sheet.stop();
    EXPECT_TRUE(sheet.is_running());
    day.expect_stop(Answer::yes);
    sheet.stop();
    EXPECT_EQ(std::pair(sheet.line_count(), sheet.selected), std::pair(std::size_t{3}, 2));
}

TEST(TimeSheet, ADayThatNeverBeganIsNotRunning) {
    BrewDay day;
    auto sheet = day.sheet();
    day.comments = {std::nullopt};
    sheet.start();
    EXPECT_FALSE(sheet.is_running());
    EXPECT_TRUE(sheet.may_start());
    sheet.stop();
    sheet.comment();
    sheet.erase();
    EXPECT_EQ(sheet.line_count(), 0U);
    EXPECT_TRUE(sheet.may_close());
    EXPECT_FALSE(day.is_kept());
}

TEST(TimeSheet, ClosingLosesNothing) {
    BrewDay day;
    auto sheet = day.sheet();
    day.comments = {"mash in"};
    sheet.start();
    day.expect_stop(Answer::no);
    EXPECT_FALSE(sheet.may_close());
    day.expect_stop(Answer::yes);
    day.expect_save(Answer::cancel);
    EXPECT_FALSE(sheet.may_close());
    EXPECT_TRUE(sheet.is_running()) << "as it was";
    day.title = "Porch 1/2 Ale";
    day.clock.date = {22, 11, 2026};
    day.expect_stop(Answer::yes);
    day.expect_save(Answer::yes);
    day.files.add(std::nullopt);
    EXPECT_FALSE(sheet.may_close()) << "the file dialog was left";
    EXPECT_TRUE(day.is_kept() && sheet.is_running());
    EXPECT_THAT(day.files.offers.back(), testing::HasSubstr("Porch 1_2 Ale 2026-11-22.tml"));
    day.expect_stop(Answer::yes);
    day.expect_save(Answer::yes);
    day.files.add(day.folder.path() + "day.tml");
    EXPECT_TRUE(sheet.may_close());
    EXPECT_FALSE(day.is_kept());

    auto loaded = day.sheet();
    day.files.add(day.folder.path() + "day.tml");
    loaded.load();
    EXPECT_EQ(lines_of(loaded), "22:13:20 00:00:00 mash in\n");
    EXPECT_FALSE(loaded.may_start());
    day.comments = {"mash in at 67 C"};
    loaded.comment();
    EXPECT_EQ(loaded.cell(0, 2), "mash in at 67 C");
    loaded.erase();
    EXPECT_TRUE(loaded.may_start()) << "nothing is left of the file";
    EXPECT_TRUE(loaded.may_close());
}

TEST(TimeSheet, ABrokenDayIsOfferedAgain) {
    BrewDay day;
    {
        auto broken = day.sheet();
        day.comments = {"mash in", "sparge"};
        broken.start();
        day.after(60, broken);
        broken.comment();
    }
    const auto offered = [&](Answer answer) {
        day.prompts.expect("yes/no/cancel", kept_question, answer, Icon::question);
        auto sheet = day.sheet();
        sheet.offer_kept();
        return lines_of(sheet);
    };
    EXPECT_EQ(offered(Answer::cancel), "");
    auto other = day.sheet();
    day.comments = {"another brew"};
    other.start();
    day.expect_stop(Answer::yes);
    day.expect_save(Answer::no);
    EXPECT_TRUE(other.may_close());
    EXPECT_EQ(offered(Answer::yes), "22:13:20 00:00:00 mash in\n22:14:20 00:01:00 sparge\n");
    EXPECT_EQ(offered(Answer::no), "");
    EXPECT_FALSE(day.is_kept());
    day.sheet().offer_kept(); // asks nothing
}

TEST(TimeSheet, IsKeptUntilAnotherIsReallyLoadedAndTellsOnceWhereItCannotBe) {
    BrewDay day;
    auto sheet = day.sheet();
    day.comments = {"mash in", "sparge", "boil"};
    sheet.start();
    day.expect_stop(Answer::yes);
    sheet.stop();
    day.expect_save(Answer::no);
    day.files.add(std::nullopt);
    sheet.load();
    EXPECT_TRUE(day.is_kept()) << "the file dialog was left";
    const auto kept = day.folder.path() + "WlxTime.rcv";
    const auto old = day.folder.path() + "old.tml";
    std::filesystem::copy_file(kept, old);
    std::filesystem::remove(kept);
    std::filesystem::create_directories(kept + "/in the way");
    day.prompts.expect_tell("The time line cannot be kept against a crash: the data folder cannot be "
                            "written.\nSave it when you stop.",
                            Icon::warning);
    for (int i = 0; i < 2; ++i) sheet.comment();
    EXPECT_EQ(sheet.cell(0, 2), "boil");
    std::filesystem::remove_all(kept);
    day.expect_save(Answer::no);
    day.files.add(old);
    sheet.load();
    EXPECT_EQ(sheet.cell(0, 2), "mash in");
    EXPECT_TRUE(sheet.may_close()) << "nothing is left to be saved";
}

TEST(TimeSheet, TakesNoMoreLinesThanItsFileHolds) {
    BrewDay day;
    auto sheet = day.sheet();
    day.comments.assign(300, "event");
    sheet.start();
    for (int i = 0; i < 299; ++i) sheet.comment();
    EXPECT_EQ(sheet.line_count(), 249U);
    day.expect_stop(Answer::yes);
    sheet.stop();
    sheet.start();
    sheet.comment();
    EXPECT_EQ(sheet.line_count(), 249U) << "once more, with its live line";
    EXPECT_EQ(time_line_bytes(sheet.line()).size(), time_line_size);
}

TEST(TimeLineFile, StandsAtItsOffsetsAndDistrustsItsCount) {
    TimeLine line;
    line.entries.resize(2);
    line.entries[0].moment = 0x01020304;
    line.entries[1].comment.assign("sparge");
    line.path.assign("/brew/day.tml");
    auto file = time_line_bytes(line);
    ASSERT_EQ(file.size(), 261759U);
    const auto text_at = [&](std::size_t offset) {
        return reinterpret_cast<const char*>(file.data() + offset);
    };
    EXPECT_EQ(get_little_endian<std::int32_t>(&file[4]), 0x01020304);
    EXPECT_STREQ(text_at(4 + 1046 + 4), "sparge");
    EXPECT_STREQ(text_at(261504), "/brew/day.tml");
    EXPECT_EQ(time_line_bytes(*read_time_line(file)), file);
    const auto cut = read_time_line(ByteView(file).first(4 + 1046 + 7));
    ASSERT_EQ(cut->entries.size(), 2U);
    EXPECT_EQ(cut->entries[1].comment.view(), "spa");
    EXPECT_EQ(read_time_line(ByteView(file).first(1000))->entries.size(), 1U);
    for (const std::int32_t count : {-1, 251, 1 << 30}) {
        put_little_endian(count, file.data());
        EXPECT_FALSE(read_time_line(file));
    }
}

TEST(TimeLineFile, ADamagedOneIsNamedAndNothingIsLoaded) {
    BrewDay day;
    auto sheet = day.sheet();
    const auto path = day.folder.path() + "old.tml";
    std::ofstream(path) << "\xff\xff\xff\xff";
    day.files.add(path);
    day.prompts.expect_tell("old.tml is damaged and cannot be loaded.", Icon::warning);
    sheet.load();
    day.files.add(day.folder.path() + "none.tml");
    day.prompts.expect_tell("File Not Found!", Icon::error);
    sheet.load();
    EXPECT_TRUE(sheet.may_start());
}

TEST(TimeLinePrintout, RepeatsItsHeadAtEveryPage) {
    TimeLine line;
    line.entries.resize(120);
    for (auto& entry : line.entries) entry.comment.assign("event");
    line.entries[119].moment = 3723;
    RecordingPageDesk desk;
    desk.show(time_line_printout(line, Settings()));
    const auto last = texts_on(desk.jobs[0], desk.jobs[0].pages.size() - 1);
    EXPECT_THAT(last, testing::Contains(testing::HasSubstr("Time\tWatch\tComment")));
    EXPECT_THAT(last.back(), testing::HasSubstr("01:02:03\t01:02:03\tevent"));
}

} // namespace
} // namespace wortlex
