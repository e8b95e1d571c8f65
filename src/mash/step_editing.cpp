#include "mash/step_editing.h"

#include "base/number.h"

#include <algorithm>

namespace wortlex {
namespace {

// Two factors between quarts per pound and litres per kilogram. They are not each other's inverse: a
// thickness may change in its last digit as its step is selected again.
constexpr double of_set_thickness = 2.088;
constexpr double of_selected_thickness = 0.4784;

constexpr std::int32_t most_step_count = static_cast<std::int32_t>(mash_step_slots) - 1;
constexpr std::int32_t most_minutes = 500;
constexpr std::int32_t decoction_time = 5; // minutes that returning a decoction takes

// The water in the mash as a step begins, by its grain; nothing without grain.
void take_current_thickness(MashDesigner& designer, std::size_t at) {
    const auto& design = designer.design;
    if (design.grain_weight != 0)
        designer.design.mash.steps[at].ratio =
            narrow(double{infused_water_before(design.mash, at)} / design.grain_weight);
}

std::size_t index_of_selected(const MashDesigner& designer) {
    return static_cast<std::size_t>(designer.selection);
}

// Makes room behind the selected step; where the new step goes.
std::size_t make_room(MashDesigner& designer) {
    auto& mash = designer.design.mash;
    const auto count = mash.used_steps().size();
    const auto at = designer.selection < 0 ? count : std::min(index_of_selected(designer) + 1, count);
    auto* const place = mash.steps.begin() + static_cast<std::ptrdiff_t>(at);
    std::move_backward(place, mash.steps.end() - 1, mash.steps.end());
    *place = {};
    designer.selection = static_cast<std::int32_t>(at);
    return at;
}

void set_usual_temperatures(ComplexMash& mash, std::size_t at) {
    auto& step = mash.steps[at];
    step.start_temperature = at == 0 ? 100 : mash.steps[at - 1].stop_temperature;
    step.stop_temperature = step.start_temperature;
    if (at > 0) step.infuse_temperature = step.heat_type == StepHeat::decoction ? 212 : 210;
}

void insert_step(MashDesigner& designer, const StepNaming& naming) {
    const auto at = make_room(designer);
    auto& mash = designer.design.mash;
    auto& step = mash.steps[at];
    step.heat_type = at == 0 ? StepHeat::infuse : naming.heat;
    if (step.heat_type == StepHeat::decoction) take_current_thickness(designer, at);
    step.rest_minutes = 30;
    step.step_minutes = 5;
    set_usual_temperatures(mash, at);
    step.name.assign(naming.name);
    step.step_colour = naming.step_colour;
    step.rest_colour = naming.rest_colour;
    ++mash.step_count;
}

// Changes the selected step, if there is one.
template <class Change>
void change_step(MashDesigner& designer, std::string_view key, Change change) {
    auto* const step = selected_step(designer);
    if (step != nullptr) edit(designer, key, [&] { change(*step); });
}

} // namespace

StepNaming naming_of_new(const MashDesigner& designer) {
    StepNaming naming;
    if (const auto* const step = selected_step(designer)) {
        naming.step_colour = step->step_colour;
        naming.rest_colour = step->rest_colour;
    }
    return naming;
}

StepNaming naming_of_selected(const MashDesigner& designer) {
    const auto* const step = selected_step(designer);
    if (step == nullptr) return {};
    return {std::string(step->name.view()), step->heat_type, step->step_colour, step->rest_colour};
}

bool may_add_step(const MashDesigner& designer) {
    return designer.design.mash.step_count < most_step_count;
}

void new_step(MashDesigner& designer, const StepNaming& naming) {
    if (naming.name.empty() || !may_add_step(designer)) return;
    designer.thickness_is_set = false;
    edit(designer, {}, [&] { insert_step(designer, naming); });
}

void rename_step(MashDesigner& designer, const StepNaming& naming) {
    if (naming.name.empty()) return;
    change_step(designer, {}, [&](MashStep& step) {
        const auto at = index_of_selected(designer);
        const auto heat = at == 0 ? StepHeat::infuse : naming.heat;
        if (heat != step.heat_type) {
            step.heat_type = heat;
            if (heat == StepHeat::decoction) take_current_thickness(designer, at);
        }
        step.name.assign(naming.name);
        step.step_colour = naming.step_colour;
        step.rest_colour = naming.rest_colour;
    });
}

void delete_step(MashDesigner& designer) {
    change_step(designer, {}, [&](MashStep& step) {
        auto& mash = designer.design.mash;
        std::move(&step + 1, mash.steps.data() + mash.steps.size(), &step);
        mash.steps.back() = {};
        --mash.step_count;
        mash.steps[0].heat_type = StepHeat::infuse;
        designer.selection = std::max(designer.selection - 1, 0);
        designer.thickness_is_set = false;
    });
}

void set_start(MashDesigner& designer, std::int32_t degrees) {
    change_step(designer, "start", [&](MashStep& step) {
        step.start_temperature = step.stop_temperature = std::max(degrees, 0);
    });
}

void set_stop(MashDesigner& designer, std::int32_t degrees) {
    change_step(designer, "stop", [&](MashStep& step) { step.stop_temperature = std::max(degrees, 0); });
}

void set_infuse_temperature(MashDesigner& designer, std::int32_t degrees) {
    change_step(designer, "infuse", [&](MashStep& step) { step.infuse_temperature = std::max(degrees, 0); });
}

void set_rest_minutes(MashDesigner& designer, std::int32_t minutes) {
    change_step(designer, "rest", [&](MashStep& step) { step.rest_minutes = std::max(minutes, 0); });
}

std::int32_t most_step_minutes(const MashDesigner& designer) {
    const auto* const step = selected_step(designer);
    if (step == nullptr || step->heat_type != StepHeat::decoction || designer.selection == 0)
        return most_minutes;
    const auto& before = designer.design.mash.steps[index_of_selected(designer) - 1];
    return std::clamp(before.rest_minutes, 0, most_minutes) + decoction_time;
}

void set_step_minutes(MashDesigner& designer, std::int32_t minutes) {
    change_step(designer, "step", [&](MashStep& step) {
        step.step_minutes = std::clamp(minutes, 0, most_step_minutes(designer));
    });
}

void set_thickness(MashDesigner& designer, float shown) {
    const bool is_us = is_american(designer.settings.volume_units);
    change_step(designer, "thickness", [&](MashStep& step) {
        step.ratio = is_us ? shown : narrow(shown / of_set_thickness);
        designer.thickness_is_set = true;
    });
}

float shown_thickness(const MashDesigner& designer) {
    const auto* const step = selected_step(designer);
    if (step == nullptr || step->heat_type != StepHeat::decoction) return 0;
    if (is_american(designer.settings.volume_units)) return step->ratio;
    return narrow(designer.thickness_is_set ? step->ratio * of_set_thickness
                                            : step->ratio / of_selected_thickness);
}

void press_thickness(MashDesigner& designer, float quarts_per_pound) {
    change_step(designer, {}, [&](MashStep& step) {
        step.ratio = quarts_per_pound;
        designer.thickness_is_set = true;
    });
}

void press_current_thickness(MashDesigner& designer) {
    change_step(designer, {}, [&](MashStep&) {
        take_current_thickness(designer, index_of_selected(designer));
        designer.thickness_is_set = true;
    });
}

} // namespace wortlex
