// What the rows of a form have in common. A row knows what it shows, what an edit does and when it is to be
// had; how it looks is up to the renderer.
#pragma once

#include "forms/binding.h"
#include "settings/system_settings.h"

#include <optional>

namespace wortlex {

/// Why a command is disabled whose window does not exist yet.
inline constexpr const char* not_yet = "Not available yet";

class EntryRow;
class ChoiceRow;
class CheckRow;
class NoteRow;
class SwatchRow;
class CanvasRow;
class ListRow;
class ButtonRow;
class GridRow;

class RowVisitor {
public:
    virtual ~RowVisitor() = default;
    virtual void visit(EntryRow& row) = 0;
    virtual void visit(ChoiceRow& row) = 0;
    virtual void visit(CheckRow& row) = 0;
    virtual void visit(NoteRow& row) = 0;
    virtual void visit(SwatchRow& row) = 0;
    virtual void visit(CanvasRow& row) = 0;
    virtual void visit(ListRow& row) = 0;
    virtual void visit(ButtonRow& row) = 0;
    virtual void visit(GridRow& row) = 0;
};

/// What every row has.
class Row {
public:
    Row(std::string row_key, std::optional<ColorArea> colour_area)
        : key(std::move(row_key)), area(colour_area) {}
    Row(const Row&) = delete;
    Row& operator=(const Row&) = delete;
    virtual ~Row() = default;
    virtual void accept(RowVisitor& visitor) = 0;
    /// This row and those in it.
    virtual void walk(const std::function<void(Row&)>& action) { action(*this); }

    const std::string key;              ///< names it in its form, in tests and to assistive tools
    std::optional<ColorArea> area;      ///< its pair of colours; none: those of the desktop
    Live<std::string> label_text = "";  ///< UTF-8, with `&` before the mnemonic
    Live<std::string> hint_text = "";   ///< a tooltip
    Live<std::string> name_text = "";   ///< to assistive tools, where the label is not enough
    Live<std::string> reason_text = ""; ///< why it is disabled
    Live<bool> is_enabled = true;
    Live<bool> is_visible = true;
    std::function<void()> after_edit; ///< what else a user's edit changes
    bool edited = false;              ///< by the user, since the form was made
};

/// The options of a row, each returning the row.
template <class Self, class Base>
class RowOptions : public Base {
public:
    using Base::Base;
    Self& label(const Live<std::string>& text) {
        this->label_text = text;
        return self();
    }
    Self& hint(const Live<std::string>& text) {
        this->hint_text = text;
        return self();
    }
    /// For those who cannot see beside what it stands.
    Self& named(const Live<std::string>& words) {
        this->name_text = words;
        return self();
    }
    /// Told with a row that is disabled.
    Self& disabled_because(const Live<std::string>& words) {
        this->reason_text = words;
        return self();
    }
    Self& enabled(const Live<bool>& when) {
        this->is_enabled = when;
        return self();
    }
    Self& visible(const Live<bool>& when) {
        this->is_visible = when;
        return self();
    }
    Self& changed(const std::function<void()>& then) {
        this->after_edit = then;
        return self();
    }
    Self& colours(ColorArea pair) {
        this->area = pair;
        return self();
    }

private:
    Self& self() { return static_cast<Self&>(*this); }
};

} // namespace wortlex
