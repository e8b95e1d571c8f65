// What a form shows, read as a user would.
#pragma once

#include "forms/form.h"
#include "fuzz_input.h"

namespace wortlex {

class ShownText : public TextField {
public:
    std::string text() const override { return text_; }
    void set_text(const std::string& text) override { text_ = text; }
    int caret() const override { return 0; }
    void set_caret(int) override {}

private:
    std::string text_;
};

/// No figure is shown that is no number.
inline void check_figures(const Form& form) {
    form.for_each([](Row& row) {
        const auto* const entry = dynamic_cast<const EntryRow*>(&row);
        if (entry == nullptr || !entry->is_number()) return;
        ShownText field;
        entry->show(field);
        promise(field.text().find("nan") == std::string::npos &&
                field.text().find("inf") == std::string::npos);
    });
}

} // namespace wortlex
