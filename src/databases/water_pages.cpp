#include "databases/catalogues.h"

namespace wortlex {
namespace {

EntryLines water_entry(const WaterRecord& water) {
    EntryLines entry;
    entry.text("Name", water.name);
    entry.text("Known For", water.known_for);
    entry.blank();
    entry.add(formatted("PH:\t%0.2f", water.ph));
    entry.blank();
    entry.add(formatted("Calcium (Ca):\t%0.1f", water.calcium));
    entry.add(formatted("Magnesium (Mg):\t%0.1f", water.magnesium));
    entry.add(formatted("Sodium (Na):\t%0.1f", water.sodium));
    entry.add(formatted("Sulfate (SO4):\t%0.1f", water.sulfate));
    entry.add(formatted("Chloride (CI):\t%0.1f", water.chloride)); // spelt with a capital I
    entry.add(formatted("biCarbonate (HCO3):\t%0.1f", water.bicarbonate));
    return entry;
}

std::vector<std::string> water_row(const WaterRecord& water) {
    std::vector<std::string> cells = {utf8_from_windows1252(water.name.view())};
    for (const auto& ion : ions) cells.push_back(formatted("%0.1f", water.*ion.ppm));
    return cells;
}

} // namespace

CataloguePages<WaterRecord> water_pages() {
    return {.list_titles = {"Wortlex Water Profiles"},
            .stops = {200, 265, 330, 395, 460, 525},
            .heads = {"Name\tCa\tMg\tNa\tSO4\tCl\tHCO3"},
            .row = water_row,
            .entry_title = "Wortlex Water Detail",
            .entry = water_entry};
}

} // namespace wortlex
