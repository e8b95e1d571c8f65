#include "databases/extras.h"

#include "base/windows1252.h"
#include "databases/catalogues.h"
#include "databases/store.h"
#include "records/ingredients/amount_words.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int32_t most_time = 200;
constexpr std::size_t most_characters = 54; // of every text that the dialog takes

constexpr CatalogueWords extra_words = {
    .import_filter = "Extra Import File (*.eim)|*.eim",
    .import_extension = "eim",
    .sort_files = {"esort1.srt", "esort2.srt"},
    .data_file = extra_file,
    .full = "The Extra Ingredient Database is Full!",
    .clone_warning =
        "Cloning may cause problems with inventory and/or selecting if either the Name or Type of "
        "Ingredient is not changed to reflect a unique entry. You may change any of these items "
        "after the cloning process.\n\nDo you really want to clone this entry?",
    .replace_warning =
        "Replacing the item will NOT overwrite your existing inventory amounts.\n\nDo you wish "
        "to replace this item?",
    .closing_question = "The extra-ingredients database has been modified!\nDo you want to save the changes?",
    .maintenance_template = "EXTRATYPEDIALOG",
    .entry_template = "EXTRAENTRYDIALOG",
    .inventory_template = "EXTRAINVENTORY",
    .pick_template = "EXTRAPICKDIALOG"};

std::vector<CatalogueColumn<ExtraRecord>> extra_columns() {
    using Extra = CatalogueBuilder<ExtraRecord>;
    return {Extra::text("Name", 24, &ExtraRecord::name).stretched(),
            Extra::words("Type Of Ingredient", 18,
                         [](const ExtraRecord& extra) { return std::string(type_word(extra.extra_type)); }),
            Extra::text("Use", 30, &ExtraRecord::use),
            Extra::stock("In Stock", &ExtraRecord::stock, [](float amount) { return amount; })};
}

std::string extra_stock_unit(const ExtraRecord& extra) {
    return words_of(extra.amount_unit).stock;
}

std::string extra_name(const ExtraRecord& extra) {
    return utf8_from_windows1252(extra.name.view());
}

CatalogueFilter<ExtraRecord> only_extras(ExtraType wanted, std::string label, const std::string& kept,
                                         const std::string& picked) {
    return {std::move(label), "Extra Ingredients Database Maintenance - " + kept,
            "Extra Ingredients Pick - " + picked,
            [wanted](const ExtraRecord& extra) { return extra.extra_type == wanted; }};
}

std::vector<CatalogueFilter<ExtraRecord>> filters() {
    return {{"&All", "Extra Ingredients Database Maintenance - All Types",
             "Extra Ingredients Pick - All Types", nullptr},
            only_extras(ExtraType::spice, "Spice", "Spices", "Spices"),
            only_extras(ExtraType::fruit, "&Fruit", "Fruits", "Fruits"),
            only_extras(ExtraType::coffee, "C&offee", "Coffee", "Coffee"),
            only_extras(ExtraType::fining, "Finin&g", "Fining", "Fining"),
            only_extras(ExtraType::other, "O&ther", "Other Types", "Other Types"),
            only_extras(ExtraType::herb, "Her&b", "Herb Types", "Herbs")};
}

void time_rows(Rows& rows, ExtraRecord& extra) {
    rows.integer("time", extra.time)
        .label("S&uggested Time:")
        .range(0, most_time)
        .step(1)
        .outside(Outside::clamp);
    rows.choice("time_unit", extra.time_unit, {"Time in &Days", "Time &in Minutes"})
        .named("Unit of the time");
    rows.choice("time_place", extra.time_place, {"Time in Boi&l.", "Time in Fe&rmenter", "Time in &Mash"})
        .named("Place of the time")
        .look(ChoiceRow::Look::down);
}

// What a file brought beyond the limits of the dialog goes with its OK.
void hold_extra_in_range(ExtraRecord& extra) {
    extra.time = std::clamp(extra.time, 0, most_time);
    cut_to(extra.use, most_characters);
    cut_to(extra.comment, most_characters);
}

} // namespace

std::string_view type_word(ExtraType type) {
    constexpr std::array<std::string_view, 6> type_words = {"Spice", "Fruit",  "Coffee",
                                                            "Other", "Fining", "Herb"};
    const auto code = static_cast<std::size_t>(type);
    return code < type_words.size() ? type_words[code] : "";
}

void extra_entry_form(Form& form, ExtraRecord& extra) {
    auto& texts = form.group("Ingredient");
    texts.text("name", extra.name).label("&Name").limit(most_characters).width(40);
    texts.text("use", extra.use).label("Us&e:").limit(most_characters).width(40);
    texts.text("comment", extra.comment).label("Commen&t:").limit(most_characters).width(40);
    time_rows(form.group("Time"), extra);
    form.next_column();
    form.group("Type Of Ingredient")
        .choice("type", extra.extra_type, {"&Spice", "&Fruit", "&Coffee", "&Other", "Finin&g Agent", "&Herb"})
        .look(ChoiceRow::Look::down);
    form.next_column();
    // No letters are left for these to be unique.
    form.group("Default Measurement")
        .choice("amount_unit", extra.amount_unit,
                {"Ounces", "Grams", "Pounds", "Tsp", "Tbsp", "Cups", "Single Unit"})
        .look(ChoiceRow::Look::down);
    form.on_accept([&extra] { hold_extra_in_range(extra); });
}

Catalogue<ExtraRecord> extra_catalogue(const Settings& /*settings*/, const std::string& data_folder) {
    Catalogue<ExtraRecord> extras;
    extras.words = extra_words;
    extras.columns = extra_columns();
    extras.chains = {{0}, {1, 0}, {2, 0}, {3, 0}};
    extras.identity = {0, 1};
    extras.filters = filters();
    extras.stock = {.amount = &ExtraRecord::stock,
                    .to_shown = [](float amount) { return amount; },
                    .from_shown = [](float amount) { return amount; },
                    .unit = extra_stock_unit,
                    .most_typed = 1000};
    extras.new_record = [](std::size_t) {
        ExtraRecord extra;
        extra.extra_type = ExtraType::other;
        return extra;
    };
    extras.entry_form = extra_entry_form;
    extras.pages = extra_pages();
    extras.names = {stored_text(&ExtraRecord::name),
                    [](const ExtraRecord& extra) { return type_word(extra.extra_type); }};
    extras.keep = [](ExtraRecord& imported, const ExtraRecord& existing) { imported.stock = existing.stock; };
    extras.exists_text = [](const ExtraRecord& extra) {
        return extra_name(extra) + " \nThis extra type already exists in the database!";
    };
    extras.delete_name = extra_name;
    extras.load = [data_folder](Database<ExtraRecord>& into, Prompts& prompts) {
        return LoadExtras(data_folder, into, prompts);
    };
    extras.save = [data_folder](const Database<ExtraRecord>& from) { return SaveExtras(data_folder, from); };
    return extras;
}

std::unique_ptr<RecordList<ExtraRecord>> extra_list(const ListSource& source, Database<ExtraRecord>& extras) {
    return std::make_unique<Store<ExtraRecord>>(extra_catalogue(source.settings, source.data_folder), source,
                                                extras);
}

} // namespace wortlex
