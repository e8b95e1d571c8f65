#include "documents/work/document_history.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t most_steps = 200;
constexpr unsigned schedule_bits = 0x0F;

// What was saved or booked stays so.
void keep_marks(DocumentImage& image, const OpenDocument& live) {
    keep_saved_marks(image.recipe, live.document);
    if (image.session && live.session != nullptr)
        image.session->inventory_finalized = live.session->inventory_finalized;
}

} // namespace

void keep_saved_marks(BrewDocument& document, const BrewDocument& live) {
    document.mash_flags =
        static_cast<std::uint8_t>((document.mash_flags & schedule_bits) | (live.mash_flags & ~schedule_bits));
    document.file_efficiency_mode = live.file_efficiency_mode;
}

DocumentHistory::State DocumentHistory::state_of(const OpenDocument& open) {
    return {image_of(open), open.figures, open.water != nullptr ? *open.water : WaterBalance{}};
}

void DocumentHistory::start(const OpenDocument& open) {
    done_.clear();
    undone_.clear();
    merge_key_.clear();
    now_ = state_of(open);
}

bool DocumentHistory::is_current(const OpenDocument& open) {
    keep_marks(now_.image, open);
    return is_same(open, now_.image);
}

bool DocumentHistory::note(const OpenDocument& open, std::string_view name, std::string_view merge_key) {
    if (is_current(open)) return false;
    const bool merges = !merge_key.empty() && merge_key == merge_key_ && !done_.empty();
    merge_key_ = merge_key;
    undone_.clear();
    ++taken_;
    if (!merges) done_.push_back({std::string(name), now_});
    now_ = state_of(open);
    if (merges && now_.image == done_.back().state.image) { // typed back
        done_.pop_back();
        merge_key_.clear();
    }
    if (done_.size() > most_steps) done_.pop_front();
    return true;
}

std::string_view DocumentHistory::to_undo() const {
    return done_.empty() ? std::string_view() : done_.back().name;
}

std::string_view DocumentHistory::to_redo() const {
    return undone_.empty() ? std::string_view() : undone_.back().name;
}

void DocumentHistory::take(const OpenDocument& open, std::deque<Step>& from, std::deque<Step>& to) {
    auto step = std::move(from.back());
    from.pop_back();
    keep_marks(step.state.image, open);
    to.push_back({std::move(step.name), std::exchange(now_, std::move(step.state))});
    put_image(now_.image, open);
    open.figures = now_.figures;
    if (open.water != nullptr) *open.water = now_.water;
    merge_key_.clear();
    ++taken_;
}

bool DocumentHistory::undo(const OpenDocument& open) {
    if (done_.empty()) return false;
    take(open, done_, undone_);
    return true;
}

bool DocumentHistory::redo(const OpenDocument& open) {
    if (undone_.empty()) return false;
    take(open, undone_, done_);
    return true;
}

} // namespace wortlex
