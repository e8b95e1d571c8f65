#include "desktop/window_table.h"

#include <algorithm>
#include <cassert>

namespace wortlex {
namespace {

constexpr std::array no_places = {no_place, no_place, no_place};

constexpr std::array windows = {
    WindowInfo{"GENERIC", {"Wortlex Version 1.8.a"}, no_places, 0},
    WindowInfo{"RECIPEDIALOG", {"Wortlex Recipe Formulation"}, no_places, 0},
};

} // namespace

const WindowInfo& window_info(std::string_view template_name) {
    const auto* const found = std::find_if(windows.begin(), windows.end(), [&](const WindowInfo& window) {
        return window.template_name == template_name;
    });
    assert(found != windows.end());
    return *found;
}

} // namespace wortlex
