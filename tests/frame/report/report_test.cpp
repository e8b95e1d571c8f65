#include "support/json_reader.h"
#include "support/process.h"

#include <gmock/gmock.h>

#include <sstream>

namespace wortlex {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Key;

const std::string bitter = "Recipes/Ploughman's Best Bitter.rec";
const std::string wheat = "Recipes/Sunday Morning Hefeweizen.rec";
const std::string brew_day = "Sessions/Front Porch Pale Ale, Second Brewing.brw";

constexpr const char* recipe_keys =
    "title kind batch_size wort_size boil_minutes efficiency og_points sg plato tinseth_points total_extract "
    "sucrose total_ibu mcu srm shown_colour total_grain mash_grain total_hop_ounces malts.0.name "
    "malts.0.amount malts.0.points malts.0.percent malts.0.sg malts.0.extract malts.0.potential_shown "
    "malts.0.extract_shown hops.0.name hops.0.amount hops.0.alpha hops.0.boil_time hops.0.ibu "
    "pre_boil.volume pre_boil.points mash.kind mash.water mash.volume";
constexpr const char* session_keys =
    "alcohol.abw alcohol.abv alcohol.adf alcohol.rdf efficiency_figures.achieved efficiency_figures.total "
    "efficiency_figures.mash efficiency_figures.extract efficiency_figures.actual_mash "
    "efficiency_figures.efficiency water.into_mash water.absorption water.into_kettle water.after_boil "
    "water.to_chillers water.after_cooling water.needed mash.infusions.protein mash.infusions.intermediate";

std::vector<std::string> words_of(const char* text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

Ran report(std::vector<std::string> words, const std::string& environment = {}) {
    words.insert(words.begin(), WORTLEX_REPORT);
    return run(made_brewery(), words, environment);
}

std::map<std::string, std::string> json_of(const std::string& file) {
    const auto ran = report({"--json", file});
    const auto json = JsonReader::read(lines_of(ran.out).at(0));
    return json.value();
}

TEST(Report, json_is_one_line_a_file_with_every_figure) {
    const auto files = sample_files(made_brewery());
    auto words = files;
    words.insert(words.begin(), "--json");
    const auto ran = report(words);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    const auto lines = lines_of(ran.out);
    ASSERT_EQ(lines.size(), files.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto json = JsonReader::read(lines[i]);
        ASSERT_TRUE(json) << lines[i];
        EXPECT_EQ(json->at("file"), '"' + files[i] + '"');
        EXPECT_EQ(json->at("incomplete"), "false");
        for (const auto& key : words_of(recipe_keys)) EXPECT_THAT(*json, Contains(Key(key))) << files[i];
    }
}

TEST(Report, json_follows_the_kind_of_document_and_schedule) {
    const auto recipe = json_of(bitter);
    EXPECT_EQ(recipe.at("document"), "\"recipe\"");
    EXPECT_EQ(recipe.at("mash.infusions.mash_out"), "0"); // of the brew day only
    EXPECT_EQ(recipe.count("alcohol.abv") + recipe.count("water.needed") + recipe.count("mash.steps.0.name"),
              0U);
    EXPECT_EQ(json_of(wheat).at("mash.steps.3.name"), "\"Dextrin Rest\"");

    const auto session = json_of(brew_day);
    EXPECT_EQ(session.at("document"), "\"session\"");
    for (const auto& key : words_of(session_keys)) EXPECT_THAT(session, Contains(Key(key)));
    // 1.053 to 1.012 is 41 points of 53.
    EXPECT_NEAR(std::stod(session.at("alcohol.adf")), 41 / 53.0 * 100, 1.0);
    // 12 quarts on 9.75 pounds, which count 0.2 each, from 130 to 152 degrees by water of 205.
    EXPECT_NEAR(std::stod(session.at("mash.infusions.saccharification")), 13.95 * 22 / 53, 0.01);
}

TEST(Report, a_page_to_read_tells_title_units_and_lines) {
    const auto page = report({bitter}).out;
    for (const auto* text :
         {"Ploughman's Best Bitter", "Best Bitter", "OG 1.045", "5.00 gal", "7.25", "Challenger"})
        EXPECT_THAT(page, HasSubstr(text));
}

TEST(Report, a_bad_file_is_told_in_one_line_and_the_others_go_on) {
    const auto& brewery = made_brewery();
    auto damaged = content_of(brewery + bitter);
    damaged[88] = '\x7F'; // the count of hops
    write_content(brewery + "damaged.rec", damaged);
    write_content(brewery + "other.dat", "");
    for (const std::string bad : {"missing.rec", "missing.brw", "damaged.rec", "other.dat", "rec"}) {
        const auto ran = report({"--json", bad, bitter});
        EXPECT_EQ(ran.status, 1) << bad;
        EXPECT_EQ(lines_of(ran.out).size(), 1U) << bad;
        EXPECT_EQ(lines_of(ran.err).size(), 1U) << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(bad));
    }
    write_content(brewery + "short.rec", damaged.substr(0, 80));
    const auto ran = report({"--json", "short.rec"});
    EXPECT_EQ(ran.status, 0); // told, but shown
    EXPECT_THAT(ran.err, HasSubstr("short.rec"));
    EXPECT_EQ(JsonReader::read(lines_of(ran.out).at(0))->at("incomplete"), "true");
}

TEST(Report, save_as_gives_the_bytes_back) {
    const TemporaryFolder folder;
    for (const auto& file : {bitter, wheat, brew_day}) {
        const auto copy = folder / "copy";
        EXPECT_EQ(report({"--save-as", copy, file}).status, 0);
        EXPECT_TRUE(content_of(copy) == content_of(made_brewery() + file)) << file;
    }
    const auto refused = report({"--save-as", folder / "no/such/place.rec", bitter});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(lines_of(refused.err).size(), 1U) << refused.err;
    EXPECT_EQ(report({"--save-as", folder / "two.rec", bitter, wheat}).status, 2);
}

TEST(Report, needs_the_settings_of_a_brewery) {
    const TemporaryFolder folder;
    const auto file = made_brewery() + bitter;
    const auto without = run(folder.path(), {WORTLEX_REPORT, file});
    EXPECT_EQ(without.status, 1);
    EXPECT_EQ(without.out, "");
    EXPECT_THAT(without.err, HasSubstr("Bad Or Missing System File!"));
    write_content(folder / "WlxMSys.DAT", content_of(made_brewery() + "WlxMSys.DAT").substr(0, 1579));
    EXPECT_EQ(run(folder.path(), {WORTLEX_REPORT, file}).status, 1);
}

TEST(Report, does_not_follow_a_comma_locale) {
    const auto usual = report({"--json", brew_day});
    const auto comma = report({"--json", brew_day}, "LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8 ");
    EXPECT_EQ(comma.status, 0);
    EXPECT_EQ(comma.out, usual.out);
    EXPECT_EQ(report({brew_day}, "LC_ALL=de_DE.UTF-8 ").out, report({brew_day}).out);
}

} // namespace
} // namespace wortlex
