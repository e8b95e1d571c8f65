// The amount and time of one extra ingredient of a document.
#pragma once

#include "forms/form.h"
#include "records/documents/lines.h"

namespace wortlex {

/// Edits `line`, which must outlive the form.
void extra_amount_form(Form& form, ExtraUse& line);

} // namespace wortlex
