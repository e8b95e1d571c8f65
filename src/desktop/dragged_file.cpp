#include "desktop/dragged_file.h"

#include <QFile>
#include <QUrl>

namespace wortlex {

std::optional<std::string> dragged_file(const QMimeData& dragged) {
    const auto urls = dragged.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
    return QFile::encodeName(urls.front().toLocalFile()).toStdString();
}

} // namespace wortlex
