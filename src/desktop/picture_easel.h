// Drawings as pictures in memory.
#pragma once

#include "base/ports/surface.h"

namespace wortlex {

class PictureEasel : public Easel {
public:
    Pixels drawn(Extent size, const std::function<void(Surface&)>& draw) override;
};

} // namespace wortlex
