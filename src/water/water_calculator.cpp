#include "water/water_calculator.h"

#include "base/files.h"
#include "brewing/salts.h"

#include <cmath>

namespace wortlex {
namespace {

constexpr std::string_view analysis_filter = "Water Analysis File (*.wtr)|*.wtr";
constexpr std::string_view analysis_extension = "wtr";

constexpr Message unsaved_water = {
    .text = "The current water profile has been modified!\nDo you want to save the changes?",
    .icon = Icon::question,
    .safe = Answer::yes};

bool reads_the_same(float a, float b) {
    return std::abs(double{a} - b) < 0.005;
}

bool reads_the_same(const WaterRecord& a, const WaterRecord& b) {
    const auto is_same_ion = [&](const Ion& ion) { return reads_the_same(a.*ion.ppm, b.*ion.ppm); };
    return a.name == b.name && a.known_for == b.known_for && reads_the_same(a.ph, b.ph) &&
           reads_the_same(a.reserved_39, b.reserved_39) && std::all_of(ions.begin(), ions.end(), is_same_ion);
}

template <class List>
bool all_read_the_same(const List& a, const List& b) {
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](const auto& one, const auto& other) { return reads_the_same(one, other); });
}

FileChoice choice_in(const FolderSet& folders, const std::string& path) {
    return {analysis_filter, folder_path(folders, FolderKind::water_profiles), file_name(path),
            analysis_extension};
}

} // namespace

bool is_same_work(const WaterAnalysis& a, const WaterAnalysis& b) {
    return all_read_the_same(a.rates, b.rates) && all_read_the_same(a.salts, b.salts) &&
           reads_the_same(a.target, b.target) && reads_the_same(a.source, b.source) &&
           reads_the_same(a.dilution_rate, b.dilution_rate) && reads_the_same(a.totals.ph, b.totals.ph) &&
           reads_the_same(a.mash_gallons, b.mash_gallons) && reads_the_same(a.mash_quarts, b.mash_quarts) &&
           reads_the_same(a.sparge_gallons, b.sparge_gallons) &&
           reads_the_same(a.sparge_quarts, b.sparge_quarts);
}

bool load_water_analysis(WaterAnalysis& analysis, std::string& path, const WaterDesk& desk) {
    const auto chosen = desk.files.choose_to_open(choice_in(desk.folders, {}));
    if (!chosen) return false;
    follow_user(desk.folders, FolderKind::water_profiles, *chosen);
    const auto file = read_file(*chosen, water_analysis_layout.size);
    const auto name = file_name(*chosen);
    if (!file) {
        desk.prompts.tell({.text = file_not_found, .icon = Icon::error, .own = name});
        return false;
    }
    const auto read = read_water_analysis(*file);
    if (!is_plausible(read.analysis)) {
        const auto damage = name + " is damaged and cannot be loaded.";
        desk.prompts.tell({.text = damage, .icon = Icon::warning, .own = name});
        return false;
    }
    const auto fault = name + " is incomplete; what is missing was left empty.";
    if (!read.is_complete) desk.prompts.tell({.text = fault, .icon = Icon::warning, .own = name});
    analysis = read.analysis;
    settle_water(analysis);
    path = *chosen;
    return true;
}

bool save_water_analysis(const WaterAnalysis& analysis, std::string& path, const WaterDesk& desk) {
    const auto chosen = desk.files.choose_to_save(choice_in(desk.folders, path));
    if (!chosen) return false;
    follow_user(desk.folders, FolderKind::water_profiles, *chosen);
    if (!save_or_tell(*chosen, water_analysis_bytes(analysis), desk.prompts)) return false;
    path = *chosen;
    return true;
}

void WaterCalculator::load() {
    if (may_drop() && load_water_analysis(work, path_, desk_)) saved_ = work;
}

void WaterCalculator::save() {
    store();
}

bool WaterCalculator::store() {
    if (!save_water_analysis(work, path_, desk_)) return false;
    saved_ = work;
    return true;
}

bool WaterCalculator::may_drop() {
    if (is_same_work(work, saved_)) return true;
    const auto answer = desk_.prompts.ask_yes_no_cancel(unsaved_water);
    return answer == Answer::yes ? store() : answer == Answer::no;
}

} // namespace wortlex
