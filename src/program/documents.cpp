#include "program/documents.h"

#include "program/program.h"

#include <filesystem>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view recipe_is_open = "A recipe is open already, and only one can be.\nTo begin or "
                                            "open another, use the File menu of its window.";
constexpr std::string_view session_is_open =
    "A brewing session is open already, and only one can be.\nTo begin or open another, use the File menu of "
    "its window.";

DocumentKind other(DocumentKind kind) {
    return kind == DocumentKind::recipe ? DocumentKind::session : DocumentKind::recipe;
}

// A file that is named is to be seen: another document of its kind makes room for it, unless it is the open
// one or its user stays in it.
bool makes_room(const Program& program, const std::string& path, DocumentKind kind) {
    std::error_code error;
    return !is_open(program.tools, open_command(kind)) ||
           std::filesystem::equivalent(path, program.document.file.path, error) ||
           close_tool(program.tools, open_command(kind));
}

void tell_fault(LoadResult result, const std::string& path, Prompts& prompts) {
    if (result == LoadResult::loaded) return;
    if (result == LoadResult::not_found) {
        prompts.tell({.text = file_not_found, .icon = Icon::error, .own = path});
        return;
    }
    const auto name = file_name(path);
    const auto text = name + " " + std::string(load_fault(result)) + ".";
    prompts.tell({.text = text, .icon = is_sound(result) ? Icon::warning : Icon::error, .own = name});
}

} // namespace

int open_command(DocumentKind kind) {
    return kind == DocumentKind::recipe ? command::open_recipe : command::open_session;
}

Wanted want_document(const OpenTools& tools, DocumentKind kind, Prompts& prompts) {
    const int other_command = open_command(other(kind));
    if (activate_if_open(tools, open_command(kind))) return Wanted::reactivated;
    if (!is_open(tools, other_command)) return Wanted::go_on;
    const Message question{.text = document_traits(kind).other_is_open, .icon = Icon::question};
    if (prompts.ask_yes_no(question) != Answer::yes) return Wanted::refused;
    activate_if_open(tools, other_command);
    return Wanted::reactivated;
}

// Told first: behind the box its owner would come forward again.
bool may_begin_document(const OpenTools& tools, DocumentKind kind, Prompts& prompts) {
    if (is_open(tools, open_command(kind)))
        prompts.tell({.text = kind == DocumentKind::recipe ? recipe_is_open : session_is_open,
                      .icon = Icon::information});
    return want_document(tools, kind, prompts) == Wanted::go_on;
}

void new_recipe(Program& program) {
    start_recipe(program.document, program.settings);
}

void new_session(Program& program, const CalendarDate& today) {
    start_session(program.document, program.water_usage, program.settings, today);
}

LoadResult load_document(Program& program, const std::string& path, DocumentKind kind) {
    const auto file = read_file(path);
    return file ? read_into(program.document, kind, *file, program.settings) : LoadResult::not_found;
}

bool open_document(Program& program, const std::string& path, DocumentKind kind, Prompts& prompts) {
    const auto result = load_document(program, path, kind);
    tell_fault(result, path, prompts);
    if (!is_sound(result)) return false;
    program.document.file = {.path = path,
                             .loaded_from_file = true,
                             .incomplete = result != LoadResult::loaded,
                             .stamp = stamp_of(path)};
    remember_document(program, path);
    return true;
}

std::optional<std::string> choose_document_file(Program& program, DocumentKind kind, Files& files) {
    const auto& chosen = document_traits(kind);
    auto path = files.choose_to_open(
        {chosen.filter, folder_path(program.folders, chosen.folder), {}, chosen.extension});
    if (path) follow_user(program.folders, chosen.folder, *path);
    return path;
}

bool choose_and_open(Program& program, DocumentKind kind, Files& files, Prompts& prompts) {
    const auto path = choose_document_file(program, kind, files);
    return path && open_document(program, *path, kind, prompts);
}

std::optional<BrewDocument> choose_recipe_for_session(Program& program, Files& files, Prompts& prompts) {
    const auto path = choose_document_file(program, DocumentKind::recipe, files);
    if (!path) return std::nullopt;
    auto recipe = new_document(program.settings, ScheduleKind::simple);
    const auto result = load_recipe(*path, recipe, program.settings);
    tell_fault(result, *path, prompts);
    return is_sound(result) ? std::optional(std::move(recipe)) : std::nullopt;
}

bool open_document_file(Program& program, const std::string& path, Prompts& prompts) {
    const auto kind = document_kind(path);
    if (!kind) {
        const auto name = file_name(path);
        const auto text = name + " " + std::string(is_no_document) + ".";
        prompts.tell({.text = text, .icon = Icon::error, .own = name, .is_advice = true});
        return false;
    }
    return makes_room(program, path, *kind) &&
           want_document(program.tools, *kind, prompts) == Wanted::go_on &&
           open_document(program, path, *kind, prompts);
}

void remember_document(Program& program, const std::string& path) {
    std::error_code error;
    const auto whole = std::filesystem::absolute(path, error).string();
    remember(program.recent_documents, error ? path : whole);
    SaveRecent(program.data_folder, program.recent_documents); // a list that cannot be saved is no loss
}

} // namespace wortlex
