#include "records/documents/document_traits.h"

#include "base/files.h"
#include "records/documents/document_parts.h"

#include <algorithm>

namespace wortlex {
namespace {

LoadResult read_recipe_image(ByteView file, DocumentImage& image, const Settings& settings) {
    const auto result = read_recipe(file, image.recipe, settings);
    if (is_sound(result)) image.session.reset();
    return result;
}

LoadResult read_session_image(ByteView file, DocumentImage& image, const Settings& settings) {
    SessionDocument session;
    const auto result = read_session(file, image.recipe, session, settings);
    if (is_sound(result)) image.session = session;
    return result;
}

Bytes encode_recipe(const DocumentImage& image) {
    return recipe_bytes(image.recipe);
}

Bytes encode_session(const DocumentImage& image) {
    return session_bytes(image.recipe, image.session.value());
}

constexpr DocumentTraits recipe_traits = {
    .folder = FolderKind::recipes,
    .extension = "rec",
    .filter = "Recipe File (*.rec)|*.rec",
    .word = "recipe",
    .nameless = "a new recipe",
    .modified = "The current recipe has been modified!\nDo you want to save the changes?",
    .other_is_open = "You cannot open a recipe while a brewing session is open.\nWould you like to transfer "
                     "to the currently open brewing session?",
    .about_to = "The recipe you are about to ",
    .printed_name = "Wortlex Recipe",
    .save_selection = "Really save these settings as the recipe formulation print defaults?",
    .work_signature = "Wortlex unsaved recipe 1",
    .read = read_recipe_image,
    .encode = encode_recipe};

constexpr DocumentTraits session_traits = {
    .folder = FolderKind::sessions,
    .extension = "brw",
    .filter = "Brew File (*.brw)|*.brw",
    .word = "session",
    .nameless = "a new brewing session",
    .modified = "The current brew session entry has been modified!\nDo you want to save the changes?",
    .other_is_open = "You cannot open a brewing session while a recipe is open.\nWould you like to transfer "
                     "to the currently open recipe?",
    .about_to = "The brewing session you are about to ",
    .printed_name = "Wortlex Brewing Session",
    .save_selection = "Really save these settings as the brewing session print defaults?",
    .work_signature = "Wortlex unsaved session 1",
    .read = read_session_image,
    .encode = encode_session};

bool has_extension(std::string_view path, std::string_view extension) {
    const auto is_same = [](char of_path, char lower) {
        return (of_path >= 'A' && of_path <= 'Z' ? of_path + ('a' - 'A') : of_path) == lower;
    };
    if (path.size() <= extension.size() || path[path.size() - extension.size() - 1] != '.') return false;
    path.remove_prefix(path.size() - extension.size());
    return std::equal(path.begin(), path.end(), extension.begin(), is_same);
}

} // namespace

const DocumentTraits& document_traits(DocumentKind kind) {
    return kind == DocumentKind::recipe ? recipe_traits : session_traits;
}

std::optional<DocumentKind> document_kind(std::string_view path) {
    for (const auto kind : {DocumentKind::recipe, DocumentKind::session})
        if (has_extension(path, document_traits(kind).extension)) return kind;
    return std::nullopt;
}

LoadResult read_document(DocumentKind kind, ByteView file, DocumentImage& image, const Settings& settings) {
    return document_traits(kind).read(file, image, settings);
}

Bytes document_bytes(const DocumentImage& image) {
    return document_traits(image.kind()).encode(image);
}

Bytes saved_bytes(const DocumentImage& image) {
    auto written = image;
    if (written.session) repair_recording(*written.session, written.recipe);
    return document_bytes(written);
}

bool save_document(const std::string& path, const DocumentImage& image, Prompts& prompts) {
    return save_or_tell(path, saved_bytes(image), prompts);
}

} // namespace wortlex
