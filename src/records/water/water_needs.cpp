#include "records/water/water_needs.h"

#include "base/files.h"

namespace wortlex {
namespace {

constexpr std::string_view usage_file = "WATER_USAGE.DAT";

} // namespace

void LoadWaterUsage(const std::string& data_folder, WaterNeeds& needs) {
    const auto file = read_file(find_data_file(data_folder, usage_file), water_needs_layout.size);
    if (file) ByteReader(*file).read(needs, water_needs_layout);
}

bool SaveWaterUsage(const std::string& data_folder, const WaterNeeds& needs) {
    return save_atomically(find_data_file(data_folder, usage_file), encoded(needs, water_needs_layout));
}

} // namespace wortlex
