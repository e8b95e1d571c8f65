// make-brewery: makes the folder that the program runs in from the sources in data/. What is there already is
// left as it is, so it can be run again over a brewer's own folder.
#include "base/files.h"
#include "brewing/beer_colour.h"
#include "databases/find.h"
#include "databases/shipped.h"
#include "records/documents/document_files.h"
#include "records/water/water_needs.h"
#include "sample_sources.h"
#include "settings/new_brewery.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

std::vector<Sample> read_samples(const std::string& folder, const Databases& databases,
                                 const Settings& settings) {
    std::vector<std::string> paths;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".txt") paths.push_back(entry.path().string());
    }
    if (error) throw SourceFault(folder + ": cannot be read");
    std::sort(paths.begin(), paths.end());
    std::vector<Sample> samples;
    samples.reserve(paths.size());
    for (const auto& path : paths) samples.push_back(read_sample(path, databases, settings));
    return samples;
}

void make_folder(const std::string& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error)) throw SourceFault(folder + ": cannot be made");
}

// Calls `save` for a file that is not there yet, under whatever capitals.
template <class Save>
void make_file(const std::string& folder, std::string_view name, Save save) {
    const auto path = find_data_file(folder, name);
    if (!fs::exists(fs::symlink_status(path)) && !save()) throw SourceFault(path + ": cannot be written");
}

void make_system_files(const std::string& folder, const SystemSettings& settings) {
    make_file(folder, "WlxMSys.DAT", [&] {
        return SaveSettingsFile(folder + "WlxMSys.DAT", settings) &&
               save_atomically(folder + std::string(new_brewery_file), {});
    });
    // Not "loaded": the settings have been dealt with, this writes the competition data alone.
    make_file(folder, "WlxCSys.DAT", [&] { return SaveSystemFiles(folder, {settings, {}, false}); });
    make_file(folder, "WATER_USAGE.DAT", [&] {
        WaterNeeds usual;
        usual.evaporation_rate = 10;
        return SaveWaterUsage(folder, usual);
    });
    make_file(folder, color_table_file, [&] {
        constexpr std::int64_t seed = 1; // every brewery starts with the same file
        auto table = built_in_color_table();
        return SaveColorTable(folder + std::string(color_table_file), table, seed);
    });
}

void make_databases(const std::string& folder, const Databases& databases) {
    make_file(folder, "HOPS.DAT", [&] { return SaveHops(folder, databases.hops); });
    make_file(folder, "MALT.DAT", [&] { return SaveMalts(folder, databases.malts); });
    make_file(folder, "YEAST.DAT", [&] { return SaveYeasts(folder, databases.yeasts); });
    make_file(folder, "WATER.DAT", [&] { return SaveWater(folder, databases.water); });
    make_file(folder, "EXTRA.DAT", [&] { return SaveExtras(folder, databases.extras); });
    make_file(folder, "STYLES.DAT", [&] { return SaveStyles(folder, false, databases.aha_styles); });
    make_file(folder, "STYLES.BJCP", [&] { return SaveStyles(folder, true, databases.bjcp_styles); });
}

// A brewer who deletes any of them is not offered them again.
void note_names(const std::string& folder, const Databases& databases, const Settings& settings) {
    ShippedNames names;
    add_names(names, hop_catalogue(settings, folder), databases.hops);
    add_names(names, malt_catalogue(settings, folder), databases.malts);
    add_names(names, yeast_catalogue(settings, folder), databases.yeasts);
    add_names(names, water_catalogue(settings, folder, {}), databases.water);
    add_names(names, extra_catalogue(settings, folder), databases.extras);
    add_names(names, style_catalogue(settings, folder, StyleBook::aha), databases.aha_styles);
    add_names(names, style_catalogue(settings, folder, StyleBook::bjcp), databases.bjcp_styles);
    make_file(folder, shipped_names_file, [&] {
        return save_atomically(folder + std::string(shipped_names_file), shipped_names_bytes(names));
    });
}

void copy_other_names(const std::string& source, const std::string& folder) {
    const auto text = read_file(source);
    if (!text) throw SourceFault(source + ": cannot be read");
    make_file(folder, other_names_file,
              [&] { return save_atomically(folder + std::string(other_names_file), *text); });
}

void make_sample(const std::string& folder, const Sample& sample) {
    const bool is_session = sample.kind == DocumentKind::session;
    const auto place =
        folder + std::string(default_sub_folder(is_session ? FolderKind::sessions : FolderKind::recipes));
    make_file(place, sample.file_name(), [&] {
        return save_atomically(place + sample.file_name(),
                               is_session ? session_bytes(sample.document, sample.session)
                                          : recipe_bytes(sample.document));
    });
}

// All sources are read before the first file is written: a mistake in one makes nothing.
void make_brewery(const std::string& data, const std::string& target) {
    const auto image = new_brewery_settings();
    const auto databases = read_databases(data + "databases/");
    auto repaired = image;
    const auto settings = settings_from(repaired);
    const auto samples = read_samples(data + "samples/", databases, settings);
    make_folder(target);
    for (std::size_t i = 0; i < folder_kinds; ++i)
        make_folder(target + std::string(default_sub_folder(static_cast<FolderKind>(i))));
    make_system_files(target, image);
    make_databases(target, databases);
    note_names(target, databases, settings);
    copy_other_names(data + "databases/other_names.txt", target);
    for (const auto& sample : samples) make_sample(target, sample);
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("Usage: make-brewery DATA_DIR TARGET_DIR\n", stderr);
        return 2;
    }
    try {
        wortlex::make_brewery(wortlex::native_folder(arguments[1]), wortlex::native_folder(arguments[2]));
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "make-brewery: %s\n", fault.what());
        return 1;
    }
    return 0;
}
