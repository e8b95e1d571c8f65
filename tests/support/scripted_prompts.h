// A user who answers as he was told.
#pragma once

#include "base/ports/prompts.h"

#include <gtest/gtest.h>

#include <deque>
#include <variant>

namespace wortlex {

/// A user who has been told what will be asked: checks every word, and misses what is not asked.
class ScriptedPrompts : public Prompts {
public:
    using Colour = std::optional<std::uint32_t>;
    using Folder = std::optional<std::string>;
    using Reply = std::variant<std::monostate, Answer, ReplaceAnswer, Colour, Folder, bool>;

    ~ScriptedPrompts() override { EXPECT_TRUE(script_.empty()) << "never came: " << script_.front().text; }

    /// `what` is tell, yes/no, yes/no/cancel, replace, colour, folder or reminder; a second text of a
    /// question stands for the caption.
    void expect(std::string what, std::string text, Reply reply, Icon icon = {},
                std::string caption = "Wortlex") {
        script_.push_back({what, text, caption, icon, reply});
    }
    void expect_tell(std::string text, Icon icon = {}) { expect("tell", text, {}, icon); }
    void expect_yes_no(std::string text, Answer answer) { expect("yes/no", text, answer, Icon::question); }
    /// Of changes in a recipe, a brew session entry, a time line ...
    void expect_save(const std::string& what, Answer answer) {
        expect("yes/no/cancel",
               "The current " + what + " has been modified!\nDo you want to save the changes?", answer,
               Icon::question);
    }
    /// Of work on a document that an earlier run has left.
    void expect_unsaved_work(const std::string& name, Answer answer) {
        expect("yes/no/cancel",
               "Wortlex ended before your work on " + name +
                   " was saved.\nDo you want to open it as it was? No discards it, Cancel asks again at the "
                   "next start.",
               answer, Icon::question);
    }
    void expect_finalizing(Answer answer) {
        expect_yes_no(
            "Do you really want to finalize inventory amounts at this time?\n\nThis will subtract the "
            "brewing session ingredient amounts from your current\ningredients database(s).",
            answer);
    }
    /// Where ingredients are missing, before they are finalized.
    void expect_to_wait(Answer answer) {
        expect_yes_no("Some ingredients were not found or there is not enough in stock to complete the "
                      "session.\n\nDo you want to wait until you have a chance to update inventories before "
                      "finalizing this brewing session?",
                      answer);
    }
    void expect_write_error() {
        expect_tell("Wortlex has experienced an error in writing this file.\n\nPossible reasons include:\n\n"
                    "a) The file has somehow been tagged as read-only by the system.\n\n"
                    "b) The file has become corrupted by other means.\n\n"
                    "If the file has been transferred over a network and saved by a \n"
                    "different program, it is very likely it has been tagged as read-only.\n\n"
                    "It is suggested you try and save the file under a different name.",
                    Icon::warning);
    }

    std::vector<std::string> details; ///< that were told below a text, in turn

    void tell(const Message& message) override { take("tell", message, std::monostate()); }
    Answer ask_yes_no(const Message& m) override { return take("yes/no", m, Answer::no); }
    Answer ask_yes_no_or_stay(const Message& m) override { return take("yes/no or stay", m, Answer::cancel); }
    Answer ask_yes_no_cancel(const Message& m) override { return take("yes/no/cancel", m, Answer::cancel); }
    ReplaceAnswer ask_replace(std::string_view existing, std::string_view consequence) override {
        return take("replace", {existing, consequence}, ReplaceAnswer::cancel);
    }
    Colour choose_colour(std::uint32_t start) override {
        return take("colour", {std::to_string(start), ""}, Colour());
    }
    Folder choose_folder(std::string_view title, const std::string& start) override {
        return take("folder", {title, start}, Folder());
    }
    bool remind(const Message& message) override { return take("reminder", message, true); }

private:
    struct Step {
        std::string what, text, caption;
        Icon icon;
        Reply reply;
    };

    template <class Answered>
    Answered take(const std::string& what, const Message& message, Answered otherwise) {
        const auto step = script_.empty() ? Step{"nothing", "", "", {}, {}} : script_.front();
        if (!script_.empty()) script_.pop_front();
        if (!message.details.empty()) details.emplace_back(message.details);
        EXPECT_EQ((std::tuple{step.what, step.text, step.caption, step.icon}),
                  (std::tuple{what, message.text, message.caption, message.icon}));
        // Whatever is asked, Enter loses nothing.
        const bool keeps = message.text.ends_with("save the changes?") ||
                           message.text.ends_with("before finalizing this brewing session?") ||
                           message.text.ends_with("take it over, as with OK?") ||
                           message.text.starts_with("Wortlex ended before") ||
                           message.text.starts_with("A time line was left") ||
                           message.text.starts_with("A mash schedule was left");
        EXPECT_EQ(message.safe, keeps ? Answer::yes : Answer::no) << message.text;
        const auto* const given = std::get_if<Answered>(&step.reply);
        return given ? *given : otherwise;
    }

    std::deque<Step> script_;
};

} // namespace wortlex
