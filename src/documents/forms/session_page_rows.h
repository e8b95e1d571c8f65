// The buttons of a session's window: its pages, each with a mark that tells whether it is filled, and what
// stands below them.
#pragma once

#include "documents/forms/session_form.h"

namespace wortlex {

/// Until a recipe is in the session only its day, its brewers and the recipe can be chosen.
inline bool has_picked_recipe(const OpenDocument& open) {
    return open.session->has_recipe != 0;
}

void session_page_rows(Rows& rows, const SessionSubject& subject);
void session_end_rows(Rows& rows, const SessionSubject& subject);

} // namespace wortlex
