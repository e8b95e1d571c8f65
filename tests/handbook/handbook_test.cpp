#include "handbook/handbook.h"

#include "base/files.h"
#include "handbook/handbook_printout.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>

namespace wortlex {
namespace {

using testing::ElementsAre;

std::string small_page(std::string_view name) {
    static const std::map<std::string, std::string, std::less<>> pages = {
        {"contents", "# All\n\n- First\n  - [Strike water](strike.md)\n  - [Hops & such](hops.md)\n"},
        {"strike", "# Strike water\n\nHow hot\nit must be.\n\n- **Grain `Temp`:** (1 to 221 F):\n"
                   "  of the *dry* grain.\n- **Rest**, **Total (GAL)**: [hops](hops.md) too.\n"},
        {"hops", "# Hops & such\n\n| form | word |\n|---|---:|\n| a | [b](x.md) |\n\n"
                 "```example hbu\n1.5 ounces\n```\n\n![The list](a.png)\n\n12. grain bags\n"}};
    const auto page = pages.find(name);
    return page == pages.end() ? "" : page->second;
}

TEST(Handbook, TellsOfAFieldInTheWordsOfItsPage) {
    const Handbook handbook(small_page);
    EXPECT_EQ(handbook.topics().size(), 3U);
    EXPECT_EQ(handbook.topic("hops")->title, "Hops & such");
    EXPECT_EQ(handbook.words_on("strike", "Grain Temp"), "Grain Temp: (1 to 221 F): of the dry grain.");
    EXPECT_EQ(handbook.words_on("strike", "TOTAL (hL):"), "Rest, Total (GAL): hops too.");
    EXPECT_EQ(handbook.words_on("strike", "Tot"), "");
    EXPECT_EQ(handbook.words_on("missing", "Total"), "");
    for (const auto* const outside : {"https://x.org/hops.md", "../hops.md", "hops.html", ".md"})
        EXPECT_EQ(page_of(outside), "") << outside;
}

TEST(Handbook, FindsPagesThatHoldEveryWordTheBestFirst) {
    Handbook handbook(small_page);
    const auto titles = [&](std::string_view words) {
        std::vector<std::string> found;
        for (const auto& page : handbook.search(words)) found.push_back(page.topic->title);
        return found;
    };
    EXPECT_THAT(titles("HOPS"), ElementsAre("Hops & such", "Strike water"));
    EXPECT_THAT(titles("grai"), ElementsAre("Strike water", "Hops & such"));
    EXPECT_THAT(titles(" dry  hop "), ElementsAre("Strike water"));
    EXPECT_THAT(titles("hops yeast"), ElementsAre());
    EXPECT_THAT(titles(" "), ElementsAre());
    EXPECT_EQ(handbook.search("hot must").front().excerpt, "How hot it must be.");
}

TEST(Handbook, IsPrintedWithoutItsMarks) {
    const auto lines = printed_lines(handbook_printout("Hops", small_page("hops"), 1));
    EXPECT_THAT(lines, testing::Contains("form\tword")) << "the rule below a head is no row";
    EXPECT_THAT(lines, testing::Contains("a\tb"));
    EXPECT_THAT(lines, testing::Contains("\t1.5 ounces"));
    EXPECT_THAT(lines, testing::IsSupersetOf({"@45 -", "@59 grain bags"}));
    EXPECT_THAT(lines, testing::Not(testing::Contains(testing::HasSubstr("list"))));
}

TEST(Handbook, IsPrintedInItsFonts) {
    RecordingPageDesk desk;
    desk.show(handbook_printout("Strike water", small_page("strike"), 1));
    std::string weight, words;
    for (const auto& call : calls_on(desk.jobs.front(), 0)) {
        if (call.starts_with("font")) weight = call.substr(call.find(" 0 ") + 3);
        if (call.starts_with("text ") && call.find(',') != std::string::npos)
            words += '[' + weight + ']' + call.substr(call.find(' ', 5) + 1);
    }
    EXPECT_THAT(words, testing::HasSubstr("[700 ]Grain Temp: [400 ](1 to 221 F): of the [400 italic]dry "));
    EXPECT_THAT(words, testing::HasSubstr("[700 ]Rest[400 ], [700 ]Total (GAL)[400 ]: hops too."));
    EXPECT_EQ(plain_text("`Recipes/*.rec`, *not* \\*.wxt"), "Recipes/*.rec, not *.wxt") << "no marks in code";
}

// Of the pages that are shipped: each is in the contents, and what they lead to is there.
TEST(Handbook, ItsPagesAreWholeAndLeadToEachOther) {
    const auto read = [](std::string_view page) {
        const auto file = read_file(HANDBOOK_FOLDER + std::string(page) + ".md");
        return file ? std::string(reinterpret_cast<const char*>(file->data()), file->size()) : "";
    };
    const Handbook handbook(read);
    std::size_t pages = 1;
    for (const auto& topic : handbook.topics()) {
        if (topic.page.empty()) continue;
        ++pages;
        const auto text = handbook.page(topic.page);
        ASSERT_FALSE(text.empty()) << topic.page << " is missing";
        EXPECT_EQ(text.substr(0, 2), "# ") << topic.page;
        for (auto at = text.find("]("); at != std::string::npos; at = text.find("](", at + 1)) {
            const auto link = text.substr(at + 2, text.find(')', at) - at - 2);
            const bool is_picture = link.starts_with("pictures/");
            EXPECT_TRUE(is_picture || !handbook.page(page_of(link)).empty()) << topic.page << ": " << link;
        }
    }
    for (const auto& entry : std::filesystem::directory_iterator(HANDBOOK_FOLDER))
        if (entry.path().extension() == ".md" && entry.path().stem() != "contents") {
            EXPECT_NE(handbook.topic(entry.path().stem().string()), nullptr) << entry.path();
        }
    EXPECT_GT(pages, 50U);
}

} // namespace
} // namespace wortlex
