#include "page/page.h"

#include "base/number.h"
#include "page/line_breaks.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr int page_units = 640;  // to the width of an upright page
constexpr int margin_units = 45; // from the left of the area
constexpr int top_margin = 113;  // dots, whatever the printer
constexpr int usual_lines = 66;  // on a page, where the printer cannot tell
constexpr int column_gap = 4;    // units
constexpr int rule_units = 6;    // thickness of a rule, in tenths
constexpr int paragraph_columns = 101;
constexpr int lines_with_paragraph = 4;
constexpr int box_width = 100, box_gap = 5; // dots
constexpr double chart_share = 0.75;        // of the page's height, that a chart wants to find free
constexpr std::string_view face = "Arial";

struct FontShape {
    int height = 14; // units
    int weight = 400;
    bool italic = false;
};

constexpr std::array<FontShape, 6> shapes = {{{14, 400, false},
                                              {14, 400, true},
                                              {21, 700, false},
                                              {21, 700, true},
                                              {12, 400, false},
                                              {14, 700, false}}};

bool is_title(PageFont font) {
    return font == PageFont::title || font == PageFont::title_italic;
}

constexpr float smallest_scale = 0.1F, largest_scale = 4;
constexpr int most_recordings = 8;

// A damaged settings file may hold any ratio, also one that is no number.
float sensible(float printer_scale) {
    return printer_scale >= smallest_scale && printer_scale <= largest_scale ? printer_scale : 1.0F;
}

} // namespace

bool PageContext::BeginPrint(std::string document_name, const Paper& paper, Surface& measure,
                             float printer_scale) {
    *this = PageContext();
    const auto [width, height] = paper.area;
    if (width < page_units / 10 || height < 4 * top_margin) return false;
    job_ = {.document_name = std::move(document_name), .paper = paper, .pages = {}};
    measure_ = &measure;
    printer_scale_ = sensible(printer_scale);
    // Across and down change their parts on a page that lies.
    const int across = paper.is_landscape ? height : width, down = paper.is_landscape ? width : height;
    scale_ = narrow(static_cast<double>(across) / page_units);
    label_column_ = width - across / 80 * 7;
    left_margin_ = truncate(margin_units * scale_);
    make_fonts(measure);
    const auto pitch = [this](int full) {
        return truncate(full * printer_scale_) + truncate(printer_scale_ * 6);
    };
    line_pitch_ = pitch(down / 66 + 1);
    paragraph_pitch_ = pitch(down / 88 + 1) + 2;
    measure.set_font(font_of(PageFont::body));
    const int text_height = measure.text_extent("X").height;
    lines_on_page_ = text_height > 0 ? (paper.sheet.height - paper.top_offset) / text_height : usual_lines;
    return true;
}

// A surface may take the height for that of the letters alone; what it then draws must still fit its line.
void PageContext::make_fonts(Surface& measure) {
    for (std::size_t i = 0; i < fonts_.size(); ++i) {
        const auto& shape = shapes.at(i);
        auto& font = fonts_.at(i);
        font = {std::max(1, truncate(shape.height * (printer_scale_ * scale_))), shape.weight, shape.italic};
        measure.set_font(font_of(static_cast<PageFont>(i)));
        const int drawn = measure.text_extent("X").height;
        if (drawn > font.height) font.height = std::max(1, font.height * font.height / drawn);
    }
}

Font PageContext::font_of(PageFont font) const {
    const auto& spec = fonts_.at(static_cast<std::size_t>(font));
    return {.face = face, .cell_height = spec.height, .weight = spec.weight, .italic = spec.italic};
}

void PageContext::StartJob() {
    job_.pages.clear();
    page_number_ = 1;
    y_ = 0;
    font_ = PageFont::body;
}

void PageContext::ClearHeaders() {
    headers_ = {};
}

void PageContext::SetHeader(std::size_t slot, std::optional<std::string> text) {
    headers_.at(slot) = std::move(text);
}

int PageContext::tab(int position) const {
    return truncate(truncate(position * printer_scale_) * scale_ + left_margin_);
}

bool PageContext::fits(int dots) const {
    return y_ + dots + top_margin <= lines_on_page_ * line_pitch_ && y_ + dots <= job_.paper.area.height;
}

int PageContext::pitch() const {
    return is_title(font_) ? truncate(line_pitch_ * 1.5) : line_pitch_;
}

// What a chart drew before has colours of its own.
void PageContext::use(const Font& font) {
    page().set_font(font);
    page().set_text_colour(0);
}

// A line that would hang over the end of the paper goes to the next page.
void PageContext::begin_line(int height) {
    if (y_ > 0 && y_ + height > job_.paper.area.height) EndPage();
    if (y_ == 0) begin_page();
}

void PageContext::begin_page() {
    job_.pages.emplace_back(*measure_, job_.paper.area);
    y_ = top_margin;
    if (headers_.front()) write_title(*headers_.front());
    use(font_of(PageFont::body));
    for (std::size_t slot = 1; slot < headers_.size(); ++slot) {
        if (!headers_.at(slot)) continue;
        write(*headers_.at(slot), {});
        y_ += line_pitch_;
    }
}

Surface& PageContext::WholePage() {
    EndPage();
    job_.pages.emplace_back(*measure_, job_.paper.area);
    y_ = job_.paper.area.height;
    return page();
}

// A long title gives way to the page number.
void PageContext::write_title(const std::string& title) {
    auto font = font_of(PageFont::title_italic);
    measure_->set_font(font);
    const int room = label_column_ - left_margin_ - line_pitch_ / 2;
    const int width = measure_->text_extent(title).width;
    if (width > room) font.cell_height = std::max(1, font.cell_height * room / width);
    use(font);
    write(title, {});
    use(font_of(PageFont::body));
    if (numbers_pages_) page().text({label_column_, y_}, formatted("Page %d", page_number_));
    y_ += truncate(line_pitch_ * 2.5);
}

// The tab before the text brings in the margin.
void PageContext::write(std::string_view text, std::span<const int> positions) {
    std::vector<int> stops = {left_margin_};
    for (const int position : positions) stops.push_back(tab(position));
    page().tabbed_text({0, y_}, '\t' + std::string(text), stops);
}

void PageContext::advance(int dots) {
    y_ += dots;
    if (y_ + top_margin > lines_on_page_ * line_pitch_) EndPage();
}

void PageContext::start_line() {
    begin_line(pitch());
    use(font_of(font_));
}

void PageContext::end_line() {
    advance(pitch());
    font_ = PageFont::body;
}

void PageContext::TabbedLine(std::span<const int> stops, std::string_view text) {
    start_line();
    write(text, stops);
    end_line();
}

void PageContext::CentredLine(std::string_view text) {
    start_line();
    const int free = job_.paper.area.width - page().text_extent(text).width;
    page().text({std::max(free / 2, left_margin_), y_}, text);
    end_line();
}

LineRoom PageContext::room(int dots) const {
    measure_->set_font(font_of(font_));
    return {.measure = *measure_, .dots = dots};
}

int PageContext::room_from(int position) const {
    return job_.paper.area.width - left_margin_ - tab(position);
}

std::string PageContext::fitted(std::string_view text, int from, int to) const {
    const int gap = truncate(column_gap * printer_scale_ * scale_);
    return std::string(start_that_fits(text, room(tab(to) - tab(from) - gap)));
}

std::vector<std::string> PageContext::wrapped(std::string_view text, int from) const {
    return wortlex::wrapped(text, room(room_from(from)));
}

const std::vector<std::string>& PageContext::paragraph_lines(std::string_view text) {
    if (broken_.text == text && broken_.font == font_) return broken_.lines;
    auto line = room(room_from(0));
    line.characters = paragraph_columns;
    broken_ = {std::string(text), font_, wortlex::paragraph_lines(text, line)};
    return broken_.lines;
}

// Words behind a figure, such as its unit, stand outside its column.
int PageContext::figure_width(std::string_view cell) const {
    const auto end = cell.find(' ', std::min(cell.find_first_not_of(' '), cell.size()));
    return measure_->text_extent(cell.substr(0, end)).width;
}

void PageContext::TableLine(std::span<const PageColumn> columns, const std::vector<std::string>& cells) {
    start_line();
    std::string words;
    std::vector<int> stops;
    for (std::size_t i = 0; i < std::min(columns.size(), cells.size()); ++i) {
        const auto& column = columns[i];
        const bool is_cut = column.is_text && i + 1 < columns.size();
        const auto cell = is_cut ? fitted(cells[i], column.tab, columns[i + 1].tab) : cells[i];
        words += '\t' + cell;
        stops.push_back(column.end > 0 ? tab(column.end) - figure_width(cell) : tab(column.tab));
    }
    page().tabbed_text({0, y_}, words, stops);
    end_line();
}

void PageContext::NewLines(int count) {
    for (int line = 0; line < count; ++line) {
        begin_line(line_pitch_);
        advance(line_pitch_);
    }
}

void PageContext::Paragraph(std::string_view text, int lines_below) {
    const auto font = font_of(font_);
    const auto& lines = paragraph_lines(text);
    for (const auto& line : lines) {
        if (lines_below > 0 && &line == &lines.back()) KeepTogether(1 + lines_below);
        begin_line(std::max(paragraph_pitch_, font.cell_height));
        use(font);
        write(line, {});
        y_ += paragraph_pitch_;
        if (y_ > lines_on_page_ * (line_pitch_ + 2)) EndPage();
    }
    font_ = PageFont::body;
}

void PageContext::RunLines(std::span<const PageRun> runs, int from, std::string_view mark, int mark_units) {
    const auto width = [this](const PageRun& run) {
        measure_->set_font(font_of(run.font));
        return measure_->text_extent(run.text).width;
    };
    for (const auto& line : run_lines(runs, room_from(from), width)) {
        start_line();
        if (!mark.empty()) page().text({tab(from - mark_units), y_}, std::exchange(mark, {}));
        for (int x = tab(from); const auto& run : line) {
            use(font_of(run.font));
            page().text({x, y_}, run.text);
            x += width(run);
        }
        end_line();
    }
}

bool PageContext::KeepTogether(int lines) {
    if (y_ == 0 || fits(lines * line_pitch_)) return false;
    EndPage();
    return true;
}

void PageContext::KeepParagraph(std::string_view text) {
    if (y_ == 0) return;
    const int lines = static_cast<int>(paragraph_lines(text).size());
    const int height = lines * (line_pitch_ + 2) + line_pitch_;
    if (!fits(height + lines_with_paragraph * line_pitch_)) EndPage();
}

void PageContext::Rule() {
    draw_rule(job_.paper.area.width - left_margin_);
}

void PageContext::HalfRule() {
    draw_rule(job_.paper.area.width / 2);
}

void PageContext::draw_rule(int right) {
    begin_line(line_pitch_);
    const int middle = y_ + line_pitch_ / 2;
    page().set_pen({.colour = 0, .width = std::max(1, truncate(scale_ * rule_units / 10))});
    page().move_to({left_margin_, middle});
    page().line_to({right, middle});
    advance(line_pitch_);
}

void PageContext::ColourBox(int position, std::uint32_t colour) {
    begin_line(pitch());
    const int left = truncate((position * printer_scale_ + margin_units) * scale_);
    page().set_pen({});
    page().set_brush(colour);
    page().rectangle({left, y_ + box_gap, left + box_width, y_ + line_pitch_ - box_gap});
    page().set_brush(std::nullopt);
}

ChartPlace PageContext::PlaceChart(ChartForm form, float ratio, int units_high) {
    const double wanted = sensible(ratio);
    const auto [width, height] = job_.paper.area;
    const double widest = static_cast<double>(width) / ChartPlace::units.width;
    const double wished = std::min({wanted * widest, wanted * height / ChartPlace::units.height, widest});
    const double taken = std::max(chart_share * height * wanted, units_high * wished);
    if (y_ > 0 && (form == ChartForm::alone || y_ + taken > height)) EndPage();
    if (y_ == 0) begin_page();
    const int room = height - y_;
    const double scale = std::min(wished, static_cast<double>(room) / units_high);
    const int free_above = form == ChartForm::alone ? truncate((room - units_high * scale) / 2) : 0;
    const ChartPlace place{
        page(), {truncate((width - ChartPlace::units.width * scale) / 2), y_ + free_above}, scale};
    y_ = place.offset.y + truncate(units_high * scale);
    return place;
}

void PageContext::EndPage() {
    if (y_ == 0) return;
    y_ = 0;
    ++page_number_;
}

void PageContext::EndJob() {
    EndPage();
    headers_ = {};
}

PageJob PageContext::Release() {
    measure_ = nullptr;
    return std::exchange(job_, {});
}

std::optional<float> PageContext::smaller_scale(bool on_one_page) const {
    constexpr double step = 0.85;
    const double room = job_.paper.area.width - left_margin_, taken = job_.right() - left_margin_;
    const bool is_too_long = on_one_page && job_.pages.size() > 1;
    if ((taken <= room && !is_too_long) || printer_scale_ <= smallest_scale) return std::nullopt;
    const double share = std::min(taken > room ? room / taken : 1.0, is_too_long ? step : 1.0);
    return std::max(narrow(printer_scale_ * share), smallest_scale);
}

// Letters come in whole dots, so that the first smaller scale may still be a little too large.
std::optional<PageJob> record_report(const PrintRequest& request, const Paper& paper, Surface& measure) {
    float scale = request.printer_scale;
    for (int recording = 1;; ++recording) {
        PageContext page;
        if (!page.BeginPrint(request.document_name, paper, measure, scale)) return std::nullopt;
        page.StartJob();
        request.run(page);
        page.EndPage();
        page.EndJob();
        const auto smaller = page.smaller_scale(request.on_one_page);
        if (!smaller || request.sheet || recording == most_recordings) return page.Release();
        scale = *smaller;
    }
}

} // namespace wortlex
