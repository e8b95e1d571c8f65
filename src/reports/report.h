// A report on a document: what it says, apart from the form it takes. It is built once, as sections of rows;
// a row holds its values once and the line of the text form, in which a mark ends every cell of the others.
#pragma once

#include "charts/chart_picture.h"
#include "page/html_writer.h"
#include "page/page.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace wortlex {

/// What stands at one place of a row: a figure, or UTF-8 text with the width of its column in the text form
/// (0: as long as it is).
struct ReportValue {
    ReportValue(double number) : content(number) {}
    ReportValue(std::int32_t number) : content(static_cast<double>(number)) {}
    ReportValue(std::string text, std::size_t column_width = 0)
        : content(std::move(text)), width(column_width) {}
    ReportValue(std::string_view text) : content(std::string(text)) {}
    ReportValue(const char* text) : content(std::string(text)) {}

    std::variant<double, std::string> content;
    std::size_t width = 0;
};

/// Ends a cell in the format of a row, the last one excepted. The text form leaves it out. It stands in
/// formats alone: what a user typed is a value, so that any text can hold this character.
constexpr char cell_end = '|';

/// One line. In `format` every place is "%f" or "%d" with width and decimals, "%s" or "%c"; `\n` ends the
/// line and, in front or behind it, leaves one blank. A cell that holds a number is a figure, unless the
/// number has leading zeros, which make it a name ("%02d"); one of words alone that ends in a colon is a
/// label.
struct ReportRow {
    std::string format;
    std::vector<ReportValue> values;
    /// The cells of print where it has its own, each as it stands, with figures as wide as told.
    std::string print_format{};
    std::optional<std::uint32_t> colour{}; ///< 0x00BBGGRR, of a box beside it in print and HTML
    bool is_title = false;                 ///< printed in the font of headings
    bool is_underlined = false;            ///< in the text form, by dashes
};

/// Labels and figures, or sentences: rows of one cell.
struct ReportLines {
    std::vector<int> tabs; ///< of print, behind the first column
    std::vector<ReportRow> rows;
};

struct ReportColumn {
    std::string title;     ///< `\n` between its two lines
    std::size_t place = 0; ///< of its title in the text form, in characters
    int tab = 0;           ///< of print; 0 for the first column
    int width = 0;         ///< of its cells, in pixels
    HtmlAlign align = HtmlAlign::left;
    int title_tab = 0; ///< of print, where the title stands elsewhere than the column
    int end = 0;       ///< of print, where its figures end, flush; 0: they begin at the tab
};

/// A list under column titles, a cell a column.
struct ReportTable {
    std::vector<ReportColumn> columns;
    std::vector<ReportRow> rows;
};

/// A text as the user typed it, UTF-8. Every line of it ends with CR LF, whatever it came with.
class ReportText {
public:
    explicit ReportText(std::string_view typed);
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

using ReportBlock = std::variant<ReportLines, ReportTable, ReportText>;

/// A chart as the document stands: drawn on the pages, a picture beside HTML. A text has none.
struct ReportChart {
    std::string alternative; ///< words for who cannot see the picture
    std::string ending;      ///< of the picture's file name: "_mash"
    ChartDrawing drawing;
    std::function<void(PageContext&)> print;
};

struct ReportSection {
    std::string heading; ///< none where empty
    std::vector<ReportBlock> blocks;
    std::optional<std::string> print_heading{};     ///< where print has its own
    std::string text_heading{};                     ///< where the text form has its own, with all its lines
    int print_order = 0;                            ///< those of a larger number come later in print
    std::function<void(PageContext&)> print_body{}; ///< what print has instead of the blocks
    std::optional<ReportChart> chart{};             ///< alone, without a heading
};

/// A section of such blocks, which are moved.
template <class... Blocks>
ReportSection section_of(std::string heading, Blocks... blocks) {
    ReportSection section{std::move(heading), {}};
    (section.blocks.emplace_back(std::move(blocks)), ...);
    return section;
}

struct DocumentReport {
    std::string text_head;   ///< the text form above its sections, with all its lines
    std::string page_title;  ///< at the head of every printed page
    std::string print_title; ///< on the first one, where there is one
    std::string html_title;
    std::vector<ReportSection> sections{};
    std::string html_subtitle{}; ///< below the title, where there is one
};

} // namespace wortlex
