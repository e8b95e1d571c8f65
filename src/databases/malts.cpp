#include "databases/malts.h"

#include "databases/catalogues.h"
#include "databases/store.h"
#include "measures/potential.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

std::string yield_name(YieldType type) {
    switch (type) {
    case YieldType::fine_as_is:
        return "FAI";
    case YieldType::coarse_dry_basis:
        return "CDB";
    case YieldType::coarse_as_is:
        return "CAI";
    default:
        return "FDB";
    }
}

std::string potential_unit(const Settings& settings) {
    switch (settings.potential_display) {
    case PotentialDisplay::points:
        return "Pts pppg";
    case PotentialDisplay::hwe:
        return "IOB - HWE";
    case PotentialDisplay::plato:
        return "Plato pppg";
    case PotentialDisplay::percent_yield:
        return "% Yield - " + yield_name(settings.yield_type);
    default:
        return "SG pppg";
    }
}

// A number sorted as it is stored, and shown as the settings ask.
CatalogueColumn<MaltRecord> figure(std::string caption, int width, float MaltRecord::*field,
                                   CatalogueBuilder<MaltRecord>::ToText cell) {
    return {.caption = std::move(caption),
            .width = width,
            .is_number = true,
            .cell = std::move(cell),
            .key = CatalogueBuilder<MaltRecord>::ToNumber(
                [field](const MaltRecord& malt) { return malt.*field; })};
}

std::string malt_stock_head(const Settings& settings) {
    const auto& weight = grain_unit(settings);
    return std::string(is_american(settings.weight_units) ? weight.dotted : weight.head) + "\nIn Stock";
}

std::vector<CatalogueColumn<MaltRecord>> malt_columns(const Settings& settings) {
    using Malt = CatalogueBuilder<MaltRecord>;
    const std::string colour = colour_unit(settings).usual;
    return {Malt::text("Name", 26, &MaltRecord::name).stretched(),
            Malt::text("Origin", 14, &MaltRecord::origin),
            figure("Potential\n(" + potential_unit(settings) + ")", 14, &MaltRecord::potential,
                   [&settings](const MaltRecord& malt) { return potential_cell(malt, settings); }),
            figure(colour + "\nColor", 7, &MaltRecord::colour,
                   [&settings](const MaltRecord& malt) {
                       return formatted("%5.0f", to_shown_colour(malt.colour, settings));
                   }),
            Malt::stock(malt_stock_head(settings), &MaltRecord::stock,
                        [&settings](float pounds) { return grain_to_shown(pounds, settings); })};
}

constexpr CatalogueWords malt_words = {
    .import_filter = "Malt Import File (*.him)|*.mim",
    .import_extension = "mim",
    .sort_files = {"msort1.srt", "msort2.srt"},
    .data_file = malt_file,
    .full = "The Malt Database is Full!",
    .clone_warning =
        "Cloning may cause problems with inventory and/or selecting if either the Name, Origin, Color or "
        "Gravity is not changed to reflect a unique entry. You may change any of these items after the "
        "cloning process.\n\nDo you really want to clone this entry?",
    .replace_warning = "Replacing the item will NOT overwrite your existing inventory amounts, Gravity or "
                       "Color settings.\n\nDo you wish to replace this item?",
    .closing_question = "The malt database has been modified!\nDo you want to save the changes?",
    .maintenance_template = "MALTSTYPEDIALOG",
    .entry_template = "MALTTYPEENTRYDIALOG",
    .inventory_template = "MALTINVENTORY",
    .pick_template = "MALTCHOOSEDIALOG"};

CatalogueFilter<MaltRecord> only_malts(MaltType wanted, std::string label, const std::string& of) {
    return {std::move(label), "Malt Database Maintenance - " + of, "Malt Pick - " + of,
            [wanted](const MaltRecord& malt) { return malt.malt_type == wanted; }};
}

MaltRecord new_malt(std::size_t /*filter*/) {
    MaltRecord malt;
    malt.malt_type = MaltType::grain;
    malt.must_mash = 1;
    malt.potential = 1.03F;
    malt.max_in_batch = 100;
    return malt;
}

} // namespace

std::string potential_cell(const MaltRecord& malt, const Settings& settings) {
    const PotentialTraits traits{malt.moisture, malt.coarse_yield, is_mashed(malt)};
    const bool is_sg = settings.potential_display == PotentialDisplay::sg;
    return formatted(is_sg ? sg_pattern(7, settings) : plato_pattern(7, settings),
                     potential_to_shown(malt.potential, traits, settings));
}

Catalogue<MaltRecord> malt_catalogue(const Settings& settings, const std::string& data_folder) {
    Catalogue<MaltRecord> malts;
    malts.words = malt_words;
    malts.columns = malt_columns(settings);
    malts.chains = {{0, 1}, {1, 0}, {2, 0, 1}, {3, 0, 1}, {4, 0, 1}};
    malts.identity = {0, 1, 2, 3};
    malts.filters = {{"&All", "Malt Database Maintenance - All Malt", "Malt Pick - All Malt", nullptr},
                     only_malts(MaltType::grain, "&Grain", "Grain"),
                     only_malts(MaltType::extract, "E&xtract", "Extract"),
                     only_malts(MaltType::sugar, "S&ugar", "Sugar"),
                     only_malts(MaltType::other, "O&ther", "Other")};
    malts.stock = {.amount = &MaltRecord::stock,
                   .to_shown = [&settings](float pounds) { return grain_to_shown(pounds, settings); },
                   .from_shown = [&settings](float shown) { return shown_to_grain(shown, settings); },
                   .unit = [&settings](const MaltRecord&) { return grain_unit(settings).usual; }};
    malts.new_record = new_malt;
    malts.entry_form = [&settings](Form& form, MaltRecord& malt) { malt_entry_form(form, malt, settings); };
    malts.pages = malt_pages(settings);
    malts.names = {stored_text(&MaltRecord::name), stored_text(&MaltRecord::origin)};
    malts.keep = [](MaltRecord& imported, const MaltRecord& existing) {
        imported.stock = existing.stock;
        imported.potential = existing.potential;
        imported.colour = existing.colour;
    };
    malts.exists_text = [](const MaltRecord& malt) {
        return utf8_from_windows1252(malt.name.view()) + " " + utf8_from_windows1252(malt.origin.view()) +
               "\nThis Malt type already exists in the database!";
    };
    malts.delete_name = [](const MaltRecord& malt) { return utf8_from_windows1252(malt.name.view()); };
    malts.load = [data_folder](Database<MaltRecord>& into, Prompts& prompts) {
        return LoadMalts(data_folder, into, prompts);
    };
    malts.save = [data_folder](const Database<MaltRecord>& from) { return SaveMalts(data_folder, from); };
    return malts;
}

std::unique_ptr<RecordList<MaltRecord>> malt_list(const ListSource& source, Database<MaltRecord>& malts) {
    return std::make_unique<Store<MaltRecord>>(malt_catalogue(source.settings, source.data_folder), source,
                                               malts);
}

} // namespace wortlex
