#include "calculators/degradation_chart.h"
#include "calculators/ibu_calculator.h"
#include "charts/chart_picture.h"
#include "documents/brewing.h"
#include "support/form_user.h"
#include "support/recording_surface.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace wortlex {
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::Not;

// Loses 45 percent in six months at 20 degrees C.
HopRecord fading_hop() {
    HopRecord hop;
    hop.name.assign("Mittelfr\xFCh");
    hop.alpha = 4.5F;
    hop.storage_factor = 45;
    return hop;
}

Settings store_settings() {
    auto settings = brewing_settings();
    settings.hop_storage_temperature = 60;
    settings.batch_size = settings.wort_size = 5;
    return settings;
}

TEST(HopDegradation, StartsFromWhatWasLastToldOfTheStore) {
    const auto settings = store_settings();
    HopMemory memory;
    auto work = picked_hop(fading_hop(), memory, settings);
    EXPECT_EQ((std::tuple{work.age_months, work.storage_kind, work.alpha}),
              (std::tuple{6, StorageKind::airtight, 4.5F}));
    EXPECT_FLOAT_EQ(work.storage_temperature, 15.555555F) << "the settings tell degrees F";
    auto hop = start_degradation(work, settings);
    EXPECT_NEAR(hop.adjusted_alpha, 3.1520892, 1e-5);
    EXPECT_EQ(hop.name, "Mittelfr\u00fch");
    hop.months = 12;
    hop.celsius = 5;
    hop.storage = StorageKind::no_seal;
    keep_storage(hop, work);
    remember_storage(work, memory);
    EXPECT_NEAR(start_degradation(picked_hop(fading_hop(), memory, settings), settings).adjusted_alpha, 2.475,
                1e-5);
    for (const float frozen : {-18.0F, 0.0F}) {
        memory.storage_temperature = frozen;
        EXPECT_EQ(picked_hop(fading_hop(), memory, settings).storage_temperature, frozen);
    }
}

TEST(HopDegradation, ItsFieldsFollowEachOther) {
    auto hop = start_degradation(picked_hop(fading_hop(), {}, store_settings()), store_settings());
    Form form;
    hop_degradation_form(form, hop);
    type(form, "celsius", "-10");
    EXPECT_EQ(content_of(form, "fahrenheit"), "14.00");
    EXPECT_NEAR(hop.adjusted_alpha, 4.0228193, 1e-5);
    type(form, "celsius", "34.5");
    spin(form, "celsius", Spin::up);
    EXPECT_EQ(std::pair(content_of(form, "celsius"), content_of(form, "fahrenheit")),
              (std::pair<std::string, std::string>("35.00", "95.00")))
        << "not beyond the range";
    EXPECT_EQ(content_of(form, "adjusted_alpha"), "1.84");
    type(form, "fahrenheit", "59");
    EXPECT_EQ(hop.celsius, 15);
    EXPECT_EQ(content_of(form, "adjusted_alpha"), "3.15");
    type(form, "months", "99");
    form.choose(dynamic_cast<ChoiceRow&>(form.row("storage")), 2);
    type(form, "fahrenheit", "200");
    EXPECT_EQ((std::tuple{hop.months, hop.storage, hop.celsius}),
              (std::tuple{60, StorageKind::inert_gas, 35.0F}));
    EXPECT_EQ(content_of(form, "adjusted_alpha"), "0.01");
}

// At the age of `months`, at 15 degrees C.
HopDegradation stored_hop(float alpha, std::int16_t months) {
    HopDegradation hop{"Saaz", alpha, 45, 59, 15, months, StorageKind::airtight};
    hop.adjusted_alpha = alpha_after(hop, months);
    return hop;
}

std::vector<std::string> drawn(float alpha, std::int16_t months, bool with_header = false) {
    RecordingSurface surface;
    draw_degradation_chart(surface, stored_hop(alpha, months), with_header);
    return surface.lines;
}

TEST(ChartPicture, GoesToTheChosenFileOrTellsWhatFailed) {
    FolderSet folders;
    folders.save_automatically = 1;
    set_folder(folders, FolderKind::jpg_exports, "Pictures");
    ScriptedFiles files({"/charts/a.jpg", std::nullopt, "/charts/b.jpg", "/charts/c.jpg"});
    ScriptedPrompts prompts;
    RecordingEasel easel;
    FakePictures pictures;
    const PictureDesk desk{easel, pictures, files, prompts, folders, 80};
    const ChartDrawing chart{{5, 3}, [](Surface& surface) { surface.text({1, 2}, "drawn"); }};
    const auto save = [&] { choose_and_save_chart(chart, "Saaz 1/2", desk); };
    save();
    EXPECT_EQ(files.offers[0], "save JPEG Bitmap File (*.jpg)|*.jpg Pictures/ Saaz 1_2.jpg jpg");
    EXPECT_EQ(pictures.files["/charts/a.jpg"].width, 5);
    EXPECT_EQ(folder_path(folders, FolderKind::jpg_exports), "/charts/");
    save(); // left
    EXPECT_EQ(pictures.files.size(), 1U);
    for (const auto& [result, words] :
         {std::pair(PictureSave::not_encoded, "Error Initializing JPG Properties!"),
          {PictureSave::not_written, "Error Writing JPG File!"}}) {
        pictures.result = result;
        prompts.expect("tell", words, {}, Icon::error, "Wortlex Error");
        save();
    }
}

TEST(DegradationChart, FitsItsScalesToTheHop) {
    struct Case {
        int age;
        const char* last;
        const char* beyond;
    };
    for (const auto& c : {Case{0, " 12", " 13"},
                          {12, " 12", " 14"},
                          {13, " 24", " 26"},
                          {25, " 36", " 39"},
                          {48, " 48", " 52"},
                          {49, " 60", " 65"},
                          {60, " 60", " 65"}}) {
        const auto lines = drawn(4.5F, static_cast<std::int16_t>(c.age));
        EXPECT_THAT(lines, Contains(EndsWith(c.last))) << c.age;
        EXPECT_THAT(lines, Not(Contains(EndsWith(c.beyond)))) << c.age;
    }
    EXPECT_THAT(drawn(16.9F, 0), Contains(EndsWith(" 17"))) << "up to the next whole percent, each of them";
    EXPECT_THAT(drawn(17, 0), Not(Contains(EndsWith(" 17")))) << "from 18 only every other one";
    EXPECT_THAT(drawn(17, 0), Contains(EndsWith(" 18")));
}

TEST(DegradationChart, MarksTheHopOnItsCurve) {
    const auto lines = drawn(4.5F, 6);
    const auto curve =
        std::find_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("poly"); });
    ASSERT_NE(curve, lines.end());
    EXPECT_TRUE(curve->starts_with("polyline 60,44 95,59 ")) << *curve;
    EXPECT_THAT(*curve, EndsWith(" 480,172"));
    EXPECT_EQ(std::count(curve->begin(), curve->end(), ' '), 13) << "the start and twelve months";
    EXPECT_EQ(lines.back(), "ellipse 266,115,275,124") << "around 270, 119";
    EXPECT_THAT(drawn(4.5F, 6, true), Contains("ellipse 266,271,275,280")) << "below the header";
    EXPECT_THAT(lines, Contains("rectangle 0,0,500,350"));
}

TEST(DegradationChart, NamesEverything) {
    const auto lines = drawn(4.5F, 6, true);
    for (const auto* const words :
         {" Wortlex Hop Time/Alpha Degradation Chart", " Hop Name:\tSaaz", " Start Alpha:\t4.50",
          " Temp Stored At:\t59.00 F  15.00 C", " Age In Months:\t6",
          " Stored In :\tBarrier Packaging/Airtight Jars", " Adjusted Alpha Value:\t3.15", " Months"})
        EXPECT_THAT(lines, Contains(EndsWith(words)));
    std::string letters;
    for (const auto& line : drawn(4.5F, 6))
        if (line.starts_with("text ") && std::isalpha(line.back()) != 0 && line[line.size() - 2] == ' ')
            letters += line.back();
    EXPECT_EQ(letters, "Alpha") << "one letter a line";
    const auto words = words_of_degradation_chart(stored_hop(4.5F, 6));
    EXPECT_TRUE(words.starts_with("Chart of the alpha acid: 4.50 percent fresh, ")) << words;
    EXPECT_THAT(words, testing::HasSubstr(", 3.15 after 6 months, "));
}

// Five percent, in five gallons, by Rager: an ounce gives 0.30 x 0.05 x 7462 / 5 = 22.386 IBU.
struct OpenCalculator {
    Settings settings = store_settings();
    HopCalculator calculator;
    Form form;

    explicit OpenCalculator(void (*change)(Settings&) = nullptr) {
        if (change != nullptr) change(settings);
        calculator = start_calculator(hop(5, 0, 0), {}, settings);
        ibu_calculator_form(form, calculator, settings, "Saaz", {});
    }
    std::string label(std::string_view key) const {
        auto text = form.row(key).label_text();
        std::erase(text, '&');
        return text;
    }
};

TEST(IbuCalculator, StartsWithAnOunceOrAPound) {
    auto settings = store_settings();
    settings.wort_size = 6;
    HopMemory memory;
    auto calculator = start_calculator(hop(5, 0, 0), memory, settings);
    EXPECT_EQ((std::tuple{calculator.ounces, calculator.grams, calculator.sg, calculator.boil_minutes}),
              (std::tuple{1.0F, 28.35F, 1.04F, 60}));
    EXPECT_EQ(std::pair(calculator.wort_volume, calculator.batch_volume), std::pair(6.0F, 6.0F));
    EXPECT_NEAR(calculator.ibu, 22.386 * 5 / 6, 1e-4);
    set_sg(calculator, 1.05F, settings);
    calculator.boil_minutes = 30;
    set_batch(calculator, 8, settings);
    set_wort(calculator, 7, settings);
    set_mash_hop(calculator, true, settings);
    remember_calculator(calculator, memory);
    settings.system_mode = SystemMode::pro_brewer;
    calculator = start_calculator(hop(5, 0, 0), memory, settings);
    EXPECT_EQ((std::tuple{calculator.ounces, calculator.sg, calculator.boil_minutes, calculator.is_mash_hop}),
              (std::tuple{16.0F, 1.05F, 30, true}));
    EXPECT_EQ(std::pair(calculator.wort_volume, calculator.batch_volume), std::pair(7.0F, 8.0F));
}

TEST(IbuCalculator, WeightUnitsAndIbuFollowEachOther) {
    struct Case {
        const char* key;
        const char* text;
        double ounces, ibu;
    };
    OpenCalculator open;
    for (const auto& c : {Case{"ounces", "2", 2, 44.772},
                          {"grams", "28.35", 1, 22.386},
                          {"hbu", "10", 2, 44.772},
                          {"mbu", "70.875", 0.5, 11.193},
                          {"ibu", "44.772", 2, 44.772},
                          {"start_alpha", "10", 2, 89.544}}) {
        type(open.form, c.key, c.text);
        const auto& calculator = open.calculator;
        EXPECT_NEAR(calculator.ounces, c.ounces, 1e-4) << c.key;
        EXPECT_NEAR(calculator.grams, c.ounces * 28.35, 1e-3) << c.key;
        EXPECT_NEAR(calculator.ibu, c.ibu, 1e-3) << c.key;
    }
    take_storage_loss(open.calculator, 10, 5, open.settings);
    EXPECT_NEAR(open.calculator.ibu, 44.772, 1e-3);
    EXPECT_EQ(content_of(open.form, "hbu"), "10.00") << "of what is left";
    type(open.form, "hbu", "20");
    EXPECT_EQ(std::pair(open.calculator.ounces, open.calculator.adjusted_alpha), std::pair(2.0F, 10.0F))
        << "the loss is dropped";
    type(open.form, "start_alpha", "0.03");
    spin(open.form, "start_alpha", Spin::down);
    EXPECT_EQ(open.calculator.start_alpha, 0) << "not below the range";
}

TEST(IbuCalculator, VolumesPullAndFlagsExcludeEachOther) {
    OpenCalculator open;
    auto& calculator = open.calculator;
    type(open.form, "wort_volume", "8");
    EXPECT_EQ(calculator.batch_volume, 8);
    type(open.form, "batch_volume", "10");
    EXPECT_EQ(std::pair(calculator.wort_volume, content_of(open.form, "concentration")),
              std::pair(8.0F, std::string("1.25")));
    type(open.form, "batch_volume", "5");
    EXPECT_EQ(calculator.wort_volume, 5);
    open.form.leave();
    for (const auto* const typed : {"1", "10"}) type(open.form, "batch_volume", typed);
    EXPECT_EQ(calculator.wort_volume, 5) << "1 was but the way to 10";
    type(open.form, "batch_volume", "5");
    const auto flag = [&](const char* key) {
        open.form.check(dynamic_cast<CheckRow&>(open.form.row(key)), true);
    };
    flag("is_mash_hop"); // 20 percent less
    EXPECT_NEAR(calculator.ibu, 17.9088, 1e-4);
    flag("is_first_wort"); // 10 percent more
    EXPECT_NEAR(calculator.ibu, 24.6246, 1e-4);
    EXPECT_FALSE(calculator.is_mash_hop);
    type(open.form, "boil_minutes", "2");
    EXPECT_EQ(calculator.boil_minutes, 5);
    EXPECT_NEAR(calculator.ibu, 24.6246 / 6, 1e-4);
}

TEST(IbuCalculator, ItsFieldsFollowModeUnitsAndFormula) {
    const OpenCalculator home([](Settings& s) { s.HopFormula = HopFormulaCode::Garetz; });
    EXPECT_EQ(home.label("ounces") + home.label("grams"), "Ounces of HopsGrams of Hops");
    EXPECT_EQ(home.label("wort_volume"), "Amount of Wort Boiled: (Gal)");
    EXPECT_EQ(home.label("sg"), "Wort SG:");
    EXPECT_TRUE(home.form.row("bag_used").is_enabled() && home.form.row("concentration").is_enabled());
    EXPECT_FALSE(home.form.row("hbu").is_visible() || home.form.row("form").is_enabled());
    OpenCalculator pro([](Settings& s) {
        s.HopFormula = HopFormulaCode::Tinseth;
        s.system_mode = SystemMode::pro_brewer;
        s.volume_units = Units::metric;
        s.display_home_bittering = s.use_additional_utilization = 1;
    });
    EXPECT_EQ(pro.label("ounces") + pro.label("grams"), "Pounds of HopsKilograms of Hops");
    EXPECT_EQ(pro.label("batch_volume"), "Batch Size: (hL)");
    EXPECT_EQ(pro.label("sg"), "Average Wort SG:");
    EXPECT_FALSE(pro.form.row("bag_used").is_enabled() || pro.form.row("concentration").is_enabled());
    EXPECT_TRUE(pro.form.row("hbu").is_visible() && pro.form.row("form").is_enabled());
    type(pro.form, "grams", "4.536");
    EXPECT_EQ(std::pair(content_of(pro.form, "ounces"), content_of(pro.form, "hbu")),
              (std::pair<std::string, std::string>("10.00", "800.00")));
    pro.settings.volume_units = Units::american;
    EXPECT_EQ(pro.label("batch_volume"), "Batch Size: (bbl)");
}

TEST(FormulaType, CancelPutsTheFormulaBack) {
    auto settings = store_settings();
    settings.HopFormula = HopFormulaCode::Garetz;
    Form form;
    formula_type_form(form, settings);
    auto& choice = dynamic_cast<ChoiceRow&>(form.row("formula"));
    form.choose(choice, 3);
    EXPECT_EQ(settings.HopFormula, HopFormulaCode::Generic) << "at once";
    form.cancel();
    EXPECT_EQ(settings.HopFormula, HopFormulaCode::Garetz);
}

} // namespace
} // namespace wortlex
