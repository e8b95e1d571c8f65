// Prompts where there is nobody to ask.
#pragma once

#include "base/ports/prompts.h"

namespace wortlex {

/// Keeps silent and answers every question with the careful word: no, or leave it.
class QuietPrompts : public Prompts {
public:
    void tell(const Message&) override {}
    Answer ask_yes_no(const Message&) override { return Answer::no; }
    Answer ask_yes_no_or_stay(const Message&) override { return Answer::cancel; }
    Answer ask_yes_no_cancel(const Message&) override { return Answer::cancel; }
    ReplaceAnswer ask_replace(std::string_view, std::string_view) override { return ReplaceAnswer::cancel; }
    std::optional<std::uint32_t> choose_colour(std::uint32_t) override { return std::nullopt; }
    std::optional<std::string> choose_folder(std::string_view, const std::string&) override {
        return std::nullopt;
    }
    bool remind(const Message&) override { return true; }
};

} // namespace wortlex
