#include "fuzz_input.h"
#include "records/mash/schedule_file.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto program = default_program();
    MashDesign design;
    const auto load = read_mash_schedule(fuzz_bytes(data, size), design, program.settings);
    if (load == ScheduleLoad::damaged) {
        promise(mash_schedule_bytes(design) == mash_schedule_bytes({}));
        return 0;
    }
    promise(design.mash.step_count >= 0 && design.mash.step_count <= 50);
    promise((load == ScheduleLoad::loaded) == (size >= 14875));
    const auto file = mash_schedule_bytes(design);
    promise(file.size() == 14875);
    MashDesign again;
    read_mash_schedule(file, again, program.settings);
    promise(mash_schedule_bytes(again) == file);
    RecalculateSteps(design.mash, design.dough_in_water, design.grain_weight, program.settings);
    return 0;
}
