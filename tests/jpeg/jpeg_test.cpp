#include "base/files.h"
#include "jpeg/jpeg_bytes.h"
#include "jpeg/jpeg_pictures.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

// Colours that run slowly, so that little of them is lost.
Pixels slope(int width, int height) {
    Pixels pixels{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (const int channel : {x * 255 / width, y * 255 / height, 255 - x * 255 / width})
                pixels.rgb.push_back(static_cast<std::uint8_t>(channel));
    return pixels;
}

std::size_t place_of(const Bytes& file, std::uint8_t marker) {
    std::size_t place = 0;
    while (file.at(place) != std::byte{0xFF} || file.at(place + 1) != std::byte{marker}) ++place;
    return place;
}

void cut(Bytes& file, std::size_t from, std::ptrdiff_t count) {
    const auto place = file.begin() + static_cast<std::ptrdiff_t>(from);
    file.erase(place, place + count);
}

// The header names one channel only; of the one block of each channel, brightness comes first.
Bytes grey_picture() {
    auto file = *encode_jpeg(slope(8, 8), 90);
    const auto frame = place_of(file, 0xC0);
    file[frame + 3] = std::byte{8 + 3};
    file[frame + 9] = std::byte{1};
    cut(file, frame + 13, 6);
    const auto scan = place_of(file, 0xDA);
    file[scan + 3] = std::byte{6 + 2};
    file[scan + 4] = std::byte{1};
    cut(file, scan + 7, 4);
    return file;
}

TEST(JpegPictures, KeepsColoursInTheirPlace) {
    const TemporaryFolder folder;
    JpegPictures pictures;
    const auto pixels = slope(90, 40);
    ASSERT_EQ(pictures.save(folder / "a.jpg", pixels, 100), PictureSave::saved);
    const auto read = pictures.load(folder / "a.jpg");
    ASSERT_TRUE(read && read->rgb.size() == pixels.rgb.size());
    EXPECT_EQ(std::pair(read->width, read->height), std::pair(90, 40));
    for (std::size_t i = 0; i < pixels.rgb.size(); ++i)
        ASSERT_NEAR(read->rgb[i], pixels.rgb[i], 4) << "byte " << i;
    ASSERT_EQ(pictures.save(folder / "b.jpg", pixels, 20), PictureSave::saved);
    EXPECT_LT(read_file(folder / "b.jpg")->size(), read_file(folder / "a.jpg")->size());
}

TEST(JpegPictures, LeavesTheOldFileWhereThereIsNoPictureToSave) {
    const TemporaryFolder folder;
    JpegPictures pictures;
    ASSERT_EQ(pictures.save(folder / "a.jpg", slope(9, 9), 80), PictureSave::saved);
    const auto before = read_file(folder / "a.jpg");
    for (const auto& bad : {Pixels{}, Pixels{-9, -9, slope(9, 9).rgb}, Pixels{9, 10, slope(9, 9).rgb},
                            Pixels{65501, 1, std::vector<std::uint8_t>(65501 * 3)}})
        EXPECT_EQ(pictures.save(folder / "a.jpg", bad, 80), PictureSave::not_encoded) << bad.width;
    EXPECT_EQ(read_file(folder / "a.jpg"), before);
    EXPECT_EQ(pictures.save(folder / "absent/a.jpg", slope(9, 9), 80), PictureSave::not_written);
    EXPECT_FALSE(pictures.load(folder / "absent.jpg"));
}

TEST(DecodeJpeg, RefusesFilesThatEndEarlyAndThoseThatAreNone) {
    const auto file = *encode_jpeg(slope(20, 20), 80);
    ASSERT_TRUE(decode_jpeg(file));
    for (std::size_t size = 0; size < file.size(); ++size)
        ASSERT_FALSE(decode_jpeg(ByteView(file).first(size))) << "cut at " << size;
    EXPECT_FALSE(decode_jpeg(distinct_bytes(5000)));
    EXPECT_FALSE(decode_jpeg(grey_picture())) << "one channel";
}

TEST(DecodeJpeg, BelievesNoHeaderThatClaimsMoreThanMemoryHolds) {
    auto file = *encode_jpeg(slope(8, 8), 80);
    const auto size = place_of(file, 0xC0) + 5;
    for (const auto high : {0xEA, 0xFF}) { // 60,000 and beyond, height before width
        poke(file, size,
             std::array<std::uint8_t, 4>{static_cast<std::uint8_t>(high), 0x60,
                                         static_cast<std::uint8_t>(high), 0x60});
        EXPECT_FALSE(decode_jpeg(file));
    }
}

} // namespace
} // namespace wortlex
