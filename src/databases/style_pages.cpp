#include "databases/catalogues.h"
#include "databases/styles.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

std::string letter_of(const StyleRecord& style) {
    return style.letter == '\0' ? "" : utf8_from_windows1252(std::string(1, style.letter));
}

std::string printed_number(const StyleRecord& style) {
    return formatted("%02d-", style.number) + letter_of(style);
}

// Sake has no line of its own.
std::string detail_type(const StyleRecord& style) {
    if (style.type == BeerType::mixed) return "Ale/Lager (mixed)";
    return style.type < BeerType::sake ? std::string(style_type_word(style)) : "";
}

void add_range(EntryLines& entry, const std::string& label, float low, float high,
               const std::string& pattern) {
    entry.add(label + " Min-Max:" + formatted("\t" + pattern, low) + formatted("\t" + pattern, high));
}

EntryLines style_entry(const StyleRecord& style, const Settings& settings) {
    const std::string colour = colour_unit(settings).usual;
    EntryLines entry;
    entry.free_text(formatted("Category:\t%d - ", style.number), style.category.view());
    entry.free_text("Name:\t" + letter_of(style) + " - ", style.name.view());
    entry.word("Style Type", detail_type(style));
    entry.blank();
    entry.text("Color Note", style.colour_note);
    entry.text("Malt Note", style.malt_note);
    entry.text("Hop Note", style.hop_note);
    entry.text("Yeast Note", style.yeast_note);
    entry.text("Examples", style.examples);
    entry.blank();
    add_range(entry, "OG (Balling)", style.min_og, style.max_og, "%0.3f");
    add_range(entry, "FG (Balling)", style.min_fg, style.max_fg, "%0.3f");
    add_range(entry, "% Achohol", style.min_alcohol, style.max_alcohol, "%0.2f");
    add_range(entry, "IBUs", style.min_ibu, style.max_ibu, "%0.2f");
    add_range(entry, "Color (" + colour + ")", to_shown_colour(style.min_colour, settings),
              to_shown_colour(style.max_colour, settings), "%0.2f");
    return entry;
}

std::vector<std::string> style_row(const StyleRecord& style) {
    return {printed_number(style), std::string(style_type_word(style)),
            utf8_from_windows1252(style.category.view()), utf8_from_windows1252(style.name.view())};
}

} // namespace

CataloguePages<StyleRecord> style_pages(const Settings& settings, StyleBook book) {
    const auto name = style_book_name(book);
    return {.list_titles = {"Wortlex Style List - AHA Styles", "Wortlex Style List - BJCP Styles"},
            .stops = {55, 130, 355},
            .heads = {name + "#\tType\tCategory\tSub-Catergory"},
            .row = style_row,
            .entry_title = "Wortlex " + name + " Style Detail",
            .entry = [&settings](const StyleRecord& style) { return style_entry(style, settings); }};
}

} // namespace wortlex
