#include "base/files.h"
#include "desktop/artwork.h"
#include "windows/main/picture_board.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace wortlex {
namespace {

const auto sources = QStringLiteral(":/artwork");

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

QPixmap sharpest(const QImage& file, std::string_view name, double device_scale) {
    if (device_scale <= 1 || !is_our_own(file, draw_artwork(sources, name, 1)))
        return QPixmap::fromImage(file);
    auto drawn = QPixmap::fromImage(draw_artwork(sources, name, device_scale));
    drawn.setDevicePixelRatio(device_scale);
    return drawn;
}

QPixmap load_picture(const std::string& path, std::string_view name, double device_scale,
                     ArtPictures& pictures) {
    const auto file = read_file(path);
    const auto fault = bitmap_fault(file ? std::optional(ByteView(*file)) : std::nullopt);
    if (!fault.empty()) {
        pictures.faults.insert(fault);
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(file->size()), Qt::Uninitialized);
    std::memcpy(bytes.data(), file->data(), file->size());
    const auto image = QImage::fromData(bytes, "BMP");
    if (image.isNull()) {
        pictures.undrawable.insert(undrawable_bitmap);
        return {};
    }
    return sharpest(image, name, device_scale);
}

} // namespace

QPixmap about_picture(const std::string& data_folder, double device_scale) {
    constexpr std::string_view name = "kettle";
    ArtPictures only;
    auto picture = load_picture(about_bitmap(data_folder), name, device_scale, only);
    if (!picture.isNull()) return picture;
    picture = QPixmap::fromImage(draw_artwork(sources, name, device_scale));
    picture.setDevicePixelRatio(device_scale);
    return picture;
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
