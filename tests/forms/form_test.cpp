#include "base/number.h"
#include "forms/form.h"
#include "support/field.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

bool type(Form& form, std::string_view key, PlainField& field, std::string text) {
    field.content = std::move(text);
    field.position = static_cast<int>(field.content.size());
    return form.type(dynamic_cast<EntryRow&>(form.row(key)), field);
}

std::string field_text(const Form& form, std::string_view key) {
    PlainField field;
    dynamic_cast<EntryRow&>(form.row(key)).show(field);
    return field.content;
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
    EXPECT_EQ(field_text(form, "size"), "20.0");
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
    for (const auto& c : {Case{Outside::ignore, "150", 50, "150"}, Case{Outside::clamp, "150", 100, "150"},
                          Case{Outside::rewrite, "150", 100, "100"}, Case{Outside::clamp, "", 50, ""},
                          Case{Outside::clamp, "7x", 50, "7"}}) {
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

TEST(NumberRow, KeepsToItsScale) {
    Settings settings;
    settings.sg_precision = 1;
    float sg = 1.0481234F, signed_value = 1;
    std::int32_t degrees = 100;
    Form form;
    form.rows().sg("sg", sg, settings).range(1, 2).step(0.001F);
    form.rows().signed_number("signed", signed_value).range(-10, 10);
    form.rows().temperature("degrees", degrees, TemperatureUnits::celsius);
    PlainField field;
    EXPECT_FALSE(type(form, "sg", field, "3.0"));
    EXPECT_EQ(sg, 1.04812F) << "the scale cuts even where nothing was taken";
    EXPECT_EQ(field_text(form, "sg"), "1.0481");
    EXPECT_TRUE(type(form, "signed", field, "-2.5"));
    EXPECT_EQ(signed_value, -2.5F);
    EXPECT_TRUE(type(form, "degrees", field, "300"));
    EXPECT_EQ(std::pair(degrees, field.content), std::pair(105, std::string("105")));
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
    EXPECT_EQ(field_text(form, "notes"), "one\ntwo");
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
    } live, copy, original;
    Form form;
    auto& grid = form.rows().grid("grid", {"Value"});
    grid.line("live").number("live", live.a).range(0, 9);
    grid.line("copy").number("copy", copy.a).range(0, 9);
    form.restore_on_cancel(live);
    form.commit_copy(copy, original);
    PlainField field;
    type(form, "live", field, "2");
    type(form, "copy", field, "3");
    EXPECT_EQ(original.a, 1);
    form.cancel();
    EXPECT_EQ(std::pair(live.a, original.a), std::pair(1.0F, 1.0F));
    form.accept();
    EXPECT_EQ(original.a, 3);
}

} // namespace
} // namespace wortlex
