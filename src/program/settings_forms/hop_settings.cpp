#include "program/settings_forms/hop_settings.h"

#include "program/settings_forms/settings_rows.h"

namespace wortlex {
namespace {

void formula_row(Rows& rows, SystemSettings& image, std::function<void()> adjust_tinseth) {
    rows.choice("formula", image.HopFormula, {"&Rager", "&Garetz", "&Tinseth", "G&eneric"})
        .look(ChoiceRow::Look::down)
        .picked([&image, adjust = std::move(adjust_tinseth)] {
            if (image.HopFormula == HopFormulaCode::Tinseth && adjust) adjust();
        });
}

void utilization_rows(Rows& rows, SystemSettings& image) {
    change_row(rows, "first_wort_percent", image.first_wort_percent)
        .label("% Utilization Increase or Decrease for &First Wort Hopping:");
    change_row(rows, "mash_hop_percent", image.mash_hop_percent)
        .label("% Utilization Increase or Decrease for &Mash Hopping:");
    rows.number("kettle_factor", image.kettle_factor)
        .label("&Kettle Size Hop Utilization Scale Factor:")
        .range(setting_range::kettle_factor.low, setting_range::kettle_factor.high)
        .step(0.25F)
        .outside(Outside::clamp);
    rows.note("kettle_note", [&image] {
        return has_metric_volumes(image) ? "(Under 75 Liters Use 1.0)" : "(Under 20 Gallons Use 1.0)";
    });
}

void increase_rows(Rows& rows, SystemSettings& image) {
    const auto in_use = [&image] { return image.use_additional_utilization != 0; };
    rows.check("use_additional", image.use_additional_utilization)
        .label("Use &Additional Utlilization For Plug and Pellet Hops in IBU Calculations?");
    percent_row(rows, "plug_increase", image.plug_increase)
        .label("%Utilization Increase for &Plug Type Hops:")
        .enabled(in_use);
    percent_row(rows, "pellet_increase", image.pellet_increase)
        .label("%Utilization Increase for Pe&llet Type Hops:")
        .enabled(in_use);
}

void bittering_rows(Rows& rows, SystemSettings& image) {
    rows.check("display_home_bittering", image.display_home_bittering).label("&Display Home Bittering Units");
    rows.choice("bittering_unit", image.bittering_unit, {"As &HBU's", "As MB&U's"})
        .codes({1, 0})
        .enabled([&image] { return image.display_home_bittering != 0; });
}

} // namespace

void hop_settings_form(Form& form, SystemSettings& image, const HopSettingsActions& actions) {
    formula_row(form.group("Hop IBU Formula By:"), image, actions.adjust_tinseth);
    degrees_row(form.group("Storage"), "storage_temperature", image.hop_storage_temperature, image)
        .label("Default Hop &Storage Temp:");
    bittering_rows(form.group("Bittering Units"), image);
    form.next_column();
    auto& utilization = form.group("Utilization");
    utilization_rows(utilization, image);
    increase_rows(form.group("Plug and Pellet Hops"), image);
    form.group().button("help", "Help", actions.help);
    using Image = SystemSettings;
    form.restore_on_cancel(
        image, &Image::HopFormula, &Image::hop_storage_temperature, &Image::display_home_bittering,
        &Image::bittering_unit, &Image::first_wort_percent, &Image::mash_hop_percent, &Image::kettle_factor,
        &Image::use_additional_utilization, &Image::plug_increase, &Image::pellet_increase);
}

void tinseth_form(Form& form, SystemSettings& image) {
    form.rows()
        .number("tinseth_factor", image.tinseth_factor)
        .label("&Concentration Factor ( > = 1.0)")
        .range(setting_range::tinseth_factor.low, setting_range::tinseth_factor.high)
        .step(0.05F)
        .outside(Outside::clamp);
    form.restore_on_cancel(image);
}

} // namespace wortlex
