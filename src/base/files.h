// Files as runs of bytes: reading that trusts nothing, saving that loses nothing.
#pragma once

#include "base/bytes.h"
#include "base/ports/prompts.h"

#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// Nothing that this program reads is larger; what is, is somebody else's file.
inline constexpr std::size_t largest_file = std::size_t{256} << 20;

/// What the user is told of a document or schedule that cannot be opened.
inline constexpr std::string_view file_not_found = "File Not Found!";

/// The first `limit` bytes of a file; nothing if it cannot be opened, is no regular file or breaks
/// off with an error.
std::optional<Bytes> read_file(const std::string& path, std::size_t limit = largest_file);

/// Replaces `path` by `content`, wholly or not at all: the bytes go to a file beside it, are flushed
/// to the disk and take its place. A symbolic link keeps pointing, mode and owner are kept. A file
/// that could not itself be opened for writing is refused. Returns whether the new content stands.
bool save_atomically(const std::string& path, ByteView content);

/// Saves so, or tells the user that the file could not be written and what may be the reason.
bool save_or_tell(const std::string& path, ByteView content, Prompts& prompts);

/// Removes what saves left in a folder that were killed before they came to their end. Each save does so in
/// its own folder; what others are saving there is left alone.
void remove_broken_saves(const std::string& folder);

/// Enough of a file to notice that somebody else has written it.
struct FileStamp {
    std::int64_t modified = 0; ///< in the ticks of the file system's clock
    std::uintmax_t size = 0;

    bool operator==(const FileStamp&) const = default;
};

/// Nothing for a file that is not there.
std::optional<FileStamp> stamp_of(const std::string& path);

/// `folder` + `name`, or where that does not exist the file of the same name but for capitals.
std::string find_data_file(const std::string& folder, std::string_view name);

/// The last part of a path.
std::string file_name(const std::string& path);

/// What one or the other file system refuses in a name.
inline constexpr std::string_view refused_in_names = "/\\:*?\"<>|";

/// A file's name with "_" for each of the `unwanted` characters; without others, a name that any file system
/// takes.
std::string tame_file_name(std::string name, std::string_view unwanted = refused_in_names);

/// A folder path of a settings file in the form of this system: slashes, and one at the end.
/// An empty path stays empty.
std::string native_folder(std::string_view stored);

} // namespace wortlex
