#include "databases/catalogues.h"
#include "databases/malt_yields.h"
#include "databases/malts.h"
#include "measures/potential.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

std::string_view type_word(MaltType type) {
    constexpr std::array<std::string_view, 5> words = {"", "Grain", "Extract", "Sugar", "Other"};
    const auto code = static_cast<std::size_t>(type);
    return code < words.size() ? words.at(code) : "";
}

// Extracts have a kind where malts have this.
bool must_be_mashed(const MaltRecord& malt) {
    const bool is_malt = malt.malt_type == MaltType::grain || malt.malt_type == MaltType::other;
    return is_malt && malt.must_mash != 0;
}

std::string potential_head(PotentialDisplay display) {
    switch (display) {
    case PotentialDisplay::points:
        return "(PTS)";
    case PotentialDisplay::hwe:
        return "(IOB-HWE)";
    case PotentialDisplay::plato:
        return "(PLATO)";
    case PotentialDisplay::percent_yield:
        return "(% YLD)";
    default:
        return "(SG)";
    }
}

// Percent yield is told as SG here, for the yields have lines of their own.
std::string potential_line(float sg, const Settings& settings) {
    const auto display = settings.potential_display;
    const auto line = [&](const std::string& unit, const std::string& pattern) {
        return formatted("Potential (" + unit + "):\t" + pattern, potential_to_shown_plain(sg, display));
    };
    if (display == PotentialDisplay::points) return line("Pts pppg", plato_pattern(0, settings));
    if (display == PotentialDisplay::hwe) return line("IOB - HWE", plato_pattern(0, settings));
    if (display == PotentialDisplay::plato) return line("Plato pppg", plato_pattern(0, settings));
    return line("SG pppg", sg_pattern(0, settings));
}

void add_yields(EntryLines& entry, const MaltRecord& malt) {
    const auto yields = yields_of(malt);
    entry.add(formatted("%% Moisture Content:\t%0.2f", malt.moisture));
    entry.blank();
    entry.add("\tDry Basis\tAs Is");
    entry.add(formatted("%% Yield - Fine Grind (FG):\t%0.2f", yields.fine_dry) +
              formatted("\t%0.2f", fine_as_is(yields)));
    entry.add(formatted("%% Yield - Coarse Grind (CG):\t%0.2f", coarse_dry(yields)) +
              formatted("\t%0.2f", coarse_as_is(yields)));
    entry.add(formatted("%% FG/CG Difference:\t%0.2f", yields.difference));
}

EntryLines malt_entry(const MaltRecord& malt, const Settings& settings) {
    EntryLines entry;
    entry.text("Name", malt.name);
    entry.word("Type", type_word(malt.malt_type));
    entry.text("Supplier", malt.supplier);
    entry.text("Origin", malt.origin);
    entry.word("Must Mash", must_be_mashed(malt) ? "Yes" : "No");
    entry.blank();
    entry.text("Use For", malt.use_for);
    entry.free_text("Comment:\t ", malt.comments.view());
    entry.blank();
    entry.add(potential_line(malt.potential, settings));
    entry.add("(dry basis fine grind)");
    entry.add(formatted(std::string(colour_unit(settings).usual) + " Color:\t%0.2f",
                        to_shown_colour(malt.colour, settings)));
    if (malt.malt_type == MaltType::grain || malt.malt_type == MaltType::other) add_yields(entry, malt);
    return entry;
}

std::vector<std::string> malt_row(const MaltRecord& malt, const Settings& settings) {
    return {
        std::string(type_word(malt.malt_type)), utf8_from_windows1252(malt.name.view()),
        potential_cell(malt, settings),         formatted("%5.0f", to_shown_colour(malt.colour, settings)),
        must_be_mashed(malt) ? "Yes" : "No",    stock_cell(grain_to_shown(malt.stock, settings))};
}

} // namespace

CataloguePages<MaltRecord> malt_pages(const Settings& settings) {
    const std::string weight = grain_unit(settings).head;
    return {
        .list_titles = {"Wortlex Malt List - All Malt", "Wortlex Malt List - Grain",
                        "Wortlex Malt List - Extract", "Wortlex Malt List - Sugar",
                        "Wortlex Malt List - Other"},
        .stops = {75, 355, 420, 485, 545},
        .heads = {std::string("\t\tGravity\t") + colour_unit(settings).usual + "\tMust\t" + weight + " In",
                  "Type\tName\t" + potential_head(settings.potential_display) + "\tColor\tMash?\tStock"},
        .row = [&settings](const MaltRecord& malt) { return malt_row(malt, settings); },
        .entry_title = "Wortlex Malt Detail",
        .entry = [&settings](const MaltRecord& malt) { return malt_entry(malt, settings); }};
}

} // namespace wortlex
