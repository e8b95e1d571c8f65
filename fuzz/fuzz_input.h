// What the fuzz targets share.
#pragma once

#include "companion/report_format.h"

#include <cstdlib>

namespace wortlex {

inline ByteView fuzz_bytes(const std::uint8_t* data, std::size_t size) {
    return std::as_bytes(std::span(data, size));
}

/// Stops the run: the input broke a promise.
inline void promise(bool kept) {
    if (!kept) std::abort();
}

inline Program default_program() {
    Program program;
    auto image = WriteDefaultSettings();
    program.settings = settings_from(image);
    return program;
}

/// Works a loaded document out under every method, base and hop formula, and reports on it.
inline void work_out(Program& program, DocumentKind kind, unsigned variant) {
    program.document.kind = kind;
    auto& settings = program.settings;
    settings.efficiency_mode = static_cast<EfficiencyMode>(variant % 3);
    settings.gravity_base = static_cast<GravityBase>(variant / 3 % 2);
    settings.HopFormula = static_cast<HopFormulaCode>(variant / 6 % 4);
    settings.yield_type = static_cast<YieldType>(variant / 24 % 4);
    settings.wort_equals_batch = variant % 2 == 0;
    const auto evaluation = evaluate(program, "input", LoadResult::loaded);
    promise(json_line(program, evaluation).ends_with('}'));
    promise(!summary(program, evaluation).empty());
}

} // namespace wortlex
