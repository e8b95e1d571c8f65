// The clipboard.
#pragma once

#include <string_view>

namespace wortlex {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void put_text(std::string_view utf8) = 0;
};

} // namespace wortlex
