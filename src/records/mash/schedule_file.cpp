#include "records/mash/schedule_file.h"

#include "base/files.h"

namespace wortlex {
namespace {

constexpr auto schedule_file_layout = layout<MashDesign, 14875>(
    at(0, via(&MashDesign::mash, &ComplexMash::step_count)), at(4, &MashDesign::grain_weight),
    at(8, via(&MashDesign::mash, &ComplexMash::grain_temperature)), at(12, &MashDesign::dough_in_water),
    at(16, via(&MashDesign::mash, &ComplexMash::tun_thermal_mass)),
    at(20, via(&MashDesign::mash, &ComplexMash::steps), mash_step_layout),
    at(14620, via(&MashDesign::mash, &ComplexMash::mash_name)));

constexpr std::string_view schedule_filter = "Mash Schedule File (*.msh)|*.msh";

std::optional<std::string> remembered(const std::optional<std::string>& path, FolderSet& folders) {
    if (path) follow_user(folders, FolderKind::mash_schedules, *path);
    return path;
}

} // namespace

std::optional<std::string> ChooseMashScheduleToSave(Files& files, FolderSet& folders,
                                                    const std::string& suggested_name) {
    const auto folder = folder_path(folders, FolderKind::mash_schedules);
    return remembered(files.choose_to_save({schedule_filter, folder, suggested_name, "msh"}), folders);
}

std::optional<std::string> ChooseMashScheduleToOpen(Files& files, FolderSet& folders) {
    const auto folder = folder_path(folders, FolderKind::mash_schedules);
    return remembered(files.choose_to_open({schedule_filter, folder, {}, "msh"}), folders);
}

bool SaveMashSchedule(const std::string& path, const MashDesign& design) {
    return save_atomically(path, mash_schedule_bytes(design));
}

ScheduleLoad LoadMashSchedule(const std::string& path, MashDesign& design, const Settings& settings) {
    const auto file = read_file(path, schedule_file_layout.size);
    return file ? read_mash_schedule(*file, design, settings) : ScheduleLoad::not_found;
}

ScheduleLoad LoadMashSchedule(const std::string& path, ComplexMash& mash, const Settings& settings) {
    MashDesign design{mash};
    const auto result = LoadMashSchedule(path, design, settings);
    mash = design.mash;
    return result;
}

ScheduleLoad read_mash_schedule(ByteView file, MashDesign& design, const Settings& settings) {
    ByteReader reader(file);
    auto read = design;
    reader.read(read, schedule_file_layout);
    if (read.mash.step_count < 0 || read.mash.step_count > static_cast<std::int32_t>(mash_step_slots))
        return ScheduleLoad::damaged;
    design = read;
    design.mash.tun_thermal_mass = settings.tun_thermal_mass;
    design.mash.steps[0].heat_type = StepHeat::infuse;
    return reader.complete() ? ScheduleLoad::loaded : ScheduleLoad::incomplete;
}

Bytes mash_schedule_bytes(const MashDesign& design) {
    return encoded(design, schedule_file_layout);
}

} // namespace wortlex
