// The offer of what is new in the databases that come with the program.
#pragma once

#include "base/ports/prompts.h"
#include "databases/shipped.h"

namespace wortlex {

struct Program;

/// What is new in `shipped_folder`, which ends in a slash or is empty. Nothing while a booking waits to be
/// finished, which brings whole databases along.
ShippedOffer find_offer(const Program& program, const std::string& shipped_folder);

/// Does as the brewer has answered and tells everybody; if it cannot be done, the brewer is told so.
void take_answer(Program& program, const ShippedOffer& offer, Prompts& prompts);

/// Finishes what a run that was killed while it added entries has left. To be called before anything reads a
/// database.
void finish_offer(const std::string& data_folder);

} // namespace wortlex
