// What the toolkit waits for as the first window is made, done beside the rest of the start.
#pragma once

#include <future>

namespace wortlex {

/// Reads the system's list of fonts; at once where the system keeps no such list.
std::future<void> read_fonts_early();

/// Hands the fonts to the toolkit once they are read. Here and below, the application must exist, and outlive
/// the future.
std::future<void> take_fonts_early(const std::future<void>& fonts);

/// Opens the bus of the desktop session, on which assistive tools are asked for.
std::future<void> open_session_bus_early();

} // namespace wortlex
