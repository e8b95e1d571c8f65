// The rows that show the style of a document, on every page that does.
#pragma once

#include "documents/document_recalculation.h"
#include "forms/form.h"

namespace wortlex {

/// Read-only: class, name, type, book and the limits; blank where no style was chosen. Both must outlive the
/// form.
void style_rows(Rows& rows, const OpenDocument& open);

} // namespace wortlex
