// Parts that the rows of several sections share: labels, places for figures in the chosen precision, texts.
#pragma once

#include "base/ports/clock.h"
#include "documents/figure_catalogue.h"
#include "records/documents/lines.h"
#include "reports/report.h"
#include "reports/report_source.h"

#include <string>

namespace wortlex {

/// "Fine Grind Dry Basis" and its like.
std::string_view yield_word(YieldType type);

/// The cell of a label, filled up.
std::string padded_label(std::string_view label, std::size_t width);
/// That of "Batch Size (Gal):" for "Batch Size" and the unit of a figure.
std::string unit_label(std::string_view text, const Figure& figure, const ReportSource& source,
                       std::size_t width);

/// The place of a figure in its decimals.
std::string figure_place(const Figure& figure, int width, const ReportSource& source);
/// What stands there. Gravities are cut off, not rounded, as in every field.
ReportValue figure_value(const Figure& figure, const ReportSource& source);

/// The place of a gravity or of Plato with blanks behind it: `width` and `gap` are those of the fewest
/// decimals, and each one more takes a blank of the gap, so that point and next column stay where they are.
std::string sg_column(int width, int gap, const Settings& settings);
std::string plato_column(int width, int gap, const Settings& settings);

/// Whole degrees as shown, cut off.
int shown_degrees(std::int32_t fahrenheit, const Settings& settings);

/// "01-A" with the blanks behind it, by which style and category of a beer follow.
ReportRow style_row(const StyleRecord& style);

/// The words of a line that tells a gravity in both scales. A label ends in the mark of its cell.
struct GravityWords {
    std::string_view label;
    int width = 0;                 ///< of the SG
    std::string_view gap = "   |"; ///< behind it
    std::string_view plato = "Plato:           |";
    int plato_width = 6;
};
/// SG and Plato of a line, cut off; no number where no wort has such a gravity.
std::vector<ReportValue> gravity_values(float sg);
ReportRow gravity_line(const GravityWords& words, float sg, const Settings& settings);

/// A date by the setting; one that no calendar has in its numbers.
std::string date_words(const CalendarDate& date, const Settings& settings);

/// A text of a record for one line of a report, UTF-8 without control characters.
std::string line_text(std::string_view windows1252);

template <std::size_t N>
std::string line_text(const Text<N>& text) {
    return line_text(text.view());
}

} // namespace wortlex
