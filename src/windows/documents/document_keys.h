// The keys that are a document's in all its windows.
#pragma once

#include "documents/work/recipe_editor.h"
#include "windows/documents/page_ending.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include <functional>

namespace wortlex {

/// Saves, undoes and redoes by the platform's keys. The editor must outlive the window.
void add_document_keys(QWidget& window, RecipeEditor& editor, const std::function<void()>& save);

/// Saves by the platform's key.
void add_save_key(QWidget& window, const std::function<void()>& save);

/// The OK of a page that stays open: a letter that is free on it, and Ctrl+Enter, which ends long texts too.
void add_ok_keys(QWidget& page, QPushButton& ok);

/// OK and Cancel end the page. Neither is for Enter, which ends the field that one is in.
void add_page_buttons(QWidget& page, const QDialogButtonBox& buttons, PageEnding& ending);

} // namespace wortlex
