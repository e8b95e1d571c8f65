#include "documents/forms/result_strip.h"

#include "documents/brewing.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

struct Glance {
    Settings settings = brewing_settings();
    BrewDocument document = empty_recipe();
    RecipeFigures figures;

    Glance() {
        settings.color_units = ColorUnits::srm;
        document.og_points = 50; // 12.387 Plato
        document.total_ibu = 40;
        figures.colour.srm = 12;
        auto& style = document.style;
        style.name.assign("Brown Ale");
        style.min_og = 1.045F;
        style.max_og = 1.060F;
        style.min_fg = 1.016F;
        style.max_fg = 1.020F;
        style.min_ibu = 20;
        style.max_ibu = 30;
        style.min_colour = 12;
        style.max_colour = 20;
    }
    void pitch(int low, int high) {
        auto& yeast = document.yeast.record;
        yeast.name.assign("House Yeast");
        yeast.low_attenuation = low;
        yeast.high_attenuation = high;
    }
    ResultStrip strip() { return result_strip({document, figures, settings}); }
    std::string read() {
        std::string all;
        for (const auto& cell : strip()) all += cell.figure + cell.word + "|";
        return all;
    }
};

TEST(ResultStrip, TellsStrengthBitternessAndColour) {
    Glance glance;
    EXPECT_EQ(glance.read(), "1.050|1.012low|5.0 %|40.0high|0.80high|12.0|")
        << "RE 4.849 Plato, 3.897 % by weight; the style has a BU:GU of 20 / 60 to 30 / 45";
    EXPECT_EQ(glance.strip()[1].note, "75 % assumed");
    glance.pitch(80, 70); // a database takes them in any order
    EXPECT_EQ(glance.read(), "1.050|1.010 to 1.015low|4.7 to 5.3 %|40.0high|0.80high|12.0|")
        << "2.477 and 3.716 Plato are left";
    EXPECT_EQ(glance.strip()[1].note, "");
    glance.pitch(0, 70);
    EXPECT_EQ(glance.strip()[1].figure, "1.015") << "the one that is known";
    glance.pitch(0, 0);
    EXPECT_EQ(glance.strip()[1].note, "75 % assumed");
}

TEST(ResultStrip, ShowsTheStyleInTheMiddleOfTheBand) {
    Glance glance;
    const auto og = [&] { return glance.strip()[0]; };
    EXPECT_NEAR(og().mark->from, 0.25 + 0.5 * 5 / 15, 1e-4);
    EXPECT_EQ(spoken(og()), "OG 1.050, the style has 1.045 to 1.060");
    glance.document.og_points = 44.9996F;
    EXPECT_EQ(og().figure + og().word, "1.045") << "what is read as the limit is not outside";
    glance.document.og_points = 90;
    EXPECT_EQ(og().mark->to, 1) << "at the end, not beyond";
    EXPECT_EQ(glance.strip()[2].mark, std::nullopt) << "the style tells no alcohol";
    glance.document.style = {};
    EXPECT_EQ(og().word + og().style, "");
}

TEST(ResultStrip, ShowsNoFigureWhereThereIsNone) {
    Glance glance;
    glance.document = empty_recipe();
    glance.figures = {};
    EXPECT_EQ(glance.read(), "1.000|--|--|0.0|--|0.0|");
}

} // namespace
} // namespace wortlex
