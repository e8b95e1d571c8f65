#include "databases/hops.h"

#include "base/windows1252.h"
#include "databases/catalogues.h"
#include "databases/store.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

std::string hop_stock_head(const Settings& settings) {
    return std::string(hop_unit(settings).full) + "\nIn Stock";
}

std::string usage_text(const HopRecord& hop) {
    return std::string(usage_word(hop.usage));
}

std::string form_text(const HopRecord& hop) {
    return std::string(form_word(form(hop)));
}

std::vector<CatalogueColumn<HopRecord>> hop_columns(const Settings& settings) {
    using Hop = CatalogueBuilder<HopRecord>;
    return {Hop::text("Name", 24, &HopRecord::name).stretched(),
            Hop::text("Origin", 16, &HopRecord::origin),
            Hop::number("Alpha", 8, &HopRecord::alpha, "%7.2f"),
            Hop::words("Usage", 15, usage_text),
            Hop::stock(hop_stock_head(settings), &HopRecord::stock,
                       [&](float ounces) { return hop_to_shown(ounces, settings); }),
            Hop::words("Form", 8, form_text)};
}

constexpr CatalogueWords hop_words = {
    .import_filter = "Hop Import File (*.him)|*.him",
    .import_extension = "him",
    .sort_files = {"hsort1.srt", "hsort2.srt"},
    .data_file = hop_file,
    .full = "The Hop Database is Full!",
    .clone_warning = "Cloning may cause problems with inventory if either the Name, Origin or Form is not "
                     "changed to reflect a "
                     "unique entry. Additionally, cloning may cause problems with selecting items if either "
                     "the Name, Origin, Alpha "
                     "or Form is not changed to reflect a unique entry. You may change any of these items "
                     "after the cloning "
                     "process.\n\nDo you really want to clone this entry?",
    .replace_warning =
        "Replacing the item will NOT overwrite your existing inventory amounts or Alpha/Beta acid "
        "levels.\n\nDo you wish to replace this item?",
    .closing_question = "The hop database has been modified!\nDo you want to save the changes?",
    .maintenance_template = "HOPTYPEDIALOG",
    .entry_template = "HOPTYPEENTRYDIALOG",
    .inventory_template = "HOPINVENTORY",
    .pick_template = "HOPCHOOSEDIALOG"};

CatalogueFilter<HopRecord> only_hops(HopForm wanted, std::string label, const std::string& of) {
    return {std::move(label), "Hop Database Maintenance - " + of, "Hop Pick - " + of,
            [wanted](const HopRecord& hop) { return form(hop) == wanted; }};
}

// A new hop takes the form that the list is showing.
HopRecord new_hop(std::size_t filter) {
    HopRecord hop;
    if (filter == 2) set_form(hop, HopForm::plug);
    if (filter == 3) set_form(hop, HopForm::pellet);
    return hop;
}

// Alpha is kept to two decimals, cut after a nudge.
float rounded_alpha(float alpha) {
    return narrow(truncate((alpha + 0.0009) * 100) / 100.0);
}

void choose_storage(HopRecord& hop, std::int32_t code) {
    constexpr std::array factors = {15.0F, 25.0F, 50.0F};
    set_storage_class(hop, static_cast<StorageClass>(code));
    hop.storage_factor = factors.at(static_cast<std::size_t>(code) - 1);
}

void storage_rows(Rows& rows, HopRecord& hop) {
    rows.choice("storage",
                {[&hop] { return static_cast<std::int32_t>(storage_class(hop)); },
                 [&hop](std::int32_t code) { choose_storage(hop, code); }},
                {"Goo&d", "A&verage", "Poo&r"})
        .codes({1, 2, 3})
        .label("Storage:");
    rows.number("storage_factor", hop.storage_factor)
        .label("&Factor")
        .range(0.0F, 100.0F)
        .outside(Outside::clamp)
        .step(1.0F)
        .when_typed([&hop](float, float factor) { set_storage_class(hop, storage_class_of(factor)); })
        .when_spun([&hop](float from, float to) {
            if (const auto crossed = storage_class_crossed(from, to)) set_storage_class(hop, *crossed);
        });
}

void acid_rows(Rows& rows, HopRecord& hop) {
    const auto percent = [&rows](const char* key, const char* label, float& value) {
        rows.number(key, value).label(label).range(0.0F, 100.0F).outside(Outside::clamp).step(0.25F);
    };
    percent("alpha", "&Alpha Acids", hop.alpha);
    percent("beta", "&Beta Acids", hop.beta);
    percent("cohumulone", "Coh&umulone", hop.cohumulone);
    percent("myrcene", "&Myrcene", hop.myrcene);
    percent("humulene", "&Humulene", hop.humulene);
    percent("caryophyllene", "&Caryophyllene", hop.caryophyllene);
}

} // namespace

std::string_view usage_word(HopUsage usage) {
    switch (usage) {
    case HopUsage::bittering:
        return "Bittering";
    case HopUsage::aroma:
        return "Aroma";
    case HopUsage::both:
        return "Bittering/Aroma";
    default:
        return "";
    }
}

StorageClass storage_class_of(float factor) {
    if (factor < 25) return StorageClass::good;
    return factor < 50 ? StorageClass::average : StorageClass::poor;
}

std::optional<StorageClass> storage_class_crossed(float from, float to) {
    if (to > from) {
        if (from < 50 && to >= 50) return StorageClass::poor;
        if (from > 15 && from < 25 && to >= 25) return StorageClass::average;
        if (from < 15 && to >= 15) return StorageClass::good;
        return std::nullopt;
    }
    if (from >= 50 && to < 50) return StorageClass::average;
    if (from >= 25 && to < 25) return StorageClass::good;
    return std::nullopt;
}

void hop_entry_form(Form& form, HopRecord& hop) {
    auto& texts = form.group("Hop");
    texts.text("name", hop.name).label("&Name").limit(52).width(30);
    texts.text("origin", hop.origin).label("&Origin").limit(52).width(30);
    texts.choice("usage", hop.usage, {"B&ittering Hop", "Aroma Ho&p", "Both"}).codes({1, 2, 3}).named("Use");
    texts
        .check("noble",
               {[&hop] { return hop.noble != 0; }, [&hop](bool noble) { hop.noble = noble ? 1 : 0; }})
        .label("Nob&le");
    texts
        .choice("form",
                {[&hop] { return static_cast<std::int32_t>(wortlex::form(hop)); },
                 [&hop](std::int32_t code) { set_form(hop, static_cast<HopForm>(code)); }},
                {"&Whole", "Plu&g", "Pelle&t"})
        .named("Form");
    storage_rows(form.group("Storage"), hop);
    form.next_column();
    acid_rows(form.group("Percent"), hop);
    form.next_column();
    auto& notes = form.group("Notes");
    notes.text("tastes", hop.tastes).label("Ta&stes").limit(152).lines();
    notes.text("best_for", hop.best_for).label("Best For").limit(152).lines();
    notes.text("substitutes", hop.substitutes).label("Subsitutes").limit(152).lines();
    form.on_accept([&hop] { hop.alpha = rounded_alpha(hop.alpha); });
}

Catalogue<HopRecord> hop_catalogue(const Settings& settings, const std::string& data_folder) {
    Catalogue<HopRecord> hops;
    hops.words = hop_words;
    hops.columns = hop_columns(settings);
    hops.chains = {{0, 1, 2, 5}, {1, 0, 2}, {2, 0, 1}, {3, 0, 1, 2}, {4, 0, 1, 2}, {5, 0, 1, 2}};
    hops.identity = {0, 1, 2, 5};
    hops.filters = {{"&All", "Hop Database Maintenance - All Hops", "Hop Pick - All Hops", nullptr},
                    only_hops(HopForm::whole, "&Whole", "Whole Hops"),
                    only_hops(HopForm::plug, "Plu&g", "Plug Hops"),
                    only_hops(HopForm::pellet, "Pelle&t", "Pellet Hops")};
    hops.stock = {.amount = &HopRecord::stock,
                  .to_shown = [&settings](float ounces) { return hop_to_shown(ounces, settings); },
                  .from_shown = [&settings](float shown) { return shown_to_hop(shown, settings); },
                  .unit = [&settings](const HopRecord&) { return hop_list_word(settings); }};
    hops.new_record = new_hop;
    hops.entry_form = hop_entry_form;
    hops.pages = hop_pages(settings);
    hops.names = {stored_text(&HopRecord::name), stored_text(&HopRecord::origin)};
    hops.kind = [](const HopRecord& hop) { return form_word(form(hop)); };
    hops.keep = [](HopRecord& imported, const HopRecord& existing) {
        imported.stock = existing.stock;
        imported.alpha = existing.alpha;
        imported.beta = existing.beta;
    };
    hops.exists_text = [](const HopRecord& hop) {
        return utf8_from_windows1252(hop.name.view()) + "\nThis Hop type already exists in the database!";
    };
    hops.delete_name = [](const HopRecord& hop) { return utf8_from_windows1252(hop.name.view()); };
    hops.load = [data_folder](Database<HopRecord>& into, Prompts& prompts) {
        return LoadHops(data_folder, into, prompts);
    };
    hops.save = [data_folder](const Database<HopRecord>& from) { return SaveHops(data_folder, from); };
    return hops;
}

std::unique_ptr<RecordList<HopRecord>> hop_list(const ListSource& source, Database<HopRecord>& hops) {
    return std::make_unique<Store<HopRecord>>(hop_catalogue(source.settings, source.data_folder), source,
                                              hops);
}

} // namespace wortlex
