// What the recipe window shows of a document, as text: its two lists and the words that follow the units.
#pragma once

#include "documents/document_recalculation.h"

#include <array>
#include <string>
#include <vector>

namespace wortlex {

inline constexpr std::size_t malt_columns = 6;
inline constexpr std::size_t hop_columns = 6;
inline constexpr std::size_t extra_columns = 4;

/// What the recipe window keeps beside the document while it is open.
struct RecipeView {
    RecipeLocks locks;
    bool show_potential = true; ///< the malt list shows potentials, else contributions
    bool show_ibu = true;       ///< the hop list shows IBU, else HBU or MBU
    std::int32_t selected_malt = -1;
    std::int32_t selected_hop = -1;
    std::int32_t selected_extra = -1;
    /// By column: whether the next click on its head sorts downwards.
    std::array<bool, malt_columns> malts_descending{};
    std::array<bool, hop_columns> hops_descending{};
    std::array<bool, extra_columns> extras_descending{};
};

/// What the value column of a malt line and the bitterness column of a hop line show, as numbers.
float malt_value(const OpenDocument& open, const RecipeView& view, std::size_t line);
float hop_bitterness(const HopUse& hop, const RecipeView& view, const Settings& settings);

/// One cell of the malt list, UTF-8: name, origin, potential or contribution, colour, amount, share.
std::string malt_cell(const OpenDocument& open, const RecipeView& view, std::size_t line, std::size_t column);

/// One cell of the hop list: name, form, alpha, bitterness, amount, boil time.
std::string hop_cell(const OpenDocument& open, const RecipeView& view, std::size_t line, std::size_t column);

/// One cell of the list of extras: name, type, time, amount.
std::string extra_cell(const ExtraUse& extra, std::size_t column);

/// The heads of the columns that follow the settings.
std::string malt_value_head(const RecipeView& view, const Settings& settings);
std::string malt_colour_head(const Settings& settings);
std::string hop_bitterness_head(const RecipeView& view, const Settings& settings);

/// "Batch Size (GAL)".
std::string size_label(std::string_view of, const Settings& settings);

/// "All Grain" and its like; the type of a style; the book it is from.
std::string_view beer_type_word(BeerType type);
std::string_view style_book_word(const StyleRecord& style);

/// Whether a style was chosen at all.
bool has_style(const BrewDocument& document);

} // namespace wortlex
