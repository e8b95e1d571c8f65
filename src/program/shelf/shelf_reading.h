// The recipes of a folder, read in the background.
#pragma once

#include "program/shelf/shelf_entry.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace wortlex {

/// Begins at once, on as many threads as there are processors; its end breaks the reading off.
class ShelfReading {
public:
    /// `folder` ends in a slash.
    ShelfReading(std::string folder, const Settings& settings);
    /// What has been read since the last time, in no order.
    std::vector<ShelfEntry> take();
    /// Whether there is nothing more to come but what `take` gives now.
    bool is_done() const { return is_done_; }
    /// False, once it is done, where the folder cannot be read.
    bool is_readable() const { return is_readable_; }

private:
    void read_folder(const std::stop_token& stop);
    void read_some(const std::stop_token& stop, const std::vector<std::string>& paths);

    std::string folder_;
    Settings settings_;
    std::mutex mutex_; ///< of `read_`
    std::vector<ShelfEntry> read_;
    std::atomic<std::size_t> next_ = 0; ///< of the paths
    std::atomic<bool> is_readable_ = true;
    std::atomic<bool> is_done_ = false;
    std::jthread worker_; ///< the last: it uses all of them
};

} // namespace wortlex
