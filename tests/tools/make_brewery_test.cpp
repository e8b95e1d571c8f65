#include "base/ports/quiet_prompts.h"
#include "brewing/beer_colour.h"
#include "companion/evaluation.h"
#include "settings/new_brewery.h"
#include "settings/screen_colours.h"
#include "support/process.h"

#include <gmock/gmock.h>

#include <variant>

namespace wortlex {
namespace {

// A database file as bytes: what is asked of it, it is asked at the places of the file format.
struct Entries {
    std::string content;
    std::size_t size = (content.size() - 4) / 1000;

    template <class Scalar>
    Scalar number(std::size_t at) const {
        return get_little_endian<Scalar>(reinterpret_cast<const std::byte*>(content.data()) + at);
    }
    std::size_t count() const { return static_cast<std::size_t>(number<std::int32_t>(0)); }
    std::string text(std::size_t entry, std::size_t offset) const {
        return content.c_str() + 4 + entry * size + offset;
    }
};

TEST(MakeBrewery, databases_hold_every_row_in_order) {
    // File, size of an entry, table, and the offsets of the texts that decide the order.
    const std::tuple<std::string, std::size_t, std::string, std::vector<std::size_t>> rows[] = {
        {"HOPS.DAT", 614, "hops.csv", {0, 241}},
        {"MALT.DAT", 521, "malts.csv", {0, 110}},
        {"YEAST.DAT", 468, "yeasts.csv", {55, 110, 0}},
        {"WATER.DAT", 222, "water.csv", {0}},
        {"EXTRA.DAT", 577, "extras.csv", {0}},
        {"STYLES.DAT", 1031, "styles_aha.csv", {1026, 1028}}, // a number of one byte, and a letter
        {"STYLES.BJCP", 1031, "styles_bjcp.csv", {1026, 1028}},
    };
    for (const auto& [file, size, table, keys] : rows) {
        const Entries entries{content_of(made_brewery() + file)};
        ASSERT_EQ(entries.content.size(), 4 + 1000 * size);
        EXPECT_EQ(entries.count() + 1, lines_of(content_of(DATA_FOLDER "databases/" + table)).size());
        std::vector<std::string> last, key;
        for (std::size_t i = 0; i < entries.count(); last = key, ++i) {
            key.clear();
            for (const auto offset : keys) key.push_back(entries.text(i, offset));
            for (auto& c : key[0]) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
            EXPECT_LE(last, key) << file << i;
        }
    }
}

TEST(MakeBrewery, entries_are_the_rows_of_the_tables) {
    using Value = std::variant<char, std::int32_t, float>;
    // File, name and its offset, and a value and its offset.
    const std::tuple<std::string, std::string, std::size_t, Value, std::size_t> rows[] = {
        {"HOPS.DAT", "Admiral", 0, 14.5F, 55},
        {"HOPS.DAT", "Kitamidori", 0, '\x22', 81}, // pellet; 25 % lost is average already
        {"HOPS.DAT", "Cascade", 0, '\x23', 81},    // 50 % poor; "Pellet" before "Whole"
        {"MALT.DAT", "Amber DME", 0, '\2', 165},
        {"MALT.DAT", "2-Row Brewers Malt", 0, 0.79F, 191},
        {"MALT.DAT", "2-Row Brewers Malt", 0, 37.4F / 46.21F * 100 - 1, 517},
        {"MALT.DAT", "Ch\xE2teau Abbey", 0, 17.4F, 171},
        {"YEAST.DAT", "American Microbrewery 1", 0, 78, 459},
        {"WATER.DAT", "Burton on Trent", 0, 725.0F, 43},
        {"EXTRA.DAT", "Bentonite", 0, '\4', 62},
        {"STYLES.BJCP", "Cream Ale", 55, 1.055F, 115},
        {"STYLES.BJCP", "Cream Ale", 55, '\1', 1030},
    };
    for (const auto& [file, name, name_at, wanted, offset] : rows) {
        const Entries entries{content_of(made_brewery() + file)};
        std::size_t at = 0;
        while (at < entries.count() && entries.text(at, name_at) != name) ++at;
        at = 4 + at * entries.size + offset;
        const auto check = [&](auto value) { EXPECT_NEAR(entries.number<decltype(value)>(at), value, 1e-4); };
        std::visit(check, wanted);
    }
}

// With the settings that the brewery has: the built-in ones but for colors and efficiency.
Program load_sample(const std::string& file) {
    Program program;
    QuietPrompts prompts;
    EXPECT_TRUE(start_core(program, made_brewery(), prompts));
    auto expected = WriteDefaultSettings();
    set_colours(expected, colours_of(ColourPreset::desktop));
    expected.efficiency = 0.72F;
    EXPECT_EQ(LoadSystemFiles(made_brewery()).settings, expected);
    EXPECT_EQ(program.water_usage.evaporation_rate, 10);
    EXPECT_EQ(load_document(program, made_brewery() + file, *document_kind(file)), LoadResult::loaded);
    return program;
}

TEST(MakeBrewery, samples_are_within_their_style) {
    EXPECT_GE(sample_files().size(), 12U);
    for (const auto& file : sample_files()) {
        const auto document = load_sample(file).document.recipe;
        const auto& style = document.style;
        const auto check = [&](float x, float a, float b) { EXPECT_EQ(x, std::clamp(x, a, b)) << file; };
        check(document.og_points / 1000 + 1, style.min_og, style.max_og);
        check(document.total_ibu, style.min_ibu, style.max_ibu);
        check(beer_colour(document.malts, document.batch_size, ColorFormula::Morey).srm, style.min_colour,
              style.max_colour);
    }
}

TEST(MakeBrewery, documents_hold_what_their_sources_say) {
    const auto bitter = load_sample("Recipes/Ploughman's Best Bitter.rec").document.recipe;
    // Pounds x points of potential at 75 % in 5 gallons.
    EXPECT_NEAR(bitter.og_points, (7.25 * 37.7 + 0.6 * 31.9 + 0.25 * 33.5) * 0.75 / 5, 0.01);
    EXPECT_EQ(bitter.target_ibu, 32); // half-way from 25 to 40, cut
    EXPECT_THAT(std::string(bitter.notes.view()), testing::HasSubstr("on its own.\r\nRouse the yeast"));
    const auto hops = load_sample("Recipes/Saltmarsh IPA.rec").document.recipe.hops; // boils 75 minutes
    EXPECT_EQ(std::tuple(hops[0].boil_time, hops[0].alpha, hops[4].boil_time), std::tuple(76, 12.6F, -5));
    const auto pull = load_sample("Recipes/Zlata Koruna Pilsner.rec").document.recipe.mash.used_steps()[1];
    EXPECT_EQ(std::tuple(pull.heat_type, pull.stop_temperature, pull.rest_minutes, pull.ratio),
              std::tuple(StepHeat::decoction, 150, 45, 0.65F));
    const auto session = load_sample("Sessions/Front Porch Pale Ale, Second Brewing.brw").document.session;
    EXPECT_EQ(std::tuple(session.brew_day, session.brew_month, session.brew_year), std::tuple(20, 4, 2024));
    EXPECT_THAT(std::string(session.session_notes[2].view()), testing::HasSubstr("dry finish.\r\nClear"));
}

TEST(MakeBrewery, first_start_takes_the_units_of_the_country_once) {
    const TemporaryFolder folder;
    const auto start_in = [&](bool is_metric) {
        take_units_of_country(folder / "brewery/", is_metric);
        const auto settings = LoadSystemFiles(folder / "brewery/").settings;
        return std::tuple(settings.volume_units, settings.temperature_units, settings.efficiency);
    };
    const auto american = std::tuple(Units::american, TemperatureUnits::fahrenheit, 0.72F);
    run("/", {"cp", "-r", made_brewery(), folder / "brewery"});
    EXPECT_EQ(start_in(true), std::tuple(Units::metric, TemperatureUnits::celsius, 0.72F));
    SaveSettingsFile(folder / "brewery/WlxMSys.DAT", new_brewery_settings());
    EXPECT_EQ(start_in(true), american) << "as the brewer chose later";
    std::filesystem::copy(made_brewery() + std::string(new_brewery_file), folder / "brewery/");
    auto own = new_brewery_settings();
    own.efficiency = 0.8F;
    SaveSettingsFile(folder / "brewery/WlxMSys.DAT", own);
    EXPECT_EQ(start_in(true), std::tuple(Units::american, TemperatureUnits::fahrenheit, 0.8F))
        << "settings that he brought along";
}

TEST(MakeBrewery, a_second_run_only_brings_back_what_is_missing) {
    const TemporaryFolder folder;
    const auto brewery = folder / "brewery/", wanted = folder / "wanted/";
    run("/", {"cp", "-r", made_brewery(), brewery});
    for (const std::string name : {"Recipes/Saltmarsh IPA.rec", "WlxMSys.DAT", "WlxCSys.DAT", "kv_lovrgb.ldt",
                                   "WATER_USAGE.DAT", "EXTRA.DAT"})
        write_content(brewery + name, "the brewer's own");
    std::filesystem::rename(brewery + "HOPS.DAT", brewery + "hops.dat"); // as some systems copy it
    run("/", {"cp", "-r", brewery, wanted});
    std::filesystem::remove(brewery + "MALT.DAT");
    EXPECT_EQ(run("/", {MAKE_BREWERY, DATA_FOLDER, brewery}).status, 0);
    EXPECT_EQ(run("/", {"diff", "-r", wanted, brewery}).status, 0);
}

// Runs with the first `text` in a source changed.
Ran make_from_changed(const TemporaryFolder& folder, const std::string& file, const std::string& text,
                      const std::string& instead) {
    run("/", {"cp", "-r", DATA_FOLDER, folder / "data"});
    auto content = content_of(folder / "data/" + file);
    content.replace(content.find(text), text.size(), instead);
    write_content(folder / "data/" + file, content);
    return run("/", {MAKE_BREWERY, folder / "data", folder / "brewery"});
}

TEST(MakeBrewery, bad_sources_are_refused_with_their_line) {
    std::string springs;
    for (int i = 0; i < 1000; ++i) springs += "Spring " + std::to_string(i) + ",0,0,0,0,0,0,7,\n";
    const std::array<std::string, 4> rows[] = {
        {"databases/hops.csv", "Pellet", "Cone", ":2: form"},
        {"databases/hops.csv", "14.5", "nan", ":2: .*is not a number"},
        {"databases/hops.csv", "alpha", "alfa", ":1: .*no column"},
        {"databases/hops.csv", "Northdown\"", "Northdown", ":2: .*not closed"},
        {"databases/malts.csv", "Rahr,", "", ":3: 14 cells where there are 15"},
        {"databases/water.csv", "Trent", "Trent and nearby", ":2: .*longer than 24"},
        {"databases/water.csv", "Burton", springs + "Burton", ":1002: .*more than the 1000"},
        {"databases/yeasts.csv", "Brewtek", "\xC5\x81", ":2: .*Windows-1252"},
        {"databases/styles_bjcp.csv", "1.028,1.040", "1.040,1.028", ":2: .*above"},
        {"samples/best_bitter.txt", "title", "titel", ": has no line \"title"},
        {"samples/best_bitter.txt", "Crisp", "Rahr", ":10: .*not in the database"},
        {"samples/best_bitter.txt", "water:", "watr:", ":21: .*not a key"},
        {"samples/california_common.txt", " | USA", "", ":13: .*more than once"},
        {"samples/brew_day_pilsner.txt", "2024-01-13", "2024-02-30", ":31: .*no day"},
    };
    for (const auto& [file, text, instead, told] : rows) {
        const TemporaryFolder folder;
        const auto ran = make_from_changed(folder, file, text, instead);
        EXPECT_EQ(ran.status, 1) << file << told;
        EXPECT_EQ(lines_of(ran.err).size(), 1U) << ran.err;
        EXPECT_THAT(ran.err, testing::ContainsRegex(file + told));
        EXPECT_FALSE(std::filesystem::exists(folder / "brewery"));
    }
}

} // namespace
} // namespace wortlex
