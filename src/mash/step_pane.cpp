#include "base/ports/prompts.h"
#include "mash/designer_rows.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::int32_t most_minutes_typed = 500;
constexpr float most_thickness = 100;

bool is_decoction(const MashDesigner& designer) {
    return is_heated_by(designer, StepHeat::decoction);
}

using SetWhole = void (*)(MashDesigner& designer, std::int32_t value);

IntegerRow& temperature_row(Rows& rows, const char* key, MashDesigner& designer,
                            const std::function<std::int32_t(const MashStep&)>& degrees, SetWhole set) {
    const Binding<std::int32_t> value{
        [&designer, degrees] {
            const auto* const step = selected_step(designer);
            return step == nullptr ? 0 : shown_degrees(degrees(*step), designer.settings.temperature_units);
        },
        [&designer, set](std::int32_t shown) { set(designer, typed_degrees(designer, shown)); }};
    const auto& settings = designer.settings;
    return rows.temperature(key, value, [&settings] { return settings.temperature_units; })
        .hint([&settings] { return std::string("Degrees ") + temperature_unit(settings).usual; })
        .enabled([&designer] { return has_step(designer); });
}

IntegerRow& minutes_row(Rows& rows, const char* key, MashDesigner& designer, std::int32_t MashStep::*field,
                        SetWhole set) {
    const Binding<std::int32_t> value{[&designer, field] {
                                          const auto* const step = selected_step(designer);
                                          return step == nullptr ? 0 : step->*field;
                                      },
                                      [&designer, set](std::int32_t minutes) { set(designer, minutes); }};
    return rows.integer(key, value).range(0, most_minutes_typed).step(1).hint("Minutes").enabled([&designer] {
        return has_step(designer);
    });
}

// Direct heat infuses nothing, whatever the step holds for another kind of heat.
std::int32_t infuse_degrees(const MashStep& step) {
    return step.heat_type == StepHeat::direct ? 0 : step.infuse_temperature;
}

// What is worked out, or not used, cannot be typed.
void infuse_row(Rows& rows, MashDesigner& designer) {
    temperature_row(rows, "infuse_temp", designer, infuse_degrees, set_infuse_temperature)
        .label([&designer] { return is_decoction(designer) ? "D&ecoc Temp" : "Infus&e Temp"; })
        .enabled([&designer] {
            return has_step(designer) && designer.selection > 0 && !is_heated_by(designer, StepHeat::direct);
        })
        .disabled_because(
            [&designer] { return designer.selection == 0 ? "The strike temperature is worked out." : ""; });
}

void thickness_rows(Rows& rows, MashDesigner& designer) {
    rows.number("thickness", {[&designer] { return shown_thickness(designer); },
                              [&designer](float shown) { set_thickness(designer, shown); }})
        .label("Decoc Thic&kness")
        .range(0.0F, most_thickness)
        .step(0.05F)
        .format("%2.2f")
        .enabled([&designer] { return is_decoction(designer); });
    const auto button = [&](const char* key, const char* caption, std::function<void()> press) {
        rows.button(key, caption, std::move(press))
            .enabled([&designer] { return is_decoction(designer); })
            .disabled_because("Only a decoction has a thickness.");
    };
    const auto& settings = designer.settings;
    button("thick", "Thi&ck", [&] { press_thickness(designer, settings.thick_ratio); });
    button("medium", "&Med", [&] { press_thickness(designer, settings.medium_ratio); });
    button("thin", "T&hin", [&] { press_thickness(designer, settings.thin_ratio); });
    button("current", "C&urr", [&] { press_current_thickness(designer); });
}

} // namespace

bool has_step(const MashDesigner& designer) {
    return selected_step(designer) != nullptr;
}

bool is_heated_by(const MashDesigner& designer, StepHeat heat) {
    const auto* const step = selected_step(designer);
    return step != nullptr && step->heat_type == heat;
}

void step_rows(Rows& rows, MashDesigner& designer) {
    temperature_row(rows, "start_temp", designer, &MashStep::start_temperature, set_start)
        .label("Rest S&tart Temp");
    temperature_row(rows, "stop_temp", designer, &MashStep::stop_temperature, set_stop)
        .label("Rest Sto&p Temp");
    minutes_row(rows, "step_time", designer, &MashStep::step_minutes, set_step_minutes)
        .typed(0, [&designer] { return most_step_minutes(designer); })
        .spun(
            0, [&designer] { return most_step_minutes(designer); }, 1)
        .outside([&designer] { return is_decoction(designer) ? Outside::rewrite : Outside::ignore; })
        .label([&designer] { return is_decoction(designer) ? "Pull T&ime" : "Step T&ime"; });
    minutes_row(rows, "rest_time", designer, &MashStep::rest_minutes, set_rest_minutes).label("&Rest Time");
    infuse_row(rows, designer);
    thickness_rows(rows, designer);
}

void step_name_form(Form& form, StepNaming& naming, bool is_first, Prompts& prompts) {
    form.group()
        .text(
            "name", [&naming] { return std::string_view(naming.name); },
            [&naming](std::string_view typed) { naming.name = typed; }, most_step_name_bytes)
        .label("Step &Name")
        .width(22);
    form.group("Step Type")
        .choice("heat", naming.heat, {"&Direct Heat", "&Infusion", "D&ecoction"})
        .codes({1, 0, 2})
        .look(ChoiceRow::Look::down)
        .option_enabled([is_first](std::size_t option) { return !is_first || option == 1; })
        .named("Step Type");
    auto& colours = form.group("Colors");
    const auto swatch = [&](const char* key, const char* label, std::uint32_t& colour) {
        colours.swatch(key, [&colour] { return colour; }).label(label).pressed([&colour, &prompts] {
            if (const auto chosen = prompts.choose_colour(colour)) colour = *chosen;
        });
    };
    swatch("step_colour", "Step &Up Time", naming.step_colour);
    swatch("rest_colour", "&Rest Time", naming.rest_colour);
}

} // namespace wortlex
