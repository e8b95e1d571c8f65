// A form: rows in groups, and what happens around an edit. It is built and tested without a toolkit; a
// renderer shows it and hands it the user's typing.
//
//     Form form;
//     form.group("Sizes");
//     form.number("batch_size", doc.batch_size).label("&Batch Size (GAL)").range(1.0F, 100000.0F).step(0.5F);
//     form.shown("plato", [&] { return plato_text(doc); }).label("Plato");
#pragma once

#include "forms/entry_rows.h"
#include "forms/rows.h"

#include <memory>
#include <span>

namespace wortlex {

/// Makes rows of every kind and owns them.
class Rows {
public:
    NumberRow& number(std::string key, Binding<float> value);
    NumberRow& signed_number(std::string key, Binding<float> value);
    NumberRow& sg(std::string key, Binding<float> value, const Settings& settings);
    NumberRow& plato(std::string key, Binding<float> value, const Settings& settings);
    IntegerRow& integer(std::string key, Binding<std::int32_t> value);
    /// Whole degrees of `units`.
    IntegerRow& temperature(std::string key, Binding<std::int32_t> value, Live<TemperatureUnits> units);
    ParsedRow& parsed(std::string key, std::function<std::string()> text,
                      std::function<bool(const std::string&)> take);
    ShownRow& shown(std::string key, std::function<std::string()> text);
    ShownRow& shown_number(std::string key, std::function<float()> value, Live<std::string> pattern);
    ShownRow& shown_sg(std::string key, std::function<float()> value, const Settings& settings);
    ShownRow& shown_plato(std::string key, std::function<float()> value, const Settings& settings);
    ChoiceRow& choice(std::string key, Binding<std::int32_t> code, std::vector<Live<std::string>> words);
    CheckRow& check(std::string key, Binding<bool> value);
    NoteRow& note(std::string key, const Live<std::string>& text);
    SwatchRow& swatch(std::string key, std::function<std::uint32_t()> colour);
    CanvasRow& canvas(std::string key, Live<Extent> least, std::function<void(Surface&)> draw);
    ListRow& list(std::string key, std::vector<ListColumn> columns, std::function<std::size_t()> count,
                  std::function<std::string(std::size_t row, std::size_t column)> cell);
    ButtonRow& button(std::string key, const Live<std::string>& caption, std::function<void()> press);
    /// Lines of fields below the captions of their columns.
    GridRow& grid(std::string key, std::vector<Live<std::string>> captions);

    /// The text of a record, shorter by what its dialog keeps free.
    template <std::size_t N>
    TextRow& text(std::string key, Text<N>& field) {
        return add<TextRow>(
            std::move(key), [&field] { return field.view(); },
            [&field](std::string_view stored) { field.assign(stored); }, N - 1);
    }
    /// A text that is no field of its own: read and written as Windows-1252, of at most so many bytes.
    TextRow& text(std::string key, std::function<std::string_view()> read,
                  std::function<void(std::string_view)> write, std::size_t most_bytes) {
        return add<TextRow>(std::move(key), std::move(read), std::move(write), most_bytes);
    }

    std::span<const std::unique_ptr<Row>> rows() const { return rows_; }
    /// Buttons that follow each other stand below each other instead of side by side.
    void stack_buttons() { has_stacked_buttons_ = true; }
    bool has_stacked_buttons() const { return has_stacked_buttons_; }
    /// Every row in order, those of grids included.
    void walk(const std::function<void(Row&)>& action) const;

private:
    template <class Kind, class... Rest>
    Kind& add(std::string key, Rest&&... rest) {
        auto row = std::make_unique<Kind>(std::move(key), std::forward<Rest>(rest)...);
        auto& made = *row;
        rows_.push_back(std::move(row));
        return made;
    }

    std::vector<std::unique_ptr<Row>> rows_;
    bool has_stacked_buttons_ = false;
};

class GridRow : public RowOptions<GridRow, Row> {
public:
    struct Line {
        Live<std::string> label;
        Rows cells;
    };

    GridRow(std::string row_key, std::vector<Live<std::string>> column_captions)
        : RowOptions(std::move(row_key), std::nullopt), captions(std::move(column_captions)) {}
    void accept(RowVisitor& visitor) override { visitor.visit(*this); }
    void walk(const std::function<void(Row&)>& action) override;

    /// A new line, to be filled with one row a column.
    Rows& line(Live<std::string> line_label);

    std::vector<Live<std::string>> captions;
    std::vector<std::unique_ptr<Line>> lines;
};

/// Rows below a heading; an empty heading makes no frame. Groups stand below each other, and beside each
/// other where a new column begins.
struct Group {
    Live<std::string> heading;
    bool begins_column = false;
    Rows content;
};

class Form {
public:
    /// What follows goes into a new group.
    Rows& group(Live<std::string> heading = "");
    /// The next group begins a new column.
    void next_column() { column_is_due_ = true; }
    /// The group that is being filled; a form without groups has one without a heading.
    Rows& rows();

    /// Called after each edit of the user, before the rows are shown again.
    void after_edit(std::function<void(Row&)> hook) { edit_hooks_.push_back(std::move(hook)); }
    /// Called as the user leaves a field: what he typed there is then one edit, and done.
    void on_leave(std::function<void()> hook) { leave_hooks_.push_back(std::move(hook)); }
    /// Asked before anything is accepted; false keeps the form open, and whoever says so tells why.
    void accept_if(std::function<bool()> allowed) { may_accept_ = std::move(allowed); }
    void on_accept(std::function<void()> hook) { accept_hooks_.push_back(std::move(hook)); }
    void on_cancel(std::function<void()> hook) { cancel_hooks_.push_back(std::move(hook)); }

    /// The form works on `copy`; OK writes it to `original`.
    template <class Record>
    void commit_copy(const Record& copy, Record& original) {
        on_accept([&copy, &original] { original = copy; });
    }
    /// The form works on `live`; Cancel puts back what it is now, or was when it was kept last.
    template <class Record>
    void restore_on_cancel(Record& live) {
        const auto saved = std::make_shared<Record>(live);
        on_cancel([&live, saved] { live = *saved; });
        keep_hooks_.push_back([&live, saved] { *saved = live; });
        const auto begun = std::make_shared<Record>(live);
        change_checks_.push_back([&live, begun] { return !(live == *begun); });
        begin_hooks_.push_back([&live, begun] { *begun = live; });
    }

    /// The same for a dialog that edits some fields of a record, while the dialogs that it opens edit others.
    template <class Record, class... Field>
    void restore_on_cancel(Record& live, Field Record::*... fields) requires(sizeof...(fields) > 0) {
        (restore_on_cancel(live.*fields), ...);
    }

    /// The user's edits. Each answers whether a value changed.
    bool type(EntryRow& row, TextField& field);
    bool spin(EntryRow& row, TextField& field, Spin direction);
    bool choose(ChoiceRow& row, std::size_t option);
    bool check(CheckRow& row, bool checked);
    void select(ListRow& row, std::int32_t index) const;
    void leave() const;

    /// False: it was refused, and nothing has happened.
    bool accept() const;
    void cancel() const;
    /// What was repaired as the form was made is no change; nor is what was kept.
    void begin() const;
    /// Whether anything that Cancel puts back has changed since.
    bool is_changed() const;
    /// What stands now was saved: Cancel no longer goes behind it.
    void keep() const;

    /// Every row in order, those of grids included.
    void for_each(const std::function<void(Row&)>& action) const;
    bool has(std::string_view key) const;
    /// The row of a key; it must be there.
    Row& row(std::string_view key) const;
    /// Of the group that a row stands in; empty where it has none.
    std::string heading_of(const Row& row) const;
    std::span<const std::unique_ptr<Group>> groups() const { return groups_; }

    /// Called when all rows but the given one are to be shown again.
    std::function<void(const Row* except)> show_again;

private:
    bool finish(Row& row, bool has_changed, const Row* being_typed);
    Row* find(std::string_view key) const;

    std::vector<std::unique_ptr<Group>> groups_;
    bool column_is_due_ = false;
    std::vector<std::function<void(Row&)>> edit_hooks_;
    std::vector<std::function<void()>> leave_hooks_;
    std::function<bool()> may_accept_;
    std::vector<std::function<void()>> accept_hooks_;
    std::vector<std::function<void()>> cancel_hooks_;
    std::vector<std::function<void()>> keep_hooks_;
    std::vector<std::function<void()>> begin_hooks_;
    std::vector<std::function<bool()>> change_checks_;
};

} // namespace wortlex
