#include "support/kitchen.h"

namespace wortlex {
namespace {

// Five gallons of 9 lb of malt and half a pound of sugar: 37 x 9 / 5 = 66.6 points in the mash, of which 75 %
// are 49.95, and 46 x 0.5 / 5 = 4.6 beside it, 54.55 in all.
struct LoggedBrewDay : Kitchen {
    LoggedBrewDay() {
        auto pale = new_document(program.settings, ScheduleKind::simple);
        pale.title.assign("Pale Ale");
        pale.boil_minutes = 60;
        pale.efficiency = 0.75F;
        pale.malts = {malt(MaltType::grain, 1.037F, 9), malt(MaltType::sugar, 1.046F, 0.5F)};
        const auto path = folder.path() + "Pale Ale.rec";
        EXPECT_TRUE(save_recipe(path, pale, prompts));
        main->commands().start(command::new_session);
        EXPECT_TRUE(QTest::qWaitFor([this] {
            document = QApplication::activeWindow();
            return document != nullptr && document != main.get();
        }));
        files.add(path);
        press(Qt::Key_R, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return text_of(*document, "title") == "Pale Ale"; }));
    }
    // Fields and what is typed into them, in turn.
    static void fill(const char* entries) {
        const auto words = QString::fromLatin1(entries).split(QLatin1Char(' '));
        for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
            tab_to(qPrintable(words[i]));
            type(qPrintable(words[i + 1]));
        }
    }
    static void press_at(const char* field, Qt::Key key) {
        tab_to(field);
        press(key);
    }
    static std::string in_dialog_of(const char* button, const char* entries,
                                    std::initializer_list<const char*> results = {}) {
        auto* const page = QApplication::activeWindow();
        std::optional<std::string> answer;
        in_next([&](const QWidget& dialog) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isAncestorOf(QApplication::focusWidget()); }));
            fill(entries);
            answer = shown(results);
            press(Qt::Key_Return);
        });
        press_at(button, Qt::Key_Space);
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); })) << button;
        activate(page);
        return answer.value_or("");
    }
    // What the window in front shows, "|" between the fields.
    static std::string shown(std::initializer_list<const char*> fields) {
        QStringList all;
        for (const auto* const field : fields) all << text_of(*QApplication::activeWindow(), field).trimmed();
        return all.join('|').toStdString();
    }
};

// The figures were worked by hand from the formulae as brewing handbooks print them.
TEST(BrewDay, IsLoggedByKeyboardAndEveryFigureFollows) {
    LoggedBrewDay day;
    day.on_page(Qt::Key_M, [&] {
        day.press_at("heat_type_0", Qt::Key_Right); // infusions
        day.fill("saccharification_temperature 152 saccharification_minutes 60 mash_out_temperature 168 "
                 "mash_out_minutes 10 mash_out_infusion 210 quarts 12 wort_ph 5.3");
        // 16 F x (12 + 9 x 0.2) / 42 F; 9 x (1.32 + 17.257 / 9 - 1) / 4
        EXPECT_EQ(day.shown({"mash_out_needed", "total_volume"}), "5.26|5.03");
        day.in_dialog_of("measure_runnings", "brix 2.6");
        EXPECT_EQ(day.shown({"runnings_sg"}), "1.009770") << "2.6 Brix / 1.04 are 2.5 Plato";
    });
    day.on_page(Qt::Key_W, [&] {
        day.fill("sparge 4 sparge_deadspace 0.25 lauter_loss 0.25 evaporation_rate 10 kettle_deadspace 0.25");
        // 17.257 / 4 in the mash, 1.8 kept by the grain, 3.75 sparged; a tenth evaporates, 4 % shrink.
        EXPECT_EQ(day.shown({"needed", "from_mash", "into_kettle", "after_boil", "after_cooling"}),
                  "8.31|2.51|6.01|5.41|4.96");
    });
    day.on_page(Qt::Key_G, [&] {
        // 54.55 points of 5 gallons in 5 / 0.9, and in the 6.0143 that the water fills
        EXPECT_EQ(day.in_dialog_of("pre_boil", "", {"raw_volume", "raw_sg", "water_volume", "water_sg"}),
                  "5.56|1.049|6.01|1.045");
    });
    day.on_page(Qt::Key_C, [&] {
        day.fill("recorded_volume 6");
        day.in_dialog_of("refractometer", "brix 11.5");
        // 11.5 / 1.04 Plato; 44.43 x 6 / 5 - 4.6 = 48.716 of 66.6 points
        EXPECT_EQ(day.shown({"recorded_og", "recorded_og_plato", "actual_mash_points", "actual_efficiency"}),
                  "1.044|11.1|48.7|73");
    });
    day.on_page(Qt::Key_A, [&] {
        const auto results = [&] {
            return day.shown({"alcohol_by_weight", "alcohol_by_volume", "adf", "rdf"});
        };
        day.in_dialog_of("actual_og_refractometer", "brix 13.6");
        EXPECT_EQ(day.shown({"actual_og", "actual_og_plato"}), "1.053|13.1");
        day.fill("actual_fg 1.013");
        day.in_dialog_of("actual_fg_hydrometer", "temperature_fahrenheit 75");
        // 1.6562 points too low at 75 F; 3.738 of 13.079 Plato, 5.616 with the alcohol taken into account
        EXPECT_EQ(day.shown({"actual_fg", "actual_fg_plato"}) + " " + results(),
                  "1.015|3.7 3.93|5.04|71.42|59.61");
        day.in_dialog_of("actual_fg_refractometer", "brix 7.2");
        // 7.2 Brix are 27.77 net Zeiss
        EXPECT_EQ(day.shown({"actual_fg", "actual_fg_plato"}) + " " + results(),
                  "1.014|3.5 4.05|5.19|73.62|61.38");
        day.press_at("fg_by_refractometer_0", Qt::Key_Right);
        day.in_dialog_of("alcohol_refractometer", "brix 7.2");
        // 0.323 - 2.774 x 1.351 + 0.2691 x 27.77, and 5.2787 Plato left
        EXPECT_EQ(results(), "4.05|5.19|73.62|61.31");
    });
    EXPECT_EQ(text_of(*day.document, "actual_efficiency") + text_of(*day.document, "rdf"), "7361.31");
    day.on_page(Qt::Key_K, [&] {
        day.fill("co2_volumes 2.4 ferment_temperature 66");
        for (const auto* const column : {"bottled", "kegged", "tanks"}) day.press_at(column, Qt::Key_Space);
        day.press_at("tanks_method_1", Qt::Key_Left); // a cask, conditioned with malt extract
        day.press_at("tanks_medium", Qt::Key_Down);
        day.fill("bottled_amount 2 kegged_amount 2 tanks_amount 0.75 kegged_temperature 40");
        for (const auto* const calculation :
             {"bottled_natural_calc", "tanks_natural_calc", "kegged_forced_calc"})
            day.in_dialog_of(calculation, "");
        // 66 F keep 0.8904 volumes; 1.5096 x 15.195 g a gallon, twice as much malt extract; psi at 40 F
        EXPECT_EQ(day.shown({"bottled_priming", "tanks_priming", "kegged_pressure"}), "1.62|1.21|11.19");
    });
    day.prompts.expect_save("brew session entry", Answer::no);
    EXPECT_TRUE(day.document->close());
}

} // namespace
} // namespace wortlex
