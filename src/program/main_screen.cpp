#include "program/main_screen.h"

#include "base/files.h"

#include <algorithm>
#include <cstdlib>

namespace wortlex {
namespace {

std::string art_file(const std::string& data_folder, const std::string& name) {
    return find_data_file(data_folder + "art/", name);
}

constexpr std::size_t file_header = 14;
constexpr std::uint32_t core_header = 12, smallest_extended_header = 40;
constexpr std::int64_t most_pixels = 60'000'000;

// The parts of both headers that tell how much must follow.
struct BitmapHeaders {
    std::size_t pixels_at = 0;
    std::int64_t width = 0;
    std::int64_t height = 0; ///< negative: rows from the top
    int bits = 0;            ///< a pixel
    std::uint32_t compression = 0;

    std::int64_t rows() const { return std::abs(height); }
    std::size_t row_bytes() const { return static_cast<std::size_t>((width * bits + 31) / 32 * 4); }
    // Of compressed rows nobody knows the length.
    bool has_plain_rows() const { return compression == 0 || compression == 3; }
};

template <class Whole>
Whole number_at(ByteView file, std::size_t offset) {
    return get_little_endian<Whole>(file.data() + offset);
}

bool is_known_depth(int bits) {
    constexpr std::array depths = {1, 4, 8, 16, 24, 32};
    return std::find(depths.begin(), depths.end(), bits) != depths.end();
}

void read_core(ByteView file, BitmapHeaders& headers) {
    headers.width = number_at<std::uint16_t>(file, 18);
    headers.height = number_at<std::uint16_t>(file, 20);
    headers.bits = number_at<std::uint16_t>(file, 24);
}

void read_extended(ByteView file, BitmapHeaders& headers) {
    headers.width = number_at<std::int32_t>(file, 18);
    headers.height = number_at<std::int32_t>(file, 22);
    headers.bits = number_at<std::uint16_t>(file, 28);
    headers.compression = number_at<std::uint32_t>(file, 30);
}

// Of a file that holds its first 14 bytes; nothing if what follows makes no picture.
std::optional<BitmapHeaders> read_headers(ByteView file) {
    if (file.size() < file_header + sizeof(std::uint32_t)) return std::nullopt;
    const auto length = number_at<std::uint32_t>(file, file_header);
    const bool is_core = length == core_header;
    if (!is_core && length < smallest_extended_header) return std::nullopt;
    if (file.size() - file_header < length) return std::nullopt;
    BitmapHeaders headers{.pixels_at = number_at<std::uint32_t>(file, 10)};
    is_core ? read_core(file, headers) : read_extended(file, headers);
    const bool is_picture = headers.width > 0 && headers.height != 0 && is_known_depth(headers.bits) &&
                            headers.pixels_at >= file_header + length;
    return is_picture ? std::optional(headers) : std::nullopt;
}

bool holds_its_pixels(ByteView file, const BitmapHeaders& headers) {
    if (headers.pixels_at >= file.size()) return false;
    const auto rest = file.size() - headers.pixels_at;
    return !headers.has_plain_rows() ||
           headers.row_bytes() * static_cast<std::size_t>(headers.rows()) <= rest;
}

} // namespace

const ArtScheme& art_scheme(std::uint8_t number) {
    return art_schemes[number < art_schemes.size() ? number : 0];
}

Point main_screen_origin(int width, int height) {
    const auto margin = [](int whole, int frame) { return (std::max(whole, frame) - frame) / 2; };
    return {margin(width, main_screen_frame.width), margin(height, main_screen_frame.height)};
}

const MainScreenButton* button_at(std::span<const MainScreenButton> buttons, Point point, int width,
                                  int height) {
    const auto origin = main_screen_origin(width, height);
    const auto covers = [](int start, int place) { return place >= start && place < start + button_side; };
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&](const auto& button) {
        const auto& at = button.picture.at;
        return covers(origin.x + at.x, point.x) && covers(origin.y + at.y, point.y);
    });
    return found == buttons.end() ? nullptr : &*found;
}

std::string button_bitmap(const std::string& data_folder, const ArtScheme& scheme,
                          const ButtonPicture& button) {
    return art_file(data_folder, std::string(button.bitmap) + std::string(scheme.suffix) + ".bmp");
}

std::string background_bitmap(const std::string& data_folder, const ArtScheme& scheme) {
    return art_file(data_folder, std::string(scheme.background));
}

std::string about_bitmap(const std::string& data_folder) {
    return art_file(data_folder, "kettle.bmp");
}

std::string_view bitmap_fault(std::optional<ByteView> file) {
    if (!file) return "Error Reading FIle";
    if (file->size() < file_header || (*file)[0] != std::byte{'B'} || (*file)[1] != std::byte{'M'})
        return "Error Reading FIle Header";
    const auto headers = read_headers(*file);
    if (!headers) return "Could not read info";
    if (headers->width > most_pixels / headers->rows()) return "Error Allocating Memory";
    return holds_its_pixels(*file, *headers) ? "" : "1Error reading the file";
}

} // namespace wortlex
