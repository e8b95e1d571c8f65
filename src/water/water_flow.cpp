#include "water/water_flow.h"

#include "base/number.h"
#include "charts/strokes.h"
#include "measures/units.h"
#include "water/shown_water.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr int first_row = 10, row_pitch = 37, bar_high = 16;
constexpr int words_at = 10, bars_at = 110, figure_gap = 8, figure_room = 100;
constexpr std::uint32_t water_blue = 0xB06A2A, lost_grey = 0xD8D0C8, quiet_ink = 0x505050; // 0x00BBGGRR

std::vector<WaterLoss> without_nothing(std::vector<WaterLoss> losses) {
    std::erase_if(losses, [](const WaterLoss& loss) { return !(loss.gallons > 0); });
    return losses;
}

float less(float before, float after) {
    return narrow(double{before} - after);
}

// In pixels, of at most `longest`.
int length_of(double gallons, double most, int longest) {
    const double share = gallons / most;
    return share > 0 ? truncate(std::min(share, 1.0) * longest + 0.5) : 0; // what is no number has no bar
}

double most_of(const std::vector<WaterStage>& stages) {
    double most = 0;
    for (const auto& stage : stages) most = std::max(most, double{stage.gallons});
    return most;
}

void fill_from(Surface& surface, int left, int right, int top, std::uint32_t colour) {
    if (right <= left) return;
    surface.set_pen({colour});
    surface.set_brush(colour);
    surface.rectangle({left, top, right, top + bar_high});
}

std::string shown_volume(float gallons, const WaterPlan& plan, const Settings& settings) {
    return formatted("%0.2f", to_shown_volume(gallons, plan.units, settings.system_mode));
}

std::string words_of_volume(float gallons, const WaterPlan& plan, const Settings& settings) {
    return shown_volume(gallons, plan, settings) + ' ' + water_unit(plan.units, settings).usual;
}

// Empty where nothing was lost.
std::string words_of_losses(const WaterStage& stage, const WaterPlan& plan, const Settings& settings) {
    std::string lost;
    for (const auto& [words, gallons] : stage.losses)
        lost += (lost.empty() ? "lost: " : ", ") + shown_volume(gallons, plan, settings) + ' ' + words;
    return lost;
}

} // namespace

std::vector<WaterStage> water_flow(const WaterNeeds& needs, const WaterBalance& balance, bool has_mash) {
    const auto lautered = without_nothing({{"in the sparge deadspace", needs.sparge_deadspace},
                                           {"in the grain", needs.grain_absorption},
                                           {"between lauter tun and kettle", needs.lauter_loss}});
    return {{"You Will Need", balance.needed, {}},
            {"Into Kettle", balance.into_kettle, has_mash ? lautered : std::vector<WaterLoss>()},
            {"After Boil", balance.after_boil,
             without_nothing({{"evaporated", less(balance.into_kettle, balance.after_boil)}})},
            {"To Chillers", balance.to_chillers,
             without_nothing({{"in the kettle", needs.kettle_deadspace},
                              {"in the hopback", needs.hopback},
                              {"in the chiller", needs.chiller},
                              {"elsewhere", needs.other}})},
            {"To Fermenter", balance.after_cooling,
             without_nothing({{"by cooling", less(balance.to_chillers, balance.after_cooling)}})}};
}

std::string words_of_water_flow(const WaterPlan& plan, const Settings& settings) {
    std::string words = "The way of the water";
    const auto* separator = ": ";
    for (const auto& stage : water_flow(plan.needs, plan.balance, has_mash(plan))) {
        const auto lost = words_of_losses(stage, plan, settings);
        words += separator + std::string(stage.words) + ' ' + words_of_volume(stage.gallons, plan, settings);
        if (!lost.empty()) words += ", " + lost;
        separator = "; ";
    }
    return words;
}

void draw_water_flow(Surface& surface, const WaterPlan& plan, const Settings& settings) {
    const auto stages = water_flow(plan.needs, plan.balance, has_mash(plan));
    const double most = most_of(stages);
    clear(surface, surface.size(), chart_white);
    const int longest = surface.size().width - bars_at - figure_room;
    int top = first_row, before = 0;
    for (const auto& stage : stages) {
        const int reach = bars_at + length_of(stage.gallons, most, longest);
        fill_from(surface, bars_at, reach, top, water_blue);
        fill_from(surface, reach, before, top, lost_grey);
        surface.set_text_colour(chart_black);
        set_chart_font(surface, bar_high, false, 400);
        surface.text({words_at, top}, stage.words);
        const int figure_at = std::max(reach, before) + figure_gap;
        surface.text({figure_at, top}, words_of_volume(stage.gallons, plan, settings));
        before = reach;
        surface.set_text_colour(quiet_ink);
        const auto lost = words_of_losses(stage, plan, settings);
        if (!lost.empty()) surface.text({bars_at, top - bar_high}, lost);
        top += row_pitch;
    }
}

} // namespace wortlex
