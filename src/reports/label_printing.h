// Labels on sheets of them, each in its place to the tenth of a millimetre.
#pragma once

#include "page/page.h"
#include "reports/report.h"
#include "settings/label_sheets.h"

namespace wortlex {

/// What is printed of a label. On a sheet already begun the first ones are gone.
struct LabelRun {
    LabelSheet sheet;
    std::int32_t copies = 1;
    std::int32_t start = 1; ///< place on the first sheet, counted from 1 along the rows
};

/// Each in letters as large as fit, up to those of a book.
void draw_label_sheets(const std::vector<ReportRow>& label, const LabelRun& run, PageContext& page);

/// By how far pages are to be moved on a printer of some name; as they are where nothing is told of it.
std::function<PrintShift(const std::string& printer)> shift_by_printer(LabelSettings settings);

/// Rulers from two edges of the paper and the outlines of the labels, to be measured and held against a
/// sheet.
void draw_ruler_page(const LabelSheet& sheet, PageContext& page);

} // namespace wortlex
