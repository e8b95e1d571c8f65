#include "records/ingredients/database_file.h"

namespace wortlex {
namespace {

std::string_view style_file(bool bjcp) {
    return bjcp ? bjcp_style_file : aha_style_file;
}

template <class Record, class RecordLayout>
DatabaseState load(const std::string& folder, std::string_view name, const RecordLayout& format,
                   Database<Record>& database, Prompts& prompts) {
    const auto state = read_database_file(folder, name, format, database);
    if (state != DatabaseState::loaded) {
        const auto* const what = state == DatabaseState::missing
                                     ? " was not found. Its database is empty until the file is back."
                                     : " is damaged or too short. It is shown as far as it holds, and stays "
                                       "as it is until you save.";
        prompts.tell({.text = "The file " + std::string(name) + what, .icon = Icon::warning});
    }
    return state;
}

template <class Record, class RecordLayout>
bool save(const std::string& folder, std::string_view name, const RecordLayout& format,
          const Database<Record>& database) {
    return save_atomically(find_data_file(folder, name), database_bytes(database, format));
}

} // namespace

DatabaseState LoadHops(const std::string& data_folder, Database<HopRecord>& hops, Prompts& prompts) {
    return load(data_folder, hop_file, hop_layout, hops, prompts);
}

DatabaseState LoadMalts(const std::string& data_folder, Database<MaltRecord>& malts, Prompts& prompts) {
    return load(data_folder, malt_file, malt_layout, malts, prompts);
}

DatabaseState LoadYeasts(const std::string& data_folder, Database<YeastRecord>& yeasts, Prompts& prompts) {
    return load(data_folder, yeast_file, yeast_layout, yeasts, prompts);
}

DatabaseState LoadWater(const std::string& data_folder, Database<WaterRecord>& water, Prompts& prompts) {
    return load(data_folder, water_file, water_layout, water, prompts);
}

DatabaseState LoadExtras(const std::string& data_folder, Database<ExtraRecord>& extras, Prompts& prompts) {
    return load(data_folder, extra_file, extra_layout, extras, prompts);
}

DatabaseState LoadStyles(const std::string& data_folder, bool bjcp, Database<StyleRecord>& styles,
                         Prompts& prompts) {
    return load(data_folder, style_file(bjcp), style_layout, styles, prompts);
}

bool SaveHops(const std::string& data_folder, const Database<HopRecord>& hops) {
    return save(data_folder, hop_file, hop_layout, hops);
}

bool SaveMalts(const std::string& data_folder, const Database<MaltRecord>& malts) {
    return save(data_folder, malt_file, malt_layout, malts);
}

bool SaveYeasts(const std::string& data_folder, const Database<YeastRecord>& yeasts) {
    return save(data_folder, yeast_file, yeast_layout, yeasts);
}

bool SaveWater(const std::string& data_folder, const Database<WaterRecord>& water) {
    return save(data_folder, water_file, water_layout, water);
}

bool SaveExtras(const std::string& data_folder, const Database<ExtraRecord>& extras) {
    return save(data_folder, extra_file, extra_layout, extras);
}

bool SaveStyles(const std::string& data_folder, bool bjcp, const Database<StyleRecord>& styles) {
    return save(data_folder, style_file(bjcp), style_layout, styles);
}

} // namespace wortlex
