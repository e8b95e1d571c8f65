#include "databases/catalogues.h"
#include "databases/hops.h"
#include "measures/unit_words.h"

namespace wortlex {
namespace {

std::string_view use_word(HopUsage usage) {
    return usage == HopUsage::both ? "Bittering and Aroma" : usage_word(usage);
}

std::string_view storage_word(StorageClass storage) {
    switch (storage) {
    case StorageClass::good:
        return "Good";
    case StorageClass::average:
        return "Average";
    case StorageClass::poor:
        return "Poor";
    default:
        return "";
    }
}

// The stock is printed as it is stored, whatever the units.
EntryLines hop_entry(const HopRecord& hop) {
    EntryLines entry;
    entry.text("Name", hop.name);
    entry.word("Type", use_word(hop.usage));
    entry.word("Noble", hop.noble != 0 ? "Yes" : "No");
    entry.text("Origin", hop.origin);
    entry.blank();
    entry.text("Best For", hop.best_for);
    entry.text("Tastes", hop.tastes);
    entry.text("Subsitutes", hop.substitutes);
    entry.blank();
    entry.word("Storage Viability", storage_word(storage_class(hop)));
    entry.blank();
    entry.add(formatted("Alpha Acids:\t%0.2f", hop.alpha));
    entry.add(formatted("Beta Acids:\t%0.2f", hop.beta));
    entry.blank();
    entry.add(formatted("Humulene:\t%0.2f", hop.humulene));
    entry.add(formatted("Caryophyllene:\t%0.2f", hop.caryophyllene));
    entry.add(formatted("Cohumulone:\t%0.2f", hop.cohumulone));
    entry.add(formatted("Myrcene:\t%0.2f", hop.myrcene));
    entry.blank();
    entry.add(formatted("Amount In Stock:\t%0.2f Ounces", hop.stock));
    return entry;
}

} // namespace

CataloguePages<HopRecord> hop_pages(const Settings& settings) {
    return {.list_titles = {"Wortlex Hop List - All Hops", "Wortlex Hop List - Whole Hops",
                            "Wortlex Hop List - Plug Hops", "Wortlex Hop List - Pellet Hops"},
            .stops = {245, 385, 450, 535, 600},
            .heads = {"\t\t\tPrimary\t" + std::string(hop_unit(settings).usual) + " In",
                      "Name\tOrigin\tAlpha\tUse\tStock\tForm"},
            .row = nullptr,
            .entry_title = "Wortlex Hop Detail",
            .entry = hop_entry};
}

} // namespace wortlex
