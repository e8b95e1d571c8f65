// A value in a source file and the ways to read it. What cannot be read as asked is refused, with the place,
// so that its author finds it.
#pragma once

#include "base/text.h"
#include "databases/sort_keys.h"

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wortlex {

/// What is wrong with a source, as one line.
class SourceFault : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Place {
    std::string file;
    std::size_t line = 0; ///< from 1
};

[[noreturn]] void refuse(const Place& place, const std::string& reason);

/// The lines of a text file, without their ends.
std::vector<std::string> read_lines(const std::string& path);

/// The words of a column and what they stand for.
template <class Code>
using Words = std::initializer_list<std::pair<std::string_view, Code>>;

struct SourceValue {
    Place place;
    std::string name; ///< of its column or key
    std::string text; ///< UTF-8

    /// Both bounds belong to the range.
    float number(double low, double high) const;
    std::int32_t whole(std::int32_t low, std::int32_t high) const;

    /// As a record holds it, of at most `limit` bytes and without control characters.
    std::string windows1252(std::size_t limit) const;

    /// The same, filled in; the limit is that of the entry windows.
    template <std::size_t N>
    Text<N> stored(std::size_t limit = N - 3) const {
        return Text<N>(windows1252(limit));
    }

    /// The same of a text that may not be empty.
    template <std::size_t N>
    Text<N> stored_name(std::size_t limit = N - 3) const {
        if (text.empty()) refuse(place, name + " is empty");
        return stored<N>(limit);
    }

    /// The code of a word, whatever its capitals.
    template <class Code>
    Code word(Words<Code> words) const {
        for (const auto& [spelling, code] : words) {
            if (folded(spelling) == folded(text)) return code;
        }
        refuse(place, name + ": \"" + text + "\" is not a word for it");
    }

    /// The parts between the bars, as many as asked for.
    std::vector<SourceValue> parts(std::size_t least, std::size_t most) const;
};

} // namespace wortlex
