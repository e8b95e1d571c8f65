#include "windows/documents/open_pages.h"

#include "windows/documents/page_ending.h"

#include <algorithm>

namespace wortlex {

void OpenPages::show(std::string_view name, const std::function<ToolWindow*()>& make) {
    auto& page = pages_[name];
    if (page.isNull() || !page->isVisible()) page = make(); // a closed one may still wait for its end
    bring_forward(*page);
}

bool OpenPages::show_modal_child() const {
    return std::any_of(pages_.begin(), pages_.end(), [](const auto& page) {
        return !page.second.isNull() && wortlex::show_modal_child(*page.second);
    });
}

bool OpenPages::may_leave(Prompts& prompts) const {
    for (const auto& [name, page] : pages_) {
        if (page.isNull() || !page->holds_changes()) continue;
        bring_forward(*page);
        const auto end = ask_page_end(prompts);
        if (end == PageEnd::stays) return false;
        if (end == PageEnd::ok) page->hand_over();
    }
    return true;
}

ToolWindow* OpenPages::traveller(Travel travel) const {
    const auto found = std::find_if(pages_.begin(), pages_.end(), [travel](const auto& page) {
        return !page.second.isNull() && page.second->isVisible() && page.second->can_travel(travel);
    });
    return found == pages_.end() ? nullptr : found->second.data();
}

void OpenPages::keep() const {
    for (const auto& [name, page] : pages_)
        if (!page.isNull()) page->keep();
}

void OpenPages::dismiss(std::string_view name) const {
    const auto found = pages_.find(name);
    if (found != pages_.end() && !found->second.isNull()) found->second->dismiss();
}

void OpenPages::dismiss() const {
    for (const auto& [name, page] : pages_) // a page may take others with it
        if (!page.isNull()) page->dismiss();
}

} // namespace wortlex
