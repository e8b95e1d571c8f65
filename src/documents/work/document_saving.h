// The rules and questions of a save, for documents of either kind.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "documents/live_document.h"
#include "documents/snapshot.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

/// A document under work, what it was when last saved, and whom a save asks.
struct DocumentSaving {
    RecipeEditor& editor;
    DocumentFile& file;
    DocumentImage& saved;
    Files& files;
    Prompts& prompts;
    std::string folder; ///< of its kind, for one that has no file yet
};

/// Whether there is anything to save.
bool is_modified(const OpenDocument& open, const DocumentImage& saved, const DocumentFile& file);

enum class SaveAs { no, yes };

/// Settles the efficiency method, looks at the title, asks for a file name where there is none, and saves;
/// then the document as it is counts as saved. False if the user left it or the file could not be written.
bool save(DocumentSaving& saving, SaveAs save_as);

/// The document as a save writes it, worked out anew.
DocumentImage image_to_save(RecipeEditor& editor);

/// Nobody loses what another program wrote into the document's file meanwhile, unless he says so.
bool may_overwrite(const DocumentSaving& saving, const std::string& path);

/// The file holds the document now: it comes from there, and there is nothing to save.
void count_as_saved(DocumentSaving& saving, const std::string& path);

/// Writes the recipe part of a session into a recipe file that is asked for, and answers its path. The
/// session, its file and its title stay as they are.
std::optional<std::string> save_recipe_part(const OpenDocument& open, Files& files, Prompts& prompts,
                                            const std::string& folder);

/// Before the document is left for another one: true if nothing is to be saved, or has been, or shall not be.
bool may_leave(DocumentSaving& saving);

} // namespace wortlex
