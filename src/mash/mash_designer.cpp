#include "mash/mash_designer.h"

#include "base/number.h"
#include "measures/degrees.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

MashHistory::State state_of(const MashDesigner& designer) {
    return {designer.design, designer.ratio, designer.selection};
}

// A document's grain is what it is; the water of what was undone stays.
void put_state(MashDesigner& designer, const MashHistory::State& state) {
    const float grain = designer.design.grain_weight;
    designer.design = state.design;
    designer.ratio = state.ratio;
    designer.selection = state.selection;
    designer.thickness_is_set = false;
    if (!designer.owner.is_free()) designer.design.grain_weight = grain;
}

template <class Step>
Step* step_at(std::span<Step> steps, std::int32_t index) {
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < steps.size() ? &steps[at] : nullptr;
}

// Quarts per pound; 0 without water or grain.
float ratio_of_dough_in(const MashDesign& design) {
    return shown_ratio(design.dough_in_water, design.grain_weight, Units::american);
}

// Water that has the ratio already is left alone: worked out from it again it would drift.
void reconcile(MashDesign& design, float& ratio, const Settings& settings) {
    auto& mash = design.mash;
    if (mash.grain_temperature <= 0) mash.grain_temperature = truncate(settings.grain_temperature);
    const float in_water = ratio_of_dough_in(design);
    if (!(ratio > 0)) ratio = in_water > 0 ? in_water : settings.quarts_per_pound;
    if (ratio != in_water)
        design.dough_in_water = quarts_from_default_ratio(ratio, design.grain_weight, settings.volume_units);
}

} // namespace

MashDesigner free_designer(const Settings& settings) {
    MashDesigner designer;
    designer.settings = settings;
    designer.settings.weight_units = settings.volume_units;
    auto& design = designer.design = new_mash_design(settings);
    design.dough_in_water =
        quarts_from_default_ratio(settings.quarts_per_pound, design.grain_weight, settings.volume_units);
    recalculate(designer);
    designer.saved = design;
    return designer;
}

MashDesigner document_designer(const MashDesign& design, float ratio, MashOwner owner,
                               const Settings& settings) {
    MashDesigner designer;
    designer.owner = std::move(owner);
    designer.settings = settings;
    designer.design = design;
    designer.design.grain_weight = designer.owner.grain();
    designer.design.mash.tun_thermal_mass = settings.tun_thermal_mass;
    designer.design.mash.steps[0].heat_type = StepHeat::infuse;
    reconcile(designer.design, ratio, settings);
    designer.ratio = ratio;
    recalculate(designer);
    return designer;
}

void recalculate(MashDesigner& designer) {
    auto& design = designer.design;
    designer.totals =
        RecalculateSteps(design.mash, design.dough_in_water, design.grain_weight, designer.settings);
    if (designer.owner.told) designer.owner.told(design, designer.ratio);
}

void set_volume_units(MashDesigner& designer, Units units) {
    designer.settings.volume_units = designer.settings.weight_units = units;
    recalculate(designer);
}

void follow_settings(MashDesigner& designer, const Settings& settings) {
    const auto volumes = designer.settings.volume_units;
    const auto temperatures = designer.settings.temperature_units;
    designer.settings = settings;
    if (designer.owner.is_free()) {
        designer.settings.volume_units = designer.settings.weight_units = volumes;
        designer.settings.temperature_units = temperatures;
    } else {
        designer.design.mash.tun_thermal_mass = settings.tun_thermal_mass;
    }
    recalculate(designer);
}

void follow_grain(MashDesigner& designer) {
    auto& design = designer.design;
    if (designer.owner.is_free() || designer.owner.grain() == design.grain_weight) return;
    design.grain_weight = designer.owner.grain();
    if (designer.ratio > 0 && designer.ratio == ratio_of_dough_in(design)) return recalculate(designer);
    if (designer.ratio > 0)
        design.dough_in_water = narrow(double{design.grain_weight} * designer.ratio);
    else
        designer.ratio = ratio_of_dough_in(design);
    recalculate(designer);
}

bool follow_document(MashDesigner& designer, const ComplexMash& mash, float dough_in_water) {
    auto& design = designer.design;
    designer.history = {};
    designer.thickness_is_set = false;
    design.mash = mash;
    design.dough_in_water = dough_in_water;
    if (designer.owner.grain() != design.grain_weight) {
        follow_grain(designer);
        return design.dough_in_water != dough_in_water;
    }
    if (const float ratio = ratio_of_dough_in(design); ratio > 0) designer.ratio = ratio;
    recalculate(designer);
    return false;
}

void edit(MashDesigner& designer, std::string_view key, const std::function<void()>& change) {
    designer.history.begin(state_of(designer), key);
    change();
    recalculate(designer);
}

void end_edit(MashDesigner& designer) {
    designer.history.end_step();
}

bool undo(MashDesigner& designer) {
    if (!designer.history.can_undo()) return false;
    put_state(designer, designer.history.undo(state_of(designer)));
    recalculate(designer);
    return true;
}

bool redo(MashDesigner& designer) {
    if (!designer.history.can_redo()) return false;
    put_state(designer, designer.history.redo(state_of(designer)));
    recalculate(designer);
    return true;
}

MashStep* selected_step(MashDesigner& designer) {
    return step_at(designer.design.mash.used_steps(), designer.selection);
}

const MashStep* selected_step(const MashDesigner& designer) {
    return step_at(designer.design.mash.used_steps(), designer.selection);
}

void set_dough_in(MashDesigner& designer, float quarts) {
    designer.design.dough_in_water = quarts;
    designer.ratio = ratio_of_dough_in(designer.design);
}

void set_dough_in_ratio(MashDesigner& designer, float shown) {
    const auto units = designer.settings.volume_units;
    designer.design.dough_in_water = quarts_from_ratio(shown, designer.design.grain_weight, units);
    designer.ratio = quarts_from_ratio(shown, 1, units);
}

float dough_in_ratio(const MashDesigner& designer) {
    const auto& design = designer.design;
    return shown_ratio(design.dough_in_water, design.grain_weight, designer.settings.volume_units);
}

std::int32_t typed_degrees(const MashDesigner& designer, std::int32_t shown) {
    const auto units = designer.settings.temperature_units;
    if (designer.owner.is_free() && units == TemperatureUnits::celsius) return truncate(fahrenheit(shown));
    return stored_degrees(shown, units);
}

} // namespace wortlex
