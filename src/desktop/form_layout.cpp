#include "desktop/captions.h"
#include "desktop/fields.h"
#include "desktop/form_widgets.h"
#include "desktop/qt_text.h"

#include <QAbstractScrollArea>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>

#include <algorithm>
#include <set>
#include <utility>

namespace wortlex {
namespace {

// What many windows offer stands in one place, behind OK and Cancel.
bool stands_beside_ok(const Row& row) {
    return row.key == "print" || row.key == "help" || row.key == "jpg";
}

void put_beside_ok(const Row& row, const FormWidgets& widgets, QDialogButtonBox& beside_ok) {
    beside_ok.addButton(qobject_cast<QPushButton*>(&widgets.field(row)), QDialogButtonBox::HelpRole);
}

// Rows below each other, labels in the first of two columns.
class RowsLayout : private RowVisitor {
public:
    RowsLayout(const FormWidgets& widgets, QGridLayout& grid, QDialogButtonBox* beside_ok, QString heading,
               std::set<QString>& cell_names)
        : widgets_(widgets), grid_(grid), beside_ok_(beside_ok), heading_(std::move(heading)),
          cell_names_(cell_names) {}

    void add(const Rows& rows) {
        stacks_buttons_ = rows.has_stacked_buttons();
        for (const auto& row : rows.rows()) row->accept(*this);
        grid_.setColumnStretch(1, 1);
        if (!has_tall_field_) grid_.setRowStretch(grid_.rowCount(), 1); // else that takes the room
    }

private:
    void visit(EntryRow& row) override { add_field(row); }
    void visit(ChoiceRow& row) override { add_field(row); }
    void visit(CheckRow& row) override { add_field(row); }
    void visit(NoteRow& row) override { add_field(row); }
    void visit(SwatchRow& row) override { add_field(row); }
    void visit(CanvasRow& row) override { add_field(row); }
    void visit(ListRow& row) override { add_field(row); }

    // Buttons that follow each other stand side by side, unless their group wants them below each other.
    void visit(ButtonRow& row) override {
        if (beside_ok_ != nullptr && stands_beside_ok(row)) return put_beside_ok(row, widgets_, *beside_ok_);
        if (stacks_buttons_) return add_field(row);
        if (buttons_ == nullptr) {
            buttons_ = new QHBoxLayout;
            buttons_->addStretch();
            grid_.addLayout(buttons_, grid_.rowCount(), 0, 1, 2);
        }
        buttons_->addWidget(&widgets_.field(row));
    }

    void visit(GridRow& row) override {
        buttons_ = nullptr;
        auto* const table = new QGridLayout;
        for (std::size_t column = 0; column < row.captions.size(); ++column)
            table->addWidget(new QLabel(string_of(row.captions[column]())), 0, static_cast<int>(column) + 1,
                             Qt::AlignHCenter);
        for (const auto& line : row.lines) add_line(*table, row, *line);
        grid_.addLayout(table, grid_.rowCount(), 0, 1, 2);
    }

    void add_line(QGridLayout& table, const GridRow& grid, const GridRow::Line& line) const {
        const int place = table.rowCount();
        auto* const label = new QLabel(string_of(line.label()));
        table.addWidget(label, place, 0);
        int column = 1;
        for (const auto& cell : line.cells.rows()) {
            auto& field = widgets_.field(*cell);
            if (column == 1 && !QKeySequence::mnemonic(label->text()).isEmpty()) make_buddies(*label, field);
            if (auto* const words = qobject_cast<QLabel*>(&field)) {
                words->setAlignment(Qt::AlignCenter);
                words->setWordWrap(false);
            }
            if (field.accessibleName().isEmpty()) {
                const auto index = static_cast<std::size_t>(column) - 1;
                field.setAccessibleName(distinct(cell_name(*label, grid, line, index), *cell));
            }
            const int columns = columns_of(*cell, grid, line);
            table.addWidget(&field, place, column++, 1, columns,
                            columns > 1 ? Qt::AlignLeft : Qt::Alignment());
        }
    }

    // A button that ends a line early reaches over the columns behind it.
    static int columns_of(const Row& cell, const GridRow& grid, const GridRow::Line& line) {
        const auto cells = line.cells.rows();
        if (&cell != cells.back().get() || dynamic_cast<const ButtonRow*>(&cell) == nullptr) return 1;
        const auto columns = std::max(grid.captions.size(), cells.size());
        return static_cast<int>(columns - cells.size()) + 1;
    }

    // Cells of lines that are called alike are told apart by their groups, or else by their keys.
    QString distinct(const QString& name, const Row& cell) const {
        if (cell_names_.insert(name.toLower()).second) return name;
        auto of_group = name + QLatin1String(", ") + heading_;
        if (!heading_.isEmpty() && cell_names_.insert(of_group.toLower()).second) return of_group;
        return name + QLatin1String(", ") + string_of(cell.key).replace(QLatin1Char('_'), QLatin1Char(' '));
    }

    // Of its line and its unit, or its column.
    static QString cell_name(const QLabel& label, const GridRow& grid, const GridRow::Line& line,
                             std::size_t column) {
        auto word = unit_word(line, column);
        if (word.empty() && column < grid.captions.size()) word = grid.captions[column]();
        return (spoken(label.text()) + QLatin1Char(' ') + spoken(string_of(word))).simplified();
    }

    // The words of a line stand each before its field, or all behind.
    static std::string unit_word(const GridRow::Line& line, std::size_t column) {
        const auto cells = line.cells.rows();
        const bool is_behind = dynamic_cast<const NoteRow*>(cells.back().get()) != nullptr;
        const auto place = is_behind ? column + 1 : column - 1; // before the first: beyond the end
        const auto* const word =
            place < cells.size() ? dynamic_cast<const NoteRow*>(cells[place].get()) : nullptr;
        return word == nullptr ? "" : word->label_text();
    }

    void add_field(Row& row) {
        buttons_ = nullptr;
        auto* const label = widgets_.label(row);
        const int place = grid_.rowCount();
        const bool is_tall = qobject_cast<QAbstractScrollArea*>(&widgets_.field(row)) != nullptr;
        has_tall_field_ = has_tall_field_ || is_tall;
        if (label != nullptr) grid_.addWidget(label, place, 0, is_tall ? Qt::AlignTop : Qt::Alignment());
        const int column = label == nullptr ? 0 : 1;
        auto* const unit = widgets_.unit(row);
        if (unit == nullptr) return grid_.addWidget(&widgets_.field(row), place, column, 1, 2 - column);
        auto* const field_and_unit = new QHBoxLayout;
        field_and_unit->addWidget(&widgets_.field(row));
        field_and_unit->addWidget(unit, 1);
        grid_.addLayout(field_and_unit, place, column, 1, 2 - column);
    }

    const FormWidgets& widgets_;
    QGridLayout& grid_;
    QDialogButtonBox* beside_ok_;
    QString heading_;
    std::set<QString>& cell_names_;
    QHBoxLayout* buttons_ = nullptr;
    bool stacks_buttons_ = false;
    bool has_tall_field_ = false;
};

QLayout* rows_layout(const Group& group, const FormWidgets& widgets, QDialogButtonBox* beside_ok,
                     std::set<QString>& cell_names) {
    auto* const grid = new QGridLayout;
    RowsLayout(widgets, *grid, beside_ok, spoken(string_of(group.heading())), cell_names).add(group.content);
    return grid;
}

void add_group(QVBoxLayout& column, const Group& group, QLayout* rows) {
    if (rows->isEmpty()) {
        delete rows; // its buttons stand beside OK
    } else if (group.heading().empty()) {
        column.addLayout(rows);
    } else {
        auto* const box = new QGroupBox(string_of(group.heading()));
        box->setAccessibleName(spoken(box->title()));
        box->setLayout(rows);
        column.addWidget(box);
    }
}

// The last frame reaches down to the end of the longest column.
void fill_up(QVBoxLayout& column) {
    const int last = column.count() - 1;
    if (last >= 0 && column.itemAt(last)->widget() != nullptr)
        column.setStretch(last, 1);
    else
        column.addStretch();
}

} // namespace

void add_field(QGridLayout& grid, const FormWidgets& widgets, std::string_view key, int row, int column,
               int columns) {
    if (auto* const label = widgets.label(key))
        grid.addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(&widgets.field(key), row, column + 1, 1, columns);
}

QLayout* lay_out(const Form& form, const FormWidgets& widgets, QDialogButtonBox* beside_ok) {
    auto* const columns = new QHBoxLayout;
    std::vector<QVBoxLayout*> all;
    std::set<QString> cell_names;
    for (const auto& group : form.groups()) {
        if (all.empty() || group->begins_column) {
            all.push_back(new QVBoxLayout);
            columns->addLayout(all.back(), 1);
        }
        add_group(*all.back(), *group, rows_layout(*group, widgets, beside_ok, cell_names));
    }
    for (auto* const column : all) fill_up(*column);
    return columns;
}

QHBoxLayout* button_line(const FormWidgets& widgets, std::initializer_list<const char*> left,
                         std::initializer_list<const char*> right) {
    auto* const line = new QHBoxLayout;
    const auto add = [&](std::initializer_list<const char*> keys) {
        for (const auto* const key : keys)
            if (widgets.form().has(key)) line->addWidget(&widgets.field(key));
    };
    add(left);
    line->addStretch();
    add(right);
    return line;
}

void lay_out_beside_ok(const Form& form, const FormWidgets& widgets, QDialogButtonBox& beside_ok) {
    form.for_each([&](Row& row) {
        if (dynamic_cast<ButtonRow*>(&row) != nullptr && stands_beside_ok(row))
            put_beside_ok(row, widgets, beside_ok);
    });
}

} // namespace wortlex
