#include "databases/find.h"

#include "base/files.h"
#include "base/windows1252.h"
#include "databases/ingredient_list.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t most_names_text = std::size_t{1} << 20;
constexpr std::size_t most_alternatives = 64; // of a query; a file may hold any chain of names

// The letters of Windows-1252 from 0x80, without their accents.
constexpr std::string_view plain_letters = "          s o z           s o zy"
                                           "                                "
                                           "aaaaaaaceeeeiiiidnooooo ouuuuyts"
                                           "aaaaaaaceeeeiiiidnooooo ouuuuyty";

char plain_letter(char c) {
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x80) return plain_letters.at(code - 0x80U);
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool is_within_word(char c) {
    return std::string_view("-'/\x92").find(c) != std::string_view::npos;
}

bool separates(char c) {
    const bool is_letter = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.';
    return !is_letter;
}

// Where `name` stands in `words`, or their end.
FindWords::const_iterator place_of(const FindWords& name, const FindWords& words) {
    return std::search(words.begin(), words.end(), name.begin(), name.end());
}

FindWords replaced(const FindWords& words, FindWords::const_iterator place, std::size_t length,
                   const FindWords& by) {
    FindWords result(words.begin(), place);
    result.insert(result.end(), by.begin(), by.end());
    result.insert(result.end(), place + static_cast<std::ptrdiff_t>(length), words.end());
    return result;
}

// Adds what `words` becomes with the other names of one group.
void add_alternatives(FindQuery& query, const FindWords& words, const std::vector<FindWords>& group) {
    for (const auto& name : group) {
        const auto place = place_of(name, words);
        if (place == words.end()) continue;
        for (const auto& other : group)
            if (other != name && query.size() < most_alternatives)
                query.push_back(replaced(words, place, name.size(), other));
        return;
    }
}

int match_in_text(const std::string& word, const FindWords& cell) {
    int best = 0;
    for (const auto& there : cell) {
        const auto place = there.find(word);
        if (place == std::string::npos) continue;
        best = std::max(best, place > 0 ? 2 : there.size() > word.size() ? 3 : 4);
    }
    return best;
}

struct Cells {
    std::vector<FindWords> texts;
    std::vector<FindWords> numbers;
};

Cells cells_of(const IngredientList& list, std::size_t row) {
    Cells cells;
    const auto heads = list.heads();
    for (std::size_t column = 0; column < heads.size(); ++column)
        (heads[column].is_number ? cells.numbers : cells.texts).push_back(find_words(list.cell(row, column)));
    return cells;
}

int match_word(const std::string& word, const Cells& cells) {
    int best = 0;
    for (const auto& cell : cells.texts) best = std::max(best, match_in_text(word, cell));
    for (const auto& cell : cells.numbers)
        if (best == 0 && match_in_text(word, cell) > 2) best = 1;
    return best;
}

int match_all(const FindWords& words, const Cells& cells) {
    int sum = 0;
    for (const auto& word : words) {
        const int one = match_word(word, cells);
        if (one == 0) return 0;
        sum += one;
    }
    return sum;
}

constexpr int most_words = 15;

// Of the shortest text that holds `word`.
int words_around(const std::string& word, const Cells& cells) {
    std::size_t fewest = most_words;
    for (const auto& cell : cells.texts)
        if (match_in_text(word, cell) > 0) fewest = std::min(fewest, cell.size());
    return static_cast<int>(fewest);
}

std::string_view cut_line(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

std::vector<FindWords> group_of(std::string_view line) {
    std::vector<FindWords> group;
    if (line.starts_with('#')) return group;
    for (auto end = line.find('='); !line.empty(); end = line.find('=')) {
        if (auto name = find_words(line.substr(0, end)); !name.empty()) group.push_back(std::move(name));
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
    return group;
}

} // namespace

FindWords find_words(std::string_view utf8) {
    FindWords words;
    std::string word;
    const auto text = windows1252_from_utf8(utf8).value_or(std::string(utf8)) + ' ';
    for (const char raw : text) {
        if (is_within_word(raw)) continue;
        const char c = plain_letter(raw);
        if (!separates(c))
            word += c;
        else if (!word.empty())
            words.push_back(std::exchange(word, {}));
    }
    return words;
}

OtherNames read_other_names(std::string_view text) {
    OtherNames names;
    while (!text.empty())
        if (auto group = group_of(cut_line(text)); group.size() > 1) names.push_back(std::move(group));
    return names;
}

OtherNames LoadOtherNames(const std::string& data_folder) {
    const auto file = read_file(find_data_file(data_folder, other_names_file), most_names_text);
    return file ? read_other_names(characters_of(*file)) : OtherNames();
}

FindQuery make_query(std::string_view typed, const OtherNames& names) {
    FindQuery query = {find_words(typed)};
    if (query.front().empty()) return {};
    for (const auto& group : names)
        for (std::size_t i = 0, known = query.size(); i < known; ++i)
            add_alternatives(query, FindWords(query[i]), group);
    return query;
}

int match(const IngredientList& list, std::size_t row, const FindQuery& query) {
    if (query.empty()) return 0;
    const auto cells = cells_of(list, row);
    int best = 0;
    for (std::size_t i = 0; i < query.size(); ++i) {
        const int sum = match_all(query[i], cells);
        if (sum == 0) continue;
        const int rank = 2 * sum - (i == 0 ? 0 : 1); // another name counts a little less
        best = std::max(best, rank * (most_words + 1) - words_around(query[i].front(), cells));
    }
    return best;
}

std::size_t count_found(const IngredientList& list, const FindQuery& query) {
    std::size_t count = 0;
    for (std::size_t row = 0; row < list.shown_count(); ++row) count += match(list, row, query) > 0 ? 1U : 0U;
    return count;
}

std::optional<std::size_t> best_row(const IngredientList& list, const FindQuery& query) {
    std::optional<std::size_t> best;
    int most = 0;
    for (std::size_t row = 0; row < list.shown_count(); ++row) {
        const int here = match(list, row, query);
        if (here <= most) continue;
        most = here;
        best = row;
    }
    return best;
}

std::vector<std::size_t> best_rows(const IngredientList& list, const FindQuery& query, std::size_t most) {
    std::vector<std::pair<int, std::size_t>> found;
    for (std::size_t row = 0; row < list.shown_count(); ++row)
        if (const int here = match(list, row, query); here > 0) found.emplace_back(-here, row);
    std::sort(found.begin(), found.end());
    std::vector<std::size_t> rows;
    for (const auto& [worse, row] : found)
        if (rows.size() < most) rows.push_back(row);
    return rows;
}

std::optional<std::size_t> next_row(const IngredientList& list, const FindQuery& query, std::size_t from,
                                    bool backwards) {
    const auto count = list.shown_count();
    for (std::size_t step = 1; step <= count; ++step) {
        const auto row = (from + (backwards ? count - step : step)) % count;
        if (match(list, row, query) > 0) return row;
    }
    return std::nullopt;
}

} // namespace wortlex
