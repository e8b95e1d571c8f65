// Stand-ins for what is on the user's desk.
#pragma once

#include "base/ports/desk.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <vector>

namespace wortlex {

/// Hands out paths in order (nothing: the user leaves the dialog) and keeps what was offered.
class ScriptedFiles : public Files {
public:
    struct Offer {
        bool saving;
        std::string filter, folder, suggested_name, extension;
    };

    explicit ScriptedFiles(std::deque<std::optional<std::string>> paths = {}) : paths_(std::move(paths)) {}
    ~ScriptedFiles() override { EXPECT_TRUE(paths_.empty()) << "a file dialog never came"; }

    std::optional<std::string> choose_to_open(const FileChoice& choice) override {
        return next(choice, false);
    }
    std::optional<std::string> choose_to_save(const FileChoice& choice) override {
        return next(choice, true);
    }

    std::vector<Offer> offers;

private:
    std::optional<std::string> next(const FileChoice& choice, bool saving) {
        offers.push_back({saving, std::string(choice.filter), choice.folder, choice.suggested_name,
                          std::string(choice.extension)});
        if (paths_.empty()) {
            ADD_FAILURE() << "a file dialog was not expected: " << choice.filter;
            return std::nullopt;
        }
        auto path = std::move(paths_.front());
        paths_.pop_front();
        return path;
    }

    std::deque<std::optional<std::string>> paths_;
};

struct FixedClock : Clock {
    std::int64_t seconds = 0;
    CalendarDate date;

    std::int64_t now() const override { return seconds; }
    CalendarDate today() const override { return date; }
};

struct RecordingClipboard : Clipboard {
    std::vector<std::string> texts;

    void put_text(std::string_view utf8) override { texts.emplace_back(utf8); }
};

/// Keeps every change and passes it on to the listeners.
struct RecordingNotices : Notices {
    std::vector<Change> told;
    std::map<int, std::function<void(Change)>> listeners;
    int last = 0;

    void tell(Change change) override {
        told.push_back(change);
        const auto now_listening = listeners; // a listener may stop listening
        for (const auto& [number, heard] : now_listening) heard(change);
    }
    int listen(std::function<void(Change)> heard) override {
        listeners.emplace(++last, std::move(heard));
        return last;
    }
    void stop(int listener) override { listeners.erase(listener); }
};

} // namespace wortlex
