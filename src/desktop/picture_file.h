// Pictures from files of a kind that is known.
#pragma once

#include <QIODevice>
#include <QImage>

namespace wortlex {

/// The picture in a file of `format`, one of the toolkit's own ("BMP", "PNG"); null if there is none. The
/// toolkit is kept from guessing, for which it would load its plugins for all other formats.
QImage read_picture(QIODevice& file, const char* format);

} // namespace wortlex
