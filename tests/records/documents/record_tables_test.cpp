// The tables of the record formats, written out a second time: offset and type of every field.
#include "records/mash/schedule_file.h"
#include "records/water/water_analysis.h"
#include "support/sample_documents.h"

#include <cmath>

namespace wortlex {
namespace {

// clang-format off
Table hop(const HopRecord& r) { return {text(0, r.name), f32(55, r.alpha), f32(59, r.beta), u8(63, r.noble),
    f32(64, r.cohumulone), f32(68, r.myrcene), f32(72, r.humulene), f32(76, r.caryophyllene), u8(80, r.usage),
    u8(81, r.storage_and_form), f32(82, r.storage_factor), text(86, r.tastes), text(241, r.origin),
    text(296, r.best_for), text(451, r.substitutes), u8(606, r.reserved_606), f32(610, r.stock)}; }
Table malt(const MaltRecord& r) { return {text(0, r.name), text(55, r.supplier), text(110, r.origin),
    u8(165, r.malt_type), u8(166, r.must_mash), f32(167, r.potential), f32(171, r.colour),
    f32(175, r.moisture), f32(179, r.max_in_batch), f32(183, r.diastatic_power), f32(187, r.protein),
    f32(191, r.soluble_nitrogen), text(195, r.use_for), text(350, r.comments), u8(505, r.reserved_505),
    f32(509, r.stock), f32(513, r.fine_yield), f32(517, r.coarse_yield)}; }
Table yeast(const YeastRecord& r) { return {text(0, r.name), text(55, r.lab), text(110, r.catalog_number),
    u8(135, r.yeast_kind), u8(136, r.yeast_medium), text(137, r.flavours), text(292, r.comment),
    u8(447, r.reserved_447), f32(451, r.stock), i32(455, r.low_attenuation), i32(459, r.high_attenuation),
    f32(463, r.optimum_temperature), u8(467, r.flocculation)}; }
Table water(const WaterRecord& r) { return {text(0, r.name), f32(27, r.calcium), f32(31, r.magnesium),
    f32(35, r.sodium), f32(39, r.reserved_39), f32(43, r.sulfate), f32(47, r.chloride),
    f32(51, r.bicarbonate), f32(55, r.ph), text(59, r.known_for), u8(214, r.reserved_214)}; }
Table style(const StyleRecord& r) { return {text(0, r.category), text(55, r.name), u8(110, r.type),
    f32(111, r.min_og), f32(115, r.max_og), f32(119, r.min_fg), f32(123, r.max_fg), f32(127, r.min_alcohol),
    f32(131, r.max_alcohol), f32(135, r.min_ibu), f32(139, r.max_ibu), f32(143, r.min_colour),
    f32(147, r.max_colour), text(151, r.colour_note), text(306, r.malt_note), text(461, r.hop_note),
    text(616, r.yeast_note), text(771, r.examples), i16(1026, r.number), text(1028, r.letter),
    u8(1029, r.letter_end), u8(1030, r.book)}; }
Table extra(const ExtraRecord& r) { return {text(0, r.name), u8(55, r.extra_type), i32(56, r.time),
    u8(60, r.time_place), u8(61, r.time_unit), u8(62, r.amount_unit), f32(63, r.stock), text(67, r.use),
    text(322, r.comment)}; }
Table hop_use(const HopUse& r) { return {{0, hop(r.record)}, i16(614, r.age_months),
    f32(616, r.storage_temperature), f32(620, r.alpha), u8(624, r.storage_kind), f32(625, r.amount),
    i16(629, r.boil_time), f32(631, r.ibu)}; }
Table malt_use(const MaltUse& r) { return {{0, malt(r.record)}, f32(521, r.amount), f32(525, r.points)}; }
Table extra_use(const ExtraUse& r) { return {{0, extra(r.record)}, f32(577, r.amount),
    u8(581, r.reserved_581)}; }
Table yeast_use(const YeastUse& r) { return {{0, yeast(r.record)}, u8(468, r.reserved_468)}; }
Table rest(const Rest& r) { return {i32(0, r.temperature), i32(4, r.minutes)}; }
Table simple_mash(const SimpleMash& r) { return {u8(0, r.mash_kind), {1, rest(r.dough_in)}, {9, rest(r.acid)},
    {17, rest(r.protein)}, {25, rest(r.intermediate)}, {33, rest(r.saccharification)}, {41, rest(r.mash_out)},
    {49, rest(r.sparge)}, f32(57, r.dough_in_water), u8(61, r.reserved_61)}; }
Table mash_step(const MashStep& r) { return {text(0, r.name), u8(255, r.heat_type),
    i32(256, r.start_temperature), i32(260, r.stop_temperature), i32(264, r.infuse_temperature),
    i32(268, r.rest_minutes), i32(272, r.step_minutes), f32(276, r.ratio), f32(280, r.amount),
    u32(284, r.step_colour), u32(288, r.rest_colour)}; }
Table water_needs(const WaterNeeds& r) { return {f32(0, r.sparge), f32(4, r.sparge_deadspace),
    f32(8, r.total_into_mash), f32(12, r.grain), f32(16, r.mash_water), f32(20, r.quarts_per_pound),
    f32(24, r.grain_absorption), f32(28, r.top_up), f32(32, r.lauter_loss), f32(36, r.boil_minutes),
    f32(40, r.evaporation_rate), f32(44, r.kettle_deadspace), f32(48, r.hopback), f32(52, r.chiller),
    f32(56, r.other)}; }
Table water_analysis(const WaterAnalysis& r) { return {f32(0, r.rates), f32(28, r.mash_gallons),
    f32(32, r.mash_quarts), f32(36, r.sparge_gallons), f32(40, r.sparge_quarts), each(44, r.salts, water),
    {1598, water(r.target)}, {1820, water(r.source)}, {2042, water(r.difference)}, {2264, water(r.totals)},
    {2486, water(r.result)}, u8(2708, r.unit), f32(2709, r.dilution_rate)}; }
Table fermentation(const FermentationLog& r) { return {u8(0, r.pitched_from), f32(1, r.lag_hours),
    i32(5, r.amount_pitched), u8(9, r.amount_unit), u8(10, r.primary_vessel), u8(11, r.secondary_vessel),
    u8(12, r.primary_open), u8(13, r.secondary_open), i32(14, r.primary_days), i32(18, r.secondary_days),
    i32(22, r.primary_temperature), i32(26, r.secondary_temperature), u8(30, r.primary_temperature_unit),
    u8(31, r.secondary_temperature_unit)}; }
Table bottling(const BottlingLog& r) { return {i32(0, r.bottling_day), i32(4, r.bottling_month),
    i32(8, r.bottling_year), u8(12, r.reserved_12), f32(13, r.co2_volumes), i32(17, r.ferment_temperature),
    u8(21, r.used), f32(24, r.amount), u8(36, r.natural_carbonation), u8(39, r.priming_medium),
    f32(42, r.priming_amount), f32(54, r.liquid_added), i32(66, r.carbonation_temperature),
    f32(78, r.pressure), i32(90, r.days_conditioned), u8(102, r.reserved_102)}; }
Table pair(const RefractometerPair& r) { return {f32(0, r.plato), f32(4, r.net_zeiss)}; }
Table alcohol(const AlcoholReading& r) { return {f32(0, r.net_zeiss), f32(4, r.original_extract),
    f32(8, r.fg_plato)}; }
Table tail(const SessionTail& r) { return {u8(0, r.reserved_0), u8(5371, r.measured_in_fermenter),
    u8(5372, r.fg_by_refractometer), u8(5373, r.reserved_5373), f32(5436, r.recorded_volume),
    f32(5440, r.recorded_og), f32(5444, r.calculated_ph), {5448, pair(r.runnings_reading)},
    {5456, pair(r.recorded_og_reading)}, {5464, pair(r.actual_og_reading)}, {5472, pair(r.actual_fg_reading)},
    {5480, alcohol(r.alcohol_reading)}, u8(5492, r.reserved_5492)}; }
Table infusions(const InfusionExtras& r) { return {u8(0, r.heat_type), u8(1, r.reserved_bytes),
    i32(5, r.protein.temperature), i32(9, r.intermediate.temperature),
    i32(13, r.saccharification.temperature), i32(17, r.mash_out.temperature), u32(21, r.reserved_word),
    f32(25, r.protein.amount), f32(29, r.intermediate.amount), f32(33, r.saccharification.amount),
    f32(37, r.mash_out.amount)}; }
Table schedule_file(const MashDesign& r) { return {i32(0, r.mash.step_count), f32(4, r.grain_weight),
    i32(8, r.mash.grain_temperature), f32(12, r.dough_in_water), f32(16, r.mash.tun_thermal_mass),
    each(20, r.mash.steps, mash_step), text(14620, r.mash.mash_name)}; }
Placed count(std::size_t at, const auto& list) { return i32(at, static_cast<std::int32_t>(list.size())); }
// All up to the end of the simple mash.
Table opening(const BrewDocument& r, const Lines& lines) {
    const auto malts = 1157 + 635 * lines.hops, extras = malts + 529 * lines.malts, y = lines.yeast_start();
    return {text(0, r.title), count(85, r.hops), count(89, r.malts), count(93, r.extras),
        f32(97, r.wort_size), f32(101, r.batch_size), f32(105, r.og_points), f32(109, r.total_ibu),
        f32(113, r.efficiency), i32(117, r.boil_minutes), i32(121, r.target_ibu), u8(125, r.recipe_kind),
        {126, style(r.style)}, each(1157, r.hops, hop_use), each(malts, r.malts, malt_use),
        each(extras, r.extras, extra_use), {y, yeast_use(r.yeast)}, {y + 473, water(r.water)},
        {y + 695, simple_mash(r.simple_mash)}}; }
Table texts(const BrewDocument& r) { return {text(0, r.notes), text(4028, r.awards),
    text(8056, r.reserved_text)}; }
Table schedule(const BrewDocument& r) { return {i32(0, r.mash.step_count), i32(4, r.mash.grain_temperature),
    f32(8, r.mash.tun_thermal_mass), each(12, r.mash.steps, mash_step), text(14612, r.mash.mash_name),
    u8(14867, static_cast<std::uint8_t>(r.file_efficiency_mode * 16 + r.mash_flags))}; }
Table recipe(const BrewDocument& r, const Lines& lines) { const auto y = lines.yeast_start();
    return {{0, opening(r, lines)}, {y + 757, texts(r)}, {y + 9068, schedule(r)}}; }
Table session(const BrewDocument& d, const SessionDocument& r, const Lines& lines) {
    const auto log = lines.yeast_start() + 757;
    return {{0, opening(d, lines)}, {log, fermentation(r.fermentation)}, {log + 32, texts(d)},
        text(log + 8343, r.head_brewer), text(log + 8598, r.assistant_brewer), i16(log + 8853, r.brew_day),
        i16(log + 8855, r.brew_month), i16(log + 8857, r.brew_year), f32(log + 8859, r.actual_og),
        f32(log + 8863, r.actual_fg), f32(log + 8867, r.runnings_sg), {log + 8871, bottling(r.bottling)},
        text(log + 9000, r.session_notes), u8(log + 29480, r.inventory_finalized),
        {log + 29481, infusions(r.infusions)}, f32(log + 29522, r.wort_ph),
        {log + 29526, water_needs(r.water_needs)}, each(log + 29586, r.salt_effects, water),
        {log + 30918, water(r.source_water)}, f32(log + 31140, r.salt_grams),
        f32(log + 31168, r.sparge_quarts), f32(log + 31172, r.dilution_rate), {log + 31176, schedule(d)},
        {log + 46044, tail(r.tail)}}; }
// clang-format on

TEST(Records, StandInFilesAsTheirTablesSay) {
    expect_layout(614, hop_layout, hop);
    expect_layout(521, malt_layout, malt);
    expect_layout(468, yeast_layout, yeast);
    expect_layout(222, water_layout, water);
    expect_layout(1031, style_layout, style);
    expect_layout(577, extra_layout, extra);
    expect_layout(62, simple_mash_layout, simple_mash);
    expect_layout(60, water_needs_layout, water_needs);
    expect_layout(2713, water_analysis_layout, water_analysis);
}

TEST(DocumentFiles, StandAsTheirTablesSay) {
    for (const auto& lines : {Lines{}, Lines{2, 1, 3}, Lines{0, 30, 1}}) {
        for (const bool is_session : {false, true}) {
            const auto file = sample_file(lines, is_session);
            Loaded loaded{is_session};
            EXPECT_EQ(loaded.read(file), LoadResult::loaded);
            EXPECT_EQ(first_difference(is_session ? session(loaded.document, loaded.session, lines)
                                                  : recipe(loaded.document, lines),
                                       file),
                      -1);
            EXPECT_EQ(first_difference(loaded.bytes(), file), -1);
            EXPECT_EQ(loaded.session.sparge_gallons, loaded.session.sparge_quarts / 4);
        }
    }
    EXPECT_EQ(recipe_bytes({}).size(), 25093U);
    EXPECT_EQ(session_bytes({}, {}).size(), 53454U);
}

// The thermal mass is always that of the settings, and the first step an infusion.
TEST(MashScheduleFile, StandsAsItsTableSaysAndMayEndAnywhere) {
    auto file = distinct_bytes(14875);
    poke(file, 0, std::int32_t{50}); // more would be damage
    MashDesign before, design;
    before.mash.steps[0].heat_type = StepHeat::direct;
    before.mash.mash_name.assign("mine");
    for (std::size_t cut = 0; cut <= file.size(); cut += cut < 700 ? 1 : 25) {
        auto expected = mash_schedule_bytes(before);
        std::copy_n(file.begin(), cut, expected.begin());
        poke(expected, 16, 2.5F);
        poke(expected, 20 + 255, std::uint8_t{0});
        design = before;
        ASSERT_EQ(read_mash_schedule(ByteView(file).first(cut), design, test_settings()),
                  cut < file.size() ? ScheduleLoad::incomplete : ScheduleLoad::loaded);
        ASSERT_EQ(first_difference(schedule_file(design), expected), -1) << "cut at " << cut;
        ASSERT_EQ(first_difference(mash_schedule_bytes(design), expected), -1) << "cut at " << cut;
    }
}

TEST(WaterAnalysisFile, MayEndAnywhereAndHoldsOnlyNumbers) {
    const auto file = distinct_bytes(2713);
    for (std::size_t cut = 0; cut <= file.size(); cut += cut < 50 ? 1 : 25) {
        auto expected = water_analysis_bytes({});
        std::copy_n(file.begin(), cut, expected.begin());
        const auto read = read_water_analysis(ByteView(file).first(cut));
        ASSERT_EQ(read.is_complete, cut == file.size());
        ASSERT_EQ(first_difference(water_analysis_bytes(read.analysis), expected), -1) << "cut at " << cut;
    }
    auto poisoned = file;
    auto expected = file;
    for (const std::size_t offset : {0U, 24U, 28U, 40U, 44U + 27, 1820U + 39, 2264U + 55, 2709U}) {
        poke(poisoned, offset, offset % 3 == 0 ? std::nanf("") : -HUGE_VALF);
        poke(expected, offset, 0.0F);
    }
    EXPECT_EQ(first_difference(water_analysis_bytes(read_water_analysis(poisoned).analysis), expected), -1);
}

} // namespace
} // namespace wortlex
