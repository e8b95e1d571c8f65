// What a report on a document reads.
#pragma once

#include "documents/work/recipe_view.h"
#include "documents/work/stocks.h"

namespace wortlex {

/// The two lists as the settings ask for them where no window is open.
RecipeView default_report_view(const Settings& settings);

/// A document that has been worked out. Nothing of it is changed.
struct ReportSource {
    const OpenDocument& open; ///< of a recipe without a session
    const RecipeView& view;   ///< which figures the lists show
    const ColorTable& color_table;
    float evaporation_rate = 0;       ///< percent or gallons per hour, by the settings
    const Stocks* stocks = nullptr;   ///< for the inventory analysis; null: there is nothing in stock
    bool is_competition_form = false; ///< some lines of the same sections read differently there
};

} // namespace wortlex
