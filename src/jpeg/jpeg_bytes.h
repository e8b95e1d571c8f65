// Pictures as JPEG files in memory.
#pragma once

#include "base/bytes.h"
#include "base/ports/surface.h"

namespace wortlex {

/// What a picture may hold, 4096 by 4096: its header is not to claim more memory than a machine has.
inline constexpr std::int64_t most_pixels = std::int64_t{1} << 24;

/// Red, green and blue.
inline constexpr int channels = 3;

/// The picture of a file with three channels. Nothing for any other file, one that is damaged or ends early,
/// and one that claims more than `most_pixels`.
std::optional<Pixels> decode_jpeg(ByteView file);

/// A file in full colour resolution, so that thin lines stay clean. Nothing if the pixels do not fill their
/// width and height, there are none, or too many for the format. `quality` from 1 to 100.
std::optional<Bytes> encode_jpeg(const Pixels& pixels, int quality);

} // namespace wortlex
