// The amount, alpha, time and form of one hop line of a document.
#pragma once

#include "base/ports/prompts.h"
#include "documents/document_recalculation.h"
#include "forms/form.h"

namespace wortlex {

/// Edits `line`, a copy of a line of `open`; each edit works out the bitterness that it would have there.
/// All must outlive the form.
void hop_amount_form(Form& form, HopUse& line, const OpenDocument& open, Prompts& prompts);

/// The boil time as entered: "Dry", "FWH", "MH" or minutes.
std::string boil_time_text(std::int16_t boil_time, std::int32_t boil_minutes);

/// The code of a time as typed: a word by its first letter, D, F or M, or minutes. Minutes above the boil
/// mean a first wort hop, any below 0 a dry hop. Nothing if it is neither.
std::optional<std::int16_t> boil_time_of(std::string_view text, std::int32_t boil_minutes);

} // namespace wortlex
