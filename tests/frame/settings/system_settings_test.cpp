#include "frame/settings/settings.h"
#include "support/byte_probe.h"

namespace wortlex {
namespace {

TEST(SystemSettings, StandInTheirFileAsTheTableSays) {
    using R = SystemSettings;
    expect_layout(
        1580, system_settings_layout,
        rows<R>(
            text(0, &R::brewer_name), text(255, &R::assistant_name), u8(510, &R::reserved_510),
            u8(1275, &R::HopFormula), u8(1276, &R::color_formula), u8(1277, &R::default_schedule),
            u8(1278, &R::new_session_date), u8(1279, &R::wort_equals_batch), u8(1280, &R::volume_units),
            u8(1281, &R::art_scheme), u8(1282, &R::hop_weight_units), u8(1283, &R::weight_units),
            u8(1284, &R::evaporation_by_volume), u8(1285, &R::system_mode), u8(1286, &R::style_book),
            u8(1287, &R::use_additional_utilization), u8(1288, &R::date_format), u8(1289, &R::pressure_units),
            u8(1290, &R::color_units), u8(1291, &R::potential_display), u8(1292, &R::temperature_units),
            u8(1293, &R::display_home_bittering), u8(1294, &R::bittering_unit),
            u8(1295, &R::use_tool_bitmaps), u8(1296, &R::session_name_before_date),
            u8(1297, &R::hide_print_help_bitmaps), u8(1298, &R::reserved_1298),
            i32(1300, &R::first_wort_percent), u32(1304, &R::sg_precision),
            u32(1308, &R::efficiency_method_setting), u32(1312, &R::plato_precision),
            u32(1316, &R::extract_display), u32(1320, &R::percent_yield_selected),
            u32(1324, &R::reserved_1324), u32(1328, &R::gravity_base), u32(1332, &R::yield_type),
            i32(1336, &R::mash_hop_percent), u32(1340, &R::view_actual_extract), i32(1344, &R::jpg_quality),
            i32(1348, &R::spike_thickness), i32(1352, &R::spike_line), i32(1356, &R::calibration_red),
            i32(1360, &R::calibration_green), i32(1364, &R::calibration_blue), i32(1368, &R::reserved_1368),
            i32(1372, &R::malt_heat_capacity), i32(1376, &R::save_window_positions),
            i32(1380, &R::thick_decoction), i32(1384, &R::medium_decoction), i32(1388, &R::thin_decoction),
            i32(1392, &R::alpha_mode), i32(1396, &R::color_alpha), f32(1400, &R::efficiency),
            f32(1404, &R::tun_thermal_mass), f32(1408, &R::hydrometer_calibration),
            f32(1412, &R::grain_increment), f32(1416, &R::hop_increment), f32(1420, &R::kettle_factor),
            f32(1424, &R::batch_size), f32(1428, &R::wort_size), f32(1432, &R::printer_scale),
            f32(1436, &R::tinseth_factor), f32(1440, &R::hop_storage_temperature),
            f32(1444, &R::grain_absorption), f32(1448, &R::plug_increase), f32(1452, &R::pellet_increase),
            f32(1456, &R::cooling_shrink), f32(1460, &R::brix_correction), f32(1464, &R::water_zeiss),
            f32(1468, &R::water_brix), f32(1472, &R::water_ri), f32(1476, &R::quarts_per_pound),
            f32(1480, &R::sucrose_value), f32(1484, &R::reference_plato), f32(1488, &R::grain_temperature),
            f32(1492, &R::dme_scalar), f32(1496, &R::grain_water_volume), u32(1500, &R::foreground),
            u8(1528, &R::reserved_1528), u32(1540, &R::background), u8(1568, &R::reserved_1568)));
}

// A value at its place in the file.
template <class Value>
using Placed = std::pair<std::size_t, Value>;

Bytes default_file() {
    Bytes file(1580);
    for (const std::size_t at : {1279, 1280, 1282, 1283, 1289, 1292}) poke(file, at, std::uint8_t{1});
    for (const auto& [at, value] : std::vector<Placed<std::int32_t>>{
             {1300, 10},       {1344, 100},      {1348, 1},        {1368, 1},        {1372, 400},
             {1376, 1},        {1380, 650},      {1384, 1000},     {1388, 1500},     {1392, 1},
             {1396, 255},      {1500, 0x00FFFF}, {1504, 0x00FFFF}, {1508, 0xFFFFFF}, {1512, 0xFFFFFF},
             {1516, 0x00FFFF}, {1520, 0x000080}, {1524, 0xFFFFFF}, {1540, 0x800000}, {1544, 0x006400},
             {1548, 0x000080}, {1552, 0x646464}, {1556, 0x000050}, {1560, 0xFFFFFF}, {1564, 0x800000}})
        poke(file, at, value);
    for (const auto& [at, value] : std::vector<Placed<float>>{
             {1400, 0.85F},  {1408, 60.0F}, {1412, 0.5F},  {1416, 0.25F}, {1420, 1.0F},     {1424, 5.0F},
             {1428, 5.0F},   {1432, 1.0F},  {1436, 1.3F},  {1440, 60.0F}, {1444, 0.2F},     {1448, 0.02F},
             {1452, 0.1F},   {1456, 0.04F}, {1460, 1.04F}, {1464, 14.5F}, {1472, 1.33299F}, {1476, 1.0F},
             {1480, 46.21F}, {1484, 8.0F},  {1488, 80.0F}, {1492, 2.0F}})
        poke(file, at, value);
    return file;
}

TEST(SystemSettings, DefaultsAreThoseOfTheTable) {
    auto image = WriteDefaultSettings();
    auto expected = default_file();
    EXPECT_EQ(first_difference(encoded(image, system_settings_layout), expected), -1);
    repair(image); // sets the one default that is not written
    poke(expected, 1496, 1.32F);
    EXPECT_EQ(first_difference(encoded(image, system_settings_layout), expected), -1);
}

// Puts `bad` into the file of defaults, applies it and looks for `good` in image and working values.
template <class Value>
void expect_repair(std::size_t at, Value bad, Value good) {
    auto file = default_file();
    poke(file, at, bad);
    SystemSettings image;
    system_settings_layout.get(image, file.data());
    const auto working = settings_from(image);
    EXPECT_EQ(peek<Value>(encoded(image, system_settings_layout), at), good) << bad << " at " << at;
    EXPECT_TRUE(static_cast<const SystemSettings&>(working) == image) << at;
}

TEST(SystemSettings, UnusableNumbersAreRepaired) {
    for (const auto& [at, usual] : std::vector<Placed<float>>{{1412, 1.0F},
                                                              {1416, 1.0F},
                                                              {1420, 1.0F},
                                                              {1424, 5.0F},
                                                              {1428, 5.0F},
                                                              {1432, 1.0F},
                                                              {1436, 1.0F},
                                                              {1444, 0.2F},
                                                              {1476, 1.0F},
                                                              {1480, 46.21F},
                                                              {1484, 8.0F},
                                                              {1488, 80.0F},
                                                              {1492, 2.0F}}) {
        for (const float bad : {0.0F, -0.0F, -3.0F}) expect_repair(at, bad, usual);
        expect_repair(at, 0.001F, 0.001F);
    }
    for (const auto& [at, usual] : std::vector<Placed<float>>{{1456, 0.04F}, {1496, 1.32F}}) {
        expect_repair(at, 0.0F, usual);
        expect_repair(at, -1.0F, -1.0F); // only a zero is repaired
    }
    for (const auto& [at, usual] : std::vector<Placed<std::int32_t>>{
             {1344, 100}, {1348, 1}, {1372, 400}, {1380, 650}, {1384, 1000}, {1388, 1500}, {1396, 255}})
        expect_repair(at, 0, usual);
    for (const auto& [bad, good] : {std::pair{19, 20}, {1, 20}, {-7, 20}, {20, 20}, {21, 21}})
        expect_repair<std::int32_t>(1344, bad, good);
    expect_repair<std::int32_t>(1372, -5, -5);
    for (const std::size_t untouched : {1404, 1408, 1440, 1448, 1452, 1460, 1464, 1468, 1472})
        expect_repair(untouched, 0.0F, 0.0F);
}

TEST(SystemSettings, WortSizeFollowsTheRepairedBatchSize) {
    auto image = WriteDefaultSettings();
    image.batch_size = 7;
    image.wort_size = 0;
    EXPECT_EQ(settings_from(image).wort_size, 7.0F);
    image.batch_size = image.wort_size = -1;
    EXPECT_EQ(settings_from(image).wort_size, 5.0F);
}

TEST(Settings, AlphaIsTheLowByteAndTheAdjustTheRest) {
    struct Row {
        std::uint32_t stored;
        std::int32_t alpha, adjust;
    };
    for (const auto& row : {Row{255, 255, 0}, Row{0xFFFFFF80, 128, -1}, Row{0x64FF, 255, 100},
                            Row{0xFFFF9C01, 1, -100}, Row{0xFFFFFF00, 0, -1}}) {
        auto image = WriteDefaultSettings();
        image.color_alpha = static_cast<std::int32_t>(row.stored);
        const auto working = settings_from(image);
        EXPECT_EQ(working.global_alpha, row.alpha) << row.stored;
        EXPECT_EQ(working.global_alpha_adjust, row.adjust) << row.stored;
    }
}

TEST(Settings, DerivedValuesFollowTheImage) {
    auto image = WriteDefaultSettings();
    image.first_wort_percent = -30;
    image.mash_hop_percent = 0x10005;
    image.thin_decoction = 1625;
    const auto working = settings_from(image);
    EXPECT_EQ(working.first_wort_change, -30);
    EXPECT_EQ(working.mash_hop_change, 5) << "only the low half counts";
    EXPECT_EQ(working.heat_capacity, 0.4F);
    EXPECT_EQ(working.thick_ratio, 0.65F);
    EXPECT_EQ(working.medium_ratio, 1.0F);
    EXPECT_EQ(working.thin_ratio, 1.625F);
    for (const auto& [method, yield, mode] :
         {std::tuple{0U, 0U, 0}, {0U, 1U, 1}, {1U, 1U, 2}, {1U, 0U, 2}, {2U, 2U, 0}}) {
        image.efficiency_method_setting = static_cast<EfficiencyMethod>(method);
        image.percent_yield_selected = yield;
        EXPECT_EQ(static_cast<int>(settings_from(image).efficiency_mode), mode) << method << ' ' << yield;
    }
    for (const auto& [mode, name] : {std::pair{0, "System Not Using"},
                                     {1, "Global Setting"},
                                     {2, "kv_lovrgb.ldt"},
                                     {3, "System Not Using"}}) {
        image.alpha_mode = static_cast<AlphaMode>(mode);
        EXPECT_EQ(settings_from(image).alpha_source, name);
    }
}

TEST(Settings, ColoursChangeOnlyWhereAsked) {
    auto image = WriteDefaultSettings();
    auto working = settings_from(image);
    const auto entries = static_cast<std::size_t>(ColorArea::entries);
    image.foreground[entries] = 0x112233;
    image.background[entries] = 0x445566;
    image.batch_size = 10;
    ApplySettings(image, working, false);
    EXPECT_EQ(working.foreground[entries], 0x000080U);
    EXPECT_EQ(working.background[entries], 0xFFFFFFU);
    EXPECT_EQ(working.batch_size, 10.0F);
    auto dialog = image;
    ApplyDialogSettings(dialog, working);
    EXPECT_EQ(dialog.foreground[entries], 0x000080U) << "a dialog's colours live in the working values";
    EXPECT_EQ(dialog.background[entries], 0xFFFFFFU);
    ApplySettings(image, working, true);
    EXPECT_EQ(working.foreground[entries], 0x112233U);
    EXPECT_EQ(working.background[entries], 0x445566U);
}

} // namespace
} // namespace wortlex
