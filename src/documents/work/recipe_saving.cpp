#include "documents/work/recipe_saving.h"

#include "base/windows1252.h"
#include "documents/method_check.h"
#include "records/documents/document_files.h"

#include <filesystem>

namespace wortlex {
namespace {

constexpr std::string_view forbidden_in_titles = ":\\/|*";

void settle_method(BrewDocument& document, const Settings& settings, Prompts& prompts) {
    const auto question = method_check_on_save(document, settings);
    if (question && prompts.ask_yes_no({.text = *question, .icon = Icon::question}) == Answer::yes)
        document.file_efficiency_mode = static_cast<std::uint8_t>(settings.efficiency_mode);
}

bool has_file_title(const BrewDocument& document, Prompts& prompts) {
    if (document.title.view().find_first_of(forbidden_in_titles) == std::string_view::npos) return true;
    prompts.tell({.text = "The recipe name contains invalid characters used to build the "
                          "filename!\nInvalid characters include  \\   /   :   |   *\n\nRecipe names "
                          "must not contain these characters.",
                  .caption = "Wortlex Warning",
                  .icon = Icon::warning});
    return false;
}

bool has_name(const RecipeSaving& saving) {
    return saving.file.loaded_from_file && !saving.file.incomplete &&
           !saving.editor.open.document.title.empty();
}

FileChoice choice_of(const RecipeSaving& saving, const std::string& suggestion) {
    const std::filesystem::path path(suggestion);
    const auto folder = path.has_parent_path() ? path.parent_path().string() : saving.folder;
    auto name = path.filename().string();
    if (!name.empty() && path.extension() != ".rec") name += ".rec";
    return {"Recipe File (*.rec)|*.rec", folder, std::move(name), "rec"};
}

// A new recipe is offered its title for a name. Who then leaves the dialog has neither.
std::optional<std::string> ask_name(RecipeSaving& saving) {
    auto& document = saving.editor.open.document;
    const auto title = utf8_from_windows1252(document.title.view());
    const bool takes_title = saving.file.path.empty() && !title.empty();
    auto chosen = saving.files.choose_to_save(choice_of(saving, takes_title ? title : saving.file.path));
    if (!chosen && takes_title) set_title(saving.editor, "");
    return chosen;
}

// Nobody loses what another program wrote into the file meanwhile, unless he says so.
bool may_overwrite(const RecipeSaving& saving, const std::string& path) {
    const auto& stamp = saving.file.stamp;
    const auto now = stamp_of(path);
    if (path != saving.file.path || !stamp || !now || *now == *stamp) return true;
    const auto text =
        file_name(path) +
        " has been changed by another program since it was opened.\nDo you want to overwrite it?";
    return saving.prompts.ask_yes_no({.text = text, .icon = Icon::warning}) == Answer::yes;
}

bool write(RecipeSaving& saving, const std::string& path) {
    auto& editor = saving.editor;
    if (!may_overwrite(saving, path)) return false;
    if (!save_recipe(path, editor.open.document, saving.prompts)) return false;
    end_edit(editor);
    saving.file = {.path = path, .loaded_from_file = true, .stamp = stamp_of(path)};
    saving.saved = snapshot_document(editor.open, SnapshotScope::with_schedule);
    return true;
}

} // namespace

bool is_modified(const BrewDocument& document, const DocumentSnapshot& saved, const DocumentFile& file) {
    return file.recovered || document_changed(document, saved);
}

bool save(RecipeSaving& saving, SaveAs save_as) {
    auto& document = saving.editor.open.document;
    settle_method(document, saving.editor.open.settings, saving.prompts);
    if (!has_file_title(document, saving.prompts)) return false;
    if (save_as == SaveAs::no && has_name(saving)) return write(saving, saving.file.path);
    const auto path = ask_name(saving);
    return path && write(saving, *path);
}

bool may_leave(RecipeSaving& saving) {
    if (!is_modified(saving.editor.open.document, saving.saved, saving.file)) return true;
    const auto answer = saving.prompts.ask_yes_no_cancel(
        {.text = "The current recipe has been modified!\nDo you want to save the changes?",
         .icon = Icon::question});
    if (answer == Answer::cancel) return false;
    return answer == Answer::no || save(saving, SaveAs::no);
}

} // namespace wortlex
