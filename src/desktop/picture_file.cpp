#include "desktop/picture_file.h"

#include <QImageReader>

namespace wortlex {

QImage read_picture(QIODevice& file, const char* format) {
    QImageReader reader(&file, format);
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

} // namespace wortlex
