// The notes of a brew day.
#pragma once

#include "forms/form.h"
#include "records/documents/session_document.h"

namespace wortlex {

/// Four texts, each stored as it is typed; Cancel puts all back. Without `print` its button is disabled.
void session_notes_form(Form& form, SessionNotes& notes, std::function<void()> print);

} // namespace wortlex
