#include "reports/html_theme_form.h"

namespace wortlex {
namespace {

constexpr std::string_view theme_filter = "Wortlex HTML Theme File (*.wxc)|*.wxc";
constexpr std::string_view make_default = "Really Save This Theme as the Wortlex Default?";
constexpr std::string_view not_written =
    "The theme could not be written. Is the disk full, or the folder read-only?";

constexpr Extent patch{72, 26};

// The colours of one part of the page.
struct Area {
    const char* key;
    const char* name;
    std::uint32_t HtmlTheme::*background;
    std::uint32_t HtmlTheme::*text;
};

constexpr std::array<Area, 5> areas = {
    {{"body", "Main Body Background and Text", &HtmlTheme::body_background, &HtmlTheme::body_text},
     {"heading", "Headings", &HtmlTheme::heading_background, &HtmlTheme::heading_text},
     {"column_heading", "Column Headings", &HtmlTheme::column_heading_background,
      &HtmlTheme::column_heading_text},
     {"descriptor", "Table Descriptors", &HtmlTheme::descriptor_background, &HtmlTheme::descriptor_text},
     {"field", "Table Fields", &HtmlTheme::field_background, &HtmlTheme::field_text}}};

constexpr std::array<const char*, 6> built_in_captions = {"&Mint",      "&Grey Ghost", "&Wheat",
                                                          "The &Blues", "&Red Eye",    "B&&W"};

void draw_patch(Surface& surface, std::uint32_t background, std::uint32_t text) {
    const auto [width, height] = surface.size();
    surface.set_pen({.colour = 0x808080});
    surface.set_brush(background);
    surface.rectangle({0, 0, width, height});
    surface.set_text_colour(text);
    const auto word = surface.text_extent("Text");
    surface.text({(width - word.width) / 2, (height - word.height) / 2}, "Text");
}

void area_line(GridRow& grid, const Area& area, HtmlThemeEditor& editor) {
    const std::string key = area.key, name = area.name;
    auto& line = grid.line(name);
    line.canvas(key, patch,
                [&editor, area](Surface& surface) {
                    draw_patch(surface, editor.work.*area.background, editor.work.*area.text);
                })
        .named("Sample of " + name);
    line.button(key + "_background", "Background",
                [&editor, area] { editor.choose_colour(editor.work.*area.background); })
        .named("Background of " + name)
        .hint("Background of " + name);
    line.button(key + "_text", "Text", [&editor, area] { editor.choose_colour(editor.work.*area.text); })
        .named("Text of " + name)
        .hint("Text of " + name);
}

void option_rows(Rows& rows, HtmlThemeEditor& editor) {
    const auto has_borders = [&editor] { return editor.work.borders != 0; };
    rows.check("borders", editor.work.borders).label("Borders In &Tables");
    auto& line = rows.grid("border_colours", {}).line("Border");
    line.swatch("border", [&editor] { return editor.work.border; }).enabled(has_borders);
    line.button("border_colour", "Border &Color", [&editor] { editor.choose_colour(editor.work.border); })
        .enabled(has_borders);
    rows.check("large_font", {[&editor] { return editor.work.font_size == 2; },
                              [&editor](bool is_large) { editor.work.font_size = is_large ? 2 : 1; }})
        .label("&Large Font");
}

void built_in_rows(Rows& rows, HtmlThemeEditor& editor) {
    rows.stack_buttons();
    for (std::size_t i = 0; i < built_in_captions.size(); ++i)
        rows.button("theme_" + std::to_string(i), built_in_captions.at(i),
                    [&editor, i] { take_built_in(editor.work, static_cast<BuiltInTheme>(i)); });
}

void file_rows(Rows& rows, HtmlThemeEditor& editor) {
    rows.stack_buttons();
    rows.button("load", "Lo&ad Theme", [&editor] { editor.load(); });
    rows.button("save", "&Save Theme", [&editor] { editor.save(); });
    rows.button("save_default", "Save As &Default Theme", [&editor] { editor.save_default(); });
}

} // namespace

void HtmlThemeEditor::choose_colour(std::uint32_t& colour) {
    const auto chosen = desk_.prompts.choose_colour(colour);
    if (!chosen) return;
    colour = *chosen;
    work.second_background = work.body_background;
}

void HtmlThemeEditor::save_default() const {
    if (desk_.prompts.ask_yes_no({.text = make_default, .icon = Icon::question}) != Answer::yes) return;
    if (!SaveDefaultTheme(desk_.data_folder, work))
        desk_.prompts.tell({.text = not_written, .icon = Icon::error});
}

FileChoice HtmlThemeEditor::file_choice() const {
    return {.filter = theme_filter,
            .folder = folder_path(desk_.folders, FolderKind::html_themes),
            .suggested_name = {},
            .extension = "wxc"};
}

void HtmlThemeEditor::save() {
    const auto path = desk_.files.choose_to_save(file_choice());
    if (!path) return;
    follow_user(desk_.folders, FolderKind::html_themes, *path);
    if (!SaveTheme(*path, work)) desk_.prompts.tell({.text = not_written, .icon = Icon::error});
}

void HtmlThemeEditor::load() {
    const auto path = desk_.files.choose_to_open(file_choice());
    if (!path) return;
    follow_user(desk_.folders, FolderKind::html_themes, *path);
    LoadTheme(*path, work);
}

void html_theme_form(Form& form, HtmlThemeEditor& editor, HtmlTheme& live) {
    form.group().text("name", editor.work.name).label("Current Theme &Name:").limit(252).width(34);
    auto& grid = form.group("HTML Theme Colors").grid("colours", {});
    for (const auto& area : areas) area_line(grid, area, editor);
    option_rows(form.group("Misc Options"), editor);
    form.next_column();
    built_in_rows(form.group("Default Themes"), editor);
    file_rows(form.group("Files"), editor);
    form.next_column();
    form.group("Sample").canvas("sample", theme_sample_size,
                                [&editor](Surface& surface) { draw_theme_sample(surface, editor.work); });
    form.commit_copy(editor.work, live);
}

} // namespace wortlex
