// Questions and messages in boxes of the toolkit.
#pragma once

#include "base/ports/prompts.h"

#include <QWidget>

namespace wortlex {

/// Boxes belong to the window that the user is at, and disable only that one.
class MessageBoxes : public Prompts {
public:
    void tell(const Message& message) override;
    Answer ask_yes_no(const Message& question) override;
    Answer ask_yes_no_or_stay(const Message& question) override;
    Answer ask_yes_no_cancel(const Message& question) override;
    ReplaceAnswer ask_replace(std::string_view existing, std::string_view consequence) override;
    std::optional<std::uint32_t> choose_colour(std::uint32_t start) override;
    std::optional<std::string> choose_folder(std::string_view title, const std::string& start) override;
    bool remind(const Message& message) override;
};

/// The window that a question now belongs to; none before any is open.
QWidget* window_in_use();

} // namespace wortlex
