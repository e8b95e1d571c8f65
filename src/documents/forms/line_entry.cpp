#include "documents/forms/line_entry.h"

#include "base/number.h"
#include "documents/forms/hop_amount.h"
#include "documents/forms/malt_amount.h"
#include "documents/forms/typed_amount.h"
#include "documents/work/recipe_lines.h"

#include <algorithm>
#include <array>
#include <vector>

namespace wortlex {
namespace {

using Words = std::vector<std::string>;

Words words_in(std::string_view text) {
    Words words;
    for (text = without_blanks(text); !text.empty(); text = without_blanks(text)) {
        const auto end = std::min(text.find(' '), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

void drop(Words& words, std::size_t from, std::size_t count) {
    const auto first = words.begin() + static_cast<std::ptrdiff_t>(from);
    words.erase(first, first + static_cast<std::ptrdiff_t>(count));
}

// "9 lb" or "1.5kg" anywhere.
std::optional<TypedWeight> weight_with_unit(Words& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool has_next = i + 1 < words.size() && weight_unit_of(words[i + 1]).has_value();
        const bool is_bare = typed_number(words[i]).has_value();
        const auto weight = is_bare && has_next ? typed_weight(words[i] + words[i + 1])
                            : is_bare           ? std::nullopt
                                                : typed_weight(words[i]);
        if (!weight) continue;
        drop(words, i, is_bare ? 2 : 1);
        return weight;
    }
    return std::nullopt;
}

// A number alone is a weight only before a name.
std::optional<TypedWeight> first_number(Words& words) {
    if (words.size() < 2) return std::nullopt;
    const auto number = typed_number(words.front());
    if (!number) return std::nullopt;
    drop(words, 0, 1);
    return TypedWeight{*number};
}

std::string fault_in(const Words& words) {
    const auto found = std::find_if(words.begin(), words.end(), [](const std::string& word) {
        return is_ambiguous(word.substr(0, word.find_first_not_of("0123456789.,")));
    });
    return found == words.end() ? "" : *found + " can be read in two ways";
}

std::string joined(const Words& words) {
    std::string text;
    for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

std::optional<float> alpha_among(Words& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (!word.ends_with('%')) continue;
        const auto alpha = typed_number(word.substr(0, word.size() - 1));
        if (!alpha || *alpha > 100) continue;
        drop(words, i, 1);
        return alpha;
    }
    return std::nullopt;
}

// Only whole words: many a hop begins with a D, F or M.
bool is_timing_word(std::string_view word) {
    std::string small(word);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    constexpr std::array<std::string_view, 5> timing_words = {"dry", "fwh", "fw", "mh", "mash"};
    return std::find(timing_words.begin(), timing_words.end(), small) != timing_words.end();
}

// "60", "60 min", "60min" or a word at the end. A number beyond the boil belongs to the name.
std::optional<std::int16_t> time_at_end(Words& words, std::int32_t boil_minutes) {
    if (words.size() < 2) return std::nullopt;
    const auto two = words[words.size() - 2] + " " + words.back();
    const bool has_unit_apart = words.size() > 2 && without_minutes(two) != std::string_view(two);
    const auto text = std::string(without_minutes(has_unit_apart ? two : words.back()));
    const auto minutes = parse_whole(text);
    if (!is_timing_word(text) && !(minutes && *minutes >= 0 && *minutes <= boil_minutes)) return std::nullopt;
    const std::size_t count = has_unit_apart ? 2 : 1;
    drop(words, words.size() - count, count);
    return boil_time_of(text, boil_minutes);
}

WrittenLine begun_line(Words& words) {
    WrittenLine line;
    line.fault = fault_in(words);
    line.weight = weight_with_unit(words);
    if (!line.weight) line.weight = first_number(words);
    return line;
}

float held(const TypedWeight& weight, float most) {
    return std::min(weight.number, most);
}

} // namespace

WrittenLine read_malt_line(std::string_view text) {
    auto words = words_in(text);
    auto line = begun_line(words);
    line.name = joined(words);
    return line;
}

WrittenLine read_hop_line(std::string_view text, std::int32_t boil_minutes) {
    auto words = words_in(text);
    auto line = begun_line(words);
    line.alpha = alpha_among(words);
    line.boil_time = time_at_end(words, boil_minutes);
    line.name = joined(words);
    return line;
}

MaltUse malt_line(const MaltRecord& malt, const WrittenLine& written, const Settings& settings) {
    auto line = new_malt_line(malt, settings.grain_increment);
    if (const auto& weight = written.weight)
        line.amount = pounds_of({held(*weight, most_malt_weight), weight->unit}, settings);
    return line;
}

HopUse hop_line(const HopRecord& hop, const WrittenLine& written, const BrewDocument& document,
                const Settings& settings) {
    auto line = new_hop_line(hop, document.boil_minutes, settings.hop_increment);
    if (const auto& weight = written.weight)
        line.amount = ounces_of({held(*weight, most_hop_weight), weight->unit}, settings);
    line.alpha = written.alpha.value_or(line.alpha);
    line.boil_time = written.boil_time.value_or(line.boil_time);
    return line;
}

} // namespace wortlex
