#include "mash/mash_chart.h"
#include "support/recording_surface.h"

#include <gmock/gmock.h>

#include <limits>

namespace wortlex {
namespace {

using testing::ElementsAre;

MashStep chart_step(const char* name, StepHeat heat, std::int32_t degrees, std::int32_t minutes,
                    std::int32_t heating = 5) {
    MashStep step;
    step.name.assign(name);
    step.heat_type = heat;
    step.start_temperature = step.stop_temperature = degrees;
    step.infuse_temperature = 210;
    step.rest_minutes = minutes;
    step.step_minutes = heating;
    return step;
}

// An infusion, one more and a decoction: 60 minutes, and 140 to 170 degrees on an axis from 130 to 220.
ComplexMash chart_schedule() {
    ComplexMash mash;
    mash.step_count = 3;
    mash.steps[0] = chart_step("Dough In", StepHeat::infuse, 140, 15, 0);
    mash.steps[1] = chart_step("Saccharification", StepHeat::infuse, 150, 15, 10);
    mash.steps[2] = chart_step("Mash Out", StepHeat::decoction, 170, 15, 10);
    mash.steps[2].rest_colour = 0x123456;
    return mash;
}

MashCourse course_of(const ComplexMash& mash, const MashChartOptions& options) {
    return course_of(ChartedMash{.complex = &mash}, options);
}

MashCourse course_of(const SimpleMash& mash, const InfusionExtras* infusions,
                     const MashChartOptions& options) {
    return course_of(ChartedMash{.simple = &mash, .infusions = infusions}, options);
}

std::vector<std::string> labels(const MashChart& chart) {
    std::vector<std::string> all;
    for (const auto& [at, text] : chart.labels) all.push_back(text);
    return all;
}

// 5 dots a minute, 226 / 90 dots a degree: 140 stands at 256 - 25, 150 at 256 - 50, 170 at 256 - 100.
TEST(MashChart, DrawsEachStepAsItIsHeatedAndRests) {
    const MashChartOptions options;
    const auto chart = mash_chart(course_of(chart_schedule(), options), options);
    EXPECT_THAT(chart.curve,
                ElementsAre(Point{70, 256}, Point{70, 256}, Point{70, 230}, Point{70, 230}, Point{145, 230},
                            Point{145, 230}, Point{195, 205}, Point{195, 205}, Point{270, 205},
                            Point{270, 205}, Point{295, 155}, Point{295, 155}, Point{370, 155}));
    EXPECT_THAT(chart.fills[3].corners,
                ElementsAre(Point{195, 205}, Point{270, 205}, Point{270, 256}, Point{195, 256}));
    EXPECT_EQ(chart.fills[5].colour, 0x123456U);
    EXPECT_THAT(chart.spikes.front(),
                ElementsAre(Point{295, 155}, Point{295, 55}, Point{250, 55}, Point{245, 205}))
        << "pulled 10 minutes before it was back, though it takes 5 of the axis";
    EXPECT_THAT(chart.uprights, ElementsAre(70, 220));
    EXPECT_THAT(labels(chart), ElementsAre("140 F", "150 F", "160 F", "170 F", "180 F", "190 F", "200 F",
                                           "210 F", "220 F", "0", "30", "60"));
    EXPECT_EQ(chart.labels[0].at, (Point{28, 223}));
    EXPECT_EQ(chart.labels.back().at, (Point{363, 263}));
}

TEST(MashChart, ShowsInfusionsAfterTheFirstWhereTheyAreWanted) {
    MashChartOptions options{.decoction_spikes = false, .infusion_spikes = true};
    auto mash = chart_schedule();
    const auto chart = mash_chart(course_of(mash, options), options);
    EXPECT_THAT(chart.spikes[0], ElementsAre(Point{145, 230}, Point{145, 55})) << "where its water goes in";
    EXPECT_EQ(chart.rings[0], (Box{143, 52, 148, 58}));
    EXPECT_EQ(chart.captions.back().text, "Infusion Spike");
    EXPECT_EQ(chart.captions.back().at.x, 70 + 125 + 10);
    mash.step_count = 1;
    EXPECT_TRUE(course_of(mash, options).spikes.empty());
    EXPECT_FALSE(has_infusions({.complex = &mash}) || has_decoctions({.complex = &mash}));
    options.infusion_spikes = false;
    EXPECT_EQ(course_of(mash, options).high, 150) << "the water that is not shown needs no room";
}

TEST(MashChart, StandsOutsideAllReason) {
    MashChartOptions options{.minute_grid = 1, .fine_lines = true};
    const auto empty = mash_chart(course_of(ComplexMash(), options), options);
    EXPECT_TRUE(empty.levels.empty() && empty.uprights.empty() && empty.fills.empty() &&
                empty.labels.empty());
    EXPECT_EQ(empty.captions.front().text, "Wortlex Mash Schedule Chart");

    ComplexMash mash;
    mash.step_count = 1;
    mash.steps[0] = chart_step("No Time", StepHeat::infuse, 150, 0, 0);
    const auto flat = mash_chart(course_of(mash, options), options);
    EXPECT_EQ(flat.curve.back(), (Point{70, 143})) << "all of it on the axis";

    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    for (const auto degrees : {most, -most}) {
        mash.step_count = 50;
        mash.steps.fill(chart_step("Sun", StepHeat::decoction, degrees, most, most));
        mash.steps[0].start_temperature = 0;
        const auto chart = mash_chart(course_of(mash, options), options);
        EXPECT_LE(chart.levels.size(), 227U);
        EXPECT_LE(chart.fine_levels.size(), 227U);
        EXPECT_LE(chart.uprights.size(), 301U);
        for (const auto& [x, y] : chart.curve) EXPECT_TRUE(x >= 70 && x <= 370 && y >= 30 && y <= 256);
    }
}

TEST(MashChart, LabelsEverySecondLineOfANarrowGrid) {
    MashChartOptions options{.minute_grid = 2, .units = TemperatureUnits::celsius};
    const auto course = course_of(chart_schedule(), options);
    const auto chart = mash_chart(course, options);
    EXPECT_EQ(chart.uprights.size(), 12U) << "never below 5 minutes";
    const auto words = labels(chart);
    EXPECT_THAT(words, testing::IsSupersetOf({"60 C", "0", "10", "50", "60"})) << "(140 - 32) / 1.8";
    EXPECT_THAT(words, testing::Not(testing::Contains("5")));
    options.minute_grid = 25;
    EXPECT_EQ(labels(mash_chart(course, options)).back(), "50") << "the grid does not end with the mash";
}

TEST(MashChart, NamesTenStepsOnTheScreenAndAllOnPaper) {
    ComplexMash mash;
    mash.step_count = 12;
    mash.steps.fill(chart_step("Rest", StepHeat::direct, 150, 10));
    MashChartOptions options;
    const auto course = course_of(mash, options);
    const auto screen = mash_chart(course, options).swatches;
    EXPECT_EQ(screen.size(), 10U);
    EXPECT_EQ(screen[0].box, (Box{70, 296, 76, 302}));
    EXPECT_EQ(screen[4].box.top, 340);
    EXPECT_EQ(screen[5].box, (Box{195, 301, 201, 307}));
    EXPECT_EQ(screen[0].name.at.x, 80);
    const auto paper = mash_chart(course, options, paper_frame({0, 0}, 10)).swatches;
    EXPECT_EQ(paper.size(), 12U);
    EXPECT_EQ(paper[0].box, (Box{-20, 3160, 28, 3208})) << "120, 100 and 8, times 6";
    EXPECT_EQ(paper[1].box.top, 3268);
    EXPECT_GT(mash_chart_paper_height(course, options), 316 + 11 * 10);
    options.solid_fill = false;
    EXPECT_TRUE(mash_chart(course, options).swatches.empty());
}

// 30 minutes of 10 dots: two ramps.
TEST(MashChart, RampsBetweenTheRestsOfASimpleSchedule) {
    SimpleMash mash;
    mash.mash_kind = MashKind::single_step;
    mash.acid = {100, 10};
    mash.saccharification = {150, 20};
    mash.mash_out = {170, 10};
    mash.sparge = {170, 0};
    MashChartOptions options{.infusion_spikes = true};
    InfusionExtras water;
    water.mash_out.temperature = 212;
    const auto course = course_of(mash, &water, options);
    EXPECT_EQ(std::tuple(course.minutes, course.low, course.high), std::tuple(30, 140, 222));
    const auto chart = mash_chart(course, options);
    EXPECT_THAT(chart.curve, ElementsAre(Point{70, 256}, Point{70, 228}, Point{270, 228}, Point{270, 228},
                                         Point{320, 173}, Point{370, 173}));
    EXPECT_EQ(chart.fills[1].corners.size(), 5U);
    EXPECT_THAT(chart.spikes[0], ElementsAre(Point{270, 228}, Point{270, 57}));
    EXPECT_EQ(chart.swatches[1].box, (Box{66, 313, 74, 321}));
    EXPECT_EQ(chart.swatches[1].name.at, (Point{80, 310}));
    EXPECT_EQ(chart.swatches[1].name.text, "- Mash Out");
    EXPECT_EQ(mash_chart_size(course, options), (Extent{401, 380})) << "with the row of spikes";
    EXPECT_EQ(mash_chart_size(course_of(mash, nullptr, options), options), (Extent{401, 351}));

    mash.mash_kind = MashKind::multi_step;
    for (auto* const rest : {&mash.dough_in, &mash.protein, &mash.intermediate, &mash.sparge})
        *rest = {120, 10};
    const auto full = course_of(mash, nullptr, options);
    EXPECT_EQ(mash_chart_size(full, options), (Extent{401, 351 + 3 * 11})) << "seven rests";
    std::string corners;
    for (const auto& fill : mash_chart(full, options).fills) corners += std::to_string(fill.corners.size());
    EXPECT_EQ(corners, "4455555");
    mash.acid = mash.protein = mash.intermediate = {};
    EXPECT_EQ(course_of(mash, nullptr, options).patches[1].points.size(), 2U)
        << "the dough-in alone: no ramp";
}

TEST(MashChart, IsDrawnInItsOrderAndColours) {
    const auto drawn = [](const MashChartOptions& options, const ChartFrame& frame) {
        RecordingSurface surface;
        const auto course = course_of(chart_schedule(), options);
        SystemSettings settings{};
        settings.spike_thickness = SpikeThickness::thick;
        draw_mash_chart(surface, mash_chart(course, options, frame), spike_pen(settings));
        std::vector<std::string> pens;
        for (const auto& line : surface.lines)
            if (line.starts_with("pen") && (pens.empty() || pens.back() != line)) pens.push_back(line);
        return pens;
    };
    const MashChartOptions plain{.solid_fill = false, .fine_lines = true};
    EXPECT_THAT(drawn(plain, {}),
                ElementsAre("pen FFFFFF 1 solid", "pen FFFF00 2 solid", "pen 0000FF 2 solid",
                            "pen AAAAAA 1 solid", "pen 000000 1 solid", "pen 0000FF 2 solid",
                            "pen 0000FF 2 dot", "pen 0000FF 1 solid", "pen 7D0000 1 solid"));
    EXPECT_EQ(drawn(plain, paper_frame({0, 0}, 4))[0], "pen FFFF00 8 solid") << "paper is white already";
}

} // namespace
} // namespace wortlex
