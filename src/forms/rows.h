// The rows that are no field of text: choices, checks, lists, buttons, drawings.
#pragma once

#include "base/ports/surface.h"
#include "forms/row.h"

#include <vector>

namespace wortlex {

/// One of several words: buttons side by side or below each other, or a list that drops down.
class ChoiceRow : public RowOptions<ChoiceRow, Row> {
public:
    enum class Look { across, down, drop_down };

    ChoiceRow(std::string row_key, Binding<std::int32_t> code, std::vector<Live<std::string>> option_words);
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    ChoiceRow& look(Look as) {
        shape = as;
        return *this;
    }
    /// The codes of the options, where they are not 0, 1, 2 ...
    ChoiceRow& codes(std::vector<std::int32_t> numbers) {
        numbers_ = std::move(numbers);
        return *this;
    }
    ChoiceRow& option_enabled(std::function<bool(std::size_t)> when) {
        option_when = std::move(when);
        return *this;
    }

    /// Called at every choice of the user, also of the option that is chosen already.
    ChoiceRow& picked(std::function<void()> then) {
        pick = std::move(then);
        return *this;
    }

    /// Nothing if the value is none of the codes.
    std::optional<std::size_t> chosen() const;
    /// Whether the value changed.
    bool choose(std::size_t option);

    std::vector<Live<std::string>> words;
    Look shape = Look::across;
    std::function<bool(std::size_t)> option_when; ///< empty: all of them
    std::function<void()> pick;

private:
    std::int32_t code_of(std::size_t option) const;

    Binding<std::int32_t> code_;
    std::vector<std::int32_t> numbers_;
};

class CheckRow : public RowOptions<CheckRow, Row> {
public:
    CheckRow(std::string row_key, Binding<bool> value)
        : RowOptions(std::move(row_key), std::nullopt), checked(std::move(value)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    Binding<bool> checked;
};

/// Words to read, wrapped. The label is the text.
class NoteRow : public RowOptions<NoteRow, Row> {
public:
    explicit NoteRow(std::string row_key) : RowOptions(std::move(row_key), std::nullopt) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }
};

/// "Red 198, green 166, blue 50", of 0x00BBGGRR.
std::string words_of_colour(std::uint32_t colour);

/// A patch of colour, 0x00BBGGRR; with an action it is a button.
class SwatchRow : public RowOptions<SwatchRow, Row> {
public:
    SwatchRow(std::string row_key, std::function<std::uint32_t()> paint)
        : RowOptions(std::move(row_key), std::nullopt), colour(std::move(paint)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }
    SwatchRow& pressed(std::function<void()> then) {
        press = std::move(then);
        return *this;
    }

    std::function<std::uint32_t()> colour;
    std::function<void()> press;
};

/// A drawing. `size` is the least it needs.
class CanvasRow : public RowOptions<CanvasRow, Row> {
public:
    CanvasRow(std::string row_key, Live<Extent> least, std::function<void(Surface&)> paint)
        : RowOptions(std::move(row_key), std::nullopt), size(std::move(least)), draw(std::move(paint)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    Live<Extent> size; ///< at least
    std::function<void(Surface&)> draw;
};

/// The column of a list. Numbers stand to the right.
struct ListColumn {
    Live<std::string> caption;
    bool is_number = false;
    int width = 8; ///< to aim at, in digits
    bool stretches = false;
    Live<std::string> hint = ""; ///< a tooltip; empty: as the glossary explains the caption
};

/// What a list is sorted by.
struct SortMark {
    std::size_t column = 0;
    bool is_descending = false;
};

/// Cells of a list that are typed into where they stand. Texts are UTF-8.
struct CellTyping {
    std::vector<std::size_t> columns; ///< the first is the one to begin with; none: nothing is typed
    std::function<std::string(std::size_t row, std::size_t column)> text; ///< to begin with
    /// Why a text cannot be taken, in words; empty: it can.
    std::function<std::string(std::size_t row, std::size_t column, const std::string& text)> fault;
    std::function<void(std::size_t row, std::size_t column, const std::string& text)> take;
};

/// A list with real columns. Cells are UTF-8.
class ListRow : public RowOptions<ListRow, Row> {
public:
    ListRow(std::string row_key, std::vector<ListColumn> list_columns, std::function<std::size_t()> row_count,
            std::function<std::string(std::size_t row, std::size_t column)> cell_text)
        : RowOptions(std::move(row_key), ColorArea::ingredient_lists), columns(std::move(list_columns)),
          count(std::move(row_count)), cell(std::move(cell_text)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    /// -1: no row. Kept within the list.
    ListRow& selection(std::int32_t& index) { return selected = &index, *this; }
    ListRow& header_clicked(std::function<void(std::size_t column)> then) {
        click_header = std::move(then);
        return *this;
    }
    ListRow& sorted(std::function<SortMark()> mark) {
        sort_mark = std::move(mark);
        return *this;
    }
    /// Rows that stand out; the selected one is shown with its neighbours then.
    ListRow& marked(std::function<bool(std::size_t row)> test) {
        is_marked = std::move(test);
        return *this;
    }
    /// Rows that are heads of those below them.
    ListRow& headed(std::function<bool(std::size_t row)> test) {
        is_head = std::move(test);
        return *this;
    }
    /// Rows that cannot be used, in grey.
    ListRow& dimmed(std::function<bool(std::size_t row)> test) {
        is_dimmed = std::move(test);
        return *this;
    }
    /// A glass of beer before the row, of that colour, 0x00BBGGRR; without one an empty glass.
    ListRow& with_glass(std::function<std::optional<std::uint32_t>(std::size_t row)> colour) {
        glass = std::move(colour);
        return *this;
    }
    /// Each word of a caption on a line of its own: many columns fit beside each other.
    ListRow& with_stacked_captions() {
        has_stacked_captions = true;
        return *this;
    }
    /// What stands in its place while it is empty.
    ListRow& when_empty(const Live<std::string>& words) {
        empty_words = words;
        return *this;
    }
    ListRow& activated(std::function<void()> then) {
        activate = std::move(then);
        return *this;
    }

    ListRow& cells_typed(CellTyping cells) {
        typing = std::move(cells);
        return *this;
    }

    std::vector<ListColumn> columns;
    std::function<std::size_t()> count;
    std::function<std::string(std::size_t row, std::size_t column)> cell;
    std::int32_t* selected = nullptr;
    std::function<void(std::size_t column)> click_header;
    std::function<SortMark()> sort_mark;
    std::function<bool(std::size_t row)> is_marked;
    std::function<bool(std::size_t row)> is_head;
    std::function<bool(std::size_t row)> is_dimmed;
    std::function<std::optional<std::uint32_t>(std::size_t row)> glass;
    bool has_stacked_captions = false;
    Live<std::string> empty_words = "";
    std::function<void()> activate; ///< double click or Enter on a row
    CellTyping typing;
};

class ButtonRow : public RowOptions<ButtonRow, Row> {
public:
    ButtonRow(std::string row_key, std::function<void()> action)
        : RowOptions(std::move(row_key), std::nullopt), press(std::move(action)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }

    std::function<void()> press; ///< empty: its window does not exist yet, and it is disabled
};

} // namespace wortlex
