// What the two state files of calculators have in common.
#pragma once

#include "base/layout.h"

#include <cmath>

namespace wortlex {

/// Reads a calculator's numbers over `record`; a short file leaves the rest. False, and nothing changed, if
/// one of those that `numbers` lists is none.
template <class Record, class RecordLayout, class Numbers>
bool read_state(ByteView file, Record& record, const RecordLayout& format, Numbers numbers) {
    auto read = record;
    ByteReader(file).read(read, format);
    for (const float number : numbers(read))
        if (!std::isfinite(number)) return false;
    record = read;
    return true;
}

} // namespace wortlex
