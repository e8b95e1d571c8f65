// The log: what went wrong, a line each, for the brewer to look at or to send with a question. It tells
// nothing of the brewery: of a file no more than its ending.
#pragma once

#include "base/ports/clipboard.h"
#include "base/ports/prompts.h"
#include "forms/form.h"

#include <string>

namespace wortlex {

/// Its oldest lines go before it is larger, in bytes.
inline constexpr std::size_t largest_log = std::size_t{64} << 10;

class FaultLog {
public:
    /// Nothing is kept without a path.
    explicit FaultLog(std::string path) : path_(std::move(path)) {}

    /// Adds a line with the time and the version. `own` is what in it is the brewer's own, as a file's name:
    /// its ending is noted, and paths are left out wherever they stand. What cannot be written is lost.
    void note(std::string_view what, std::string_view own = {}) const;
    std::string text() const;
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// The log of this user.
FaultLog user_log();

/// Passes everything on, and notes each message of a fault.
class NotedPrompts : public Prompts {
public:
    NotedPrompts(Prompts& prompts, const FaultLog& log) : prompts_(prompts), log_(log) {}

    void tell(const Message& message) override;
    Answer ask_yes_no(const Message& question) override { return prompts_.ask_yes_no(question); }
    Answer ask_yes_no_or_stay(const Message& question) override {
        return prompts_.ask_yes_no_or_stay(question);
    }
    Answer ask_yes_no_cancel(const Message& question) override {
        return prompts_.ask_yes_no_cancel(question);
    }
    ReplaceAnswer ask_replace(std::string_view existing, std::string_view consequence) override {
        return prompts_.ask_replace(existing, consequence);
    }
    std::optional<std::uint32_t> choose_colour(std::uint32_t start) override {
        return prompts_.choose_colour(start);
    }
    std::optional<std::string> choose_folder(std::string_view title, const std::string& start) override {
        return prompts_.choose_folder(title, start);
    }
    bool remind(const Message& message) override { return prompts_.remind(message); }

private:
    Prompts& prompts_;
    const FaultLog& log_;
};

/// The log to be read and copied, the last fault first. The log must outlive the form.
void log_form(Form& form, const FaultLog& log, Clipboard& clipboard);

} // namespace wortlex
