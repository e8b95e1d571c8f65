#include "windows/documents/page_ending.h"

namespace wortlex {
namespace {

constexpr std::string_view not_handed_over =
    "What you have changed on this page is not in your work yet.\nDo you want to take it over, as with OK?";

} // namespace

PageEnd ask_page_end(Prompts& prompts) {
    const auto answer =
        prompts.ask_yes_no_cancel({.text = not_handed_over, .icon = Icon::question, .safe = Answer::yes});
    if (answer == Answer::cancel) return PageEnd::stays;
    return answer == Answer::yes ? PageEnd::ok : PageEnd::cancel;
}

// A page that cannot close now has not been answered for the next time.
void PageEnding::close_by(PageEnd end) {
    chosen_ = end;
    if (!page_.close()) chosen_.reset();
}

PageEnd PageEnding::settle(bool has_changes) const {
    if (chosen_) return *chosen_;
    return has_changes ? ask_page_end(prompts_) : PageEnd::cancel;
}

} // namespace wortlex
