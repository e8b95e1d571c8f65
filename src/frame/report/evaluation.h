// A document file worked out as its window does on opening it.
#pragma once

#include "documents/records/document_files.h"
#include "frame/program.h"

namespace wortlex {

struct Evaluation {
    std::string file;
    DocumentKind kind{};
    LoadResult load = LoadResult::not_found;
    PreBoil pre_boil;
    FermentationFigures fermentation; ///< of a session, as the next
    EfficiencyFigures efficiency;
};

/// The kind of document that a file name stands for by its ending, or nothing.
std::optional<DocumentKind> document_kind(std::string_view path);

/// Loads a file into the program's live document.
LoadResult load_document(Program& program, const std::string& path, DocumentKind kind);

/// Works the live document out.
Evaluation evaluate(Program& program, const std::string& path, DocumentKind kind, LoadResult load);

} // namespace wortlex
