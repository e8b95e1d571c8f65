// The amount and time of one extra ingredient of a document.
#pragma once

#include "documents/records/lines.h"
#include "measures/fields/form.h"

namespace wortlex {

/// Edits `line`, which must outlive the form.
void extra_amount_form(Form& form, ExtraUse& line);

} // namespace wortlex
