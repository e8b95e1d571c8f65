// Reports as plain text, for a file or the clipboard: the bytes are the same.
#pragma once

#include "base/ports/clipboard.h"
#include "base/ports/prompts.h"

#include <string>
#include <string_view>

namespace wortlex {

/// Gathers a report. Texts are UTF-8; every line ends with CR LF, whatever it is given as.
class TextSink {
public:
    /// A piece of the report: `\n` ends a line, "%%" is one percent sign.
    void put(std::string_view piece);
    /// A heading, a row of dashes of its length, a blank line.
    void heading(std::string_view text);
    /// Free text, as typed, broken after every 75 characters of a line, whether in a word or not.
    void long_text(std::string_view text);

    const std::string& text() const { return text_; }

private:
    void end_line();

    std::string text_;
};

/// `text` filled up with blanks to `width` characters, or cut there.
std::string padded(std::string_view text, std::size_t width);
/// A row of `-`, as long as `text`.
std::string dashes_below(std::string_view text);

/// Writes the file, or tells the user that it could not be written.
bool save_text(const std::string& path, const TextSink& sink, Prompts& prompts);
void copy_text(Clipboard& clipboard, const TextSink& sink);

} // namespace wortlex
