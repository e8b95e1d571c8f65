#include "jpeg/error_trap.h"
#include "jpeg/jpeg_bytes.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace wortlex {
namespace {

struct Encoder {
    explicit Encoder(const Pixels& picture)
        : pixels(picture), row(static_cast<std::size_t>(picture.width) * channels) {}
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
    ~Encoder() {
        jpeg_destroy_compress(&info);
        const std::unique_ptr<unsigned char, void (*)(void*)> freed(file, std::free);
    }

    const Pixels& pixels;
    std::vector<JSAMPLE> row; // a copy: the library asks for one that it could write to
    int quality = 0;
    ErrorTrap trap;
    jpeg_compress_struct info{};
    unsigned char* file = nullptr; // the library's, from `malloc`
    unsigned long size = 0;
};

jpeg_common_struct& common(Encoder& encoder) {
    return *static_cast<jpeg_common_struct*>(static_cast<void*>(&encoder.info));
}

void choose_parameters(Encoder& encoder) {
    auto& info = encoder.info;
    info.image_width = static_cast<JDIMENSION>(encoder.pixels.width);
    info.image_height = static_cast<JDIMENSION>(encoder.pixels.height);
    info.input_components = channels;
    info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, encoder.quality, TRUE);
    info.comp_info[0].h_samp_factor = 1; // brightness as fine as colour, and so colour as fine as brightness
    info.comp_info[0].v_samp_factor = 1;
}

void write_rows(Encoder& encoder) {
    auto& info = encoder.info;
    jpeg_create_compress(&info);
    jpeg_mem_dest(&info, &encoder.file, &encoder.size);
    choose_parameters(encoder);
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        const auto* const from = &encoder.pixels.rgb[info.next_scanline * encoder.row.size()];
        std::copy_n(from, encoder.row.size(), encoder.row.data());
        JSAMPROW row = encoder.row.data();
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
}

bool is_whole(const Pixels& pixels) {
    const auto fits = [](int side) { return side > 0 && side <= JPEG_MAX_DIMENSION; };
    return fits(pixels.width) && fits(pixels.height) &&
           pixels.rgb.size() ==
               static_cast<std::size_t>(pixels.width) * static_cast<std::size_t>(pixels.height) * channels;
}

} // namespace

std::optional<Bytes> encode_jpeg(const Pixels& pixels, int quality) {
    if (!is_whole(pixels)) return std::nullopt;
    Encoder encoder(pixels);
    encoder.quality = quality;
    set_trap(common(encoder), encoder.trap);
    if (!guarded(encoder, write_rows)) {
        encoder.file = nullptr; // the library may have freed it as it grew: rather lost than freed twice
        return std::nullopt;
    }
    const auto bytes = std::as_bytes(std::span(encoder.file, encoder.size));
    return Bytes(bytes.begin(), bytes.end());
}

} // namespace wortlex
