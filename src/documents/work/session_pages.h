// The pages of a session, and whether the brewer has put anything on them.
#pragma once

#include "records/documents/session_document.h"

namespace wortlex {

enum class SessionPage {
    ingredients,
    mash,
    water_needed,
    water_profile,
    efficiency,
    fermentation,
    bottling,
    notes,
    inventory
};

/// Whether more stands on the page than in a new session, whose water is as `usual`.
bool is_filled(SessionPage page, const BrewDocument& document, const SessionDocument& session,
               const WaterNeeds& usual);

} // namespace wortlex
