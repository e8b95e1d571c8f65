#include "base/windows1252.h"
#include "documents/forms/page_forms.h"
#include "documents/forms/yeast_rows.h"

namespace wortlex {
namespace {

std::string title_of(const BrewDocument& document) {
    return utf8_from_windows1252(document.title.view());
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
    auto& yeast = form.group("Yeast");
    yeast_rows(yeast, document.yeast.record);
    yeast.button("pick_yeast", "Pick &Yeast", actions.pick_yeast);
    form.next_column();
    water_rows(form.group("Water"), document.water, actions.pick_water);
    form.restore_on_cancel(document.yeast);
    form.restore_on_cancel(document.water);
}

} // namespace wortlex
