// The records of a transfer file, and whether they are any.
#pragma once

#include "base/bytes.h"
#include "databases/catalogue.h"
#include "databases/messages.h"

#include <cmath>

namespace wortlex {

/// What is told of a file without a record, of damaged records, and of those that found no room.
std::string nothing_to_import(const std::string& name);
std::string left_out_unreadable(std::size_t count);
std::string database_full(std::string_view full, int left_out);

namespace importing {

/// Terminated, and without control characters but line breaks.
bool is_sound_text(std::string_view whole_array);

template <class Field>
bool is_sound(const Field& field) {
    if constexpr (stored::IsText<Field>::value) {
        return is_sound_text({field.bytes.data(), field.bytes.size()});
    } else if constexpr (std::is_floating_point_v<Field>) {
        return std::isfinite(field);
    } else {
        return true;
    }
}

} // namespace importing

/// Whether a record can be one: its texts end and hold no control characters, its figures are numbers.
template <class Record>
bool looks_like_a_record(const Record& record) {
    bool sound = true;
    layout_of(record).fields.each(
        [&](const auto& field) { sound = sound && importing::is_sound(std::invoke(field.access, record)); });
    return sound;
}

/// The whole records of a transfer file; one cut short by its end is dropped.
template <class Record>
std::vector<Record> transferred(ByteView file) {
    constexpr auto size = std::remove_cvref_t<decltype(layout_of(Record{}))>::size;
    std::vector<Record> records(file.size() / size);
    ByteReader reader(file);
    for (auto& record : records) reader.read(record, layout_of(record));
    return records;
}

} // namespace wortlex
