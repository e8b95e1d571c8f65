// The six database files: a count and 1,000 record slots, dumped whole. All slots are kept, used or not.
#pragma once

#include "base/files.h"
#include "base/ports/prompts.h"
#include "records/ingredients/ingredients.h"

#include <algorithm>

namespace wortlex {

inline constexpr std::size_t database_slots = 1000;

/// What is in a database file; the first `count` slots are entries.
template <class Record>
struct Database {
    std::int32_t count = 0;
    std::vector<Record> slots = std::vector<Record>(database_slots);

    std::span<const Record> entries() const {
        return std::span(slots).first(static_cast<std::size_t>(count));
    }
    bool operator==(const Database&) const = default;
};

enum class DatabaseState { loaded, missing, damaged };

/// Reads a database from the bytes of its file. A file that is too short, or whose count is negative or
/// above 1,000, is damaged; the database then holds as much as there is.
template <class Record, class RecordLayout>
DatabaseState read_database(ByteView file, const RecordLayout& format, Database<Record>& database) {
    database = {};
    constexpr std::size_t whole = 4 + database_slots * RecordLayout::size;
    if (file.size() < 4) return DatabaseState::damaged;
    const auto count = get_little_endian<std::int32_t>(file.data());
    const auto most =
        static_cast<std::int32_t>(std::min(database_slots, (file.size() - 4) / RecordLayout::size));
    database.count = std::clamp(count, 0, most);
    ByteReader reader(file.subspan(4));
    for (auto& slot : database.slots) reader.read(slot, format);
    return database.count == count && file.size() >= whole ? DatabaseState::loaded : DatabaseState::damaged;
}

/// The bytes of the file.
template <class Record, class RecordLayout>
Bytes database_bytes(const Database<Record>& database, const RecordLayout& format) {
    Bytes file(4);
    file.reserve(4 + database_slots * RecordLayout::size);
    put_little_endian(database.count, file.data());
    for (const auto& slot : database.slots) append(file, slot, format);
    return file;
}

/// Their names, in the data folder.
inline constexpr std::string_view hop_file = "HOPS.DAT", malt_file = "MALT.DAT", yeast_file = "YEAST.DAT",
                                  water_file = "WATER.DAT", extra_file = "EXTRA.DAT",
                                  aha_style_file = "STYLES.DAT", bjcp_style_file = "STYLES.BJCP";

/// Reads one of them, telling nobody.
template <class Record, class RecordLayout>
DatabaseState read_database_file(const std::string& data_folder, std::string_view name,
                                 const RecordLayout& format, Database<Record>& database) {
    database = {};
    const auto file = read_file(find_data_file(data_folder, name), 4 + database_slots * RecordLayout::size);
    return file ? read_database(*file, format, database) : DatabaseState::missing;
}

/// Each reads its file in the data folder. What is missing or damaged is told by name, opened as far as it
/// holds and never overwritten unasked.
DatabaseState LoadHops(const std::string& data_folder, Database<HopRecord>& hops, Prompts& prompts);
DatabaseState LoadMalts(const std::string& data_folder, Database<MaltRecord>& malts, Prompts& prompts);
DatabaseState LoadYeasts(const std::string& data_folder, Database<YeastRecord>& yeasts, Prompts& prompts);
DatabaseState LoadWater(const std::string& data_folder, Database<WaterRecord>& water, Prompts& prompts);
DatabaseState LoadExtras(const std::string& data_folder, Database<ExtraRecord>& extras, Prompts& prompts);
/// The two sets of styles have a file each.
DatabaseState LoadStyles(const std::string& data_folder, bool bjcp, Database<StyleRecord>& styles,
                         Prompts& prompts);

/// Each replaces its file atomically and answers whether it stands.
bool SaveHops(const std::string& data_folder, const Database<HopRecord>& hops);
bool SaveMalts(const std::string& data_folder, const Database<MaltRecord>& malts);
bool SaveYeasts(const std::string& data_folder, const Database<YeastRecord>& yeasts);
bool SaveWater(const std::string& data_folder, const Database<WaterRecord>& water);
bool SaveExtras(const std::string& data_folder, const Database<ExtraRecord>& extras);
bool SaveStyles(const std::string& data_folder, bool bjcp, const Database<StyleRecord>& styles);

} // namespace wortlex
