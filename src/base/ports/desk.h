// What the program finds on the user's desk: file dialogs, a clock, the clipboard; and the two ways in
// which its parts speak to each other without knowing each other.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// What a file dialog offers. The filter is "caption|*.ext".
struct FileChoice {
    std::string_view filter;
    std::string folder;
    std::string suggested_name;
    std::string_view extension; ///< added to a typed name without one
};

class Files {
public:
    virtual ~Files() = default;
    virtual std::optional<std::string> choose_to_open(const FileChoice& choice) = 0;
    /// Asks before an existing file is chosen.
    virtual std::optional<std::string> choose_to_save(const FileChoice& choice) = 0;
};

struct CalendarDate {
    int day = 0;
    int month = 0; ///< 1 to 12
    int year = 0;
    bool operator==(const CalendarDate&) const = default;
};

class Clock {
public:
    virtual ~Clock() = default;
    /// Seconds since 1970, UTC.
    virtual std::int64_t now() const = 0;
    /// The date on the user's calendar.
    virtual CalendarDate today() const = 0;
};

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void put_text(std::string_view utf8) = 0;
};

/// Starts a tool or document by the number of its command.
class Commands {
public:
    virtual ~Commands() = default;
    virtual void start(int command) = 0;
};

/// What a change was about; open windows refresh what depends on it.
enum class Change { document, grain, hops, schedule, water, colour, calibration, settings };

class Notices {
public:
    virtual ~Notices() = default;
    virtual void tell(Change change) = 0;
    /// `heard` is called for each change until the returned number is given to `stop`.
    virtual int listen(std::function<void(Change)> heard) = 0;
    virtual void stop(int listener) = 0;
};

} // namespace wortlex
