// Documents and files of documents to load, cut and damage.
#pragma once

#include "documents/records/document_files.h"
#include "support/byte_probe.h"

namespace wortlex {

// A recipe and its log, so that one table of fields serves both kinds of file.
struct Loaded {
    BrewDocument document;
    SessionDocument session;
};

struct Lines {
    std::size_t hops = 0, malts = 0, extras = 0;

    std::size_t yeast_start() const { return 1157 + 635 * hops + 529 * malts + 589 * extras; }
    std::size_t recipe_size() const { return yeast_start() + 23936; }
    std::size_t session_size() const { return yeast_start() + 757 + 51540; }
};

// The tun of these settings weighs 2.5; the rest is built in.
inline Settings test_settings() {
    auto image = WriteDefaultSettings();
    image.tun_thermal_mass = 2.5F;
    image.batch_size = 11;
    image.wort_size = 12;
    return settings_from(image);
}

// Distinct bytes in all fields but those that a load changes: yields rest on a potential of nothing.
inline Bytes sample_file(const Lines& lines, std::size_t size, std::size_t mash_at) {
    auto file = distinct_bytes(size);
    poke(file, 85, static_cast<std::int32_t>(lines.hops));
    poke(file, 89, static_cast<std::int32_t>(lines.malts));
    poke(file, 93, static_cast<std::int32_t>(lines.extras));
    for (std::size_t i = 0; i < lines.malts; ++i) {
        const auto malt = 1157 + 635 * lines.hops + 529 * i;
        poke(file, malt + 167, 1.0F);
        poke(file, malt + 513, 0.0F);
        poke(file, malt + 517, -4.5F);
    }
    poke(file, mash_at + 8, 2.5F);
    poke(file, mash_at + 14867, std::uint8_t{0x21});
    return file;
}

inline Bytes sample_recipe(const Lines& lines) {
    return sample_file(lines, lines.recipe_size(), lines.yeast_start() + 9068);
}

inline Bytes sample_session(const Lines& lines) {
    return sample_file(lines, lines.session_size(), lines.yeast_start() + 757 + 31176);
}

} // namespace wortlex
