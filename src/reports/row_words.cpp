#include "reports/row_words.h"

#include "base/number.h"
#include "page/text_sink.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view white_space = " \t\n";
constexpr char column_end = '\t';

// A pattern cut at its places.
struct Piece {
    std::string_view literal;
    std::string_view place; // empty behind the last one
};

std::string_view without_line_ends(std::string_view format) {
    const auto first = std::min(format.find_first_not_of('\n'), format.size());
    const auto last = format.find_last_not_of('\n');
    return last == std::string_view::npos ? std::string_view() : format.substr(first, last + 1 - first);
}

Piece take_piece(std::string_view& format) {
    const auto start = std::min(format.find('%'), format.size());
    const auto end = std::min(format.find_first_of("fdsc", start), format.size() - 1);
    const bool is_last = start == format.size();
    const Piece piece{format.substr(0, start),
                      is_last ? std::string_view() : format.substr(start, end + 1 - start)};
    format.remove_prefix(is_last ? format.size() : end + 1);
    return piece;
}

// Of a number with leading zeros, such as "%02d", which is a name rather than a figure.
bool has_zeros(std::string_view place) {
    return place.starts_with("%0") && place[2] != '.';
}

// "%8.2f" as "%.2f".
std::string without_width(std::string_view place) {
    if (has_zeros(place)) return std::string(place);
    return std::string("%").append(place.substr(place.find_first_not_of("0123456789", 1)));
}

// What takes the width that it is told to, and what only that which it needs.
enum class Width { as_told, of_figures, as_needed };

std::string value_words(std::string_view place, const ReportValue& value, Width width) {
    if (const auto* number = std::get_if<double>(&value.content))
        return formatted(width == Width::as_needed ? without_width(place) : std::string(place), *number);
    const auto& text = std::get<std::string>(value.content);
    return width == Width::as_told && value.width > 0 ? padded(text, value.width) : text;
}

// The values of a row in turn; a row that lacks one shows nothing there.
class Values {
public:
    explicit Values(const std::vector<ReportValue>& values) : values_(values) {}

    const ReportValue& next() {
        static const ReportValue none{""};
        return at_ < values_.size() ? values_[at_++] : none;
    }

private:
    const std::vector<ReportValue>& values_;
    std::size_t at_ = 0;
};

std::string words(std::string_view format, const std::vector<ReportValue>& values, Width width) {
    std::string out;
    Values next(values);
    while (!format.empty()) {
        const auto piece = take_piece(format);
        out += piece.literal;
        if (!piece.place.empty()) out += value_words(piece.place, next.next(), width);
    }
    return out;
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(white_space) + 1 - first);
}

// Gathers cells from left to right.
class CellRow {
public:
    void add(char c) { current_.text += c; }

    void add_value(std::string_view place, const ReportValue& value) {
        current_.text += trimmed(value_words(place, value, Width::as_needed));
        current_.is_figure |= std::holds_alternative<double>(value.content) && !has_zeros(place);
        has_value_ = true;
    }

    // An empty value keeps its cell, white_space alone do not make one.
    void end_cell() {
        current_.text = std::string(trimmed(current_.text));
        current_.is_label = !has_value_ && current_.text.ends_with(':');
        if (has_value_ || !current_.text.empty()) cells_.push_back(std::move(current_));
        current_ = {};
        has_value_ = false;
    }

    std::vector<ReportCell> take() {
        end_cell();
        return std::move(cells_);
    }

private:
    ReportCell current_;
    bool has_value_ = false;
    std::vector<ReportCell> cells_;
};

// Whether a column ends in a pattern: it says so, or at a blank there are two, or a colon stands before it.
bool ends_column(std::string_view literal, std::size_t at) {
    if (literal[at] == column_end) return true;
    if (literal[at] != ' ') return false;
    const bool behind_colon = at > 0 && literal[at - 1] == ':';
    return behind_colon || (at + 1 < literal.size() && literal[at + 1] == ' ');
}

void add_literal(CellRow& row, std::string_view literal) {
    for (std::size_t i = 0; i < literal.size(); ++i) {
        if (ends_column(literal, i)) {
            row.end_cell();
        } else {
            row.add(literal[i]);
        }
    }
}

} // namespace

std::string text_words(const ReportRow& row) {
    auto format = row.format;
    std::erase(format, column_end);
    return words(format, row.values, Width::as_told);
}

std::string print_words(const ReportRow& row) {
    return words(row.print_format, row.values, Width::of_figures);
}

std::vector<ReportCell> line_cells(const ReportRow& row) {
    CellRow cells;
    Values next(row.values);
    auto format = without_line_ends(row.format);
    while (!format.empty()) {
        const auto piece = take_piece(format);
        add_literal(cells, piece.literal);
        if (!piece.place.empty()) cells.add_value(piece.place, next.next());
    }
    return cells.take();
}

std::vector<ReportCell> table_cells(const ReportRow& row) {
    CellRow cells;
    Values next(row.values);
    auto format = without_line_ends(row.format);
    while (!format.empty()) {
        const auto piece = take_piece(format);
        const auto unit = trimmed(piece.literal);
        if (!unit.empty()) cells.add(' ');
        for (const char c : unit) cells.add(c);
        cells.end_cell();
        if (!piece.place.empty()) cells.add_value(piece.place, next.next());
    }
    return cells.take();
}

BlankLines blank_lines(std::string_view format) {
    const auto inside = without_line_ends(format);
    if (inside.empty()) return {static_cast<int>(format.size()), 0};
    const auto before = static_cast<std::size_t>(inside.data() - format.data());
    const auto behind = format.size() - before - inside.size();
    return {static_cast<int>(before), std::max(static_cast<int>(behind) - 1, 0)};
}

std::string text_titles(const ReportTable& table) {
    std::string first, second;
    for (const auto& column : table.columns) {
        const auto split = std::min(column.title.find('\n'), column.title.size());
        const bool is_double = split < column.title.size();
        first.resize(std::max(first.size(), column.place), ' ');
        first += column.title.substr(0, split);
        if (!is_double) continue;
        second.resize(std::max(second.size(), column.place), ' ');
        second += column.title.substr(split + 1);
    }
    return first + "\n" + (second.empty() ? second : second + "\n");
}

} // namespace wortlex
