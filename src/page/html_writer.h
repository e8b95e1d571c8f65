// Pages of HTML as browsers have read them from the beginning: tables and fonts, no style sheets. Texts are
// UTF-8 and are escaped here, so that the reader sees them as they were typed.
#pragma once

#include "base/ports/prompts.h"
#include "page/html_theme.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace wortlex {

/// The parts of a page that have a background and a text colour of their own.
enum class HtmlArea { body, heading, column_heading, descriptor, field };

enum class HtmlAlign { none, left, centre, right };

/// What keeps a cell from collapsing, or its text from the border; written as "&nbsp;".
inline constexpr std::string_view html_blank = "\u00A0", html_two_blanks = "\u00A0\u00A0";

/// Writes one page. Every start has its end; each writer ends its line.
class HtmlWriter {
public:
    /// The theme as it is now.
    explicit HtmlWriter(const HtmlTheme& theme);

    /// The head with its title, and the start of the body.
    void page_start(std::string_view title);
    /// The credit line and all that closes the page.
    void page_end();

    /// A table with the border, spacing and padding of the theme, and its first row.
    void table_start();
    /// Ends the row, too.
    void table_end();
    /// Where the last row has been ended.
    void bare_table_end();
    void row_start();
    void row_end();

    /// What a cell takes beside its width, in pixels: its padding and its borders.
    int cell_frame() const;

    /// A cell; `width` in pixels.
    void cell_start(int width, HtmlAlign align, HtmlArea area);
    /// Without borders an aligned cell goes to the right, or to the left, whatever is asked for.
    void right_cell_start(int width, HtmlAlign align, HtmlArea area);
    void left_cell_start(int width, HtmlAlign align, HtmlArea area);
    /// As wide as it needs, in larger, bold letters; ended by `bold_cell_end`.
    void heading_cell_start(HtmlAlign align, HtmlArea area);
    /// Filled with a colour, 0x00BBGGRR.
    void colour_cell_start(int width, HtmlAlign align, std::uint32_t colour);

    /// The text and the end of a cell.
    void cell_end(std::string_view text = {});
    /// A carriage return breaks the line.
    void bold_cell_end(std::string_view text = {});
    void italic_cell_end(std::string_view text = {});
    /// Every carriage return breaks a line, and line feeds stay; so do indents and several blanks in a row.
    void multi_line_cell_end(std::string_view text);

    void rule();
    void line_break();
    /// A picture beside the page. `file` is a name without a folder.
    void image(std::string_view file, std::string_view alternative);

    int depth() const { return depth_; }
    const std::string& page() const { return page_; }

private:
    // What the cells of an area share, ready to be written.
    struct AreaMarkup {
        AreaMarkup(std::uint32_t background, std::uint32_t text, int font_size);

        std::string ground; // the last attribute of the cell
        std::string font;
        std::string heading_font;
    };

    const AreaMarkup& markup_of(HtmlArea area) const;
    void line(std::string_view markup) { line_of({markup}); }
    void line_of(std::initializer_list<std::string_view> parts);
    void open_cell(std::string_view width, HtmlAlign align, std::string_view ground, std::string_view font);
    void close_cell(std::string_view markup, std::string_view end);

    std::array<AreaMarkup, 5> areas_;
    HtmlTheme theme_;
    std::string page_;
    int depth_ = 0;
};

/// A file name as part of a link: what an address cannot hold becomes "%20" and the like, of its UTF-8 bytes.
std::string percent_encoded(std::string_view text);

/// Writes the file, or tells the user that it could not be written.
bool save_html(const std::string& path, const HtmlWriter& writer, Prompts& prompts);

} // namespace wortlex
