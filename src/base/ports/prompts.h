// Messages and questions to the user. Logic that must ask is handed one; tests hand in a script.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

enum class Icon { none, information, question, warning, error };

enum class Answer { yes, no, cancel };
enum class ReplaceAnswer { yes, yes_to_all, no, cancel };

/// What a message box says. Texts are UTF-8; `\n` breaks a line.
struct Message {
    std::string_view text;
    std::string_view caption = "Wortlex";
    Icon icon = Icon::none;
    Answer safe = Answer::no;      ///< of a question: what Enter answers, the one by which nothing is lost
    std::string_view own = {};     ///< what is the brewer's own, as a file's name: the log leaves it out
    bool is_advice = false;        ///< of a warning: it is about what the brewer does, no fault for the log
    std::string_view details = {}; ///< what there is to know besides, below the text
};

class Prompts {
public:
    virtual ~Prompts() = default;

    virtual void tell(const Message& message) = 0;
    /// Yes or no; never `cancel`.
    virtual Answer ask_yes_no(const Message& question) = 0;
    /// Yes or no on the way out of something; `cancel` when the user leaves the question itself: he stays.
    virtual Answer ask_yes_no_or_stay(const Message& question) = 0;
    virtual Answer ask_yes_no_cancel(const Message& question) = 0;
    /// Whether an entry that exists already is to be replaced; `existing` and `consequence` are the
    /// two texts of the question.
    virtual ReplaceAnswer ask_replace(std::string_view existing, std::string_view consequence) = 0;
    /// A colour as 0x00BBGGRR, or nothing when the user leaves it.
    virtual std::optional<std::uint32_t> choose_colour(std::uint32_t start) = 0;
    /// A folder, ending in a slash, or nothing.
    virtual std::optional<std::string> choose_folder(std::string_view title, const std::string& start) = 0;
    /// A message with a check box; returns whether it is to be shown again.
    virtual bool remind(const Message& message) = 0;
};

} // namespace wortlex
