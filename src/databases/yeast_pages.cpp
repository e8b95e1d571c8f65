#include "databases/catalogues.h"
#include "databases/yeasts.h"
#include "measures/units.h"

namespace wortlex {
namespace {

EntryLines yeast_entry(const YeastRecord& yeast) {
    EntryLines entry;
    entry.text("Lab", yeast.lab);
    entry.text("Catalog #", yeast.catalog_number);
    entry.text("Name", yeast.name);
    entry.blank();
    entry.word("Type", kind_word(yeast.yeast_kind));
    entry.word("Package Type", medium_word(yeast.yeast_medium));
    entry.word("Flocculation", flocculation_word(yeast.flocculation));
    entry.blank();
    entry.text("Flavors", yeast.flavours);
    entry.text("Comments", yeast.comment);
    entry.blank();
    entry.add(formatted("Attenuation:\t%d", yeast.high_attenuation) +
              formatted("  to  %d", yeast.low_attenuation));
    entry.add(formatted("Optimum Temp:\t%0.0f F", yeast.optimum_temperature) +
              formatted(", %0.1f C", celsius_from_fahrenheit(yeast.optimum_temperature)));
    entry.blank();
    entry.add(formatted("Amount In Stock:\t%0.2f", yeast.stock));
    return entry;
}

std::string short_kind_word(YeastKind kind) {
    return std::string(kind == YeastKind::champagne ? "Chmpn" : kind_word(kind));
}

std::vector<std::string> yeast_row(const YeastRecord& yeast) {
    return {short_kind_word(yeast.yeast_kind),
            utf8_from_windows1252(yeast.lab.view()),
            utf8_from_windows1252(yeast.catalog_number.view()),
            utf8_from_windows1252(yeast.name.view()),
            std::string(medium_word(yeast.yeast_medium)),
            stock_cell(yeast.stock)};
}

} // namespace

CataloguePages<YeastRecord> yeast_pages() {
    return {.list_titles = {"Wortlex Yeast List - All Yeast", "Wortlex Yeast List - Ale Yeast",
                            "Wortlex Yeast List - Lager Yeast", "Wortlex Yeast List - Wine Yeast",
                            "Wortlex Yeast List - Champagne Yeast"},
            .stops = {60, 175, 250, 485, 540},
            .heads = {"\t\t\t\t\tAmount", "Type\tLAB\tCAT#\tName\tType\tIn Stock"},
            .row = yeast_row,
            .entry_title = "Wortlex Yeast Detail",
            .entry = yeast_entry};
}

} // namespace wortlex
