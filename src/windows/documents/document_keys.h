// The keys that are a document's in all its windows.
#pragma once

#include "documents/work/recipe_editor.h"

#include <QObject>

#include <functional>

namespace wortlex {

/// Saves, undoes and redoes by the platform's keys. The editor must outlive the window.
void add_document_keys(QWidget& window, RecipeEditor& editor, const std::function<void()>& save);

/// Undo is the document's, also while the cursor stands in a field of one line.
class DocumentUndo : public QObject {
public:
    /// Of the fields that `window` has now, which owns it.
    explicit DocumentUndo(QWidget& window);
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace wortlex
