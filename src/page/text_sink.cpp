#include "page/text_sink.h"

#include "base/files.h"
#include "page/characters.h"

#include <span>

namespace wortlex {
namespace {

constexpr std::size_t longest_line = 75;

} // namespace

void TextSink::end_line() {
    text_ += "\r\n";
}

void TextSink::put(std::string_view piece) {
    for (std::size_t i = 0; i < piece.size(); ++i) {
        if (piece[i] == '\r') continue;
        if (piece[i] == '\n') {
            end_line();
            continue;
        }
        text_ += piece[i];
        if (piece.substr(i, 2) == "%%") ++i;
    }
}

void TextSink::heading(std::string_view text) {
    text_.append(text);
    end_line();
    text_ += dashes_below(text);
    end_line();
    end_line();
}

void TextSink::long_text(std::string_view text) {
    std::size_t column = 0;
    for (const char byte : text) {
        if (byte == '\r') continue;
        const bool is_full = begins_character(byte) && column == longest_line;
        if (byte == '\n' || is_full) {
            end_line();
            column = 0;
        }
        if (byte == '\n') continue;
        text_ += byte;
        if (begins_character(byte)) ++column;
    }
}

std::string padded(std::string_view text, std::size_t width) {
    std::string field(first_characters(text, width));
    return field.append(width - character_count(field), ' ');
}

std::string dashes_below(std::string_view text) {
    std::string row(character_count(text), '-');
    return row;
}

bool save_text(const std::string& path, const TextSink& sink, Prompts& prompts) {
    return save_or_tell(path, std::as_bytes(std::span(sink.text())), prompts);
}

void copy_text(Clipboard& clipboard, const TextSink& sink) {
    clipboard.put_text(sink.text());
}

} // namespace wortlex
