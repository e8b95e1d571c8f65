#include "records/documents/document_parts.h"

#include "base/files.h"
#include "base/number.h"
#include "measures/gravity.h"
#include "records/documents/document_files.h"

#include <cmath>

namespace wortlex {
namespace {

// The counts are those of the lists; only the file holds them beside.
struct ListCounts {
    std::int32_t hops = 0;
    std::int32_t malts = 0;
    std::int32_t extras = 0;
};

constexpr auto title_layout = layout<BrewDocument, 85>(at(0, &BrewDocument::title));

constexpr auto counts_layout =
    layout<ListCounts, 12>(at(0, &ListCounts::hops), at(4, &ListCounts::malts), at(8, &ListCounts::extras));

constexpr auto figures_layout = layout<BrewDocument, 1060>(
    at(0, &BrewDocument::wort_size), at(4, &BrewDocument::batch_size), at(8, &BrewDocument::og_points),
    at(12, &BrewDocument::total_ibu), at(16, &BrewDocument::efficiency), at(20, &BrewDocument::boil_minutes),
    at(24, &BrewDocument::target_ibu), at(28, &BrewDocument::recipe_kind),
    at(29, &BrewDocument::style, style_layout));

constexpr auto choices_layout = layout<BrewDocument, 757>(
    at(0, &BrewDocument::yeast, yeast_use_layout), at(473, &BrewDocument::water, water_layout),
    at(695, &BrewDocument::simple_mash, simple_mash_layout));

constexpr auto texts_layout = layout<BrewDocument, 8311>(
    at(0, &BrewDocument::notes), at(4028, &BrewDocument::awards), at(8056, &BrewDocument::reserved_text));

constexpr auto schedule_layout = layout<BrewDocument, 14868>(at(0, &BrewDocument::mash, complex_mash_layout),
                                                             at(14867, &BrewDocument::mash_flags));

template <class Line, class LineLayout>
void read_lines(ByteReader& reader, std::int32_t count, std::vector<Line>& lines, const LineLayout& format) {
    lines.resize(static_cast<std::size_t>(count));
    for (auto& line : lines) reader.read(line, format);
}

template <class Line, class LineLayout>
void append_lines(Bytes& file, const std::vector<Line>& lines, const LineLayout& format) {
    for (const auto& line : lines) append(file, line, format);
}

bool fits(std::int32_t count, std::size_t line_size, std::size_t file_size) {
    return count >= 0 && static_cast<std::size_t>(count) <= file_size / line_size;
}

bool fits(const ListCounts& counts, std::size_t file_size) {
    return fits(counts.hops, hop_use_layout.size, file_size) &&
           fits(counts.malts, malt_use_layout.size, file_size) &&
           fits(counts.extras, extra_use_layout.size, file_size);
}

// Re-bases the yields on the potential and keeps the old difference. A line without a coarse yield is
// older than these fields.
void update_yields(MaltRecord& malt) {
    if (malt.coarse_yield != 0) {
        const float fine = yield_from_sg(malt.potential);
        const double difference = std::abs(double{malt.fine_yield} - malt.coarse_yield);
        malt.coarse_yield = narrow(fine - difference);
        malt.fine_yield = fine;
    } else {
        malt.moisture = 4.0F;
        const double fine = narrow((malt.potential - 1.0) * 1000) / sucrose_points_default * 100;
        malt.fine_yield = narrow(fine);
        malt.coarse_yield = narrow(fine - 1.5); // of the yield as it was before it was stored
    }
}

std::uint8_t packed_flags(const BrewDocument& document) {
    return static_cast<std::uint8_t>((document.file_efficiency_mode << 4 & 0xF0) |
                                     (document.mash_flags & 0x0F));
}

} // namespace

bool read_opening(ByteReader& reader, BrewDocument& document) {
    const auto file_size = reader.rest().size();
    ListCounts counts;
    reader.read(document, title_layout);
    reader.read(counts, counts_layout);
    if (file_size == 0 || !fits(counts, file_size)) return false;
    reader.read(document, figures_layout);
    read_lines(reader, counts.hops, document.hops, hop_use_layout);
    read_lines(reader, counts.malts, document.malts, malt_use_layout);
    read_lines(reader, counts.extras, document.extras, extra_use_layout);
    reader.read(document, choices_layout);
    return true;
}

LoadResult end_of(const ByteReader& reader) {
    if (!reader.complete()) return LoadResult::incomplete;
    return reader.rest().empty() ? LoadResult::loaded : LoadResult::longer;
}

void append_opening(Bytes& file, const BrewDocument& document) {
    const ListCounts counts{static_cast<std::int32_t>(document.hops.size()),
                            static_cast<std::int32_t>(document.malts.size()),
                            static_cast<std::int32_t>(document.extras.size())};
    append(file, document, title_layout);
    append(file, counts, counts_layout);
    append(file, document, figures_layout);
    append_lines(file, document.hops, hop_use_layout);
    append_lines(file, document.malts, malt_use_layout);
    append_lines(file, document.extras, extra_use_layout);
    append(file, document, choices_layout);
}

void read_texts(ByteReader& reader, BrewDocument& document) {
    reader.read(document, texts_layout);
}

void append_texts(Bytes& file, const BrewDocument& document) {
    append(file, document, texts_layout);
}

void read_schedule(ByteReader& reader, BrewDocument& document) {
    reader.read(document, schedule_layout);
}

void append_schedule(Bytes& file, const BrewDocument& document) {
    append(file, document, schedule_layout);
    file.back() = static_cast<std::byte>(packed_flags(document));
}

void bring_up_to_date(BrewDocument& document) {
    if (document.simple_mash.mash_kind == MashKind::none)
        document.simple_mash.mash_kind = MashKind::single_step;
    document.file_efficiency_mode = document.mash_flags >> 4;
    document.mash_flags &= 0x0F;
    for (auto& line : document.malts) update_yields(line.record);
}

bool save_document(const std::string& path, const Bytes& file, BrewDocument& document, Prompts& prompts) {
    if (!save_or_tell(path, file, prompts)) return false;
    pack_flags(document);
    return true;
}

void pack_flags(BrewDocument& document) {
    document.mash_flags = packed_flags(document);
}

} // namespace wortlex
