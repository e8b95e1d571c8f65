#include "page/page_job.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view printer_refused =
    "The printer could not be started, or the file could not be written. Nothing has been printed.";
constexpr std::string_view printer_broke_off = "The printer broke off before the last page.";

int scaled(int value, double scale) {
    return scale == 1 ? value : truncate(value * scale);
}

Point scaled(Point point, double scale) {
    return {scaled(point.x, scale), scaled(point.y, scale)};
}

Box scaled(const Box& box, double scale) {
    return {scaled(box.left, scale), scaled(box.top, scale), scaled(box.right, scale),
            scaled(box.bottom, scale)};
}

template <class Element>
std::vector<Element> scaled(const std::vector<Element>& all, double scale) {
    auto smaller = all;
    for (auto& element : smaller) element = scaled(element, scale);
    return smaller;
}

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
    steps_.emplace_back([pen](Surface& surface, double) { surface.set_pen(pen); });
}

void RecordedPage::set_brush(std::optional<std::uint32_t> colour) {
    steps_.emplace_back([colour](Surface& surface, double) { surface.set_brush(colour); });
}

void RecordedPage::set_font(const Font& font) {
    measure_->set_font(font);
    steps_.emplace_back([font, face = std::string(font.face)](Surface& surface, double scale) {
        auto fitting = font;
        fitting.face = face;
        fitting.cell_height = scaled(font.cell_height, scale);
        fitting.cell_width = scaled(font.cell_width, scale);
        surface.set_font(fitting);
    });
}

void RecordedPage::set_text_colour(std::uint32_t colour) {
    steps_.emplace_back([colour](Surface& surface, double) { surface.set_text_colour(colour); });
}

void RecordedPage::move_to(Point to) {
    reach(to.x);
    steps_.emplace_back([to](Surface& surface, double scale) { surface.move_to(scaled(to, scale)); });
}

void RecordedPage::line_to(Point to) {
    reach(to.x);
    steps_.emplace_back([to](Surface& surface, double scale) { surface.line_to(scaled(to, scale)); });
}

void RecordedPage::polyline(std::span<const Point> points) {
    reach(rightmost(points));
    steps_.emplace_back([all = std::vector(points.begin(), points.end())](Surface& surface, double scale) {
        surface.polyline(scaled(all, scale));
    });
}

void RecordedPage::polygon(std::span<const Point> points) {
    reach(rightmost(points));
    steps_.emplace_back([all = std::vector(points.begin(), points.end())](Surface& surface, double scale) {
        surface.polygon(scaled(all, scale));
    });
}

void RecordedPage::rectangle(const Box& box) {
    reach(box.right);
    steps_.emplace_back([box](Surface& surface, double scale) { surface.rectangle(scaled(box, scale)); });
}

void RecordedPage::ellipse(const Box& box) {
    reach(box.right);
    steps_.emplace_back([box](Surface& surface, double scale) { surface.ellipse(scaled(box, scale)); });
}

void RecordedPage::text(Point at, std::string_view text) {
    reach(at.x + text_extent(text).width);
    steps_.emplace_back([at, words = std::string(text)](Surface& surface, double scale) {
        surface.text(scaled(at, scale), words);
    });
}

void RecordedPage::tabbed_text(Point at, std::string_view text, std::span<const int> stops) {
    reach(at.x + tabbed_width(*measure_, text, stops));
    steps_.emplace_back([at, words = std::string(text),
                         all = std::vector(stops.begin(), stops.end())](Surface& surface, double scale) {
        surface.tabbed_text(scaled(at, scale), words, scaled(all, scale));
    });
}

void RecordedPage::draw(Surface& surface, double scale) const {
    for (const auto& step : steps_) step(surface, scale);
}

double PageJob::scale() const {
    int right = 0;
    for (const auto& page : pages) right = std::max(right, page.right());
    return right > paper.area.width ? static_cast<double>(paper.area.width) / right : 1;
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
