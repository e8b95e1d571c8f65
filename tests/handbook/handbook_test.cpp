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
        {"strike", "# Strike water\n\nHow hot\nit must be. <!-- warm -->\n<!-- mash in -->\n\n- **Grain "
                   "`Temp`:** (1 to 221 F):\n"
                   "  of the *dry* grain.\n- **Rest**, **Total (GAL)**: [hops](hops.md) too.\n"},
        {"hops", "# Hops & such\n\n| form | word |\n|---|---:|\n| a | [b](x.md) |\n\n"
                 "```example hbu\n1.5 ounces\n```\n\n![The list](a.png)\n\n12. grain bags\n"}};
    const auto page = pages.find(name);
    return page == pages.end() ? "" : page->second;
}

std::string shipped_page(std::string_view page) {
    const auto file = read_file(HANDBOOK_FOLDER + std::string(page) + ".md");
    return file ? std::string(reinterpret_cast<const char*>(file->data()), file->size()) : "";
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
    EXPECT_EQ(handbook.search("warm mash").front().excerpt, "How hot it must be.") << "found by unseen words";
    EXPECT_THAT(titles("form"), ElementsAre("Hops & such")) << "a word of a table";
    EXPECT_EQ(handbook.search("form").front().excerpt, "form: word");
    EXPECT_THAT(titles("what is the strike temp?"), ElementsAre("Strike water"));
}

// Words by themselves come before beginnings of words, these before parts, whatever is a title.
TEST(Handbook, FindsWholeWordsFirst) {
    Handbook handbook([](std::string_view page) {
        if (page == "contents")
            return "- A\n  - [Follow](part.md)\n  - [Lowest](begun.md)\n  - [Gravity](whole.md)\n";
        if (page == "part") return "# Follow\n\nFollow the yellow line.\n";
        if (page == "begun") return "# Lowest\n\nThe lowest of all.\n";
        return "# Gravity\n\nIt may be low.\n";
    });
    std::vector<std::string> found;
    for (const auto& page : handbook.search("too low")) found.push_back(page.topic->title);
    EXPECT_THAT(found, ElementsAre("Gravity", "Lowest", "Follow"));
    EXPECT_THAT(Handbook::sought_words("How much of the \"Malts\" is lost?"), ElementsAre("malt", "lost"));
    EXPECT_THAT(Handbook::sought_words("how"), ElementsAre("how")) << "as it is typed";
}

TEST(Handbook, IsShownWithoutItsKeywords) {
    EXPECT_EQ(shown_markdown("a <!-- k -->\n<!-- l -->\n- b \u2192 SG 2 L\n"),
              "a\n- b \u2192\u00A0SG\u00A02 L\n");
}

// What brewers have looked for in vain.
TEST(Handbook, AnswersWhatBrewersAsk) {
    Handbook handbook(shipped_page);
    const std::map<std::string, std::string> answers = {{"stuck fermentation", "fermentation"},
                                                        {"gravity too low", "gravity"},
                                                        {"liters instead of gallons", "settings_measures"},
                                                        {"delete recipe", "recipe_shelf"},
                                                        {"priming sugar", "carbonation"},
                                                        {"how bitter", "hop_bitterness"}};
    for (const auto& [question, page] : answers) {
        const auto found = handbook.search(question);
        ASSERT_FALSE(found.empty()) << question;
        EXPECT_EQ(found.front().topic->page, page) << question;
        EXPECT_EQ(found.front().excerpt.find_first_of("|<"), std::string::npos) << question;
    }
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
    const Handbook handbook(shipped_page);
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
