// The pages that stand open beside a document's window.
#pragma once

#include "base/ports/prompts.h"
#include "desktop/tool_window.h"

#include <QPointer>

#include <map>
#include <string_view>

namespace wortlex {

/// Each is open once at most, by the name of its template.
class OpenPages {
public:
    /// Brings a page forward, which is made first if it is not open.
    void show(std::string_view name, const std::function<ToolWindow*()>& make);

    /// Brings forward the dialog that a page has open; false if none has.
    bool show_modal_child() const;
    /// Asks about each page that has changes of its own; false if the user stays.
    bool may_leave(Prompts& prompts) const;
    /// The page that has steps of its own to undo or redo; null for none.
    ToolWindow* traveller(Travel travel) const;
    /// The document was saved as it stands.
    void keep() const;
    /// Closes a page without a word, and all of them.
    void dismiss(std::string_view name) const;
    void dismiss() const;

private:
    std::map<std::string_view, QPointer<ToolWindow>> pages_;
};

} // namespace wortlex
