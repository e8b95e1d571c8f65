#include "program/open_tools.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view settings_are_in_use =
    "You cannot modify the System Defaults while other Wortlex windows are open. To modify the System "
    "Defaults, please close the current work (make sure to save your work if required), then choose System "
    "Defaults again.";

// A new document and one from a file have the same window.
int tool_of(int command) {
    if (command == command::open_recipe) return command::new_recipe;
    if (command == command::open_session) return command::new_session;
    return command;
}

bool shares_its_slot(int command) {
    return command == command::fermentation_gravity || command == command::residual_extract;
}

} // namespace

bool is_open(const OpenTools& tools, int command) {
    const auto found = tools.windows.find(tool_of(command));
    return found != tools.windows.end() && !found->second.expired();
}

bool any_open(const OpenTools& tools) {
    return std::any_of(tools.windows.begin(), tools.windows.end(),
                       [](const auto& tool) { return !tool.second.expired(); });
}

bool activate_if_open(const OpenTools& tools, int command) {
    if (!is_open(tools, command)) return false;
    const auto& slot =
        shares_its_slot(command) ? tools.last_refractometer : tools.windows.at(tool_of(command));
    if (const auto window = slot.lock()) window->activate();
    return true;
}

void opened(OpenTools& tools, int command, const std::weak_ptr<OpenTool>& window) {
    tools.windows[tool_of(command)] = window;
    if (shares_its_slot(command)) tools.last_refractometer = window;
}

void closed(OpenTools& tools, int command) {
    tools.windows.erase(tool_of(command));
}

bool close_tool(const OpenTools& tools, int command) {
    const auto found = tools.windows.find(tool_of(command));
    const auto window = found != tools.windows.end() ? found->second.lock() : nullptr;
    return !window || window->close();
}

bool show_modal_child(const OpenTools& tools) {
    return std::any_of(tools.windows.begin(), tools.windows.end(), [](const auto& tool) {
        const auto window = tool.second.lock();
        return window && window->show_modal_child();
    });
}

void keep_work(const OpenTools& tools) {
    for (const auto& [command, tool] : tools.windows)
        if (const auto window = tool.lock()) window->keep_work();
}

bool may_edit_settings(const OpenTools& tools, Prompts& prompts) {
    if (!any_open(tools)) return true;
    prompts.tell({.text = settings_are_in_use, .icon = Icon::information});
    return false;
}

} // namespace wortlex
