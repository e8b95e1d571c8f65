#include "documents/forms/cell_typing.h"
#include "documents/forms/hop_amount.h"
#include "documents/forms/line_entry.h"
#include "documents/forms/malt_amount.h"
#include "documents/under_work.h"
#include "support/form_user.h"
#include "support/scripted_prompts.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

struct Bench : UnderWork {
    explicit Bench(Units units) {
        measure_in(settings, units);
        document.boil_minutes = 60;
        document.malts = {malt(MaltType::grain, 1.037F, 6), malt(MaltType::grain, 1.034F, 3),
                          malt(MaltType::sugar, 1.046F, 1)};
        document.hops = {hop(10, 0.5F, 60), hop(5, 1, 15)};
        malts_changed(editor.open);
        start_editing(editor, {.locks = {}, .selected_malt = 0, .selected_hop = 0});
    }
    std::string read(const WrittenLine& line) const {
        auto text = line.name + "|";
        if (line.weight) text += fixed(pounds_of(*line.weight, settings), 3);
        return line.fault.empty() ? text : line.fault;
    }
};

TEST(WrittenLine, IsAMaltAsABrewerWritesIt) {
    const Bench american(Units::american), metric(Units::metric);
    for (const auto& [text, pounds] : {std::pair{"9 lb 2-row", "2-row|9.000"},
                                       {"1.5kg munich", "munich|3.307"},
                                       {"1,5 KG munich", "munich|3.307"},
                                       {"0,250 kg munich", "munich|0.551"},
                                       {"caramel 60 12 oz", "caramel 60|0.750"},
                                       {"9 2-row", "2-row|9.000"},
                                       {"crystal 60", "crystal 60|"},
                                       {"6-row", "6-row|"},
                                       {"-3 lb pale", "-3 lb pale|"},
                                       {"1,500 g pale", "1,500 can be read in two ways"}})
        EXPECT_EQ(american.read(read_malt_line(text)), pounds) << text;
    EXPECT_EQ(metric.read(read_malt_line("4 pilsner")), "pilsner|8.818") << "kilograms";
}

TEST(WrittenLine, IsAHopWithItsTime) {
    constexpr int none = -99;
    struct Row {
        const char *text, *name;
        double ounces;
        int time;
    };
    const Bench bench(Units::american);
    for (const auto& [text, name, ounces, time] : {Row{"28 g cascade 60", "cascade", 28 / 28.35, 60},
                                                   {"Cascade 1oz dry", "Cascade", 1, -5},
                                                   {"2 saaz FWH", "saaz", 2, 61},
                                                   {"magnum 45 min", "magnum", 0, 45},
                                                   {"magnum 45min", "magnum", 0, 45},
                                                   {"hbc 438", "hbc 438", 0, none},
                                                   {"hbc 438 15", "hbc 438", 0, 15},
                                                   {"1 lb fuggle mash", "fuggle", 16, 62}}) {
        const auto line = read_hop_line(text, 60);
        EXPECT_EQ(line.name, name) << text;
        EXPECT_NEAR(line.weight ? ounces_of(*line.weight, bench.settings) : 0, ounces, 1e-6) << text;
        EXPECT_EQ(line.boil_time.value_or(none), time) << text;
    }
    const auto line = read_hop_line("1 oz saaz 3,5% 20", 60);
    EXPECT_EQ(line.alpha, 3.5F);
    EXPECT_EQ(line.name + std::to_string(*line.boil_time), "saaz20");
    HopRecord saaz;
    saaz.alpha = 4;
    EXPECT_EQ(hop_line(saaz, line, bench.document, bench.settings).alpha, 3.5F);
    EXPECT_EQ(hop_line(saaz, read_hop_line("saaz", 60), bench.document, bench.settings).boil_time, 60);
}

TEST(CellTyping, DoesWhatTheDialogOfTheLineDoes) {
    struct Row {
        const char* key;
        std::size_t column;
        const char* text;
    };
    for (const auto units : {Units::american, Units::metric}) {
        for (const auto& [key, column, text] : {Row{"amount", 4, "12.3"}, {"amount", 4, "200000"}}) {
            Bench typed(units), dialog(units);
            malt_cells(typed.editor).take(1, column, text);
            auto copy = dialog.document.malts[1];
            FormUser user;
            malt_amount_form(user.form, copy, dialog.settings);
            user.type(key, text);
            replace_malt(dialog.editor, 1, copy);
            EXPECT_EQ(typed.document, dialog.document) << text;
        }
        for (const auto& [key, column, text] : {Row{"amount", 4, "31.7"},
                                                {"alpha", 2, "4.75"},
                                                {"boil_time", 5, "FWH"},
                                                {"boil_time", 5, "75"}}) {
            Bench typed(units), dialog(units);
            hop_cells(typed.editor).take(1, column, text);
            ScriptedPrompts prompts;
            auto copy = dialog.document.hops[1];
            FormUser user;
            hop_amount_form(user.form, copy, dialog.editor.open, prompts);
            user.type(key, text);
            replace_hop(dialog.editor, 1, copy);
            EXPECT_EQ(typed.document, dialog.document) << text;
        }
    }
}

TEST(CellTyping, IsOneStepThatUndoTakesBack) {
    Bench bench(Units::american);
    const auto before = bench.document;
    const auto cells = malt_cells(bench.editor);
    cells.take(0, 4, "1 kg");
    EXPECT_NEAR(bench.document.malts[0].amount, 1000 / 453.6, 1e-6);
    EXPECT_NE(bench.document.og_points, before.og_points);
    EXPECT_EQ(cells.text(0, 4), "2.20");
    EXPECT_TRUE(undo(bench.editor));
    EXPECT_EQ(bench.document, before);
    EXPECT_FALSE(undo(bench.editor));
    hop_cells(bench.editor).take(0, 5, "45 min");
    EXPECT_EQ(bench.document.hops[0].boil_time, 45);
}

TEST(CellTyping, AShareLeavesTheWeightOfAllAsItIs) {
    Bench bench(Units::american);
    malt_cells(bench.editor).take(0, 5, "80%");
    const auto& malts = bench.document.malts;
    EXPECT_FLOAT_EQ(malts[0].amount, 8);
    EXPECT_FLOAT_EQ(malts[1].amount, 1.5) << "3 to 1, as before";
    EXPECT_FLOAT_EQ(malts[2].amount, 0.5);
    bench.document.malts.resize(1);
    EXPECT_EQ(malt_cells(bench.editor).fault(0, 5, "50"), "It is the only malt");
}

TEST(CellTyping, SaysWhatItCannotTake) {
    Bench bench(Units::american);
    const auto malts = malt_cells(bench.editor), hops = hop_cells(bench.editor);
    EXPECT_EQ(malts.fault(0, 4, "9 stone"), "A weight, such as 9 lb or 1.5 kg");
    EXPECT_EQ(malts.fault(0, 4, "1,250"), "1,250 can be read in two ways");
    EXPECT_EQ(malts.fault(0, 5, "100"), "0.1 to 99.9");
    EXPECT_EQ(hops.fault(0, 2, "101"), "0 to 100");
    EXPECT_EQ(hops.fault(0, 5, "soon"), "Minutes before the end of the boil, dry, FWH or MH");
    EXPECT_EQ(hops.fault(0, 4, "30 g") + hops.fault(0, 5, "dry") + hops.fault(0, 2, "5,5 %"), "");
    const auto before = bench.document;
    malts.take(0, 4, "9 stone");
    hops.take(0, 5, "soon");
    EXPECT_EQ(bench.document, before);
}

} // namespace
} // namespace wortlex
