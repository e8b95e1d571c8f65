// A tool's unsaved work in a file of its own, for a run that breaks off. Work that its brewer puts off waits
// beside it while other work is begun.
#pragma once

#include "base/files.h"

namespace wortlex {

/// Whether there is any to be offered, waiting or not.
bool is_work_kept(const std::string& path);

/// The kept work, or else what waits, which then waits no longer. Nothing if there is none.
std::optional<Bytes> take_up_kept_work(const std::string& path, std::size_t limit);

void put_off_kept_work(const std::string& path);
void forget_kept_work(const std::string& path);

} // namespace wortlex
