#include "documents/work/inventory_analysis.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace wortlex {
namespace {

constexpr std::string_view shortage_mark = "  *";

// For one line of columns.
template <std::size_t N>
std::string plain_text(const Text<N>& text) {
    auto plain = utf8_from_windows1252(text.view());
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
    return plain;
}

// "Grain/Malt", "Recipe Lbs", "Lbs In Stock", "Lbs Needed"
std::array<std::string, 4> weighed_heads(const std::string& name, const std::string& unit) {
    return {name, "Recipe " + unit, unit + " In Stock", unit + " Needed"};
}

// Nothing in stock: it was not found.
StockLine stock_line(std::string name, std::string origin, float wanted, std::optional<float> in_stock) {
    const float there = in_stock.value_or(0.0F);
    const float needed = wanted >= there ? narrow(double{wanted} - there) : 0.0F;
    return {std::move(name), std::move(origin), wanted, there, needed, in_stock.has_value()};
}

template <class Record, class Line>
std::optional<float> stock_of(
    const Database<Record>& database, const Line& line,
    const std::function<float(float)>& shown = [](float stock) { return stock; }) {
    const auto* const entry = find_stock(database, line);
    return entry == nullptr ? std::nullopt : std::optional(shown(entry->stock));
}

StockList malt_stock(const BrewDocument& document, const Stocks& stocks, const Settings& settings) {
    const auto shown = [&settings](float pounds) { return grain_to_shown(pounds, settings); };
    StockList list{weighed_heads("Grain/Malt", grain_unit(settings).usual), {}};
    for (const auto& line : document.malts)
        list.lines.push_back(stock_line(plain_text(line.record.name), plain_text(line.record.origin),
                                        shown(line.amount), stock_of(stocks.malts, line, shown)));
    return list;
}

std::string name_with_form(const HopRecord& hop) {
    return plain_text(hop.name) + " - " + std::string(form_word(form(hop)));
}

StockList hop_stock(const BrewDocument& document, const Stocks& stocks, const Settings& settings) {
    const auto shown = [&settings](float ounces) { return hop_to_shown(ounces, settings); };
    StockList list{weighed_heads("Hops", hop_unit(settings).usual), {}};
    for (const auto& line : document.hops)
        list.lines.push_back(stock_line(name_with_form(line.record), plain_text(line.record.origin),
                                        shown(line.amount), stock_of(stocks.hops, line, shown)));
    return list;
}

StockList bitterness_stock(const BrewDocument& document, const Stocks& stocks, const Settings& settings) {
    const bool is_hbu = settings.bittering_unit == BitteringUnit::hbu;
    const double unit = is_hbu ? 1.0 : grams_per_ounce;
    const auto units = [unit](float ounces, float alpha) { return narrow(ounces * unit * alpha); };
    const auto* const word = bittering_unit(settings).usual;
    StockList list{{std::string("Hop ") + word + "'s", "In Recipe", "In Stock", "Needed"}, {}, true};
    for (const auto& line : document.hops) {
        const auto* const entry = find_stock(stocks.hops, line);
        list.lines.push_back(stock_line(
            name_with_form(line.record), plain_text(line.record.origin), units(line.amount, line.alpha),
            entry == nullptr ? std::nullopt : std::optional(units(entry->stock, entry->alpha))));
    }
    return list;
}

StockList extra_stock(const BrewDocument& document, const Stocks& stocks) {
    StockList list{{"Extras", "Recipe", "In Stock", "Needed"}, {}};
    for (const auto& line : document.extras)
        list.lines.push_back(
            stock_line(plain_text(line.record.name), "", line.amount, stock_of(stocks.extras, line)));
    return list;
}

StockList yeast_stock(const BrewDocument& document, const Stocks& stocks) {
    StockList list{{"Yeast", "Recipe", "In Stock", "Needed"}, {}};
    for (const auto& line : yeast_lines(document))
        list.lines.push_back(stock_line(plain_text(line.record.name), plain_text(line.record.lab),
                                        amount_taken(line), stock_of(stocks.yeasts, line)));
    return list;
}

InventoryRow row_of(const StockLine& line) {
    const auto amount = [](float value) { return formatted("%7.2f", value); };
    return {{line.origin.empty() ? line.name : line.name + " - " + line.origin, amount(line.wanted),
             amount(line.in_stock), amount(line.needed),
             line.is_short() ? std::string(shortage_mark) : std::string()},
            false,
            line.is_short()};
}

std::string shortage_in_words(const StockLine& line) {
    if (!line.is_known) return line.name + ": in no database";
    return line.name + formatted(": %0.2f wanted,", line.wanted) +
           formatted(" %0.2f in stock", line.in_stock);
}

} // namespace

InventoryAnalysis analyze_inventory(const BrewDocument& document, const Stocks& stocks,
                                    const Settings& settings) {
    InventoryAnalysis lists{malt_stock(document, stocks, settings), hop_stock(document, stocks, settings)};
    if (settings.display_home_bittering != 0) lists.push_back(bitterness_stock(document, stocks, settings));
    lists.push_back(extra_stock(document, stocks));
    lists.push_back(yeast_stock(document, stocks));
    return lists;
}

std::size_t count_short(const InventoryAnalysis& analysis) {
    std::size_t count = 0;
    for (const auto& list : analysis)
        if (!list.is_told_again)
            count += static_cast<std::size_t>(std::count_if(
                list.lines.begin(), list.lines.end(), [](const StockLine& line) { return line.is_short(); }));
    return count;
}

std::string shortages_in_words(const InventoryAnalysis& analysis) {
    constexpr std::size_t most = 8;
    std::size_t count = 0;
    std::string words;
    for (const auto& list : analysis)
        for (const auto& line : list.lines)
            if (!list.is_told_again && line.is_short() && count++ < most)
                words += (words.empty() ? "" : "\n") + shortage_in_words(line);
    return count > most ? words + "\nand " + std::to_string(count - most) + " more" : words;
}

std::vector<InventoryRow> inventory_rows(const InventoryAnalysis& analysis) {
    std::vector<InventoryRow> rows;
    for (const auto& list : analysis) {
        const auto& heads = list.heads;
        rows.push_back({{heads[0], heads[1], heads[2], heads[3], ""}, true});
        for (const auto& line : list.lines) rows.push_back(row_of(line));
    }
    return rows;
}

std::string tabbed_line(const InventoryRow& row) {
    const auto& cells = row.cells;
    return cells[0] + '\t' + cells[1] + '\t' + cells[2] + '\t' + cells[3] + cells[4];
}

} // namespace wortlex
