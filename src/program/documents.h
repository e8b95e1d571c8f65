// New documents and files that become the live one.
#pragma once

#include "base/ports/file_dialogs.h"
#include "documents/live_document.h"
#include "program/open_tools.h"

namespace wortlex {

struct Program;

/// The command that opens a document of that kind.
int open_command(DocumentKind kind);

/// What became of the wish for a document window. There is one at most.
enum class Wanted {
    go_on,       ///< no document is open
    reactivated, ///< an open one was brought forward instead
    refused      ///< the user stays where he is
};

/// To be asked before a document is made or opened from outside its own window.
Wanted want_document(const OpenTools& tools, DocumentKind kind, Prompts& prompts);

/// The same for a command of the main window; whether to go on. Where one of its kind is open already, that
/// is told, and it comes forward.
bool may_begin_document(const OpenTools& tools, DocumentKind kind, Prompts& prompts);

/// Makes the live document an empty one without a file.
void new_recipe(Program& program);
void new_session(Program& program, const CalendarDate& today);

/// Loads a file into the live document. A file that is not found or damaged leaves everything as it was.
LoadResult load_document(Program& program, const std::string& path, DocumentKind kind);

/// Loads a file, tells what is wrong with it and notes where the document comes from. True if it is now the
/// live document, however incomplete.
bool open_document(Program& program, const std::string& path, DocumentKind kind, Prompts& prompts);

/// A file that the user chooses in the dialog of files, from the folder of its kind; nothing if he leaves it.
std::optional<std::string> choose_document_file(Program& program, DocumentKind kind, Files& files);

/// The same as `open_document` for a file so chosen; false if he leaves the dialog.
bool choose_and_open(Program& program, DocumentKind kind, Files& files, Prompts& prompts);

/// A recipe that the user chooses for a session; told what is wrong with its file. Nothing if he leaves the
/// dialog, or there is none.
std::optional<BrewDocument> choose_recipe_for_session(Program& program, Files& files, Prompts& prompts);

/// The same as `choose_and_open` for a file from outside, a dropped or a recent one: its ending tells its
/// kind. An open document is left first, if its user lets it go; true if a window is to be opened on the new
/// one.
bool open_document_file(Program& program, const std::string& path, Prompts& prompts);

/// Puts a document that was opened or saved first among the recent ones, and saves the list.
void remember_document(Program& program, const std::string& path);

} // namespace wortlex
