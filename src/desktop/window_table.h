// Every window of the program once: its name, its captions, where its place is kept, its help topic.
#pragma once

#include <array>
#include <string_view>

namespace wortlex {

/// From where a window was opened: each opener has a place of its own.
enum class Opener { main, recipe, session };

inline constexpr int no_place = -1;

struct WindowInfo {
    std::string_view template_name;
    std::array<std::string_view, 4> captions; ///< by use, as the window tells
    std::array<int, 3> places;                ///< slots of `ToolPositions`, by opener
    int help_topic = 0;                       ///< 0: none
};

/// The row of a template; it must be there.
const WindowInfo& window_info(std::string_view template_name);

} // namespace wortlex
