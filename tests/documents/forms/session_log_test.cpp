#include "brewing/calendar.h"
#include "calculators/carbonation_of_session.h"
#include "documents/bottling_date.h"
#include "documents/forms/bottling_form.h"
#include "documents/forms/efficiency_form.h"
#include "documents/forms/fermentation_form.h"
#include "documents/forms/session_notes_form.h"
#include "documents/opening.h"
#include "documents/snapshot.h"
#include "documents/under_work.h"
#include "records/documents/document_traits.h"
#include "support/form_user.h"

#include <limits>

namespace wortlex {
namespace {

constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();

// Ten pounds that hold 80 % extract, for five gallons: 46.21 x 0.8 x 10 / 5 are 73.936 points at the most.
struct LoggedDay : UnderWork {
    LoggedDay() : UnderWork(DocumentKind::session) {
        settings.pressure_units = Units::american;
        settings.wort_equals_batch = 1;
        settings.plato_precision = 1;
        document.malts = {malt(MaltType::grain, 1.036968F, 10)};
        document.malts[0].record.moisture = 0;
        document.og_points = 50;
        document.boil_minutes = 60;
        session = new_session(document);
        session.water_needs = usual_water;
        start_editing(editor, {});
    }
    Bytes bytes() const { return document_bytes(image_of(editor.open)); }
};

struct EfficiencyPage : LoggedDay, FormUser {
    std::optional<float> measured;

    void open() {
        const auto measure = [this](float) { return measured; };
        efficiency_form(form, editor, {.hydrometer = measure, .refractometer = measure, .print = nullptr});
    }
};

TEST(EfficiencyPage, PutsTheTargetsBesideWhatWasMeasured) {
    EfficiencyPage page;
    page.open();
    // 4.5 sparged, 1 of the mash's 3 kept back by 10 lb x 0.2, a quarter lost: 5.25 gallons of 250 points;
    // 5 / 0.9 are what boils down to 5.
    EXPECT_EQ(page.shown_all({"water_volume", "raw_volume", "post_volume"}), "5.25|5.56|5.00");
    EXPECT_EQ(page.shown_all({"water_sg", "raw_sg", "post_sg"}), "1.048|1.045|1.050");
    EXPECT_EQ(page.shown_all({"water_plato", "raw_plato", "post_plato"}), "11.82|11.19|12.39")
        << "11.1957, cut to 11.195";
    page.type("recorded_volume", "5.25");
    page.type("recorded_og", "1.045");
    EXPECT_EQ(page.shown_all({"losses", "total_volume", "recorded_og_plato"}), "0.00|5.25|11.19");
    EXPECT_EQ(page.shown_all({"total_most", "mash_most", "extract_most"}), "73.94|73.94|0.00");
    EXPECT_EQ(page.shown_all({"total_aimed", "mash_aimed", "extract_aimed"}), "55.45|55.45|0.00") << "75 %";
    EXPECT_EQ(page.shown_all({"actual_mash_points", "actual_efficiency", "recipe_efficiency"}),
              "47.25|64|75");

    add_losses(page.session.water_needs);
    page.choose("measured_in_fermenter", 1);
    EXPECT_EQ(page.shown_all({"losses", "total_volume", "actual_efficiency"}), "0.96|6.21|76");
    page.settings.volume_units = Units::metric;
    EXPECT_EQ(page.shown_all({"water_volume", "losses", "total_volume"}), "19.87|3.63|23.51");

    page.document.recipe_kind = RecipeKind::extract;
    EXPECT_FALSE(page.can("recorded_og"));
    EXPECT_EQ(page.shown_all({"actual_efficiency", "actual_mash_points"}), "0|0.00");
}

TEST(EfficiencyPage, OpensWithWhatIsKnownAndStaysUsable) {
    for (const auto& [actual_og, shown] : {std::pair(1.052F, "1.052"), std::pair(1.0F, "50.000")}) {
        EfficiencyPage page;
        page.session.actual_og = actual_og;
        const auto before = page.bytes();
        page.open();
        EXPECT_EQ(page.shown_all({"recorded_volume", "recorded_og"}), std::string("5.00|") + shown);
        page.type("recorded_og", "1.06");
        EXPECT_EQ(page.session.tail.recorded_og, 1.06F);
        page.form.cancel();
        EXPECT_EQ(page.bytes(), before);
    }
}

TEST(EfficiencyPage, HoldsAGravityFromWhateverItComes) {
    EfficiencyPage page;
    page.open();
    page.type("recorded_og_plato", "12");
    EXPECT_EQ(page.shown_all({"recorded_og", "recorded_og_plato"}), "1.048|12.00") << "as it was typed";
    page.session.tail.recorded_og = 1.05F;
    EXPECT_EQ(page.shown("recorded_og_plato"), "12.39") << "and another gravity its own";
    for (const auto& [measured, taken] :
         {std::pair(std::optional(1.0456F), 1.0456F), std::pair(std::optional(0.99F), 1.0F),
          std::pair(std::optional(not_a_number), 1.0F), std::pair(std::optional(7.0F), 5.0F),
          std::pair(std::optional<float>(), 5.0F)}) {
        page.measured = measured;
        page.press("hydrometer");
        EXPECT_EQ(page.session.tail.recorded_og, taken);
    }
}

TEST(FermentationPage, StoresDegreesFahrenheitWhateverItsBoxSays) {
    struct : LoggedDay, FormUser {
    } page;
    fermentation_form(page.form, page.editor, {});
    page.type("primary_temperature", "213");
    EXPECT_EQ(page.session.fermentation.primary_temperature, 68) << "too hot for the primary";
    page.type("secondary_temperature", "360");
    EXPECT_EQ(page.session.fermentation.secondary_temperature, 360);
    page.choose("primary_temperature_unit", 1);
    page.choose("secondary_temperature_unit", 1);
    EXPECT_EQ(page.shown_all({"primary_temperature", "secondary_temperature"}), "20|182");
    page.type("primary_temperature", "18");
    EXPECT_EQ(page.session.fermentation.primary_temperature, 64) << "18 x 1.8 + 32, cut off";
    page.choose("pitched_from", 0);
    EXPECT_EQ(page.session.fermentation.pitched_from, PitchedFrom::dry_pack) << "the first to choose";
}

struct BottlingPage : LoggedDay, FormUser {
    std::optional<float> worked_out;

    BottlingPage() {
        const auto work_out = [this](std::size_t) { return worked_out; };
        bottling_form(form, editor, {.pick_date = nullptr, .natural = work_out, .forced = work_out});
    }
    bool shows(std::string_view key) const { return form.row(key).is_visible(); }
};

TEST(BottlingPage, ShowsTheColumnsThatAreOnInTheirWay) {
    BottlingPage page;
    EXPECT_FALSE(page.shows("amount_word") || page.shows("bottled_amount"));
    page.form.check(page.row<CheckRow>("kegged"), true);
    EXPECT_TRUE(page.shows("amount_word") && page.shows("kegged_pressure") &&
                page.shows("kegged_forced_calc"));
    EXPECT_FALSE(page.shows("bottled_amount") || page.shows("kegged_priming") || page.shows("priming_word"));
    page.choose("kegged_method", 0);
    EXPECT_TRUE(page.shows("kegged_priming") && page.shows("kegged_liquid") && page.shows("priming_word"));
    EXPECT_FALSE(page.shows("kegged_pressure") || page.shows("kegged_forced_calc"));
    EXPECT_EQ(page.session.bottling.natural_carbonation, (std::array<std::uint8_t, 3>{1, 1, 0}));
}

TEST(BottlingPage, LinksLevelAndItsNames) {
    BottlingPage page;
    EXPECT_EQ(page.row<ChoiceRow>("carbonation_level").chosen(), 1U) << "2.3 of a new session";
    page.choose("carbonation_level", 2);
    EXPECT_EQ(page.shown("co2_volumes"), "2.80");
    page.type("co2_volumes", "1.8");
    EXPECT_EQ(page.row<ChoiceRow>("carbonation_level").chosen(), 0U);
    page.type("co2_volumes", "2");
    EXPECT_FALSE(page.row<ChoiceRow>("carbonation_level").chosen().has_value());
}

TEST(BottlingPage, TakesWhatWasWorkedOutIntoItsColumn) {
    BottlingPage page;
    page.type("kegged_pressure", "12");
    page.worked_out = -2.5F;
    page.press("kegged_forced_calc");
    page.worked_out = 3;
    page.press("tanks_natural_calc");
    page.worked_out.reset();
    page.press("kegged_forced_calc");
    page.form.accept();
    EXPECT_EQ(page.session.bottling.pressure, (std::array{0.0F, -2.5F, 0.0F})) << "below 0 as it is";
    EXPECT_EQ(page.session.bottling.priming_amount, (std::array{0.0F, 0.0F, 3.0F}));
}

TEST(BottlingPage, FollowsTheUnits) {
    BottlingPage page;
    page.session.bottling.priming_amount = {16, 0, 0};
    page.session.bottling.pressure = {0, 10, 0};
    page.settings.system_mode = SystemMode::pro_brewer;
    const auto words = [&page] {
        std::string all;
        for (const auto* const key : {"amount_word", "priming_word", "liquid_word", "pressure_word"})
            all += page.form.row(key).label_text() + "|";
        return all +
               page.shown_all({"bottled_amount", "bottled_priming", "kegged_pressure", "kegged_temperature"});
    };
    EXPECT_EQ(words(), "Barrels|Priming Pounds|Liquid Amnt (BBL)|Pressure Psi|0.16|1.00|10.00|42");
    page.settings.volume_units = page.settings.pressure_units = Units::metric;
    page.settings.temperature_units = TemperatureUnits::celsius;
    EXPECT_EQ(words(), "Hectoliters|Priming Kilograms|Liquid Amnt (hL)|Pressure kPa|0.19|0.45|68.95|6");
    page.type("ferment_temperature", "20");
    EXPECT_EQ(page.session.bottling.ferment_temperature, 68);
}

TEST(BottlingDate, IsTheBrewDayMovedOnByTheFermentation) {
    SessionDocument session;
    const auto ready = [&session](const CalendarDate& brewed, int primary, int secondary) {
        set_brew_date(session, brewed);
        session.fermentation.primary_days = primary;
        session.fermentation.secondary_days = secondary;
        return fermented_until(session);
    };
    EXPECT_EQ(ready({25, 1, 2001}, 7, 3), (CalendarDate{4, 2, 2001}));
    EXPECT_EQ(ready({1, 1, 2001}, 50, 20), (CalendarDate{40, 2, 2001})) << "one month at the most";
    EXPECT_EQ(ready({25, 1, 2001}, 0, 30), std::nullopt);
    EXPECT_TRUE(ready({0, 0, 0}, 2147483647, 2147483647).has_value()) << "whatever a file holds";
}

TEST(CarbonationOfSession, WorksOnTheFiguresOfItsColumn) {
    Settings settings;
    settings.volume_units = Units::american;
    BottlingLog log;
    log.co2_volumes = 2.3F;
    log.ferment_temperature = 68;
    log.amount = {5, 10, 15};
    log.carbonation_temperature = {42, 38, 42};
    // 68 F keep 0.8615 volumes: (2.3 - 0.8615) x 5 x 15.195 grams are 109.29, by 28.3495 ounces 3.86.
    auto calculator = carbonation_of(log, 0);
    FormUser natural;
    natural_carbonation_form(natural.form, calculator, settings);
    EXPECT_EQ(natural.shown_all({"ounces", "grams", "pounds", "kilograms"}), "3.86|109.29|0.24|0.11");
    EXPECT_EQ(natural.label("priming_note"), "You Will Need The Following Amount Of Priming Sugar:");
    // -16.699 - 0.42445 + 2.05527 + 42 x 0.173354 x 2.3 + 9.75814 - 0.36196
    FormUser forced;
    forced_carbonation_form(forced.form, calculator, settings);
    EXPECT_EQ(forced.shown_all({"psi", "kpa"}), "11.07|76.35");
}

TEST(SessionNotesPage, RefusesWhatDoesNotFit) {
    LoggedDay day;
    FormUser user;
    auto& notes = day.session.session_notes;
    session_notes_form(user.form, notes, nullptr);
    const std::string full(4092, 'x');
    user.type("tasting_notes", full + "\n");
    EXPECT_EQ(notes[2].view(), full + "\r\n") << "4,094 bytes as stored";
    user.type("tasting_notes", full + "\ny");
    EXPECT_EQ(notes[2].view(), full + "\r\n");
}

// Changes whatever a page lets one change, in every way that it offers.
void change_all(FormUser& user) {
    user.form.for_each([&user](Row& row) {
        if (auto* const choice = dynamic_cast<ChoiceRow*>(&row))
            user.form.choose(*choice, choice->chosen() == 0 ? 1 : 0);
        else if (auto* const check = dynamic_cast<CheckRow*>(&row))
            user.form.check(*check, !check->checked.get());
        else if (auto* const button = dynamic_cast<ButtonRow*>(&row); button != nullptr && button->press)
            button->press();
        else if (auto* const entry = dynamic_cast<EntryRow*>(&row);
                 entry != nullptr && !entry->is_read_only())
            entry->has_arrows() ? void(user.spin(row.key, Spin::up)) : user.type(row.key, "changed");
    });
}

TEST(SessionPages, CancelPutsBackEveryByte) {
    using Fill = std::function<void(Form&, RecipeEditor&, LoggedDay&)>;
    const auto measure = [](float) { return std::optional(1.033F); };
    const auto work_out = [](std::size_t) { return std::optional(1.5F); };
    const std::vector<Fill> pages = {
        [&](Form& form, RecipeEditor& editor, LoggedDay& day) {
            const auto read = [&day](float) {
                day.session.tail.recorded_og_reading = {1, 2};
                return std::optional(1.033F);
            };
            efficiency_form(form, editor, {.hydrometer = measure, .refractometer = read, .print = nullptr});
        },
        [&](Form& form, RecipeEditor& editor, LoggedDay& day) {
            const auto read = [&day] {
                day.session.tail.actual_og_reading = day.session.tail.actual_fg_reading = {1, 2};
                day.session.tail.alcohol_reading = {1, 2, 3};
            };
            fermentation_form(form, editor,
                              {.hydrometer = measure,
                               .og_refractometer = measure,
                               .fg_refractometer = measure,
                               .alcohol_refractometer = read});
        },
        [&](Form& form, RecipeEditor& editor, LoggedDay&) {
            bottling_form(form, editor, {.pick_date = nullptr, .natural = work_out, .forced = work_out});
        },
        [&](Form& form, RecipeEditor& editor, LoggedDay&) {
            session_notes_form(form, editor.open.session->session_notes, nullptr);
        }};
    for (const auto& fill : pages) {
        LoggedDay day;
        const auto before = day.bytes();
        FormUser user;
        fill(user.form, day.editor, day);
        change_all(user);
        EXPECT_NE(day.bytes(), before);
        user.form.cancel();
        EXPECT_EQ(day.bytes(), before);
    }
}

} // namespace
} // namespace wortlex
