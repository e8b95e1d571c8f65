// The two forms in which the console companion reports on a document.
#pragma once

#include "companion/evaluation.h"
#include "documents/figure_catalogue.h"

namespace wortlex {

/// What the figures of the live document are read from.
inline FigureSource source_of(const Program& program) {
    return {program.document.recipe, program.document.figures, program.settings};
}

/// One object on one line, without the line's end.
std::string json_line(const Program& program, const Evaluation& evaluation);

/// A page to read, in the units of the settings.
std::string summary(const Program& program, const Evaluation& evaluation);

} // namespace wortlex
