// Documents and files of documents to load, cut and damage.
#pragma once

#include "records/documents/document_files.h"
#include "support/byte_probe.h"

namespace wortlex {

// The tun of these settings weighs 2.5; the rest is built in.
inline Settings test_settings() {
    auto image = WriteDefaultSettings();
    image.tun_thermal_mass = 2.5F;
    image.batch_size = 11;
    image.wort_size = 12;
    return settings_from(image);
}

// A recipe and its log, so that one test serves both kinds of file.
struct Loaded {
    bool is_session = false;
    BrewDocument document{};
    SessionDocument session{};

    LoadResult read(ByteView file) {
        return is_session ? read_session(file, document, session, test_settings())
                          : read_recipe(file, document, test_settings());
    }
    LoadResult load(const std::string& path) {
        return is_session ? load_session(path, document, session, test_settings())
                          : load_recipe(path, document, test_settings());
    }
    Bytes bytes() const { return is_session ? session_bytes(document, session) : recipe_bytes(document); }
    bool operator==(const Loaded&) const = default;
};

struct Lines {
    std::size_t hops = 0, malts = 0, extras = 0;

    std::size_t yeast_start() const { return 1157 + 635 * hops + 529 * malts + 589 * extras; }
};

// Distinct bytes in all fields but those that a load changes: yields rest on a potential of nothing.
inline Bytes sample_file(const Lines& lines, bool is_session) {
    const auto yeast = lines.yeast_start(), mash = yeast + (is_session ? 757 + 31176 : 9068);
    auto file = distinct_bytes(yeast + (is_session ? 757 + 51540 : 23936));
    poke(file, 85,
         std::array{static_cast<std::int32_t>(lines.hops), static_cast<std::int32_t>(lines.malts),
                    static_cast<std::int32_t>(lines.extras)});
    for (std::size_t i = 0; i < lines.malts; ++i) {
        const auto malt = 1157 + 635 * lines.hops + 529 * i;
        poke(file, malt + 167, 1.0F);
        poke(file, malt + 513, std::array{0.0F, -4.5F});
    }
    poke(file, mash + 8, 2.5F);
    poke(file, mash + 14867, std::uint8_t{0x21});
    return file;
}

} // namespace wortlex
