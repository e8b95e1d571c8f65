// What names a window: its template, its captions, where its place is kept, its page of the handbook. Every
// window that is no tool of the main window stands here once; a tool brings its own.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace wortlex {

/// From where a window was opened: each opener has a place of its own.
enum class Opener { main, recipe, session };

inline constexpr int no_place = -1;
inline constexpr std::array no_places = {no_place, no_place, no_place, no_place};

/// Of a window that only the main window opens.
constexpr std::array<int, 4> from_main(int slot) {
    return {slot, no_place, no_place, no_place};
}

struct WindowInfo {
    std::string_view template_name;
    std::array<std::string_view, 4> captions; ///< by use, as the window tells
    std::array<int, 4> places = no_places;    ///< slots of `ToolPositions`, by opener
    std::string_view help_page = {};          ///< of the handbook
    bool places_by_use = false;               ///< `places` goes by use instead
};

std::span<const WindowInfo> all_windows();

/// The row of a template; it must be there.
const WindowInfo& window_info(std::string_view template_name);

} // namespace wortlex
