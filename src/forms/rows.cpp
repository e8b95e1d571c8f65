#include "forms/rows.h"

#include <algorithm>

namespace wortlex {

std::string words_of_colour(std::uint32_t colour) {
    const auto part = [colour](unsigned place) { return std::to_string(colour >> place & 0xFF); };
    return "Red " + part(0) + ", green " + part(8) + ", blue " + part(16);
}

ChoiceRow::ChoiceRow(std::string row_key, Binding<std::int32_t> code,
                     std::vector<Live<std::string>> option_words)
    : RowOptions(std::move(row_key), std::nullopt), words(std::move(option_words)), code_(std::move(code)) {}

std::int32_t ChoiceRow::code_of(std::size_t option) const {
    return numbers_.empty() ? static_cast<std::int32_t>(option) : numbers_[option];
}

std::optional<std::size_t> ChoiceRow::chosen() const {
    const auto code = code_.get();
    for (std::size_t option = 0; option < words.size(); ++option)
        if (code_of(option) == code) return option;
    return std::nullopt;
}

bool ChoiceRow::choose(std::size_t option) {
    if (option >= words.size() || chosen() == option) return false;
    code_.set(code_of(option));
    return true;
}

} // namespace wortlex
