#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto program = default_program();
    const auto table = read_color_table(fuzz_bytes(data, size));
    const auto file = color_table_bytes(table);
    promise(file.size() == 13965);
    promise(color_table_bytes(read_color_table(file)) == file);
    for (const auto mode : {AlphaMode::not_used, AlphaMode::global_value, AlphaMode::from_table}) {
        program.settings.alpha_mode = mode;
        for (const auto& row : table.rows)
            promise(swatch_colour(table, row.srm, program.settings) <= 0xFFFFFF);
    }
    return 0;
}
