#include "handbook/handbook.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <iterator>
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

// What a question has between its words; nobody looks for it.
bool is_small_word(std::string_view word) {
    constexpr std::array words = {"a",     "an",    "and",  "are",     "as",   "at",  "be",  "but",  "by",
                                  "can",   "do",    "does", "for",     "from", "get", "has", "have", "how",
                                  "i",     "if",    "in",   "instead", "into", "is",  "it",  "its",  "me",
                                  "much",  "my",    "no",   "not",     "of",   "on",  "or",  "so",   "than",
                                  "that",  "the",   "then", "this",    "to",   "too", "was", "what", "when",
                                  "where", "which", "why",  "will",    "with", "you", "your"};
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool is_word_letter(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter < 0;
}

// Who looks for malts looks for malt.
std::string without_plural(std::string word) {
    if (word.size() > 3 && word.back() == 's' && word[word.size() - 2] != 's') word.pop_back();
    return word;
}

std::string without_marks(std::string_view word) {
    constexpr std::string_view marks = "\"'`.,;:?!()";
    const auto begin = std::min(word.find_first_not_of(marks), word.size());
    return std::string(word.substr(begin, word.find_last_not_of(marks) + 1 - begin));
}

// How well a word is found: within another, at the beginning of one, or by itself.
constexpr int within_word = 1, begins_word = 2, whole_word = 3;

struct WordPlace {
    std::size_t at = std::string_view::npos;
    int grade = 0;
};

bool is_end_of_word(std::string_view rest) {
    constexpr std::array<std::string_view, 3> endings = {"", "s", "es"};
    return std::any_of(endings.begin(), endings.end(), [&](std::string_view ending) {
        return rest.starts_with(ending) &&
               (rest.size() == ending.size() || !is_word_letter(rest[ending.size()]));
    });
}

WordPlace place_of(std::string_view text, std::string_view word) {
    WordPlace best;
    for (auto at = text.find(word); at != text.npos && best.grade < whole_word;
         at = text.find(word, at + 1)) {
        const bool begins = at == 0 || !is_word_letter(text[at - 1]);
        const int in_word = is_end_of_word(text.substr(at + word.size())) ? whole_word : begins_word;
        const int grade = begins ? in_word : within_word;
        if (grade > best.grade) best = {at, grade};
    }
    return best;
}

// A title is worth more than a heading or a keyword, these more than words below them.
int worth_of(const Block& block) {
    constexpr int of_title = 100, of_heading = 20, of_field = 5;
    if (block.kind == BlockKind::heading) return block.level == 1 ? of_title : of_heading;
    if (!block.keywords.empty()) return of_heading;
    return leads_of(block).empty() ? 1 : of_field;
}

std::string shown_text(const Block& block) {
    if (block.kind != BlockKind::table_row) return plain_text(block.source);
    std::string text;
    for (const auto& cell : cells_of(block)) text += (text.empty() ? "" : ": ") + cell;
    return text;
}

// Of a long block the sentence of the first word, or what stands around it. Cut at blanks, never within a
// letter of more than one byte.
std::string excerpt_of(const Block& block, const std::vector<std::string>& words) {
    auto text = shown_text(block);
    if (text.size() <= longest_excerpt) return text;
    const auto small = in_small_letters(text);
    auto first = text.size();
    for (const auto& word : words) first = std::min(first, place_of(small, word).at);
    if (first > longest_excerpt / 2 && first < text.size()) {
        const auto sentence = text.rfind(". ", first);
        const bool is_near = sentence != std::string::npos && first - sentence < longest_excerpt / 2;
        text = is_near ? text.substr(sentence + 2)
                       : "... " + text.substr(text.find(' ', first - longest_excerpt / 3) + 1);
    }
    if (text.size() <= longest_excerpt) return text;
    text.resize(text.rfind(' ', longest_excerpt));
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

std::vector<std::string> Handbook::sought_words(std::string_view text) {
    std::vector<std::string> all, sought;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const auto end = std::min(text.find(' '), text.size());
        auto word = without_plural(in_small_letters(without_marks(text.substr(0, end))));
        if (!word.empty()) all.push_back(std::move(word));
        text.remove_prefix(end);
    }
    std::copy_if(all.begin(), all.end(), std::back_inserter(sought),
                 [](const std::string& word) { return !is_small_word(word); });
    return sought.empty() ? all : sought;
}

void Handbook::read_pages() {
    if (!pages_.empty()) return;
    for (const auto& topic : topics_) {
        if (topic.page.empty()) continue;
        Searched page{&topic, blocks_of(source_(topic.page)), {}};
        for (const auto& block : page.blocks)
            page.texts.push_back(in_small_letters(shown_text(block) + block.keywords));
        pages_.push_back(std::move(page));
    }
}

Handbook::Hit Handbook::hit_of(const Searched& page, const std::vector<std::string>& words) {
    Hit hit;
    std::vector<int> grades(words.size(), 0);
    int most_found = 0;
    for (std::size_t i = 0; i < page.blocks.size(); ++i) {
        const auto& block = page.blocks[i];
        int found = 0;
        for (std::size_t word = 0; word < words.size(); ++word) {
            const int grade = place_of(page.texts[i], words[word]).grade;
            grades[word] = std::max(grades[word], grade);
            found += grade;
        }
        if (found == 0) continue;
        hit.worth += found * found * worth_of(block);
        if (block.kind == BlockKind::heading || block.kind == BlockKind::picture || found <= most_found)
            continue;
        most_found = found;
        hit.best = &block;
    }
    hit.grade = *std::min_element(grades.begin(), grades.end());
    return hit;
}

std::vector<Found> Handbook::search(std::string_view text) {
    const auto words = sought_words(text);
    if (words.empty()) return {};
    read_pages();
    std::vector<std::pair<Hit, const Topic*>> ranked;
    for (const auto& page : pages_)
        if (const auto hit = hit_of(page, words); hit.grade > 0) ranked.emplace_back(hit, page.topic);
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& one, const auto& other) {
        return std::pair(one.first.grade, one.first.worth) > std::pair(other.first.grade, other.first.worth);
    });
    std::vector<Found> found;
    found.reserve(ranked.size());
    for (const auto& [hit, topic] : ranked)
        found.push_back({topic, hit.best == nullptr ? "" : excerpt_of(*hit.best, words)});
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
