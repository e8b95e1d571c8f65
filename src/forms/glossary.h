// What the words of brewing mean, for those who meet them for the first time.
#pragma once

#include <string_view>

namespace wortlex {

/// The meaning of the first word of the glossary that stands in a caption, whole and with its capitals; empty
/// where there is none.
std::string_view meaning_of(std::string_view caption);

} // namespace wortlex
