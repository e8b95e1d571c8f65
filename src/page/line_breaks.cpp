#include "page/line_breaks.h"

#include "page/characters.h"

#include <algorithm>

namespace wortlex {
namespace {

// At least one character, or a narrow room would never be left.
std::string_view first_line(std::string_view text, const LineRoom& room) {
    const auto fitting = start_that_fits(text, room);
    if (fitting.size() == text.size()) return text;
    const auto blank = text.substr(0, fitting.size() + 1).find_last_of(' ');
    const auto last = text.substr(0, blank).find_last_not_of(' ');
    if (blank != std::string_view::npos && last != std::string_view::npos) return text.substr(0, last + 1);
    return fitting.empty() ? first_characters(text, 1) : fitting;
}

std::string without_breaks(std::string_view text) {
    std::string plain(text);
    std::erase(plain, '\n');
    std::replace(plain.begin(), plain.end(), '\t', ' ');
    return plain;
}

} // namespace

std::string_view start_that_fits(std::string_view text, const LineRoom& room) {
    // Most texts fit whole, and of a long paragraph no more is measured than about a line: how wide it is
    // tells about where the room ends.
    std::size_t fitting = 0, most = std::min(character_count(text), room.characters);
    for (std::size_t count = std::min<std::size_t>(64, most); fitting < most;) {
        const int width = room.measure.text_extent(first_characters(text, count)).width;
        if (width <= room.dots) {
            fitting = count;
        } else {
            most = count - 1;
        }
        const double wanted = static_cast<double>(count) * std::max(room.dots, 0) / std::max(width, 1);
        count = wanted < static_cast<double>(most) ? std::max(static_cast<std::size_t>(wanted), fitting + 1)
                                                   : most;
    }
    return first_characters(text, fitting);
}

std::vector<std::string> wrapped(std::string_view text, const LineRoom& room) {
    std::vector<std::string> lines;
    do {
        lines.emplace_back(first_line(text, room));
        text.remove_prefix(lines.back().size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    } while (!text.empty());
    return lines;
}

std::vector<std::string> paragraph_lines(std::string_view text, const LineRoom& room) {
    std::vector<std::string> lines;
    const auto plain = without_breaks(text);
    for (std::string_view rest = plain; !rest.empty();) {
        const auto end = std::min(rest.find('\r'), rest.size());
        for (auto& line : wrapped(rest.substr(0, end), room)) lines.push_back(std::move(line));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return lines;
}

} // namespace wortlex
