#include "reports/label_printing.h"

#include "reports/row_words.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr double padding = 3;                                   // millimetres
constexpr double largest_letters = 3.9, smallest_letters = 0.8; // millimetres
constexpr double smaller = 0.93;
constexpr std::string_view label_face = "Arial";
constexpr Pen hairline{.colour = 0, .width = 1};

// From millimetres to dots.
class Scale {
public:
    explicit Scale(const PageContext& page) : dots_(page.paper().dots_per_millimetre) {}
    int dots(double millimetres) const { return static_cast<int>(std::lround(millimetres * dots_)); }
    Point point(double x, double y) const { return {dots(x), dots(y)}; }

private:
    double dots_;
};

// The corner of a label on its sheet, in millimetres; counted from 0.
std::pair<double, double> corner(const LabelSheet& sheet, std::int32_t place) {
    const std::int32_t column = place % sheet.columns, row = place / sheet.columns;
    return {sheet.left + column * (double{sheet.width} + sheet.gap_across),
            sheet.top + row * (double{sheet.height} + sheet.gap_down)};
}

std::vector<std::string> lines_of(const std::vector<ReportRow>& label) {
    std::vector<std::string> lines;
    for (const auto& row : label) {
        std::string line;
        for (const auto& cell : row_cells(row)) line += (line.empty() ? "" : " ") + cell.text;
        lines.push_back(line);
        if (blank_lines(row.format).behind > 0) lines.emplace_back();
    }
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
}

struct FittedLabel {
    std::vector<std::string> lines;
    Font font;
    int pitch = 0;
};

FittedLabel broken(const std::vector<std::string>& lines, int height, int room, Surface& surface) {
    FittedLabel label{{}, {.face = label_face, .cell_height = height}, 0};
    surface.set_font(label.font);
    label.pitch = surface.text_extent("X").height;
    for (const auto& line : lines)
        for (auto& part : wrapped(line, {.measure = surface, .dots = room}))
            label.lines.push_back(std::move(part));
    return label;
}

// What does not fit is drawn smaller, not cut.
FittedLabel fitted_label(const std::vector<std::string>& lines, const Extent& room, const Scale& scale,
                         Surface& surface) {
    double letters = largest_letters;
    auto label = broken(lines, scale.dots(letters), room.width, surface);
    while (static_cast<int>(label.lines.size()) * label.pitch > room.height && letters > smallest_letters) {
        letters *= smaller;
        label = broken(lines, std::max(scale.dots(letters), 1), room.width, surface);
    }
    return label;
}

void draw_label(const FittedLabel& label, Point at, Surface& surface) {
    surface.set_font(label.font);
    surface.set_text_colour(0);
    for (const auto& line : label.lines) {
        surface.text(at, line);
        at.y += label.pitch;
    }
}

void line(Surface& surface, Point from, Point to) {
    surface.move_to(from);
    surface.line_to(to);
}

void draw_outlines(Surface& surface, const Scale& scale, const LabelSheet& sheet) {
    surface.set_pen(hairline);
    surface.set_brush(std::nullopt);
    for (std::int32_t place = 0; place < sheet.count(); ++place) {
        const auto [x, y] = corner(sheet, place);
        const auto from = scale.point(x, y), to = scale.point(x + sheet.width, y + sheet.height);
        surface.rectangle({from.x, from.y, to.x + 1, to.y + 1});
    }
}

void draw_number(Surface& surface, Point at, int number) {
    const auto text = std::to_string(number);
    const auto [width, height] = surface.text_extent(text);
    surface.set_pen({.colour = 0, .width = 1, .style = PenStyle::none});
    surface.set_brush(0xFFFFFF);
    surface.rectangle({at.x, at.y, at.x + width, at.y + height});
    surface.set_pen(hairline);
    surface.text(at, text);
}

// Ticks every millimetre, and a number every ten, but not where the rulers would cross. What lies below a
// number gives way to it.
void draw_ruler(Surface& surface, const Scale& scale, bool is_across, int length) {
    constexpr int edge = 10, corner_end = 20; // of the ruler from the paper's edge
    constexpr int number_room = 5;
    for (int at = 0; at <= length; at = at + 1 == edge ? corner_end : at + 1) {
        const double end = edge + (at % 10 == 0 ? 5 : at % 5 == 0 ? 3 : 1.5);
        line(surface, is_across ? scale.point(at, edge) : scale.point(edge, at),
             is_across ? scale.point(at, end) : scale.point(end, at));
        if (at % 10 == 0 && at > 0 && at + number_room <= length)
            draw_number(surface, is_across ? scale.point(at + 0.5, end) : scale.point(end + 0.5, at), at);
    }
}

} // namespace

void draw_label_sheets(const std::vector<ReportRow>& label, const LabelRun& run, PageContext& page) {
    const Scale scale(page);
    const auto& sheet = run.sheet;
    const Extent room{scale.dots(sheet.width - 2 * padding), scale.dots(sheet.height - 2 * padding)};
    const auto lines = lines_of(label);
    std::int32_t place = std::clamp(run.start, 1, sheet.count()) - 1;
    auto* surface = &page.WholePage();
    const auto fitted = fitted_label(lines, room, scale, *surface);
    for (std::int32_t copy = 0; copy < run.copies; ++copy, ++place) {
        if (place == sheet.count()) {
            surface = &page.WholePage();
            place = 0;
        }
        const auto [x, y] = corner(sheet, place);
        draw_label(fitted, scale.point(x + padding, y + padding), *surface);
    }
}

std::function<PrintShift(const std::string& printer)> shift_by_printer(LabelSettings settings) {
    return [settings = std::move(settings)](const std::string& printer) {
        const auto found = settings.shifts.find(printer);
        return found == settings.shifts.end() ? PrintShift{} : found->second;
    };
}

void draw_ruler_page(const LabelSheet& sheet, PageContext& page) {
    const Scale scale(page);
    auto& surface = page.WholePage();
    const bool is_letter = sheet.paper == PaperKind::letter;
    surface.set_font({.face = label_face, .cell_height = scale.dots(2.5)});
    surface.set_text_colour(0);
    draw_outlines(surface, scale, sheet);
    draw_ruler(surface, scale, true, is_letter ? 215 : 210);
    draw_ruler(surface, scale, false, is_letter ? 279 : 297);
}

} // namespace wortlex
