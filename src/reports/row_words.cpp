#include "reports/row_words.h"

#include "base/number.h"
#include "base/text.h"

#include <algorithm>

namespace wortlex {
namespace {

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

// Cuts a pattern behind its first cell.
std::string_view take_cell(std::string_view& format) {
    const auto cell = format.substr(0, format.find(cell_end));
    format.remove_prefix(std::min(cell.size() + 1, format.size()));
    return cell;
}

ReportCell cell_of(std::string_view pattern, Values& values) {
    ReportCell cell;
    bool has_value = false;
    while (!pattern.empty()) {
        const auto piece = take_piece(pattern);
        cell.text += piece.literal;
        if (piece.place.empty()) continue;
        const auto& value = values.next();
        cell.text += trimmed(value_words(piece.place, value, Width::as_needed));
        cell.is_figure |= std::holds_alternative<double>(value.content) && !has_zeros(piece.place);
        has_value = true;
    }
    cell.text = std::string(trimmed(cell.text));
    cell.is_label = !has_value && cell.text.ends_with(':');
    return cell;
}

std::string words(std::string_view pattern, Values& values, Width width) {
    std::string out;
    while (!pattern.empty()) {
        const auto piece = take_piece(pattern);
        out += piece.literal;
        if (!piece.place.empty()) out += value_words(piece.place, values.next(), width);
    }
    return out;
}

} // namespace

std::string text_words(const ReportRow& row) {
    auto format = row.format;
    std::erase(format, cell_end);
    Values values(row.values);
    auto text = words(format, values, Width::as_told);
    if (row.is_underlined) text.append(dashes_below(without_line_ends(text))).append("\n");
    return text;
}

std::vector<ReportCell> row_cells(const ReportRow& row) {
    std::vector<ReportCell> cells;
    Values values(row.values);
    auto format = without_line_ends(row.format);
    while (!format.empty()) cells.push_back(cell_of(take_cell(format), values));
    return cells;
}

std::vector<std::string> print_cells(const ReportRow& row) {
    std::vector<std::string> cells;
    if (row.print_format.empty()) {
        for (auto& cell : row_cells(row)) cells.push_back(std::move(cell.text));
        return cells;
    }
    Values values(row.values);
    std::string_view format = row.print_format;
    while (!format.empty()) cells.push_back(words(take_cell(format), values, Width::of_figures));
    return cells;
}

std::string tabbed_line(const std::vector<std::string>& cells) {
    std::string out;
    for (const auto& cell : cells) out += (&cell == &cells.front() ? "" : "\t") + cell;
    return out;
}

void put_words(std::string_view words, TextSink& sink) {
    if (words.find('%') == std::string_view::npos) return sink.put(words);
    std::string piece;
    for (const char c : words) piece.append(c == '%' ? 2 : 1, c);
    sink.put(piece);
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
        if (split > 0) first.resize(std::max(first.size(), column.place), ' ');
        first += column.title.substr(0, split);
        if (!is_double) continue;
        second.resize(std::max(second.size(), column.place), ' ');
        second += column.title.substr(split + 1);
    }
    return first + "\n" + (second.empty() ? second : second + "\n");
}

} // namespace wortlex
