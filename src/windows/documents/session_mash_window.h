// The simple mash window of the live session.
#pragma once

#include "calculators/refractometer_tool.h"
#include "documents/work/recipe_editor.h"
#include "program/window_ports.h"
#include "windows/documents/simple_mash_window.h"

namespace wortlex {

/// What the session's window does for its page. Where one is empty, its button is disabled.
struct SessionMashLinks {
    std::function<PrintedSession()> printed; ///< the head of a printed reading
    std::function<void()> save;
    std::function<void()> revert_to_complex;
    std::function<void(const SimpleMashWork& work)> print = nullptr;
};

/// On the live session, which `editor` works on and which must outlive the window.
SimpleMashWindow* make_session_mash_window(const WindowPorts& ports, RecipeEditor& editor,
                                           const SessionMashLinks& links, QWidget* origin);

} // namespace wortlex
