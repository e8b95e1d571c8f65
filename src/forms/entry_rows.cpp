#include "forms/entry_rows.h"

#include "base/windows1252.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string stored_lines(const std::string& text) {
    std::string out;
    for (const char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

std::string shown_lines(std::string text) {
    std::erase(text, '\r');
    return text;
}

// Puts an earlier text back where what was typed is refused, the caret before the refused characters.
void refuse(TextField& field, const std::string& earlier) {
    const auto grown = static_cast<int>(field.text().size()) - static_cast<int>(earlier.size());
    const int caret = field.caret() - std::max(grown, 0);
    field.set_text(earlier);
    field.set_caret(std::max(caret, 0));
}

} // namespace

TextRow::TextRow(std::string row_key, std::function<std::string_view()> read,
                 std::function<void(std::string_view)> write, std::size_t most_bytes)
    : EntryOptions(std::move(row_key), ColorArea::entries), read_(std::move(read)), write_(std::move(write)),
      limit_(most_bytes) {
    columns = 24;
}

TextRow& TextRow::limit(std::size_t bytes) {
    limit_ = std::min(limit_, bytes);
    return *this;
}

TextRow& TextRow::lines() {
    multi_line_ = true;
    area = ColorArea::notes;
    return *this;
}

std::string TextRow::shown() const {
    return shown_lines(utf8_from_windows1252(read_()));
}

void TextRow::show(TextField& field) const {
    field.set_text(shown());
}

bool TextRow::typed(TextField& field) {
    const auto stored = windows1252_from_utf8(multi_line_ ? stored_lines(field.text()) : field.text());
    // What a file brought may be longer than can be typed; it can always be shortened.
    const bool is_too_long = stored && stored->size() > limit_ && stored->size() >= read_().size();
    if (!stored || is_too_long) {
        refuse(field, shown());
        return false;
    }
    if (*stored == read_()) return false;
    write_(*stored);
    return true;
}

ParsedRow::ParsedRow(std::string row_key, std::function<std::string()> text,
                     std::function<bool(const std::string&)> take)
    : EntryOptions(std::move(row_key), ColorArea::entries), text_(std::move(text)), take_(std::move(take)) {}

ParsedRow& ParsedRow::arrows(std::function<bool(Spin)> turn) {
    turn_ = std::move(turn);
    return *this;
}

bool ParsedRow::spun(TextField& field, Spin direction) {
    if (!turn_) return false;
    const bool has_changed = turn_(direction);
    if (has_changed) show(field);
    return has_changed;
}

ShownRow::ShownRow(std::string row_key, std::function<std::string()> text)
    : EntryOptions(std::move(row_key), ColorArea::shown_text), text_(std::move(text)) {
    columns = 20;
}

ShownRow& ShownRow::figure() {
    number_ = true;
    area = ColorArea::shown_numbers;
    return width(8);
}

} // namespace wortlex
