#include "program/settings_forms/colour_settings.h"

#include "base/number.h"
#include "measures/units.h"
#include "program/settings_forms/settings_rows.h"

namespace wortlex {
namespace {

struct Sample {
    float srm;
    const char* key;
    const char* name;
};

constexpr std::array samples = {Sample{2, "straw", "Straw"},          Sample{6, "gold", "Gold"},
                                Sample{10, "copper", "Copper"},       Sample{15, "light_brown", "Lt Brown"},
                                Sample{20, "dark_brown", "Dk Brown"}, Sample{30, "black", "Black"}};

Settings working_values(const SystemSettings& image) {
    auto repaired = image;
    return settings_from(repaired);
}

const char* unit_heading(ColorUnits unit) {
    switch (unit) {
    case ColorUnits::ebc_new:
        return "EBC Units - New Method";
    case ColorUnits::ebc_traditional:
        return "EBC Units - Traditional";
    default:
        return "SRM Units (Lovibond)";
    }
}

// Number, patch and name below each other.
void sample_rows(Rows& rows, const SystemSettings& image, const ColorTable& table) {
    std::vector<Live<std::string>> numbers;
    numbers.reserve(samples.size());
    for (const auto& sample : samples)
        numbers.emplace_back(
            [&image, sample] { return fixed(to_shown_colour(sample.srm, working_values(image)), 1); });
    auto& grid = rows.grid("samples", std::move(numbers));
    auto& patches = grid.line("");
    auto& names = grid.line("");
    for (const auto& sample : samples) {
        patches
            .swatch(sample.key, [&image, &table,
                                 sample] { return swatch_colour(table, sample.srm, working_values(image)); })
            .hint(sample.name);
        names.note(std::string(sample.key) + "_name", sample.name);
    }
}

// Whole numbers that may be negative.
NumberRow& adjustment_row(Rows& rows, const char* key, const char* label, Binding<float> value) {
    return held_within(rows.signed_number(key, std::move(value)), {setting_range::calibration, 1, "%0.0f"})
        .label(label);
}

void calibration_rows(Rows& rows, SystemSettings& image) {
    adjustment_row(rows, "red", "&Red", image.calibration_red);
    adjustment_row(rows, "green", "&Green", image.calibration_green);
    adjustment_row(rows, "blue", "&Blue", image.calibration_blue);
    rows.note("calibration_range", "( Range is -100 to 100 )");
    rows.note("calibration_defaults", "( Defaults are Red=0, Green=0, Blue=0 )");
}

// Unchecking leaves no alpha in use.
Binding<bool> mode_switch(AlphaMode& mode, AlphaMode own) {
    return {[&mode, own] { return mode == own; },
            [&mode, own](bool is_on) { mode = is_on ? own : AlphaMode::not_used; }};
}

void global_alpha_rows(Rows& rows, SystemSettings& image) {
    const auto is_global = [&image] { return image.alpha_mode == AlphaMode::global_value; };
    rows.check("use_global", mode_switch(image.alpha_mode, AlphaMode::global_value))
        .label("Use Global &Value");
    rows.integer("global_alpha",
                 Binding<std::int32_t>([&image] { return global_alpha(image); },
                                       [&image](std::int32_t alpha) { set_global_alpha(image, alpha); }))
        .label("Global &Alpha:")
        .range(1, 255)
        .step(1)
        .outside(Outside::clamp)
        .enabled(is_global);
    rows.note("alpha_range", "( Range is 1 to 255 )").enabled(is_global);
}

void table_alpha_rows(Rows& rows, SystemSettings& image) {
    const auto is_from_table = [&image] { return image.alpha_mode == AlphaMode::from_table; };
    rows.check("use_table", mode_switch(image.alpha_mode, AlphaMode::from_table))
        .label("Use &Default Values");
    adjustment_row(rows, "global_adjust", "Global Ad&just:",
                   {[&image] { return static_cast<float>(global_adjust(image)); },
                    [&image](float adjust) { set_global_adjust(image, truncate(adjust)); }})
        .enabled(is_from_table);
    rows.note("adjust_range", "( Range is -100 to 100 )").enabled(is_from_table);
}

} // namespace

void colour_settings_form(Form& form, SystemSettings& image, std::function<void()> calibrate,
                          std::function<void()> help) {
    form.group("Color Formula By:")
        .choice("formula", image.color_formula, {"&Morey", "M&osher", "&Daniels"})
        .look(ChoiceRow::Look::down);
    form.group("Display Color As:")
        .choice("unit", image.color_units, {"&SRM (Lovibond)", "EBC - &New Method", "EBC - &Traditional"})
        .look(ChoiceRow::Look::down);
    auto& buttons = form.group();
    buttons.button("calibrate", "&Color Swatch Calibration", std::move(calibrate));
    buttons.button("help", "&Help", std::move(help));
    form.restore_on_cancel(image, &SystemSettings::color_formula, &SystemSettings::color_units);
}

std::int32_t global_alpha(const SystemSettings& image) {
    return image.color_alpha & 0xFF;
}

std::int32_t global_adjust(const SystemSettings& image) {
    return image.color_alpha >> 8;
}

void set_global_alpha(SystemSettings& image, std::int32_t alpha) {
    image.color_alpha = global_adjust(image) * 256 + alpha;
}

void set_global_adjust(SystemSettings& image, std::int32_t adjust) {
    image.color_alpha = adjust * 256 + global_alpha(image);
}

void colour_calibration_form(Form& form, SystemSettings& image, const ColourCalibrationUse& use) {
    sample_rows(form.group(unit_heading(image.color_units)), image, use.table);
    calibration_rows(form.group("RGB Calibration Values"), image);
    auto& alpha = form.group("Alpha (Transparency) Parameters");
    global_alpha_rows(alpha, image);
    table_alpha_rows(alpha, image);
    form.group().button("edit_table", "Color &Spectrum Utility", use.edit_table);
    form.restore_on_cancel(image);
    if (use.restore_table) form.on_cancel(use.restore_table);
}

} // namespace wortlex
