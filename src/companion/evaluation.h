// A document file worked out as its window does on opening it.
#pragma once

#include "program/program.h"

namespace wortlex {

struct Evaluation {
    std::string file;
    LoadResult load = LoadResult::not_found;
    PreBoil pre_boil;
    FermentationFigures fermentation; ///< of a session, as the next
    EfficiencyFigures efficiency;
};

/// Works the live document out.
Evaluation evaluate(Program& program, const std::string& path, LoadResult load);

} // namespace wortlex
