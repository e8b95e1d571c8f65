#include "jpeg/jpeg_pictures.h"

#include "base/files.h"
#include "jpeg/jpeg_bytes.h"

namespace wortlex {

std::optional<Pixels> JpegPictures::load(const std::string& path) {
    const auto file = read_file(path);
    return file ? decode_jpeg(*file) : std::nullopt;
}

PictureSave JpegPictures::save(const std::string& path, const Pixels& pixels, int quality) {
    const auto file = encode_jpeg(pixels, quality);
    if (!file) return PictureSave::not_encoded;
    return save_atomically(path, *file) ? PictureSave::saved : PictureSave::not_written;
}

} // namespace wortlex
