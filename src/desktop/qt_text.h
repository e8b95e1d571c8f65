// UTF-8 texts as the toolkit has them.
#pragma once

#include <QString>

#include <string_view>

namespace wortlex {

inline QString string_of(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace wortlex
