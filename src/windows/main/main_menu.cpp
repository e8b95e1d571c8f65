#include "windows/main/main_menu.h"

#include "windows/main/tools.h"

namespace wortlex {
namespace {

std::vector<MenuEntry> entries_of(Menu menu) {
    std::vector<MenuEntry> entries;
    for (const auto& tool : tools())
        for (const auto& place : tool.menus)
            if (place.menu == menu) entries.push_back({place.caption, tool.command});
    return entries;
}

std::vector<MenuEntry> joined(std::vector<MenuEntry> first, const std::vector<MenuEntry>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

// The calculators one by one, then by instrument; the latter have a menu of their own as well.
std::vector<MenuEntry> main_menu() {
    const std::vector<MenuEntry> instruments = {{"H&ydrometer", 0, entries_of(Menu::hydrometer)},
                                                {"&Refractometer", 0, entries_of(Menu::refractometer)}};
    const std::vector<MenuEntry> utilities = {{"&Hydrometer", 0, instruments[0].entries}, instruments[1]};
    const std::vector<MenuEntry> documents = {{"&New", 0, entries_of(Menu::create)},
                                              {"&Open", 0, entries_of(Menu::open)}};
    return {{"&File", 0, joined(documents, entries_of(Menu::file))},
            {"&Calculators", 0,
             joined(joined(entries_of(Menu::calculators), instruments), entries_of(Menu::time))},
            {"&Utilities", 0, utilities},
            {"&Databases", 0, entries_of(Menu::databases)},
            {"&Options", 0, entries_of(Menu::options)},
            {"&Help", 0, entries_of(Menu::help)}};
}

} // namespace wortlex
