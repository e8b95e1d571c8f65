#include "databases/extras.h"
#include "databases/sorting.h"
#include "support/field.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

ExtraRecord extra(std::string_view name, ExtraType type, std::string_view use = "") {
    return {.name = Text<55>(name), .extra_type = type, .use = Text<255>(use), .comment = {}};
}

TEST(ExtraList, NamesItsKindsAndSortsByThem) {
    const auto catalogue = extra_catalogue(Settings(), "");
    const std::vector<std::pair<ExtraType, std::string>> kinds = {
        {ExtraType::spice, "Spice"},   {ExtraType::fruit, "Fruit"}, {ExtraType::coffee, "Coffee"},
        {ExtraType::fining, "Fining"}, {ExtraType::other, "Other"}, {ExtraType::herb, "Herb"}};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const auto& [kind, word] = kinds[i];
        const auto& filter = catalogue.filters[i + 1];
        EXPECT_EQ(catalogue.columns[1].cell(extra("", kind)), word);
        EXPECT_TRUE(filter.passes(extra("", kind))) << word;
        EXPECT_NE(filter.pick_caption.find(word), std::string::npos) << filter.pick_caption;
    }
    auto strange = extra("", static_cast<ExtraType>(9));
    strange.amount_unit = static_cast<AmountUnit>(9);
    EXPECT_EQ(catalogue.columns[1].cell(strange) + catalogue.stock.unit(strange), "");
    EXPECT_EQ(catalogue.new_record(1).extra_type, ExtraType::other) << "whatever the list shows";
    const std::vector extras = {extra("b", ExtraType::spice, "Wit"), extra("A", ExtraType::spice, "Wit"),
                                extra("c", ExtraType::other, "All"), extra("a", ExtraType::herb, "Wit")};
    const auto order = [&](std::size_t column) {
        auto sorted = extras;
        sort_by<ExtraRecord>(sorted, catalogue, column, std::vector<std::uint8_t>(4, 0));
        std::string names;
        for (const auto& record : sorted) names.append(record.name.view());
        return names;
    };
    EXPECT_EQ(order(1), "acAb") << "Herb, Other, Spice";
    EXPECT_EQ(order(2), "cAab") << "by use, then name";
    EXPECT_FALSE(catalogue.is_same(extra("a", ExtraType::spice), extra("a", ExtraType::herb)))
        << "one name, two types";
    EXPECT_EQ(catalogue.exists_text(extras[0]), "b \nThis extra type already exists in the database!");
}

TEST(ExtraEntry, CutsTextsThatAreTooLongOnlyOnAccept) {
    auto record = extra("Coriander", ExtraType::spice, std::string(60, 'u'));
    Form form;
    extra_entry_form(form, record);
    PlainField field("500");
    form.type(dynamic_cast<EntryRow&>(form.row("time")), field);
    EXPECT_EQ(std::pair(record.time, record.use.view().size()), std::pair(200, 60UL));
    form.accept();
    EXPECT_EQ(record.use.view(), std::string(54, 'u'));
}

} // namespace
} // namespace wortlex
