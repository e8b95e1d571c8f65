#include "page/page.h"
#include "page/text_sink.h"
#include "support/file_content.h"
#include "support/recording_clipboard.h"
#include "support/recording_desk.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

// On plain paper: margin 45, a line 22 dots, of a title 33, of a paragraph 20; the first at 113, the end at
// 1000.
PageJob recorded(const Report& report, float scale = 1, const Paper& paper = plain_paper(),
                 Extent character = {8, 10}) {
    RecordingSurface measure;
    measure.character = character;
    return record_report({"A Report", scale, report}, paper, measure).value_or(PageJob{});
}

void lines(PageContext& page, int count) {
    for (int i = 0; i < count; ++i) page.Line("line");
}

TEST(Page, PutsHeadersTitlesAndTabsWhereTheyBelong) {
    const auto job = recorded([](PageContext& page) {
        page.SetHeader(0, "Wortlex");
        page.SetHeader(2, "Sub");
        page.SetHeader(3, "gone");
        page.SetHeader(3, std::nullopt);
        page.TabbedLine({100, 200}, "a\tb\tc");
        page.SelectFont(PageFont::title);
        page.Line("Big");
        page.Line("small again");
    });
    EXPECT_THAT(texts_on(job, 0), ElementsAre("113 Wortlex", "113 @584 Page 1", "168 Sub", "190 a\tb\tc",
                                              "212 Big", "245 small again"));
    const auto calls = calls_on(job, 0);
    EXPECT_EQ(calls.at(0), "font Arial 21 0 700 italic");
    EXPECT_THAT(calls, Contains("tabbed 0,190 [45,145,245] \ta\tb\tc"));
    EXPECT_THAT(calls, Contains("font Arial 21 0 700 "));
    EXPECT_EQ(calls.at(calls.size() - 3), "font Arial 14 0 400 ") << "one line, then the body again";
}

TEST(Page, CentresBetweenTheMarginsAndCutsToColumns) {
    const auto centred = [](std::string text, float scale, const Paper& paper) {
        return texts_on(recorded([&](PageContext& page) { page.CentredLine(text); }, scale, paper), 0);
    };
    // 640 dots less ten letters of 8, halved; the scale of the printer does not move the middle.
    for (const float scale : {1.0F, 0.5F})
        EXPECT_THAT(centred("ten is ten", scale, plain_paper()), ElementsAre("113 @280 ten is ten"));
    const Paper lying{.sheet = {1100, 660}, .area = {1000, 640}, .top_offset = 10, .is_landscape = true};
    EXPECT_THAT(centred("ten is ten", 1, lying), ElementsAre("113 @460 ten is ten"));

    // 100 dots less the gap of 4: 12 letters of 8 just fit. A figure of 4 ends at the margin and 240.
    const auto cut = [](std::string text, PageColumn next) {
        const PageColumn columns[] = {{60}, next, {200, false, 240}};
        return recorded([&](PageContext& page) { page.TableLine(columns, {text, "", "5.00 gal"}); });
    };
    EXPECT_THAT(calls_on(cut("twelve chars", {160}), 0),
                Contains("tabbed 0,113 [105,205,253] \ttwelve chars\t\t5.00 gal"));
    EXPECT_THAT(texts_on(cut("twelve chars.", {160}), 0), ElementsAre("113 twelve chars\t\t5.00 gal"));
    EXPECT_THAT(texts_on(cut("W\u00FCrze", {80}), 0), ElementsAre("113 W\t\t5.00 gal")) << "no half a letter";
    EXPECT_THAT(texts_on(cut("none", {50}), 0), ElementsAre("113 \t\t5.00 gal"));
}

// Letters that are as wide as they are high.
struct SquareLetters : RecordingSurface {
    void set_font(const Font& font) override { character = {font.cell_height, font.cell_height}; }
};

TEST(Page, RecordsWhatIsTooWideAgainAtASmallerScale) {
    SquareLetters measure;
    const auto job_of = [&](int letters) {
        const Report report = [letters](PageContext& page) {
            for (int line = 0; line < 50; ++line)
                page.Line(std::string(static_cast<std::size_t>(letters), 'x'));
        };
        return record_report({"", 1, report}, plain_paper(), measure).value_or(PageJob{});
    };
    EXPECT_EQ(job_of(42).pages.size(), 2U) << "42 letters of 14 from 45 on";
    const auto narrow = job_of(84);
    EXPECT_THAT(calls_on(narrow, 0).front(), "font Arial 7 0 400 ");
    EXPECT_LE(narrow.right(), 640);
    EXPECT_EQ(narrow.pages.size(), 1U) << "at half the pitch 50 lines need one page";
    EXPECT_THAT(calls_on(narrow, 0), Contains(HasSubstr("tabbed 0,113 [45]"))) << "the margin stays";
}

TEST(Page, ScalesTurnsAndShrinksWhatAsksForIt) {
    // 75 %, 1.5 dots a unit: margin 67, the stop at 75 units; 15 + 1 dots by 0.75 and 4 a line.
    const Paper wide{.sheet = {1000, 1100}, .area = {960, 1000}, .top_offset = 50};
    const auto tabs = [](PageContext& page) {
        page.SetHeader(0, "T");
        page.TabbedLine({101}, "a\tb");
    };
    EXPECT_THAT(calls_on(recorded(tabs, 0.75F, wide), 0), Contains("tabbed 0,153 [67,179] \ta\tb"));

    // What lies has its lines from its width and its units from its height.
    const Paper lying{.sheet = {1100, 660}, .area = {1000, 640}, .top_offset = 10, .is_landscape = true};
    EXPECT_THAT(texts_on(recorded(tabs, 1, lying), 0), ElementsAre("113 T", "113 @944 Page 1", "168 a\tb"));

    // Letters higher than their line are made smaller: 14 by 14 / 20, 21 stays.
    EXPECT_THAT(calls_on(recorded(tabs, 1, plain_paper(), {8, 20}), 0), Contains("font Arial 9 0 400 "));

    // A title of 560 dots in a room of 584 - 45 - 11: 21 becomes 19.
    const auto titled = recorded([](PageContext& page) {
        page.SetHeader(0, std::string(70, 'x'));
        page.Line("");
    });
    EXPECT_EQ(calls_on(titled, 0).front(), "font Arial 19 0 700 italic");
}

TEST(Page, EndsWhereTheNextLineWouldNotFit) {
    // 113 + 22 x 39 = 971 is the last line that ends before 1000; a title line would end at 1004.
    const auto forty_one = recorded([](PageContext& page) { lines(page, 41); });
    ASSERT_EQ(forty_one.pages.size(), 2U);
    EXPECT_EQ(texts_on(forty_one, 0).size(), 40U);
    const auto titled = recorded([](PageContext& page) {
        lines(page, 39);
        page.SelectFont(PageFont::title);
        page.Line("title");
    });
    EXPECT_THAT(texts_on(titled, 1), ElementsAre("113 title"));

    // Letters 26 high: 1050 / 26 = 40 lines of 22 dots are the page. At 767, exactly its end, it goes on.
    const auto at_the_limit = [](PageContext& page) {
        page.Paragraph("a\rb\rc");
        lines(page, 27);
        EXPECT_EQ(page.y(), 767);
        page.Line("over the limit");
        EXPECT_EQ(page.y(), 0);
    };
    EXPECT_EQ(recorded(at_the_limit, 1, plain_paper(), {8, 26}).pages.size(), 1U);

    const auto blank = recorded([](PageContext& page) {
        page.SetHeader(1, "Sub");
        page.NewLines(2);
    });
    EXPECT_THAT(texts_on(blank, 0), ElementsAre("113 Sub")) << "no title, no page number";
    EXPECT_TRUE(recorded([](PageContext& page) { page.EndPage(); }).pages.empty());
}

TEST(Page, NumbersPagesAndKeepsNothingOffThePaper) {
    const auto job = recorded([](PageContext& page) {
        page.SetHeader(0, "T");
        lines(page, 38);
        page.SetPageNumbering(false);
        page.EndPage();
        page.ClearHeaders();
        page.Line("bare");
    });
    ASSERT_EQ(job.pages.size(), 3U);
    EXPECT_THAT(texts_on(job, 1), ElementsAre("113 T", "113 @584 Page 2", "168 line"));
    EXPECT_THAT(texts_on(job, 2), ElementsAre("113 bare"));
    const Paper stamp{.sheet = {50, 400}, .area = {40, 400}};
    RecordingSurface measure;
    EXPECT_FALSE(record_report({"", 1, [](PageContext&) { FAIL(); }}, stamp, measure));
    for (const float damaged : {0.0F, -1.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_THAT(texts_on(recorded([](PageContext& page) { lines(page, 2); }, damaged), 0),
                    ElementsAre("113 line", "135 line"));
}

TEST(Page, BreaksTextOfSeveralFontsBetweenWordsAlone) {
    const std::vector<PageRun> runs = {
        {"ab "}, {"cd", PageFont::body_bold}, {", ef  "}, {"longest ", PageFont::body_bold}};
    const auto twice_as_wide_in_bold = [](const PageRun& run) {
        return static_cast<int>(run.text.size()) * (run.font == PageFont::body_bold ? 2 : 1);
    };
    const std::vector<PageRun> first = {{"ab "}, {"cd", PageFont::body_bold}, {","}};
    EXPECT_THAT(run_lines(runs, 8, twice_as_wide_in_bold),
                ElementsAre(first, std::vector<PageRun>{{"ef"}},
                            std::vector<PageRun>{{"longest", PageFont::body_bold}}));
    EXPECT_TRUE(run_lines({}, 8, twice_as_wide_in_bold).empty());
}

TEST(Page, BreaksParagraphsAtBlanksAndAtTheMargin) {
    // 550 dots between the margins take 68 letters of 8.
    const auto part = [](int count) { return std::string(static_cast<std::size_t>(count), 'w'); };
    const auto broken = [&](const std::string& text) {
        return texts_on(recorded([&](PageContext& page) { page.Paragraph(text); }), 0);
    };
    EXPECT_THAT(broken(part(60) + " pH of 5.2"), ElementsAre("113 " + part(60) + " pH of", "133 5.2"));
    EXPECT_THAT(broken(part(68) + "   end"), ElementsAre("113 " + part(68), "133 end"));
    EXPECT_THAT(broken("  " + part(150)),
                ElementsAre("113   " + part(66), "133 " + part(68), "153 " + part(16)))
        << "an indent is no word";
}

TEST(Page, CutsParagraphsAt101CharactersAndAtCarriageReturns) {
    const auto recorded_small = [](const Report& report) {
        return recorded(report, 1, plain_paper(), {2, 10});
    };
    std::string long_text;
    for (int i = 0; i < 250; ++i) long_text += "\u00E9"; // two bytes each
    const auto flown = recorded_small([&](PageContext& page) { page.Paragraph(long_text); });
    const auto part = [&](int from, int count) {
        return long_text.substr(2 * static_cast<std::size_t>(from), 2 * static_cast<std::size_t>(count));
    };
    EXPECT_THAT(texts_on(flown, 0),
                ElementsAre("113 " + part(0, 101), "133 " + part(101, 101), "153 " + part(202, 48)));

    const auto full = std::string(101, 'w');
    const auto ended = recorded_small([&](PageContext& page) { page.Paragraph(full + "\r\n\r\nb\tc\r\n"); });
    EXPECT_THAT(texts_on(ended, 0), ElementsAre("113 " + full, "133 ", "153 b c"));

    // 113 + 20 x 44 = 993 is past the last that fits.
    const auto paged = recorded_small([](PageContext& page) { page.Paragraph(std::string(60, '\r')); });
    ASSERT_EQ(paged.pages.size(), 2U);
    EXPECT_EQ(texts_on(paged, 0).size(), 44U);
}

TEST(Page, KeepsTogetherWhatItIsTold) {
    recorded([](PageContext& page) {
        EXPECT_FALSE(page.KeepTogether(100)) << "nothing to end";
        lines(page, 30); // to 773: ten lines are left
        EXPECT_FALSE(page.KeepTogether(10));
        EXPECT_TRUE(page.KeepTogether(11));
        EXPECT_EQ(page.y(), 0);
        // Three pieces of 24, a line, four lines: 182. They fit at 817, not at 839.
        const std::string three(203, 'x');
        lines(page, 32);
        page.KeepParagraph(three);
        EXPECT_EQ(page.y(), 817);
        page.Line("");
        page.KeepParagraph(three);
        EXPECT_EQ(page.y(), 0);
    });
}

TEST(Page, DrawsRulesColoursAndCharts) {
    const auto job = recorded([](PageContext& page) {
        page.Rule();
        page.HalfRule();
        page.ColourBox(100, 0x3A81BF);
        page.Line("beer");
        auto chart = page.PlaceChart(ChartForm::in_report);
        EXPECT_EQ(chart.scale, 640.0 / 445) << "the width decides";
        EXPECT_EQ(chart.offset, (Point{0, 179}));
        EXPECT_EQ(page.y(), 179 + 460);
        chart.surface.set_text_colour(0xFF);
        page.PlaceChart(ChartForm::in_report); // 639 + 750 passes the end
        page.PlaceChart(ChartForm::alone);     // centred in the 887 dots below 113
        EXPECT_EQ(page.y(), 113 + 213 + 460);
    });
    const auto calls = calls_on(job, 0);
    for (const auto* const call : {"move 45,124", "line 595,124", "move 45,146", "line 320,146",
                                   "rectangle 145,162,245,174", "brush 3A81BF", "tabbed 0,157 [45] \tbeer"})
        EXPECT_THAT(calls, Contains(call));
    EXPECT_EQ(job.pages.size(), 3U);

    const Paper lying{.sheet = {1100, 660}, .area = {1000, 640}, .top_offset = 10, .is_landscape = true};
    recorded(
        [](PageContext& page) {
            EXPECT_EQ(page.PlaceChart(ChartForm::alone).scale, (640 - 113) / 320.0)
                << "what is left of the page";
            EXPECT_EQ(page.y(), 640);
        },
        1, lying);
}

TEST(PrintPages, TellsWhatThePrinterDidNotTake) {
    const auto job = recorded([](PageContext& page) { lines(page, 41); });
    {
        RecordingPrinter printer;
        ScriptedPrompts silent;
        EXPECT_TRUE(print_pages(job, {.first = 2, .last = 9}, printer, silent));
        EXPECT_EQ(std::tuple(printer.document, printer.pages.size(), printer.ended),
                  std::tuple("A Report", 1U, true));
        EXPECT_EQ(printer.pages.front().lines, calls_on(job, 1));
    }
    RecordingPrinter printer;
    ScriptedPrompts prompts;
    printer.refuses = true;
    prompts.expect_tell(
        "The printer could not be started, or the file could not be written. Nothing has been printed.",
        Icon::warning);
    EXPECT_FALSE(print_pages(job, {}, printer, prompts));
    printer.refuses = false;
    printer.room = 1;
    prompts.expect_tell("The printer broke off before the last page.", Icon::warning);
    EXPECT_FALSE(print_pages(job, {}, printer, prompts));
    printer = {};
    EXPECT_TRUE(print_pages(job, {}, printer, prompts)) << "one failure does not silence the next print";
}

TEST(TextSink, GivesFileAndClipboardTheSameBytes) {
    TextSink sink;
    sink.heading("W\u00FCrze");
    sink.put("100%% done\r\n5%\n");
    sink.long_text(std::string(75, 'a') + "\r\n" + std::string(75, 'b') + "\u00E9%%");
    const std::string text = "W\u00FCrze\r\n-----\r\n\r\n100% done\r\n5%\r\n" + std::string(75, 'a') +
                             "\r\n" + std::string(75, 'b') + "\r\n\u00E9%%";
    EXPECT_EQ(sink.text(), text);

    RecordingClipboard clipboard;
    copy_text(clipboard, sink);
    EXPECT_THAT(clipboard.texts, ElementsAre(text));
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    EXPECT_TRUE(save_text(folder / "report.txt", sink, prompts));
    EXPECT_EQ(content_of(folder / "report.txt"), text);
    prompts.expect_write_error();
    EXPECT_FALSE(save_text(folder / "missing/report.txt", sink, prompts));
}

TEST(TextSink, PadsAndCutsByCharacters) {
    EXPECT_EQ(padded("K\u00F6ln", 6), "K\u00F6ln  ");
    EXPECT_EQ(padded("K\u00F6ln", 2), "K\u00F6");
    EXPECT_EQ(padded("", 3), "   ");
    EXPECT_EQ(padded("abc", 3), "abc");
}

} // namespace
} // namespace wortlex
