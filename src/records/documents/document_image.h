// A document as a value. Undo, the question whether there is anything to save, and recovery all work on one.
#pragma once

#include "records/documents/session_document.h"
#include "settings/system_files.h"

#include <optional>

namespace wortlex {

/// All that the file of a document holds.
struct DocumentImage {
    BrewDocument recipe;
    std::optional<SessionDocument> session{}; ///< of a session; a recipe has none

    DocumentKind kind() const { return session ? DocumentKind::session : DocumentKind::recipe; }
    bool operator==(const DocumentImage&) const = default;
};

} // namespace wortlex
