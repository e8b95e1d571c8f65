#include "program/settings_forms/efficiency_settings.h"

#include "measures/unit_words.h"
#include "program/settings_forms/settings_rows.h"

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

constexpr float usual_sucrose = 46.21F;

constexpr const char* method_1_words =
    "Method #1 - A seperate extract potential for each grain is used and displayed. Each grain will yield "
    "extract according to its potential as modified by the brewhouse efficiency. This is the default method "
    "used in Wortlex.";
constexpr const char* method_2_words =
    "Method #2 - All grains are treated as if they yield extract equal to their weights reduced by the "
    "adjustable brewhouse efficiency.";
constexpr const char* sucrose_meaning =
    "Points for gravity computations are based on the specific gravity points per pound of sucrose dissolved "
    "per gallon of wort. The default value of 46.21 is a generally accepted value.";
constexpr const char* sucrose_advice =
    "Note however that this value may change slightly with the concentration of wort and some authors use a "
    "value other than the default. You may, therefore, want to enter a different value for this parameter.";

constexpr std::array yield_names = {"Fine Grind Dry Basis", "Fine Grind As Is", "Coarse Grind Dry Basis",
                                    "Coarse Grind As Is"};

std::string percent_yield_words(const SystemSettings& image) {
    const auto type =
        std::min<std::size_t>(static_cast<std::size_t>(image.yield_type), yield_names.size() - 1);
    return std::string("As % &Yield - ") + yield_names[type];
}

void potential_row(Rows& rows, SystemSettings& image) {
    rows.choice("potential_display", image.potential_display,
                {"&SG", "&Points", "&HWE", "P&lato", [&image] { return percent_yield_words(image); }})
        .look(ChoiceRow::Look::down)
        .changed([&image] {
            image.percent_yield_selected = image.potential_display == PotentialDisplay::percent_yield ? 1 : 0;
        });
}

void contribution_row(Rows& rows, SystemSettings& image) {
    const auto weight = [&image] { return std::string("&Extract ") + extract_weight_word(image); };
    rows.choice("extract_display", image.extract_display,
                {"S&G", "Po&ints", weight, "Pla&to", "% &of Total Extract"})
        .look(ChoiceRow::Look::down);
}

bool is_by_points(const SystemSettings& image) {
    return image.gravity_base == GravityBase::points;
}

bool has_potentials(const SystemSettings& image) {
    return image.efficiency_method_setting == EfficiencyMethod::method_1;
}

void sucrose_rows(Rows& rows, SystemSettings& image) {
    const auto by_points = [&image] { return is_by_points(image); };
    const auto set = [&image](float value) {
        if (is_by_points(image) && image.reserved_1324 != 1) image.sucrose_value = value;
    };
    rows.number("sucrose_value", {[&image] { return image.sucrose_value; }, set})
        .label("Hard S&ucrose Value")
        .range(setting_range::sucrose_value.low, setting_range::sucrose_value.high)
        .step(0.1F)
        .format("%0.4f")
        .outside(Outside::clamp)
        .enabled(by_points)
        .when_disabled(" ");
    rows.note("sucrose_meaning", sucrose_meaning).enabled(by_points);
    rows.note("sucrose_advice", sucrose_advice).enabled(by_points);
}

// Each way begins with points and the usual sucrose.
void set_up(SystemSettings& image, EfficiencyMethod method) {
    image.efficiency_method_setting = method;
    image.gravity_base = GravityBase::points;
    image.sucrose_value = usual_sucrose;
}

void setup_buttons(Rows& rows, SystemSettings& image) {
    rows.button("home_brewer", "Typical Home&brewer", [&image] {
        set_up(image, EfficiencyMethod::method_1);
        image.yield_type = YieldType::fine_dry_basis;
    });
    rows.button("pro_brewer", "Typical P&robrewer", [&image] {
        set_up(image, EfficiencyMethod::method_1);
        image.yield_type = YieldType::coarse_as_is;
    });
    rows.button("no_potential", "Do &Not Use Potential",
                [&image] { set_up(image, EfficiencyMethod::method_2); });
}

} // namespace

void efficiency_settings_form(Form& form, SystemSettings& image, const EfficiencyButtons& buttons) {
    percent_row(form.group(), "efficiency", image.efficiency).label("Default &Brewhouse Efficiency:");
    potential_row(form.group("Show Extract Potential As:"), image);
    form.next_column();
    contribution_row(form.group("Show Actual Extract Contribution As:"), image);
    form.group("Within A Recipe Grain List, Default to View Ingredient Contribution As:")
        .choice("view_actual_extract", image.view_actual_extract, {"Potential E&xtract", "A&ctual Extract"});
    auto& below = form.group();
    below.button("advanced", "&Advanced Settings", buttons.advanced);
    below.button("help", "Help", buttons.help);
    using Image = SystemSettings;
    form.restore_on_cancel(image, &Image::efficiency, &Image::potential_display,
                           &Image::percent_yield_selected, &Image::extract_display,
                           &Image::view_actual_extract);
}

void advanced_efficiency_form(Form& form, SystemSettings& image, std::function<void()> help) {
    form.group("Efficiency Calculation &Method")
        .choice("method", image.efficiency_method_setting, {method_1_words, method_2_words})
        .look(ChoiceRow::Look::down);
    setup_buttons(form.group("Common Settings For Fast Setup"), image);
    form.next_column();
    form.group("Yield Type For Gravity Prediction")
        .choice(
            "yield_type", image.yield_type,
            {"&Fine Grind Dry Basis", "Fine Grind As &Is", "&Coarse Grind Dry Basis", "Coarse Grind &As Is"})
        .look(ChoiceRow::Look::down)
        .enabled([&image] { return has_potentials(image); });
    auto& base = form.group("Base Final Gravity Calculation On:");
    base.choice("gravity_base", image.gravity_base, {"&Points", "Ma&ss"});
    sucrose_rows(base, image);
    form.group().button("help", "Help", std::move(help));
    form.restore_on_cancel(image);
}

} // namespace wortlex
