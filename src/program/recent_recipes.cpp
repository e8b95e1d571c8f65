#include "program/recent_recipes.h"

#include "base/number.h"
#include "program/program.h"
#include "program/shelf/shelf_entry.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string about(const ShelfEntry& entry, const Settings& settings) {
    if (!entry.can_be_opened) return "The file " + std::string(entry.fault);
    const auto figure = [&](ShelfFigure which) {
        return fixed(entry.figure(which), decimals_of(which, settings));
    };
    return (entry.style.empty() ? "" : entry.style + ", ") + "OG " + figure(ShelfFigure::og) + ", " +
           figure(ShelfFigure::ibu) + " IBU";
}

OfferedRecipe offered(const std::string& path, const Program& program) {
    const auto entry = read_shelf_entry(path, program.settings);
    OfferedRecipe recipe{entry.path, entry.name, about(entry, program.settings), entry.can_be_opened, {}};
    if (entry.can_be_opened) recipe.beer = swatch_colour(program.color_table, entry.srm, program.settings);
    return recipe;
}

bool is_named(const std::vector<OfferedRecipe>& recipes, const std::string& name) {
    return std::any_of(recipes.begin(), recipes.end(), [&](const auto& other) { return other.name == name; });
}

} // namespace

std::vector<OfferedRecipe> recent_recipes(const Program& program) {
    const auto& recent = program.recent_documents;
    std::vector<OfferedRecipe> recipes;
    for (std::size_t i = 0; i < recent.size() && recipes.size() < most_offered; ++i) {
        if (document_kind(recent[i]) != DocumentKind::recipe) continue;
        auto recipe = offered(recent[i], program);
        if (is_named(recipes, recipe.name)) recipe.name += " - " + recent_name(recent, i);
        recipes.push_back(std::move(recipe));
    }
    return recipes;
}

std::optional<OfferedRecipe> sample_recipe(const Program& program) {
    auto recipe = offered(folder_path(program.folders, FolderKind::recipes).append(welcome_file), program);
    return recipe.can_be_opened ? std::optional(std::move(recipe)) : std::nullopt;
}

} // namespace wortlex
