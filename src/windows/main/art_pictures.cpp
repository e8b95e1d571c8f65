#include "base/files.h"
#include "desktop/artwork.h"
#include "desktop/picture_file.h"
#include "windows/main/picture_board.h"

#include <QBuffer>

#include <cmath>
#include <cstdlib>

namespace wortlex {
namespace {

const auto sources = QStringLiteral(":/artwork");

QImage picture_of(ByteView bitmap) {
    auto bytes = QByteArrayView(bitmap.data(), static_cast<qsizetype>(bitmap.size())).toByteArray();
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::ReadOnly) ? read_picture(buffer, "BMP") : QImage();
}

// Whether a file is our own small rendering. Two versions of the toolkit may differ by a shade.
bool is_our_own(const QImage& file, const QImage& drawn) {
    if (file.size() != drawn.size()) return false;
    const auto a = file.convertToFormat(QImage::Format_RGB32),
               b = drawn.convertToFormat(QImage::Format_RGB32);
    constexpr int shade = 24;
    for (int y = 0; y < a.height(); y += 3) {
        for (int x = 0; x < a.width(); x += 3) {
            const auto p = a.pixel(x, y), q = b.pixel(x, y);
            if (std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                    std::abs(qBlue(p) - qBlue(q)) >
                shade)
                return false;
        }
    }
    return true;
}

QImage drawn(std::string_view name, double device_scale) {
    auto picture = draw_artwork(sources, name, device_scale);
    picture.setDevicePixelRatio(device_scale);
    return picture;
}

QImage sharpest(const QImage& file, std::string_view name, double device_scale) {
    return device_scale > 1 && is_our_own(file, drawn(name, 1)) ? drawn(name, device_scale) : file;
}

QImage load_picture(const std::string& path, std::string_view name, double device_scale,
                    ArtPictures& pictures) {
    const auto file = read_file(path);
    const auto fault = bitmap_fault(file ? std::optional(ByteView(*file)) : std::nullopt);
    if (!fault.empty()) {
        pictures.faults.insert(fault);
        return {};
    }
    const auto image = picture_of(*file);
    if (image.isNull()) {
        pictures.undrawable.insert(undrawable_bitmap);
        return {};
    }
    return sharpest(image, name, device_scale);
}

} // namespace

QImage about_picture(const std::string& data_folder, double device_scale) {
    constexpr std::string_view name = "kettle";
    ArtPictures only;
    const auto picture = load_picture(about_bitmap(data_folder), name, device_scale, only);
    return picture.isNull() ? drawn(name, device_scale) : picture;
}

ArtPictures load_art(const std::string& data_folder, const ArtScheme& scheme,
                     std::span<const MainScreenButton> buttons, double device_scale) {
    ArtPictures pictures;
    pictures.background =
        load_picture(background_bitmap(data_folder, scheme),
                     scheme.background.substr(0, scheme.background.find('.')), device_scale, pictures);
    for (const auto& button : buttons) {
        const auto& told = button.picture;
        const auto name = std::string(told.bitmap).append(scheme.suffix);
        pictures.buttons.push_back(
            load_picture(button_bitmap(data_folder, scheme, told), name, device_scale, pictures));
    }
    return pictures;
}

} // namespace wortlex
