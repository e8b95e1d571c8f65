#include "windows/documents/open_pages.h"

#include <algorithm>

namespace wortlex {

void OpenPages::show(std::string_view name, const std::function<ToolWindow*()>& make) {
    auto& page = pages_[name];
    if (page.isNull()) page = make();
    bring_forward(*page);
}

bool OpenPages::show_modal_child() const {
    return std::any_of(pages_.begin(), pages_.end(), [](const auto& page) {
        return !page.second.isNull() && wortlex::show_modal_child(*page.second);
    });
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
