// Which Wortlex this is.
#pragma once

namespace wortlex {

inline constexpr const char* program_version = "Wortlex Version 1.8.A";

} // namespace wortlex
