#include "program/settings_forms/colour_settings.h"
#include "program/settings_forms/folder_settings.h"
#include "program/settings_forms/gauge_settings.h"
#include "program/settings_forms/printer_settings.h"
#include "program/settings_forms/screen_settings.h"
#include "settings/reminders.h"
#include "support/form_user.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

#include "base/number.h"
#include "settings/screen_colours.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

TEST(GaugeSettings, LinkTheirTemperaturesAndKeepToTheirRanges) {
    auto image = WriteDefaultSettings();
    ScriptedPrompts prompts;
    Form form;
    gauge_settings_form(form, image, prompts);
    type(form, "celsius", "20");
    EXPECT_EQ(content_of(form, "fahrenheit"), " 68.00");
    type(form, "celsius", "101");
    EXPECT_EQ(image.hydrometer_calibration, 212.0F);
    type(form, "fahrenheit", "5");
    EXPECT_EQ(content_of(form, "celsius"), "  0.00");
    type(form, "ri", "-3");
    type(form, "brix", "-0.25");
    type(form, "brix_correction", "1.998");
    spin(form, "brix_correction", Spin::up);
    EXPECT_EQ(std::tuple(image.water_ri, image.water_brix, image.brix_correction),
              std::tuple(-2.0F, -0.25F, 2.0F));
    const std::string question =
        "Really reset the settings to the defaults shipped with Wortlex for refractometer "
        "water calibration values?";
    prompts.expect_yes_no(question, Answer::no);
    press(form, "reset");
    EXPECT_EQ(image.water_ri, -2.0F);
    image.batch_size = 9; // not of this dialog
    prompts.expect_yes_no(question, Answer::yes);
    press(form, "reset");
    EXPECT_EQ(std::tuple(image.brix_correction, image.water_zeiss, image.water_brix, image.water_ri,
                         image.hydrometer_calibration, image.batch_size),
              std::tuple(1.04F, 14.5F, 0.0F, 1.33299F, 60.0F, 9.0F));
}

TEST(ColourCalibration, PacksAlphaAndAdjustIntoOneField) {
    auto image = WriteDefaultSettings();
    const auto table = built_in_color_table();
    int restored = 0;
    Form form;
    colour_calibration_form(form, image, {table, nullptr, [&] { ++restored; }});
    type(form, "global_adjust", "-40");
    EXPECT_EQ(image.color_alpha, -40 * 256 + 255);
    type(form, "global_alpha", "0");
    EXPECT_EQ(image.color_alpha, -40 * 256 + 1);
    EXPECT_EQ(content_of(form, "global_adjust"), "-40");
    type(form, "global_adjust", "101");
    EXPECT_EQ(image.color_alpha, 100 * 256 + 1);
    EXPECT_EQ(settings_from(image).global_alpha_adjust, 100);
    type(form, "green", "-101");
    EXPECT_EQ(image.calibration_green, -100);
    form.cancel();
    EXPECT_TRUE(image == WriteDefaultSettings());
    EXPECT_EQ(restored, 1);
}

TEST(ColourCalibration, HasOneSourceOfAlphaOrNone) {
    auto image = WriteDefaultSettings();
    auto table = built_in_color_table();
    auto& gold = table.rows[color_row_index(6)];
    gold.red = 100, gold.alpha = 255;
    Form form;
    colour_calibration_form(form, image, {table, nullptr, nullptr});
    const auto red = [&] { return dynamic_cast<SwatchRow&>(form.row("gold")).colour() & 0xFF; };
    type(form, "red", "20");
    EXPECT_EQ(red(), 120U);
    type(form, "global_alpha", "1");
    EXPECT_GT(red(), 250U) << "nearly the white of the paper";
    check(form, "use_table", true);
    EXPECT_EQ(image.alpha_mode, AlphaMode::from_table);
    EXPECT_EQ(red(), 120U);
    EXPECT_FALSE(form.row("global_alpha").is_enabled());
    EXPECT_TRUE(form.row("global_adjust").is_enabled());
    check(form, "use_global", true);
    EXPECT_FALSE(dynamic_cast<CheckRow&>(form.row("use_table")).checked.get());
    check(form, "use_global", false);
    EXPECT_EQ(image.alpha_mode, AlphaMode::not_used);
}

TEST(ScreenSettings, ColoursShowAtOnceAndCancelPutsThemBack) {
    auto image = WriteDefaultSettings();
    auto working = settings_from(image);
    const auto original = image;
    ScriptedPrompts prompts;
    int recoloured = 0;
    Form form;
    screen_settings_form(form, image, working, {prompts, 0, {"A", "B"}, [&] { ++recoloured; }, nullptr});
    prompts.expect("colour", std::to_string(0x000050), ScriptedPrompts::Colour(0x123456), {}, "");
    press(form, "notes_ground");
    prompts.expect("colour", std::to_string(0x00FFFF), ScriptedPrompts::Colour(), {}, "");
    press(form, "texts_text");
    EXPECT_EQ(std::pair(working.background[4], working.foreground[1]), std::pair(0x123456U, 0x00FFFFU));
    EXPECT_EQ(recoloured, 1);
    check(form, "print_help_pictures", false);
    EXPECT_EQ(image.hide_print_help_bitmaps, 1) << "stored the other way round";
    form.accept();
    form.choose(dynamic_cast<ChoiceRow&>(form.row("art")), 1);
    prompts.expect_tell(
        "You Must Save the Systems Settings as the Default and Re-Start Wortlex Before the New Art "
        "Scheme Will Take Effect!",
        Icon::information);
    form.accept();
    Form again;
    screen_settings_form(again, image, working, {prompts, 0, {"A", "B"}, nullptr, nullptr});
    again.accept(); // nothing new to tell
    auto& preset = dynamic_cast<ChoiceRow&>(form.row("preset"));
    EXPECT_EQ(preset.chosen(), std::nullopt) << "one color is the brewer's own";
    form.choose(preset, 1);
    EXPECT_EQ(preset_of(working), ColourPreset::desktop) << "seen before OK";
    form.cancel();
    EXPECT_TRUE(image == original);
    EXPECT_EQ(colours_of(working), colours_of(original));
    EXPECT_EQ(recoloured, 3);
}

TEST(PrinterSettings, StoreScalesOfTheirOwn) {
    auto image = WriteDefaultSettings();
    Form form;
    printer_settings_form(form, image, {});
    auto& scale = dynamic_cast<ChoiceRow&>(form.row("scale"));
    EXPECT_EQ(scale.chosen(), 0U) << "125 %";
    form.choose(scale, 3);
    EXPECT_EQ(image.printer_scale, 0.25F);
    image.printer_scale = 0.9F; // from an older file
    EXPECT_EQ(scale.chosen(), std::nullopt);
    type(form, "jpg_quality", "8");
    EXPECT_EQ(image.jpg_quality, 20);
    type(form, "dme_scalar", "4.5");
    EXPECT_EQ(image.dme_scalar, 4.0F);
}

TEST(Reminders, OfPicturesNameThemAndAreWavedAwayEachForItself) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    ReminderFlags reminders;
    const auto remind = [&](const ChartPictureNames& names) {
        remind_of_pictures(names, reminders, folder.path(), prompts);
        return LoadReminders(folder.path());
    };
    const std::string mash =
        "Because you have chosen to generate a Mash Chart with this HTML file, the\n"
        "Mash Chart was exported as a separate JPG file named:\n\np_mash.jpg\n\n"
        "If the HTML file is transferred to a web-site, this file will also need to be uploaded\n"
        "to the site, in the same directory as the HTML file.\n\n"
        "Wortlex will always name the jpg file with the same filename as the recipe or\n"
        "brewing session, with \"_mash\" appended to the filename and with the extension \".jpg\"";
    const std::string both =
        "Because you have chosen to generate a Mash Chart and a Water Profile Chart\n"
        "with this HTML file, the Mash Chart and Water Profile Chart were exported to\n"
        "seperate JPG files named:\n\np_mash.jpg\np_water.jpg\n\n"
        "If the HTML file is transferred to a web-site, these files will also need to be uploaded\n"
        "to the site, in the same directory as the HTML file.\n\n"
        "Wortlex will always name the jpg files with the same filename as the brewing session,\n"
        "with \"_mash\" and \"_water\" appended to the filename(s) and with the extension \".jpg\"";
    const char* const of_one = " Wortlex Reminder Message! JPG Filename in HTML Export.";
    const char* const of_several = " Wortlex Reminder Message! JPG Filenames in HTML Export.";
    EXPECT_EQ(remind({}), ReminderFlags()) << "no picture, no word";
    prompts.expect("reminder", mash, true, Icon::information, of_one);
    EXPECT_EQ(remind({"p_mash.jpg", ""}), ReminderFlags());
    prompts.expect("reminder", mash, false, Icon::information, of_one);
    EXPECT_EQ(remind({"p_mash.jpg", ""}), (ReminderFlags{0, 1, 1}));
    EXPECT_EQ(remind({"p_mash.jpg", ""}), (ReminderFlags{0, 1, 1})) << "not again";
    prompts.expect("reminder", both, false, Icon::information, of_several);
    EXPECT_EQ(remind({"p_mash.jpg", "p_water.jpg"}), (ReminderFlags{0, 0, 1}));
    EXPECT_EQ(remind({"", "p_water.jpg"}), (ReminderFlags{0, 0, 1}));
}

TEST(RemindersAndPositions, AreOnTheDiskAtOnce) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    ReminderFlags reminders{0, 0, 0};
    prompts.expect_yes_no("Really Reset All Reminder Messages?", Answer::no);
    show_all_reminders(reminders, folder.path(), prompts);
    EXPECT_EQ(reminders.folders, 0);
    SaveReminders(folder.path(), reminders);
    prompts.expect_yes_no("Really Reset All Reminder Messages?", Answer::yes);
    show_all_reminders(reminders, folder.path(), prompts);
    EXPECT_TRUE(reminders == ReminderFlags() && LoadReminders(folder.path()) == ReminderFlags());
    ToolPositions positions;
    positions.slots[52] = {1, 2, 3, 4};
    SaveToolPositions(folder.path(), positions);
    prompts.expect_yes_no("Really Reset All Window Positions?", Answer::yes);
    EXPECT_TRUE(reset_window_positions(positions, folder.path(), prompts));
    EXPECT_TRUE(LoadToolPositions(folder.path()) == ToolPositions());
}

TEST(FolderSettings, BrowseAndRemindOnceOfFoldersThatFollow) {
    const TemporaryFolder folder;
    ScriptedPrompts prompts;
    auto folders = LoadFolders(folder.path());
    const auto original = folders;
    ReminderFlags reminders;
    Form form;
    folder_settings_form(form, {folders, reminders, folder.path(), prompts});
    const auto browse = [&](std::string path) {
        prompts.expect("folder", "Choose Folder For Text File Export Folder", ScriptedPrompts::Folder(path),
                       {}, folder_path(original, FolderKind::text_exports));
        press(form, "folder_5_browse");
    };
    const auto too_long = std::string(1022, 'x') + '/';
    prompts.expect("folder", "Choose Folder For Text File Export Folder", ScriptedPrompts::Folder(too_long),
                   {}, folder_path(original, FolderKind::text_exports));
    prompts.expect_tell("The path of this folder is too long to be kept.", Icon::error);
    press(form, "folder_5_browse");
    EXPECT_TRUE(folders == original);
    browse("/exports/");
    EXPECT_EQ(content_of(form, "folder_5"), "/exports/");
    EXPECT_EQ(folder_path(folders, FolderKind::html_exports),
              folder_path(original, FolderKind::html_exports));
    prompts.expect(
        "reminder",
        "Choosing this option will cause the default folders (shown below) to change as you\nload and save "
        "files from various locations. See the help file for further details.",
        false, Icon::information, " Wortlex Reminder Message! Auto Folder Saving.");
    for (const bool on : {true, false, true}) check(form, "automatic", on); // the second time in silence
    EXPECT_EQ(folders.save_automatically, 1);
    EXPECT_EQ(LoadReminders(folder.path()).folders, 0);
    form.cancel();
    EXPECT_TRUE(folders == original);
}

} // namespace
} // namespace wortlex
