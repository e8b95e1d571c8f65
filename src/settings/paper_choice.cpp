#include "settings/paper_choice.h"

#include "base/files.h"

#include <array>
#include <span>
#include <string_view>

namespace wortlex {
namespace {

constexpr std::string_view paper_file = "WlxPaper.txt";
constexpr std::array<std::string_view, 2> kinds = {"A4", "Letter"}, turns = {"Portrait", "Landscape"};

// The word that the text holds, by its code.
template <class Code>
Code told(std::string_view text, const std::array<std::string_view, 2>& words, Code otherwise) {
    for (std::size_t code = 0; code < words.size(); ++code)
        if (text.find(words.at(code)) != std::string_view::npos) return static_cast<Code>(code);
    return otherwise;
}

template <class Code>
std::string word(const std::array<std::string_view, 2>& words, Code code) {
    return std::string(words.at(static_cast<std::size_t>(code)));
}

} // namespace

PaperChoice LoadPaperChoice(const std::string& data_folder, const PaperChoice& usual) {
    constexpr std::size_t most = 256;
    const auto file = read_file(find_data_file(data_folder, paper_file), most);
    if (!file) return usual;
    const auto text = characters_of(*file);
    return {told(text, kinds, usual.kind), told(text, turns, usual.turn)};
}

bool SavePaperChoice(const std::string& data_folder, const PaperChoice& choice) {
    const auto text =
        "paper: " + word(kinds, choice.kind) + "\norientation: " + word(turns, choice.turn) + "\n";
    return save_atomically(find_data_file(data_folder, paper_file), std::as_bytes(std::span(text)));
}

} // namespace wortlex
