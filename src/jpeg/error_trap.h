// The way back from an error of the JPEG library, which it reports by a call that must not return.
#pragma once

#include <csetjmp>
#include <cstdio> // the library's header uses it without including it
#include <iterator>

#include <jpeglib.h>

namespace wortlex {

struct ErrorTrap {
    jpeg_error_mgr library{};
    std::jmp_buf back{};
};

/// Makes `trap` the one that hears of a codec's errors, before the codec is created.
void set_trap(jpeg_common_struct& codec, ErrorTrap& trap);

/// Runs `step` on a codec with a member `trap`; false if it ended in an error. The jump back passes over the
/// frames of `step` without destroying what lives there: it must hold nothing with a destructor when it calls
/// the library.
template <class Codec>
bool guarded(Codec& codec, void (*step)(Codec&)) {
    if (setjmp(std::data(codec.trap.back)) != 0) return false;
    step(codec);
    return true;
}

} // namespace wortlex
