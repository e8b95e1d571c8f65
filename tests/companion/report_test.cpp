#include "companion/json.h"
#include "support/process.h"

#include <gmock/gmock.h>

#include <cmath>

namespace wortlex {
namespace {

using testing::HasSubstr;

TEST(JsonWriter, separates_and_nests) {
    JsonWriter json;
    json.begin_object().number("a", 1).begin_list("b").end_list().begin_list("c");
    json.begin_object().truth("d", false).end_object().begin_object().end_object().end_list();
    json.begin_object("e").string("f\"", "").end_object().truth("g", true).end_object();
    EXPECT_EQ(json.text(), R"({"a":1,"b":[],"c":[{"d":false},{}],"e":{"f\"":""},"g":true})");
}

TEST(JsonWriter, numbers_have_nine_digits_and_nothing_that_json_lacks) {
    const auto written = [](double value) { return JsonWriter().number("", value).text(); };
    EXPECT_EQ(written(0.1F), "0.100000001");
    EXPECT_EQ(written(-1234567890.0), "-1.23456789e+09");
    EXPECT_EQ(written(-HUGE_VAL), "null");
    EXPECT_EQ(written(std::nan("")), "null");
}

TEST(JsonWriter, texts_are_escaped_and_always_utf8) {
    const std::string lost = "\xEF\xBF\xBD", whole = "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8D\xBA";
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"quote, backslash, line ends and tab", "\"\\\r\n\t", R"(\"\\\r\n\t)"},
        {"other control characters, NUL too", std::string("\0\x1F\x7F\xC2\x9B", 5),
         R"(\u0000\u001f\u007f\u009b)"},
        {"two, three and four bytes", whole, whole},
        {"a lone Windows-1252 letter", "K\xF6lsch", "K" + lost + "lsch"},
        {"a start before a quote", "\xC3\"", lost + "\\\""},
        {"an overlong slash, a surrogate", "\xC0\xAF\xED\xA0\x80", lost + lost + lost + lost + lost},
        {"beyond the last character", "\xF4\x90\x80\x80", lost + lost + lost + lost},
    };
    for (const auto& [why, text, written] : rows)
        EXPECT_EQ(JsonWriter().string("", text).text(), '"' + written + '"') << why;
}

// Patterns of a line of JSON, with $ for a text and # for a number.
const std::string recipe_line =
    R"({"file":$,"title":$,"kind":$,"document":$,"incomplete":false,"batch_size":#,"wort_size":#,)"
    R"("boil_minutes":#,"efficiency":#,"og_points":#,"sg":#,"plato":#,"tinseth_points":#,"total_extract":#,)"
    R"("sucrose":#,"total_ibu":#,"mcu":#,"srm":#,"shown_colour":#,"total_grain":#,"mash_grain":#,)"
    R"("total_hop_ounces":#,"malts":\[({"name":$,"amount":#,"points":#,"percent":#,"sg":#,"extract":#,)"
    R"("potential_shown":#,"extract_shown":#}[],])+,"hops":\[({"name":$,"amount":#,"alpha":#,"boil_time":#,)"
    R"("ibu":#}[],])+,"pre_boil":{"volume":#,"points":#},"mash":{"kind":$,"water":#,"volume":#,)"
    R"(("infusions":{"protein":#,"intermediate":#,"saccharification":#,"mash_out":#}|)"
    R"("steps":\[({"name":$,"infuse_temperature":#,"amount":#,"ratio":#}[],])+)})";
const std::string brew_day_figures =
    R"(,"alcohol":{"abw":#,"abv":#,"adf":#,"rdf":#},"efficiency_figures":{"achieved":#,"total":#,"mash":#,)"
    R"("extract":#,"actual_mash":#,"efficiency":#},"water":{"into_mash":#,"absorption":#,"into_kettle":#,)"
    R"("after_boil":#,"to_chillers":#,"after_cooling":#,"needed":#})";

auto matches_line(const std::string& line) {
    std::string pattern;
    for (const char c : line)
        pattern += c == '$'               ? R"re("([^"\\[:cntrl:]]|\\["\\/bfnrtu])*")re"
                   : c == '#'             ? R"(-?[0-9]+(\.[0-9]+)?(e[-+][0-9]+)?)"
                   : c == '{' || c == '}' ? std::string{'\\', c}
                                          : std::string{c};
    return testing::MatchesRegex(pattern);
}

TEST(Report, json_is_one_line_a_file_with_every_figure) {
    auto words = sample_files();
    words.insert(words.begin(), "--json");
    const auto ran = report(words);
    EXPECT_TRUE(ran.status == 0 && ran.err.empty()) << ran.err;
    const auto lines = lines_of(ran.out);
    ASSERT_EQ(lines.size() + 1, words.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool is_session = words[i + 1].ends_with(".brw");
        EXPECT_THAT(lines[i], matches_line(recipe_line + (is_session ? brew_day_figures : "") + "}"));
        EXPECT_THAT(lines[i], HasSubstr(words[i + 1]));
    }
}

TEST(Report, json_tells_the_figures_of_its_file) {
    EXPECT_THAT(report({"--json", "Recipes/Sunday Morning Hefeweizen.rec"}).out,
                HasSubstr(R"("name":"Dextrin Rest")"));
    const auto session = report({"--json", "Sessions/Front Porch Pale Ale, Second Brewing.brw"}).out;
    EXPECT_THAT(session, HasSubstr(R"("document":"session")"));
    const auto figure = [&](const std::string& key) {
        return std::stod(session.substr(session.find(key) + key.size()));
    };
    // 1.053 to 1.012 is 41 points of 53.
    EXPECT_NEAR(figure(R"("adf":)"), 41 / 53.0 * 100, 1.0);
    // 12 quarts on 9.75 pounds, which count 0.2 each, from 130 to 152 degrees by water of 205.
    EXPECT_NEAR(figure(R"("saccharification":)"), 13.95 * 22 / 53, 0.01);
}

TEST(Report, a_page_to_read_tells_title_units_and_lines) {
    const auto page = report({bitter}).out;
    for (const auto* text : {"Ploughman's", ", Best Bitter", "OG 1.045", "5.00 gal", "7.25", "Challenger"})
        EXPECT_THAT(page, HasSubstr(text));
}

TEST(Report, control_characters_do_not_reach_the_terminal) {
    auto recipe = content_of(made_brewery() + bitter);
    recipe.replace(0, 9, "\x1B[2J\r\n\x9D\x80\0", 9); // the title begins the file
    const auto name = made_brewery() + "bell\a.rec";
    write_content(name, recipe);
    const auto page = report({name});
    EXPECT_THAT(page.out, testing::StartsWith("?[2J???\u20AC - Recipe\n"));
    EXPECT_THAT(page.out, HasSubstr("bell?.rec\n"));
    EXPECT_THAT(report({"--text", name}).out, testing::Not(HasSubstr("\x1B")));
    std::filesystem::remove(name);
    EXPECT_THAT(report({name}).err, HasSubstr("bell?.rec: File Not Found!"));
}

TEST(Report, a_bad_file_is_told_in_one_line_and_the_others_go_on) {
    auto damaged = content_of(made_brewery() + bitter);
    write_content(made_brewery() + "short.rec", damaged.substr(0, 80));
    damaged[88] = '\x7F'; // the count of hops
    write_content(made_brewery() + "damaged.rec", damaged);
    for (const std::string bad : {"missing.rec", "missing.brw", "damaged.rec", "HOPS.DAT", "short.rec"}) {
        const bool is_incomplete = bad == "short.rec"; // told, but shown
        const auto ran = report({"--json", bad, bitter});
        EXPECT_EQ(ran.status, 1) << bad;
        EXPECT_EQ(lines_of(ran.out).size(), is_incomplete ? 2U : 1U) << bad;
        EXPECT_EQ(ran.out.find(R"("incomplete":true)") != std::string::npos, is_incomplete) << bad;
        EXPECT_EQ(lines_of(ran.err).size(), 1U) << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(bad));
    }
}

TEST(Report, save_as_gives_the_bytes_back) {
    const TemporaryFolder folder;
    for (const auto& file : sample_files()) {
        EXPECT_EQ(report({"--save-as", folder / "copy", file}).status, 0);
        EXPECT_TRUE(content_of(folder / "copy") == content_of(made_brewery() + file)) << file;
    }
    EXPECT_EQ(report({"--save-as", folder / "no/such/place.rec", bitter}).status, 1);
}

TEST(Report, needs_the_settings_of_a_brewery) {
    const auto without = run(DATA_FOLDER, {WORTLEX_REPORT, made_brewery() + bitter});
    EXPECT_EQ(without.status, 1);
    EXPECT_THAT(without.err, HasSubstr("Bad Or Missing System File!"));
}

} // namespace
} // namespace wortlex
