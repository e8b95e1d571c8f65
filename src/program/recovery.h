// Unsaved work, kept in the data folder while a document is open, for a run that breaks off.
#pragma once

#include "documents/live_document.h"

namespace wortlex {

struct Program;

/// What a broken run left.
struct RecoveredWork {
    DocumentKind kind = DocumentKind::recipe;
    std::string path; ///< of the file that it was opened from; empty for a new document
    std::optional<FileStamp> stamp;
    Bytes document; ///< as its file would have them
};

/// Keeps a document beside the settings: as it is now, and where it came from. A folder that cannot be
/// written to keeps nothing; answers whether it did.
bool KeepWork(const std::string& data_folder, const DocumentImage& image, const DocumentFile& file);
/// The file that it goes to, and what it holds.
std::string work_path(const std::string& data_folder);
Bytes kept_work(const DocumentImage& image, const DocumentFile& file);
/// Tells, once in a run, that unsaved work cannot be kept.
void tell_unkept_work(Program& program, Prompts& prompts);
/// There is nothing to lose any more.
void DropWork(const std::string& data_folder);
/// Nothing too if what is there is no such file.
std::optional<RecoveredWork> ReadWork(const std::string& path);

/// Makes it the live document, as yet unsaved; false if it cannot be read, and all stays as it was.
bool restore_work(LiveDocument& live, const RecoveredWork& work, const Settings& settings);

/// Offers what broken runs left, the last one first: it becomes the live document, is discarded, or is put
/// aside until the next start under a name of its own. What is damaged is kept beside it, and told. True if
/// one of them is the live document now; the others wait for the next start.
bool offer_work(Program& program, Prompts& prompts);

} // namespace wortlex
