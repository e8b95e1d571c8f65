#include "jpeg/error_trap.h"

#include <jerror.h>

namespace wortlex {
namespace {

[[noreturn]] void jump_back(jpeg_common_struct* codec) {
    std::longjmp(std::data(static_cast<ErrorTrap*>(codec->client_data)->back), 1);
}

// What the library only warns of, though the picture has a hole.
bool is_damage(int code) {
    switch (code) {
    case JWRN_ARITH_BAD_CODE:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_JPEG_EOF:
    case JWRN_MUST_RESYNC:
        return true;
    default:
        return false;
    }
}

// Negative levels are warnings, the others only news.
void hear(jpeg_common_struct* codec, int level) {
    if (level < 0 && is_damage(codec->err->msg_code)) jump_back(codec);
}

void say_nothing(jpeg_common_struct*) {}

} // namespace

void set_trap(jpeg_common_struct& codec, ErrorTrap& trap) {
    codec.err = jpeg_std_error(&trap.library);
    codec.client_data = &trap;
    trap.library.error_exit = jump_back;
    trap.library.emit_message = hear;
    trap.library.output_message = say_nothing;
}

} // namespace wortlex
