// The page engine: reports set header lines, choose fonts and send lines of tabbed text; where lines and
// pages end is decided here.
//
//     desk.show({"Wortlex Recipe", scale, [&](PageContext& page) {
//         page.SetHeader(0, "Wortlex Recipe Printout");
//         page.TabbedLine({160, 250, 380}, "Batch Size (Gal):\t5.00\tWort Size (Gal):\t5.50");
//     }});
#pragma once

#include "page/line_breaks.h"
#include "page/page_job.h"
#include "page/run_lines.h"
#include "settings/label_sheets.h"

#include <array>
#include <initializer_list>

namespace wortlex {

/// A chart that stands alone on its page, or below the lines of a report.
enum class ChartForm { alone, in_report };

/// Where a chart of so many logical units goes: `offset` is its corner, `scale` the dots of one unit.
struct ChartPlace {
    static constexpr Extent units{445, 320};

    Surface& surface;
    Point offset;
    double scale = 1;
};

/// A column of a table, in logical units.
struct PageColumn {
    int tab = 0;         ///< where it begins
    bool is_text = true; ///< cut off where it would run into the next column; figures are left whole
    int end = 0;         ///< where its figures end, flush; 0: they begin at the tab
};

/// The state of one job. Tab stops and positions are logical units, 640 to the width of an upright page;
/// texts are UTF-8.
class PageContext {
public:
    static constexpr int header_slots = 7;

    /// Sets everything up for a paper. `measure` tells how wide texts are and must outlive the context;
    /// `printer_scale` is the scaling ratio, and 1 where it is out of all reason. False if nothing can be
    /// printed on such paper.
    bool BeginPrint(std::string document_name, const Paper& paper, Surface& measure, float printer_scale);
    /// Page 1, body font.
    void StartJob();

    void ClearHeaders();
    /// Slot 0 is the title of the page, 1 to 6 are lines below it. Nothing turns the slot off.
    void SetHeader(std::size_t slot, std::optional<std::string> text);
    /// Whether the title is followed by the number of the page. It is at first.
    void SetPageNumbering(bool is_on) { numbers_pages_ = is_on; }

    /// For the next line or paragraph; then it is the body font again. A line in a title font is one and a
    /// half pitches high.
    void SelectFont(PageFont font) { font_ = font; }

    void NewLines(int count);
    void Line(std::string_view text) { TabbedLine({}, text); }
    /// The first column begins at the left margin, a tab leads to the next stop.
    void TabbedLine(std::span<const int> stops, std::string_view text);
    void TabbedLine(std::initializer_list<int> stops, std::string_view text) {
        TabbedLine(std::span<const int>(stops.begin(), stops.size()), text);
    }
    /// In the middle between the margins; a text too long for them begins at the left one.
    void CentredLine(std::string_view text);
    /// A line of a table, a cell a column. It is measured that no text runs into the next column.
    void TableLine(std::span<const PageColumn> columns, const std::vector<std::string>& cells);
    /// A text in lines, in the chosen font, that fit between a tab position and the right margin.
    std::vector<std::string> wrapped(std::string_view text, int from) const;
    /// A long text in lines between the margins, of 101 characters at most. Carriage returns end lines, line
    /// feeds are dropped. The last line keeps so many lines below it on its page.
    void Paragraph(std::string_view text, int lines_below = 0);

    /// A text of several fonts in lines between a tab position and the right margin; `mark` stands before the
    /// first one, so many units to the left.
    void RunLines(std::span<const PageRun> runs, int from, std::string_view mark = {}, int mark_units = 0);

    /// A new page without headers, to be drawn on at will.
    Surface& WholePage();
    const Paper& paper() const { return job_.paper; }

    /// Ends the page if so many lines do not fit on it; whether it did.
    bool KeepTogether(int lines);
    /// Ends the page if the paragraph, and four lines with it, do not fit on it.
    void KeepParagraph(std::string_view text);

    /// A rule takes a line of its own: across the page, or to its middle.
    void Rule();
    void HalfRule();
    /// A patch of colour (0x00BBGGRR) in the line that is written next, at a tab position.
    void ColourBox(int position, std::uint32_t colour);
    /// Room for a chart, on a new page where it is short; lines go on below it.
    ChartPlace PlaceChart(ChartForm form) { return PlaceChart(form, static_cast<float>(printer_scale_)); }
    /// Likewise at a scale of its own; `units_high` are its units where it is higher than usual.
    ChartPlace PlaceChart(ChartForm form, float ratio, int units_high = ChartPlace::units.height);

    /// What follows goes to a new page. Does nothing on a page that has not begun.
    void EndPage();
    void EndJob();
    /// Hands the pages over.
    PageJob Release();

    /// Dots from the top of the page; 0: it has not begun.
    int y() const { return y_; }
    /// The scaling ratio at which the widest line so far should fit on the paper; nothing where it does. On
    /// one page all lines should.
    std::optional<float> smaller_scale(bool on_one_page = false) const;

private:
    struct FontSpec {
        int height = 0;
        int weight = 400;
        bool italic = false;
    };

    Font font_of(PageFont font) const;
    void make_fonts(Surface& measure);
    RecordedPage& page() { return job_.pages.back(); }
    void use(const Font& font);
    int tab(int position) const;
    int room_from(int position) const;
    LineRoom room(int dots) const;
    int figure_width(std::string_view cell) const;
    std::string fitted(std::string_view text, int from, int to) const;
    const std::vector<std::string>& paragraph_lines(std::string_view text);
    int pitch() const;
    bool fits(int dots) const;
    void begin_line(int height);
    void begin_page();
    void start_line();
    void end_line();
    void write_title(const std::string& title);
    void write(std::string_view text, std::span<const int> positions);
    void advance(int dots);
    void draw_rule(int right);

    /// The paragraph broken last: what is kept together is written next.
    struct Broken {
        std::string text;
        PageFont font = PageFont::body;
        std::vector<std::string> lines;
    };

    Broken broken_;
    PageJob job_;
    Surface* measure_ = nullptr;
    std::array<FontSpec, 6> fonts_;
    std::array<std::optional<std::string>, header_slots> headers_;
    PageFont font_ = PageFont::body;
    bool numbers_pages_ = true;
    int page_number_ = 1;
    int y_ = 0;
    int line_pitch_ = 1;
    int paragraph_pitch_ = 1;
    int lines_on_page_ = 0;
    int left_margin_ = 0;
    int label_column_ = 0;
    double scale_ = 1; // dots of a logical unit
    double printer_scale_ = 1;
};

/// What a report does with a page: headers and lines. The job around them is begun and ended for it.
using Report = std::function<void(PageContext&)>;

/// A report to be shown. `run` is called again for every paper that the user tries.
struct PrintRequest {
    std::string document_name;
    float printer_scale = 1;
    Report run;
    std::string file_name{}; ///< proposed for a file of the pages, without its ending; empty: as the document
    bool on_one_page = false;         ///< what is too long for one is drawn smaller
    std::optional<PaperKind> sheet{}; ///< for such a sheet alone, on which all has its exact place
    /// How far a printer misses that place, by its name; of a PDF file by none.
    std::function<PrintShift(const std::string& printer)> shift{};
};

/// The pages of a report on such paper; nothing if the paper cannot be printed on. What is too wide for it
/// is run again at a smaller scale, so that the pages are as full as any.
std::optional<PageJob> record_report(const PrintRequest& request, const Paper& paper, Surface& measure);

/// Where reports are shown before they go to paper.
class PageDesk {
public:
    virtual ~PageDesk() = default;
    virtual void show(const PrintRequest& request) = 0;
};

} // namespace wortlex
