// The parts that recipe and session files are made of. Only the two file modules use them.
#pragma once

#include "base/ports/prompts.h"
#include "records/documents/brew_document.h"
#include "records/documents/document_files.h"

#include <string>

namespace wortlex {

/// All up to the simple mash, lists included. Reading answers false for a damaged file: an empty one,
/// a list of negative length, or longer than the file.
bool read_opening(ByteReader& reader, BrewDocument& document);
void append_opening(Bytes& file, const BrewDocument& document);

/// The bytes that a session has beside those of its recipe.
std::size_t size_of_session_parts();

/// What a load came to that has read all parts.
LoadResult end_of(const ByteReader& reader);

/// Notes, awards and the text that nothing shows.
void read_texts(ByteReader& reader, BrewDocument& document);
void append_texts(Bytes& file, const BrewDocument& document);

/// The complex schedule and the flag byte, which is written packed.
void read_schedule(ByteReader& reader, BrewDocument& document);
void append_schedule(Bytes& file, const BrewDocument& document);

/// What every load does once the file is read: an old mash kind, the flag byte, the yields of the malt lines.
void bring_up_to_date(BrewDocument& document);

/// Replaces the file, or tells the user that it could not be written.
bool save_document(const std::string& path, const Bytes& file, BrewDocument& document, Prompts& prompts);

} // namespace wortlex
