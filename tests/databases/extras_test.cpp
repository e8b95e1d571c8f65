#include "databases/extras.h"
#include "support/form_user.h"
#include "support/listed.h"

#include <gtest/gtest.h>

namespace wortlex {
namespace {

ExtraRecord extra(std::string_view name, ExtraType type, std::string_view use = "") {
    return {.name = Text<55>(name), .extra_type = type, .use = Text<255>(use), .comment = {}};
}

TEST(ExtraList, NamesItsKindsAndSortsByThem) {
    const std::vector<std::pair<ExtraType, std::string>> kinds = {
        {ExtraType::spice, "Spice"},   {ExtraType::fruit, "Fruit"}, {ExtraType::coffee, "Coffee"},
        {ExtraType::fining, "Fining"}, {ExtraType::other, "Other"}, {ExtraType::herb, "Herb"}};
    std::vector<ExtraRecord> one_of_each;
    for (const auto& [kind, word] : kinds) one_of_each.push_back(extra(word, kind));
    Listed each(SaveExtras, extra_list, one_of_each);
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const auto& word = kinds[i].second;
        each->choose_filter(static_cast<std::int32_t>(i) + 1, each.prompts);
        EXPECT_EQ(each.column(0) + each.column(1), word + "|" + word + "|");
        EXPECT_NE(each->caption().find(word), std::string::npos) << each->caption();
    }
    const auto entry = each->new_entry(each.prompts);
    each.prompts.expect_tell("An entry needs a name.", Icon::warning);
    EXPECT_FALSE(entry->form.accept());
    type(entry->form, "name", "Rose");
    EXPECT_TRUE(entry->form.accept());
    EXPECT_EQ(each.column(1), "Herb|Other|") << "whatever the list shows";

    auto strange = extra("c", static_cast<ExtraType>(9), "All");
    strange.amount_unit = static_cast<AmountUnit>(9);
    Listed extras(SaveExtras, extra_list,
                  {extra("b", ExtraType::spice, "Wit"), extra("A", ExtraType::spice, "Wit"), strange,
                   extra("a", ExtraType::herb, "Wit")});
    extras->click(1);
    EXPECT_EQ(extras.column(0) + extras->cell(0, 1), "c|a|A|b|") << "nothing, Herb, Spice";
    EXPECT_NE(extras->inventory(extras.prompts), nullptr) << "without a word for its unit";
    extras->click(2);
    EXPECT_EQ(extras.column(0), "c|a|A|b|") << "by use, then name, whatever the case";
    extras.import(extra("b", ExtraType::herb), extra_layout, "", "");
    EXPECT_EQ(extras->shown_count(), 5U) << "one name, two types";
    extras.import(extra("b", ExtraType::spice), extra_layout,
                  "b \nThis extra type already exists in the database!",
                  "Replacing the item will NOT overwrite your existing inventory amounts.\n\nDo you wish to "
                  "replace this item?");
}

TEST(ExtraEntry, CutsTextsThatAreTooLongOnlyOnAccept) {
    auto record = extra("Coriander", ExtraType::spice, std::string(60, 'u'));
    Form form;
    extra_entry_form(form, record);
    type(form, "time", "500");
    EXPECT_EQ(std::pair(record.time, record.use.view().size()), std::pair(200, 60UL));
    form.accept();
    EXPECT_EQ(record.use.view(), std::string(54, 'u'));
}

} // namespace
} // namespace wortlex
