// A user before a form: types into rows by their keys, and reads them.
#pragma once

#include "forms/form.h"
#include "support/field.h"

namespace wortlex {

struct FormUser {
    Form form;

    template <class Kind>
    Kind& row(std::string_view key) const {
        return dynamic_cast<Kind&>(form.row(key));
    }
    std::string shown(std::string_view key) const {
        PlainField field;
        const auto& entry = row<EntryRow>(key);
        if (!entry.is_enabled()) return entry.text_when_disabled;
        entry.show(field);
        return field.content;
    }
    /// Several, with a bar between them.
    std::string shown_all(std::initializer_list<std::string_view> keys) const {
        std::string all;
        for (const auto key : keys) all += (all.empty() ? "" : "|") + shown(key);
        return all;
    }
    void type(std::string_view key, std::string text) {
        PlainField field(std::move(text));
        form.type(row<EntryRow>(key), field);
    }
    void spin(std::string_view key, Spin direction) {
        PlainField field;
        row<EntryRow>(key).show(field);
        form.spin(row<EntryRow>(key), field, direction);
    }
    void choose(std::string_view key, std::size_t option) { form.choose(row<ChoiceRow>(key), option); }
    void press(std::string_view key) const { row<ButtonRow>(key).press(); }
    bool can(std::string_view key) const { return form.row(key).is_enabled(); }
};

} // namespace wortlex
