#include "base/files.h"
#include "calculators/beer_colour.h"
#include "documents/records/document_files.h"
#include "frame/settings/system_files.h"
#include "support/process.h"
#include "water/records/water_needs.h"

#include <gmock/gmock.h>

#include <map>

namespace wortlex {
namespace {

using testing::HasSubstr;

Settings default_settings() {
    auto image = WriteDefaultSettings();
    return settings_from(image);
}

// A database file as bytes: what is asked of it, it is asked at the places of the file format.
struct Entries {
    std::string content;
    std::size_t size;

    Entries(const std::string& file, std::size_t record_size)
        : content(content_of(made_brewery() + file)), size(record_size) {
        EXPECT_EQ(content.size(), 4 + 1000 * size) << file;
    }
    template <class Scalar>
    double number(std::size_t at) const {
        return get_little_endian<Scalar>(reinterpret_cast<const std::byte*>(content.data()) + at);
    }
    std::size_t count() const { return static_cast<std::size_t>(number<std::int32_t>(0)); }
    std::string text(std::size_t entry, std::size_t offset) const {
        return content.c_str() + 4 + entry * size + offset;
    }
    std::string folded(std::size_t entry, std::size_t offset) const {
        auto folded = text(entry, offset);
        for (auto& c : folded) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
        return folded;
    }
    std::size_t find(const std::string& name, std::size_t offset) const {
        std::size_t entry = 0;
        while (entry < count() && text(entry, offset) != name) ++entry;
        return entry;
    }
};

TEST(MakeBrewery, databases_hold_every_row_in_order) {
    const struct {
        std::string file;
        std::size_t size;
        std::string csv, first, last;
        std::vector<std::size_t> keys; // offsets of the texts that decide the order
    } rows[] = {
        {"HOPS.DAT", 614, "hops.csv", "Admiral", "Zeus", {0, 241}},
        {"MALT.DAT", 521, "malts.csv", "2-Row Brewers Malt", "White Wheat Malt", {0, 55}},
        {"YEAST.DAT", 468, "yeasts.csv", "American Microbrewery 1", "Hessian Pils", {55, 110, 0}},
        {"WATER.DAT", 222, "water.csv", "Amber and Balanced", "Yorkshire", {0}},
        {"EXTRA.DAT", 577, "extras.csv", "Allspice", "Yeast Nutrient", {0}},
        {"STYLES.DAT", 1031, "styles_aha.csv", "Barley Wine", "Sake", {}},
        {"STYLES.BJCP", 1031, "styles_bjcp.csv", "Standard American Beer", "Specialty Cider and Perry", {}},
    };
    for (const auto& row : rows) {
        const Entries entries(row.file, row.size);
        ASSERT_EQ(entries.count() + 1, lines_of(content_of(DATA_FOLDER "databases/" + row.csv)).size());
        EXPECT_EQ(entries.text(0, 0), row.first);
        EXPECT_EQ(entries.text(entries.count() - 1, 0), row.last);
        const auto key_of = [&](std::size_t entry) {
            std::vector<std::string> key;
            for (const auto offset : row.keys) key.push_back(entries.folded(entry, offset));
            const auto number = 4 + entry * row.size + 1026;
            if (row.keys.empty())
                key = {static_cast<char>(entries.number<std::int16_t>(number)) + entries.text(entry, 1028)};
            return key;
        };
        for (std::size_t i = 1; i < entries.count(); ++i)
            EXPECT_LE(key_of(i - 1), key_of(i)) << row.file << i;
    }
}

TEST(MakeBrewery, entries_are_the_rows_of_the_tables) {
    enum Kind { byte, whole, real };
    const struct {
        std::string file;
        std::size_t size, name_at;
        std::string name;
        std::size_t offset;
        Kind kind;
        double value;
    } rows[] = {
        {"HOPS.DAT", 614, 0, "Admiral", 55, real, 14.5},
        {"HOPS.DAT", 614, 0, "Admiral", 80, byte, 1},
        {"HOPS.DAT", 614, 0, "Admiral", 81, byte, 0x21},    // pellet; 15 % lost is good
        {"HOPS.DAT", 614, 0, "Kitamidori", 81, byte, 0x22}, // 25 % is average already
        {"HOPS.DAT", 614, 0, "Cascade", 81, byte, 0x23},    // 50 % poor; "Pellet" before "Whole"
        {"HOPS.DAT", 614, 0, "Fuggle", 81, byte, 0x22},     // UK first, and its pellets before its plugs
        {"MALT.DAT", 521, 0, "Amber DME", 165, byte, 2},
        {"MALT.DAT", 521, 0, "2-Row Brewers Malt", 166, byte, 1},
        {"MALT.DAT", 521, 0, "2-Row Brewers Malt", 191, real, 0.79},
        {"MALT.DAT", 521, 0, "2-Row Brewers Malt", 513, real, 37.4 / 46.21 * 100},
        {"MALT.DAT", 521, 0, "2-Row Brewers Malt", 517, real, 37.4 / 46.21 * 100 - 1},
        {"MALT.DAT", 521, 0, "Ch\xE2teau Abbey", 171, real, 17.4},
        {"YEAST.DAT", 468, 0, "American Microbrewery 1", 136, byte, 2},
        {"YEAST.DAT", 468, 0, "American Microbrewery 1", 459, whole, 78},
        {"YEAST.DAT", 468, 0, "American Microbrewery 1", 467, byte, 1},
        {"YEAST.DAT", 468, 0, "Lalvin EC-1118", 135, byte, 3},
        {"WATER.DAT", 222, 0, "Burton on Trent", 43, real, 725},
        {"EXTRA.DAT", 577, 0, "Bentonite", 55, byte, 4},
        {"EXTRA.DAT", 577, 0, "Bentonite", 60, byte, 1},
        {"EXTRA.DAT", 577, 0, "Bentonite", 62, byte, 4},
        {"STYLES.BJCP", 1031, 55, "Cream Ale", 110, byte, 5},
        {"STYLES.BJCP", 1031, 55, "Cream Ale", 115, real, 1.055},
        {"STYLES.BJCP", 1031, 55, "Cream Ale", 1028, byte, 'C'},
        {"STYLES.BJCP", 1031, 55, "Cream Ale", 1030, byte, 1},
        {"STYLES.DAT", 1031, 55, "Tripel", 1030, byte, 0},
    };
    for (const auto& row : rows) {
        const Entries entries(row.file, row.size);
        const auto at = 4 + entries.find(row.name, row.name_at) * row.size + row.offset;
        const double value = row.kind == byte    ? entries.number<std::uint8_t>(at)
                             : row.kind == whole ? entries.number<std::int32_t>(at)
                                                 : entries.number<float>(at);
        EXPECT_NEAR(value, row.value, 0.0001) << row.file << " " << row.name << " " << row.offset;
    }
}

TEST(MakeBrewery, system_files_are_the_defaults) {
    const auto system = LoadSystemFiles(made_brewery());
    EXPECT_TRUE(system.loaded);
    EXPECT_EQ(system.settings, WriteDefaultSettings());
    WaterNeeds usual, wanted;
    wanted.evaporation_rate = 10;
    LoadWaterUsage(made_brewery(), usual);
    EXPECT_EQ(usual, wanted);
    ColorTable table;
    ASSERT_TRUE(LoadColorTable(made_brewery() + std::string(color_table_file), table));
    EXPECT_EQ(table.rows[399].red, built_in_color_table().rows[399].red);
    for (std::size_t kind = 0; kind < folder_kinds; ++kind)
        EXPECT_TRUE(std::filesystem::is_directory(
            made_brewery() + std::string(default_sub_folder(static_cast<FolderKind>(kind)))));
}

// What was loaded, and the file that it would be saved as.
struct LoadedSample {
    LoadResult result{};
    BrewDocument document;
    SessionDocument session;
    Bytes bytes;
};

LoadedSample load_sample(const std::string& file) {
    LoadedSample sample;
    const auto path = made_brewery() + file;
    const auto settings = default_settings();
    if (file.ends_with(".rec")) {
        sample.result = load_recipe(path, sample.document, settings);
        sample.bytes = recipe_bytes(sample.document);
    } else {
        sample.result = load_session(path, sample.document, sample.session, settings);
        sample.bytes = session_bytes(sample.document, sample.session);
    }
    return sample;
}

TEST(MakeBrewery, samples_come_back_byte_for_byte_and_are_within_their_style) {
    const auto files = sample_files(made_brewery());
    EXPECT_GE(files.size(), 12U);
    for (const auto& file : files) {
        const auto sample = load_sample(file);
        EXPECT_EQ(sample.result, LoadResult::loaded) << file;
        EXPECT_TRUE(sample.bytes == read_file(made_brewery() + file)) << file;
        const auto& document = sample.document;
        const auto& style = document.style;
        const float sg = document.og_points / 1000 + 1;
        const float srm = beer_colour(document.malts, document.batch_size, ColorFormula::Morey).srm;
        EXPECT_TRUE(sg >= style.min_og && sg <= style.max_og) << file << sg;
        EXPECT_TRUE(document.total_ibu >= style.min_ibu && document.total_ibu <= style.max_ibu) << file;
        EXPECT_TRUE(srm >= style.min_colour && srm <= style.max_colour) << file << srm;
    }
}

TEST(MakeBrewery, a_recipe_holds_what_its_source_says) {
    const auto bitter = load_sample("Recipes/Ploughman's Best Bitter.rec").document;
    // Pounds x points of potential at 75 % in 5 gallons.
    EXPECT_NEAR(bitter.og_points, (7.25 * 37.7 + 0.6 * 31.9 + 0.25 * 33.5) * 0.75 / 5, 0.01);
    EXPECT_EQ(bitter.target_ibu, 32); // half-way from 25 to 40, cut
    EXPECT_THAT(std::string(bitter.notes.view()), HasSubstr("on its own.\r\nRouse the yeast"));
    const auto& hop = bitter.hops.at(0);
    EXPECT_EQ(hop.age_months, 1);
    EXPECT_EQ(hop.storage_temperature, 20.0F);
    EXPECT_EQ(hop.storage_kind, StorageKind::airtight);
    EXPECT_EQ(hop.alpha, 7.5F);
    EXPECT_EQ(bitter.yeast.record.name.view(), "London ESB Ale");
    EXPECT_EQ(bitter.simple_mash.saccharification, (Rest{152, 60}));

    const auto ipa = load_sample("Recipes/Saltmarsh IPA.rec").document; // boils 75 minutes
    EXPECT_EQ(ipa.hops.at(0).boil_time, 76);
    EXPECT_EQ(ipa.hops.at(0).alpha, 12.6F);
    EXPECT_EQ(ipa.hops.at(0).record.alpha, 13.0F);
    EXPECT_EQ(ipa.hops.at(4).boil_time, -5);
    EXPECT_EQ(load_sample("Recipes/Lighterman Porter.rec").document.hops.at(0).boil_time, 62);

    const auto pilsner = load_sample("Recipes/Zlata Koruna Pilsner.rec").document;
    EXPECT_TRUE(has_complex_schedule(pilsner));
    EXPECT_EQ(pilsner.mash.mash_name.view(), "Double decoction");
    const auto& pull = pilsner.mash.used_steps()[1];
    EXPECT_EQ(pull.heat_type, StepHeat::decoction);
    EXPECT_EQ(std::tuple(pull.start_temperature, pull.stop_temperature, pull.rest_minutes, pull.step_minutes,
                         pull.infuse_temperature, pull.ratio),
              std::tuple(152, 150, 45, 30, 210, 0.65F));
    EXPECT_GT(pull.amount, 0);
}

TEST(MakeBrewery, a_session_holds_what_its_source_says) {
    const auto sample = load_sample("Sessions/Front Porch Pale Ale, Second Brewing.brw");
    const auto& session = sample.session;
    EXPECT_EQ(sample.document.wort_size, 5.5F);
    EXPECT_EQ(std::tuple(session.brew_day, session.brew_month, session.brew_year), std::tuple(20, 4, 2024));
    EXPECT_EQ(session.bottling.bottling_month, 5);
    EXPECT_EQ(session.infusions.heat_type, SimpleHeat::infusion);
    EXPECT_EQ(session.infusions.mash_out.temperature, 210);
    EXPECT_EQ(session.water_needs.chiller, 0.1F);
    EXPECT_EQ(session.tail.recorded_volume, 5.3F);
    EXPECT_EQ(session.fermentation.primary_days, 8);
    EXPECT_EQ(session.bottling.used[0], 1);
    EXPECT_EQ(session.session_notes[2].view(),
              "Grapefruit up front, dry finish.\r\nClear after three weeks.");
}

std::map<std::string, std::string> all_files(const std::string& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) files[entry.path().string()] = content_of(entry.path().string());
    }
    return files;
}

TEST(MakeBrewery, a_second_run_only_brings_back_what_is_missing) {
    const TemporaryFolder folder;
    const auto brewery = folder / "brewery/";
    std::filesystem::copy(made_brewery(), brewery, std::filesystem::copy_options::recursive);
    const auto recipe = brewery + "Recipes/Saltmarsh IPA.rec";
    for (const auto& name : {std::string("Recipes/Saltmarsh IPA.rec"), std::string("WlxMSys.DAT"),
                             std::string("WlxCSys.DAT"), std::string("kv_lovrgb.ldt")})
        write_content(brewery + name, "the brewer's own");
    std::filesystem::rename(brewery + "HOPS.DAT", brewery + "hops.dat"); // as some systems copy it
    auto wanted = all_files(brewery);
    std::filesystem::remove(brewery + "MALT.DAT");
    EXPECT_EQ(run("/", {MAKE_BREWERY, DATA_FOLDER, brewery}).status, 0);
    EXPECT_TRUE(all_files(brewery) == wanted);
}

TEST(MakeBrewery, bad_sources_are_refused_with_their_line) {
    const struct {
        std::string file;
        std::size_t line;
        std::string text, instead, reason;
    } rows[] = {
        {"databases/hops.csv", 2, "Pellet", "Cone", "form"},
        {"databases/hops.csv", 2, "14.5", "strong", "not a number"},
        {"databases/hops.csv", 2, "14.5", "nan", "within 0 to 100"},
        {"databases/hops.csv", 2, "14.5", "100.5", "within 0 to 100"},
        {"databases/hops.csv", 1, "alpha", "alfa", "no column"},
        {"databases/hops.csv", 2, "Northdown\"", "Northdown", "not closed"},
        {"databases/malts.csv", 3, "Rahr,", "", "14 cells where there are 15"},
        {"databases/malts.csv", 3, "Rahr", std::string(53, 'r'), "longer than 52"},
        {"databases/water.csv", 2, "Burton on Trent", "Burton on Trent and nearby", "longer than 24"},
        {"databases/yeasts.csv", 2, "Brewtek", "\xC5\x81\xC3\xB3\x64\xC5\xBA", "Windows-1252"},
        {"databases/yeasts.csv", 2, "Brewtek", "\xFF", "UTF-8"},
        {"databases/yeasts.csv", 2, "American Microbrewery 1", "", "empty"},
        {"databases/styles_bjcp.csv", 2, "1.028,1.040", "1.040,1.028", "above"},
        {"samples/best_bitter.txt", 3, "title", "titel", ""},
        {"samples/best_bitter.txt", 5, "Best Bitter", "Better Bitter", "not in the database"},
        {"samples/best_bitter.txt", 10, "Crisp", "Rahr", "not in the database"},
        {"samples/best_bitter.txt", 14, "60", "61", "within 0 to 60"},
        {"samples/best_bitter.txt", 8, "boil", "kind", "second time"},
        {"samples/best_bitter.txt", 8, "boil", "boyl", "not a key"},
        {"samples/california_common.txt", 13, " | USA", "", "more than once"},
        {"samples/hefeweizen.txt", 23, "infuse", "direct", "first step"},
        {"samples/brew_day_pilsner.txt", 31, "2024-01-13", "2024-02-30", "no day"},
    };
    for (const auto& row : rows) {
        const TemporaryFolder folder;
        std::filesystem::copy(DATA_FOLDER, folder / "data", std::filesystem::copy_options::recursive);
        const auto path = folder / "data/" + row.file;
        auto lines = lines_of(content_of(path));
        auto& line = lines.at(row.line - 1);
        ASSERT_NE(line.find(row.text), std::string::npos) << row.file << ":" << row.line << " " << line;
        line.replace(line.find(row.text), row.text.size(), row.instead);
        std::string content;
        for (const auto& each : lines) content += each + "\n";
        write_content(path, content);
        const auto ran = run("/", {MAKE_BREWERY, folder / "data", folder / "brewery"});
        EXPECT_EQ(ran.status, 1) << row.file << " " << row.instead;
        EXPECT_EQ(lines_of(ran.err).size(), 1U) << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(row.reason));
        // A line that is missing has no number.
        EXPECT_THAT(ran.err,
                    HasSubstr(row.file + (row.reason.empty() ? ":" : ":" + std::to_string(row.line) + ":")));
        EXPECT_FALSE(std::filesystem::exists(folder / "brewery"));
    }
}

TEST(MakeBrewery, a_database_holds_a_thousand_entries) {
    const TemporaryFolder folder;
    std::filesystem::copy(DATA_FOLDER, folder / "data", std::filesystem::copy_options::recursive);
    const auto path = folder / "data/databases/water.csv";
    auto content = lines_of(content_of(path)).at(0) + "\n";
    for (int i = 0; i < 1001; ++i) content += "Spring " + std::to_string(i) + ",0,0,0,0,0,0,7,\n";
    write_content(path, content);
    const auto ran = run("/", {MAKE_BREWERY, folder / "data", folder / "brewery"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("water.csv:1002:"));
}

} // namespace
} // namespace wortlex
