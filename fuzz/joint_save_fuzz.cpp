// The journal of files that change together.
#include "base/joint_save.h"
#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = fuzz_bytes(data, size);
    std::size_t held = 0;
    for (const auto& change : read_journal(file, "folder")) {
        promise(!change.path.empty());
        held += change.content ? change.content->size() : 0;
    }
    promise(held <= file.size());
    return 0;
}
