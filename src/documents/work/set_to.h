// What the amounts of a recipe must be for it to reach a figure that the brewer wants.
#pragma once

#include "documents/work/recipe_editor.h"

namespace wortlex {

enum class SetToTarget : std::int32_t { og, ibu, batch_size, colour };

inline constexpr std::int32_t all_bittering_hops = -1;

/// What is wanted of each target, of which one is asked for at a time.
struct SetToWish {
    SetToTarget target = SetToTarget::og;
    float og = 1;         ///< specific gravity, by all malts in their proportions
    float ibu = 0;        ///< by one hop, or in their proportions by all that are not dry
    float batch_size = 0; ///< gallons, with all amounts, so that the beer stays as it is
    float colour = 0;     ///< SRM, by one malt against the others, so that the gravity stays as it is
    std::int32_t hop = all_bittering_hops; ///< a line
    std::int32_t malt = 0;
};

/// To be what it is, colour by the darkest malt.
SetToWish wish_as_is(const OpenDocument& open);

struct SetToPlan {
    SetToTarget target = SetToTarget::og;
    BrewDocument document; ///< as it would be, as the figures; neither counts where there is a fault
    RecipeFigures figures;
    std::string fault = {}; ///< why it cannot be reached, in words; empty: it can
};

/// Looks for the amounts by the recipe's own recalculation. They are as round as the figure, in the decimals
/// in which it is shown, allows, and stay as they are where it reads so already.
SetToPlan plan_set_to(const OpenDocument& open, const SetToWish& wish);

/// Carries a plan without a fault out, as one step. The document must be the one that was planned for.
void set_to(RecipeEditor& editor, const SetToPlan& plan);

} // namespace wortlex
