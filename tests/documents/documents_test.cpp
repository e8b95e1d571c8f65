#include "documents/brewing.h"
#include "documents/opening.h"
#include "documents/recipe_gravity.h"
#include "documents/session_figures.h"
#include "documents/snapshot.h"

namespace wortlex {
namespace {

constexpr auto method_1 = EfficiencyMode::method_1, method_2 = EfficiencyMode::method_2;
constexpr auto points = GravityBase::points, mass = GravityBase::mass;
using enum YieldType;

Settings gravity_settings(EfficiencyMode mode, GravityBase base, YieldType type = fine_dry_basis) {
    auto settings = brewing_settings();
    settings.efficiency_mode = mode;
    settings.gravity_base = base;
    settings.yield_type = type;
    return settings;
}

TEST(GravityKernel, MethodsBasesAndYieldTypes) {
    // clang-format off
    const struct {
        EfficiencyMode mode; GravityBase base; YieldType type; float og, boil, wort;
        double extract, sucrose; std::array<float, 5> lines;
    } rows[] = {
        {method_1, points, fine_dry_basis, 64.2999268F, 49.461483F, 53.583271F, 6.95736046, 46.21,
         {44.3999252F, 10.8F, 4.6F, 4.49999571F, 0}},
        {method_1, points, coarse_as_is, 61.181179F, 47.0624466F, 50.984314F, 6.6199068, 46.21,
         {41.7886276F, 10.8F, 4.6F, 3.9925437F, 0}},
        {method_1, mass, fine_dry_basis, 64.1188049F, 49.398838F, 53.498806F, 6.95736046, 46.0746408,
         {44.2698669F, 10.7683697F, 4.58652592F, 4.48681402F, 0}},
        // no potential
        {method_2, points, coarse_as_is, 77.7835007F, 59.8334656F, 64.8195877F, 8.41630657, 46.21,
         {55.452F, 10.8F, 4.6F, 6.9315F, 0}},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        const auto settings = gravity_settings(row.mode, row.base, row.type);
        auto document = five_malts();
        RecipeFigures figures;
        const float wort = compute_wort_points(document, settings);
        EXPECT_EQ(document.malts[0].points, 99.0F) << "the wort's points leave the lines alone";
        const float og = compute_og(document, figures, settings);
        expect_figures(std::array{og, figures.tinseth_points, wort, figures.total_grain},
                       {row.og, row.boil, row.wort, 13}, "gravities and grain");
        EXPECT_NEAR(figures.total_extract_pounds, row.extract, 2e-6);
        EXPECT_NEAR(figures.recipe_sucrose, row.sucrose, 2e-6);
        for (std::size_t i = 0; i < row.lines.size(); ++i) {
            EXPECT_NEAR(document.malts[i].points, row.lines[i], 8e-6) << "line " << i;
            EXPECT_NEAR(figures.lines[i].line_sg, 1 + double{row.lines[i]} / 1000, 2e-8) << "line " << i;
        }
    }
}

TEST(GravityKernel, AtItsLimits) {
    RecipeFigures figures;
    figures.tinseth_points = 7;
    auto document = empty_recipe();
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, points)), 0.0F);
    EXPECT_EQ(figures.tinseth_points, 7.0F) << "without malts nothing is touched";
    document.malts = {malt(MaltType::sugar, 1.046F, 500)};
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, mass)), -1.0F) << "too much";
    document.malts = {malt(MaltType::grain, 1.0F, 0), malt(MaltType::other, 1.0F, 0, true)};
    EXPECT_EQ(compute_og(document, figures, gravity_settings(method_1, mass)), 0.0F) << "no extract at all";
    EXPECT_NEAR(figures.recipe_sucrose, 46.726, 1e-5);
    EXPECT_NEAR(variable_sucrose_value(5.4, 5), 46.1474458, 1e-6);
    document.malts[1].amount = 1;
    EXPECT_FALSE(has_mashable_grain(document)) << "none of the grain, and what is no grain";
    document.malts[0].amount = 1;
    EXPECT_TRUE(has_mashable_grain(document));
    document.recipe_kind = RecipeKind::extract;
    EXPECT_FALSE(has_mashable_grain(document));
}

TEST(PotentialPoints, OfAllMashedAndOtherLines) {
    const auto shares = +[](const BrewDocument& d, EfficiencyMode mode, GravityBase base, YieldType type) {
        const auto settings = gravity_settings(mode, base, type);
        return std::array{potential_points(d, settings), mash_potential_points(d, settings),
                          other_potential_points(d, settings)};
    };
    const auto five = five_malts();
    auto thin = five;
    thin.malts.erase(thin.malts.begin(), thin.malts.end() - 1);
    // clang-format off
    expect_floats(shares, {
        {five, EfficiencyMode::method_1_yield, points, fine_dry_basis, {80.5998993F, 65.1998901F, 15.4000053F}},
        {five, method_1, points, coarse_as_is, {76.4415665F, 61.0415611F, 15.4000053F}},
        {five, method_1, mass, fine_dry_basis, {80.2387619F, 65.0088196F, 15.4587631F}},
        // a potential below 1.0 counts against the others alone, which are not negative
        {five, method_2, points, fine_dry_basis, {98.578F, 83.178F, 7.4F}},
        {thin, method_2, points, fine_dry_basis, {0, 0, 0}}});
    // clang-format on
}

TEST(HoldGravity, ChangesMashedWeightsAlone) {
    for (const auto mode : {method_1, method_2}) {
        auto document = five_malts();
        document.malts.push_back(malt(MaltType::grain, 0.98F, 4));
        document.og_points = 48;
        document.efficiency = 0.6F;
        RecipeFigures figures;
        float locked = 0.75F;
        hold_gravity(document, figures, locked, gravity_settings(mode, points));
        const float thin = mode == method_1 ? 4.0F : 5.0F; // a potential below 1.0 has no yield to hold
        const auto& d = document.malts;
        expect_figures(
            std::array{d[0].amount, d[1].amount, d[2].amount, d[3].amount, d[4].amount, d[5].amount},
            {10, 1.5F, 0.5F, 1.25F, 2, thin}, "amounts");
        expect_figures(std::array{figures.total_grain, document.og_points, d[0].points, d[1].points, locked},
                       {15.25F + thin, 48, 0, 99, 0.6F}, "and the rest");
    }
}

TEST(SessionEfficiency, OfARecordedGravityAndVolume) {
    constexpr float sum = 80.5998993F, mash = 65.1998901F, extract = 15.4000053F, grain = 59.1998978F;
    auto mixed = five_malts();
    mixed.og_points = 48;
    auto grains = mixed, extracts = mixed;
    grains.malts.resize(1);
    extracts.malts = {mixed.malts[1]};
    const auto figures = +[](const BrewDocument& document, float og, float gallons, float actual_og) {
        SessionDocument session;
        session.actual_og = actual_og;
        return session_efficiency(document, session, og, gallons, brewing_settings());
    };
    // clang-format off
    expect_floats(figures, {
        {mixed, 1.05F, 5.5F, 1.04F, {54.9999466F, sum, mash, extract, 39.5999413F, 0.607362032F}},
        // no volume: the batch; no gravity: the measured one, or none measured: points as if they were SG
        {mixed, 1.05F, 0, 1.04F, {49.9999542F, sum, mash, extract, 34.5999489F, 0.530674934F}},
        {mixed, 0, 5, 1.04F, {39.9999619F, sum, mash, extract, 24.5999565F, 0.37730056F}},
        {mixed, 0, 5, 1, {47000, sum, mash, extract, 46984.6016F, 720.623901F}},
        {grains, 1.05F, 5, 1.04F, {49.9999542F, grain, grain, 0, 49.9999542F, 0.844595253F}},
        {extracts, 1.05F, 5, 1.04F, {49.9999542F, 10.800005F, 0, 10.800005F, 0, 0}}});
    // clang-format on
}

TEST(SessionEfficiency, OfTheRecordingAddsWhatStayedBehind) {
    auto document = five_malts();
    SessionDocument session;
    session.tail.recorded_volume = 5;
    session.tail.recorded_og = 1.05F;
    add_losses(session.water_needs);
    const auto settings = brewing_settings();
    EXPECT_FLOAT_EQ(recorded_efficiency(document, session, settings).achieved_points, 49.9999542F);
    session.tail.measured_in_fermenter = 1;
    EXPECT_FLOAT_EQ(recording_losses(session, settings), 0.96F) << "less its shrinkage";
    EXPECT_FLOAT_EQ(recorded_efficiency(document, session, settings).achieved_points, 59.5999454F);
    document.recipe_kind = RecipeKind::extract;
    EXPECT_EQ(recorded_efficiency(document, session, settings).efficiency, 0.0F) << "it has none";
}

TEST(PreBoil, BothFormsOfEvaporationAndBothWorts) {
    auto document = five_malts();
    document.og_points = 50;
    document.boil_minutes = 90;
    auto settings = brewing_settings();
    const auto raw = [&](bool batch, bool by_volume) {
        settings.wort_equals_batch = batch ? 1 : 0;
        settings.evaporation_by_volume = by_volume ? 1 : 0;
        return raw_pre_boil(document, by_volume ? 1.5F : 10, settings);
    };
    expect_figures(raw(false, false), {7.05882359F, 45.5457802F}, "wort, percent");
    expect_figures(raw(false, true), {8.25F, 38.9696503F}, "wort, gallons");
    expect_figures(raw(true, false), {5.88235283F, 42.5F}, "batch, percent");
    expect_figures(raw(true, true), {7.25F, 34.4827576F}, "batch, gallons");
    auto needs = usual_water;
    needs.top_up = 1;
    expect_figures(water_pre_boil(document, needs, settings), {6.25F, 40}, "as planned");
}

TEST(Attenuation, ByHydrometerAndBothRefractometerPaths) {
    const auto figures = +[](std::uint8_t by_refractometer, AlcoholReading reading) {
        SessionDocument session;
        session.actual_og = 1.05F;
        session.actual_fg = 1.012F;
        session.tail.fg_by_refractometer = by_refractometer;
        session.tail.alcohol_reading = reading;
        return update_attenuation(session, Settings{});
    };
    // Apparent attenuation is by hydrometer in any case.
    // clang-format off
    expect_floats(figures, {
        {0, {24.5F, 12.4F, 3.07F}, {3.90910721F, 5.00128508F, 75.2321014F, 62.6048965F}},
        {1, {24.5F, 12.4F, 3.07F}, {3.58438206F, 4.58587933F, 75.2321014F, 63.6120529F}},
        // no reading: the one that would fit; one too low for its gravity
        {1, {24.5F, 0, 3.07F}, {3.9039402F, 4.99467421F, 75.2321014F, 62.5199814F}},
        {1, {2, 12.4F, 3.07F}, {0, 0, 75.2321014F, 84.3759689F}}});
    // clang-format on
}

// A recipe that is open in a window, with all that belongs to it.
struct Brewery {
    BrewDocument document = empty_recipe();
    RecipeFigures figures;
    Settings settings = brewing_settings();
    SessionDocument session;
    WaterBalance water;
    RecipeLocks locks{.locked_efficiency = 0.75F};

    explicit Brewery(HopFormulaCode formula = HopFormulaCode::Tinseth) {
        settings.HopFormula = formula;
        document.malts = {malt(MaltType::grain, 1.037F, 8), malt(MaltType::sugar, 1.046F, 1)};
        document.malts[0].record.colour = 3;
        document.hops = {hop(5, 1, 60), hop(6, 2, 15)};
        document.extras.resize(2);
        document.extras[1].amount = 3;
        recalculate_opened(recipe());
    }

    OpenDocument recipe() { return {document, figures, settings}; }
    OpenDocument brew_day() { return {document, figures, settings, &session, &water}; }

    /// OG, IBU and MCU, and all malts and mashed ones in pounds.
    void expect(std::array<float, 5> expected, const char* name) const {
        expect_figures(std::array{document.og_points, document.total_ibu, figures.colour.mcu,
                                  figures.total_grain, figures.mash_grain},
                       expected, name);
    }
};

constexpr float usual_og = 53.599926F, usual_ibu = 40.9552002F, usual_mcu = 4.8F;

TEST(Change, OfMalts) {
    Brewery b;
    const auto& figures = b.figures;
    b.expect({usual_og, usual_ibu, usual_mcu, 9, 8}, "as stored, only worked out");
    expect_figures(std::array{figures.tinseth_points, figures.total_hop_ounces}, {41.2307129F, 3}, "boil");
    b.document.malts[0].amount = 4;
    malts_changed(b.recipe());
    expect_figures(std::array{b.document.og_points, figures.colour.mcu, figures.total_grain},
                   {31.399963F, 2.4F, 5}, "half the grain");
    EXPECT_EQ(figures.mash_grain, 4.0F);
    b.document.malts.clear();
    malts_changed(b.recipe());
    b.expect({0, 59.324791F, 0, 0, 0}, "the last malt removed: hops are boiled in water");
    recalculate_opened(b.recipe());
    EXPECT_EQ(figures.tinseth_points, 0.0F);
}

TEST(Change, OfSizes) {
    Brewery wort(HopFormulaCode::Rager), batch;
    wort.settings.wort_equals_batch = 1;
    recalculate_opened(wort.brew_day());
    EXPECT_EQ(wort.document.wort_size, 6.0F) << "a session keeps what it was boiled in";
    auto opened = wort;
    recalculate_opened(opened.recipe());
    EXPECT_EQ(opened.document.wort_size, 5.0F);
    wort.document.wort_size = 5;
    wort_size_changed(wort.recipe());
    wort.expect({usual_og, 36.0639F, usual_mcu, 9, 8}, "wort size");
    batch.settings.wort_equals_batch = 1;
    batch.document.batch_size = 10;
    batch_size_changed(batch.recipe(), 5, batch.locks);
    batch.expect({26.799963F, 24.6457863F, 2.4F, 9, 8}, "batch size, with nothing locked to it");
    EXPECT_EQ(batch.document.wort_size, 10.0F);
}

TEST(Change, OfBatchSizeScalesWhatIsLockedToIt) {
    Brewery b;
    b.locks.to_batch = true;
    b.document.batch_size = 10;
    batch_size_changed(b.recipe(), 5, b.locks);
    b.expect({usual_og, usual_ibu, usual_mcu, 18, 16}, "the same beer, twice");
    const auto& d = b.document;
    expect_figures(std::array{d.wort_size, d.hops[1].amount, d.extras[1].amount}, {12, 4, 6}, "sizes");
    b.settings.wort_equals_batch = 1;
    scale_to_batch(b.recipe(), 10, 5);
    scale_to_batch(b.recipe(), 0, 5); // no size to scale from
    EXPECT_EQ(b.document.wort_size, 12.0F) << "not scaled where it follows the batch";
    EXPECT_EQ(b.document.malts[0].amount, 8.0F);
}

TEST(Change, OfEfficiency) {
    Brewery free, locked;
    free.document.efficiency = locked.document.efficiency = 0.6F;
    efficiency_changed(free.recipe(), free.locks);
    free.expect({44.719944F, 43.5481911F, usual_mcu, 9, 8}, "the gravity falls");
    locked.locks.efficiency = true;
    efficiency_changed(locked.recipe(), locked.locks);
    locked.expect({usual_og, usual_ibu, 6, 11, 10}, "gravity and sugar hold; the grain colors more");
    for (const auto& [typed, kept] : {std::pair{0.0F, 0.05F}, {1.5F, 1.0F}}) {
        free.document.efficiency = typed;
        efficiency_changed(free.recipe(), free.locks);
        EXPECT_EQ(free.document.efficiency, kept);
    }
}

TEST(MashRefresh, FillsTheMashByTheScheduleInForce) {
    Brewery b;
    auto& mash = b.document.simple_mash;
    mash.mash_kind = MashKind::single_step;
    mash.saccharification = {152, 60};
    mash.mash_out = {168, 10};
    mash.dough_in_water = 10;
    b.session.infusions.mash_out.temperature = 210;
    b.session.infusions.heat_type = SimpleHeat::infusion;
    b.session.water_needs.top_up = 1;
    mash_refresh(b.brew_day());
    const auto& needs = b.session.water_needs;
    expect_figures(std::array{b.figures.mash.quarts, b.figures.mash.gallons, b.water.needed, needs.grain,
                              needs.boil_minutes},
                   {14.4190476F, 4.2447619F, 4.6047619F, 8, 60}, "infusions");
    b.session.infusions.heat_type = SimpleHeat::direct;
    mash_refresh(b.brew_day());
    expect_figures(std::array{b.figures.mash.gallons, b.water.needed}, {3.14F, 3.5F}, "the dough-in alone");
    b.document.recipe_kind = RecipeKind::extract;
    recipe_kind_changed(b.brew_day());
    EXPECT_EQ(b.water.needed, 1.0F) << "extract: the top-up alone";
    b.document.mash.step_count = 1;
    b.document.mash.steps[0].start_temperature = 150;
    b.document.mash_flags = 0x20; // simple, saved under Method #2
    mash_refresh(b.recipe());
    EXPECT_EQ(b.document.mash.steps[0].amount, 10.0F) << "the whole byte counts";
}

TEST(Opening, OfARecipeTakesItsSnapshotAndANewOneTheUsualEfficiency) {
    for (const auto& [mode, actual_extract, potentials] :
         {std::tuple{method_1, 0U, true}, {method_1, 1U, false}, {method_2, 0U, false}}) {
        Brewery b;
        b.settings.efficiency_mode = mode;
        b.settings.view_actual_extract = actual_extract;
        b.settings.efficiency = 0.6F;
        const auto loaded = open_recipe_window(b.recipe(), true);
        EXPECT_EQ((std::pair{loaded.locks.locked_efficiency, loaded.show_potential}),
                  (std::pair{0.75F, potentials}));
        EXPECT_FALSE(document_changed(b.recipe(), loaded.saved)) << "opening is no change";
        b.document.mash.step_count = 1;
        EXPECT_TRUE(document_changed(b.recipe(), loaded.saved)) << "the schedule belongs to the image";
        EXPECT_EQ(open_recipe_window(b.recipe(), false).locks.locked_efficiency, 0.6F);
        EXPECT_EQ(b.document.efficiency, 0.6F);
    }
}

TEST(Opening, OfANewSessionStartsFromTheUsualWater) {
    Brewery b;
    b.settings.batch_size = b.settings.wort_size = 11;
    WaterNeeds usual;
    std::tie(usual.sparge, usual.boil_minutes, usual.grain) = std::tuple{4.0F, 90.0F, 12.0F};
    const auto before = image_of(b.brew_day());
    b.settings.new_session_date = NewSessionDate::tomorrow;
    b.settings.brewer_name.assign("Ada");
    start_session(b.brew_day(), usual, {31, 12, 2026});
    EXPECT_EQ(brew_date(b.session), (CalendarDate{1, 1, 2027}));
    EXPECT_EQ(b.session.head_brewer.view(), "Ada");
    EXPECT_TRUE(b.document.malts.empty() && !has_complex_schedule(b.document));
    EXPECT_EQ((std::pair{b.document.batch_size, b.document.wort_size}), (std::pair{5.0F, 5.0F}));
    const auto& needs = b.session.water_needs;
    expect_figures(std::array{needs.sparge, needs.boil_minutes, needs.grain, b.water.needed}, {4, 60, 0, 4},
                   "seeded from the empty recipe");
    b.document = before.recipe;
    EXPECT_TRUE(document_changed(b.brew_day(), before)) << "by its log alone";
    EXPECT_FALSE(document_changed(b.brew_day(), image_of(b.brew_day())));
}

TEST(Snapshot, TellsWhetherThereIsAnythingToSave) {
    using D = BrewDocument;
    const auto changed_with_and_without_schedule = +[](void (*edit)(BrewDocument&)) {
        Brewery b;
        const auto saved = snapshot_document(b.recipe(), SnapshotScope::with_schedule);
        edit(b.document);
        return std::pair{document_changed(b.recipe(), saved),
                         document_changed(b.recipe(), saved, SnapshotScope::without_schedule)};
    };
    // clang-format off
    expect_exactly(changed_with_and_without_schedule, {
        // order of lines, the mode that a save leaves in the flags, bytes behind a text
        {[](D& d) { std::swap(d.malts[0], d.malts[1]); std::swap(d.hops[0], d.hops[1]); }, {false, false}},
        {[](D& d) { std::swap(d.extras[0], d.extras[1]); d.mash_flags = 0x20; }, {false, false}},
        {[](D& d) { d.notes.bytes[9] = 'x'; }, {false, false}}, {[](D& d) { d.hops[0] = d.hops[1]; }, {true, true}},
        {[](D& d) { d.malts[0].amount = 2; }, {true, true}}, {[](D& d) { d.extras[1].amount = 2; }, {true, true}},
        {[](D& d) { d.simple_mash.acid.minutes = 5; }, {true, true}},
        // of the schedule alone
        {[](D& d) { d.mash_flags = 1; }, {true, false}}, {[](D& d) { d.mash.steps[2].rest_minutes = 5; }, {true, false}}});
    // clang-format on
}

TEST(Snapshot, RestoreBringsBackTheImageAndItsFigures) {
    for (const auto scope : {SnapshotScope::with_schedule, SnapshotScope::without_schedule}) {
        const bool with_schedule = scope == SnapshotScope::with_schedule;
        Brewery b;
        b.figures = {};
        const auto saved = snapshot_document(b.recipe(), scope);
        EXPECT_EQ(b.figures.total_grain, with_schedule ? 9.0F : 0.0F) << "worked out in one form only";
        b.document.malts.clear();
        b.document.og_points = 99;
        b.document.mash.step_count = 1;
        b.document.mash.steps[0].start_temperature = 150;
        b.figures.total_grain = 77;
        restore_snapshot(saved, b.recipe(), scope);
        b.expect({usual_og, usual_ibu, 0, 9, 8}, "restored");
        EXPECT_EQ(b.document.mash.step_count, with_schedule ? 0 : 1) << "a schedule not taken stays";
        EXPECT_FALSE(document_changed(b.recipe(), saved, scope));
    }
}

} // namespace
} // namespace wortlex
