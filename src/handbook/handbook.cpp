#include "handbook/handbook.h"

#include "base/text.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view page_ending = ".md";
constexpr std::size_t longest_excerpt = 120;

std::string in_small_letters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

std::vector<std::string> words_of(std::string_view text) {
    std::vector<std::string> words;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const auto end = std::min(text.find(' '), text.size());
        words.push_back(in_small_letters(std::string(text.substr(0, end))));
        text.remove_prefix(end);
    }
    return words;
}

int count_in(std::string_view text, const std::vector<std::string>& words) {
    return static_cast<int>(std::count_if(words.begin(), words.end(), [&](const std::string& word) {
        return text.find(word) != std::string_view::npos;
    }));
}
// A title is worth more than a heading, a heading more than words below it.
int worth_of(const Block& block) {
    constexpr int of_title = 100, of_heading = 20, of_field = 5;
    if (block.kind == BlockKind::heading) return block.level == 1 ? of_title : of_heading;
    return leads_of(block).empty() ? 1 : of_field;
}

// Cut at a blank, and never within a letter of more than one byte.
std::string excerpt_of(const Block& block) {
    auto text = plain_text(block.source);
    if (text.size() <= longest_excerpt) return text;
    const auto blank = text.rfind(' ', longest_excerpt);
    text.resize(blank == std::string::npos ? 0 : blank);
    return text + " ...";
}

std::string plain_caption(std::string_view caption) {
    if (!caption.empty() && caption.back() == ':') caption.remove_suffix(1);
    return in_small_letters(std::string(caption));
}

// "Volume (GAL)" is "Volume (L)" elsewhere.
std::string without_unit(std::string_view caption) {
    return plain_caption(trimmed(caption.substr(0, caption.find('('))));
}

} // namespace

std::string_view page_of(std::string_view link) {
    const bool is_page = link.size() > page_ending.size() && link.find_first_of(":/") == link.npos &&
                         link.substr(link.size() - page_ending.size()) == page_ending;
    return is_page ? link.substr(0, link.size() - page_ending.size()) : std::string_view();
}

Handbook::Handbook(PageSource source) : source_(std::move(source)) {
    for (const auto& block : blocks_of(source_(contents_page))) {
        if (block.kind != BlockKind::item) continue;
        topics_.push_back(
            {plain_text(block.source), std::string(page_of(first_link(block.source))), block.level});
    }
}

const Topic* Handbook::topic(std::string_view page) const {
    const auto found =
        std::find_if(topics_.begin(), topics_.end(), [&](const Topic& topic) { return topic.page == page; });
    return found == topics_.end() ? nullptr : &*found;
}

void Handbook::read_pages() {
    if (!pages_.empty()) return;
    for (const auto& topic : topics_) {
        if (topic.page.empty()) continue;
        Searched page{&topic, blocks_of(source_(topic.page)), {}};
        for (const auto& block : page.blocks)
            page.texts.push_back(in_small_letters(plain_text(block.source)));
        pages_.push_back(std::move(page));
    }
}

std::optional<Handbook::Hit> Handbook::hit_of(const Searched& page, const std::vector<std::string>& words) {
    Hit hit;
    int best_worth = 0;
    const bool has_all = std::all_of(words.begin(), words.end(), [&](const std::string& word) {
        return std::any_of(page.texts.begin(), page.texts.end(),
                           [&](const std::string& text) { return text.find(word) != std::string::npos; });
    });
    if (!has_all) return std::nullopt;
    for (std::size_t i = 0; i < page.blocks.size(); ++i) {
        const auto& block = page.blocks[i];
        const int found = count_in(page.texts[i], words);
        const int worth = found * found * worth_of(block);
        hit.worth += worth;
        if (block.kind == BlockKind::heading || worth <= best_worth) continue;
        best_worth = worth;
        hit.best = &block;
    }
    return hit;
}

std::vector<Found> Handbook::search(std::string_view text) {
    const auto words = words_of(text);
    if (words.empty()) return {};
    read_pages();
    std::vector<std::pair<int, Found>> ranked;
    for (const auto& page : pages_)
        if (const auto hit = hit_of(page, words))
            ranked.push_back({hit->worth, {page.topic, hit->best == nullptr ? "" : excerpt_of(*hit->best)}});
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& one, const auto& other) { return one.first > other.first; });
    std::vector<Found> found;
    found.reserve(ranked.size());
    for (auto& [worth, page] : ranked) found.push_back(std::move(page));
    return found;
}

std::string Handbook::words_on(std::string_view page, std::string_view caption) const {
    const auto blocks = blocks_of(source_(page));
    for (auto* const as_compared : {plain_caption, without_unit})
        for (const auto& block : blocks)
            for (const auto& lead : leads_of(block))
                if (as_compared(lead) == as_compared(caption)) return plain_text(block.source);
    return {};
}

} // namespace wortlex
