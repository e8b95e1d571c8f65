#include "databases/styles.h"
#include "measures/units.h"

namespace wortlex {
namespace {

void letter_row(Rows& rows, StyleRecord& style) {
    rows.text(
            "letter", [&style] { return std::string_view(&style.letter, style.letter == '\0' ? 0 : 1); },
            [&style](std::string_view letter) { style.letter = letter.empty() ? '\0' : letter.front(); }, 1)
        .label("Sub-category &letter:")
        .width(3);
}

void name_rows(Rows& rows, StyleRecord& style) {
    rows.text("category", style.category).label("&Category Name:").limit(52).width(30);
    rows.text("name", style.name).label("&Sub-category Name:").limit(52).width(30);
    rows.integer("number", style.number)
        .label("Category &#")
        .range(1, 50)
        .step(1)
        .outside(Outside::clamp)
        .format("%02d");
    letter_row(rows, style);
    rows.choice("type", style.type, {"&Ale", "La&ger", "Ci&der", "&Mead", "Ale/Lager (mi&xed)"})
        .codes({0, 1, 2, 3, 5}); // what is Sake can be shown, but not chosen
}

// The arrows never leave a minimum above its maximum.
void gravity_line(GridRow& grid, const char* label, const std::string& key, float& low, float& high,
                  const Settings& settings) {
    auto& line = grid.line(label);
    const auto gravity = [&](const char* end, float& value) -> NumberRow& {
        return line.sg(end + key, value, settings).range(1.0F, 2.0F).step(0.005F).outside(Outside::clamp);
    };
    gravity("min_", low).when_spun([&low, &high](float, float) { high = std::max(low, high); });
    gravity("max_", high).when_spun([&low, &high](float, float) { low = std::min(low, high); });
}

void number_line(GridRow& grid, const char* label, const std::string& key, float& low, float& high) {
    auto& line = grid.line(label);
    const auto number = [&](const char* end, float& value) {
        line.number(end + key, value).range(0.0F, 100.0F).step(0.25F).outside(Outside::clamp);
    };
    number("min_", low);
    number("max_", high);
}

void colour_line(GridRow& grid, StyleRecord& style, const Settings& settings) {
    auto& line = grid.line(settings.color_units == ColorUnits::srm ? "Color (S&RM)" : "Color (E&BC)");
    const auto colour = [&](const char* key, float& value) {
        line.number(key, value)
            .shown_as([&settings](float srm) { return to_shown_colour(srm, settings); },
                      [&settings](float shown) { return from_shown_colour(shown, settings); })
            .range(0.0F, 2500.0F)
            .step(1.0F)
            .outside(Outside::clamp);
    };
    colour("min_colour", style.min_colour);
    colour("max_colour", style.max_colour);
}

void range_rows(Rows& rows, StyleRecord& style, const Settings& settings) {
    auto& grid = rows.grid("ranges", {"Min", "Max"});
    gravity_line(grid, "&Original Specific Gravity (OG)", "og", style.min_og, style.max_og, settings);
    gravity_line(grid, "&Final Specific Gravity (FG)", "fg", style.min_fg, style.max_fg, settings);
    number_line(grid, "%Alc&hohol (w/v)", "alcohol", style.min_alcohol, style.max_alcohol);
    number_line(grid, "&IBU's", "ibu", style.min_ibu, style.max_ibu);
    colour_line(grid, style, settings);
}

} // namespace

void style_entry_form(Form& form, StyleRecord& style, const Settings& settings) {
    name_rows(form.group("Style"), style);
    range_rows(form.group("Guidelines"), style, settings);
    form.group().text("examples", style.examples).label("Exam&ples").limit(252).lines();
    form.next_column();
    auto& look = form.group("Color and Malt");
    look.text("colour_note", style.colour_note).label("Color &Note").limit(152).lines();
    look.text("malt_note", style.malt_note).label("Malt No&te").limit(152).lines();
    auto& hops = form.group("Hops and Yeast");
    hops.text("hop_note", style.hop_note).label("Hop Not&e").limit(152).lines();
    hops.text("yeast_note", style.yeast_note).label("&Yeast Note").limit(152).lines();
}

} // namespace wortlex
