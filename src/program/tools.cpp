#include "program/tools.h"

#include <algorithm>
#include <optional>

namespace wortlex {
namespace {

constexpr int second_unmade_closed = 6020;

constexpr std::string_view settings_are_in_use =
    "You cannot modify the System Defaults while other Wortlex windows are open. To modify the System "
    "Defaults, please close the current work (make sure to save your work if required), then choose System "
    "Defaults again.";

bool is_among(const std::array<int, 2>& numbers, int number) {
    return number != 0 && std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

std::optional<std::size_t> index_of(const std::array<int, 2> Tool::*numbers, int number) {
    for (std::size_t i = 0; i < all_tools.size(); ++i)
        if (is_among(all_tools[i].*numbers, number)) return i;
    return std::nullopt;
}

bool shares_its_slot(int command) {
    return command == command::fermentation_gravity || command == command::residual_extract;
}

} // namespace

const Tool* tool_of(int command) {
    const auto index = index_of(&Tool::commands, command);
    return index ? &all_tools[*index] : nullptr;
}

bool is_open(const ToolTable& table, int command) {
    const auto index = index_of(&Tool::commands, command);
    return index && table.open[*index];
}

bool any_open(const ToolTable& table) {
    return std::count(table.open.begin(), table.open.end(), true) > 0 || table.unmade[0] || table.unmade[1];
}

bool activate_if_open(const ToolTable& table, int command) {
    const auto index = index_of(&Tool::commands, command);
    if (!index || !table.open[*index]) return false;
    const auto& slot = shares_its_slot(command) ? table.last_refractometer : table.windows[*index];
    if (const auto window = slot.lock()) window->activate();
    return true;
}

void opened(ToolTable& table, int command, const std::weak_ptr<OpenTool>& window) {
    const auto index = index_of(&Tool::commands, command);
    if (!index) return;
    table.open[*index] = true;
    table.windows[*index] = window;
    if (shares_its_slot(command)) table.last_refractometer = window;
}

void closed(ToolTable& table, int notification) {
    if (notification == second_unmade_closed) table.unmade[1] = false;
    const auto index = index_of(&Tool::notifications, notification);
    if (!index) return;
    table.open[*index] = false;
    if (notification == date_calculator_closed) table.windows[*index].reset();
}

bool close_tool(const ToolTable& table, int command) {
    const auto index = index_of(&Tool::commands, command);
    if (!index || !table.open[*index]) return true;
    const auto window = table.windows[*index].lock();
    return !window || window->close();
}

bool show_modal_child(const ToolTable& table) {
    for (std::size_t i = 0; i < all_tools.size(); ++i) {
        const auto window = table.open[i] ? table.windows[i].lock() : nullptr;
        if (window && window->show_modal_child()) return true;
    }
    return false;
}

bool may_edit_settings(const ToolTable& table, Prompts& prompts) {
    if (!any_open(table)) return true;
    prompts.tell({.text = settings_are_in_use, .icon = Icon::information});
    return false;
}

} // namespace wortlex
