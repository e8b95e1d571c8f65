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

/// What a free designer has unsaved is kept for a run that ends unasked; false if it could not be written.
bool keep_schedule(const MashDesigner& designer, const std::string& data_folder);
void forget_kept_schedule(const std::string& data_folder);
bool is_schedule_kept(const std::string& data_folder);
/// Offers what was kept: it becomes the designer's, as yet unsaved, is discarded, or waits for the next time.
void offer_kept_schedule(MashDesigner& designer, const std::string& data_folder, Prompts& prompts);

/// Takes a schedule from a file that is asked for. A document keeps its grain and water.
void load_schedule(MashDesigner& designer, const ScheduleDesk& desk);
/// Whether the schedule now stands in a file.
bool save_schedule(MashDesigner& designer, const ScheduleDesk& desk);

} // namespace wortlex
