#include "page/run_lines.h"

#include <numeric>

namespace wortlex {
namespace {

using RunLine = std::vector<PageRun>;

void append_run(RunLine& line, const PageRun& run) {
    if (!line.empty() && line.back().font == run.font)
        line.back().text += run.text;
    else
        line.push_back(run);
}

// Runs that no blank parts belong to one word.
std::vector<RunLine> words_of(std::span<const PageRun> runs) {
    std::vector<RunLine> words(1);
    for (const auto& [text, font] : runs) {
        for (std::size_t at = 0; at < text.size();) {
            const auto end = std::min(text.find(' ', at), text.size());
            if (end > at) append_run(words.back(), {text.substr(at, end - at), font});
            if (end < text.size() && !words.back().empty()) words.emplace_back();
            at = end + 1;
        }
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

RunLine joined(RunLine line, const RunLine& word) {
    if (!line.empty()) line.back().text += ' ';
    for (const auto& run : word) append_run(line, run);
    return line;
}

} // namespace

std::vector<RunLine> run_lines(std::span<const PageRun> runs, int dots,
                               const std::function<int(const PageRun&)>& width) {
    const auto fits = [&](const RunLine& line) {
        const auto add = [&](int sum, const PageRun& run) { return sum + width(run); };
        return std::accumulate(line.begin(), line.end(), 0, add) <= dots;
    };
    std::vector<RunLine> lines;
    for (const auto& word : words_of(runs)) {
        if (!lines.empty())
            if (auto longer = joined(lines.back(), word); fits(longer)) {
                lines.back() = std::move(longer);
                continue;
            }
        lines.push_back(word);
    }
    return lines;
}

} // namespace wortlex
