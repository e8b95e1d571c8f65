#include "databases/yeasts.h"

#include "base/windows1252.h"
#include "databases/catalogues.h"
#include "databases/store.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::int32_t most_attenuation = 100;
constexpr float most_fahrenheit = 212.0F;

constexpr CatalogueWords yeast_words = {
    .import_filter = "Yeast Import File (*.yim)|*.yim",
    .import_extension = "yim",
    .sort_files = {"ysort1.srt", "ysort2.srt"},
    .data_file = yeast_file,
    .full = "The Yeast Database is Full!",
    .clone_warning =
        "Cloning may cause problems with inventory and/or selecting if either the Lab, Catalog #, "
        "Name, Type or Medium is not changed to reflect a unique entry. You may change any of "
        "these items after the cloning process.\n\nDo you really want to clone this entry?",
    .replace_warning =
        "Replacing the item will NOT overwrite your existing inventory amounts.\n\nDo you wish "
        "to replace this item?",
    .closing_question = "The yeast database has been modified!\nDo you want to save the changes?",
    .maintenance_template = "YEASTTYPEDIALOG",
    .entry_template = "YEASTTYPEENTRYDIALOG",
    .inventory_template = "YEASTINVENTORY",
    .pick_template = "YEASTPICKDIALOG"};

std::vector<CatalogueColumn<YeastRecord>> yeast_columns() {
    using Yeast = CatalogueBuilder<YeastRecord>;
    return {
        Yeast::text("Lab", 14, &YeastRecord::lab),
        Yeast::text("Category Number", 16, &YeastRecord::catalog_number),
        Yeast::text("Name", 30, &YeastRecord::name).stretched(),
        Yeast::words("Type", 11,
                     [](const YeastRecord& yeast) { return std::string(kind_word(yeast.yeast_kind)); }),
        Yeast::words("Medium", 8,
                     [](const YeastRecord& yeast) { return std::string(medium_word(yeast.yeast_medium)); }),
        Yeast::stock("In Stock", &YeastRecord::stock, [](float units) { return units; })};
}

CatalogueFilter<YeastRecord> only_yeasts(YeastKind wanted, std::string label) {
    const auto of = std::string(kind_word(wanted)) + " Yeast";
    return {std::move(label), "Yeast Database Maintenance - " + of, "Yeast Pick - " + of,
            [wanted](const YeastRecord& yeast) { return yeast.yeast_kind == wanted; }};
}

std::string yeast_name(const YeastRecord& yeast) {
    return utf8_from_windows1252(yeast.name.view());
}

std::string lab_and_name(const YeastRecord& yeast) {
    return utf8_from_windows1252(yeast.lab.view()) + " " + yeast_name(yeast);
}

void attenuation_rows(Rows& rows, YeastRecord& yeast) {
    const auto percent = [&rows](const char* key, const char* label, std::int32_t& value) {
        rows.integer(key, value).label(label).range(0, most_attenuation).step(1).outside(Outside::clamp);
    };
    percent("low_attenuation", "&Low", yeast.low_attenuation);
    percent("high_attenuation", "Hi&gh", yeast.high_attenuation);
}

// One temperature in two fields, so each follows the other. That of degrees C reaches further than the
// record, which OK puts right.
void temperature_rows(Rows& rows, YeastRecord& yeast) {
    rows.number("fahrenheit", yeast.optimum_temperature)
        .label("Degrees &F")
        .typed(0.0F, most_fahrenheit)
        .spun(0.0F, 200.0F, 1.0F)
        .outside(Outside::clamp);
    rows.signed_number("celsius", yeast.optimum_temperature)
        .label("Degree&s C")
        .shown_as(celsius_from_fahrenheit, fahrenheit_from_celsius)
        .typed(-17.77F, 212.0F)
        .spun(-17.77F, 200.0F, 1.0F)
        .outside(Outside::clamp);
}

void hold_yeast_in_range(YeastRecord& yeast) {
    yeast.low_attenuation = std::clamp(yeast.low_attenuation, 0, most_attenuation);
    yeast.high_attenuation = std::clamp(yeast.high_attenuation, 0, most_attenuation);
    yeast.optimum_temperature = std::clamp(yeast.optimum_temperature, 0.0F, most_fahrenheit);
}

} // namespace

std::string_view kind_word(YeastKind kind) {
    switch (kind) {
    case YeastKind::ale:
        return "Ale";
    case YeastKind::lager:
        return "Lager";
    case YeastKind::wine:
        return "Wine";
    case YeastKind::champagne:
        return "Champagne";
    default:
        return "";
    }
}

std::string_view medium_word(YeastMedium medium) {
    switch (medium) {
    case YeastMedium::dry:
        return "Dry";
    case YeastMedium::liquid:
        return "Liquid";
    case YeastMedium::agar_slant:
        return "Agar";
    default:
        return "";
    }
}

std::string_view flocculation_word(Flocculation flocculation) {
    switch (flocculation) {
    case Flocculation::high:
        return "High";
    case Flocculation::medium:
        return "Medium";
    case Flocculation::low:
        return "Low";
    default:
        return "";
    }
}

void yeast_entry_form(Form& form, YeastRecord& yeast) {
    auto& texts = form.group("Yeast");
    texts.text("lab", yeast.lab).label("La&b").limit(13).width(30);
    texts.text("name", yeast.name).label("&Name").limit(29).width(30);
    texts.text("catalog_number", yeast.catalog_number).label("&Catalog #").limit(7).width(10);
    form.group("Type")
        .choice("kind", yeast.yeast_kind,
                {"&Ale Yeast(Top Fermenting)", "Lag&er Yeast(Bottom Fermenting)", "W&ine Yeast",
                 "Champagne &Yeast"})
        .look(ChoiceRow::Look::down);
    form.group("Medium").choice("medium", yeast.yeast_medium, {"&Dry", "Li&quid", "Aga&r Slant"});
    form.next_column();
    form.group("Flocculation").choice("flocculation", yeast.flocculation, {"&High", "&Medium", "Lo&w"});
    attenuation_rows(form.group("Apparent Attenuation:"), yeast);
    temperature_rows(form.group("Optimum Fermentation Temp:"), yeast);
    form.next_column();
    auto& notes = form.group("Notes");
    notes.text("flavours", yeast.flavours).label("Fla&vors").limit(152).lines();
    notes.text("comment", yeast.comment).label("Commen&t").limit(152).lines();
    form.on_accept([&yeast] { hold_yeast_in_range(yeast); });
}

Catalogue<YeastRecord> yeast_catalogue(const Settings& /*settings*/, const std::string& data_folder) {
    Catalogue<YeastRecord> yeasts;
    yeasts.words = yeast_words;
    yeasts.columns = yeast_columns();
    yeasts.chains = {{0, 1, 2}, {1, 0, 2}, {2, 0}, {3, 0, 1}, {4, 0, 1}, {5, 0, 1}};
    yeasts.identity = {0, 1, 2, 3, 4};
    yeasts.filters = {{"&All", "Yeast Database Maintenance - All Yeast", "Yeast Pick - All Yeast", nullptr},
                      only_yeasts(YeastKind::ale, "A&le"),
                      only_yeasts(YeastKind::lager, "La&ger"),
                      only_yeasts(YeastKind::wine, "&Wine"),
                      only_yeasts(YeastKind::champagne, "Cha&mpagne")};
    yeasts.stock = {.amount = &YeastRecord::stock,
                    .to_shown = [](float units) { return units; },
                    .from_shown = [](float units) { return units; },
                    .unit = [](const YeastRecord&) { return std::string("Units"); },
                    .title =
                        [](const YeastRecord& yeast) {
                            return lab_and_name(yeast) + " " +
                                   utf8_from_windows1252(yeast.catalog_number.view());
                        }};
    yeasts.new_limit = import_limit;
    yeasts.new_record = [](std::size_t) { return YeastRecord(); };
    yeasts.entry_form = yeast_entry_form;
    yeasts.pages = yeast_pages();
    yeasts.names = {stored_text(&YeastRecord::name), stored_text(&YeastRecord::lab),
                    stored_text(&YeastRecord::catalog_number)};
    yeasts.kind = [](const YeastRecord& yeast) { return medium_word(yeast.yeast_medium); };
    yeasts.keep = [](YeastRecord& imported, const YeastRecord& existing) { imported.stock = existing.stock; };
    yeasts.exists_text = [](const YeastRecord& yeast) {
        return lab_and_name(yeast) + "\nThis Yeast type already exists in the database!";
    };
    yeasts.delete_name = yeast_name;
    yeasts.load = [data_folder](Database<YeastRecord>& into, Prompts& prompts) {
        return LoadYeasts(data_folder, into, prompts);
    };
    yeasts.save = [data_folder](const Database<YeastRecord>& from) { return SaveYeasts(data_folder, from); };
    return yeasts;
}

std::unique_ptr<RecordList<YeastRecord>> yeast_list(const ListSource& source, Database<YeastRecord>& yeasts) {
    return std::make_unique<Store<YeastRecord>>(yeast_catalogue(source.settings, source.data_folder), source,
                                                yeasts);
}

} // namespace wortlex
