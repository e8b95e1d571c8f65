#include "fuzz_input.h"
#include "records/ingredients/database_file.h"

using namespace wortlex;

namespace {

template <class Record, class RecordLayout>
void check(ByteView file, const RecordLayout& format) {
    Database<Record> database;
    const auto state = read_database(file, format, database);
    promise(database.slots.size() == database_slots);
    // Of a damaged file as much as there is.
    const auto entries = database.entries().size();
    promise(entries <= database_slots && (entries == 0 || 4 + entries * RecordLayout::size <= file.size()));
    if (state != DatabaseState::loaded) return;
    const auto whole = 4 + database_slots * RecordLayout::size;
    const auto written = database_bytes(database, format);
    promise(std::equal(written.begin(), written.end(), file.begin(),
                       file.begin() + static_cast<std::ptrdiff_t>(whole)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = fuzz_bytes(data, size);
    check<WaterRecord>(file, water_layout);
    check<YeastRecord>(file, yeast_layout);
    check<MaltRecord>(file, malt_layout);
    check<ExtraRecord>(file, extra_layout);
    check<HopRecord>(file, hop_layout);
    check<StyleRecord>(file, style_layout);
    return 0;
}
