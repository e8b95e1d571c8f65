// The saved image of a document, against which a window tells whether there is anything to save.
#pragma once

#include "documents/document_recalculation.h"

namespace wortlex {

/// Whether the image takes the complex schedule too.
enum class SnapshotScope { without_schedule, with_schedule };

struct DocumentSnapshot {
    BrewDocument document;
    SnapshotScope scope = SnapshotScope::without_schedule;
};

/// Copies the document. With the schedule, the grain total and the mash are worked out first.
DocumentSnapshot snapshot_document(const OpenDocument& open, SnapshotScope scope);

/// Puts the image back, then works out the grain total and the mash.
void restore_snapshot(const DocumentSnapshot& snapshot, const OpenDocument& open);

/// Whether the document differs from the image. The order of lines does not count.
bool document_changed(const BrewDocument& document, const DocumentSnapshot& snapshot);

/// The same over a session's blocks.
bool session_changed(const SessionDocument& session, const SessionDocument& saved);

} // namespace wortlex
