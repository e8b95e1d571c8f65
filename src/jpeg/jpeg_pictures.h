// Pictures as JPEG files on the disk.
#pragma once

#include "base/ports/surface.h"

namespace wortlex {

class JpegPictures : public Pictures {
public:
    /// Nothing if there is no file, or none that `decode_jpeg` takes.
    std::optional<Pixels> load(const std::string& path) override;
    /// The old file stays whole where the new one cannot be written.
    PictureSave save(const std::string& path, const Pixels& pixels, int quality) override;
};

} // namespace wortlex
