#include "databases/shipped.h"

namespace wortlex {
namespace {

// Without the file of its database; an ampersand is no mnemonic.
std::string caption_of(const std::string& name) {
    std::string caption;
    for (auto rest = name.substr(name.find('\t') + 1); !rest.empty();) {
        const auto part = rest.substr(0, rest.find('\t'));
        if (!part.empty()) caption += (caption.empty() ? "" : ", ") + part;
        rest.erase(0, part.size() + 1);
    }
    for (auto at = caption.find('&'); at != std::string::npos; at = caption.find('&', at + 2))
        caption.insert(at, 1, '&');
    return caption;
}

std::string told(std::size_t entries) {
    const auto* const what = entries == 1 ? "entry that is" : "entries that are";
    return "Wortlex brings " + std::to_string(entries) + " " + what +
           " not in your databases. Those that are checked are added; your own entries stay as they are.";
}

} // namespace

void offer_form(Form& form, ShippedOffer& offer) {
    auto& note = form.rows();
    std::size_t entries = 0;
    for (auto& group : offer.groups) {
        auto& rows = form.group(std::string(group.heading));
        for (auto& entry : group.entries)
            rows.check("entry_" + std::to_string(++entries), entry.is_wanted).label(caption_of(entry.name));
    }
    note.note("told", told(entries));
    form.group()
        .button(
            "toggle", [&offer] { return wants_any(offer) ? "Chec&k None" : "Chec&k All"; },
            [&offer] { want_all(offer, !wants_any(offer)); })
        .hint("Check or uncheck all entries");
}

} // namespace wortlex
