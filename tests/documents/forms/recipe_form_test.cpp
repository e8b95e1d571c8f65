#include "documents/forms/recipe_form.h"
#include "documents/recipe_gravity.h"
#include "documents/under_work.h"
#include "measures/unit_words.h"
#include "support/form_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

// A recipe as the window shows it.
struct Shown : UnderWork {
    RecipeView& view = editor.view;
    ColorTable colours;
    RecipeSubject subject{editor, colours};

    Shown() {
        settings.bittering_unit = BitteringUnit::hbu;
        document.malts = {malt(MaltType::grain, 1.037F, 7.5F, false, 0, 2.6F),
                          malt(MaltType::extract, 1.036F, 2.5F, true, 0, 120.4F)};
        document.malts[0].record.name.assign("Ch\xE2teau Pilsen 2-Row Malted Barley");
        document.malts[0].record.origin.assign("United Kingdom");
        document.hops = {hop(12.6F, 0.5F, 60), hop(4, 2, 61), hop(4, 1, 62), hop(4, 1, -5), hop(4, 1, 63)};
        document.boil_minutes = 60;
        figures.total_grain = 10;
        figures.lines = {{1.0391, 3.2, 0}, {1.0182, 1.6, 0}};
        figures.total_extract_pounds = 4.8;
    }

    std::string row(auto cell, std::size_t line) const {
        std::string all;
        for (std::size_t column = 0; column < 6; ++column)
            all += (column == 0 ? "" : "\t") + cell(editor.open, view, line, column);
        return all;
    }
};

TEST(RecipeLists, HaveTheirFormats) {
    Shown shown;
    EXPECT_EQ(shown.row(malt_cell, 0),
              "Ch\u00e2teau Pilsen 2-Row Malted\tUnited Kingd\t  1.037\t     3\t  7.50\t 75.0");
    EXPECT_EQ(shown.row(malt_cell, 1), "\t\t  1.036\t   120\t  2.50\t 25.0");
    EXPECT_EQ(shown.row(hop_cell, 0), "\tWhole\t  12.60\t 0.0\t   0.50\t 60");
    for (const auto& [line, time] : {std::pair{1U, "FW"}, {2U, "MH"}, {3U, "Dry"}, {4U, " 63"}})
        EXPECT_EQ(hop_cell(shown.editor.open, shown.view, line, 5), time);
    shown.view.show_potential = shown.view.show_ibu = false;
    EXPECT_EQ(malt_cell(shown.editor.open, shown.view, 0, 2), "  1.039");
    EXPECT_EQ(hop_cell(shown.editor.open, shown.view, 0, 3), " 6.3") << "12.6 x 0.5";
    shown.settings.bittering_unit = BitteringUnit::mbu;
    EXPECT_EQ(hop_cell(shown.editor.open, shown.view, 0, 3), "178.6") << "12.6 x 0.5 x 28.35";
}

TEST(RecipeLists, FollowTheUnits) {
    Shown shown;
    shown.settings.weight_units = shown.settings.hop_weight_units = Units::metric;
    shown.settings.color_units = ColorUnits::ebc_new;
    shown.settings.potential_display = PotentialDisplay::points;
    shown.settings.plato_precision = 1;
    EXPECT_EQ(shown.row(malt_cell, 1), "\t\t  36.00\t   237\t  1.13\t 25.0")
        << "120.4 x 1.97, 2.5 x 453.6 / 1000";
    EXPECT_EQ(hop_cell(shown.editor.open, shown.view, 1, 4), "  56.70") << "2 x 28.35";
    shown.settings.sg_precision = 2;
    shown.settings.potential_display = PotentialDisplay::sg;
    EXPECT_EQ(malt_cell(shown.editor.open, shown.view, 0, 2), "1.03700") << "seven wide: the pattern's width";
}

TEST(RecipeLists, NameTheirColumns) {
    Shown shown;
    const auto& settings = shown.settings;
    const auto heads = [&] {
        return malt_value_head(shown.view, settings) + "|" + malt_colour_head(settings) + "|" +
               grain_unit(settings).dotted + "|" + hop_bitterness_head(shown.view, settings) + "|" +
               hop_list_word(settings) + "|" + size_label("Batch Size", settings);
    };
    EXPECT_EQ(heads(), "Potential SG pppg|Color L~|Lbs.|IBU|Oz.|Batch Size (GAL)");
    shown.settings.potential_display = PotentialDisplay::percent_yield;
    shown.settings.yield_type = YieldType::coarse_as_is;
    shown.settings.system_mode = SystemMode::pro_brewer;
    EXPECT_EQ(heads(), "Potential% Yield - CAI|Color L~|Lbs.|IBU|Lbs|Batch Size (bbl)");
    shown.settings.volume_units = shown.settings.weight_units = shown.settings.hop_weight_units =
        Units::metric;
    shown.settings.extract_display = ExtractDisplay::weight;
    shown.settings.color_units = ColorUnits::ebc_traditional;
    shown.view.show_potential = shown.view.show_ibu = false;
    EXPECT_EQ(heads(), " Extract  kg|Color EBC|kg|HBU|kg|Batch Size (hL)");
}

TEST(RecipeForm, ShowsFiguresAndStyle) {
    Shown shown;
    Form form;
    recipe_form(form, shown.subject);
    const auto text = [&](std::string_view key) { return content_of(form, key); };
    shown.document.og_points = 48.6F;
    shown.document.total_ibu = 35.25F;
    EXPECT_EQ(text("sg") + "|" + text("total_ibu") + "|" + text("total_grain") + "|" + text("efficiency"),
              "1.049|35.2|10.00|75");
    EXPECT_EQ(text("style_name") + text("min_sg") + text("style_book"), "") << "no style was chosen";
    shown.document.style.name.assign("Bitter");
    shown.document.style.min_og = 1.032F;
    shown.document.style.max_ibu = 35;
    shown.document.style.type = BeerType::mixed;
    EXPECT_EQ(text("style_name") + "|" + text("min_sg") + "|" + text("max_ibu") + "|" + text("style_type") +
                  "|" + text("style_book"),
              "Bitter|1.032|35|Ale/Lager (mixed)|AHA");
    shown.document.recipe_kind = RecipeKind::extract;
    EXPECT_FALSE(form.row("efficiency").is_enabled());
    EXPECT_EQ(shown.document.efficiency, 0.75F);
    auto& choice = dynamic_cast<ChoiceRow&>(form.row("show_potential"));
    EXPECT_TRUE(choice.option_when(0));
    shown.settings.efficiency_mode = EfficiencyMode::method_2;
    EXPECT_FALSE(choice.option_when(0));
    EXPECT_TRUE(choice.option_when(1));
}

} // namespace
} // namespace wortlex
