// The editor of the theme of HTML pages.
#pragma once

#include "base/ports/file_dialogs.h"
#include "base/ports/prompts.h"
#include "forms/form.h"
#include "page/html_theme.h"
#include "settings/system_files.h"

#include <utility>

namespace wortlex {

/// Where themes are kept, and who is asked. All must outlive the editor.
struct HtmlThemeDesk {
    FolderSet& folders;
    std::string data_folder;
    Files& files;
    Prompts& prompts;
};

/// Works on a copy of the live theme; only the files are written at once.
class HtmlThemeEditor {
public:
    HtmlThemeEditor(const HtmlTheme& live, HtmlThemeDesk desk) : work(live), desk_(std::move(desk)) {}

    void choose_colour(std::uint32_t& colour);
    /// The theme that new breweries and the next start of the program begin with.
    void save_default() const;
    void save();
    void load();

    HtmlTheme work;

private:
    FileChoice file_choice() const;

    HtmlThemeDesk desk_;
};

/// OK makes the edited theme the live one.
void html_theme_form(Form& form, HtmlThemeEditor& editor, HtmlTheme& live);

/// A small page in the colours of a theme; at least so large.
inline constexpr Extent theme_sample_size{300, 330};
void draw_theme_sample(Surface& surface, const HtmlTheme& theme);

} // namespace wortlex
