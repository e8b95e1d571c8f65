// The small files of the data folder beside the databases: settings, competition data, folders,
// window positions, reminders, print selections.
//
// Every load starts from the value of a missing file and lays over it what the file holds; every save
// is atomic and silent, and answers whether it succeeded. `data_folder` ends in a slash.
#pragma once

#include "settings/system_settings.h"

#include <string>

namespace wortlex {

/// The data for competition printouts.
struct CompetitionInfo {
    Text<1275> address;
    Text<255> daytime_phone;
    Text<255> evening_phone;
    Text<255> email_address;
    Text<255> brew_club;

    bool operator==(const CompetitionInfo&) const = default;
};

/// The two blocks that start and end together, and whether the first was read in full.
struct SystemFiles {
    SystemSettings settings;
    CompetitionInfo competition;
    bool loaded = false;
};

/// Reads both. A settings file that is missing or no such file gives the built-in defaults, a short one what
/// it holds over zeros; in all cases `loaded` stays false, and the program tells and ends. Who then writes
/// leaves the file as it was.
SystemFiles LoadSystemFiles(const std::string& data_folder);

/// Writes the settings only if they were loaded, the competition block always.
bool SaveSystemFiles(const std::string& data_folder, const SystemFiles& files);

inline constexpr std::string_view bad_system_file = "Bad Or Missing System File!";

/// What a saved settings file came to. Nothing is changed by `not_found` and `damaged`.
enum class SettingsLoad {
    loaded,
    incomplete, ///< the file ended early; what is missing stays as it was
    not_found,
    damaged ///< it is empty, or holds what no settings can be
};

/// Reads a saved settings file over `image`.
SettingsLoad LoadSettingsFile(const std::string& path, SystemSettings& image);
bool SaveSettingsFile(const std::string& path, const SystemSettings& image);

/// The folders of a user, in the order of the file.
enum class FolderKind : std::uint8_t {
    recipes,
    sessions,
    mash_schedules,
    water_profiles,
    html_exports,
    text_exports,
    jpg_exports,
    html_themes
};
inline constexpr std::size_t folder_kinds = 8;

/// The texts are as stored; `folder_path` gives them in the form of this system.
struct FolderSet {
    Text<1023> recipes;
    std::uint8_t save_automatically = 0;
    std::array<Text<1024>, folder_kinds - 1> others;

    bool operator==(const FolderSet&) const = default;
};

/// Reads the folder file. Fields that an older, shorter file lacks become the data folder; what is
/// empty then gets its place below the data folder, and so does a standard folder of a brewery that is gone
/// from where it was.
FolderSet LoadFolders(const std::string& data_folder);
bool SaveFolders(const std::string& data_folder, const FolderSet& folders);
/// Writes the folders if they are to follow the user; true if nothing was to be written.
bool SaveFoldersIfAutomatic(const std::string& data_folder, const FolderSet& folders);

std::string folder_path(const FolderSet& folders, FolderKind kind);
void set_folder(FolderSet& folders, FolderKind kind, std::string_view path);
/// After a file dialog: takes the folder of the chosen `path`, if the folders are to follow the user.
void follow_user(FolderSet& folders, FolderKind kind, const std::string& path);
/// The name below the data folder, with its slash.
std::string_view default_sub_folder(FolderKind kind);

struct Rectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const Rectangle&) const = default;
};

struct MainPosition {
    Rectangle window{1, 1, 640, 480};
    std::uint8_t maximized = 0;

    bool operator==(const MainPosition&) const = default;
};

/// One slot a dialog; a slot whose left is zero is empty.
struct ToolPositions {
    std::array<Rectangle, 200> slots;

    bool operator==(const ToolPositions&) const = default;
};

MainPosition LoadMainPosition(const std::string& data_folder);
bool SaveMainPosition(const std::string& data_folder, const MainPosition& position);
ToolPositions LoadToolPositions(const std::string& data_folder);
bool SaveToolPositions(const std::string& data_folder, const ToolPositions& positions);

/// 1: the reminder is still shown.
struct ReminderFlags {
    std::uint8_t mash_chart_name = 1;
    std::uint8_t water_chart_name = 1;
    std::uint8_t folders = 1;

    bool operator==(const ReminderFlags&) const = default;
};

ReminderFlags LoadReminders(const std::string& data_folder);
bool SaveReminders(const std::string& data_folder, const ReminderFlags& reminders);

/// Places in the first block of flags; the two document kinds share them.
enum class PrintSection : std::uint8_t {
    mash_schedule = 0,
    water_analysis = 1,
    water_needed = 2,
    fermentation = 3,
    bottling = 4,
    session_notes = 5,
    mash_graph = 6,
    water_graph = 7,
    inventory = 8,
    competition_form = 9,
    text_file = 10,
    notes_and_awards = 11,
    formula_specifics = 12,
    water_profile = 13,
    pre_boil = 14,
    competition_labels = 15,
    recipe_style_guidelines = 16,
    session_style_guidelines = 17,
    efficiency = 18
};

/// Places in the second block.
enum class PrintOption : std::uint8_t {
    fine_temperature_lines = 0,
    solid_fill = 1,
    decoction_spikes = 2,
    infusion_spikes = 3,
    html_file = 4,
    clipboard = 5
};

/// What a document's print goes to and holds. Every flag is 0 or 1.
struct PrintSelection {
    std::array<std::uint8_t, 24> sections{};
    std::array<std::uint8_t, 24> options{};
    float scale = 1;

    std::uint8_t& operator[](PrintSection section) { return sections[static_cast<std::size_t>(section)]; }
    std::uint8_t& operator[](PrintOption option) { return options[static_cast<std::size_t>(option)]; }
    bool operator==(const PrintSelection&) const = default;
};

enum class DocumentKind : std::uint8_t { recipe, session };

/// `printer_scale` is the scale of a missing file. HTML and clipboard exclude each other: with both
/// set in the file, both are cleared.
PrintSelection LoadPrintSelection(const std::string& data_folder, DocumentKind kind, float printer_scale);
bool SavePrintSelection(const std::string& data_folder, DocumentKind kind, const PrintSelection& selection);

} // namespace wortlex
