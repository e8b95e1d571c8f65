#include "frame/report/evaluation.h"

#include <algorithm>

namespace wortlex {

std::optional<DocumentKind> document_kind(std::string_view path) {
    if (path.size() < 4) return std::nullopt;
    std::string ending(path.substr(path.size() - 4));
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    if (ending == ".rec") return DocumentKind::recipe;
    if (ending == ".brw") return DocumentKind::session;
    return std::nullopt;
}

LoadResult load_document(Program& program, const std::string& path, DocumentKind kind) {
    program.document.mash_flags = static_cast<std::uint8_t>(program.settings.default_schedule);
    if (kind == DocumentKind::recipe) return load_recipe(path, program.document, program.settings);
    return load_session(path, program.document, program.session, program.settings);
}

Evaluation evaluate(Program& program, const std::string& path, DocumentKind kind, LoadResult load) {
    Evaluation evaluation{path, kind, load, {}, {}, {}};
    const auto& settings = program.settings;
    const bool is_session = kind == DocumentKind::session;
    recalculate_opened(is_session ? open_session(program) : open_recipe(program));
    const float rate = is_session ? program.session.water_needs.evaporation_rate : evaporation_rate(program);
    evaluation.pre_boil = raw_pre_boil(program.document, rate, settings);
    if (is_session) {
        evaluation.fermentation = update_attenuation(program.session, settings);
        evaluation.efficiency = recorded_efficiency(program.document, program.session, settings);
    }
    return evaluation;
}

} // namespace wortlex
