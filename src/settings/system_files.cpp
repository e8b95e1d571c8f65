#include "settings/system_files.h"

#include "base/files.h"
#include "settings/setting_ranges.h"

#include <cmath>
#include <filesystem>
#include <string_view>

namespace wortlex {
namespace {

constexpr auto competition_layout = layout<CompetitionInfo, 2295>(
    at(0, &CompetitionInfo::address), at(1275, &CompetitionInfo::daytime_phone),
    at(1530, &CompetitionInfo::evening_phone), at(1785, &CompetitionInfo::email_address),
    at(2040, &CompetitionInfo::brew_club));

// The automatic flag is the last byte of the first path, which no path reaches.
constexpr auto folder_set_layout = layout<FolderSet, 8192>(
    at(0, &FolderSet::recipes), at(1023, &FolderSet::save_automatically), at(1024, &FolderSet::others));

constexpr auto rectangle_layout = layout<Rectangle, 16>(at(0, &Rectangle::left), at(4, &Rectangle::top),
                                                        at(8, &Rectangle::right), at(12, &Rectangle::bottom));

constexpr auto main_position_layout = layout<MainPosition, 17>(at(0, &MainPosition::window, rectangle_layout),
                                                               at(16, &MainPosition::maximized));

constexpr auto tool_positions_layout =
    layout<ToolPositions, 3200>(at(0, &ToolPositions::slots, rectangle_layout));

constexpr auto reminders_layout =
    layout<ReminderFlags, 3>(at(0, &ReminderFlags::mash_chart_name), at(1, &ReminderFlags::water_chart_name),
                             at(2, &ReminderFlags::folders));

constexpr auto print_selection_layout = layout<PrintSelection, 52>(
    at(0, &PrintSelection::sections), at(24, &PrintSelection::options), at(48, &PrintSelection::scale));

constexpr std::size_t folder_field = 1024;

enum class Found { missing, short_file, whole };

// One odd value is repaired, or is the brewer's affair: without its settings the program does not start.
constexpr int foreign_kinds = 2;

// Lays the file over `record`, which holds the value of a missing one.
template <class Record, class RecordLayout>
Found load(const std::string& folder, std::string_view name, Record& record, const RecordLayout& format) {
    const auto file = read_file(find_data_file(folder, name), RecordLayout::size);
    if (!file) return Found::missing;
    ByteReader reader(*file);
    reader.read(record, format);
    return reader.complete() ? Found::whole : Found::short_file;
}

template <class Record, class RecordLayout>
bool save(const std::string& folder, std::string_view name, const Record& record,
          const RecordLayout& format) {
    return save_atomically(find_data_file(folder, name), encoded(record, format));
}

std::string_view print_file(DocumentKind kind) {
    return kind == DocumentKind::recipe ? "RPSys.DAT" : "BPSys.DAT";
}

std::string_view stored_path(const FolderSet& folders, FolderKind kind) {
    if (kind == FolderKind::recipes) return folders.recipes.view();
    return folders.others[static_cast<std::size_t>(kind) - 1].view();
}

// All sections and graphs, printed as a form.
PrintSelection whole_print(DocumentKind kind, float printer_scale) {
    using enum PrintSection;
    PrintSelection selection;
    selection.scale = printer_scale;
    for (auto section :
         {mash_schedule, mash_graph, notes_and_awards, formula_specifics, water_profile, pre_boil})
        selection[section] = 1;
    if (kind == DocumentKind::recipe) selection[recipe_style_guidelines] = 1;
    if (kind == DocumentKind::session) {
        for (auto section : {water_analysis, water_needed, fermentation, bottling, session_notes, water_graph,
                             inventory, session_style_guidelines, efficiency})
            selection[section] = 1;
    }
    for (auto option : {PrintOption::fine_temperature_lines, PrintOption::solid_fill,
                        PrintOption::decoction_spikes, PrintOption::infusion_spikes})
        selection[option] = 1;
    return selection;
}

// A brewery that was moved, or copied to another system, still names its standard folders where it was: they
// are looked for where it is.
void follow_move(FolderSet& folders, FolderKind kind, const std::string& data_folder) {
    const auto path = folder_path(folders, kind);
    const auto place = path.rfind('/' + std::string(default_sub_folder(kind)));
    std::error_code error;
    if (place == std::string::npos || std::filesystem::exists(path, error)) return;
    const auto moved = data_folder + path.substr(place + 1);
    if (std::filesystem::is_directory(moved, error)) set_folder(folders, kind, moved);
}

} // namespace

SystemFiles LoadSystemFiles(const std::string& data_folder) {
    SystemFiles files;
    const auto found = load(data_folder, "WlxMSys.DAT", files.settings, system_settings_layout);
    files.loaded = found == Found::whole && count_implausible(files.settings) < foreign_kinds;
    if (!files.loaded && found != Found::short_file) files.settings = WriteDefaultSettings();
    load(data_folder, "WlxCSys.DAT", files.competition, competition_layout);
    return files;
}

bool SaveSystemFiles(const std::string& data_folder, const SystemFiles& files) {
    const bool settings_saved =
        !files.loaded || save(data_folder, "WlxMSys.DAT", files.settings, system_settings_layout);
    return save(data_folder, "WlxCSys.DAT", files.competition, competition_layout) && settings_saved;
}

SettingsLoad LoadSettingsFile(const std::string& path, SystemSettings& image) {
    const auto file = read_file(path, system_settings_layout.size);
    if (!file) return SettingsLoad::not_found;
    auto found = image;
    ByteReader reader(*file);
    reader.read(found, system_settings_layout);
    if (file->empty() || count_implausible(found) > 0) return SettingsLoad::damaged;
    image = found;
    return reader.complete() ? SettingsLoad::loaded : SettingsLoad::incomplete;
}

bool SaveSettingsFile(const std::string& path, const SystemSettings& image) {
    return save_atomically(path, encoded(image, system_settings_layout));
}

std::string_view default_sub_folder(FolderKind kind) {
    constexpr std::array<std::string_view, folder_kinds> names = {
        "Recipes/",      "Sessions/",     "MashSchedules/", "WaterProfiles/",
        "HTML_Exports/", "Text_Exports/", "JPG_Exports/",   "HTML_Themes/"};
    return names[static_cast<std::size_t>(kind)];
}

std::string folder_path(const FolderSet& folders, FolderKind kind) {
    return native_folder(stored_path(folders, kind));
}

void set_folder(FolderSet& folders, FolderKind kind, std::string_view path) {
    if (kind == FolderKind::recipes) {
        folders.recipes.assign(path);
    } else {
        folders.others[static_cast<std::size_t>(kind) - 1].assign(path);
    }
}

void follow_user(FolderSet& folders, FolderKind kind, const std::string& path) {
    if (folders.save_automatically != 1) return;
    const auto end = path.rfind('/');
    if (end != std::string::npos) set_folder(folders, kind, path.substr(0, end + 1));
}

FolderSet LoadFolders(const std::string& data_folder) {
    FolderSet folders;
    const auto file = read_file(find_data_file(data_folder, "WlxDir.dir"), folder_set_layout.size);
    if (file) {
        ByteReader(*file).read(folders, folder_set_layout);
        for (std::size_t kind = 4; kind < folder_kinds; ++kind) {
            if (file->size() <= kind * folder_field)
                set_folder(folders, static_cast<FolderKind>(kind), data_folder);
        }
        if (stored_path(folders, FolderKind::html_exports).size() < 2)
            set_folder(folders, FolderKind::html_exports, data_folder);
    }
    if (folders.save_automatically > 1) folders.save_automatically = 0;
    for (std::size_t i = 0; i < folder_kinds; ++i) {
        const auto kind = static_cast<FolderKind>(i);
        if (folder_path(folders, kind).empty())
            set_folder(folders, kind, data_folder + std::string(default_sub_folder(kind)));
        follow_move(folders, kind, data_folder);
    }
    return folders;
}

bool SaveFolders(const std::string& data_folder, const FolderSet& folders) {
    return save(data_folder, "WlxDir.dir", folders, folder_set_layout);
}

bool SaveFoldersIfAutomatic(const std::string& data_folder, const FolderSet& folders) {
    return folders.save_automatically != 1 || SaveFolders(data_folder, folders);
}

MainPosition LoadMainPosition(const std::string& data_folder) {
    MainPosition position;
    load(data_folder, "WlxWin.pos", position, main_position_layout);
    return position;
}

bool SaveMainPosition(const std::string& data_folder, const MainPosition& position) {
    return save(data_folder, "WlxWin.pos", position, main_position_layout);
}

ToolPositions LoadToolPositions(const std::string& data_folder) {
    ToolPositions positions;
    load(data_folder, "WlxGlobalWin.pos", positions, tool_positions_layout);
    return positions;
}

bool SaveToolPositions(const std::string& data_folder, const ToolPositions& positions) {
    return save(data_folder, "WlxGlobalWin.pos", positions, tool_positions_layout);
}

ReminderFlags LoadReminders(const std::string& data_folder) {
    ReminderFlags reminders;
    load(data_folder, "Nags.dat", reminders, reminders_layout);
    return reminders;
}

bool SaveReminders(const std::string& data_folder, const ReminderFlags& reminders) {
    return save(data_folder, "Nags.dat", reminders, reminders_layout);
}

PrintSelection LoadPrintSelection(const std::string& data_folder, DocumentKind kind, float printer_scale) {
    auto selection = whole_print(kind, printer_scale);
    load(data_folder, print_file(kind), selection, print_selection_layout);
    if (!std::isfinite(selection.scale)) selection.scale = printer_scale;
    auto& html = selection[PrintOption::html_file];
    auto& clipboard = selection[PrintOption::clipboard];
    if (html != 0 && clipboard != 0) html = clipboard = 0;
    return selection;
}

bool SavePrintSelection(const std::string& data_folder, DocumentKind kind, const PrintSelection& selection) {
    return save(data_folder, print_file(kind), selection, print_selection_layout);
}

} // namespace wortlex
