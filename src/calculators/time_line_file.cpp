#include "calculators/time_line.h"

#include "base/number.h"

#include <algorithm>
#include <ctime>

namespace wortlex {
namespace {

constexpr auto count_layout = layout<std::int32_t, 4>(at(
    0, [](auto& count) -> auto& { return count; }));
constexpr auto time_entry_layout =
    layout<TimeEntry, 1046>(at(0, &TimeEntry::moment), at(4, &TimeEntry::comment));
constexpr auto path_layout = layout<Text<255>, 255>(at(
    0, [](auto& path) -> auto& { return path; }));

std::string hours_minutes_seconds(int hours, int minutes, int seconds) {
    return formatted("%02d:", hours) + formatted("%02d:", minutes) + formatted("%02d", seconds);
}

} // namespace

std::optional<TimeLine> read_time_line(ByteView file) {
    ByteReader reader(file);
    std::int32_t count = 0;
    reader.read(count, count_layout);
    if (count < 0 || count > static_cast<std::int32_t>(most_time_entries)) return std::nullopt;
    TimeLine line;
    for (std::size_t i = 0; i < most_time_entries; ++i) {
        const bool is_there = !reader.rest().empty();
        TimeEntry entry;
        reader.read(entry, time_entry_layout);
        if (is_there && i < static_cast<std::size_t>(count)) line.entries.push_back(entry);
    }
    reader.read(line.path, path_layout);
    return line;
}

Bytes time_line_bytes(const TimeLine& line) {
    Bytes file;
    file.reserve(time_line_size);
    append(file, static_cast<std::int32_t>(line.entries.size()), count_layout);
    for (std::size_t i = 0; i < most_time_entries; ++i)
        append(file, i < line.entries.size() ? line.entries[i] : TimeEntry(), time_entry_layout);
    append(file, line.path, path_layout);
    return file;
}

std::string clock_text(std::int32_t moment) {
    const std::time_t seconds = moment;
    std::tm local{};
    ::localtime_r(&seconds, &local);
    return hours_minutes_seconds(local.tm_hour, local.tm_min, local.tm_sec);
}

std::string running_text(std::int32_t from, std::int32_t to) {
    constexpr std::int64_t day = 86400;
    const auto seconds = static_cast<int>(((std::int64_t{to} - from) % day + day) % day);
    return hours_minutes_seconds(seconds / 3600, seconds / 60 % 60, seconds % 60);
}

} // namespace wortlex
