#include "database_sources.h"

#include "base/number.h"
#include "csv.h"
#include "measures/gravity.h"
#include "settings/codes.h"

#include <algorithm>
#include <tuple>

namespace wortlex {
namespace {

StorageClass storage_class_of(float percent_lost) {
    if (percent_lost < 25) return StorageClass::good;
    return percent_lost < 50 ? StorageClass::average : StorageClass::poor;
}

HopRecord hop(const CsvRow& row) {
    HopRecord hop;
    hop.name = row["name"].stored_name<55>();
    hop.origin = row["origin"].stored<55>();
    set_form(hop, row["form"].word<HopForm>(
                      {{"Whole", HopForm::whole}, {"Plug", HopForm::plug}, {"Pellet", HopForm::pellet}}));
    hop.alpha = row["alpha"].number(0, 100);
    hop.beta = row["beta"].number(0, 100);
    hop.noble = static_cast<std::uint8_t>(row["noble"].whole(0, 1));
    hop.cohumulone = row["cohumulone"].number(0, 100);
    hop.myrcene = row["myrcene"].number(0, 100);
    hop.humulene = row["humulene"].number(0, 100);
    hop.caryophyllene = row["caryophyllene"].number(0, 100);
    hop.usage = row["usage"].word<HopUsage>(
        {{"Bittering", HopUsage::bittering}, {"Aroma", HopUsage::aroma}, {"Both", HopUsage::both}});
    hop.storage_factor = row["storage_factor"].number(0, 100);
    set_storage_class(hop, storage_class_of(hop.storage_factor));
    hop.tastes = row["tastes"].stored<155>();
    hop.best_for = row["best_for"].stored<155>();
    hop.substitutes = row["substitutes"].stored<155>();
    return hop;
}

MaltRecord malt(const CsvRow& row) {
    MaltRecord malt;
    malt.name = row["name"].stored_name<55>();
    malt.supplier = row["supplier"].stored<55>();
    malt.origin = row["origin"].stored<55>();
    malt.malt_type = row["type"].word<MaltType>({{"Grain", MaltType::grain},
                                                 {"Extract", MaltType::extract},
                                                 {"Sugar", MaltType::sugar},
                                                 {"Other", MaltType::other}});
    malt.must_mash = static_cast<std::uint8_t>(row["must_mash"].whole(0, 1));
    malt.potential = row["potential_sg"].number(1, 2);
    malt.colour = row["color_lovibond"].number(0, 2500);
    malt.moisture = row["moisture"].number(0, 10);
    malt.max_in_batch = row["max_in_batch"].number(0, 100);
    malt.diastatic_power = row["diastatic_power"].number(0, 500);
    malt.protein = row["protein"].number(0, 100);
    malt.soluble_nitrogen = row["third"].number(0, 100);
    malt.fine_yield = yield_from_sg(malt.potential);
    malt.coarse_yield =
        narrow(double{malt.fine_yield} - row["coarse_fine_difference"].number(0, malt.fine_yield));
    malt.use_for = row["use_for"].stored<155>();
    malt.comments = row["comments"].stored<155>();
    return malt;
}

YeastRecord yeast(const CsvRow& row) {
    YeastRecord yeast;
    yeast.name = row["name"].stored_name<55>(29);
    yeast.lab = row["lab"].stored<55>(13);
    yeast.catalog_number = row["catalog"].stored<25>(7);
    yeast.yeast_kind = row["type"].word<YeastKind>({{"Ale", YeastKind::ale},
                                                    {"Lager", YeastKind::lager},
                                                    {"Wine", YeastKind::wine},
                                                    {"Champagne", YeastKind::champagne}});
    yeast.yeast_medium = row["medium"].word<YeastMedium>(
        {{"Dry", YeastMedium::dry}, {"Liquid", YeastMedium::liquid}, {"Agar", YeastMedium::agar_slant}});
    yeast.low_attenuation = row["low_attenuation"].whole(0, 100);
    yeast.high_attenuation = row["high_attenuation"].whole(0, 100);
    yeast.optimum_temperature = row["optimum_f"].number(0, 212);
    yeast.flocculation = row["flocculation"].word<Flocculation>(
        {{"High", Flocculation::high}, {"Medium", Flocculation::medium}, {"Low", Flocculation::low}});
    yeast.flavours = row["flavors"].stored<155>();
    yeast.comment = row["comment"].stored<155>();
    return yeast;
}

WaterRecord water(const CsvRow& row) {
    WaterRecord water;
    water.name = row["name"].stored_name<27>();
    water.calcium = row["calcium"].number(0, 2000);
    water.magnesium = row["magnesium"].number(0, 2000);
    water.sodium = row["sodium"].number(0, 2000);
    water.sulfate = row["sulfate"].number(0, 2000);
    water.chloride = row["chloride"].number(0, 2000);
    water.bicarbonate = row["bicarbonate"].number(0, 2000);
    water.ph = row["ph"].number(0, 20);
    water.known_for = row["known_for"].stored<155>();
    return water;
}

ExtraRecord extra(const CsvRow& row) {
    constexpr std::size_t entry_limit = 54; // of all three texts, whatever their room in the record
    ExtraRecord extra;
    extra.name = row["name"].stored_name<55>(entry_limit);
    extra.extra_type = row["type"].word<ExtraType>({{"Spice", ExtraType::spice},
                                                    {"Fruit", ExtraType::fruit},
                                                    {"Coffee", ExtraType::coffee},
                                                    {"Other", ExtraType::other},
                                                    {"Fining", ExtraType::fining},
                                                    {"Herb", ExtraType::herb}});
    extra.time = row["time"].whole(0, 200);
    extra.time_place = row["place"].word<TimePlace>(
        {{"Boil", TimePlace::boil}, {"Fermenter", TimePlace::fermenter}, {"Mash", TimePlace::mash}});
    extra.time_unit =
        row["time_unit"].word<TimeUnit>({{"Days", TimeUnit::days}, {"Minutes", TimeUnit::minutes}});
    extra.amount_unit = row["unit"].word<AmountUnit>({{"Ounces", AmountUnit::ounces},
                                                      {"Grams", AmountUnit::grams},
                                                      {"Pounds", AmountUnit::pounds},
                                                      {"Teaspoon", AmountUnit::teaspoon},
                                                      {"Tablespoon", AmountUnit::tablespoon},
                                                      {"Cup", AmountUnit::cup},
                                                      {"Unit", AmountUnit::unit}});
    extra.use = row["use"].stored<255>(entry_limit);
    extra.comment = row["comment"].stored<255>(entry_limit);
    return extra;
}

// The two columns of a style's range.
struct Range {
    float low = 0;
    float high = 0;
};

Range range(const CsvRow& row, const std::string& what, double low, double high) {
    const Range range{row[what + "_min"].number(low, high), row[what + "_max"].number(low, high)};
    if (range.low > range.high) refuse(row.place, what + "_min is above " + what + "_max");
    return range;
}

void read_ranges(const CsvRow& row, StyleRecord& style) {
    const auto og = range(row, "og", 1, 2), fg = range(row, "fg", 1, 2);
    const auto alcohol = range(row, "alcohol", 0, 100), ibu = range(row, "ibu", 0, 100);
    const auto colour = range(row, "srm", 0, 2500);
    style.min_og = og.low;
    style.max_og = og.high;
    style.min_fg = fg.low;
    style.max_fg = fg.high;
    style.min_alcohol = alcohol.low;
    style.max_alcohol = alcohol.high;
    style.min_ibu = ibu.low;
    style.max_ibu = ibu.high;
    style.min_colour = colour.low;
    style.max_colour = colour.high;
}

StyleRecord style(const CsvRow& row, StyleBook book) {
    StyleRecord style;
    style.category = row["category"].stored_name<55>();
    style.name = row["subcategory"].stored_name<55>();
    style.type = row["type"].word<BeerType>({{"Ale", BeerType::ale},
                                             {"Lager", BeerType::lager},
                                             {"Cider", BeerType::cider},
                                             {"Mead", BeerType::mead},
                                             {"Sake", BeerType::sake},
                                             {"Mixed", BeerType::mixed}});
    read_ranges(row, style);
    style.colour_note = row["color_note"].stored<155>();
    style.malt_note = row["malt_note"].stored<155>();
    style.hop_note = row["hop_note"].stored<155>();
    style.yeast_note = row["yeast_note"].stored<155>();
    style.examples = row["examples"].stored<255>();
    style.number = static_cast<std::int16_t>(row["number"].whole(1, 50));
    style.letter = row["letter"].stored_name<4>(1).bytes[0];
    style.book = static_cast<std::uint8_t>(book);
    return style;
}

// Of some texts, each with a separator that no text holds.
std::string key_of(std::initializer_list<std::string_view> texts) {
    std::string key;
    for (const auto text : texts) key += folded(text) + '\0';
    return key;
}

auto hop_key(const HopRecord& hop) {
    return std::tuple(key_of({hop.name.view(), hop.origin.view()}), hop.alpha, folded(form_word(form(hop))));
}

auto malt_key(const MaltRecord& malt) {
    return key_of({malt.name.view(), malt.origin.view()});
}

auto yeast_key(const YeastRecord& yeast) {
    return key_of({yeast.lab.view(), yeast.catalog_number.view(), yeast.name.view()});
}

auto style_key(const StyleRecord& style) {
    return std::pair(style.number, style.letter);
}

// Rows whose keys are equal keep their order.
template <class ReadRow, class KeyOf>
auto read_table(const std::string& path, ReadRow read_row, KeyOf key) {
    using Record = std::invoke_result_t<ReadRow, const CsvRow&>;
    Database<Record> database;
    std::vector<Record> records;
    for (const auto& row : read_csv(path)) {
        if (records.size() == database_slots)
            refuse(row.place,
                   "is one entry more than the " + std::to_string(database_slots) + " that a database holds");
        records.push_back(read_row(row));
    }
    std::stable_sort(records.begin(), records.end(),
                     [&](const Record& a, const Record& b) { return key(a) < key(b); });
    database.count = static_cast<std::int32_t>(records.size());
    std::copy(records.begin(), records.end(), database.slots.begin());
    return database;
}

} // namespace

Databases read_databases(const std::string& folder) {
    const auto by_name = [](const auto& record) { return folded(record.name.view()); };
    const auto aha = [](const CsvRow& row) { return style(row, StyleBook::aha); };
    const auto bjcp = [](const CsvRow& row) { return style(row, StyleBook::bjcp); };
    return {.hops = read_table(folder + "hops.csv", hop, hop_key),
            .malts = read_table(folder + "malts.csv", malt, malt_key),
            .yeasts = read_table(folder + "yeasts.csv", yeast, yeast_key),
            .water = read_table(folder + "water.csv", water, by_name),
            .extras = read_table(folder + "extras.csv", extra, by_name),
            .aha_styles = read_table(folder + "styles_aha.csv", aha, style_key),
            .bjcp_styles = read_table(folder + "styles_bjcp.csv", bjcp, style_key)};
}

} // namespace wortlex
