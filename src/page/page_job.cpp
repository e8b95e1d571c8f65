#include "page/page_job.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view printer_refused =
    "The printer could not be started, or the file could not be written. Nothing has been printed.";
constexpr std::string_view printer_broke_off = "The printer broke off before the last page.";

int rightmost(std::span<const Point> points) {
    int right = 0;
    for (const auto& point : points) right = std::max(right, point.x);
    return right;
}

// Tabs as a surface walks them.
int tabbed_width(const Surface& surface, std::string_view text, std::span<const int> stops) {
    int x = 0;
    for (std::size_t begin = 0; begin <= text.size();) {
        const auto end = std::min(text.find('\t', begin), text.size());
        x += surface.text_extent(text.substr(begin, end - begin)).width;
        const auto next = std::find_if(stops.begin(), stops.end(), [&](int stop) { return stop > x; });
        if (end < text.size() && next != stops.end()) x = *next;
        begin = end + 1;
    }
    return x;
}

// Prints the pages from the current one of the printer on.
bool draw_pages(const PageJob& job, std::size_t first, std::size_t last, Printer& printer) {
    for (auto page = first; page <= last; ++page) {
        if (page > first && !printer.next_page()) return false;
        job.draw(page - 1, printer.page());
    }
    return true;
}

} // namespace

void RecordedPage::reach(int x) {
    right_ = std::max(right_, x);
}

void RecordedPage::set_pen(const Pen& pen) {
    steps_.emplace_back([pen](Surface& surface) { surface.set_pen(pen); });
}

void RecordedPage::set_brush(std::optional<std::uint32_t> colour) {
    steps_.emplace_back([colour](Surface& surface) { surface.set_brush(colour); });
}

void RecordedPage::set_font(const Font& font) {
    measure_->set_font(font);
    steps_.emplace_back([font, face = std::string(font.face)](Surface& surface) {
        auto kept = font;
        kept.face = face;
        surface.set_font(kept);
    });
}

void RecordedPage::set_text_colour(std::uint32_t colour) {
    steps_.emplace_back([colour](Surface& surface) { surface.set_text_colour(colour); });
}

void RecordedPage::move_to(Point to) {
    reach(to.x);
    steps_.emplace_back([to](Surface& surface) { surface.move_to(to); });
}

void RecordedPage::line_to(Point to) {
    reach(to.x);
    steps_.emplace_back([to](Surface& surface) { surface.line_to(to); });
}

void RecordedPage::polyline(std::span<const Point> points) {
    reach(rightmost(points));
    steps_.emplace_back(
        [all = std::vector(points.begin(), points.end())](Surface& surface) { surface.polyline(all); });
}

void RecordedPage::polygon(std::span<const Point> points) {
    reach(rightmost(points));
    steps_.emplace_back(
        [all = std::vector(points.begin(), points.end())](Surface& surface) { surface.polygon(all); });
}

void RecordedPage::rectangle(const Box& box) {
    reach(box.right);
    steps_.emplace_back([box](Surface& surface) { surface.rectangle(box); });
}

void RecordedPage::ellipse(const Box& box) {
    reach(box.right);
    steps_.emplace_back([box](Surface& surface) { surface.ellipse(box); });
}

void RecordedPage::text(Point at, std::string_view text) {
    reach(at.x + text_extent(text).width);
    steps_.emplace_back([at, words = std::string(text)](Surface& surface) { surface.text(at, words); });
}

void RecordedPage::tabbed_text(Point at, std::string_view text, std::span<const int> stops) {
    reach(at.x + tabbed_width(*measure_, text, stops));
    steps_.emplace_back([at, words = std::string(text), all = std::vector(stops.begin(), stops.end())](
                            Surface& surface) { surface.tabbed_text(at, words, all); });
}

void RecordedPage::draw(Surface& surface) const {
    for (const auto& step : steps_) step(surface);
}

int PageJob::right() const {
    int right = 0;
    for (const auto& page : pages) right = std::max(right, page.right());
    return right;
}

bool print_pages(const PageJob& job, PageRange range, Printer& printer, Prompts& prompts) {
    const auto first = std::max<std::size_t>(range.first, 1), last = std::min(range.last, job.pages.size());
    if (first > last) return true;
    if (!printer.begin(job.document_name)) {
        prompts.tell({.text = printer_refused, .icon = Icon::warning});
        return false;
    }
    const bool is_whole = draw_pages(job, first, last, printer);
    printer.end();
    if (!is_whole) prompts.tell({.text = printer_broke_off, .icon = Icon::warning});
    return is_whole;
}

} // namespace wortlex
