// A file that is dragged over a window.
#pragma once

#include <QMimeData>

#include <optional>
#include <string>

namespace wortlex {

/// The path of the one file among what is dragged, or nothing.
std::optional<std::string> dragged_file(const QMimeData& dragged);

} // namespace wortlex
