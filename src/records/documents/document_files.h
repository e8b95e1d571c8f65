// The recipe file (".rec") and the brewing-session file (".brw"): the records one after the other, without
// header or checksum; the lengths of the three line lists are near the start.
#pragma once

#include "base/ports/prompts.h"
#include "records/documents/session_document.h"

#include <string>

namespace wortlex {

/// What a load came to. Nothing is changed by `not_found`, `damaged` and `misnamed`: the live document stays
/// whole.
enum class LoadResult {
    loaded,
    incomplete, ///< the file ended early; what is missing is as in a new document
    longer,     ///< something follows the document, which is not part of it
    not_found,
    damaged, ///< empty; a list longer than the file, or of negative length
    misnamed ///< a session, read as a recipe
};

/// Whether there is a document after a load, though it may not be all of the file.
bool is_sound(LoadResult result);

/// What is wrong with a file that did not load in full, to follow its name.
std::string_view load_fault(LoadResult result);

/// Reads a recipe into `document` and brings its malt lines up to date. A file too short to tell the schedule
/// kind takes the one that `document` had.
LoadResult load_recipe(const std::string& path, BrewDocument& document, const Settings& settings);

/// Reads a session into both. The thermal mass is the setting's, whatever the file says.
LoadResult load_session(const std::string& path, BrewDocument& document, SessionDocument& session,
                        const Settings& settings);

/// Puts batch size and actual gravity where a session has recorded nothing, as every load does: later
/// divisions rely on them.
void repair_recording(SessionDocument& session, const BrewDocument& document);

/// Each replaces the file atomically; a failure is told through `prompts` and changes nothing. A success
/// leaves the packed flag byte in the document.
bool save_recipe(const std::string& path, BrewDocument& document, Prompts& prompts);
bool save_session(const std::string& path, BrewDocument& document, const SessionDocument& session,
                  Prompts& prompts);

/// The flag byte as a file has it: the efficiency mode that the document carries in the high nibble.
void pack_flags(BrewDocument& document);

/// The same from and to the bytes of a file; never `not_found`.
LoadResult read_recipe(ByteView file, BrewDocument& document, const Settings& settings);
LoadResult read_session(ByteView file, BrewDocument& document, SessionDocument& session,
                        const Settings& settings);
Bytes recipe_bytes(const BrewDocument& document);
Bytes session_bytes(const BrewDocument& document, const SessionDocument& session);

} // namespace wortlex
