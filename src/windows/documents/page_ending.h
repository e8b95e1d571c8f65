// How a page beside a document's window ends, the same for all of them: with OK, with Cancel, or by Esc and
// the closing button, which ask where Cancel would take something back.
#pragma once

#include "base/ports/prompts.h"
#include "desktop/tool_window.h"

#include <optional>

namespace wortlex {

enum class PageEnd {
    stays,  ///< it does not end
    ok,     ///< what was changed on it is kept
    cancel, ///< what was changed on it is put back
    gone    ///< without a word, as what it works on has gone
};

/// Whether what was changed on a page is taken over, as with OK, or put back, as with Cancel.
PageEnd ask_page_end(Prompts& prompts);

class PageEnding {
public:
    /// Both must outlive it.
    PageEnding(ToolWindow& page, Prompts& prompts) : page_(page), prompts_(prompts) {}

    /// Closes the page so, unasked.
    void close_by(PageEnd end);
    /// How the page that is being closed ends. `has_changes`: whether Cancel would put anything back.
    PageEnd settle(bool has_changes) const;

private:
    ToolWindow& page_;
    Prompts& prompts_;
    std::optional<PageEnd> chosen_; ///< none: Esc or the closing button
};

} // namespace wortlex
