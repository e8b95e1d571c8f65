#include "mash/simple_mash_form.h"

#include "base/number.h"
#include "brewing/mash_recalculation.h"
#include "brewing/mash_water.h"
#include "mash/session_mash_rows.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>
#include <array>
#include <utility>

namespace wortlex {
namespace {

constexpr std::int32_t longest_rest = 300; // minutes
constexpr float most_water = 10000, most_ratio = 100;

// By volume unit and system mode.
using VolumeLabels = std::array<const char*, 4>;

const char* in_volume_unit(const VolumeLabels& labels, const Settings& settings) {
    return labels.at((is_american(settings.volume_units) ? 0U : 2U) + (is_pro(settings) ? 1U : 0U));
}

const char* ratio_label(MashSide side, const Settings& settings) {
    if (is_american(settings.volume_units)) return "QTS &Water/LBS Grain Ratio";
    return side == MashSide::recipe ? "Liters &Water/kg Grain Ratio" : "L &Water/kg Grain Ratio";
}

// In two lines where more columns follow.
std::string degrees_word(const Settings& settings, MashSide side) {
    return std::string("Temperature") + (side == MashSide::session ? "\n" : " ") + "(Degrees " +
           temperature_unit(settings).full + ")";
}

// A step of the arrows may end beyond the range.
void hold_minutes(Rest& rest) {
    rest.minutes = std::clamp(rest.minutes, 0, longest_rest);
}

// The lines of rests, each a temperature and a time.
class RestRows {
public:
    RestRows(GridRow& grid, const SimpleMashWork& work, TemperatureUnits units)
        : grid_(grid), work_(work), units_(units) {}

    Rows& add(const std::string& key, const char* label, Rest& rest) { return line(key, label, rest, true); }
    /// A rest that a single step has no place for.
    Rows& add_of_multi_step(const std::string& key, const char* label, Rest& rest) {
        return line(key, label, rest,
                    [&work = work_] { return work.mash.mash_kind != MashKind::single_step; });
    }

private:
    Rows& line(const std::string& key, const char* label, Rest& rest, const Live<bool>& enabled) {
        auto& line = grid_.line(label);
        whole_degrees_row(line, key + "_temperature", rest.temperature, units_).enabled(enabled);
        line.integer(key + "_minutes", rest.minutes)
            .range(0, longest_rest)
            .step(5)
            .format("%3d")
            .width(3)
            .enabled(enabled)
            .changed([&rest] { hold_minutes(rest); });
        return line;
    }

    GridRow& grid_;
    const SimpleMashWork& work_;
    TemperatureUnits units_;
};

std::vector<Live<std::string>> rest_captions(const Settings& settings, MashSide side) {
    std::vector<Live<std::string>> captions{degrees_word(settings, side), "Minutes"};
    if (side == MashSide::session) add_infusion_captions(captions, settings);
    return captions;
}

void rest_rows(Rows& rows, SimpleMashWork& work, const Settings& settings, MashSide side,
               std::function<void()> calculate_strike) {
    auto& mash = work.mash;
    const bool is_session = side == MashSide::session;
    rows.choice("mash_kind", mash.mash_kind, {"&Single Step", "M&ulti Step"})
        .codes({2, 3})
        .named("Steps of the mash");
    if (is_session) heat_row(rows, work.session);
    RestRows rests(rows.grid("rests", rest_captions(settings, side)), work, settings.temperature_units);
    const auto infused = [&](Rows& line, const char* key, InfusedRest rest, Infusion& infusion) {
        if (is_session) infusion_cells(line, key, work, {rest, infusion}, settings);
    };
    auto& infusions = work.session.infusions;
    if (is_session)
        rests.add("dough_in", "D&ough In", mash.dough_in)
            .button("calculate_strike", "Calc Dough In T&emperature", std::move(calculate_strike));
    rests.add_of_multi_step("acid", "&Acid Rest", mash.acid);
    infused(rests.add_of_multi_step("protein", "&Protein Rest", mash.protein), "protein",
            InfusedRest::protein, infusions.protein);
    infused(rests.add_of_multi_step("intermediate", "&Intermediate Rest", mash.intermediate), "intermediate",
            InfusedRest::intermediate, infusions.intermediate);
    infused(rests.add("saccharification", "Saccharification &Rest", mash.saccharification),
            "saccharification", InfusedRest::saccharification, infusions.saccharification);
    infused(rests.add("mash_out", "&Mash Out", mash.mash_out), "mash_out", InfusedRest::mash_out,
            infusions.mash_out);
    rests.add("sparge", "Sparge &Temperature", mash.sparge);
    if (is_session) added_rows(rows, work.session.infusions, settings);
}

float ratio_in_units(const SimpleMashWork& work, Units units) {
    const bool is_mash = work.mash.dough_in_water > 0 && work.grain > 0;
    return is_mash ? shown_ratio(work.mash.dough_in_water, work.grain, units)
                   : shown_ratio(work.ratio, 1, units);
}

void water_row(Rows& rows, const char* key, const char* label, const Binding<float>& value, float highest,
               float step) {
    rows.number(key, value).label(label).range(0.0F, highest).step(step).format("%2.2f");
}

void water_rows(Rows& rows, SimpleMashWork& work, const Settings& settings, MashSide side) {
    const float& quarts = work.mash.dough_in_water;
    const auto units = settings.volume_units;
    water_row(rows, "quarts", side == MashSide::recipe ? "Mash &QTS" : "Dough In Mash &QTS",
              {[&quarts] { return quarts; }, [&work](float value) { set_mash_quarts(work, value); }},
              most_water, 0.25F);
    water_row(rows, "volume", mash_volume_label(side, settings),
              {[&quarts, &settings] { return to_shown_volume(narrow(quarts / 4.0), settings); },
               [&work, &settings](float shown) {
                   set_mash_quarts(work, narrow(from_shown_volume(shown, settings) * 4.0));
               }},
              most_water, 0.25F);
    water_row(rows, "ratio", ratio_label(side, settings),
              {[&work, units] { return ratio_in_units(work, units); },
               [&work, units](float shown) { set_mash_ratio(work, shown, units); }},
              most_ratio, 0.05F);
}

void total_rows(Rows& rows, const SimpleMashWork& work, const Settings& settings, MashSide side) {
    rows.shown_number(
            "grain", [&] { return grain_to_shown(work.grain, settings); }, "%6.2f")
        .label(std::string("Grain ") + grain_unit(settings).capital);
    const auto volume = [&work, &settings, side] {
        const float quarts = side == MashSide::session ? quarts_in_mash(work) : work.mash.dough_in_water;
        return to_shown_volume(TotalMashVolume(work.grain, quarts, settings.grain_water_volume), settings);
    };
    rows.shown_number("total_volume", volume, "%0.2f")
        .label(std::string("Total Mash Volume ") + volume_unit(settings).capital);
    if (side == MashSide::recipe) rows.note("volume_note", "(dough-in infusion only)");
}

void add_button(Rows& rows, const char* key, const char* caption, std::function<void()> action) {
    rows.button(key, caption, std::move(action));
}

// Quarts per pound; 0 without water or grain.
float ratio_of_water(const SimpleMashWork& work) {
    return shown_ratio(work.mash.dough_in_water, work.grain, Units::american);
}

} // namespace

SimpleMashWork open_simple_mash(const SimpleMash& record, float ratio, float grain,
                                const Settings& settings) {
    SimpleMashWork work{.mash = record, .ratio = ratio, .grain = grain};
    if (work.mash.mash_kind == MashKind::none) work.mash.mash_kind = MashKind::single_step;
    auto& quarts = work.mash.dough_in_water;
    if (!(quarts > 0)) work.ratio = settings.quarts_per_pound;
    if (work.ratio > 0)
        quarts = quarts_from_default_ratio(work.ratio, grain, settings.volume_units);
    else
        work.ratio = ratio_of_water(work);
    return work;
}

void set_mash_quarts(SimpleMashWork& work, float quarts) {
    work.mash.dough_in_water = std::max(quarts, 0.0F); // a step of the arrows may end below
    work.ratio = ratio_of_water(work);
}

void set_mash_ratio(SimpleMashWork& work, float shown, Units units) {
    const float ratio = std::max(shown, 0.0F);
    work.ratio = quarts_from_ratio(ratio, 1, units);
    work.mash.dough_in_water = quarts_from_ratio(ratio, work.grain, units);
}

void set_mash_grain(SimpleMashWork& work, float pounds) {
    work.grain = pounds;
    if (work.ratio > 0)
        work.mash.dough_in_water = narrow(double{pounds} * work.ratio);
    else
        work.ratio = ratio_of_water(work);
}

const char* mash_volume_label(MashSide side, const Settings& settings) {
    constexpr VolumeLabels recipe = {"Mash &Gallons", "Mash &Barrels", "Mash &Liters", "Mash &hL"};
    constexpr VolumeLabels session = {"Dough In Mash &Gallons", "Dough In Mash &Barrels",
                                      "Dough In Mash &Liters", "Dough In Mash &Hectoliters"};
    return in_volume_unit(side == MashSide::recipe ? recipe : session, settings);
}

void simple_mash_form(Form& form, SimpleMashWork& work, const Settings& settings, MashSide side,
                      SimpleMashActions actions) {
    rest_rows(form.group("Rests"), work, settings, side, std::move(actions.calculate_strike));
    if (side == MashSide::session) { // below the rests: beside them it would be too wide for small screens
        wort_rows(form.group("Wort"), work.session, std::move(actions.correct_gravity),
                  std::move(actions.measure_runnings));
        form.after_edit([&work](Row&) { work_out_infusions(work); });
    }
    form.next_column();
    auto& water = form.group("Water");
    water_rows(water, work, settings, side);
    total_rows(water, work, settings, side);
    auto& buttons = form.group();
    add_button(buttons, "revert", "Revert To &Complex Schedule", std::move(actions.revert));
    add_button(buttons, "graph", "Graph", std::move(actions.graph));
    add_button(buttons, "print", "Print", std::move(actions.print));
    add_button(buttons, "help", "Help", std::move(actions.help));
}

} // namespace wortlex
