#include "companion/terminal.h"

#include "base/windows1252.h"
#include "companion/utf8.h"

namespace wortlex {
namespace {

bool is_layout(std::string_view text) {
    return text[0] == '\n' || text[0] == '\t' || text.starts_with("\r\n");
}

std::string harmless(std::string_view utf8, bool keeps_layout) {
    std::string out;
    while (!utf8.empty()) {
        const auto length = character_length(utf8);
        const bool is_shown = length > 0 && (!is_control(utf8) || (keeps_layout && is_layout(utf8)));
        out += is_shown ? utf8.substr(0, length) : "?";
        utf8.remove_prefix(length == 0 ? 1 : length);
    }
    return out;
}

} // namespace

std::string one_line(std::string_view utf8) {
    return harmless(utf8, false);
}

std::string one_line_of(std::string_view windows1252) {
    return one_line(utf8_from_windows1252(windows1252));
}

std::string terminal_text(std::string_view report) {
    return harmless(report, true);
}

} // namespace wortlex
