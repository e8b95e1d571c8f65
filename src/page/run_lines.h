// Where the lines of a text in several fonts end.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace wortlex {

enum class PageFont { body, body_italic, title, title_italic, small, body_bold };

/// Words in one font. UTF-8.
struct PageRun {
    std::string text;
    PageFont font = PageFont::body;

    bool operator==(const PageRun&) const = default;
};

/// The runs of each line of a text that is so many dots wide at the most, by `width`. Lines end at blanks
/// alone, which belong to no line there: a longer word has a line of its own.
std::vector<std::vector<PageRun>> run_lines(std::span<const PageRun> runs, int dots,
                                            const std::function<int(const PageRun&)>& width);

} // namespace wortlex
