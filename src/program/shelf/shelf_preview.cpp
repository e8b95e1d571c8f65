#include "program/shelf/shelf_preview.h"

#include "base/files.h"
#include "documents/live_document.h"
#include "documents/opening.h"
#include "reports/catalogue.h"
#include "reports/report_writers.h"

#include <algorithm>

namespace wortlex {
namespace {

// A text has no charts. The head is that of every report, and the guidelines of the style tell nothing of the
// beer.
std::string report_text(BrewDocument& recipe, const ShelfPreviewing& with) {
    RecipeFigures figures;
    const OpenDocument open{recipe, figures, with.settings};
    recalculate_opened(open);
    auto sections = with.sections;
    sections[PrintSection::mash_graph] = sections[PrintSection::recipe_style_guidelines] = 0;
    const auto view = default_report_view(with.settings);
    auto report = document_report({open, view, with.color_table, with.evaporation_rate}, sections);
    report.text_head.clear();
    TextSink sink;
    write_text(report, sink);
    const auto& text = sink.text();
    return text.substr(std::min(text.find_first_not_of("\r\n"), text.size()));
}

} // namespace

std::string shelf_preview(const ShelfEntry& entry, const ShelfPreviewing& with) {
    auto recipe = new_document(with.settings, ScheduleKind::simple);
    const auto result = load_recipe(entry.path, recipe, with.settings);
    const auto fault = shelf_fault(result);
    auto words = fault.empty() ? "" : file_name(entry.path).append(" ").append(fault).append(".\n\n");
    return is_sound(result) ? words + report_text(recipe, with) : words;
}

} // namespace wortlex
