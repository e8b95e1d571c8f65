#include "windows/main/dropped_documents.h"

#include "desktop/dragged_file.h"
#include "records/documents/document_traits.h"

#include <QApplication>

namespace wortlex {

DroppedDocuments::DroppedDocuments(std::function<void(const std::string& path)> open, QObject* parent)
    : QObject(parent), open_(std::move(open)) {
    qApp->installEventFilter(this);
}

bool DroppedDocuments::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    const bool is_drag = type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
    return is_drag ? take(*dynamic_cast<QDropEvent*>(event)) : QObject::eventFilter(watched, event);
}

// Before any field, which would take the path for a text.
bool DroppedDocuments::take(QDropEvent& event) {
    const auto path = dragged_file(*event.mimeData());
    if (!path || !document_kind(*path) || QApplication::activeModalWidget() != nullptr) return false;
    event.acceptProposedAction();
    // Questions wait until the drag is over: until then the other program hangs on our answer.
    if (event.type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, path] { open_(*path); }, Qt::QueuedConnection);
    return true;
}

} // namespace wortlex
