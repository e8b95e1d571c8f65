#include "databases/catalogues.h"
#include "databases/extras.h"
#include "records/ingredients/amount_words.h"

namespace wortlex {
namespace {

std::string behind_amount(std::string_view unit) {
    return unit.empty() ? std::string() : std::string(" ").append(unit);
}

std::string_view place_word(TimePlace place) {
    switch (place) {
    case TimePlace::boil:
        return "Boil";
    case TimePlace::fermenter:
        return "Fermenter";
    case TimePlace::mash:
        return "Mash";
    default:
        return "";
    }
}

EntryLines extra_entry(const ExtraRecord& extra) {
    const auto& unit = words_of(extra.amount_unit);
    EntryLines entry;
    entry.text("Name", extra.name);
    entry.word("Type", type_word(extra.extra_type));
    entry.blank();
    entry.text("Use In", extra.use);
    entry.text("Comment", extra.comment);
    entry.blank();
    entry.word("Process In", place_word(extra.time_place));
    entry.add(
        formatted(extra.time_unit == TimeUnit::days ? "For:\t%d Days" : "For:\t%d Minutes", extra.time));
    entry.blank();
    entry.word("Default Measurement", unit.full);
    entry.add(formatted("Amount In Stock:\t%0.2f ", extra.stock) + behind_amount(unit.entry));
    return entry;
}

std::string stock_with_unit(const ExtraRecord& extra) {
    if (extra.stock == 0) return stock_cell(extra.stock);
    return stock_cell(extra.stock) + behind_amount(words_of(extra.amount_unit).row);
}

std::vector<std::string> extra_row(const ExtraRecord& extra) {
    return {utf8_from_windows1252(extra.name.view()), std::string(type_word(extra.extra_type)),
            utf8_from_windows1252(extra.use.view()), stock_with_unit(extra)};
}

} // namespace

CataloguePages<ExtraRecord> extra_pages() {
    return {.list_titles = {"Wortlex Extra Ingredients - All Types", "Wortlex Extra Ingredients - Spices",
                            "Wortlex Extra Ingredients - Fruits", "Wortlex Extra Ingredients - Coffee",
                            "Wortlex Extra Ingredients - Fining", "Wortlex Extra Ingredients - Other Types",
                            "Wortlex Extra Ingredients - Herb"},
            .stops = {200, 265, 500},
            .heads = {"\t\t\tAmount ", "Name\tType\tUse In\tIn Stock"},
            .row = extra_row,
            .entry_title = "Wortlex Extra Ingredient Detail",
            .entry = extra_entry};
}

} // namespace wortlex
