#include "base/windows1252.h"
#include "databases/yeasts.h"
#include "documents/forms/page_forms.h"
#include "measures/units.h"

namespace wortlex {
namespace {

std::string title_of(const BrewDocument& document) {
    return utf8_from_windows1252(document.title.view());
}

std::string flocculation_word(const YeastRecord& yeast) {
    switch (yeast.flocculation) {
    case Flocculation::high:
        return "High";
    case Flocculation::medium:
        return "Medium";
    case Flocculation::low:
        return "Low";
    }
    return "";
}

// What the document says of a yeast, blank as long as there is none.
ShownRow& yeast_row(Rows& rows, std::string key, const YeastRecord& yeast,
                    std::function<std::string(const YeastRecord&)> text) {
    return rows.shown(std::move(key),
                      [&yeast, text = std::move(text)] { return yeast.name.empty() ? "" : text(yeast); });
}

void yeast_text(Rows& rows, std::string key, const std::string& label, const YeastRecord& yeast,
                std::function<std::string(const YeastRecord&)> text) {
    yeast_row(rows, std::move(key), yeast, std::move(text)).label(label);
}

void yeast_figure(Rows& rows, std::string key, const YeastRecord& yeast,
                  std::function<std::string(const YeastRecord&)> text) {
    yeast_row(rows, std::move(key), yeast, std::move(text)).figure();
}

void yeast_rows(Rows& rows, const YeastRecord& yeast, std::function<void()> pick) {
    yeast_text(rows, "lab", "Lab", yeast, [](const auto& y) { return utf8_from_windows1252(y.lab.view()); });
    yeast_text(rows, "yeast_name", "Name", yeast,
               [](const auto& y) { return utf8_from_windows1252(y.name.view()); });
    yeast_text(rows, "catalog_number", "Catalog #", yeast,
               [](const auto& y) { return utf8_from_windows1252(y.catalog_number.view()); });
    yeast_text(rows, "yeast_kind", "Type", yeast,
               [](const auto& y) { return std::string(kind_word(y.yeast_kind)); });
    yeast_text(rows, "yeast_medium", "Medium", yeast,
               [](const auto& y) { return std::string(medium_word(y.yeast_medium)); });
    yeast_text(rows, "flocculation", "Flocculation", yeast, flocculation_word);
    auto& attenuation = rows.grid("attenuation", {"Low", "High"}).line("Apparent Attenuation:");
    yeast_figure(attenuation, "low_attenuation", yeast,
                 [](const auto& y) { return formatted("%d", y.low_attenuation); });
    yeast_figure(attenuation, "high_attenuation", yeast,
                 [](const auto& y) { return formatted("%d", y.high_attenuation); });
    auto& temperature =
        rows.grid("temperature", {"Degrees F", "Degrees C"}).line("Optimum Fermentation Temp:");
    yeast_figure(temperature, "fahrenheit", yeast,
                 [](const auto& y) { return formatted("%0.1f", y.optimum_temperature); });
    yeast_figure(temperature, "celsius", yeast, [](const auto& y) {
        return formatted("%0.1f", celsius_from_fahrenheit(y.optimum_temperature));
    });
    rows.button("pick_yeast", "Pick &Yeast", std::move(pick));
}

void water_rows(Rows& rows, const WaterRecord& water, std::function<void()> pick) {
    rows.shown("profile", [&water] { return utf8_from_windows1252(water.name.view()); })
        .label("Profile Water");
    const auto ion = [&rows](const char* key, const char* label, const float& value) {
        rows.shown_number(
                key, [&value] { return value; }, "%4.1f")
            .label(label)
            .unit("ppm");
    };
    ion("calcium", "Calcium (Ca)", water.calcium);
    ion("magnesium", "Magnesium (Mg)", water.magnesium);
    ion("sodium", "Sodium (Na)", water.sodium);
    ion("sulfate", "Sulfate (SO4)", water.sulfate);
    ion("chloride", "Chloride (Cl)", water.chloride);
    ion("bicarbonate", "biCarbonate (HCO3)", water.bicarbonate);
    rows.shown_number(
            "ph", [&water] { return water.ph; }, "%4.2f")
        .label("PH");
    rows.button("pick_water", "Pick &Water", std::move(pick));
}

} // namespace

void set_yeast(RecipeEditor& editor, const YeastRecord& yeast) {
    editor.open.document.yeast.record = yeast;
    tell_change(editor);
}

void set_water(RecipeEditor& editor, const WaterRecord& water) {
    editor.open.document.water = water;
    tell_change(editor);
}

void yeast_water_form(Form& form, RecipeEditor& editor, const YeastWaterActions& actions) {
    auto& document = editor.open.document;
    auto& recipe = form.group("Recipe");
    recipe.shown("title", [&document] { return title_of(document); }).label("Recipe Name:").width(36);
    recipe.shown("style_name", [&document] { return utf8_from_windows1252(document.style.name.view()); })
        .label("Style");
    recipe
        .shown("style_type",
               [&document] {
                   return has_style(document) ? std::string(beer_type_word(document.style.type)) : "";
               })
        .label("Type");
    yeast_rows(form.group("Yeast"), document.yeast.record, actions.pick_yeast);
    form.next_column();
    water_rows(form.group("Water"), document.water, actions.pick_water);
    form.restore_on_cancel(document.yeast);
    form.restore_on_cancel(document.water);
}

} // namespace wortlex
