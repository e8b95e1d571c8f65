#include "windows/documents/document_keys.h"

#include "desktop/undo_keys.h"

#include <QShortcut>

namespace wortlex {

void add_document_keys(QWidget& window, RecipeEditor& editor, const std::function<void()>& save) {
    add_save_key(window, save);
    add_undo_keys(
        window, [&editor] { undo(editor); }, [&editor] { redo(editor); });
}

void add_save_key(QWidget& window, const std::function<void()>& save) {
    for (const auto& sequence : QKeySequence::keyBindings(QKeySequence::Save))
        QObject::connect(new QShortcut(sequence, &window), &QShortcut::activated, &window, save);
}

} // namespace wortlex
