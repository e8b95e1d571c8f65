#include "base/number.h"
#include "support/form_user.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

bool type(Form& form, std::string_view key, PlainField& field, std::string text) {
    field.content = std::move(text);
    field.position = static_cast<int>(field.content.size());
    return form.type(dynamic_cast<EntryRow&>(form.row(key)), field);
}

float to_litres(float gallons) {
    return narrow(gallons * 4.0);
}

float to_gallons(float litres) {
    return narrow(litres / 4.0);
}

TEST(NumberRow, IsEditedInTheUnitShown) {
    float gallons = 5;
    Form form;
    form.rows()
        .number("size", gallons)
        .shown_as(to_litres, to_gallons)
        .range(4, 400)
        .step(2.0F)
        .format("%0.1f");
    EXPECT_EQ(content_of(form, "size"), "20.0");
    PlainField field;
    EXPECT_TRUE(type(form, "size", field, "30"));
    EXPECT_EQ(gallons, 7.5F);
    EXPECT_FALSE(type(form, "size", field, "3")) << "below the range in litres";
    EXPECT_EQ(std::pair(gallons, field.content), std::pair(7.5F, std::string("3")));
    field.content = "30.0";
    EXPECT_TRUE(form.spin(dynamic_cast<EntryRow&>(form.row("size")), field, Spin::down));
    EXPECT_EQ(std::pair(gallons, field.content), std::pair(7.0F, std::string("28.0")));
}

TEST(NumberRow, OutsideItsRangeFollowsItsRule) {
    struct Case {
        Outside rule;
        const char* text;
        float value;
        const char* left; ///< in the field
    };
    for (const auto& c :
         {Case{Outside::ignore, "150", 50, "150"}, Case{Outside::clamp, "150", 100, "150"},
          Case{Outside::rewrite, "150", 100, "100"}, Case{Outside::clamp, "", 50, ""},
          Case{Outside::clamp, "7x", 50, "7"}, Case{Outside::clamp, "999999999999", 100, "999999999999"}}) {
        float value = 50;
        std::int32_t whole = 50;
        Form form;
        form.rows().number("number", value).range(1, 100).format("%0.0f").outside(c.rule);
        form.rows().integer("whole", whole).range(1, 100).outside(c.rule);
        for (const auto* const key : {"number", "whole"}) {
            PlainField field;
            type(form, key, field, c.text);
            EXPECT_EQ(field.content, c.left) << key << " typed " << c.text;
        }
        EXPECT_EQ(std::pair(value, whole), std::pair(c.value, static_cast<std::int32_t>(c.value))) << c.text;
    }
}

TEST(NumberRow, AGravityIsReadWithoutItsPoint) {
    struct Case {
        const char* text;
        const char* left; ///< in the field
        float sg;
        bool is_told;
    };
    const Settings settings;
    for (const auto& c :
         {Case{"1044", "1.044", 1.044F, false}, Case{" 1999", "1.999", 1.999F, false},
          Case{"998", "0.998", 1, true}, Case{"104", "104", 2, true}, Case{"2000", "2000", 2, true},
          Case{"1044.", "1044.", 2, true}, Case{"1,05", "1.05", 1.05F, false}}) {
        float sg = 1.01F, plain = 1.01F, sugar = 1.01F;
        Form form;
        form.rows().sg("sg", sg, settings).range(1, 2).outside(Outside::clamp);
        form.rows().number("plain", plain).gravity().range(1, 2).outside(Outside::clamp);
        form.rows().number("sugar", sugar).range(1, 5000);
        for (const auto* const key : {"sg", "plain"}) {
            PlainField field;
            type(form, key, field, c.text);
            EXPECT_EQ(field.content, c.left) << key;
            EXPECT_EQ(field.position, static_cast<int>(field.content.size())) << "goes on behind it";
            EXPECT_EQ(dynamic_cast<EntryRow&>(form.row(key)).is_outside(c.text), c.is_told) << c.text;
        }
        EXPECT_FLOAT_EQ(sg, c.sg) << c.text;
        EXPECT_FLOAT_EQ(plain, c.sg) << c.text;
        PlainField field;
        EXPECT_TRUE(type(form, "sugar", field, "1044"));
        EXPECT_EQ(sugar, 1044) << "no gravity";
    }
}

TEST(NumberRow, AStepNeverLeavesTheRange) {
    const auto no_number = std::numeric_limits<float>::quiet_NaN();
    struct Case {
        float before;
        Spin direction;
        float after;
    };
    for (const auto& c : {Case{1.2F, Spin::down, 1}, Case{9.75F, Spin::up, 10}, Case{10, Spin::up, 10},
                          Case{14, Spin::down, 13.5F}, Case{no_number, Spin::up, 1.5F}}) {
        float value = c.before;
        Form form;
        auto& row = form.rows().number("number", value).range(1, 10).step(0.5F);
        PlainField field(content_of(form, "number"));
        form.spin(row, field, c.direction);
        EXPECT_EQ(value, c.after) << "from " << c.before;
        EXPECT_EQ(field.content, fixed(value, 2));
    }
    std::int32_t minutes = 7;
    Form form;
    auto& row = form.rows().integer("minutes", minutes).typed(5, 500).spun(1, 500, 5);
    for (const auto* const shown : {"2", "1", "1"}) {
        PlainField field(content_of(form, "minutes"));
        form.spin(row, field, Spin::down);
        EXPECT_EQ(field.content, shown);
    }
}

TEST(NumberRow, ReadsACommaAsAPointAndGuessesNoThousands) {
    for (const auto& [text, left, value] : {std::tuple{"4,5", "4.5", 4.5F},
                                            {"1,234", "1.234", 1.234F},
                                            {"1,2.", "1.2", 1.2F},
                                            {"1,234.5", "3.00", 3.0F},
                                            {"1.234,5", "3.00", 3.0F},
                                            {"1,2,3", "3.00", 3.0F}}) {
        float number = 3;
        Text<20> name;
        Form form;
        form.rows().number("number", number).range(0, 5000);
        form.rows().text("name", name);
        PlainField field;
        type(form, "number", field, text);
        EXPECT_EQ(std::pair(number, field.content), std::pair(value, std::string(left))) << text;
        type(form, "name", field, text);
        EXPECT_EQ(name.view(), text) << "words keep their commas";
    }
}

TEST(NumberRow, TellsItsRangeInTheUnitShown) {
    float size = 5, sum = 0, change = 0;
    std::int32_t degrees = 70;
    Form form;
    auto& litres =
        form.rows().number("size", size).shown_as(to_litres, to_gallons).range(1, 100000).format("%0.1f");
    EXPECT_EQ(litres.range_words(), "1 to 100000");
    EXPECT_TRUE(litres.is_outside("0.5") && litres.is_outside("100001"));
    EXPECT_FALSE(litres.is_outside("1") || litres.is_outside("") || litres.is_outside("."));
    EXPECT_EQ(form.rows().number("sum", sum).range_words(), "");
    EXPECT_EQ(form.rows().signed_number("change", change).range(-17.77F, 0.05F).range_words(),
              "-17.77 to 0.05");
    EXPECT_EQ(form.rows().temperature("degrees", degrees, TemperatureUnits::celsius).range_words(),
              "0 to 105");
    EXPECT_TRUE(dynamic_cast<EntryRow&>(form.row("degrees")).is_outside("106")) << "though held at once";
    const Settings settings;
    auto& sg = form.rows().sg("sg", sum, settings).range(1, 2).outside(Outside::clamp);
    PlainField field;
    type(form, "sg", field, "99999");
    EXPECT_EQ(sum, 2) << "also beyond what can be truncated";
    EXPECT_TRUE(sg.is_outside("99999"));
    type(form, "sg", field, "1.0481279");
    EXPECT_EQ(sum, 1.04812F) << "cut to the five decimals of its scale";
    type(form, "degrees", field, "300");
    EXPECT_EQ(degrees, 105) << "in the unit shown";
}

TEST(TextRow, RefusesWhatARecordCannotHold) {
    Text<8> name("Pils");
    Text<20> notes;
    Form form;
    form.rows().text("name", name).limit(5);
    form.rows().text("notes", notes).lines();
    PlainField field;
    EXPECT_TRUE(type(form, "name", field, "K\u00f6l"));
    EXPECT_EQ(name.view(), "K\xF6l");
    EXPECT_FALSE(type(form, "name", field, "K\u00f6l\u4e2d")) << "not in Windows-1252";
    EXPECT_FALSE(type(form, "name", field, "K\u00f6lsch"));
    EXPECT_EQ(field.content, "K\u00f6l");
    EXPECT_TRUE(type(form, "notes", field, "one\ntwo"));
    EXPECT_EQ(notes.view(), "one\r\ntwo");
    EXPECT_EQ(content_of(form, "notes"), "one\ntwo");
    EXPECT_FALSE(type(form, "notes", field, "one\ntwo")) << "an equal text is no edit";
}

TEST(ChoiceRow, KnowsItsCodes) {
    std::int32_t code = 2;
    Form form;
    auto& choice = form.rows().choice("kind", code, {"All Grain", "Extract", "Partial"}).codes({0, 2, 1});
    EXPECT_EQ(choice.chosen(), 1U);
    EXPECT_FALSE(form.choose(choice, 1)) << "chosen already";
    EXPECT_FALSE(form.choose(choice, 3)) << "no such option";
    EXPECT_TRUE(form.choose(choice, 2));
    EXPECT_EQ(code, 1);
    code = 9;
    EXPECT_EQ(choice.chosen(), std::nullopt);
}

TEST(Form, TellsOfEditsAndOfNothingElse) {
    float value = 1;
    bool checked = false;
    std::int32_t selected = -1, edits = 0;
    std::vector<const Row*> skipped;
    Form form;
    auto& number = form.rows().number("number", value).range(0, 9).step(1.0F).changed([&] { ++edits; });
    auto& check = form.rows().check("check", checked);
    auto& list = form.rows()
                     .list(
                         "list", {}, [] { return 3; }, [](auto, auto) { return ""; })
                     .selection(selected);
    form.show_again = [&](const Row* except) { skipped.push_back(except); };
    form.after_edit([&](Row& row) { edits += row.key == "check" ? 100 : 10; });
    PlainField field;
    type(form, "number", field, "1");  // as it was
    type(form, "number", field, "99"); // out of range
    EXPECT_FALSE(form.check(check, false));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(number.edited);
    type(form, "number", field, "5");
    form.spin(number, field, Spin::up);
    form.check(check, true);
    form.select(list, 2);
    EXPECT_EQ(edits, 122);
    EXPECT_TRUE(number.edited && check.edited);
    EXPECT_FALSE(list.edited) << "a selection changes no document";
    EXPECT_EQ(skipped, (std::vector<const Row*>{&number, nullptr, nullptr, &list}))
        << "only the field that is being typed in is left alone";
}

TEST(Form, CommitsAndRestores) {
    struct Record {
        float a = 1;
        bool operator==(const Record&) const = default;
    } live, copy, original;
    Form form;
    auto& grid = form.rows().grid("grid", {"Value"});
    grid.line("live").number("live", live.a).range(0, 9);
    grid.line("copy").number("copy", copy.a).range(0, 9);
    form.restore_on_cancel(live);
    form.commit_copy(copy, original);
    live.a = 0; // repaired as the form is made
    form.begin();
    EXPECT_FALSE(form.is_changed());
    PlainField field;
    type(form, "live", field, "2");
    EXPECT_TRUE(form.is_changed());
    type(form, "copy", field, "3");
    EXPECT_EQ(original.a, 1);
    form.cancel();
    EXPECT_EQ(std::pair(live.a, original.a), std::pair(1.0F, 1.0F));
    type(form, "live", field, "4");
    form.keep();
    EXPECT_FALSE(form.is_changed());
    type(form, "live", field, "5");
    form.cancel();
    EXPECT_EQ(live.a, 4) << "what was saved meanwhile stays";
    live.a = copy.a = 12;
    form.accept();
    EXPECT_EQ(original.a, 9) << "OK keeps what was edited in its range";
}

} // namespace
} // namespace wortlex
