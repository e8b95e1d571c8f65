// The hop database.
#pragma once

#include "databases/ingredient_list.h"

namespace wortlex {

std::unique_ptr<RecordList<HopRecord>> hop_list(const ListSource& source, Database<HopRecord>& hops);

/// The entry dialog of a hop.
void hop_entry_form(Form& form, HopRecord& hop);

/// The storage class that a loss (percent in 6 months) stands for, as it is typed; and as the arrows carry it
/// from one value to another, where only a crossing counts: nothing then.
StorageClass storage_class_of(float factor);
std::optional<StorageClass> storage_class_crossed(float from, float to);

/// As lists show it and sort by it.
std::string_view usage_word(HopUsage usage);

} // namespace wortlex
