#include "mash/schedule_storing.h"

#include "base/kept_work.h"
#include "base/windows1252.h"

#include <algorithm>
#include <tuple>

namespace wortlex {
namespace {

constexpr std::uint32_t colour_bytes = 0xFFFFFF;

constexpr Message unsaved_question = {
    .text = "The current mash schedule has been modified!\nDo you want to save the changes?",
    .icon = Icon::question,
    .safe = Answer::yes};

constexpr Message kept_question = {
    .text =
        "A mash schedule was left before it was saved.\nDo you want to go on with it? No discards it, Cancel "
        "asks again the next time.",
    .icon = Icon::question,
    .safe = Answer::yes};

std::string kept_path(const std::string& data_folder) {
    return data_folder + "WlxMash.rcv";
}

bool same_step(const MashStep& a, const MashStep& b) {
    const auto counted = [](const MashStep& s) {
        return std::tuple(s.heat_type, s.start_temperature, s.stop_temperature, s.infuse_temperature,
                          s.rest_minutes, s.step_minutes, s.ratio, s.amount, s.step_colour & colour_bytes,
                          s.rest_colour & colour_bytes);
    };
    return counted(a) == counted(b);
}

bool same_design(const MashDesign& a, const MashDesign& b) {
    const auto figures = [](const MashDesign& d) {
        return std::tuple(d.mash.step_count, d.grain_weight, d.mash.grain_temperature, d.dough_in_water,
                          d.mash.tun_thermal_mass);
    };
    return figures(a) == figures(b) && a.mash.mash_name == b.mash.mash_name &&
           std::equal(a.mash.steps.begin(), a.mash.steps.end(), b.mash.steps.begin(), same_step);
}

// What is wrong with a file, if anything is; whether it can be taken.
bool is_taken(ScheduleLoad load, const std::string& path, Prompts& prompts) {
    const auto name = file_name(path);
    const auto tell = [&](std::string_view text) {
        prompts.tell({.text = text, .icon = Icon::warning, .own = name});
    };
    if (load == ScheduleLoad::not_found) tell(file_not_found);
    if (load == ScheduleLoad::damaged) tell(name + " is damaged and cannot be loaded.");
    if (load == ScheduleLoad::incomplete) tell(name + " ended early; what is missing stays as it was.");
    return load == ScheduleLoad::loaded || load == ScheduleLoad::incomplete;
}

void take(MashDesigner& designer, const MashDesign& loaded) {
    auto& design = designer.design;
    design.mash = loaded.mash;
    if (designer.owner.is_free()) {
        design.grain_weight = loaded.grain_weight;
        design.dough_in_water = loaded.dough_in_water;
    }
    designer.selection = 0;
    designer.thickness_is_set = false;
}

std::string proposed_name(const MashDesigner& designer) {
    if (!designer.file_name.empty()) return designer.file_name;
    return tame_file_name(utf8_from_windows1252(designer.design.mash.mash_name.view()));
}

} // namespace

bool is_modified(const MashDesigner& designer) {
    return designer.owner.is_free() && !same_design(designer.design, designer.saved);
}

bool may_drop(MashDesigner& designer, const ScheduleDesk& desk) {
    if (!is_modified(designer)) return true;
    const auto answer = desk.prompts.ask_yes_no_cancel(unsaved_question);
    return answer == Answer::yes ? save_schedule(designer, desk) : answer == Answer::no;
}

bool keep_schedule(const MashDesigner& designer, const std::string& data_folder) {
    if (is_modified(designer))
        return save_atomically(kept_path(data_folder), mash_schedule_bytes(designer.design));
    forget_kept_schedule(data_folder);
    return true;
}

void forget_kept_schedule(const std::string& data_folder) {
    forget_kept_work(kept_path(data_folder));
}

bool is_schedule_kept(const std::string& data_folder) {
    return is_work_kept(kept_path(data_folder));
}

void offer_kept_schedule(MashDesigner& designer, const std::string& data_folder, Prompts& prompts) {
    const auto path = kept_path(data_folder);
    const auto file = take_up_kept_work(path, largest_file);
    if (!file) return;
    auto kept = designer.design;
    if (read_mash_schedule(*file, kept, designer.settings) != ScheduleLoad::loaded)
        return forget_kept_work(path);
    const auto answer = prompts.ask_yes_no_cancel(kept_question);
    if (answer == Answer::cancel) return put_off_kept_work(path);
    if (answer == Answer::yes) edit(designer, {}, [&] { take(designer, kept); });
    forget_kept_work(path);
}

void load_schedule(MashDesigner& designer, const ScheduleDesk& desk) {
    if (!may_drop(designer, desk)) return;
    const auto path = ChooseMashScheduleToOpen(desk.files, desk.folders);
    if (!path) return;
    auto loaded = designer.design;
    if (!is_taken(LoadMashSchedule(*path, loaded, designer.settings), *path, desk.prompts)) return;
    edit(designer, {}, [&] { take(designer, loaded); });
    designer.file_name = file_name(*path);
    designer.saved = designer.design;
}

bool save_schedule(MashDesigner& designer, const ScheduleDesk& desk) {
    const auto path = ChooseMashScheduleToSave(desk.files, desk.folders, proposed_name(designer));
    if (!path || !save_or_tell(*path, mash_schedule_bytes(designer.design), desk.prompts)) return false;
    const auto& name = designer.design.mash.mash_name;
    const bool goes_by_name = designer.owner.is_free() && !name.empty();
    designer.file_name = goes_by_name ? tame_file_name(utf8_from_windows1252(name.view())) : file_name(*path);
    designer.saved = designer.design;
    return true;
}

} // namespace wortlex
