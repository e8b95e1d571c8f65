// Finding entries of a list by what a brewer types: parts of words, in any column, all of them together.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wortlex {

class IngredientList;

/// The words of a text as they are compared: small letters without accents, and no marks within a word, so
/// that "US-05" and "us05" are one.
using FindWords = std::vector<std::string>;
FindWords find_words(std::string_view utf8);

/// Names that mean the same, a group each: whoever types one looks for the others too.
using OtherNames = std::vector<std::vector<FindWords>>;

/// A group a line, with " = " between its names; lines that begin with # are remarks. UTF-8.
OtherNames read_other_names(std::string_view text);
/// From the file of the data folder; none without it.
OtherNames LoadOtherNames(const std::string& data_folder);
inline constexpr std::string_view other_names_file = "WlxNames.txt";

/// What is looked for: as it was typed, and behind that with other names.
using FindQuery = std::vector<FindWords>;
FindQuery make_query(std::string_view typed, const OtherNames& names);

/// How well a row holds what is looked for; 0: it does not. Whole words count most, numbers least; among
/// equals a name with fewer other words is better.
int match(const IngredientList& list, std::size_t row, const FindQuery& query);

std::size_t count_found(const IngredientList& list, const FindQuery& query);
/// The first of the rows that match best.
std::optional<std::size_t> best_row(const IngredientList& list, const FindQuery& query);
/// The rows that match, the best of them first, and of equals in the order of the list; so many at the most.
std::vector<std::size_t> best_rows(const IngredientList& list, const FindQuery& query, std::size_t most);
/// The next found row behind `from` or before it, around the end.
std::optional<std::size_t> next_row(const IngredientList& list, const FindQuery& query, std::size_t from,
                                    bool backwards);

} // namespace wortlex
