// A field of text as the numeric fields see it, with or without a toolkit behind it.
#pragma once

#include <string>

namespace wortlex {

class TextField {
public:
    virtual ~TextField() = default;
    virtual std::string text() const = 0;
    virtual void set_text(const std::string& text) = 0;
    /// In characters from the start.
    virtual int caret() const = 0;
    virtual void set_caret(int position) = 0;
};

} // namespace wortlex
