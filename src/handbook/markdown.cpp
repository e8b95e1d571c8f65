#include "handbook/markdown.h"

#include "base/text.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::string_view fence = "```";
constexpr int indent_of_a_level = 2; // columns

std::string_view take_line(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

// Takes the comment out of a line: "words <!-- keywords -->".
std::string take_comment(std::string& line) {
    constexpr std::string_view opening = "<!--", closing = "-->";
    const auto begin = line.find(opening);
    const auto end = line.find(closing, begin);
    if (begin == std::string::npos || end == std::string::npos) return {};
    const auto words = begin + opening.size();
    std::string comment(trimmed(std::string_view(line).substr(words, end - words)));
    line.erase(begin, end + closing.size() - begin);
    line.erase(line.find_last_not_of(' ') + 1);
    return comment;
}

std::size_t indent_of(std::string_view line) {
    return std::min(line.find_first_not_of(' '), line.size());
}

bool is_table_rule(std::string_view words) {
    return words.find_first_not_of("|-: ") == std::string_view::npos;
}

// The length of "- " or "12. "; 0 where the words begin no item.
std::size_t item_mark(std::string_view words) {
    if (words.substr(0, 2) == "- ") return 2;
    const auto digits = words.find_first_not_of("0123456789");
    const bool is_numbered =
        digits != 0 && digits != std::string_view::npos && words.substr(digits, 2) == ". ";
    return is_numbered ? digits + 2 : 0;
}

class Reader {
public:
    void read(std::string line) {
        const auto keywords = take_comment(line);
        if (keywords.empty()) return read_shown(line);
        if (!line.empty()) read_shown(line);
        if (!blocks.empty()) blocks.back().keywords.append(" ").append(keywords);
    }

    std::vector<Block> blocks;

private:
    void read_shown(std::string_view line) {
        const auto words = trimmed(line);
        if (words.substr(0, fence.size()) == fence) {
            is_fenced_ = !is_fenced_;
            is_open_ = false;
        } else if (is_fenced_) {
            add(BlockKind::fenced, 0, line);
        } else if (words.empty()) {
            is_open_ = false;
        } else {
            read_words(words, static_cast<int>(indent_of(line)) / indent_of_a_level);
        }
    }

    void read_words(std::string_view words, int depth) {
        const auto marks = std::min(words.find_first_not_of('#'), words.size());
        if (marks > 0) return add(BlockKind::heading, static_cast<int>(marks), trimmed(words.substr(marks)));
        if (words.front() == '|') return is_table_rule(words) ? void() : add(BlockKind::table_row, 0, words);
        if (words.substr(0, 2) == "![") return add(BlockKind::picture, 0, words);
        if (const auto mark = item_mark(words); mark > 0) {
            add(BlockKind::item, depth, words.substr(mark));
        } else if (is_open_) {
            blocks.back().source.append(" ").append(words);
            return;
        } else {
            add(BlockKind::paragraph, 0, words);
        }
        is_open_ = true;
    }

    void add(BlockKind kind, int level, std::string_view words) {
        blocks.push_back({kind, level, std::string(words)});
        is_open_ = false;
    }

    bool is_fenced_ = false;
    bool is_open_ = false; // the next line goes on with the last block
};

// Takes a text mark by mark, letter by letter.
class RunReader {
public:
    /// How much of the text is done with.
    std::size_t read(std::string_view rest) {
        const char first = rest.front();
        if (first == '`') return is_code_ = !is_code_, 1;
        if (is_code_) return add(first);
        if (rest.starts_with("](")) return std::min(rest.find(')'), rest.size() - 1) + 1; // its words stay
        if (rest.starts_with("**")) return begin(!runs.back().is_bold, runs.back().is_italic), 2;
        if (first == '*') return begin(runs.back().is_bold, !runs.back().is_italic), 1;
        if (first == '[' || rest.starts_with("![")) return 1;
        return first == '\\' && rest.size() > 1 ? 1 + add(rest[1]) : add(first);
    }

    std::vector<EmphasisRun> runs = std::vector<EmphasisRun>(1);

private:
    std::size_t add(char letter) { return runs.back().text += letter, 1; }
    void begin(bool is_bold, bool is_italic) { runs.push_back({{}, is_bold, is_italic}); }

    bool is_code_ = false;
};

// What stands between an arrow and the figure that it leads to is not broken apart.
void bind_figure(std::string& line) {
    constexpr std::string_view arrow = "\u2192", bound_blank = "\u00A0";
    const auto begin = line.find(arrow);
    if (begin == std::string::npos) return;
    const auto figure = std::min(line.find_first_of("0123456789", begin), line.size());
    for (auto at = line.rfind(' ', figure); at != std::string::npos && at > begin; at = line.rfind(' ', at))
        line.replace(at, 1, bound_blank);
}

} // namespace

std::vector<Block> blocks_of(std::string_view markdown) {
    Reader reader;
    while (!markdown.empty()) reader.read(std::string(take_line(markdown)));
    return std::move(reader.blocks);
}

std::string shown_markdown(std::string_view markdown) {
    std::string shown;
    while (!markdown.empty()) {
        std::string line(take_line(markdown));
        if (!take_comment(line).empty() && line.empty()) continue;
        bind_figure(line);
        shown.append(line).append("\n");
    }
    return shown;
}

std::vector<EmphasisRun> runs_of(std::string_view source) {
    RunReader reader;
    while (!source.empty()) source.remove_prefix(reader.read(source));
    std::erase_if(reader.runs, [](const EmphasisRun& run) { return run.text.empty(); });
    return std::move(reader.runs);
}

std::string plain_text(std::string_view source) {
    std::string plain;
    for (const auto& run : runs_of(source)) plain += run.text;
    return plain;
}

std::vector<std::string> leads_of(const Block& block) {
    std::vector<std::string> leads;
    if (block.kind != BlockKind::item) return leads;
    for (std::string_view rest = block.source; rest.substr(0, 2) == "**";) {
        const auto end = std::min(rest.find("**", 2), rest.size());
        leads.push_back(plain_text(rest.substr(2, end - 2)));
        rest.remove_prefix(std::min(end + 2, rest.size()));
        for (const std::string_view link : {", ", " and "})
            if (rest.substr(0, link.size()) == link) rest.remove_prefix(link.size());
    }
    return leads;
}

std::string_view first_link(std::string_view source) {
    const auto begin = source.find("](");
    if (begin == std::string_view::npos) return {};
    const auto target = source.substr(begin + 2);
    return target.substr(0, target.find(')'));
}

std::vector<std::string> cells_of(const Block& row) {
    std::vector<std::string> cells;
    std::string_view rest = row.source;
    for (rest.remove_prefix(1); !rest.empty();) {
        const auto end = std::min(rest.find('|'), rest.size());
        cells.push_back(plain_text(trimmed(rest.substr(0, end))));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return cells;
}

} // namespace wortlex
