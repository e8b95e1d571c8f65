#include "companion/evaluation.h"

namespace wortlex {

Evaluation evaluate(Program& program, const std::string& path, LoadResult load) {
    Evaluation evaluation{path, load, {}, {}, {}};
    const auto& settings = program.settings;
    recalculate_opened(live_document(program));
    const auto& document = program.document;
    evaluation.pre_boil = raw_pre_boil(document.recipe, evaporation_rate(program), settings);
    if (document.kind == DocumentKind::session) {
        evaluation.fermentation = update_attenuation(document.session, settings);
        evaluation.efficiency = recorded_efficiency(document.recipe, document.session, settings);
    }
    return evaluation;
}

} // namespace wortlex
