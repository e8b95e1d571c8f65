#include "desktop/form_dialog.h"
#include "support/qt_keys.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>

#include <array>

namespace wortlex {
namespace {

// What a reader tells of a list that has the focus.
std::string focused_cell(QWidget& list) {
    auto* const table = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            if (auto* const cell = table->cellAt(row, column); cell->state().focused)
                return cell->text(QAccessible::Name).toStdString();
    return {};
}

struct Bench {
    SystemSettings settings = WriteDefaultSettings();
    ToolPositions positions;
    NoticeBoard notices;
    Places places{positions, settings, notices};
};

TEST(ReadAloud, TheFramedCellTellsWhoseItIsAndWhatAndLettersFindByName) {
    const std::array<std::array<const char*, 4>, 2> malts = {
        {{"Pale", "UK", "  4.00", " 80.0"}, {"Rye", "", "  1.00", " 20.0"}}};
    std::int32_t selected = 0;
    Form form;
    form.rows()
        .list(
            "malts", {{.caption = "Malt Name"}, {.caption = "Origin"}, {.caption = "kg"}, {.caption = "%"}},
            [] { return 2; }, [&](std::size_t row, std::size_t column) { return malts.at(row).at(column); })
        .label("Malts")
        .selection(selected)
        .cells_typed({.columns = {2, 3},
                      .text = [](std::size_t, std::size_t) { return "1"; },
                      .fault = [](std::size_t, std::size_t, const std::string&) { return "no number"; },
                      .take = [](std::size_t, std::size_t, const std::string&) {}});
    Bench desk;
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& list = dialog.widgets().field("malts");
    EXPECT_EQ(focused_cell(list), "Pale, kg 4.00");
    QTest::keyClick(&list, Qt::Key_Right);
    EXPECT_EQ(focused_cell(list), "Pale, % 80.0");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(focused_cell(list), "Rye, % 20.0");
    QTest::keyClick(&list, Qt::Key_P);
    EXPECT_EQ(std::pair(focused_cell(list), selected), std::pair(std::string("Pale, % 80.0"), 0));
    auto* const cells = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    EXPECT_EQ(cells->cellAt(0, 1)->text(QAccessible::Name), "Origin UK");
}

TEST(ReadAloud, AFieldWithArrowsIsANumberWithItsUnit) {
    float size = 5;
    Form form;
    form.rows().number("size", size).label("&Size").unit("(Liters)").range(1, 100).step(0.5F);
    Bench desk;
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    auto* const field = QAccessible::queryAccessibleInterface(&dialog.widgets().field("size"));
    EXPECT_EQ(field->text(QAccessible::Name), "Size, Liters");
    EXPECT_EQ(field->relations(QAccessible::Label).size(), 2) << "words before it and behind";
    auto* const number = field->valueInterface();
    EXPECT_EQ(number->currentValue().toDouble(), 5);
    EXPECT_EQ(std::pair(number->minimumValue().toDouble(), number->maximumValue().toDouble()),
              std::pair(1.0, 100.0));
    number->setCurrentValue(7);
    EXPECT_EQ(size, 7) << "as if it were typed";
}

TEST(ReadAloud, WhatIsRewrittenAsItIsTypedEndsThere) {
    float gravity = 1;
    Form form;
    form.rows().number("gravity", gravity).label("&SG").gravity().range(1, 5).step(0.001F);
    Bench desk;
    FormDialog dialog(form, {"ABOUTDIALOG"}, desk.places, nullptr);
    auto& field = dialog.widgets().field("gravity");
    auto* const line = field.findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("1044"));
    EXPECT_EQ(std::pair(line->text().toStdString(), gravity), std::pair(std::string("1.044"), 1.044F));
}

} // namespace
} // namespace wortlex
