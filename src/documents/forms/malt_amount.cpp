#include "documents/forms/malt_amount.h"

#include "base/windows1252.h"
#include "databases/malt_yields.h"
#include "documents/forms/amount_row.h"
#include "documents/work/recipe_lines.h"
#include "measures/potential.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr std::string_view not_applicable = "N/A";

bool is_syrup_or_sugar(const MaltRecord& malt) {
    return malt.malt_type == MaltType::extract || malt.malt_type == MaltType::sugar;
}

std::string colour_label(const Settings& settings) {
    return settings.color_units == ColorUnits::srm ? "&Color L~:" : "&Color EBC:";
}

void line_rows(Rows& rows, MaltUse& line, const Settings& settings) {
    rows.shown("name", [&line] { return utf8_from_windows1252(line.record.name.view()); })
        .label("Name:")
        .width(30);
    const bool american = is_american(settings.weight_units);
    const double small_per_pound = american ? 16.0 : grams_per_pound;
    amount_row(rows, "amount", line.amount,
               {.label = american ? "&Lbs:" : "&kg:",
                .per_stored = american ? 1.0 : grams_per_pound / 1000,
                .highest = most_malt_weight,
                .step = grain_to_shown(settings.grain_increment, settings)});
    amount_row(rows, "small_amount", line.amount,
               {.label = american ? "&Oz:" : "&g:",
                .per_stored = small_per_pound,
                .highest = most_malt_weight,
                .step = 1.0F});
    rows.number("colour", line.record.colour)
        .label(colour_label(settings))
        .shown_as([&settings](float lovibond) { return to_shown_colour(lovibond, settings); },
                  [&settings](float shown) { return from_shown_colour(shown, settings); })
        .range(0.0F, 2500.0F)
        .step(1.0F)
        .outside(Outside::clamp);
}

// How potentials are entered here. Percent yield is shown as SG, for the yields have fields of their own.
struct PotentialLook {
    const char* label;
    bool is_sg;
    float highest;
    float step;
};

PotentialLook potential_look(PotentialDisplay display) {
    switch (display) {
    case PotentialDisplay::points:
        return {"Gra&vity (Pts pppg)", false, 100, 1};
    case PotentialDisplay::hwe:
        return {"Gra&vity (IOB - HWE)", false, 1000, 1};
    case PotentialDisplay::plato:
        return {"Gra&vity (Plato pppg)", false, 13, 1};
    default:
        return {"Gra&vity (SG pppg)", true, 100, 0.001F};
    }
}

// The yields of a line, and the fields that change them.
class YieldRows {
public:
    YieldRows(Rows& rows, MaltUse& line, const Settings& settings)
        : rows_(rows), settings_(settings), malt_(line.record), entries_(malt_entries(malt_, settings)),
          yields_(std::make_shared<MaltYields>(yields_of(malt_))) {}

    void add() {
        potential();
        grid();
        percent(rows_, "difference",
                linked([](const MaltYields& from) { return from.difference; },
                       [](MaltYields& to, float value) { to.difference = value; }),
                {0.0F, 10.0F}, entries_.coarse)
            .label("Coarse/Fine &Difference");
        percent(rows_, "moisture",
                linked([](const MaltYields& from) { return from.moisture; },
                       [](MaltYields& to, float value) { to.moisture = value; }),
                {0.0F, 10.0F}, entries_.moisture)
            .label("% &Moisture Content");
        if (!entries_.note.empty()) rows_.note("note", std::string(entries_.note));
    }

private:
    Binding<float> linked(float (*get)(const MaltYields&), void (*set)(MaltYields&, float)) const {
        return {[yields = yields_, get] { return get(*yields); },
                [yields = yields_, set, &malt = malt_](float value) {
                    set(*yields, value);
                    store_yields(*yields, malt);
                }};
    }

    static NumberRow& percent(Rows& rows, const char* key, const Binding<float>& value, const Range& range,
                              bool enabled) {
        return rows.number(key, value)
            .range(range.low, range.high)
            .step(0.25F)
            .outside(Outside::clamp)
            .enabled(enabled)
            .when_disabled(not_applicable);
    }

    void potential() {
        const auto display = settings_.potential_display;
        const auto look = potential_look(display);
        const auto sg = linked([](const MaltYields& from) { return from.potential; }, set_potential);
        (look.is_sg ? rows_.sg("potential", sg, settings_) : rows_.plato("potential", sg, settings_))
            .label(look.label)
            .unit("(dry basis fine)")
            .shown_as([display](float stored) { return potential_to_shown_plain(stored, display); },
                      [display](float shown) { return potential_from_shown_plain(shown, display); })
            .range(0.0F, look.highest)
            .step(look.step)
            .outside(Outside::clamp)
            .enabled(entries_.potential)
            .when_disabled(not_applicable);
    }

    void grid() {
        constexpr Range yield{1.0F, 100.0F};
        auto& grid = rows_.grid("yields", {"Dry Basis", "As Is"});
        auto& fine = grid.line("% Yield - &Fine Grind");
        percent(fine, "fine_dry", linked([](const MaltYields& from) { return from.fine_dry; }, set_fine_dry),
                yield, entries_.potential);
        percent(fine, "fine_as_is", linked(fine_as_is, set_fine_as_is), yield, entries_.moisture);
        auto& coarse = grid.line("% Yield - Coa&rse Grind");
        percent(coarse, "coarse_dry", linked(coarse_dry, set_coarse_dry), yield, entries_.coarse);
        percent(coarse, "coarse_as_is", linked(coarse_as_is, set_coarse_as_is), yield,
                entries_.coarse && entries_.moisture);
    }

    Rows& rows_;
    const Settings& settings_;
    MaltRecord& malt_;
    MaltEntries entries_;
    std::shared_ptr<MaltYields> yields_;
};

} // namespace

MaltEntries malt_entries(const MaltRecord& malt, const Settings& settings) {
    const bool method_2 = settings.efficiency_mode == EfficiencyMode::method_2;
    if (is_syrup_or_sugar(malt)) {
        return {.moisture = false,
                .coarse = false,
                .note = method_2
                            ? "Moisture Content, % Yield As Is and Coarse Grind have been disabled. These "
                              "entries do not apply to extract syrups and/or sugars."
                            : "Moisture Content, % Yield As Is and Coarse Grind entries have been disabled. "
                              "These entries do not apply to extract syrups and/or sugars."};
    }
    if (method_2) {
        return {.potential = false,
                .moisture = false,
                .coarse = false,
                .note = "Potentials are disabled as efficiency Method #2 has been selected in the System "
                        "Settings. Potential plays no role using this method."};
    }
    if (settings.yield_type == YieldType::fine_dry_basis) {
        return {.moisture = false,
                .note = "Moisture Content and % Yield As Is have been disabled. You chose not to include "
                        "Moisture Content in the System Settings."};
    }
    return {};
}

void malt_amount_form(Form& form, MaltUse& line, const Settings& settings) {
    line_rows(form.group(), line, settings);
    YieldRows(form.group("Extract"), line, settings).add();
}

} // namespace wortlex
