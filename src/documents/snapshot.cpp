#include "documents/snapshot.h"

#include "documents/recipe_gravity.h"
#include "records/documents/document_traits.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace wortlex {
namespace {

template <class Line>
bool same_lines(const std::vector<Line>& a, const std::vector<Line>& b) {
    return a == b || std::is_permutation(a.begin(), a.end(), b.begin(), b.end());
}

void keep_schedule(BrewDocument& to, const BrewDocument& from) {
    to.mash = from.mash;
    to.mash_flags = from.mash_flags;
}

// A save leaves the efficiency mode in the high nibble; that is no change.
bool same_schedule(const BrewDocument& a, const BrewDocument& b) {
    return a.mash == b.mash && (a.mash_flags & 0x0F) == (b.mash_flags & 0x0F);
}

auto figures_of(const BrewDocument& d) {
    return std::tie(d.title, d.wort_size, d.batch_size, d.og_points, d.total_ibu, d.efficiency,
                    d.boil_minutes, d.target_ibu, d.recipe_kind, d.style, d.yeast, d.water, d.simple_mash,
                    d.notes, d.awards, d.reserved_text);
}

bool same_session(const SessionDocument* session, const DocumentImage& image) {
    return session == nullptr ? !image.session : image.session == *session;
}

bool same_values(const OpenDocument& open, const DocumentImage& image) {
    return open.document == image.recipe && same_session(open.session, image);
}

// What holds something that is no number is not even equal to itself.
template <class Record>
bool equals_itself(const Record& record) {
    const auto& itself = record;
    return record == itself;
}

bool differs(const OpenDocument& open, const DocumentImage& image, SnapshotScope scope) {
    const auto &document = open.document, &saved = image.recipe;
    if (figures_of(document) != figures_of(saved)) return true;
    if (scope == SnapshotScope::with_schedule && !same_schedule(document, saved)) return true;
    if (!same_session(open.session, image)) return true;
    return !(same_lines(document.hops, saved.hops) && same_lines(document.malts, saved.malts) &&
             same_lines(document.extras, saved.extras));
}

} // namespace

DocumentImage image_of(const OpenDocument& open) {
    DocumentImage image{.recipe = open.document};
    if (open.session != nullptr) image.session = *open.session;
    return image;
}

// Values first: only what is no number has to be compared by its bytes, which are dear to make.
bool is_same(const OpenDocument& open, const DocumentImage& image) {
    if (same_values(open, image)) return true;
    return !equals_itself(image) && document_bytes(image_of(open)) == document_bytes(image);
}

void put_image(DocumentImage image, const OpenDocument& open) {
    open.document = std::move(image.recipe);
    if (open.session != nullptr && image.session) *open.session = *image.session;
}

DocumentImage snapshot_document(const OpenDocument& open, SnapshotScope scope) {
    if (scope == SnapshotScope::with_schedule) {
        total_grain_update(open.document, open.figures);
        mash_refresh(open);
    }
    return image_of(open);
}

void restore_snapshot(const DocumentImage& image, const OpenDocument& open, SnapshotScope scope) {
    auto restored = image.recipe;
    if (scope == SnapshotScope::without_schedule) keep_schedule(restored, open.document);
    restored.file_efficiency_mode = open.document.file_efficiency_mode;
    open.document = std::move(restored);
    total_grain_update(open.document, open.figures);
    mash_refresh(open);
}

bool document_changed(const OpenDocument& open, const DocumentImage& image, SnapshotScope scope) {
    return differs(open, image, scope) && !is_same(open, image);
}

} // namespace wortlex
