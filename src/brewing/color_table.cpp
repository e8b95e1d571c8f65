#include "base/files.h"
#include "base/number.h"
#include "brewing/beer_colour.h"

#include <cmath>
#include <limits>
#include <random>

namespace wortlex {
namespace {

constexpr auto row_layout = layout<ColorRow, 33>(
    at(0, &ColorRow::srm), at(4, &ColorRow::red), at(8, &ColorRow::filler_8), at(12, &ColorRow::green),
    at(16, &ColorRow::filler_16), at(17, &ColorRow::blue), at(21, &ColorRow::filler_21),
    at(25, &ColorRow::alpha), at(29, &ColorRow::filler_29));

constexpr auto header_layout = layout<ColorTable, 765>(
    at(0, &ColorTable::author), at(255, &ColorTable::version), at(510, &ColorTable::third_text));

constexpr std::size_t channels = 4;

// Measured colours; the table runs through every one of them.
struct Anchor {
    double srm;
    std::array<double, channels> rgba;
};

constexpr std::array<Anchor, 17> anchors = {{{0.1, {248, 248, 230, 33}},
                                             {0.2, {248, 248, 220, 36}},
                                             {0.3, {247, 247, 199, 39}},
                                             {1.0, {243, 249, 147, 60}},
                                             {2.0, {248, 247, 83, 90}},
                                             {3.0, {246, 245, 19, 127}},
                                             {5.0, {224, 208, 27, 165}},
                                             {6.0, {213, 188, 38, 170}},
                                             {8.0, {191, 146, 59, 180}},
                                             {10.0, {191, 129, 58, 205}},
                                             {12.0, {191, 113, 56, 210}},
                                             {15.0, {165, 89, 54, 228}},
                                             {20.0, {93, 52, 26, 242}},
                                             {25.0, {38, 23, 22, 249}},
                                             {30.0, {16, 11, 10, 251}},
                                             {35.0, {8, 7, 7, 253}},
                                             {40.0, {3, 4, 3, 255}}}};

double gap(std::size_t i) {
    return anchors[i + 1].srm - anchors[i].srm;
}

double slope(std::size_t i, std::size_t channel) {
    return (anchors[i + 1].rgba[channel] - anchors[i].rgba[channel]) / gap(i);
}

// The tangent at an anchor: the weighted harmonic mean of the slopes beside it, and flat where the curve
// turns (Fritsch and Butland, 1984). So the curve never overshoots an anchor.
double tangent(std::size_t i, std::size_t channel) {
    if (i == 0) return slope(0, channel);
    if (i == anchors.size() - 1) return slope(i - 1, channel);
    const double before = slope(i - 1, channel), after = slope(i, channel);
    if (before * after <= 0) return 0;
    const double w1 = 2 * gap(i) + gap(i - 1), w2 = gap(i) + 2 * gap(i - 1);
    return (w1 + w2) / (w1 / before + w2 / after);
}

double curve(std::size_t i, std::size_t channel, double srm) {
    const double h = gap(i), t = (srm - anchors[i].srm) / h, u = 1 - t;
    return u * u * (1 + 2 * t) * anchors[i].rgba[channel] +
           t * t * (3 - 2 * t) * anchors[i + 1].rgba[channel] +
           h * t * u * (u * tangent(i, channel) - t * tangent(i + 1, channel));
}

std::int32_t channel_at(double srm, std::size_t channel) {
    std::size_t i = 0;
    while (i + 2 < anchors.size() && srm > anchors[i + 1].srm) ++i;
    return truncate(curve(i, channel, srm) + 0.5);
}

void fill_with_random(ColorRow& row, std::minstd_rand& random) {
    const auto next = [&random] { return static_cast<std::int32_t>(random()); };
    row.filler_8 = next();
    row.filler_16 = 255;
    row.filler_21 = static_cast<float>(next());
    row.filler_29 = next();
}

} // namespace

ColorTable built_in_color_table() {
    ColorTable table{Text<255>("Wortlex"), Text<255>("1.0"), {}, {}};
    for (std::size_t i = 0; i < color_rows; ++i) {
        const double srm = static_cast<double>(i + 1) / 10;
        auto& row = table.rows[i];
        row.srm = narrow(srm);
        row.red = channel_at(srm, 0);
        row.green = channel_at(srm, 1);
        row.blue = channel_at(srm, 2);
        row.alpha = channel_at(srm, 3);
    }
    return table;
}

ColorTable read_color_table(ByteView file) {
    ColorTable table;
    ByteReader reader(file);
    reader.read(table, header_layout);
    for (auto& row : table.rows) {
        if (reader.rest().size() < row_layout.size) {
            row = {};
            row.srm = narrow(top_srm);
        } else {
            reader.read(row, row_layout);
        }
    }
    return table;
}

Bytes color_table_bytes(const ColorTable& table) {
    auto file = encoded(table, header_layout);
    for (const auto& row : table.rows) append(file, row, row_layout);
    return file;
}

bool LoadColorTable(const std::string& path, ColorTable& table) {
    const auto file = read_file(path, header_layout.size + color_rows * row_layout.size);
    if (!file) return false;
    table = read_color_table(*file);
    return true;
}

bool SaveColorTable(const std::string& path, ColorTable& table, std::int64_t seed) {
    std::minstd_rand random(static_cast<std::minstd_rand::result_type>(seed));
    for (auto& row : table.rows) fill_with_random(row, random);
    return save_atomically(path, color_table_bytes(table));
}

} // namespace wortlex
