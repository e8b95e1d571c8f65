// A user before a form: types into rows by their keys, and reads them.
#pragma once

#include "forms/form.h"
#include "support/field.h"

namespace wortlex {

inline void type(Form& form, std::string_view key, std::string text) {
    PlainField field(std::move(text));
    form.type(dynamic_cast<EntryRow&>(form.row(key)), field);
}

/// What the field shows, also where it is disabled.
inline std::string content_of(const Form& form, std::string_view key) {
    PlainField field;
    dynamic_cast<EntryRow&>(form.row(key)).show(field);
    return field.content;
}

/// What the field shows then.
inline std::string spin(Form& form, std::string_view key, Spin direction) {
    PlainField field(content_of(form, key));
    form.spin(dynamic_cast<EntryRow&>(form.row(key)), field, direction);
    return field.content;
}

inline void check(Form& form, std::string_view key, bool on) {
    form.check(dynamic_cast<CheckRow&>(form.row(key)), on);
}

inline void press(const Form& form, std::string_view key) {
    dynamic_cast<ButtonRow&>(form.row(key)).press();
}

struct FormUser {
    Form form;

    template <class Kind>
    Kind& row(std::string_view key) const {
        return dynamic_cast<Kind&>(form.row(key));
    }
    std::string shown(std::string_view key) const {
        const auto& entry = row<EntryRow>(key);
        return entry.is_enabled() ? content_of(form, key) : entry.text_when_disabled;
    }
    /// Several, with a bar between them.
    std::string shown_all(std::initializer_list<std::string_view> keys) const {
        std::string all;
        for (const auto key : keys) all += (all.empty() ? "" : "|") + shown(key);
        return all;
    }
    void type(std::string_view key, std::string text) { wortlex::type(form, key, std::move(text)); }
    std::string spin(std::string_view key, Spin direction) { return wortlex::spin(form, key, direction); }
    void choose(std::string_view key, std::size_t option) { form.choose(row<ChoiceRow>(key), option); }
    void check(std::string_view key, bool on) { wortlex::check(form, key, on); }
    void press(std::string_view key) const { wortlex::press(form, key); }
    std::string label(std::string_view key) const { return form.row(key).label_text(); }
    /// The cells of a row of a list, with a bar between them.
    std::string cells(std::string_view list, std::size_t line) const {
        std::string all;
        for (std::size_t i = 0; i < row<ListRow>(list).columns.size(); ++i)
            all += (i == 0 ? "" : "|") + row<ListRow>(list).cell(line, i);
        return all;
    }
    bool can(std::string_view key) const { return form.row(key).is_enabled(); }
};

} // namespace wortlex
