#include "databases/import.h"

#include <algorithm>

namespace wortlex {
namespace {

bool is_control(char c) {
    const auto code = static_cast<unsigned char>(c);
    return (code < ' ' && c != '\r' && c != '\n' && c != '\t') || code == 0x7F;
}

} // namespace

bool importing::is_sound_text(std::string_view whole_array) {
    const auto end = whole_array.find('\0');
    if (end == std::string_view::npos) return false;
    const auto text = whole_array.substr(0, end);
    return std::none_of(text.begin(), text.end(), is_control);
}

std::string nothing_to_import(const std::string& name) {
    return name + " holds nothing that this database could take.";
}

std::string left_out_unreadable(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " entry of the file is" : " entries of the file are") +
           " damaged and left out.";
}

std::string database_full(std::string_view full, int left_out) {
    return std::string(full) + "\n\n" + std::to_string(left_out) +
           (left_out == 1 ? " entry was" : " entries were") + " left out.";
}

} // namespace wortlex
