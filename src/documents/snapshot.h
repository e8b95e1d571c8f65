// The saved image of a document, against which a window tells whether there is anything to save.
#pragma once

#include "documents/document_recalculation.h"
#include "records/documents/document_image.h"

namespace wortlex {

/// The document as it stands.
DocumentImage image_of(const OpenDocument& open);

/// Whether the document is as in the image, to the last bit that counts.
bool is_same(const OpenDocument& open, const DocumentImage& image);

/// Puts the image back. What is worked out beside it stays.
void put_image(DocumentImage image, const OpenDocument& open);

/// Whether the complex schedule counts too.
enum class SnapshotScope { without_schedule, with_schedule };

/// The image to be saved against. With the schedule, the grain total and the mash are worked out first.
DocumentImage snapshot_document(const OpenDocument& open, SnapshotScope scope);

/// Puts the recipe of the image back, then works out the grain total and the mash.
void restore_snapshot(const DocumentImage& image, const OpenDocument& open, SnapshotScope scope);

/// Whether the document differs from the image, a session's blocks included. The order of lines does not
/// count.
bool document_changed(const OpenDocument& open, const DocumentImage& image,
                      SnapshotScope scope = SnapshotScope::with_schedule);

} // namespace wortlex
