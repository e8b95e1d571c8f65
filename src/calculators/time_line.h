// A time line: the events of a brew day and the comments on them, and its file.
#pragma once

#include "base/layout.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wortlex {

struct TimeEntry {
    std::int32_t moment = 0; ///< seconds since 1970; 0 before its event has come
    Text<1042> comment;
};

inline constexpr std::size_t most_time_entries = 250;
inline constexpr std::size_t most_comment_bytes = 1022;

struct TimeLine {
    std::vector<TimeEntry> entries; ///< at most `most_time_entries`
    Text<255> path;                 ///< of the file that it was saved to
};

/// The size of every such file: the entries in it that are not used are blank.
inline constexpr std::size_t time_line_size = 261759;

/// Reads as many entries as a short file holds; nothing if it claims more or less than a time line can have.
std::optional<TimeLine> read_time_line(ByteView file);
Bytes time_line_bytes(const TimeLine& line);

/// "17:04:59" of a moment on the user's clock.
std::string clock_text(std::int32_t moment);
/// "00:04:59" between two moments; begins anew after a day.
std::string running_text(std::int32_t from, std::int32_t to);

} // namespace wortlex
