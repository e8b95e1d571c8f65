#include "documents/work/recipe_history.h"

#include "records/documents/document_files.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t most_steps = 200;
constexpr unsigned schedule_bits = 0x0F;

void keep_saved_marks(BrewDocument& document, const BrewDocument& live) {
    document.mash_flags =
        static_cast<std::uint8_t>((document.mash_flags & schedule_bits) | (live.mash_flags & ~schedule_bits));
    document.file_efficiency_mode = live.file_efficiency_mode;
}

// What is no number is not even equal to itself, but its bytes are.
bool same_recipe(const BrewDocument& a, const BrewDocument& b) {
    return a == b || recipe_bytes(a) == recipe_bytes(b);
}

} // namespace

void RecipeHistory::start(const OpenDocument& open) {
    done_.clear();
    undone_.clear();
    merge_key_.clear();
    now_ = {open.document, open.figures};
}

bool RecipeHistory::is_current(const OpenDocument& open) {
    keep_saved_marks(now_.document, open.document);
    return same_recipe(now_.document, open.document);
}

bool RecipeHistory::note(const OpenDocument& open, std::string_view name, std::string_view merge_key) {
    if (is_current(open)) return false;
    const bool merges = !merge_key.empty() && merge_key == merge_key_ && !done_.empty();
    merge_key_ = merge_key;
    undone_.clear();
    if (!merges) done_.push_back({std::string(name), now_});
    now_ = {open.document, open.figures};
    if (merges && now_.document == done_.back().state.document) done_.pop_back(); // typed back
    if (done_.size() > most_steps) done_.pop_front();
    return true;
}

std::string_view RecipeHistory::to_undo() const {
    return done_.empty() ? std::string_view() : done_.back().name;
}

std::string_view RecipeHistory::to_redo() const {
    return undone_.empty() ? std::string_view() : undone_.back().name;
}

void RecipeHistory::take(const OpenDocument& open, std::deque<Step>& from, std::deque<Step>& to) {
    auto step = std::move(from.back());
    from.pop_back();
    keep_saved_marks(step.state.document, open.document);
    to.push_back({std::move(step.name), std::exchange(now_, std::move(step.state))});
    open.document = now_.document;
    open.figures = now_.figures;
    merge_key_.clear();
}

bool RecipeHistory::undo(const OpenDocument& open) {
    if (done_.empty()) return false;
    take(open, done_, undone_);
    return true;
}

bool RecipeHistory::redo(const OpenDocument& open) {
    if (undone_.empty()) return false;
    take(open, undone_, done_);
    return true;
}

} // namespace wortlex
