// A JPEG file. Where the first byte is odd, it is one of ours of the size that the next two tell, and the
// rest is damage: places of two bytes and the byte that stands there.
#include "fuzz_input.h"
#include "jpeg/jpeg_bytes.h"

using namespace wortlex;

namespace {

constexpr std::size_t head_size = 3;

std::size_t number(std::byte byte) {
    return std::to_integer<std::size_t>(byte);
}

Bytes picture_of(ByteView input) {
    Pixels pixels{
        static_cast<int>(number(input[1]) % 40 + 1), static_cast<int>(number(input[2]) % 40 + 1), {}};
    pixels.rgb.resize(static_cast<std::size_t>(pixels.width * pixels.height * 3));
    for (std::size_t i = 0; i < pixels.rgb.size(); ++i) pixels.rgb[i] = static_cast<std::uint8_t>(i * i / 7);
    auto file = encode_jpeg(pixels, 90);
    promise(file && decode_jpeg(*file).has_value());
    return *file;
}

Bytes damaged(Bytes file, ByteView damage) {
    for (; damage.size() >= 3; damage = damage.subspan(3)) {
        const auto place = number(damage[0]) * 256 + number(damage[1]);
        file[place % file.size()] = damage[2];
    }
    return file;
}

bool is_whole(const Pixels& pixels) {
    const auto count = std::int64_t{pixels.width} * pixels.height;
    return count > 0 && count <= most_pixels && pixels.rgb.size() == static_cast<std::size_t>(count * 3);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = fuzz_bytes(data, size);
    if (size < head_size) return 0;
    const bool is_ours = number(input[0]) % 2 != 0;
    const auto file = is_ours ? damaged(picture_of(input), input.subspan(head_size))
                              : Bytes(input.begin() + 1, input.end());
    const auto pixels = decode_jpeg(file);
    promise(!pixels || is_whole(*pixels));
    return 0;
}
