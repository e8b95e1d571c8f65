// What the brewer is asked before a competition form or labels.
#pragma once

#include "documents/live_document.h"
#include "forms/form.h"
#include "reports/file_names.h"

namespace wortlex {

/// Edits `texts`; Cancel puts them back. Labels ask for the style alone.
void competition_texts_form(Form& form, CompetitionTexts& texts, ReportOutput output);

} // namespace wortlex
