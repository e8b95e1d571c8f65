// A field of text without a toolkit.
#pragma once

#include "forms/text_field.h"

#include <utility>

namespace wortlex {

struct PlainField : TextField {
    std::string content;
    int position = 0;
    explicit PlainField(std::string text = "", int caret = 0) : content(std::move(text)), position(caret) {}
    std::string text() const override { return content; }
    void set_text(const std::string& text) override {
        content = text;
        position = 0; // as a toolkit puts it
    }
    int caret() const override { return position; }
    void set_caret(int place) override { position = place; }
};

} // namespace wortlex
