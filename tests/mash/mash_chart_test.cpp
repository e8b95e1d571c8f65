#include "mash/mash_chart_form.h"
#include "support/form_user.h"
#include "support/recording_surface.h"

#include <gmock/gmock.h>

#include <limits>

namespace wortlex {

// Places are told as their figures.
void PrintTo(const Point& at, std::ostream* out) {
    *out << at.x << ',' << at.y;
}
void PrintTo(const Box& box, std::ostream* out) {
    *out << box.left << ',' << box.top << ',' << box.right << ',' << box.bottom;
}
void PrintTo(const ChartText& text, std::ostream* out) {
    *out << text.at.x << ',' << text.at.y << ' ' << text.text;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Corners = std::vector<Point>;

MATCHER_P3(Reads, x, y, words, "") {
    return arg.at == Point{x, y} && arg.text == words;
}

// A rest at 104 F, and a decoction that was pulled 25 minutes before it is back: 100 minutes, 3 pixels each.
struct Decocted {
    ComplexMash mash;
    MashChartOptions options;

    Decocted() {
        mash.step_count = 2;
        mash.mash_name.assign("Bock");
        take(0, {"Acid", StepHeat::direct, 104, 104, 0, 20, 10});
        take(1, {"Sugar", StepHeat::decoction, 150, 148, 212, 65, 25});
    }
    struct Figures {
        const char* name;
        StepHeat heat;
        int start, stop, infuse, rest, step;
    };
    void take(std::size_t at, const Figures& figures) {
        auto& step = mash.steps[at];
        step.name.assign(figures.name);
        step.heat_type = figures.heat;
        step.start_temperature = figures.start;
        step.stop_temperature = figures.stop;
        step.infuse_temperature = figures.infuse;
        step.rest_minutes = figures.rest;
        step.step_minutes = figures.step;
    }
    MashCourse course() const { return course_of(charted(mash), options); }
    MashChart chart(const ChartFrame& frame = {}) const { return mash_chart(course(), options, frame); }
};

std::vector<Corners> corners_of(const MashChart& chart) {
    std::vector<Corners> all;
    for (const auto& fill : chart.fills) all.push_back(fill.corners);
    return all;
}

// From 94 to 222 F, 226 / 128 pixels a degree: 104 F is 10 * 1.7656 = 17.7 above the axis at 256.
TEST(MashChart, ADecoctionTakesFiveMinutesAndRunsBackToWhereItWasPulled) {
    const Decocted mash;
    const auto chart = mash.chart();
    EXPECT_THAT(corners_of(chart), ElementsAre(Corners{{70, 256}, {100, 238}, {100, 256}, {70, 256}},
                                               Corners{{100, 238}, {160, 238}, {160, 256}, {100, 256}},
                                               Corners{{160, 238}, {175, 157}, {175, 256}, {160, 256}},
                                               Corners{{175, 157}, {370, 160}, {370, 256}, {175, 256}}));
    EXPECT_EQ(chart.curve.front(), (Point{70, 256}));
    EXPECT_EQ(chart.curve.back(), (Point{370, 160}));
    EXPECT_THAT(chart.spikes.front(),
                ElementsAre(Point{175, 157}, Point{175, 47}, Point{105, 47}, Point{100, 238}));
    EXPECT_THAT(chart.uprights, ElementsAre(70, 160, 250, 340));
    ASSERT_THAT(chart.levels, SizeIs(13)) << "100 to 220 F";
    EXPECT_EQ(chart.levels.front(), 245);
    EXPECT_EQ(chart.levels.back(), 33);
    EXPECT_THAT(chart.labels.front(), Reads(28, 238, "100 F"));
    EXPECT_THAT(chart.labels.back(), Reads(333, 263, "90")) << "100 is no line of the grid";
    EXPECT_THAT(chart.captions.front(), Reads(70, 4, "Bock"));
    EXPECT_THAT(chart.captions.back(), Reads(80, 364, "Decoction Spike"));
    EXPECT_EQ(chart.swatches.at(1).box, (Box{70, 307, 76, 313})) << "the second of the legend";
    EXPECT_EQ(chart.swatches.at(1).name.text, "Sugar");
    EXPECT_EQ(words_of_mash_chart(mash.course(), TemperatureUnits::celsius),
              "Mash chart: Acid 40 C for 20 min, Sugar 66 C for 65 min; 100 minutes in all");
}

// Without its spike the chart goes from 94 to 160 F, and the highest line is the frame itself.
TEST(MashChart, ItsOptionsChangeTheScaleTheGridAndTheLegend) {
    Decocted mash;
    mash.options = {.minute_grid = 5,
                    .units = TemperatureUnits::celsius,
                    .solid_fill = false,
                    .fine_lines = true,
                    .decoction_spikes = false,
                    .infusion_spikes = true};
    const auto chart = mash.chart();
    EXPECT_THAT(chart.spikes, IsEmpty());
    EXPECT_THAT(chart.swatches, IsEmpty());
    EXPECT_THAT(chart.fine_levels, SizeIs(32)) << "96 to 158 F";
    EXPECT_THAT(chart.levels, SizeIs(6)) << "100 to 150 F";
    EXPECT_THAT(chart.labels.front(), Reads(28, 228, "37 C")) << "100 F, 6 * 3.424 above the axis";
    EXPECT_THAT(chart.labels.at(6), Reads(28, 23, "71 C")) << "one more, on the frame";
    EXPECT_THAT(chart.uprights, SizeIs(20));
    EXPECT_THAT(chart.labels.at(8), Reads(93, 263, "10")) << "every second line";
    EXPECT_THAT(chart.labels.back(), Reads(363, 263, "100")) << "where the grid ends";
}

TEST(MashChart, AnInfusionIsALineWithARingAtTheStartOfItsHeating) {
    Decocted mash;
    mash.options.infusion_spikes = true;
    mash.mash.steps[0].heat_type = mash.mash.steps[1].heat_type = StepHeat::infuse;
    const auto chart = mash.chart(); // 10 + 20 + 25 + 65 minutes: 2.5 pixels each
    EXPECT_THAT(chart.spikes.front(), ElementsAre(Point{145, 238}, Point{145, 47}))
        << "none of the first step";
    EXPECT_EQ(chart.rings.front(), (Box{143, 44, 148, 50}));
    EXPECT_THAT(chart.captions.back(), Reads(205, 364, "Infusion Spike"));
}

// What was poured in by a brewer without a kettle, or by nobody, is drawn within its frame, and soon.
TEST(MashChart, DrawsEverySchedule) {
    Decocted none;
    none.mash.step_count = 0;
    const auto empty = none.chart();
    EXPECT_THAT(empty.fills, IsEmpty());
    EXPECT_THAT(empty.labels, IsEmpty());
    EXPECT_EQ(empty.axis_captions.front().text, "Time (in minutes)");

    Decocted flat;
    flat.mash.step_count = 1;
    flat.mash.steps[0].rest_minutes = flat.mash.steps[0].step_minutes = 0;
    EXPECT_THAT(corners_of(flat.chart()), ElementsAre(Corners{{70, 256}, {70, 143}, {70, 256}, {70, 256}}))
        << "in the middle of 94 to 114 F";
    EXPECT_THAT(flat.chart().uprights, IsEmpty());

    Decocted wild;
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    wild.take(0, {"", StepHeat::direct, -most, most, 0, most, 0});
    wild.options.fine_lines = true;
    const auto chart = wild.chart();
    EXPECT_LE(chart.uprights.size(), 301U);
    EXPECT_LE(chart.levels.size() + chart.fine_levels.size(), 2 * 227U);
    for (const auto& point : chart.curve)
        EXPECT_TRUE(point.x >= 70 && point.x <= 370 && point.y >= 30 && point.y <= 256);
}

TEST(MashChart, ItsLegendHasTenNamesOnTheScreenAndAllOnPaper) {
    Decocted mash;
    mash.mash.step_count = 12;
    for (std::size_t i = 2; i < 12; ++i) mash.mash.steps[i] = mash.mash.steps[0];
    const auto screen = mash.chart();
    ASSERT_THAT(screen.swatches, SizeIs(10));
    EXPECT_EQ(screen.swatches[5].box, (Box{195, 301, 201, 307}));
    EXPECT_THAT(screen.swatches[5].name, Reads(205, 298, "Acid"));
    const auto paper = mash.chart(paper_frame({0, 0}, 10));
    ASSERT_THAT(paper.swatches, SizeIs(12));
    EXPECT_EQ(paper.swatches[1].box, (Box{0, 3268, 46, 3314})) << "118 * 6 below the frame at 2560";
    EXPECT_EQ(paper.captions.front().text, "Bock - Wortlex Mash Schedule Chart");
    EXPECT_GT(mash_chart_paper_height(mash.course(), mash.options), 256 + 60 + 11 * 10);
}

// Dough in and three rests in 120 minutes, from 94 to 178 F: 2.5 pixels a minute, 226 / 84 a degree.
struct Stepped {
    SimpleMash mash;
    InfusionExtras infusions;
    MashChartOptions options;

    Stepped() {
        mash.mash_kind = MashKind::multi_step;
        mash.dough_in = {104, 20};
        mash.protein = {122, 30};
        mash.saccharification = {152, 60};
        mash.mash_out = {168, 10};
        options.infusion_spikes = true;
    }
    MashCourse course() const { return course_of(charted(mash, &infusions), options); }
    MashChart chart() const { return mash_chart(course(), options); }
};

TEST(SimpleMashChart, EachRestClimbsFiveMinutesOfItsOwnTime) {
    Stepped stepped;
    EXPECT_THAT(corners_of(stepped.chart()),
                ElementsAre(Corners{{70, 229}, {120, 229}, {120, 256}, {70, 256}},
                            Corners{{120, 229}, {132, 180}, {195, 180}, {195, 256}, {120, 256}},
                            Corners{{195, 180}, {207, 99}, {345, 99}, {345, 256}, {195, 256}},
                            Corners{{345, 99}, {357, 56}, {370, 56}, {370, 256}, {345, 256}}));
    EXPECT_EQ(stepped.chart().captions.front().text, "Wortlex Mash Schedule Chart");
    stepped.mash.mash_kind = MashKind::single_step;
    const auto single = stepped.chart();
    ASSERT_THAT(single.fills, SizeIs(3)) << "no protein rest";
    EXPECT_THAT(single.fills[1].corners, SizeIs(4)) << "a dough-in alone gives no ramp";
    EXPECT_THAT(single.fills[2].corners, SizeIs(5));
}

TEST(SimpleMashChart, ItsInfusionsAreThoseOfASessionHeatedByThem) {
    Stepped stepped;
    stepped.infusions.saccharification.temperature = 212;
    EXPECT_FALSE(has_infusions(charted(stepped.mash, &stepped.infusions)));
    EXPECT_FALSE(has_infusions(charted(stepped.mash, nullptr)));
    EXPECT_THAT(stepped.chart().spikes, IsEmpty());
    stepped.infusions.heat_type = SimpleHeat::infusion;
    const auto chart = stepped.chart(); // from 94 to 222 F
    EXPECT_THAT(chart.spikes.front(), ElementsAre(Point{195, 206}, Point{195, 47}));
    EXPECT_EQ(chart.captions.back().text, "Infusion Spike");
}

TEST(SimpleMashChart, ALongLegendMakesItHigher) {
    Stepped stepped;
    EXPECT_EQ(mash_chart_size(stepped.course(), stepped.options), (Extent{401, 351}));
    stepped.mash.acid = {110, 10};
    stepped.mash.intermediate = {140, 10};
    stepped.mash.sparge = {170, 10};
    EXPECT_EQ(mash_chart_size(stepped.course(), stepped.options), (Extent{401, 351 + 3 * 11}));
    EXPECT_THAT(stepped.chart().swatches.back().name, Reads(80, 256 + 50 + 6 * 11 - 7, "- Sparge"));
}

std::size_t place_of(const RecordingSurface& surface, std::string_view call) {
    const auto found = std::find_if(surface.lines.begin(), surface.lines.end(),
                                    [call](const std::string& line) { return line.starts_with(call); });
    EXPECT_NE(found, surface.lines.end()) << call;
    return static_cast<std::size_t>(found - surface.lines.begin());
}

TEST(MashChart, IsDrawnInItsOrderWithThePensOfItsOptions) {
    Decocted mash;
    RecordingSurface solid;
    draw_mash_chart(solid, mash.chart(), {0x0000FF, 2, PenStyle::dot});
    EXPECT_LT(place_of(solid, "pen FFFF00 2"), place_of(solid, "polygon"));
    EXPECT_LT(place_of(solid, "polygon"), place_of(solid, "text 28,238 100 F"));
    EXPECT_LT(place_of(solid, "text 28,238 100 F"), place_of(solid, "polyline 70,256"));
    EXPECT_LT(place_of(solid, "polyline 70,256"), place_of(solid, "pen 0000FF 2 dot"));
    EXPECT_LT(place_of(solid, "polyline 175,157"), place_of(solid, "pen 7D0000 1"));
    EXPECT_LT(place_of(solid, "pen 7D0000 1"), place_of(solid, "text 80,304 Sugar"));
    mash.options.solid_fill = false;
    RecordingSurface plain;
    draw_mash_chart(plain, mash.chart(), {0x0000FF});
    EXPECT_LT(place_of(plain, "pen 0000FF 2 solid"), place_of(plain, "brush FFFF00"));
}

TEST(MashChartForm, SpikesCanBeChosenWhereTheScheduleHasThem) {
    Decocted mash;
    SystemSettings settings;
    FormUser user;
    mash_chart_form(user.form, [&mash] { return charted(mash.mash); }, mash.options, settings, {});
    const auto is_on = [&user](const char* key) { return user.row<CheckRow>(key).checked.get(); };
    mash.options.infusion_spikes = true;
    EXPECT_TRUE(is_on("decoction_spikes"));
    EXPECT_FALSE(is_on("infusion_spikes") || user.can("infusion_spikes"));
    mash.mash.steps[1].heat_type = StepHeat::infuse;
    EXPECT_FALSE(is_on("decoction_spikes") || user.can("decoction_spikes"));
    EXPECT_TRUE(is_on("infusion_spikes"));
    user.type("minute_grid", "3");
    EXPECT_EQ(mash.options.minute_grid, 5);

    MashChartChoice choice;
    follow_units(choice, TemperatureUnits::celsius);
    choice.options.units = TemperatureUnits::fahrenheit;
    follow_units(choice, TemperatureUnits::celsius);
    EXPECT_EQ(choice.options.units, TemperatureUnits::fahrenheit) << "the user's choice";
}

} // namespace
} // namespace wortlex
