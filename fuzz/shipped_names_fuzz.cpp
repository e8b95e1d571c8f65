#include "databases/shipped.h"
#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto names = read_shipped_names(fuzz_bytes(data, size));
    if (names) promise(read_shipped_names(shipped_names_bytes(*names)) == names);
    return 0;
}
