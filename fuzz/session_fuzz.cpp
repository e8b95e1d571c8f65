#include "fuzz_input.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto program = default_program();
    auto& document = program.document.recipe;
    const auto load =
        read_session(fuzz_bytes(data, size), document, program.document.session, program.settings);
    if (!is_sound(load)) return 0;
    const auto file = session_bytes(document, program.document.session);
    promise(file.size() ==
            53454 + 635 * document.hops.size() + 529 * document.malts.size() + 589 * document.extras.size());
    promise(load == LoadResult::incomplete || file.size() <= size);

    BrewDocument again;
    SessionDocument session;
    promise(read_session(file, again, session, program.settings) == LoadResult::loaded);
    again.malts = document.malts;
    promise(session_bytes(again, session) == file);

    work_out(program, DocumentKind::session, size == 0 ? 0 : data[size / 2]);
    return 0;
}
