#include "base/number.h"
#include "base/windows1252.h"
#include "mash/designer_rows.h"
#include "measures/degrees.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

std::string heat_word(StepHeat heat) {
    if (heat == StepHeat::direct) return "Direct";
    return heat == StepHeat::decoction ? "Decoc" : "Infuse";
}

// What cannot be pulled is nothing; nothing has no sign.
float shown_amount(const MashStep& step) {
    const bool is_pulled = step.heat_type == StepHeat::decoction;
    return (is_pulled && step.amount < 0) || step.amount == 0 ? 0 : step.amount;
}

// In the order of the columns.
enum class StepColumn : std::size_t {
    name,
    step_time,
    rest_time,
    start,
    stop,
    heat,
    infuse_temp,
    amount,
    ratio
};

std::string step_cell(const MashDesigner& designer, std::size_t row, std::size_t column) {
    const auto steps = designer.design.mash.used_steps();
    if (row >= steps.size()) return {};
    const auto& step = steps[row];
    const auto& settings = designer.settings;
    const auto degrees = [&](std::int32_t fahrenheit) {
        return formatted("%d", shown_degrees(fahrenheit, settings.temperature_units));
    };
    const bool is_direct = step.heat_type == StepHeat::direct;
    switch (static_cast<StepColumn>(column)) {
    case StepColumn::name:
        return utf8_from_windows1252(step.name.view());
    case StepColumn::step_time:
        return formatted("%d", step.step_minutes);
    case StepColumn::rest_time:
        return formatted("%d", step.rest_minutes);
    case StepColumn::start:
        return degrees(step.start_temperature);
    case StepColumn::stop:
        return degrees(step.stop_temperature);
    case StepColumn::heat:
        return heat_word(step.heat_type);
    case StepColumn::infuse_temp:
        return is_direct ? "--" : degrees(step.infuse_temperature);
    case StepColumn::amount:
        return is_direct ? "--" : formatted("%4.2f", quarts_to_shown(shown_amount(step), settings));
    default:
        if (is_direct) return "--";
        return step.heat_type == StepHeat::decoction ? "-----" : formatted("%4.2f", step.ratio);
    }
}

std::vector<ListColumn> step_columns(const MashDesigner& designer) {
    const auto by_heat = [&designer](const char* infused, const char* decocted) {
        return [&designer, infused, decocted] {
            return std::string(is_heated_by(designer, StepHeat::decoction) ? decocted : infused);
        };
    };
    return {{.caption = "Step Name", .width = 20, .stretches = true},
            {.caption = by_heat("Step Time", "Pull Time"), .is_number = true, .width = 4},
            {.caption = "Rest Time", .is_number = true, .width = 4},
            {.caption = "Start Temp", .is_number = true, .width = 4},
            {.caption = "Stop Temp", .is_number = true, .width = 4},
            {.caption = "Heat Type", .width = 6},
            {.caption = by_heat("Infuse Temp", "Decoc Temp"), .is_number = true, .width = 4},
            {.caption = by_heat("Infuse Amount", "Decoc Amount"), .is_number = true, .width = 7},
            {.caption = "Infuse Ratio", .is_number = true, .width = 5}};
}

void ask_for_new(MashDesigner& designer, const DesignerActions& actions) {
    const bool is_first = designer.design.mash.used_steps().empty();
    if (!may_add_step(designer) || !actions.ask_naming) return;
    if (const auto naming = actions.ask_naming(naming_of_new(designer), is_first))
        new_step(designer, *naming);
}

void ask_to_rename(MashDesigner& designer, const DesignerActions& actions) {
    if (!has_step(designer) || !actions.ask_naming) return;
    if (const auto naming = actions.ask_naming(naming_of_selected(designer), designer.selection == 0))
        rename_step(designer, *naming);
}

} // namespace

void step_list_rows(Rows& rows, MashDesigner& designer, const DesignerActions& actions) {
    rows.list(
            "steps", step_columns(designer), [&designer] { return designer.design.mash.used_steps().size(); },
            [&designer](std::size_t row, std::size_t column) { return step_cell(designer, row, column); })
        .selection(designer.selection)
        .changed([&designer] {
            designer.thickness_is_set = false;
            end_edit(designer);
        })
        .activated([&designer, actions] { ask_to_rename(designer, actions); })
        .with_stacked_captions()
        .when_empty("New Step begins the schedule with its dough-in.")
        .hint("Enter or a double click changes the name, the type and the colors of a step")
        .named("Steps");
    rows.button("new_step", "&New Step", [&designer, actions] { ask_for_new(designer, actions); })
        .enabled([&designer] { return may_add_step(designer); })
        .disabled_because("The schedule is full.");
    rows.button("delete_step", "&Delete Step", [&designer] { delete_step(designer); })
        .enabled([&designer] { return has_step(designer); })
        .disabled_because("There is no step.");
}

} // namespace wortlex
