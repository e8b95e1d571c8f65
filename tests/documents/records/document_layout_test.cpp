#include "support/record_rows.h"
#include "support/sample_documents.h"

namespace wortlex {
namespace {

template <class Line>
FieldRow<BrewDocument> count_row(std::size_t offset, std::vector<Line> BrewDocument::*list) {
    return {offset, [=](const BrewDocument& document) {
                return raw(static_cast<std::int32_t>((document.*list).size()));
            }};
}

// All up to the end of the simple mash.
FieldRows<BrewDocument> opening_rows(const Lines& lines) {
    using R = BrewDocument;
    const auto malts = 1157 + 635 * lines.hops, extras = malts + 529 * lines.malts,
               yeast = lines.yeast_start();
    return rows<R>(text(0, &R::title), count_row(85, &R::hops), count_row(89, &R::malts),
                   count_row(93, &R::extras), f32(97, &R::wort_size), f32(101, &R::batch_size),
                   f32(105, &R::og_points), f32(109, &R::total_ibu), f32(113, &R::efficiency),
                   i32(117, &R::boil_minutes), i32(121, &R::target_ibu), u8(125, &R::recipe_kind),
                   Inside{126, style_rows(), &R::style},
                   Each{1157, 635, lines.hops, hop_use_rows(), &R::hops},
                   Each{malts, 529, lines.malts, malt_use_rows(), &R::malts},
                   Each{extras, 589, lines.extras, extra_use_rows(), &R::extras},
                   Inside{yeast, yeast_use_rows(), &R::yeast}, Inside{yeast + 473, water_rows(), &R::water},
                   Inside{yeast + 695, simple_mash_rows(), &R::simple_mash});
}

FieldRows<BrewDocument> text_rows() {
    using R = BrewDocument;
    return rows<R>(text(0, &R::notes), text(4028, &R::awards), text(8056, &R::reserved_text));
}

FieldRows<BrewDocument> schedule_rows() {
    using R = ComplexMash;
    const auto mash =
        rows<R>(i32(0, &R::step_count), i32(4, &R::grain_temperature), f32(8, &R::tun_thermal_mass),
                Each{12, 292, 50, mash_step_rows(), &R::steps}, text(14612, &R::mash_name));
    const FieldRow<BrewDocument> flags = {
        14867, [](const BrewDocument& document) {
            return Bytes{std::byte(document.file_efficiency_mode * 16 + document.mash_flags)};
        }};
    return rows<BrewDocument>(Inside{0, mash, &BrewDocument::mash}, flags);
}

FieldRows<InfusionExtras> infusion_rows() {
    using R = InfusionExtras;
    const auto temperature = rows<Infusion>(i32(0, &Infusion::temperature)),
               amount = rows<Infusion>(f32(0, &Infusion::amount));
    return rows<R>(u8(0, &R::heat_type), u8(1, &R::reserved_bytes), Inside{5, temperature, &R::protein},
                   Inside{9, temperature, &R::intermediate}, Inside{13, temperature, &R::saccharification},
                   Inside{17, temperature, &R::mash_out}, u32(21, &R::reserved_word),
                   Inside{25, amount, &R::protein}, Inside{29, amount, &R::intermediate},
                   Inside{33, amount, &R::saccharification}, Inside{37, amount, &R::mash_out});
}

// From the brewers' names to the dilution rate; offsets count from the end of the simple mash.
FieldRows<SessionDocument> log_rows() {
    using R = SessionDocument;
    const FieldRow<R> notes = {9000, [](const R& session) { return raw(session.session_notes); }};
    return rows<R>(
        text(8343, &R::head_brewer), text(8598, &R::assistant_brewer), i16(8853, &R::brew_day),
        i16(8855, &R::brew_month), i16(8857, &R::brew_year), f32(8859, &R::actual_og),
        f32(8863, &R::actual_fg), f32(8867, &R::runnings_sg), Inside{8871, bottling_rows(), &R::bottling},
        notes, u8(29480, &R::inventory_finalized), Inside{29481, infusion_rows(), &R::infusions},
        f32(29522, &R::wort_ph), Inside{29526, water_needs_rows(), &R::water_needs},
        Each{29586, 222, 6, water_rows(), &R::salt_effects}, Inside{30918, water_rows(), &R::source_water},
        f32(31140, &R::salt_grams), f32(31168, &R::sparge_quarts), f32(31172, &R::dilution_rate));
}

TEST(DocumentLines, StandInFilesAsTheirTablesSay) {
    expect_layout(635, hop_use_layout, hop_use_rows());
    expect_layout(529, malt_use_layout, malt_use_rows());
    expect_layout(589, extra_use_layout, extra_use_rows());
    expect_layout(473, yeast_use_layout, yeast_use_rows());
}

TEST(RecipeFile, IsReadAndWrittenFieldByField) {
    for (const auto& lines : {Lines{}, Lines{2, 1, 3}, Lines{0, 30, 1}}) {
        const auto file = sample_recipe(lines);
        BrewDocument recipe;
        EXPECT_EQ(read_recipe(file, recipe, test_settings()), LoadResult::loaded);
        const auto yeast = lines.yeast_start();
        const auto same = [](const BrewDocument& document) -> auto& {
            return document;
        };
        expect_fields(rows<BrewDocument>(Inside{0, opening_rows(lines), same},
                                         Inside{yeast + 757, text_rows(), same},
                                         Inside{yeast + 9068, schedule_rows(), same}),
                      recipe, file);
        EXPECT_EQ(first_difference(recipe_bytes(recipe), file), -1);
    }
    EXPECT_EQ(recipe_bytes({}).size(), 25093U);
}

TEST(SessionFile, IsReadAndWrittenFieldByField) {
    for (const auto& lines : {Lines{}, Lines{1, 3, 2}}) {
        const auto file = sample_session(lines);
        Loaded loaded;
        EXPECT_EQ(read_session(file, loaded.document, loaded.session, test_settings()), LoadResult::loaded);
        const auto log = lines.yeast_start() + 757;
        const auto fermentation =
            rows<SessionDocument>(Inside{0, fermentation_rows(), &SessionDocument::fermentation});
        const auto tail = rows<SessionDocument>(Inside{0, tail_rows(), &SessionDocument::tail});
        expect_fields(rows<Loaded>(Inside{0, opening_rows(lines), &Loaded::document},
                                   Inside{log, fermentation, &Loaded::session},
                                   Inside{log + 32, text_rows(), &Loaded::document},
                                   Inside{log, log_rows(), &Loaded::session},
                                   Inside{log + 31176, schedule_rows(), &Loaded::document},
                                   Inside{log + 46044, tail, &Loaded::session}),
                      loaded, file);
        EXPECT_EQ(first_difference(session_bytes(loaded.document, loaded.session), file), -1);
        EXPECT_EQ(loaded.session.sparge_gallons, loaded.session.sparge_quarts / 4);
    }
    EXPECT_EQ(session_bytes({}, {}).size(), 53454U);
}

} // namespace
} // namespace wortlex
