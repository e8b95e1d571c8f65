// A user who chooses files as he was told.
#pragma once

#include "base/ports/file_dialogs.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

namespace wortlex {

/// Hands out paths in order (nothing: the user leaves the dialog) and keeps what was offered.
class ScriptedFiles : public Files {
public:
    explicit ScriptedFiles(std::deque<std::optional<std::string>> paths = {}) : paths_(std::move(paths)) {}
    ~ScriptedFiles() override { EXPECT_TRUE(paths_.empty()) << "a file dialog never came"; }

    using Path = std::optional<std::string>;
    Path choose_to_open(const FileChoice& choice) override { return next("open ", choice); }
    Path choose_to_save(const FileChoice& choice) override { return next("save ", choice); }

    void add(std::optional<std::string> path) { paths_.push_back(std::move(path)); }

    std::vector<std::string> offers; ///< "open" or "save", filter, folder, name, extension

private:
    std::optional<std::string> next(std::string what, const FileChoice& c) {
        what.append(c.filter) += ' ' + c.folder + ' ' + c.suggested_name + ' ';
        offers.push_back(what.append(c.extension));
        EXPECT_FALSE(paths_.empty()) << "a file dialog was not expected: " << what;
        const auto path = paths_.empty() ? std::nullopt : paths_.front();
        if (!paths_.empty()) paths_.pop_front();
        return path;
    }

    std::deque<std::optional<std::string>> paths_;
};

} // namespace wortlex
