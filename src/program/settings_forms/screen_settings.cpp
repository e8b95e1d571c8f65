#include "program/settings_forms/screen_settings.h"

#include "settings/screen_colours.h"

namespace wortlex {
namespace {

constexpr std::string_view new_art_waits =
    "You Must Save the Systems Settings as the Default and Re-Start Wortlex Before the New Art Scheme Will "
    "Take Effect!";

struct AreaName {
    ColorArea area;
    const char* key;
    const char* name;
};

constexpr std::array<AreaName, color_areas> areas = {{
    {ColorArea::style_guidelines, "guidelines", "Style Guidelines"},
    {ColorArea::shown_numbers, "numbers", "Non-editable Numerics"},
    {ColorArea::shown_text, "texts", "Non-editable Text"},
    {ColorArea::entries, "entries", "Editable Entries"},
    {ColorArea::notes, "notes", "Note Entries"},
    {ColorArea::ingredient_lists, "lists", "Ingredient List Boxes"},
    {ColorArea::pick_lists, "picks", "Pick List Boxes"},
}};

void tell(const std::function<void()>& hook) {
    if (hook) hook();
}

void choose(std::uint32_t& colour, const ScreenSettingsUse& use) {
    const auto chosen = use.prompts.choose_colour(colour & ~desktop_mark);
    if (!chosen) return;
    colour = *chosen;
    tell(use.recoloured);
}

void colour_line(GridRow& grid, const AreaName& told, Settings& working, const ScreenSettingsUse& use) {
    const std::string key = told.key, name = told.name;
    const auto pair = static_cast<std::size_t>(told.area);
    auto& line = grid.line(name);
    line.shown(key, [] { return "Text"; }).colours(told.area).width(8);
    line.button(key + "_text", "Foreground",
                [&colour = working.foreground[pair], use] { choose(colour, use); })
        .named("Foreground of " + name)
        .hint("Foreground of " + name);
    line.button(key + "_ground", "Background",
                [&colour = working.background[pair], use] { choose(colour, use); })
        .named("Background of " + name)
        .hint("Background of " + name);
}

void preset_row(Rows& rows, Settings& working, const ScreenSettingsUse& use) {
    constexpr std::int32_t own = -1; // none is marked
    rows.choice("preset",
                {[&working] {
                     const auto preset = preset_of(working);
                     return preset ? static_cast<std::int32_t>(*preset) : own;
                 },
                 [&working, recoloured = use.recoloured](std::int32_t code) {
                     set_colours(working, colours_of(static_cast<ColourPreset>(code)));
                     tell(recoloured);
                 }},
                {"Wortlex De&fault", "D&esktop", "&Warm", "Da&rk"})
        .look(ChoiceRow::Look::down)
        .hint("Sets all seven pairs at once; Desktop follows the colors of your desktop");
}

void picture_rows(Rows& rows, SystemSettings& image) {
    rows.check("tool_pictures", image.use_tool_bitmaps)
        .label("Use &Mash, Water and Refractometer Bitmaps On Dialog Buttons Where Possible.");
    auto& hidden = image.hide_print_help_bitmaps;
    rows.check("print_help_pictures", Binding<bool>([&hidden] { return hidden == 0; },
                                                    [&hidden](bool shown) { hidden = shown ? 0 : 1; }))
        .label("Use &Printer and Help Bitmaps On Dialog Buttons Where Possible.");
}

void spike_rows(Rows& rows, SystemSettings& image) {
    rows.choice("thickness", image.spike_thickness, {"&Thin", "Thic&k"})
        .codes({1, 2})
        .label("Default Decoction and Infusion Spike Thickness");
    rows.choice("line", image.spike_line, {"&Dashed", "S&olid"})
        .label("Default Decoction and Infusion Spike Linetype");
}

void restore_colours_on_cancel(Form& form, Settings& working, const std::function<void()>& recoloured) {
    form.on_cancel([&working, foreground = working.foreground, background = working.background, recoloured] {
        working.foreground = foreground;
        working.background = background;
        tell(recoloured);
    });
}

} // namespace

void screen_settings_form(Form& form, SystemSettings& image, Settings& working,
                          const ScreenSettingsUse& use) {
    preset_row(form.group("Presets"), working, use);
    auto& grid = form.group("System Colors").grid("colours", {});
    for (const auto& area : areas) colour_line(grid, area, working, use);
    form.next_column();
    form.group("Main Screen Art")
        .choice("art", image.art_scheme, {use.art_names.begin(), use.art_names.end()})
        .look(ChoiceRow::Look::down);
    spike_rows(form.group("Misc."), image);
    picture_rows(form.group("Bitmaps"), image);
    form.group().button("help", "&Help", use.help);
    form.on_accept([&image, &prompts = use.prompts, before = image.art_scheme, in_use = use.art_in_use] {
        if (image.art_scheme != before && image.art_scheme != in_use)
            prompts.tell({.text = new_art_waits, .icon = Icon::information});
    });
    restore_colours_on_cancel(form, working, use.recoloured);
    form.restore_on_cancel(image);
}

} // namespace wortlex
