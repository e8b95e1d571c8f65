#include "program/settings_forms/folder_settings.h"

#include "settings/reminders.h"

namespace wortlex {
namespace {

struct FolderName {
    FolderKind kind;
    const char* name;
};

constexpr std::array<FolderName, folder_kinds> names = {{
    {FolderKind::recipes, "Default Recipe Folder"},
    {FolderKind::sessions, "Default Brewing Session Folder"},
    {FolderKind::mash_schedules, "Default Mash Designer Folder"},
    {FolderKind::water_profiles, "Default Water Profile Folder"},
    {FolderKind::text_exports, "Text File Export Folder"},
    {FolderKind::html_exports, "HTML File Export Folder"},
    {FolderKind::jpg_exports, "JPG File Export Folder"},
    {FolderKind::html_themes, "Default HTML Theme Folder"},
}};

constexpr std::string_view path_too_long = "The path of this folder is too long to be kept.";

std::string title(FolderKind kind) {
    for (const auto& folder : names)
        if (folder.kind == kind) return std::string("Choose Folder For ") + folder.name;
    return {};
}

void folder_line(GridRow& grid, const FolderName& told, const FolderSettingsDesk& desk) {
    const auto key = "folder_" + std::to_string(static_cast<int>(told.kind));
    const std::string name = told.name;
    auto& line = grid.line(name + ':');
    line.shown(key, [&folders = desk.folders, kind = told.kind] { return folder_path(folders, kind); })
        .width(40);
    line.button(key + "_browse", "Browse",
                [desk, kind = told.kind] { browse_folder(desk.folders, kind, desk.prompts); })
        .named("Choose Folder For " + name)
        .hint("Choose Folder For " + name);
}

} // namespace

void browse_folder(FolderSet& folders, FolderKind kind, Prompts& prompts) {
    const auto chosen = prompts.choose_folder(title(kind), folder_path(folders, kind));
    if (!chosen) return;
    if (chosen->size() >= decltype(FolderSet::recipes)::capacity)
        return prompts.tell({.text = path_too_long, .icon = Icon::error, .is_advice = true});
    set_folder(folders, kind, *chosen);
}

void folder_settings_form(Form& form, const FolderSettingsDesk& desk, std::function<void()> help) {
    auto& rows = form.rows();
    rows.check("automatic", desk.folders.save_automatically)
        .label("&Automatically Save Folders From Last Save/Load/Export")
        .changed([desk] {
            if (desk.folders.save_automatically != 0)
                remind_of_folders(desk.reminders, desk.data_folder, desk.prompts);
        });
    auto& grid = rows.grid("folders", {});
    for (const auto& folder : names) folder_line(grid, folder, desk);
    rows.button("help", "&Help", std::move(help));
    form.restore_on_cancel(desk.folders);
}

} // namespace wortlex
