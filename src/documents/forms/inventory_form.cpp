#include "documents/forms/inventory_form.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view page_title = "Wortlex Inventory Analysis For Brewing Session";

constexpr int amount_width = 11; // in digits

std::string shortage_words(const InventoryView& view) {
    const auto heads = std::count_if(view.rows.begin(), view.rows.end(),
                                     [](const InventoryRow& row) { return row.is_head; });
    if (view.rows.size() == static_cast<std::size_t>(heads)) return "The session asks for nothing yet.";
    if (view.shortages == 0) return "Everything is in stock.";
    return view.shortages == 1 ? "1 ingredient is short, marked *."
                               : std::to_string(view.shortages) + " ingredients are short, marked *.";
}

constexpr std::array head_stops = {330, 430, 530};
// Figures end below the heads.
constexpr std::array<PageColumn, 5> page_columns = {
    {{}, {330, false, 375}, {430, false, 475}, {530, false, 575}, {578}}};

void print_row(PageContext& page, const InventoryRow& row) {
    if (!row.is_head) return page.TableLine(page_columns, {row.cells.begin(), row.cells.end()});
    page.KeepTogether(3);
    if (page.y() > 0) page.NewLines(1);
    page.SelectFont(PageFont::body_italic);
    page.TabbedLine(head_stops, tabbed_line(row));
}

} // namespace

InventoryView inventory_view(const BrewDocument& document, bool is_finalized, const Stocks& stocks,
                             std::vector<std::string> faults, const Settings& settings) {
    const auto analysis = analyze_inventory(document, stocks, settings);
    return {std::move(faults), inventory_rows(analysis), count_short(analysis), is_finalized};
}

std::string inventory_summary(const InventoryView& view) {
    std::string text;
    for (const auto& fault : view.faults) text += fault + " What it should hold counts as not in stock. ";
    if (view.is_finalized)
        text += "This session is finalized: its ingredients have been taken from stock already. ";
    return text + shortage_words(view);
}

std::string inventory_text(const InventoryView& view) {
    std::string text(inventory_heading);
    for (const auto& row : view.rows) text += "\r\n" + tabbed_line(row);
    return text + "\r\n";
}

void analysis_form(Form& form, const InventoryView& view, InventoryActions actions) {
    auto& rows = form.rows();
    rows.note("summary", [&view] { return inventory_summary(view); });
    rows.list(
            "stock",
            {{"Ingredient", false, 30, true},
             {"In Recipe", true, amount_width},
             {"In Stock", true, amount_width},
             {"Needed", true, amount_width},
             {"Short", false, 3}},
            [&view] { return view.rows.size(); },
            [&view](std::size_t row, std::size_t column) { return view.rows[row].cells.at(column); })
        .label("Stock")
        .headed([&view](std::size_t row) { return view.rows[row].is_head; })
        .marked([&view](std::size_t row) { return view.rows[row].is_short; });
    rows.button("copy", "&Copy", std::move(actions.copy)).hint("Puts the analysis on the clipboard");
    rows.button("print", "&Print", std::move(actions.print));
    rows.button("help", "&Help", std::move(actions.help));
}

PrintRequest inventory_printout(const InventoryView& view, float printer_scale) {
    return {std::string(page_title), printer_scale, [view](PageContext& page) {
                page.SetHeader(0, std::string(page_title));
                for (const auto& row : view.rows) print_row(page, row);
            }};
}

} // namespace wortlex
