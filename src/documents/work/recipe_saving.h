// Where a document comes from and goes to, and the rules and questions of a save.
#pragma once

#include "base/files.h"
#include "base/ports/desk.h"
#include "base/ports/prompts.h"
#include "documents/snapshot.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

/// Where a document comes from and where a save goes.
struct DocumentFile {
    std::string path; ///< empty for a new one
    bool loaded_from_file = false;
    bool incomplete = false; ///< the file had ended early: a save asks for a name first
    bool recovered = false;  ///< unsaved work of a run that broke off: to be saved, whatever it looks like
    std::optional<FileStamp> stamp = std::nullopt; ///< of the file as it was read or written last
};

/// A recipe under work, what it was when last saved, and whom a save asks.
struct RecipeSaving {
    RecipeEditor& editor;
    DocumentFile& file;
    DocumentSnapshot& saved;
    Files& files;
    Prompts& prompts;
    std::string folder; ///< of recipes, for one that has no file yet
};

/// Whether there is anything to save.
bool is_modified(const BrewDocument& document, const DocumentSnapshot& saved, const DocumentFile& file);

enum class SaveAs { no, yes };

/// Settles the efficiency method, looks at the title, asks for a file name where there is none, and saves;
/// then the recipe as it is counts as saved. False if the user left it or the file could not be written.
bool save(RecipeSaving& saving, SaveAs save_as);

/// Before the recipe is left for another one: true if nothing is to be saved, or has been, or shall not be.
bool may_leave(RecipeSaving& saving);

} // namespace wortlex
