#include "databases/find.h"
#include "databases/hops.h"
#include "databases/malts.h"
#include "databases/yeasts.h"
#include "support/process.h"
#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// What the find line picks in a list of the brewery that is shipped, and how many rows it marks; names only.
template <class Record>
std::string found(ListMaker<Record> make, std::string_view typed, std::size_t name_at = 0) {
    ScriptedPrompts prompts;
    Settings settings;
    Database<Record> database;
    const auto list = make({ListSide::pick, settings, made_brewery()}, database);
    list->open(prompts);
    const auto query = make_query(typed, LoadOtherNames(made_brewery()));
    const auto row = best_row(*list, query);
    return row ? list->cell(*row, name_at) + " of " + std::to_string(count_found(*list, query)) : "nothing";
}

TEST(Find, FindsWhatABrewerMeansInTheShippedLists) {
    EXPECT_EQ(found(yeast_list, "US-05", 2), "SafAle US-05 of 1");
    EXPECT_EQ(found(yeast_list, "safale american", 2), "SafAle US-05 of 1") << "as its packs were called";
    EXPECT_EQ(found(yeast_list, "Ameri hefe", 2), "American Hefeweizen Ale of 1")
        << "parts of words, in any order";
    EXPECT_EQ(found(yeast_list, "w34/70", 2), "SafLager W-34/70 of 1") << "marks do not count";
    EXPECT_EQ(found(yeast_list, "wyeast kolsch ii", 2), "K\u00F6lsch II of 1") << "nor accents; the lab too";
    EXPECT_EQ(found(malt_list, "crystal 40").substr(0, 16), "Caramel Malt 40L");
    EXPECT_EQ(found(malt_list, "Pale DME"), "Extra Light DME of 3");
    EXPECT_EQ(found(malt_list, "pale malt").substr(0, 10), "Pale Malt ")
        << "the one with the fewest other words";
    EXPECT_EQ(found(malt_list, "pale dme zz"), "nothing") << "every word counts";
    EXPECT_EQ(found(malt_list, "  "), "nothing");
    EXPECT_EQ(found(hop_list, "EKG").substr(0, 18), "East Kent Goldings");
}

TEST(Find, ComparesLettersWithoutTheirAccents) {
    EXPECT_EQ(find_words("\u0160koda \u017Datec \u0161 \u017E \u0152uf \u0178 \u00B0 O\u2019Hara"),
              (FindWords{"skoda", "zatec", "s", "z", "ouf", "y", "ohara"}));
}

} // namespace
} // namespace wortlex
