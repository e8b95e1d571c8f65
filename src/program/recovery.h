// Unsaved work, kept in the data folder while a document is open, for a run that breaks off.
#pragma once

#include "program/documents.h"

namespace wortlex {

/// What a broken run left.
struct RecoveredWork {
    std::string path; ///< of the file that it was opened from; empty for a new recipe
    std::optional<FileStamp> stamp;
    Bytes recipe;
};

/// Keeps the live recipe beside the settings. The recipe itself is not touched: it is not marked as saved. A
/// folder that cannot be written to keeps nothing; answers whether it did.
bool KeepWork(const Program& program);
/// There is nothing to lose any more.
void DropWork(const std::string& data_folder);
/// Nothing too if what is there is no such file.
std::optional<RecoveredWork> FindWork(const std::string& data_folder);

/// Makes it the live recipe, as yet unsaved; false if it cannot be read, and all stays as it was.
bool restore_work(Program& program, const RecoveredWork& work);

/// Offers what a broken run left: it becomes the live recipe, is discarded or is put aside until the next
/// start. True if it is the live recipe now.
bool offer_work(Program& program, Prompts& prompts);

} // namespace wortlex
