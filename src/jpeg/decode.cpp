#include "jpeg/error_trap.h"
#include "jpeg/jpeg_bytes.h"

#include <jerror.h>

namespace wortlex {
namespace {

constexpr int most_scans = 200; // a progressive picture has about ten; each costs time

struct Decoder {
    explicit Decoder(ByteView bytes) : file(bytes) {}
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() { jpeg_destroy_decompress(&info); } // does nothing where it was not created

    ByteView file;
    ErrorTrap trap;
    jpeg_progress_mgr progress{};
    jpeg_decompress_struct info{};
    Pixels pixels;
};

jpeg_common_struct& common(Decoder& decoder) {
    return *static_cast<jpeg_common_struct*>(static_cast<void*>(&decoder.info));
}

void count_scans(jpeg_common_struct* codec) {
    const auto* const info = static_cast<jpeg_decompress_struct*>(static_cast<void*>(codec));
    if (info->input_scan_number > most_scans) ERREXIT(codec, JERR_BAD_PROGRESSION);
}

void read_header(Decoder& decoder) {
    auto& info = decoder.info;
    jpeg_create_decompress(&info);
    decoder.progress.progress_monitor = count_scans;
    info.progress = &decoder.progress;
    jpeg_mem_src(&info, static_cast<const unsigned char*>(static_cast<const void*>(decoder.file.data())),
                 static_cast<unsigned long>(decoder.file.size()));
    jpeg_read_header(&info, TRUE);
}

bool is_acceptable(const jpeg_decompress_struct& info) {
    return info.num_components == channels &&
           std::int64_t{info.image_width} * info.image_height <= most_pixels;
}

void read_rows(Decoder& decoder) {
    auto& info = decoder.info;
    info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&info);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = &decoder.pixels.rgb[std::size_t{info.output_scanline} * info.image_width * channels];
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
}

} // namespace

std::optional<Pixels> decode_jpeg(ByteView file) {
    Decoder decoder(file);
    set_trap(common(decoder), decoder.trap);
    if (!guarded(decoder, read_header) || !is_acceptable(decoder.info)) return std::nullopt;
    auto& pixels = decoder.pixels;
    pixels.width = static_cast<int>(decoder.info.image_width);
    pixels.height = static_cast<int>(decoder.info.image_height);
    pixels.rgb.resize(std::size_t{decoder.info.image_width} * decoder.info.image_height * channels);
    if (!guarded(decoder, read_rows)) return std::nullopt;
    return std::move(pixels);
}

} // namespace wortlex
