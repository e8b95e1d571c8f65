// Files as texts.
#pragma once

#include "base/files.h"

#include <fstream>
#include <iterator>
#include <string>

namespace wortlex {

inline std::string content_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline Bytes bytes_of(std::string_view text) {
    const auto view = std::as_bytes(std::span(text));
    return {view.begin(), view.end()};
}

inline void write_content(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

} // namespace wortlex
