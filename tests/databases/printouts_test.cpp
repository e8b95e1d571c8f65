#include "databases/printouts.h"

#include "databases/extras.h"
#include "databases/hops.h"
#include "databases/malts.h"
#include "databases/styles.h"
#include "databases/water.h"
#include "databases/yeasts.h"
#include "support/form_user.h"
#include "support/listed.h"
#include "support/recording_desk.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

// A line is 16 dots at three quarters, and 11 at a half.
PageJob shown(PrintRequest request, float scale = 0.75F, int letter = 4) {
    RecordingPageDesk desk;
    desk.character.width = letter;
    request.printer_scale = scale;
    desk.show(request);
    return std::move(desk.jobs.front());
}

bool SaveAhaStyles(const std::string& folder, const Database<StyleRecord>& styles) {
    return SaveStyles(folder, false, styles);
}
bool SaveBjcpStyles(const std::string& folder, const Database<StyleRecord>& styles) {
    return SaveStyles(folder, true, styles);
}

// The lines of a page, with bars between them.
std::string lines_of(const PrintRequest& request) {
    std::string all;
    for (const auto& text : texts_on(shown(request), 0))
        all += (all.empty() ? "" : "|") + text.substr(text.find(' ') + 1);
    return all;
}

// What the entry dialog prints of the first row, once something was typed into it.
std::string entry_of(IngredientList& list, const char* typed_in = nullptr, const char* text = "") {
    std::string lines;
    list.print = [&lines](const PrintRequest& request) { lines = lines_of(request); };
    ScriptedPrompts prompts;
    const auto entry = list.edit_entry(prompts);
    if (typed_in != nullptr) type(entry->form, typed_in, text);
    press(entry->form, "print");
    return lines;
}

TEST(ListPrintout, PrintsWhatIsShownUnderItsHeadsOnEveryPage) {
    Settings settings;
    settings.hop_weight_units = Units::metric;
    std::vector<HopRecord> entries(51);
    entries[50].name.assign(std::string(52, 'W')); // of 4 dots each, in 183 less a gap of 3
    entries[50].stock = 1;
    Listed hops(SaveHops, hop_list, entries, settings);
    const auto all = shown(hops->printout());
    ASSERT_EQ(all.pages.size(), 2U) << "50 rows from 185 to 969";
    EXPECT_THAT(texts_on(all, 1),
                ElementsAre("113 Wortlex Hop List - All Hops", "113 @584 Page 2", "153 \t\t\tPrimary\tg In",
                            "169 Name\tOrigin\tAlpha\tUse\tStock\tForm",
                            "185 " + std::string(45, 'W') + "\t\t   0.00\t\t  28.35\tWhole"));
    EXPECT_THAT(calls_on(all, 0), Contains(HasSubstr("[45,228,333,382,446,495] \tName\tOrigin")));
    hops->choose_filter(3, hops.prompts);
    EXPECT_THAT(texts_on(shown(hops->printout()), 0),
                ElementsAre("113 Wortlex Hop List - Pellet Hops", "113 @584 Page 1", HasSubstr("Primary"),
                            HasSubstr("Name")))
        << "no rows";
}

TEST(ListPrintout, HasRowsOfItsOwnInEachDatabase) {
    Settings settings;
    settings.weight_units = Units::american;
    settings.potential_display = PotentialDisplay::hwe;
    settings.style_book = StyleBook::bjcp;
    MaltRecord malt;
    malt.name.assign("Amber Extract");
    malt.malt_type = MaltType::extract;
    malt.must_mash = 1; // a syrup
    malt.potential = 1.04621F;
    malt.colour = 12;
    malt.stock = 2.5F;
    auto other = malt;
    other.name.assign("Oats");
    other.malt_type = MaltType::other;
    EXPECT_THAT(lines_of(Listed(SaveMalts, malt_list, {malt, other}, settings)->printout()),
                EndsWith("|\t\tGravity\tSRM\tMust\tLbs In|Type\tName\t(IOB-HWE)\tColor\tMash?\tStock|"
                         "Extract\tAmber Extract\t  386.0\t   12\tNo\t   2.50|"
                         "Other\tOats\t  386.0\t   12\tYes\t   2.50"));

    YeastRecord yeast;
    yeast.yeast_kind = YeastKind::champagne;
    yeast.yeast_medium = YeastMedium::agar_slant;
    EXPECT_THAT(lines_of(Listed(SaveYeasts, yeast_list, {yeast})->printout()),
                EndsWith("Chmpn\t\t\t\tAgar\t     --"));
    WaterRecord water;
    water.name.assign("Burton");
    water.calcium = 295.04F;
    water.chloride = 25;
    EXPECT_THAT(lines_of(Listed<WaterRecord>(SaveWater, water_list, {water})->printout()),
                EndsWith("Burton\t295.0\t0.0\t0.0\t0.0\t25.0\t0.0"));

    StyleRecord style;
    style.number = 3;
    style.type = BeerType::sake;
    EXPECT_THAT(lines_of(Listed(SaveBjcpStyles, style_list, {style}, settings)->printout()),
                EndsWith("BJCP#\tType\tCategory\tSub-Catergory|03-\tSake\t\t"))
        << "no letter, and no mark for it";

    ExtraRecord extra;
    extra.extra_type = ExtraType::herb;
    extra.amount_unit = AmountUnit::cup;
    auto stocked = extra;
    stocked.stock = 1.5F;
    EXPECT_THAT(lines_of(Listed(SaveExtras, extra_list, {extra, stocked})->printout()),
                EndsWith("\tHerb\t\t     --|\tHerb\t\t   1.50 Cups"));
}

TEST(EntryPrintout, TellsHopsYeastsWatersAndExtras) {
    HopRecord hop;
    hop.name.assign("H\xFCller");
    hop.usage = HopUsage::both;
    hop.substitutes.assign("Saaz");
    set_storage_class(hop, StorageClass::poor);
    hop.myrcene = 12.345F;
    hop.stock = 3;
    EXPECT_EQ(
        entry_of(*Listed(SaveHops, hop_list, {hop}).list),
        "Wortlex Hop Detail|@584 Page 1|Name:\tH\u00FCller|Type:\tBittering and "
        "Aroma|Noble:\tNo|Origin:\t|\t|Best For:\t|"
        "Tastes:\t|Subsitutes:\tSaaz|\t|Storage Viability:\tPoor|\t|Alpha Acids:\t0.00|Beta Acids:\t0.00|\t|"
        "Humulene:\t0.00|Caryophyllene:\t0.00|Cohumulone:\t0.00|Myrcene:\t12.35|\t|"
        "Amount In Stock:\t3.00 Ounces");
    YeastRecord yeast;
    yeast.high_attenuation = 77;
    yeast.low_attenuation = 73;
    yeast.optimum_temperature = 68;
    EXPECT_THAT(entry_of(*Listed(SaveYeasts, yeast_list, {yeast}).list),
                HasSubstr("Type:\tAle|Package Type:\tDry|Flocculation:\tHigh|\t|Flavors:\t|Comments:\t|\t|"
                          "Attenuation:\t77  to  73|Optimum Temp:\t68 F, 20.0 C|\t|Amount In Stock:\t0.00"));
    WaterRecord water;
    water.chloride = 25;
    EXPECT_THAT(entry_of(*Listed<WaterRecord>(SaveWater, water_list, {water}).list),
                HasSubstr("Chloride (CI):\t25.0|biCarbonate (HCO3):\t0.0"));
    ExtraRecord extra;
    extra.time = 15;
    extra.time_unit = TimeUnit::minutes;
    extra.time_place = TimePlace::mash;
    extra.amount_unit = AmountUnit::tablespoon;
    extra.stock = 2;
    EXPECT_THAT(entry_of(*Listed(SaveExtras, extra_list, {extra}).list),
                HasSubstr("Process In:\tMash|For:\t15 Minutes|\t|Default Measurement:\tTablespoon|"
                          "Amount In Stock:\t2.00  Tbsp"));
}

TEST(EntryPrintout, TellsStylesInTheColourThatIsShown) {
    Settings settings;
    settings.color_units = ColorUnits::ebc_new;
    StyleRecord style;
    style.category.assign("Stout");
    style.name.assign("Dry Stout");
    style.number = 5;
    style.letter = 'A';
    style.type = BeerType::mixed;
    style.min_og = 1.0356F;
    style.max_alcohol = 5.5F;
    style.max_colour = 100;
    const auto text = entry_of(*Listed(SaveAhaStyles, style_list, {style}, settings).list);
    EXPECT_THAT(text,
                HasSubstr("Wortlex AHA Style Detail|@584 Page 1|Category:\t5 - Stout|Name:\tA - Dry Stout|"
                          "Style Type:\tAle/Lager (mixed)|\t|Color Note:\t"));
    EXPECT_THAT(text, HasSubstr("OG (Balling) Min-Max:\t1.036\t0.000|FG (Balling) Min-Max:\t0.000\t0.000|"
                                "% Achohol Min-Max:\t0.00\t5.50|IBUs Min-Max:\t0.00\t0.00|"
                                "Color (EBC) Min-Max:\t0.00\t197.00"));
}

TEST(EntryPrintout, TellsAMaltAsItsFieldsStand) {
    Settings settings;
    settings.potential_display = PotentialDisplay::points;
    settings.plato_precision = 1;
    MaltRecord malt;
    malt.malt_type = MaltType::grain;
    malt.moisture = 10;
    malt.fine_yield = 80; // not that of the potential
    malt.coarse_yield = 78;
    malt.comments.assign("Sweet");
    const Listed malts(SaveMalts, malt_list, {malt}, settings);
    EXPECT_THAT(entry_of(*malts.list, "potential", "23.1"), // of 46.21
                EndsWith("Must Mash:\tNo|\t|Use For:\t|Comment:\t Sweet|\t|Potential (Pts pppg):\t23.10|"
                         "(dry basis fine grind)\t|SRM Color:\t0.00|% Moisture Content:\t10.00|\t|"
                         "\tDry Basis\tAs Is|% Yield - Fine Grind (FG):\t49.99\t44.99|"
                         "% Yield - Coarse Grind (CG):\t47.99\t43.19|% FG/CG Difference:\t2.00"));
}

TEST(EntryPrintout, BreaksLongTextsBesideTheirLabel) {
    EntryLines entry;
    Text<155> note;
    note.assign(std::string(40, 'a') + " " + std::string(19, 'b') + " c\r\n" + std::string(61, 'd'));
    entry.text("Note", note);
    const auto job = shown({"", 1, [&](PageContext& page) { print_entry(page, "T", entry); }}, 0.5F, 8);
    EXPECT_THAT(texts_on(job, 0),
                ElementsAre("113 T", "113 @584 Page 1", "140 Note:\t" + std::string(40, 'a'),
                            "151 \t" + std::string(19, 'b') + " c", "162 \t" + std::string(57, 'd'),
                            "173 \tdddd"))
        << "57 letters of 8 between 132 and 595";
}

} // namespace
} // namespace wortlex
