#include "calculators/time_sheet.h"
#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto line = read_time_line(fuzz_bytes(data, size));
    if (!line) return 0;
    promise(line->entries.size() <= most_time_entries);
    promise(line->entries.size() * sizeof(TimeEntry::moment) <= size);
    const auto file = time_line_bytes(*line);
    promise(file.size() == time_line_size);
    promise(time_line_bytes(*read_time_line(file)) == file);
    for (const auto& entry : line->entries) {
        promise(clock_text(entry.moment).size() == 8);
        promise(running_text(line->entries.front().moment, entry.moment).size() == 8);
    }
    return 0;
}
