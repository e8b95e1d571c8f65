// Frames and faint words that can be seen on a desktop whose windows are black.
#pragma once

namespace wortlex {

/// The toolkit frames fields, buttons and boxes by a darker tone of their window, which black has none of:
/// on such a desktop they are outlined, the field in use thicker. Once, before the first window.
void outline_on_black();

} // namespace wortlex
