#include "databases/malt_yields.h"
#include "databases/malts.h"
#include "measures/potential.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr const char* blank_text = " "; // no text at all would leave the figure standing

bool is_syrup_or_sugar(const MaltRecord& malt) {
    return malt.malt_type == MaltType::extract || malt.malt_type == MaltType::sugar;
}

// Label and options of the row that is about the mash, or the kind of an extract.
Live<std::string> mash_word(const MaltRecord& malt, const char* of_malt, const char* of_extract) {
    return [&malt, of_malt, of_extract] {
        return std::string(malt.malt_type == MaltType::extract ? of_extract : of_malt);
    };
}

// The two figures that mean something else for each type.
Live<std::string> third_label(const MaltRecord& malt) {
    return [&malt] { return std::string(is_syrup_or_sugar(malt) ? "% Nit&rogen" : "% P&rotein"); };
}

Live<std::string> fourth_label(const MaltRecord& malt) {
    return [&malt]() -> std::string {
        if (malt.malt_type == MaltType::extract) return "% Hop Ra&te";
        return malt.malt_type == MaltType::sugar ? "% Rd&x Sugar" : "% &TSN";
    };
}

std::string colour_label(const Settings& settings) {
    if (settings.color_units == ColorUnits::srm) return "SRM &Color (Lovibond)";
    return settings.color_units == ColorUnits::ebc_new ? "EBC &Color (New Method)"
                                                       : "EBC &Color (Traditional)";
}

// Percent yield is shown as SG here, for the yields have rows of their own.
std::string potential_label(PotentialDisplay display) {
    const std::string label = "Gravity &Potential ";
    if (display == PotentialDisplay::points) return label + "as Points pppg";
    if (display == PotentialDisplay::hwe) return label + "as IOB-HWE (L/kg)";
    return label + (display == PotentialDisplay::plato ? "as Plato pppg" : "as SG pppg");
}

float highest_potential(PotentialDisplay display) {
    if (display == PotentialDisplay::hwe) return 1000;
    return display == PotentialDisplay::plato ? 13 : 100;
}

void malt_rows(Rows& rows, MaltRecord& malt) {
    rows.text("name", malt.name).label("&Name").limit(52).width(30);
    rows.text("supplier", malt.supplier).label("&Supplier").limit(52).width(30);
    rows.text("origin", malt.origin).label("Or&igin").limit(52).width(30);
    rows.choice("malt_type", malt.malt_type, {"&Grain", "&Extract", "S&ugar", "&Other"}).codes({1, 2, 3, 4});
    rows.choice("must_mash", malt.must_mash, {mash_word(malt, "&Yes", "&LME"), mash_word(malt, "No", "DME")})
        .codes({1, 0})
        .label(mash_word(malt, "Must Mash?", "Extract Type:"))
        .visible([&malt] { return malt.malt_type != MaltType::sugar; });
}

void analysis_rows(Rows& rows, MaltRecord& malt, const Settings& settings) {
    const auto number = [&rows](const char* key, float& value, const Live<std::string>& label,
                                float highest) {
        rows.number(key, value).label(label).range(0.0F, highest).outside(Outside::clamp).step(0.25F);
    };
    rows.number("colour", malt.colour)
        .label(colour_label(settings))
        .shown_as([&settings](float lovibond) { return to_shown_colour(lovibond, settings); },
                  [&settings](float shown) { return from_shown_colour(shown, settings); })
        .range(0.0F, 2500.0F)
        .outside(Outside::clamp)
        .step(1.0F);
    number("max_in_batch", malt.max_in_batch, "Max In &Batch", 100);
    number("diastatic_power", malt.diastatic_power, "&Diast Power", 500);
    number("protein", malt.protein, third_label(malt), 100);
    number("soluble_nitrogen", malt.soluble_nitrogen, fourth_label(malt), 100);
}

using Yields = std::shared_ptr<MaltYields>;

Binding<float> linked(const Yields& yields, float (*get)(const MaltYields&),
                      void (*set)(MaltYields&, float)) {
    return {[yields, get] { return get(*yields); }, [yields, set](float percent) { set(*yields, percent); }};
}

void potential_row(Rows& rows, const Yields& yields, const Settings& settings) {
    const auto display = settings.potential_display;
    const bool is_sg = display == PotentialDisplay::sg || display == PotentialDisplay::percent_yield;
    const auto potential = linked(
        yields, [](const MaltYields& from) { return from.potential; }, set_potential);
    (is_sg ? rows.sg("potential", potential, settings) : rows.plato("potential", potential, settings))
        .label(potential_label(display))
        .shown_as([display](float sg) { return potential_to_shown_plain(sg, display); },
                  [display](float shown) { return potential_from_shown_plain(shown, display); })
        .range(0.0F, highest_potential(display))
        .outside(Outside::clamp);
}

void yield_grid(Rows& rows, const Yields& yields, const std::function<bool()>& has_grind) {
    auto& grid = rows.grid("yields", {"Dry Basis", "As Is"});
    const auto percent = [](Rows& line, const char* key, const Binding<float>& value) -> NumberRow& {
        return line.number(key, value).range(1.0F, 100.0F).outside(Outside::clamp).when_disabled(blank_text);
    };
    auto& fine = grid.line("% Yield - &Fine Grind (FG)");
    percent(fine, "fine_dry",
            linked(
                yields, [](const MaltYields& from) { return from.fine_dry; }, set_fine_dry));
    percent(fine, "fine_as_is", linked(yields, fine_as_is, set_fine_as_is)).enabled(has_grind);
    auto& coarse = grid.line("% Yield - Co&arse Grind (CG)");
    percent(coarse, "coarse_dry", linked(yields, coarse_dry, set_coarse_dry)).enabled(has_grind);
    percent(coarse, "coarse_as_is", linked(yields, coarse_as_is, set_coarse_as_is)).enabled(has_grind);
}

void yield_rows(Rows& rows, const MaltRecord& malt, const Yields& yields, const Settings& settings) {
    const auto has_grind = [&malt] { return !is_syrup_or_sugar(malt); };
    potential_row(rows, yields, settings);
    yield_grid(rows, yields, has_grind);
    rows.number("difference", yields->difference)
        .label("% FG/CG Difference")
        .range(0.0F, 10.0F)
        .outside(Outside::clamp)
        .enabled(has_grind)
        .when_disabled(blank_text);
    rows.number("moisture", yields->moisture)
        .label("% &Moisture Content")
        .range(0.0F, 10.0F)
        .outside(Outside::clamp)
        .step(0.25F)
        .enabled(has_grind)
        .when_disabled(blank_text);
}

} // namespace

void malt_entry_form(Form& form, MaltRecord& malt, const Settings& settings) {
    const auto yields = std::make_shared<MaltYields>(yields_of(malt));
    malt_rows(form.group("Malt"), malt);
    analysis_rows(form.group("Analysis"), malt, settings);
    form.next_column();
    yield_rows(form.group("Extract"), malt, yields, settings);
    auto& notes = form.group("Notes");
    notes.text("use_for", malt.use_for).label("Use For").limit(152).lines();
    notes.text("comments", malt.comments).label("Comments").limit(152).lines();
    form.after_edit([yields, &malt](Row&) { store_yields(*yields, malt); }); // Print shows the record
    form.on_accept([yields, &malt] { store_yields(*yields, malt); });
}

} // namespace wortlex
