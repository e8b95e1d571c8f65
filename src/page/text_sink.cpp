#include "page/text_sink.h"

#include "base/files.h"
#include "base/take_while.h"
#include "page/characters.h"

#include <algorithm>
#include <span>

namespace wortlex {
namespace {

constexpr std::size_t longest_line = 75;

} // namespace

void TextSink::end_line() {
    text_ += "\r\n";
}

void TextSink::put(std::string_view piece) {
    const auto is_plain = [](char byte) { return byte != '\r' && byte != '\n' && byte != '%'; };
    while (!piece.empty()) {
        text_ += take_while(piece, is_plain);
        if (piece.starts_with('\n')) end_line();
        if (piece.starts_with('%')) text_ += '%';
        piece.remove_prefix(std::min<std::size_t>(piece.starts_with("%%") ? 2 : 1, piece.size()));
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
    std::string plain(text);
    std::erase(plain, '\r');
    for (std::string_view rest = plain; !rest.empty();) {
        const auto line = first_characters(rest.substr(0, rest.find('\n')), longest_line);
        text_ += line;
        rest.remove_prefix(line.size());
        if (!rest.empty()) end_line();
        if (rest.starts_with('\n')) rest.remove_prefix(1);
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
