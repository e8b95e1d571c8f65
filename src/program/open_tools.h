// Which of the main window's tools are open, each at most once.
#pragma once

#include "base/ports/prompts.h"
#include "program/commands.h"

#include <map>
#include <memory>

namespace wortlex {

/// The window of a tool, as the program sees it.
class OpenTool {
public:
    virtual ~OpenTool() = default;
    virtual void activate() = 0;
    /// False when the window stays open.
    virtual bool close() = 0;
    /// Shows a modal dialog that is open over the window; false if there is none.
    virtual bool show_modal_child() = 0;
    /// Keeps unsaved work, asking nothing.
    virtual void keep_work() = 0;
};

/// The open tools by the command that opens them; a document's window by the command of a new one. A window
/// that is gone without a word counts as closed.
struct OpenTools {
    std::map<int, std::weak_ptr<OpenTool>> windows;
    /// What re-activating either of the two later refractometer tools reaches: the one opened last.
    std::weak_ptr<OpenTool> last_refractometer;
};

bool is_open(const OpenTools& tools, int command);
bool any_open(const OpenTools& tools);

/// Brings an open tool forward and answers true; false if the tool is to be opened.
bool activate_if_open(const OpenTools& tools, int command);

/// Takes note of a tool's window, and that it has closed.
void opened(OpenTools& tools, int command, const std::weak_ptr<OpenTool>& window);
void closed(OpenTools& tools, int command);

/// Asks a tool to close; true if it is not open, or no more.
bool close_tool(const OpenTools& tools, int command);

/// Shows the modal dialog of the first open tool that has one; false if none has.
bool show_modal_child(const OpenTools& tools);

/// Keeps the unsaved work of all of them: the program is about to end, unasked.
void keep_work(const OpenTools& tools);

/// Whether the system settings may be opened; tells if not.
bool may_edit_settings(const OpenTools& tools, Prompts& prompts);

} // namespace wortlex
