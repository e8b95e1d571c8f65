#include "databases/printouts.h"

#include "base/ports/quiet_prompts.h"
#include "databases/extras.h"
#include "databases/hops.h"
#include "databases/malts.h"
#include "databases/store.h"
#include "databases/styles.h"
#include "databases/water.h"
#include "databases/yeasts.h"
#include "support/form_user.h"
#include "support/recording_desk.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace wortlex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

std::string joined(const std::vector<std::string>& parts) {
    std::string all;
    for (const auto& part : parts) all += (&part == &parts.front() ? "" : "|") + part;
    return all;
}

template <class Record>
std::string entry_of(const CataloguePages<Record>& pages, const Record& record) {
    return pages.entry_title + "|" + joined(pages.entry(record).lines());
}

// A line is 16 dots at three quarters, and 11 at a half.
PageJob shown(PrintRequest request, float scale = 0.75F) {
    RecordingPageDesk desk;
    request.printer_scale = scale;
    desk.show(request);
    return std::move(desk.jobs.front());
}

TEST(ListPrintout, PrintsWhatIsShownUnderItsHeadsOnEveryPage) {
    const TemporaryFolder folder;
    QuietPrompts prompts;
    Settings settings;
    settings.hop_weight_units = Units::metric;
    Database<HopRecord> database;
    database.count = 51;
    database.slots.resize(database_slots);
    database.slots[50].name.assign(std::string(52, 'W')); // 10 units each, in a column of 245
    database.slots[50].stock = 1;
    SaveHops(folder.path(), database);
    Store<HopRecord> hops(hop_catalogue(settings, folder.path()), ListSide::maintenance, folder.path(),
                          database);
    hops.open(prompts);
    const auto all = shown(hops.printout());
    ASSERT_EQ(all.pages.size(), 2U) << "50 rows from 185 to 969";
    EXPECT_THAT(texts_on(all, 1),
                ElementsAre("113 Wortlex Hop List - All Hops", "113 @584 Page 2", "153 \t\t\tPrimary\tg In",
                            "169 Name\tOrigin\tAlpha\tUse\tStock\tForm",
                            "185 " + std::string(24, 'W') + "\t\t   0.00\t\t  28.35\tWhole"));
    EXPECT_THAT(calls_on(all, 0), Contains(HasSubstr("[45,228,333,382,446,495] \tName\tOrigin")));
    hops.choose_filter(3, prompts);
    EXPECT_THAT(texts_on(shown(hops.printout()), 0),
                ElementsAre("113 Wortlex Hop List - Pellet Hops", "113 @584 Page 1", HasSubstr("Primary"),
                            HasSubstr("Name")))
        << "no rows";
}

TEST(ListPrintout, HasRowsOfItsOwnInEachDatabase) {
    Settings settings;
    settings.weight_units = Units::american;
    settings.potential_display = PotentialDisplay::hwe;
    MaltRecord malt;
    malt.name.assign("Amber Extract");
    malt.malt_type = MaltType::extract;
    malt.must_mash = 1; // a syrup
    malt.potential = 1.04621F;
    malt.colour = 12;
    malt.stock = 2.5F;
    const auto malts = malt_pages(settings);
    EXPECT_EQ(joined(malts.heads),
              "\t\tGravity\tSRM\tMust\tLbs In|Type\tName\t(IOB-HWE)\tColor\tMash?\tStock");
    EXPECT_EQ(joined(malts.row(malt)), "Extract|Amber Extract|  386.0|   12|No|   2.50");
    malt.malt_type = MaltType::other;
    EXPECT_THAT(malts.row(malt).at(4), "Yes");

    YeastRecord yeast;
    yeast.yeast_kind = YeastKind::champagne;
    yeast.yeast_medium = YeastMedium::agar_slant;
    EXPECT_EQ(joined(yeast_pages().row(yeast)), "Chmpn||||Agar|     --");
    WaterRecord water;
    water.name.assign("Burton");
    water.calcium = 295.04F;
    water.chloride = 25;
    EXPECT_EQ(joined(water_pages().row(water)), "Burton|295.0|0.0|0.0|0.0|25.0|0.0");

    StyleRecord style;
    style.number = 3;
    style.type = BeerType::sake;
    const auto styles = style_pages(settings, StyleBook::bjcp);
    EXPECT_EQ(joined(styles.row(style)), "03-|Sake||") << "no letter, and no mark for it";
    EXPECT_EQ(joined(styles.heads), "BJCP#\tType\tCategory\tSub-Catergory");

    ExtraRecord extra;
    extra.extra_type = ExtraType::herb;
    extra.amount_unit = AmountUnit::cup;
    EXPECT_EQ(extra_pages().row(extra).at(3), "     --");
    extra.stock = 1.5F;
    EXPECT_EQ(joined(extra_pages().row(extra)), "|Herb||   1.50 Cups");
}

TEST(EntryPrintout, TellsHopsYeastsWatersAndExtras) {
    const Settings settings;
    HopRecord hop;
    hop.name.assign("H\xFCller");
    hop.usage = HopUsage::both;
    hop.substitutes.assign("Saaz");
    set_storage_class(hop, StorageClass::poor);
    hop.myrcene = 12.345F;
    hop.stock = 3;
    EXPECT_EQ(
        entry_of(hop_pages(settings), hop),
        "Wortlex Hop Detail|Name:\tH\u00FCller|Type:\tBittering and Aroma|Noble:\tNo|Origin:\t||Best For:\t|"
        "Tastes:\t|Subsitutes:\tSaaz||Storage Viability:\tPoor||Alpha Acids:\t0.00|Beta Acids:\t0.00||"
        "Humulene:\t0.00|Caryophyllene:\t0.00|Cohumulone:\t0.00|Myrcene:\t12.35||"
        "Amount In Stock:\t3.00 Ounces");
    YeastRecord yeast;
    yeast.high_attenuation = 77;
    yeast.low_attenuation = 73;
    yeast.optimum_temperature = 68;
    EXPECT_THAT(entry_of(yeast_pages(), yeast),
                HasSubstr("Type:\tAle|Package Type:\tDry|Flocculation:\tHigh||Flavors:\t|Comments:\t||"
                          "Attenuation:\t77  to  73|Optimum Temp:\t68 F, 20.0 C||Amount In Stock:\t0.00"));
    WaterRecord water;
    water.chloride = 25;
    EXPECT_THAT(entry_of(water_pages(), water), HasSubstr("Chloride (CI):\t25.0|biCarbonate (HCO3):\t0.0"));
    ExtraRecord extra;
    extra.time = 15;
    extra.time_unit = TimeUnit::minutes;
    extra.time_place = TimePlace::mash;
    extra.amount_unit = AmountUnit::tablespoon;
    extra.stock = 2;
    EXPECT_THAT(entry_of(extra_pages(), extra),
                HasSubstr("Process In:\tMash|For:\t15 Minutes||Default Measurement:\tTablespoon|"
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
    const auto text = entry_of(style_pages(settings, StyleBook::aha), style);
    EXPECT_THAT(text, HasSubstr("Wortlex AHA Style Detail|Category:\t5 - Stout|Name:\tA - Dry Stout|"
                                "Style Type:\tAle/Lager (mixed)||Color Note:\t"));
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
    FormUser user;
    malt_entry_form(user.form, malt, settings);
    user.type("potential", "23.1"); // of 46.21
    EXPECT_THAT(entry_of(malt_pages(settings), malt),
                EndsWith("Must Mash:\tNo||Use For:\t|Comment:\t Sweet||Potential (Pts pppg):\t23.10|"
                         "(dry basis fine grind)|SRM Color:\t0.00|% Moisture Content:\t10.00||"
                         "\tDry Basis\tAs Is|% Yield - Fine Grind (FG):\t49.99\t44.99|"
                         "% Yield - Coarse Grind (CG):\t47.99\t43.19|% FG/CG Difference:\t2.00"));
}

TEST(EntryPrintout, BreaksLongTextsBesideTheirLabel) {
    EntryLines entry;
    Text<155> note;
    note.assign(std::string(40, 'a') + " " + std::string(19, 'b') + " c\r\n" + std::string(61, 'd'));
    entry.text("Note", note);
    const auto job = shown({"", 1, [&](PageContext& page) { print_entry(page, "T", entry); }}, 0.5F);
    EXPECT_THAT(texts_on(job, 0),
                ElementsAre("113 T", "113 @584 Page 1",
                            "140 Note:\t" + std::string(40, 'a') + " " + std::string(19, 'b'), "151 \tc",
                            "162 \t" + std::string(60, 'd'), "173 \td"));
}

} // namespace
} // namespace wortlex
