#include "documents/snapshot.h"

#include "documents/recipe_gravity.h"
#include "records/documents/document_files.h"

#include <algorithm>
#include <tuple>

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

} // namespace

DocumentSnapshot snapshot_document(const OpenDocument& open, SnapshotScope scope) {
    if (scope == SnapshotScope::with_schedule) {
        total_grain_update(open.document, open.figures);
        mash_refresh(open);
    }
    return {open.document, scope};
}

void restore_snapshot(const DocumentSnapshot& snapshot, const OpenDocument& open) {
    auto restored = snapshot.document;
    if (snapshot.scope == SnapshotScope::without_schedule) keep_schedule(restored, open.document);
    restored.file_efficiency_mode = open.document.file_efficiency_mode;
    open.document = std::move(restored);
    total_grain_update(open.document, open.figures);
    mash_refresh(open);
}

bool document_changed(const BrewDocument& document, const DocumentSnapshot& snapshot) {
    const auto& saved = snapshot.document;
    if (recipe_bytes(document) == recipe_bytes(saved)) return false; // also with what is no number in it
    if (figures_of(document) != figures_of(saved)) return true;
    if (snapshot.scope == SnapshotScope::with_schedule && !same_schedule(document, saved)) return true;
    return !(same_lines(document.hops, saved.hops) && same_lines(document.malts, saved.malts) &&
             same_lines(document.extras, saved.extras));
}

bool session_changed(const SessionDocument& session, const SessionDocument& saved) {
    return session != saved;
}

} // namespace wortlex
