#include "companion/evaluation.h"

namespace wortlex {

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
