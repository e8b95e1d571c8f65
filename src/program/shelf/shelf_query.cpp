#include "program/shelf/shelf_query.h"

#include "base/number.h"
#include "measures/gravity.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace wortlex {
namespace {

constexpr std::string_view signs = "<>=";

struct FigureWord {
    std::string_view word;
    ShelfFigure figure;
};
constexpr std::array figure_words = {
    FigureWord{"og", ShelfFigure::og},        FigureWord{"ibu", ShelfFigure::ibu},
    FigureWord{"srm", ShelfFigure::colour},   FigureWord{"ebc", ShelfFigure::colour},
    FigureWord{"color", ShelfFigure::colour}, FigureWord{"colour", ShelfFigure::colour},
    FigureWord{"size", ShelfFigure::size},    FigureWord{"batch", ShelfFigure::size}};

bool is_sign(char c) {
    return signs.find(c) != std::string_view::npos;
}

// "og > 1.055" as "og>1.055", with a point for a comma within a number.
std::string drawn_together(std::string_view typed) {
    std::string text;
    for (const char c : typed) {
        if (is_sign(c))
            while (!text.empty() && text.back() == ' ') text.pop_back();
        else if (c == ' ' && !text.empty() && is_sign(text.back()))
            continue;
        text += c;
    }
    return text;
}

std::optional<ShelfFigure> figure_named(std::string_view word) {
    const auto small = find_words(word);
    if (small.size() != 1) return std::nullopt;
    const auto* const found = std::find_if(figure_words.begin(), figure_words.end(),
                                           [&](const FigureWord& each) { return each.word == small[0]; });
    return found == figure_words.end() ? std::nullopt : std::optional(found->figure);
}

Comparison comparison_of(std::string_view sign) {
    const bool with_equal = sign.find('=') != std::string_view::npos;
    if (sign.find('<') != std::string_view::npos) return with_equal ? Comparison::at_most : Comparison::below;
    if (sign.find('>') != std::string_view::npos)
        return with_equal ? Comparison::at_least : Comparison::above;
    return Comparison::equal;
}

// Nobody brews at an SG of 2, and 900 is beyond Plato.
double as_sg(double typed) {
    if (typed < 2) return typed;
    return typed >= 900 ? typed / 1000 : double{plato_to_sg(narrow(typed))};
}

double half_of_last_digit(std::string_view number) {
    const auto point = number.find('.');
    const auto decimals = point == std::string_view::npos ? 0 : number.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(decimals));
}

// What stands behind the sign. A gravity that is not SG is as precise as it is shown.
void add_condition(ShelfQuery& query, ShelfFigure figure, std::string_view sign, std::string number) {
    std::replace(number.begin(), number.end(), ',', '.');
    const auto value = parse_number(number);
    if (!value) return;
    const bool is_other_gravity = figure == ShelfFigure::og && *value >= 2;
    query.conditions.push_back({figure, comparison_of(sign),
                                figure == ShelfFigure::og ? as_sg(*value) : *value,
                                is_other_gravity ? 0.0005 : half_of_last_digit(number)});
}

// Whether it is a condition, complete or not.
bool take_condition(ShelfQuery& query, std::string_view token) {
    const auto at = token.find_first_of(signs);
    if (at == std::string_view::npos) return false;
    const auto figure = figure_named(token.substr(0, at));
    if (!figure) return false;
    const auto behind = std::min(token.find_first_not_of(signs, at), token.size());
    add_condition(query, *figure, token.substr(at, behind - at), std::string(token.substr(behind)));
    return true;
}

bool meets(const ShelfEntry& entry, const ShelfCondition& condition) {
    constexpr double binary = 1e-9; // two decimal numbers that are equal may differ by so much
    const double difference = entry.figure(condition.figure) - condition.value;
    switch (condition.comparison) {
    case Comparison::below:
        return difference < -binary;
    case Comparison::at_most:
        return difference < binary;
    case Comparison::at_least:
        return difference > -binary;
    case Comparison::above:
        return difference > binary;
    case Comparison::equal:
        break;
    }
    return std::abs(difference) <= condition.tolerance;
}

bool has_all(const std::string& text, const FindWords& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

} // namespace

ShelfQuery make_shelf_query(std::string_view typed, const OtherNames& names) {
    ShelfQuery query;
    std::string words;
    const auto text = drawn_together(typed) + ' ';
    for (std::size_t start = 0, end = text.find(' '); end != std::string::npos; end = text.find(' ', start)) {
        const auto token = std::string_view(text).substr(start, end - start);
        if (!take_condition(query, token)) words.append(token).append(" ");
        start = end + 1;
    }
    query.words = make_query(words, names);
    return query;
}

bool is_found(const ShelfEntry& entry, const ShelfQuery& query) {
    if (!query.conditions.empty() && !entry.can_be_opened) return false;
    const auto is_met = [&](const ShelfCondition& condition) { return meets(entry, condition); };
    if (!std::all_of(query.conditions.begin(), query.conditions.end(), is_met)) return false;
    return query.words.empty() || std::any_of(query.words.begin(), query.words.end(),
                                              [&](const auto& words) { return has_all(entry.words, words); });
}

} // namespace wortlex
