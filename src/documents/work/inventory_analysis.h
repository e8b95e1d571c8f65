// What a document asks for beside what is in stock, and what is missing.
#pragma once

#include "documents/work/stocks.h"
#include "settings/settings.h"

#include <array>

namespace wortlex {

/// One ingredient, in the unit shown. Texts are UTF-8.
struct StockLine {
    std::string name;   ///< of a hop with its form
    std::string origin; ///< of a yeast its lab; extras have none
    float wanted = 0;
    float in_stock = 0;    ///< 0 too where nothing was found
    float needed = 0;      ///< to be bought
    bool is_known = false; ///< found in its database

    /// A shortage that its two decimals do not show is none.
    bool is_short() const { return needed >= 0.005F; }
};

struct StockList {
    std::array<std::string, 4> heads; ///< "Hops", "Recipe Oz", "Oz In Stock", "Oz Needed"
    std::vector<StockLine> lines;
    bool is_told_again = false; ///< in another unit
};

/// A list a kind of ingredient, also where it is empty: malts, hops, extras, yeast. Behind the hops stand
/// their bitterness units, where the settings show those: what is in stock counts with the alpha of the
/// database, and what is asked for with that of the document.
using InventoryAnalysis = std::vector<StockList>;

InventoryAnalysis analyze_inventory(const BrewDocument& document, const Stocks& stocks,
                                    const Settings& settings);

/// How many ingredients are short; bitterness units count for nothing.
std::size_t count_short(const InventoryAnalysis& analysis);

/// What is short, a line each, long lists cut; empty where nothing is.
std::string shortages_in_words(const InventoryAnalysis& analysis);

inline constexpr std::string_view inventory_heading = "Inventory Analysis For Brewing Session";

/// A line of the whole analysis: the name with what stands beside it, three amounts, the mark of a shortage.
struct InventoryRow {
    std::array<std::string, 5> cells;
    bool is_head = false;
    bool is_short = false;
};

std::vector<InventoryRow> inventory_rows(const InventoryAnalysis& analysis);

/// The cells before the mark with tabs between them, and the mark at the end.
std::string tabbed_line(const InventoryRow& row);

} // namespace wortlex
