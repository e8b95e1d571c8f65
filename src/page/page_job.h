// Pages that are recorded first and drawn later, as often as wanted: in a preview, on paper, in a file.
#pragma once

#include "base/ports/prompts.h"
#include "base/ports/surface.h"

#include <functional>
#include <string>
#include <vector>

namespace wortlex {

/// A sheet in dots of the printer. Only `area` can be printed on, and (0, 0) is its corner.
struct Paper {
    Extent sheet;
    Extent area;
    int top_offset = 0; ///< from the edge of the sheet to the area
    bool is_landscape = false;
    double dots_per_millimetre = 300 / 25.4;
    bool is_exact = false; ///< all of the sheet, drawn at its true size, whatever the printer's margins
};

/// What is drawn on it is kept. Texts are measured on the surface that it is made for.
class RecordedPage : public Surface {
public:
    /// `measure` must live while the page is being recorded.
    RecordedPage(Surface& measure, Extent area) : measure_(&measure), area_(area) {}

    void set_pen(const Pen& pen) override;
    void set_brush(std::optional<std::uint32_t> colour) override;
    void set_font(const Font& font) override;
    void set_text_colour(std::uint32_t colour) override;
    void move_to(Point to) override;
    void line_to(Point to) override;
    void polyline(std::span<const Point> points) override;
    void polygon(std::span<const Point> points) override;
    void rectangle(const Box& box) override;
    void ellipse(const Box& box) override;
    void text(Point at, std::string_view text) override;
    void tabbed_text(Point at, std::string_view text, std::span<const int> stops) override;
    Extent text_extent(std::string_view text) const override { return measure_->text_extent(text); }
    Extent size() const override { return area_; }

    /// Draws all again.
    void draw(Surface& surface) const;
    /// The right end of what reaches farthest.
    int right() const { return right_; }

private:
    using Step = std::function<void(Surface&)>;

    void reach(int x);

    Surface* measure_;
    Extent area_;
    std::vector<Step> steps_;
    int right_ = 0;
};

/// The pages of one report.
struct PageJob {
    std::string document_name;
    Paper paper;
    std::vector<RecordedPage> pages;

    /// The right end of what reaches farthest on any page.
    int right() const;
    void draw(std::size_t page, Surface& surface) const { pages.at(page).draw(surface); }
};

/// Which pages to print, counted from 1; those that the job lacks are left out.
struct PageRange {
    std::size_t first = 1;
    std::size_t last = static_cast<std::size_t>(-1);
};

/// Sends pages to a printer, and tells the user when it refuses or breaks off. Whether it took them all.
bool print_pages(const PageJob& job, PageRange range, Printer& printer, Prompts& prompts);

} // namespace wortlex
