// Text in a fixed array, as records and files hold it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace wortlex {

/// Without the blanks and line ends around it.
constexpr std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// A Windows-1252 text in `N` bytes. It ends at the first NUL or, in a damaged file, with the array.
/// What a file holds behind the NUL is kept, so that it is written back as it was.
template <std::size_t N>
struct Text {
    static constexpr std::size_t capacity = N;

    std::array<char, N> bytes{};

    Text() = default;
    explicit Text(std::string_view text) { assign(text); }

    std::string_view view() const {
        const std::string_view whole(bytes.data(), N);
        return whole.substr(0, whole.find('\0'));
    }

    bool empty() const { return bytes[0] == '\0'; }

    /// Takes at most `N - 1` bytes of `text` and clears the rest.
    void assign(std::string_view text) {
        text = text.substr(0, std::min(text.find('\0'), N - 1));
        const auto end = std::copy(text.begin(), text.end(), bytes.begin());
        std::fill(end, bytes.end(), '\0');
    }

    /// Equal as read: what stands behind the NUL does not count.
    bool operator==(const Text& other) const { return view() == other.view(); }
};

/// Whether it ends before its field does.
template <std::size_t N>
bool ends(const Text<N>& text) {
    return text.view().size() < N;
}

/// The same of a text of one line, which holds no control characters.
template <std::size_t N>
bool is_line(const Text<N>& text) {
    const auto line = text.view();
    return ends(text) && std::none_of(line.begin(), line.end(),
                                      [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

} // namespace wortlex
