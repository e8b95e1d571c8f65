// Files that change together: all of them, or none.
#pragma once

#include "base/bytes.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace wortlex {

struct FileChange {
    std::string path;
    std::optional<Bytes> content; ///< the new one; nothing: the file is removed

    bool operator==(const FileChange&) const = default;
};

enum class JointSave {
    done,
    refused, ///< nothing has changed
    put_off  ///< it will be done: some changes wait in the journal for `finish_joint_save`
};

/// Makes all changes, or none. Each new content is written beside its file first, and all of them once more
/// into `journal`, a file that is there only meanwhile. As soon as the journal stands the changes count as
/// made: who kills the program from then on leaves it to `finish_joint_save` to put the rest in place.
JointSave save_jointly(const std::string& journal, std::span<const FileChange> changes);

/// What became of a joint save that had not come to its end.
enum class LeftChanges {
    none, ///< there is no such save, or nothing is left of it
    made, ///< now they are
    wait  ///< some files cannot be written; they stay in the journal
};

/// To be called before anything reads or writes the files of the journal. A journal that is no such file is
/// left alone.
LeftChanges finish_joint_save(const std::string& journal);

/// The changes in the bytes of a journal whose folder is `folder`; none if these are no journal.
std::vector<FileChange> read_journal(ByteView journal, const std::string& folder);

} // namespace wortlex
