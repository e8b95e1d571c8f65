// Whose water is matched.
#pragma once

#include <cstdint>

namespace wortlex {

/// The tool's own work, or the water of a session: that is matched to its recipe's, for the volumes of its
/// water needs.
enum class WaterSide : std::uint8_t { tool, session };

} // namespace wortlex
