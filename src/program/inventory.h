// Booking a brewing session against the stocks: once, and wholly or not at all.
#pragma once

#include "base/ports/prompts.h"
#include "documents/work/document_saving.h"

namespace wortlex {

struct Program;

/// Asks, then takes the session's ingredients from the stocks and marks it as finalized. Answers whether the
/// session was saved with it, as one that has a file always is. Without all four databases whole nothing is
/// written, and what is wrong is told.
///
/// The databases, the session's file and the copy of unsaved work change in one joint save. So a run that is
/// killed meanwhile leaves no stock booked of which the session does not know, and no copy of the session
/// that would let it be booked again.
bool finalize_inventory(Program& program, DocumentSaving& saving);

/// Finishes what a run that was killed while it booked has left, and tells. To be called before anything
/// reads a database, a session or unsaved work.
void finish_booking(const std::string& data_folder, Prompts& prompts);

/// The journal of a booking, in the data folder.
inline constexpr std::string_view booking_journal = "WlxStock.jnl";

} // namespace wortlex
