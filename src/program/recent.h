// The documents opened last, newest first.
#pragma once

#include <string>
#include <vector>

namespace wortlex {

/// Native paths, of each kind of document at most `recent_limit`.
using RecentDocuments = std::vector<std::string>;

inline constexpr std::size_t recent_limit = 9;

/// Reads the list, a path a line, from the data folder where it is not a whole one. What is no path is left
/// out; a missing or overlong file gives an empty list.
RecentDocuments LoadRecent(const std::string& data_folder);
bool SaveRecent(const std::string& data_folder, const RecentDocuments& recent);

/// Puts a path first. A path with control characters cannot stand in the list and changes nothing.
void remember(RecentDocuments& recent, const std::string& path);

/// How a menu names an entry: the file, and its folder too where another entry has the same file name.
std::string recent_name(const RecentDocuments& recent, std::size_t index);

} // namespace wortlex
