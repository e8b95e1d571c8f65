#include "documents/session_figures.h"

#include "brewing/refractometer.h"
#include "documents/recipe_gravity.h"
#include "measures/gravity.h"

#include <algorithm>

namespace wortlex {
namespace {

float concentrated(const PreBoil& end, float volume) {
    return narrow(double{end.points} * end.volume / volume);
}

AlcoholFigures refractometer_figures(const SessionDocument& session, const Settings& settings) {
    const auto& reading = session.tail.alcohol_reading;
    if (reading.is_entered()) return alcohol_from_reading(plato_to_sg(reading.fg_plato), reading.net_zeiss);
    return implied_alcohol(sg_to_plato(session.actual_og), sg_to_plato(session.actual_fg), settings);
}

} // namespace

EfficiencyFigures session_efficiency(const BrewDocument& document, const SessionDocument& session, float og,
                                     float gallons, const Settings& settings) {
    if (gallons == 0) gallons = document.batch_size;
    if (gallons == 0) gallons = 1.0F;
    if (og == 0) og = session.actual_og > 1.0F ? session.actual_og : document.og_points;

    EfficiencyFigures figures;
    figures.achieved_points = narrow(gallons * ((og - 1.0) * 1000) / document.batch_size);
    figures.total_points = potential_points(document, settings);
    figures.mash_points = mash_potential_points(document, settings);
    figures.extract_points = other_potential_points(document, settings);
    if (figures.mash_points > 0 && figures.extract_points > 0) {
        figures.actual_mash_points = narrow(double{figures.achieved_points} - figures.extract_points);
        figures.efficiency =
            narrow(figures.actual_mash_points / (double{figures.total_points} - figures.extract_points));
    } else if (figures.mash_points > 0) {
        figures.actual_mash_points = figures.achieved_points;
        figures.efficiency = narrow(double{figures.achieved_points} / figures.total_points);
    }
    return figures;
}

float recording_losses(const SessionDocument& session, const Settings& settings) {
    if (session.tail.measured_in_fermenter == 0) return 0;
    const float losses = vessel_losses(session.water_needs);
    return narrow(losses - double{settings.cooling_shrink} * losses);
}

float recorded_gallons(const SessionDocument& session, const Settings& settings) {
    return narrow(double{session.tail.recorded_volume} + recording_losses(session, settings));
}

EfficiencyFigures recorded_efficiency(const BrewDocument& document, const SessionDocument& session,
                                      const Settings& settings) {
    const float volume = recorded_gallons(session, settings);
    auto figures = session_efficiency(document, session, session.tail.recorded_og, volume, settings);
    if (document.recipe_kind == RecipeKind::extract) figures.efficiency = figures.actual_mash_points = 0;
    return figures;
}

PreBoil end_of_boil(const BrewDocument& document, const Settings& settings) {
    if (settings.wort_equals_batch != 0) return {document.batch_size, document.og_points};
    return {document.wort_size, compute_wort_points(document, settings)};
}

PreBoil raw_pre_boil(const BrewDocument& document, float rate, const Settings& settings) {
    const auto end = end_of_boil(document, settings);
    const double hours = document.boil_minutes / 60.0;
    const float volume =
        narrow(settings.evaporation_by_volume != 0 ? end.volume + rate * hours
                                                   : end.volume * (1 / (1 - rate / 100.0 * hours)));
    return {volume, concentrated(end, volume)};
}

PreBoil water_pre_boil(const BrewDocument& document, const WaterNeeds& needs, const Settings& settings) {
    const double into_mash = double{needs.sparge} - needs.sparge_deadspace;
    const double absorption = double{settings.grain_absorption} * needs.grain;
    const float kettle =
        narrow(into_mash + narrow(needs.mash_water - absorption) + needs.top_up - needs.lauter_loss);
    return {kettle, concentrated(end_of_boil(document, settings), kettle)};
}

FermentationFigures update_attenuation(const SessionDocument& session, const Settings& settings) {
    const float og = session.actual_og, fg = session.actual_fg;
    FermentationFigures figures;
    figures.apparent_attenuation = apparent_attenuation(og, fg);
    if (session.tail.fg_by_refractometer != 0) {
        const auto alcohol = refractometer_figures(session, settings);
        figures.alcohol_by_weight = std::max(alcohol.by_weight, 0.0F);
        figures.alcohol_by_volume = std::max(alcohol.by_volume, 0.0F);
        figures.real_attenuation = real_attenuation_re(og, alcohol.real_extract);
    } else {
        figures.alcohol_by_weight = alcohol_by_weight(og, fg);
        figures.alcohol_by_volume = alcohol_by_volume(figures.alcohol_by_weight, fg);
        figures.real_attenuation = real_attenuation(og, fg);
    }
    return figures;
}

const FermentationFigures& KnownFermentation::of(const SessionDocument& session, const Settings& settings) {
    const auto& tail = session.tail;
    const Basis now{session.actual_og, session.actual_fg, tail.fg_by_refractometer, tail.alcohol_reading,
                    settings.water_brix};
    if (basis_ != now) {
        basis_ = now;
        figures_ = update_attenuation(session, settings);
    }
    return figures_;
}

} // namespace wortlex
