// The mash designer's schedule and its files.
#pragma once

#include "base/ports/prompts.h"
#include "mash/mash_designer.h"
#include "records/mash/schedule_file.h"

namespace wortlex {

/// Whom a designer asks for files, and whom it tells.
struct ScheduleDesk {
    Files& files;
    FolderSet& folders;
    Prompts& prompts;
};

/// Whether a free designer's schedule is another than was loaded or saved last. The names of steps do not
/// count, nor what a colour holds above its three bytes.
bool is_modified(const MashDesigner& designer);

/// Asks whether an unsaved schedule of a free designer is to be saved; false: it is to stay.
bool may_drop(MashDesigner& designer, const ScheduleDesk& desk);

/// Takes a schedule from a file that is asked for. A document keeps its grain and water.
void load_schedule(MashDesigner& designer, const ScheduleDesk& desk);
/// Whether the schedule now stands in a file.
bool save_schedule(MashDesigner& designer, const ScheduleDesk& desk);

} // namespace wortlex
