// What the main screen offers to go on with.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wortlex {

struct Program;

struct OfferedRecipe {
    std::string path;
    std::string name;  ///< UTF-8, unlike that of any other here
    std::string about; ///< its figures in words, or why it cannot be opened
    bool can_be_opened = true;
    std::optional<std::uint32_t> beer; ///< the colour in its glass, 0x00BBGGRR
};

inline constexpr std::size_t most_offered = 6;

/// The recipes opened last, newest first. Their files are read.
std::vector<OfferedRecipe> recent_recipes(const Program& program);

/// A recipe of a new brewery to look at, where it is still there.
std::optional<OfferedRecipe> sample_recipe(const Program& program);
inline constexpr std::string_view welcome_file = "Front Porch Pale Ale.rec";

} // namespace wortlex
