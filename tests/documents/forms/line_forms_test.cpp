#include "documents/brewing.h"
#include "documents/forms/extra_amount.h"
#include "documents/forms/hop_amount.h"
#include "documents/forms/malt_amount.h"
#include "documents/forms/malt_contribution.h"
#include "mash/simple_mash_form.h"
#include "support/form_user.h"
#include "support/scripted_prompts.h"

namespace wortlex {
namespace {

Settings american_settings() {
    auto settings = brewing_settings();
    settings.quarts_per_pound = 1.25F;
    settings.grain_increment = 0.5F;
    settings.hop_increment = 0.25F;
    settings.yield_type = YieldType::coarse_as_is;
    return settings;
}

// 80 % of 46.21 points, though stored as 81; the grinds differ by 1.5.
MaltUse pale_malt() {
    auto line = malt(MaltType::grain, 1.036968F, 7.5F, false, 79.5F, 3);
    line.record.fine_yield = 81;
    return line;
}

TEST(MaltAmount, ShowsOneWeightTwice) {
    auto settings = american_settings();
    auto line = pale_malt();
    FormUser user;
    malt_amount_form(user.form, line, settings);
    user.spin("amount", Spin::up);
    EXPECT_EQ(user.shown_all({"amount", "small_amount"}), "8.00|128.00");
    user.spin("small_amount", Spin::down);
    EXPECT_EQ(line.amount, 7.9375F);
    user.type("small_amount", "8");
    EXPECT_EQ(user.shown("amount"), "0.50");
    EXPECT_EQ(line.record, pale_malt().record) << "the yields were left alone";

    settings.weight_units = Units::metric;
    settings.color_units = ColorUnits::ebc_new;
    line.amount = 10;
    FormUser metric;
    malt_amount_form(metric.form, line, settings);
    EXPECT_EQ(metric.shown_all({"amount", "small_amount", "colour"}), "4.54|4536.00|5.91");
    metric.type("amount", "1");
    EXPECT_FLOAT_EQ(line.amount, 1000 / 453.6F);
    metric.type("colour", "3000");
    EXPECT_FLOAT_EQ(line.record.colour, 2500 / 1.97F) << "brought into range";
}

TEST(MaltAmount, LinksTheYields) {
    const auto settings = american_settings();
    auto line = pale_malt();
    FormUser user;
    malt_amount_form(user.form, line, settings);
    EXPECT_EQ(user.shown_all({"potential", "fine_dry", "fine_as_is", "coarse_dry", "coarse_as_is"}),
              "1.037|80.00|76.80|78.50|75.36");
    user.type("fine_as_is", "72");
    EXPECT_FLOAT_EQ(line.record.potential, 1.0346575F) << "75 % of 46.21 points";
    EXPECT_FLOAT_EQ(line.record.fine_yield, 75);
    EXPECT_FLOAT_EQ(line.record.coarse_yield, 73.5F);
    user.type("moisture", "11");
    EXPECT_EQ(user.shown_all({"moisture", "fine_as_is"}), "10.00|67.50");
}

TEST(MaltAmount, DisablesWhatPlaysNoPart) {
    auto settings = american_settings();
    const auto entries = [&settings](MaltType type) {
        auto line = malt(type, 1.036968F, 1);
        FormUser user;
        malt_amount_form(user.form, line, settings);
        std::string note;
        user.form.for_each([&note](Row& row) {
            if (row.key == "note") note = "|" + row.label_text().substr(0, 45);
        });
        return user.shown_all({"fine_dry", "fine_as_is", "coarse_dry", "difference"}) + note;
    };
    EXPECT_EQ(entries(MaltType::other), "80.00|76.80|80.00|0.00");
    EXPECT_EQ(entries(MaltType::sugar), "80.00|N/A|N/A|N/A|Moisture Content, % Yield As Is and Coarse Gr");
    settings.yield_type = YieldType::fine_dry_basis;
    EXPECT_EQ(entries(MaltType::grain), "80.00|N/A|80.00|0.00|Moisture Content and % Yield As Is have been ");
    settings.efficiency_mode = EfficiencyMode::method_2;
    EXPECT_EQ(entries(MaltType::other), "N/A|N/A|N/A|N/A|Potentials are disabled as efficiency Method ");
    EXPECT_EQ(entries(MaltType::extract), "80.00|N/A|N/A|N/A|Moisture Content, % Yield As Is and Coarse Gr");
}

// A hop in a recipe of 5 gallons from 6, boiled for an hour.
struct HopDialog : FormUser {
    Settings settings = american_settings();
    BrewDocument document = empty_recipe();
    RecipeFigures figures;
    ScriptedPrompts prompts;
    HopUse line = hop(5, 2, 60);

    void open() {
        document.boil_minutes = 60;
        hop_amount_form(form, line, {document, figures, settings}, prompts);
    }
};

TEST(HopAmount, WorksOutTheBitterness) {
    HopDialog dialog;
    dialog.line.record.alpha = 4;
    dialog.line.record.storage_and_form = 3;
    dialog.settings.display_home_bittering = 1;
    dialog.open();
    for (const auto answer : {Answer::no, Answer::yes}) {
        EXPECT_EQ(dialog.line.alpha, 5);
        dialog.prompts.expect_yes_no(
            "This will undo any modification made to the hop's alpha value!\nReally revert "
            "to hop's original alpha value?",
            answer);
        dialog.press("revert");
    }
    EXPECT_FALSE(dialog.can("revert"));
    EXPECT_FLOAT_EQ(dialog.line.ibu, 35.8176F) << "0.3 x 2 x 0.04 x 7462 / 5, after Rager";
    EXPECT_EQ(dialog.shown_all({"ibu", "hbu", "mbu"}), "35.8|8.0|226.8");
    dialog.type("large_amount", "1");
    EXPECT_EQ(dialog.shown_all({"amount", "ibu"}), "16.00|286.5");
    dialog.choose("form", 2);
    EXPECT_EQ(dialog.line.record.storage_and_form, 0x23) << "the class of storage stays";
    dialog.type("boil_time", "d");
    EXPECT_EQ(dialog.shown_all({"boil_time", "ibu"}), "Dry|0.0");
}

TEST(HopAmount, TakesTimesAndTheirWords) {
    using Time = std::optional<std::int16_t>;
    for (const auto& [text, time] : {std::pair{"Dry", Time(-5)},
                                     {" F", Time(61)},
                                     {"mash", Time(62)},
                                     {" 45", Time(45)},
                                     {"60", Time(60)},
                                     {"62", Time(61)},
                                     {"-1", Time(-5)},
                                     {"99999999999", Time(61)},
                                     {"", Time()},
                                     {"-", Time()},
                                     {"x", Time()},
                                     {"4x", Time()}})
        EXPECT_EQ(boil_time_of(text, 60), time) << text;
    EXPECT_EQ(boil_time_of("F", 2000000000), Time(32767)) << "the boil of a damaged file";
    for (const auto& [time, text] : {std::pair{-1, "Dry"}, {0, "  0"}, {61, "FWH"}, {62, "MH"}, {63, " 63"}})
        EXPECT_EQ(boil_time_text(static_cast<std::int16_t>(time), 60), text);
}

TEST(HopAmount, StepsOverTheEndsOfTheBoil) {
    HopDialog dialog;
    dialog.open();
    for (int i = 0; i < 10; ++i) dialog.spin("boil_time", Spin::up);
    EXPECT_EQ(dialog.line.boil_time, 65);
    dialog.line.boil_time = 0;
    dialog.spin("boil_time", Spin::down);
    dialog.spin("boil_time", Spin::down);
    EXPECT_EQ(dialog.line.boil_time, -5);
    dialog.spin("boil_time", Spin::up);
    EXPECT_EQ(dialog.line.boil_time, 0);
}

TEST(ExtraAmount, StaysInItsRange) {
    ExtraUse line;
    line.amount = 0.03F;
    line.record.amount_unit = AmountUnit::cup;
    FormUser user;
    extra_amount_form(user.form, line);
    user.spin("amount", Spin::down);
    EXPECT_EQ(line.amount, 0);
    user.type("amount", "2000.5");
    user.type("time", "1001");
    EXPECT_EQ(user.shown_all({"amount", "time"}), " 0.00|0");
    EXPECT_EQ(user.row<EntryRow>("amount").unit_text() + user.row<EntryRow>("time").unit_text(), "Day(s)");
}

TEST(MaltContribution, IsAShareOfTheRecipe) {
    const auto settings = american_settings();
    auto document = empty_recipe();
    document.malts = {malt(MaltType::grain, 1.037F, 7.5F, false, 0, 2.6F),
                      malt(MaltType::extract, 1.036F, 2.5F, true, 0, 120.4F)};
    RecipeFigures figures;
    figures.total_grain = 10;
    figures.total_extract_pounds = 4.8;
    figures.recipe_sucrose = 46.21;
    figures.lines = {{1.0391, 3.2, 0}};
    figures.colour.mcu = 65;
    const auto told = [&](std::size_t line) {
        FormUser user;
        malt_contribution_form(user.form, {document, figures, settings}, line);
        return user.shown_all(
                   {"weight", "grist", "points", "extract_share", "extract", "sucrose", "mcu", "mcu_share"}) +
               user.row<EntryRow>("sucrose").unit_text();
    };
    EXPECT_EQ(told(0), "7.50|75.00|39.1|66.67|3.20|46.21|3.90|6.00(fixed value)") << "2.6 x 7.5 / 5 MCU";
    EXPECT_EQ(told(1), "2.50|25.00|0.0|0.00|0.00|46.21|60.20|92.62(fixed value)") << "not worked out yet";
}

SimpleMash mash_of(float quarts, MashKind kind = MashKind::multi_step) {
    SimpleMash mash;
    mash.mash_kind = kind;
    mash.dough_in_water = quarts;
    return mash;
}

TEST(SimpleMash, OpensWithWaterAndRatioInStep) {
    auto settings = american_settings();
    const auto opened = [&settings](float quarts, float ratio) {
        const auto work = open_simple_mash(mash_of(quarts), ratio, 10, settings);
        return std::pair(work.mash.dough_in_water, work.ratio);
    };
    EXPECT_EQ(opened(12, 0), std::pair(12.0F, 1.2F));
    EXPECT_EQ(opened(12, 1.5F), std::pair(15.0F, 1.5F));
    EXPECT_EQ(opened(0, 0), std::pair(12.5F, 1.25F)) << "by the settings";
    settings.volume_units = Units::metric;
    EXPECT_FLOAT_EQ(opened(0, 0).first, 12.515169F) << "4.536 kg x 1.25 x 2.0888 x 33.8148 / 32";
}

TEST(SimpleMash, WaterFollowsRatioAndGrain) {
    const auto settings = american_settings();
    auto work = open_simple_mash(mash_of(12), 0, 10, settings);
    FormUser user;
    simple_mash_form(user.form, work, settings, MashSide::recipe);
    const auto water = [&user] { return user.shown_all({"quarts", "volume", "ratio", "total_volume"}); };
    user.type("volume", "4");
    EXPECT_EQ(water(), "16.00|4.00|1.60|4.80") << "10 x (1.32 + 0.6) / 4";
    user.type("ratio", "2");
    EXPECT_EQ(water(), "20.00|5.00|2.00|5.80");
    set_mash_grain(work, 0);
    EXPECT_EQ(water(), "0.00|0.00|2.00|0.00");
    set_mash_grain(work, 12);
    EXPECT_EQ(water(), "24.00|6.00|2.00|6.96");
    user.type("quarts", "10001");
    EXPECT_EQ(work.mash.dough_in_water, 24);
    user.type("quarts", "0.1");
    user.spin("quarts", Spin::down);
    EXPECT_EQ(std::pair(work.mash.dough_in_water, work.ratio), std::pair(0.0F, 0.0F));
}

TEST(SimpleMash, MetricRatioIsLitresPerKilogram) {
    auto settings = american_settings();
    settings.volume_units = Units::metric;
    auto work = open_simple_mash(mash_of(12), 0, 10, settings);
    FormUser user;
    simple_mash_form(user.form, work, settings, MashSide::recipe);
    EXPECT_EQ(user.shown_all({"quarts", "volume", "ratio"}), "12.00|11.36|2.50") << "11.3559 l on 4.536 kg";
    user.type("ratio", "3");
    EXPECT_FLOAT_EQ(work.mash.dough_in_water, 14.379744F) << "4.536 x 3 x 33.8148 / 32";
    set_mash_grain(work, 20);
    EXPECT_EQ(user.shown("ratio"), "3.00");
}

TEST(SimpleMash, KeepsWholeDegreesFahrenheit) {
    auto settings = american_settings();
    auto mash = mash_of(12);
    mash.saccharification = {151, 298};
    auto work = open_simple_mash(mash, 0, 10, settings);
    FormUser american;
    simple_mash_form(american.form, work, settings, MashSide::recipe);
    american.spin("saccharification_minutes", Spin::up);
    american.type("protein_temperature", "300");
    american.type("protein_minutes", "301");
    EXPECT_EQ(work.mash.saccharification, (Rest{151, 300}));
    EXPECT_EQ(work.mash.protein, (Rest{221, 0}));
    settings.temperature_units = TemperatureUnits::celsius;
    FormUser metric;
    simple_mash_form(metric.form, work, settings, MashSide::recipe);
    EXPECT_EQ(metric.shown("saccharification_temperature"), " 66");
    metric.type("acid_temperature", "40");
    EXPECT_EQ(std::pair(work.mash.acid.temperature, work.mash.saccharification.temperature),
              std::pair(104, 151));
    metric.type("acid_temperature", "0");
    EXPECT_EQ(work.mash.acid.temperature, 0) << "no rest, not freezing";
}

TEST(SimpleMash, SingleStepHasNoEarlierRests) {
    const auto settings = american_settings();
    for (const auto& [kind, option, earlier] :
         {std::tuple{MashKind::none, std::optional<std::size_t>(0), false},
          {MashKind::multi_step, std::optional<std::size_t>(1), true},
          {MashKind::decoction, std::optional<std::size_t>(), true}}) {
        auto work = open_simple_mash(mash_of(12, kind), 0, 10, settings);
        FormUser user;
        simple_mash_form(user.form, work, settings, MashSide::recipe);
        EXPECT_EQ(user.row<ChoiceRow>("mash_kind").chosen(), option);
        for (const auto* const key : {"acid_minutes", "protein_temperature", "intermediate_temperature"})
            EXPECT_EQ(user.can(key), earlier);
        EXPECT_TRUE(user.can("saccharification_minutes") && user.can("sparge_temperature"));
    }
}

} // namespace
} // namespace wortlex
