// The inventory analysis of a session: its form and its page.
#pragma once

#include "documents/work/inventory_analysis.h"
#include "forms/form.h"
#include "page/page.h"

namespace wortlex {

/// What the window shows, taken anew after each change.
struct InventoryView {
    std::vector<std::string> faults; ///< of the databases
    std::vector<InventoryRow> rows;
    std::size_t shortages = 0;
    bool is_finalized = false;
};

InventoryView inventory_view(const BrewDocument& document, bool is_finalized, const Stocks& stocks,
                             std::vector<std::string> faults, const Settings& settings);

/// What the analysis comes to, in a sentence or a few.
std::string inventory_summary(const InventoryView& view);

/// The analysis as a text of lines, for the clipboard, UTF-8.
std::string inventory_text(const InventoryView& view);

/// An empty action disables its button.
struct InventoryActions {
    std::function<void()> copy, print, help;
};

/// Shows `view`, which must outlive the form.
void analysis_form(Form& form, const InventoryView& view, InventoryActions actions);

PrintRequest inventory_printout(const InventoryView& view, float printer_scale);

} // namespace wortlex
