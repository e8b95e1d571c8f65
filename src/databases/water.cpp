#include "databases/water.h"

#include "base/windows1252.h"
#include "brewing/water_ph.h"
#include "databases/catalogues.h"
#include "databases/store.h"
#include "databases/water_hardness.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::size_t most_of_name = 24;

constexpr CatalogueWords water_words = {
    .import_filter = "Water Import File (*.wim)|*.wim",
    .import_extension = "wim",
    .sort_files = {"wsort1.srt", "wsort2.srt"},
    .data_file = water_file,
    .full = "The Water Database is Full!",
    .clone_warning = "Cloning may cause problems when picking types if the Name is not changed to reflect a "
                     "unique entry. You may change the name after the cloning process.\n\nDo you really want "
                     "to clone this entry?",
    .replace_warning = "\n\nDo you wish to replace this item?",
    .closing_question = "The water database has been modified!\nDo you want to save the changes?",
    .maintenance_template = "WATERTYPEDIALOG",
    .entry_template = "WATERTYPEENTRYDIALOG",
    .inventory_template = "",
    .pick_template = "WATERPICKDIALOG"};

// In the order of the ions.
constexpr std::array ion_labels = {"&Calcium (Ca)",  "&Magnesium (Mg)", "&Sodium (Na)",
                                   "S&ulfate (SO4)", "Ch&loride (Cl)",  "&biCarbonate (HCO3)"};

std::vector<CatalogueColumn<WaterRecord>> water_columns() {
    using Water = CatalogueBuilder<WaterRecord>;
    std::vector columns = {Water::text("Name", 26, &WaterRecord::name).stretched()};
    for (const auto& ion : ions) columns.push_back(Water::number(ion.symbol, 8, ion.ppm, "%06.1f"));
    return columns;
}

std::string water_name(const WaterRecord& water) {
    return utf8_from_windows1252(water.name.view());
}

std::function<void()> opened(const std::function<void(WaterRecord&)>& converter, Form& form,
                             WaterRecord& water) {
    if (!converter) return nullptr;
    return [converter, &form, &water] {
        converter(water);
        if (form.show_again) form.show_again(nullptr);
    };
}

void ion_rows(Rows& rows, Form& form, WaterRecord& water) {
    for (std::size_t i = 0; i < ions.size(); ++i)
        rows.number(ions[i].key, water.*ions[i].ppm)
            .label(ion_labels[i])
            .range(0.0F, most_ppm)
            .step(1.0F)
            .outside(Outside::clamp);
    rows.number("ph", water.ph).label("P&H").range(0.0F, most_ph).step(0.1F).outside(Outside::clamp);
    rows.button("calculate_ph", "C&alc",
                [&form, &water] {
                    water.ph = ph_of_bicarbonate(water.bicarbonate);
                    if (form.show_again) form.show_again(nullptr);
                })
        .hint("The pH that goes with the bicarbonate");
}

void converter_rows(Rows& rows, Form& form, WaterRecord& water, const WaterConverters& converters) {
    auto& below_each_other = rows.grid("converters", {});
    const auto button = [&](const char* key, const char* caption, const auto& converter) {
        below_each_other.line("").button(key, caption, opened(converter, form, water));
    };
    button("from_calcium_hardness", "Ca Ha&rdness As CaCO3", converters.calcium);
    button("from_magnesium_hardness", "M&g Hardness As CaCO3", converters.magnesium);
    button("from_alkalinity", "Alkalini&ty As CaCO3", converters.alkalinity);
}

// The converters and old files may bring more than the fields take.
void hold_water_in_range(WaterRecord& water) {
    cut_to(water.name, most_of_name);
    for (const auto& ion : ions) water.*ion.ppm = std::clamp(water.*ion.ppm, 0.0F, most_ppm);
    water.ph = std::clamp(water.ph, 0.0F, most_ph);
}

} // namespace

void water_entry_form(Form& form, WaterRecord& water, const WaterConverters& converters) {
    auto& texts = form.group("Water");
    texts.text("name", water.name).label("&Name").limit(most_of_name).width(30);
    texts.text("known_for", water.known_for).label("&Known For").limit(152).lines();
    converter_rows(form.group("Calc From -"), form, water, converters);
    form.next_column();
    ion_rows(form.group("ppm"), form, water);
    form.on_accept([&water] { hold_water_in_range(water); });
}

Catalogue<WaterRecord> water_catalogue(const Settings& /*settings*/, const std::string& data_folder,
                                       const WaterConverters& converters) {
    Catalogue<WaterRecord> waters;
    waters.words = water_words;
    waters.columns = water_columns();
    waters.chains = {{0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}};
    waters.identity = {0};
    waters.filters = {{"&All", "Water Database Maintenance", "Water Pick", nullptr}};
    waters.new_limit = import_limit;
    waters.new_record = [](std::size_t) { return WaterRecord(); };
    waters.entry_form = [converters](Form& form, WaterRecord& water) {
        water_entry_form(form, water, converters);
    };
    waters.pages = water_pages();
    waters.names = {stored_text(&WaterRecord::name)};
    waters.keep = [](WaterRecord&, const WaterRecord&) {};
    waters.exists_text = [](const WaterRecord& water) {
        return water_name(water) + "\nThis Water type already exists in the database!";
    };
    waters.delete_name = water_name;
    waters.load = [data_folder](Database<WaterRecord>& into, Prompts& prompts) {
        return LoadWater(data_folder, into, prompts);
    };
    waters.save = [data_folder](const Database<WaterRecord>& from) { return SaveWater(data_folder, from); };
    return waters;
}

std::unique_ptr<RecordList<WaterRecord>> water_list(const ListSource& source, Database<WaterRecord>& waters) {
    return water_list(source, waters, {});
}

std::unique_ptr<RecordList<WaterRecord>> water_list(const ListSource& source, Database<WaterRecord>& waters,
                                                    const WaterConverters& converters) {
    return std::make_unique<Store<WaterRecord>>(
        water_catalogue(source.settings, source.data_folder, converters), source, waters);
}

} // namespace wortlex
