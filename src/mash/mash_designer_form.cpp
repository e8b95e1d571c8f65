#include "mash/mash_designer_form.h"

#include "base/number.h"
#include "mash/designer_rows.h"
#include "mash/simple_mash_form.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

constexpr float most_amount = 100000, most_shown_ratio = 100, most_thermal_mass = 2;
constexpr std::size_t most_name_bytes = 79;

NumberRow& amount_row(Rows& rows, const char* key, MashDesigner& designer, std::function<float()> shown,
                      std::function<void(float)> take) {
    const auto store = [&designer, key, take = std::move(take)](float value) {
        edit(designer, key, [&] { take(value); });
    };
    return rows.number(key, {std::move(shown), store}).format("%2.2f");
}

void free_amounts(Rows& rows, MashDesigner& designer) {
    auto& design = designer.design;
    const auto& settings = designer.settings;
    amount_row(
        rows, "grain", designer, [&] { return grain_to_shown(design.grain_weight, settings); },
        [&](float shown) { design.grain_weight = shown_to_grain(shown, settings); })
        .label([&] { return std::string("Gr&ain ") + grain_unit(settings).capital; })
        .range(1.0F, most_amount)
        .step(0.5F)
        .outside(Outside::clamp);
    amount_row(
        rows, "dough_in", designer, [&] { return quarts_to_shown(design.dough_in_water, settings); },
        [&](float shown) { design.dough_in_water = shown_to_quarts(shown, settings); })
        .label([&] {
            if (!is_american(settings.volume_units)) return "Dough In Ma&sh Liters";
            return is_pro(settings) ? "Dough In Ma&sh Gal" : "Dough In Ma&sh QTS";
        })
        .range(1.0F, most_amount)
        .step(0.5F)
        .outside(Outside::clamp);
}

void document_amounts(Rows& rows, MashDesigner& designer) {
    auto& design = designer.design;
    const auto& settings = designer.settings;
    const auto side = designer.owner.side == DesignerSide::recipe ? MashSide::recipe : MashSide::session;
    rows.shown_number(
            "grain", [&] { return grain_to_shown(design.grain_weight, settings); }, "%6.2f")
        .label([&] { return std::string("Grain ") + grain_unit(settings).capital; });
    amount_row(
        rows, "dough_in", designer, [&] { return design.dough_in_water; },
        [&](float quarts) { set_dough_in(designer, quarts); })
        .label(side == MashSide::recipe ? "Mash &QTS" : "Dough In Mash &QTS")
        .range(0.0F, most_amount)
        .step(0.25F);
    amount_row(
        rows, "volume", designer,
        [&] { return to_shown_volume(narrow(design.dough_in_water / 4.0), settings); },
        [&](float shown) { set_dough_in(designer, narrow(from_shown_volume(shown, settings) * 4.0)); })
        .label([side, &settings] {
            std::string label = mash_volume_label(side, settings);
            std::erase(label, '&'); // buttons have the letters here
            return label;
        })
        .range(0.0F, most_amount)
        .step(0.25F);
}

void ratio_row(Rows& rows, MashDesigner& designer) {
    amount_row(
        rows, "ratio", designer, [&] { return dough_in_ratio(designer); },
        [&](float shown) { set_dough_in_ratio(designer, shown); })
        .label([&] {
            if (is_american(designer.settings.volume_units)) return "QTS &Water/LBS Grain Ratio";
            return designer.owner.is_free() ? "Liters &Water/kg Grain Ratio" : "L &Water/KG Grain Ratio";
        })
        .range(0.0F, most_shown_ratio)
        .step(0.05F);
}

void grain_temperature_row(Rows& rows, MashDesigner& designer) {
    auto& degrees = designer.design.mash.grain_temperature;
    const auto units = [&designer] { return designer.settings.temperature_units; };
    rows.temperature("grain_temp",
                     {[&degrees, units] { return shown_degrees(degrees, units()); },
                      [&designer, &degrees](std::int32_t shown) {
                          edit(designer, "grain_temp", [&] { degrees = typed_degrees(designer, shown); });
                      }},
                     units)
        .label("Grain Temp");
}

void thermal_mass_row(Rows& rows, MashDesigner& designer) {
    auto& mass = designer.design.mash.tun_thermal_mass;
    constexpr const char* label = "Thermal Mass";
    constexpr const char* format = "%0.3f";
    if (!designer.owner.is_free()) {
        rows.shown_number(
                "thermal_mass", [&] { return mass; }, format)
            .label(label);
        return;
    }
    amount_row(
        rows, "thermal_mass", designer, [&] { return mass; }, [&](float typed) { mass = typed; })
        .label(label)
        .range(0.0F, most_thermal_mass)
        .step(0.05F)
        .format(format);
}

void total_row(Rows& rows, MashDesigner& designer) {
    const auto& settings = designer.settings;
    rows.shown_number(
            "total_volume", [&] { return to_shown_volume(designer.totals.gallons, settings); }, "%0.2f")
        .label([&] { return std::string("Total Mash Volume ") + volume_unit(settings).capital; });
}

void unit_rows(Rows& rows, MashDesigner& designer) {
    auto& settings = designer.settings;
    rows.choice("temperature_units", settings.temperature_units, {"&Fahrenheit", "Celsius"})
        .codes({1, 0})
        .named("Temperatures in");
    const Binding<std::int32_t> volumes{
        [&] { return static_cast<std::int32_t>(settings.volume_units); },
        [&](std::int32_t code) { set_volume_units(designer, static_cast<Units>(code)); }};
    rows.choice("volume_units", volumes,
                {[&] { return is_pro(settings) ? "US Gallons and Pounds" : "US Quarts and Pounds"; },
                 "Liters and Kilograms"})
        .codes({1, 0})
        .look(ChoiceRow::Look::down)
        .named("Amounts in");
}

void units_note(Rows& rows, const Settings& settings) {
    rows.note("units_note", [&settings] {
        return std::string("All Temperatures are Degrees ") + temperature_unit(settings).full +
               ". Infusion Amounts are in " + mash_water_unit(settings).full + ".";
    });
}

void name_row(Rows& rows, MashDesigner& designer) {
    auto& name = designer.design.mash.mash_name;
    rows.text(
            "mash_name", [&name] { return name.view(); },
            [&designer, &name](std::string_view typed) {
                edit(designer, "mash_name", [&] { name.assign(typed); });
            },
            most_name_bytes)
        .label("Mash Schedule Name:")
        .width(40);
}

void button_rows(Rows& rows, const MashDesigner& designer, DesignerActions actions) {
    rows.button("load", "&Load", std::move(actions.load));
    rows.button("save", "Sa&ve", std::move(actions.save));
    if (!designer.owner.is_free())
        rows.button("revert", "Revert To &Simple Schedule", std::move(actions.revert));
    rows.button("graph", "&Graph", std::move(actions.graph));
    rows.button("print", "Print", std::move(actions.print));
    rows.button("help", "Help", std::move(actions.help));
}

} // namespace

void mash_designer_form(Form& form, MashDesigner& designer, DesignerActions actions) {
    step_list_rows(form.group(), designer, actions);
    step_rows(form.group("Step"), designer);
    auto& mash = form.group("Mash");
    if (designer.owner.is_free())
        free_amounts(mash, designer);
    else
        document_amounts(mash, designer);
    ratio_row(mash, designer);
    grain_temperature_row(mash, designer);
    thermal_mass_row(mash, designer);
    total_row(mash, designer);
    if (designer.owner.is_free())
        unit_rows(mash, designer);
    else
        units_note(mash, designer.settings);
    name_row(mash, designer);
    button_rows(form.group(), designer, std::move(actions));
    form.on_leave([&designer] { end_edit(designer); });
}

} // namespace wortlex
