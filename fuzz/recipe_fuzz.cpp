#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto program = default_program();
    const auto before = program.document.recipe;
    const auto load = read_recipe(fuzz_bytes(data, size), program.document.recipe, program.settings);
    if (!is_sound(load)) {
        promise(program.document.recipe == before);
        return 0;
    }
    const auto& document = program.document.recipe;
    const auto file = recipe_bytes(document);
    promise(file.size() ==
            25093 + 635 * document.hops.size() + 529 * document.malts.size() + 589 * document.extras.size());
    promise(load == LoadResult::incomplete || file.size() <= size);

    // What was written comes back, but for the yields, which every load re-bases.
    BrewDocument again;
    promise(read_recipe(file, again, program.settings) == LoadResult::loaded);
    again.malts = document.malts;
    promise(recipe_bytes(again) == file);

    work_out(program, DocumentKind::recipe, size == 0 ? 0 : data[size / 2]);
    return 0;
}
