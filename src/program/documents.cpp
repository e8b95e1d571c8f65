#include "program/documents.h"

#include "program/program.h"

#include <algorithm>
#include <filesystem>

namespace wortlex {
namespace {

// What tells the two kinds of document apart, to the frame.
struct KindTraits {
    int command;
    int other_command;
    std::string_view question; ///< with the other kind open
    FolderKind folder;
    std::string_view filter;
    std::string_view extension;
};

constexpr KindTraits recipe_traits = {
    command::new_recipe,
    command::new_session,
    "You cannot open a recipe while a brewing session is open.\nWould you like to transfer to the currently "
    "open brewing session?",
    FolderKind::recipes,
    "Recipe File (*.rec)|*.rec",
    "rec"};
constexpr KindTraits session_traits = {
    command::new_session,
    command::new_recipe,
    "You cannot open a brewing session while a recipe is open.\nWould you like to transfer to the currently "
    "open recipe?",
    FolderKind::sessions,
    "Brew File (*.brw)|*.brw",
    "brw"};

const KindTraits& traits(DocumentKind kind) {
    return kind == DocumentKind::recipe ? recipe_traits : session_traits;
}

bool is_sound(LoadResult result) {
    return result == LoadResult::loaded || result == LoadResult::incomplete;
}

void tell_fault(LoadResult result, const std::string& path, Prompts& prompts) {
    if (result == LoadResult::loaded) return;
    if (result == LoadResult::not_found) {
        prompts.tell({.text = file_not_found, .icon = Icon::error});
        return;
    }
    const auto text = file_name(path) + " " + std::string(load_fault(result)) + ".";
    prompts.tell({.text = text, .icon = is_sound(result) ? Icon::warning : Icon::error});
}

} // namespace

DocumentFile& document_file(Program& program, DocumentKind kind) {
    return kind == DocumentKind::recipe ? program.recipe_file : program.session_file;
}

std::optional<DocumentKind> document_kind(std::string_view path) {
    if (path.size() < 4) return std::nullopt;
    std::string ending(path.substr(path.size() - 4));
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    if (ending == ".rec") return DocumentKind::recipe;
    if (ending == ".brw") return DocumentKind::session;
    return std::nullopt;
}

Wanted want_document(const OpenTools& tools, DocumentKind kind, Prompts& prompts) {
    const auto& wanted = traits(kind);
    if (activate_if_open(tools, wanted.command)) return Wanted::reactivated;
    if (!is_open(tools, wanted.other_command)) return Wanted::go_on;
    if (prompts.ask_yes_no({.text = wanted.question, .icon = Icon::question}) != Answer::yes)
        return Wanted::refused;
    activate_if_open(tools, wanted.other_command);
    return Wanted::reactivated;
}

void new_recipe(Program& program) {
    program.document = new_document(program.settings, program.settings.default_schedule);
    program.figures = {};
    program.water_to_grain = program.settings.quarts_per_pound;
    program.recipe_file = {};
}

void new_session(Program& program) {
    start_session(open_session(program), program.water_usage);
    program.water_to_grain = program.settings.quarts_per_pound;
    program.session_file = {};
}

LoadResult load_document(Program& program, const std::string& path, DocumentKind kind) {
    auto document = new_document(program.settings, program.settings.default_schedule);
    const auto result = kind == DocumentKind::recipe
                            ? load_recipe(path, document, program.settings)
                            : load_session(path, document, program.session, program.settings);
    if (is_sound(result)) program.document = std::move(document);
    return result;
}

bool open_document(Program& program, const std::string& path, DocumentKind kind, Prompts& prompts) {
    const auto result = load_document(program, path, kind);
    tell_fault(result, path, prompts);
    if (!is_sound(result)) return false;
    program.water_to_grain = 0;
    document_file(program, kind) = {.path = path,
                                    .loaded_from_file = true,
                                    .incomplete = result == LoadResult::incomplete,
                                    .stamp = stamp_of(path)};
    remember_document(program, path);
    return true;
}

bool choose_and_open(Program& program, DocumentKind kind, Files& files, Prompts& prompts) {
    const auto& chosen = traits(kind);
    const auto path = files.choose_to_open(
        {chosen.filter, folder_path(program.folders, chosen.folder), {}, chosen.extension});
    if (!path) return false;
    follow_user(program.folders, chosen.folder, *path);
    return open_document(program, *path, kind, prompts);
}

bool open_document_file(Program& program, const std::string& path, Prompts& prompts) {
    const auto kind = document_kind(path);
    if (!kind) {
        const auto text = file_name(path) + " is neither a recipe (.rec) nor a brewing session (.brw).";
        prompts.tell({.text = text, .icon = Icon::error});
        return false;
    }
    return want_document(program.tools, *kind, prompts) == Wanted::go_on &&
           open_document(program, path, *kind, prompts);
}

void remember_document(Program& program, const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error).string();
    remember(program.recent_documents, error ? path : whole);
    SaveRecent(program.data_folder, program.recent_documents); // a list that cannot be saved is no loss
}

} // namespace wortlex
