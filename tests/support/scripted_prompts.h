// A user who has been told what will be asked: checks every word, and misses what is not asked.
#pragma once

#include "base/ports/prompts.h"

#include <gtest/gtest.h>

#include <deque>
#include <variant>

namespace wortlex {

class ScriptedPrompts : public Prompts {
public:
    ~ScriptedPrompts() override {
        for (const auto& step : script_) ADD_FAILURE() << "never came: " << step.what << ": " << step.text;
    }

    void expect_tell(std::string text, Icon icon = Icon::none, std::string caption = "Wortlex") {
        script_.push_back({"tell", std::move(text), std::move(caption), icon, {}});
    }
    void expect_yes_no(std::string text, Answer answer, Icon icon, std::string caption = "Wortlex") {
        script_.push_back({"yes/no", std::move(text), std::move(caption), icon, answer});
    }
    void expect_yes_no_cancel(std::string text, Answer answer, Icon icon, std::string caption = "Wortlex") {
        script_.push_back({"yes/no/cancel", std::move(text), std::move(caption), icon, answer});
    }
    void expect_replace(std::string existing, std::string consequence, ReplaceAnswer answer) {
        script_.push_back({"replace", std::move(existing), std::move(consequence), Icon::none, answer});
    }
    void expect_colour(std::uint32_t start, std::optional<std::uint32_t> answer) {
        script_.push_back({"colour", std::to_string(start), "", Icon::none, answer});
    }
    void expect_folder(std::string title, std::string start, std::optional<std::string> answer) {
        script_.push_back({"folder", std::move(title), std::move(start), Icon::none, std::move(answer)});
    }
    void expect_reminder(std::string text, bool show_again, Icon icon, std::string caption = "Wortlex") {
        script_.push_back({"reminder", std::move(text), std::move(caption), icon, show_again});
    }

    void tell(const Message& message) override { take("tell", message); }
    Answer ask_yes_no(const Message& question) override {
        return answer(take("yes/no", question), Answer::no);
    }
    Answer ask_yes_no_cancel(const Message& question) override {
        return answer(take("yes/no/cancel", question), Answer::cancel);
    }
    ReplaceAnswer ask_replace(std::string_view existing, std::string_view consequence) override {
        return answer(take("replace", {existing, consequence}), ReplaceAnswer::cancel);
    }
    std::optional<std::uint32_t> choose_colour(std::uint32_t start) override {
        const auto text = std::to_string(start);
        return answer(take("colour", {text, ""}), std::optional<std::uint32_t>());
    }
    std::optional<std::string> choose_folder(std::string_view title, const std::string& start) override {
        return answer(take("folder", {title, start}), std::optional<std::string>());
    }
    bool remind(const Message& message) override { return answer(take("reminder", message), true); }

private:
    using Reply = std::variant<std::monostate, Answer, ReplaceAnswer, std::optional<std::uint32_t>,
                               std::optional<std::string>, bool>;
    struct Step {
        std::string what;
        std::string text;
        std::string caption; ///< or the second text of the question
        Icon icon;
        Reply reply;
    };

    Reply take(const char* what, const Message& message) {
        if (script_.empty()) {
            ADD_FAILURE() << "not expected: " << what << ": " << message.text;
            return {};
        }
        const auto step = std::move(script_.front());
        script_.pop_front();
        EXPECT_EQ(step.what, what) << message.text;
        EXPECT_EQ(step.text, message.text);
        EXPECT_EQ(step.caption, message.caption) << message.text;
        EXPECT_EQ(step.icon, message.icon) << message.text;
        return step.reply;
    }

    template <class T>
    static T answer(const Reply& reply, T otherwise) {
        const auto* const given = std::get_if<T>(&reply);
        return given ? *given : otherwise;
    }

    std::deque<Step> script_;
};

} // namespace wortlex
