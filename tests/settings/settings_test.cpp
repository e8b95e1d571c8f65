#include "base/files.h"
#include "settings/paper_choice.h"
#include "settings/settings.h"
#include "settings/system_files.h"
#include "support/byte_probe.h"
#include "support/temporary_folder.h"

namespace wortlex {
namespace {

// clang-format off
Table table(const SystemSettings& r) { return {text(0, r.brewer_name), text(255, r.assistant_name),
    u8(510, r.reserved_510), u8(1275, r.HopFormula), u8(1276, r.color_formula), u8(1277, r.default_schedule),
    u8(1278, r.new_session_date), u8(1279, r.wort_equals_batch), u8(1280, r.volume_units),
    u8(1281, r.art_scheme), u8(1282, r.hop_weight_units), u8(1283, r.weight_units),
    u8(1284, r.evaporation_by_volume), u8(1285, r.system_mode), u8(1286, r.style_book),
    u8(1287, r.use_additional_utilization), u8(1288, r.date_format), u8(1289, r.pressure_units),
    u8(1290, r.color_units), u8(1291, r.potential_display), u8(1292, r.temperature_units),
    u8(1293, r.display_home_bittering), u8(1294, r.bittering_unit), u8(1295, r.use_tool_bitmaps),
    u8(1296, r.session_name_before_date), u8(1297, r.hide_print_help_bitmaps), u8(1298, r.reserved_1298),
    i32(1300, r.first_wort_percent), u32(1304, r.sg_precision), u32(1308, r.efficiency_method_setting),
    u32(1312, r.plato_precision), u32(1316, r.extract_display), u32(1320, r.percent_yield_selected),
    u32(1324, r.reserved_1324), u32(1328, r.gravity_base), u32(1332, r.yield_type),
    i32(1336, r.mash_hop_percent), u32(1340, r.view_actual_extract), i32(1344, r.jpg_quality),
    i32(1348, r.spike_thickness), i32(1352, r.spike_line), i32(1356, r.calibration_red),
    i32(1360, r.calibration_green), i32(1364, r.calibration_blue), i32(1368, r.reserved_1368),
    i32(1372, r.malt_heat_capacity), i32(1376, r.save_window_positions), i32(1380, r.thick_decoction),
    i32(1384, r.medium_decoction), i32(1388, r.thin_decoction), i32(1392, r.alpha_mode),
    i32(1396, r.color_alpha), f32(1400, r.efficiency), f32(1404, r.tun_thermal_mass),
    f32(1408, r.hydrometer_calibration), f32(1412, r.grain_increment), f32(1416, r.hop_increment),
    f32(1420, r.kettle_factor), f32(1424, r.batch_size), f32(1428, r.wort_size), f32(1432, r.printer_scale),
    f32(1436, r.tinseth_factor), f32(1440, r.hop_storage_temperature), f32(1444, r.grain_absorption),
    f32(1448, r.plug_increase), f32(1452, r.pellet_increase), f32(1456, r.cooling_shrink),
    f32(1460, r.brix_correction), f32(1464, r.water_zeiss), f32(1468, r.water_brix), f32(1472, r.water_ri),
    f32(1476, r.quarts_per_pound), f32(1480, r.sucrose_value), f32(1484, r.reference_plato),
    f32(1488, r.grain_temperature), f32(1492, r.dme_scalar), f32(1496, r.grain_water_volume),
    u32(1500, r.foreground), u8(1528, r.reserved_1528), u32(1540, r.background),
    u8(1568, r.reserved_1568)}; }
template <class Value> using Placed = std::initializer_list<std::pair<std::size_t, Value>>;
constexpr Placed<std::int32_t> whole_defaults = {{1300, 10}, {1344, 100}, {1348, 1}, {1368, 1}, {1372, 400},
    {1376, 1}, {1380, 650}, {1384, 1000}, {1388, 1500}, {1392, 1}, {1396, 255}, {1500, 0x00FFFF},
    {1504, 0x00FFFF}, {1508, 0xFFFFFF}, {1512, 0xFFFFFF}, {1516, 0x00FFFF}, {1520, 0x000080},
    {1524, 0xFFFFFF}, {1540, 0x800000}, {1544, 0x006400}, {1548, 0x000080}, {1552, 0x646464},
    {1556, 0x000050}, {1560, 0xFFFFFF}, {1564, 0x800000}};
constexpr Placed<float> defaults = {{1400, 0.85F}, {1408, 60.0F}, {1412, 0.5F}, {1416, 0.25F}, {1420, 1.0F},
    {1424, 5.0F}, {1428, 5.0F}, {1432, 1.0F}, {1436, 1.3F}, {1440, 60.0F}, {1444, 0.2F}, {1448, 0.02F},
    {1452, 0.1F}, {1456, 0.04F}, {1460, 1.04F}, {1464, 14.5F}, {1472, 1.33299F}, {1476, 1.0F},
    {1480, 46.21F}, {1484, 8.0F}, {1488, 80.0F}, {1492, 2.0F}};
// What a number of zero or less is repaired to, and what only a zero is.
constexpr Placed<float> usual = {{1412, 1.0F}, {1416, 1.0F}, {1420, 1.0F}, {1424, 5.0F}, {1428, 5.0F},
    {1432, 1.0F}, {1436, 1.0F}, {1444, 0.2F}, {1476, 1.0F}, {1480, 46.21F}, {1484, 8.0F}, {1488, 80.0F},
    {1492, 2.0F}};
constexpr float no_figure = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr Placed<float> usual_for_zero = {{1456, 0.04F}, {1496, 1.32F}};
constexpr Placed<std::int32_t> whole_for_zero = {{1344, 100}, {1348, 1}, {1372, 400}, {1380, 650},
    {1384, 1000}, {1388, 1500}, {1396, 255}};
// clang-format on

Bytes default_file() {
    Bytes file(1580);
    for (const std::size_t at : {1279U, 1280U, 1282U, 1283U, 1289U, 1292U}) poke(file, at, std::uint8_t{1});
    for (const auto& [at, value] : whole_defaults) poke(file, at, value);
    for (const auto& [at, value] : defaults) poke(file, at, value);
    return file;
}

TEST(SystemSettings, StandInTheirFileWithTheirDefaults) {
    expect_layout(1580, system_settings_layout, table);
    EXPECT_EQ(first_difference(encoded(WriteDefaultSettings(), system_settings_layout), default_file()), -1);
}

// Puts `bad` into the file of defaults, applies it and looks for `good` in image and working values.
template <class Value>
void expect_repair(std::size_t at, Value bad, Value good) {
    auto file = default_file();
    poke(file, at, bad);
    SystemSettings image;
    system_settings_layout.get(image, file.data());
    const auto working = settings_from(image);
    poke(file, 1496, 1.32F); // the one default that is not written
    poke(file, at, good);
    EXPECT_EQ(first_difference(encoded(image, system_settings_layout), file), -1) << bad << " at " << at;
    EXPECT_TRUE(static_cast<const SystemSettings&>(working) == image) << at;
}

TEST(SystemSettings, UnusableNumbersAreRepaired) {
    for (const auto& [at, good] : usual) {
        for (const float bad : {0.0F, -0.0F, -3.0F, no_figure, infinite}) expect_repair(at, bad, good);
        expect_repair(at, 0.001F, 0.001F);
    }
    for (const auto& [at, good] : usual_for_zero) {
        for (const float bad : {0.0F, no_figure}) expect_repair(at, bad, good);
        expect_repair(at, -1.0F, -1.0F);
    }
    for (const auto& [at, good] : whole_for_zero) expect_repair(at, 0, good);
    for (const auto& [bad, good] : {std::pair{19, 20}, {1, 20}, {-7, 20}, {20, 20}, {21, 21}})
        expect_repair<std::int32_t>(1344, bad, good);
    expect_repair<std::int32_t>(1372, -5, -5);
    for (const std::size_t untouched : {1404U, 1408U, 1440U, 1448U, 1452U, 1460U, 1464U, 1468U, 1472U})
        expect_repair(untouched, 0.0F, 0.0F);
    for (const auto& [at, good] : {std::pair<std::size_t, float>{1400, 0.85F}, {1404, 0.0F}, {1440, 60.0F}})
        expect_repair(at, no_figure, good);
    for (const auto& [at, last, good] : {std::tuple<std::size_t, int, int>{1275, 3, 0},
                                         {1276, 2, 0},
                                         {1280, 1, 1},
                                         {1281, 4, 0},
                                         {1290, 2, 0},
                                         {1291, 4, 0},
                                         {1292, 1, 1}}) {
        expect_repair(at, static_cast<std::uint8_t>(last), static_cast<std::uint8_t>(last));
        expect_repair(at, static_cast<std::uint8_t>(last + 1), static_cast<std::uint8_t>(good));
    }
    for (const std::size_t code : {1304U, 1308U, 1316U, 1328U, 1332U, 1352U}) expect_repair(code, -1, 0);
    expect_repair(1348, 3, 1);
    auto image = WriteDefaultSettings();
    image.batch_size = 7;
    image.wort_size = 0;
    EXPECT_EQ(settings_from(image).wort_size, 7.0F) << "follows the batch size";
    image.batch_size = image.wort_size = -1;
    EXPECT_EQ(settings_from(image).wort_size, 5.0F) << "as it was repaired";
}

TEST(Settings, DerivedValuesFollowTheImage) {
    auto image = WriteDefaultSettings();
    // clang-format off
    for (const auto& [stored, alpha, adjust] : {std::tuple{255U, 255, 0}, {0xFFFFFF80, 128, -1},
         {0x64FF, 255, 100}, {0xFFFF9C01, 1, -100}, {0xFFFFFF00, 0, -1}}) {
        // clang-format on
        image.color_alpha = static_cast<std::int32_t>(stored);
        const auto working = settings_from(image);
        EXPECT_EQ((std::pair{working.global_alpha, working.global_alpha_adjust}), (std::pair{alpha, adjust}));
    }
    image.first_wort_percent = -30;
    image.mash_hop_percent = 0x10005; // of which only the low half counts
    image.thin_decoction = 1625;
    const auto s = settings_from(image);
    EXPECT_EQ((std::tuple{s.first_wort_change, s.mash_hop_change, s.heat_capacity, s.thick_ratio,
                          s.medium_ratio, s.thin_ratio}),
              (std::tuple{-30, 5, 0.4F, 0.65F, 1.0F, 1.625F}));
    for (const auto& [method, yield, mode] :
         {std::tuple{0U, 0U, 0}, {0U, 1U, 1}, {1U, 1U, 2}, {1U, 0U, 2}, {2U, 2U, 0}}) {
        image.efficiency_method_setting = static_cast<EfficiencyMethod>(method);
        image.percent_yield_selected = yield;
        EXPECT_EQ(static_cast<int>(settings_from(image).efficiency_mode), mode) << method << ' ' << yield;
    }
    // clang-format off
    for (const auto& [mode, name] : {std::pair{0, "System Not Using"}, {1, "Global Setting"},
         {2, "kv_lovrgb.ldt"}, {3, "System Not Using"}}) {
        // clang-format on
        image.alpha_mode = static_cast<AlphaMode>(mode);
        EXPECT_EQ(settings_from(image).alpha_source, name);
    }
}

TEST(Settings, ColoursChangeOnlyWhereAsked) {
    auto image = WriteDefaultSettings();
    auto working = settings_from(image);
    const auto colours = [](const SystemSettings& s) { return std::pair{s.foreground[5], s.background[5]}; };
    const std::pair old_colours{0x000080U, 0xFFFFFFU}, new_colours{0x112233U, 0x445566U};
    std::tie(image.foreground[5], image.background[5]) = new_colours;
    image.batch_size = 10;
    ApplySettings(image, working, false);
    EXPECT_EQ((std::pair{colours(working), working.batch_size}), (std::pair{old_colours, 10.0F}));
    auto dialog = image;
    ApplyDialogSettings(dialog, working);
    EXPECT_EQ(colours(dialog), old_colours) << "a dialog's colours live in the working values";
    ApplySettings(image, working, true);
    EXPECT_EQ(colours(working), new_colours);
}

TEST(SystemFiles, LoadWholeShortMissingAndOversized) {
    for (const auto& [size, loaded] :
         {std::pair{1580U, true}, {1700U, true}, {1579U, false}, {1426U, false}, {0U, false}}) {
        SCOPED_TRACE(size);
        const TemporaryFolder folder;
        auto content = default_file();
        content.resize(size);
        ASSERT_TRUE(save_atomically(folder / "WlxMSys.DAT", content));
        auto files = LoadSystemFiles(folder.path());
        EXPECT_EQ(files.loaded, loaded);
        files.settings.batch_size = 0;
        EXPECT_TRUE(SaveSystemFiles(folder.path(), files));
        EXPECT_EQ(read_file(folder / "WlxMSys.DAT") != content, loaded) << "written only if it was loaded";
        content.resize(1580);
        poke(content, 1424, 0.0F);
        EXPECT_EQ(first_difference(encoded(files.settings, system_settings_layout), content), -1);
    }
    const TemporaryFolder empty;
    SystemSettings image;
    EXPECT_EQ(LoadSettingsFile(empty / "absent.wxt", image), SettingsLoad::not_found);
    EXPECT_TRUE(image == SystemSettings());
    const auto files = LoadSystemFiles(empty.path());
    EXPECT_FALSE(files.loaded);
    EXPECT_TRUE(files.settings == WriteDefaultSettings());
    ASSERT_TRUE(SaveSettingsFile(empty / "a.wxt", files.settings));
    EXPECT_EQ(read_file(empty / "a.wxt"), default_file());
    EXPECT_EQ(LoadSettingsFile(empty / "a.wxt", image), SettingsLoad::loaded);
    EXPECT_TRUE(image == files.settings);
}

// What the bytes of a settings file come to with a value at one of its places.
template <class Value>
SettingsLoad load_with(std::size_t at, Value value) {
    const TemporaryFolder folder;
    auto file = default_file();
    poke(file, at, value);
    EXPECT_TRUE(save_atomically(folder / "a.wxt", file) && save_atomically(folder / "WlxMSys.DAT", file));
    auto image = WriteDefaultSettings();
    const auto load = LoadSettingsFile(folder / "a.wxt", image);
    EXPECT_TRUE(load != SettingsLoad::damaged || image == WriteDefaultSettings()) << at;
    EXPECT_TRUE(LoadSystemFiles(folder.path()).loaded)
        << at << ": one odd value keeps nobody from his brewery";
    return load;
}

TEST(SystemFiles, AForeignFileIsNoSettings) {
    for (const float barrels_of_others : {-7.0F, 0.0F, no_figure, 5.0F, 310000.0F})
        EXPECT_EQ(load_with(1424, barrels_of_others), SettingsLoad::loaded) << "as older ones are repaired";
    for (const auto& [at, fits, foreign] :
         {std::tuple<std::size_t, float, float>{1412, 22050.0F, 3974571520.0F},
          {1400, 1.0F, 1.1F},
          {1440, -22.0F, -40.0F},
          {1496, 5.28F, 6.0F},
          {1408, 0.0F, 20.0F},
          {1476, 100.0F, 101.0F}}) {
        EXPECT_EQ(load_with(at, fits), SettingsLoad::loaded) << at;
        EXPECT_EQ(load_with(at, foreign), SettingsLoad::damaged) << at;
    }
    for (const auto& [at, fits, foreign] : {std::tuple{1300U, -100, 101},
                                            {1396U, static_cast<int>(0xFFFFFF80), 0x6500},
                                            {1372U, 1000, -5},
                                            {1348U, 0, 3},
                                            {1304U, 2, 3},
                                            {1520U, static_cast<int>(0xFF000000), 0x7F000000}}) {
        EXPECT_EQ(load_with(at, fits), SettingsLoad::loaded) << at;
        EXPECT_EQ(load_with(at, foreign), SettingsLoad::damaged) << at;
    }
    for (const std::size_t code : {1275U, 1280U, 1297U, 0U})
        EXPECT_EQ(load_with(code, std::uint8_t{9}), SettingsLoad::damaged) << code;
    auto unended = default_file();
    std::fill_n(unended.begin(), 255, std::byte{'A'});
    const TemporaryFolder folder;
    SystemSettings image;
    const Bytes foreign(1580, std::byte{0x4D});
    for (const auto& file : {unended, Bytes(), foreign}) {
        ASSERT_TRUE(save_atomically(folder / "a.wxt", file));
        EXPECT_EQ(LoadSettingsFile(folder / "a.wxt", image), SettingsLoad::damaged);
    }
    ASSERT_TRUE(save_atomically(folder / "WlxMSys.DAT", foreign));
    const auto start = LoadSystemFiles(folder.path());
    EXPECT_FALSE(start.loaded);
    EXPECT_TRUE(start.settings == WriteDefaultSettings());
}

// A folder file with a path of its own in each of the first `fields` fields.
Bytes folder_file(std::size_t fields) {
    Bytes file(1024 * fields);
    for (std::size_t i = 0; i < fields; ++i)
        poke(file, 1024 * i, std::array{'/', static_cast<char>('a' + i)});
    return file;
}

// The folders of the folder file, short names for those in the data folder.
std::string loaded_folders(const TemporaryFolder& folder, const std::optional<Bytes>& file) {
    EXPECT_TRUE(!file || save_atomically(folder / "WlxDir.dir", *file));
    const auto folders = LoadFolders(folder.path());
    std::string all;
    for (std::uint8_t kind = 0; kind < 8; ++kind) {
        const auto path = folder_path(folders, static_cast<FolderKind>(kind));
        all += path.starts_with(folder.path()) ? "data/" + path.substr(folder.path().size()) : path;
        all += ' ';
    }
    return all;
}

TEST(Folders, MissingAndEmptyOnesGetTheirPlace) {
    const TemporaryFolder folder;
    const std::string before = "data/Recipes/ data/Sessions/ data/MashSchedules/ data/WaterProfiles/ ",
                      after = "data/Text_Exports/ data/JPG_Exports/ data/HTML_Themes/ ";
    EXPECT_EQ(loaded_folders(folder, std::nullopt), before + "data/HTML_Exports/ " + after);
    for (const char html : {'\0', 'x', '/'}) { // shorter than two characters
        Bytes file(8192);
        poke(file, 4096, html);
        EXPECT_EQ(loaded_folders(folder, file), before + "data/ " + after);
    }
    EXPECT_EQ(loaded_folders(folder, folder_file(8)), "/a/ /b/ /c/ /d/ /e/ /f/ /g/ /h/ ");
    EXPECT_EQ(loaded_folders(folder, folder_file(6)), "/a/ /b/ /c/ /d/ /e/ /f/ data/ data/ ");
    EXPECT_EQ(loaded_folders(folder, folder_file(4)), "/a/ /b/ /c/ /d/ data/ data/ data/ data/ ");
    FolderSet elsewhere;
    set_folder(elsewhere, FolderKind::recipes, "/usb/brewery/Recipes/2020/");
    set_folder(elsewhere, FolderKind::sessions, "/usb/brewery/Sessions/");
    std::filesystem::create_directories(folder / "Recipes/2020");
    ASSERT_TRUE(SaveFolders(folder.path(), elsewhere));
    EXPECT_EQ(loaded_folders(folder, {}).substr(0, 47), "data/Recipes/2020/ /usb/brewery/Sessions/ data/")
        << "moved along, or on a disk that is away";
}

TEST(Folders, AutomaticFlagIsTheLastByteOfTheFirstField) {
    for (const char stored : {'\0', '\1', '\2', '\7', '\xFF'}) {
        const TemporaryFolder folder;
        auto file = folder_file(8);
        poke(file, 1023, stored);
        const std::string sessions = stored == 1 ? "/new/" : "/b/";
        loaded_folders(folder, file);
        auto folders = LoadFolders(folder.path());
        EXPECT_EQ(folders.save_automatically, stored == 1) << int{stored};
        set_folder(folders, FolderKind::sessions, "/new/");
        EXPECT_TRUE(SaveFoldersIfAutomatic(folder.path(), folders));
        EXPECT_EQ(loaded_folders(folder, {}), "/a/ " + sessions + " /c/ /d/ /e/ /f/ /g/ /h/ ");
        set_folder(folders, FolderKind::recipes, std::string(2000, 'x'));
        ASSERT_TRUE(SaveFolders(folder.path(), folders));
        std::fill_n(file.begin(), 1022, std::byte{'x'});
        poke(file, 1022, std::array{'\0', stored == 1 ? '\1' : '\0'}); // which no path reaches
        poke(file, 1024, std::array{'/', 'n', 'e', 'w', '/'});
        EXPECT_EQ(first_difference(*read_file(folder / "WlxDir.dir"), file), -1);
    }
}

// Lays a file of distinct bytes, loads it, and finds it as it was after a save.
void expect_file(const std::string& name, std::size_t size, auto load, auto table, auto save) {
    const TemporaryFolder folder;
    const auto file = distinct_bytes(size);
    ASSERT_TRUE(save_atomically(folder / name, file));
    const auto record = load(folder.path());
    EXPECT_EQ(first_difference(table(record), file), -1) << name;
    std::filesystem::remove(folder / name);
    EXPECT_TRUE(save(folder.path(), record));
    EXPECT_EQ(first_difference(*read_file(folder / name), file), -1) << name;
}

// clang-format off
Table competition(const SystemFiles& f) { const auto& r = f.competition; return {text(0, r.address),
    text(1275, r.daytime_phone), text(1530, r.evening_phone), text(1785, r.email_address),
    text(2040, r.brew_club)}; }
Table rectangle(const Rectangle& r) { return {i32(0, r.left), i32(4, r.top), i32(8, r.right),
    i32(12, r.bottom)}; }
Table main_position(const MainPosition& r) { return {{0, rectangle(r.window)}, u8(16, r.maximized)}; }
Table positions(const ToolPositions& r) { return {each(0, r.slots, rectangle)}; }
Table reminders(const ReminderFlags& r) { return {u8(0, r.mash_chart_name), u8(1, r.water_chart_name),
    u8(2, r.folders)}; }
// clang-format on

TEST(SystemFiles, StandAsTheirTablesSayAndHaveBuiltInValues) {
    expect_file("WlxCSys.DAT", 2295, LoadSystemFiles, competition, SaveSystemFiles);
    expect_file("WlxWin.pos", 17, LoadMainPosition, main_position, SaveMainPosition);
    expect_file("WlxGlobalWin.pos", 3200, LoadToolPositions, positions, SaveToolPositions);
    expect_file("Nags.dat", 3, LoadReminders, reminders, SaveReminders);
    const TemporaryFolder folder;
    EXPECT_TRUE(LoadMainPosition(folder.path()) == (MainPosition{{1, 1, 640, 480}, 0}));
    EXPECT_TRUE(LoadToolPositions(folder.path()) == ToolPositions());
    EXPECT_TRUE(LoadReminders(folder.path()) == (ReminderFlags{1, 1, 1}));
    ASSERT_TRUE(save_atomically(folder / "Nags.dat", Bytes(1)));
    EXPECT_TRUE(LoadReminders(folder.path()) == (ReminderFlags{0, 1, 1})) << "a short file";
}

TEST(PaperChoice, IsRememberedInAText) {
    const TemporaryFolder folder;
    const PaperChoice first{PaperKind::letter, PaperTurn::portrait},
        other{PaperKind::a4, PaperTurn::landscape};
    EXPECT_EQ(LoadPaperChoice(folder.path(), first), first);
    EXPECT_TRUE(SavePaperChoice(folder.path(), other));
    EXPECT_EQ(LoadPaperChoice(folder.path(), first), other);
    ASSERT_TRUE(save_atomically(folder / "WlxPaper.txt", std::as_bytes(std::span("paper: A4\nrubbish"))));
    EXPECT_EQ(LoadPaperChoice(folder.path(), first), (PaperChoice{PaperKind::a4, PaperTurn::portrait}));
}

TEST(PrintSelection, EachDocumentKindHasItsFileAndHtmlExcludesTheClipboard) {
    for (const auto kind : {DocumentKind::recipe, DocumentKind::session}) {
        const TemporaryFolder folder;
        EXPECT_EQ(LoadPrintSelection(folder.path(), kind, 0.5F).scale, 0.5F);
        const auto path = folder / (kind == DocumentKind::recipe ? "RPSys.DAT" : "BPSys.DAT");
        for (const auto& [html, clipboard] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
            Bytes file(52);
            poke(file, 18, '\1');
            poke(file, 24 + 4, std::array{static_cast<char>(html), static_cast<char>(clipboard)});
            poke(file, 48, 0.75F);
            ASSERT_TRUE(save_atomically(path, file));
            auto loaded = LoadPrintSelection(folder.path(), kind, 9);
            EXPECT_EQ(loaded[PrintSection::efficiency], 1);
            EXPECT_EQ(loaded.scale, 0.75F);
            loaded[PrintOption::solid_fill] = 1;
            ASSERT_TRUE(SavePrintSelection(folder.path(), kind, loaded));
            poke(file, 24 + 1, '\1');
            if (html + clipboard == 2) poke(file, 24 + 4, std::array{'\0', '\0'});
            EXPECT_EQ(read_file(path), file) << html << clipboard;
        }
        EXPECT_EQ(folder.entries(), 1);
    }
}

} // namespace
} // namespace wortlex
