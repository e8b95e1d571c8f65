#include "desktop/artwork.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <string>
#include <vector>

namespace wortlex {
namespace {

QString layer(std::string_view folder, std::string_view name) {
    return QString::fromStdString(std::string(folder) + "/" + std::string(name) + ".svg");
}

// Icons come on stainless steel or, under both other names, on copper.
std::vector<QString> button_layers(std::string_view file) {
    const auto suffix = file.substr(std::min(file.find('_'), file.size()));
    return {layer("plates", suffix == "_2" ? "stainless" : "copper"),
            layer("icons", file.substr(0, file.size() - suffix.size()))};
}

// The sources of a picture, the lowest first; that one gives the size.
std::vector<QString> layers_of(std::string_view file) {
    if (file.starts_with("KVBack")) return {layer("backgrounds", file)};
    if (file == "kettle") return {layer("about", file)};
    return button_layers(file);
}

// Asks for the file first, because a renderer complains aloud of what is missing.
bool load(QSvgRenderer& renderer, const QString& path) {
    return QFile::exists(path) && renderer.load(path);
}

} // namespace

QImage draw_artwork(const QString& sources, std::string_view file, double scale) {
    QImage picture;
    for (const auto& layer : layers_of(file)) {
        QSvgRenderer renderer;
        if (!load(renderer, sources + '/' + layer)) return {};
        if (picture.isNull()) {
            picture = QImage((QSizeF(renderer.defaultSize()) * scale).toSize(), QImage::Format_RGB32);
            if (picture.isNull()) return {};
            picture.fill(Qt::black);
        }
        QPainter painter(&picture);
        renderer.render(&painter, QRectF(picture.rect()));
    }
    return picture;
}

} // namespace wortlex
