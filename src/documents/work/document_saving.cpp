#include "documents/work/document_saving.h"

#include "base/windows1252.h"
#include "documents/method_check.h"
#include "records/documents/document_files.h"

#include <filesystem>

namespace wortlex {
namespace {

constexpr std::string_view forbidden_in_titles = ":\\/|*";

void settle_method(const OpenDocument& open, Prompts& prompts) {
    const auto question = method_check_on_save(open.document, open.settings, kind_of(open));
    if (question && prompts.ask_yes_no({.text = *question, .icon = Icon::question}) == Answer::yes)
        open.document.file_efficiency_mode = static_cast<std::uint8_t>(open.settings.efficiency_mode);
}

bool has_file_title(const BrewDocument& document, Prompts& prompts) {
    if (document.title.view().find_first_of(forbidden_in_titles) == std::string_view::npos) return true;
    prompts.tell({.text = "The recipe name contains invalid characters used to build the "
                          "filename!\nInvalid characters include  \\   /   :   |   *\n\nRecipe names "
                          "must not contain these characters.",
                  .caption = "Wortlex Warning",
                  .icon = Icon::warning,
                  .is_advice = true});
    return false;
}

bool has_name(const DocumentSaving& saving) {
    return saving.file.loaded_from_file && !saving.file.incomplete &&
           !saving.editor.open.document.title.empty();
}

FileChoice choice_of(const DocumentSaving& saving, const std::string& suggestion) {
    const std::filesystem::path path(suggestion);
    const auto folder = path.has_parent_path() ? path.parent_path().string() : saving.folder;
    auto name = path.filename().string();
    const auto& traits = document_traits(kind_of(saving.editor.open));
    const auto ending = std::string(".").append(traits.extension);
    if (!name.empty() && path.extension() != ending) name += ending;
    return {traits.filter, folder, std::move(name), traits.extension};
}

// A new document is offered its title for a name; who leaves the dialog keeps a document without one.
std::optional<std::string> ask_name(const DocumentSaving& saving) {
    const auto& path = saving.file.path;
    const auto& title = saving.editor.open.document.title;
    return saving.files.choose_to_save(
        choice_of(saving, path.empty() ? utf8_from_windows1252(title.view()) : path));
}

bool write(DocumentSaving& saving, const std::string& path) {
    if (!may_overwrite(saving, path)) return false;
    if (!save_document(path, image_to_save(saving.editor), saving.prompts)) return false;
    count_as_saved(saving, path);
    return true;
}

} // namespace

bool is_modified(const OpenDocument& open, const DocumentImage& saved, const DocumentFile& file) {
    return file.recovered || document_changed(open, saved);
}

DocumentImage image_to_save(RecipeEditor& editor) {
    auto image = snapshot_document(editor.open, SnapshotScope::with_schedule);
    editor.history.settle(editor.open);
    return image;
}

bool may_overwrite(const DocumentSaving& saving, const std::string& path) {
    const auto& stamp = saving.file.stamp;
    const auto now = stamp_of(path);
    if (path != saving.file.path || !stamp || !now || *now == *stamp) return true;
    const auto text =
        file_name(path) +
        " has been changed by another program since it was opened.\nDo you want to overwrite it?";
    return saving.prompts.ask_yes_no({.text = text, .icon = Icon::warning}) == Answer::yes;
}

void count_as_saved(DocumentSaving& saving, const std::string& path) {
    auto& editor = saving.editor;
    pack_flags(editor.open.document);
    end_edit(editor);
    saving.file = {.path = path, .loaded_from_file = true, .stamp = stamp_of(path)};
    saving.saved = snapshot_document(editor.open, SnapshotScope::with_schedule);
}

bool save(DocumentSaving& saving, SaveAs save_as) {
    settle_method(saving.editor.open, saving.prompts);
    if (!has_file_title(saving.editor.open.document, saving.prompts)) return false;
    if (save_as == SaveAs::no && has_name(saving)) return write(saving, saving.file.path);
    const auto path = ask_name(saving);
    return path && write(saving, *path);
}

std::optional<std::string> save_recipe_part(const OpenDocument& open, Files& files, Prompts& prompts,
                                            const std::string& folder) {
    auto recipe = open.document;
    if (!has_file_title(recipe, prompts)) return std::nullopt;
    const auto& traits = document_traits(DocumentKind::recipe);
    const auto ending = std::string(".").append(traits.extension);
    const auto title = utf8_from_windows1252(recipe.title.view());
    auto path = files.choose_to_save(
        {traits.filter, folder, title.empty() ? title : title + ending, traits.extension});
    if (!path) return std::nullopt;
    if (document_kind(*path) == DocumentKind::session) *path += ending; // never over a session
    return save_recipe(*path, recipe, prompts) ? path : std::nullopt;
}

bool may_leave(DocumentSaving& saving) {
    const auto& open = saving.editor.open;
    if (!is_modified(open, saving.saved, saving.file)) return true;
    const auto answer = saving.prompts.ask_yes_no_cancel(
        {.text = document_traits(kind_of(open)).modified, .icon = Icon::question, .safe = Answer::yes});
    if (answer == Answer::cancel) return false;
    return answer == Answer::no || save(saving, SaveAs::no);
}

} // namespace wortlex
