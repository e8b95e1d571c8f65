#include "documents/forms/session_notes_form.h"

#include <utility>

namespace wortlex {

void session_notes_form(Form& form, SessionNotes& notes, std::function<void()> print) {
    constexpr std::size_t longest_note = 4094; // bytes
    constexpr std::array titles = {
        std::pair("mash_notes", "&Mash Notes:"), std::pair("fermentation_notes", "&Fermentation Notes:"),
        std::pair("tasting_notes", "&Tasting Notes:"), std::pair("problems", "P&roblems:")};
    for (std::size_t note = 0; note < titles.size(); ++note)
        form.rows()
            .text(titles.at(note).first, notes.at(note))
            .label(titles.at(note).second)
            .limit(longest_note)
            .lines();
    form.group().button("print", "&Print", std::move(print));
    form.restore_on_cancel(notes);
}

} // namespace wortlex
