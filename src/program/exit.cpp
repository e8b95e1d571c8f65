#include "program/exit.h"

#include <algorithm>

namespace wortlex {
namespace {

// The windows that may hold unsaved work, in the order in which they are asked.
constexpr std::array asked_to_close = {command::new_recipe, command::new_session, command::water_profile,
                                       command::mash_designer, command::time_line};

} // namespace

bool leave(Program& program, const std::optional<MainPosition>& position) {
    // Before anything closes: an answer that is still owed must not cost the windows asked before it.
    if (show_modal_child(program.tools)) return false;
    const bool all_closed = std::all_of(asked_to_close.begin(), asked_to_close.end(),
                                        [&](int command) { return close_tool(program.tools, command); });
    if (!all_closed) return false;
    if (position) SaveMainPosition(program.data_folder, *position);
    SaveToolPositions(program.data_folder, program.tool_positions);
    SaveFoldersIfAutomatic(program.data_folder, program.folders);
    program.tools = {};
    return true;
}

} // namespace wortlex
