// The mash schedule file, extension "msh": a complex schedule by itself.
#pragma once

#include "base/ports/file_dialogs.h"
#include "records/mash/schedules.h"
#include "settings/system_files.h"

#include <string>

namespace wortlex {

/// Replaces the file atomically; false if that failed.
bool SaveMashSchedule(const std::string& path, const MashDesign& design);

/// What loading a schedule came to.
enum class ScheduleLoad { loaded, incomplete, damaged, not_found };

/// Reads a schedule over the Mash Designer's. The thermal mass is always the setting's, and the first step is
/// always an infusion. A short file leaves the rest as it was. A file that cannot be opened changes nothing,
/// nor does one that claims another number of steps than 0 to 50: it is damaged.
ScheduleLoad LoadMashSchedule(const std::string& path, MashDesign& design, const Settings& settings);

/// The same into a document, which keeps its own grain and water.
ScheduleLoad LoadMashSchedule(const std::string& path, ComplexMash& mash, const Settings& settings);

/// Asks for the file, starting in the folder for mash schedules, which follows the user where the settings
/// say so.
std::optional<std::string> ChooseMashScheduleToSave(Files& files, FolderSet& folders,
                                                    const std::string& suggested_name);
std::optional<std::string> ChooseMashScheduleToOpen(Files& files, FolderSet& folders);

/// Loading and saving from and to the bytes of a file.
ScheduleLoad read_mash_schedule(ByteView file, MashDesign& design, const Settings& settings);
Bytes mash_schedule_bytes(const MashDesign& design);

} // namespace wortlex
