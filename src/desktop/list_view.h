// A list row of a form as a table with real columns.
#pragma once

#include "forms/rows.h"

#include <QAbstractTableModel>
#include <QTreeView>

namespace wortlex {

class ListView;

class ListModel : public QAbstractTableModel {
public:
    ListModel(const ListRow& row, QObject* parent) : QAbstractTableModel(parent), row_(row) {}
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A text typed into a cell.
    bool setData(const QModelIndex& index, const QVariant& text, int role) override;
    /// Whatever cell typing begins in, letters find by the first column.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;
    /// Everything may have changed.
    void reload();

private:
    QVariant alignment(int column) const;
    QVariant ground(std::size_t row) const;
    QVariant font(std::size_t row) const;
    QVariant ink(std::size_t row) const;
    QVariant glass(const QModelIndex& index) const;
    QVariant mark(std::size_t row) const;
    QString words(const QModelIndex& index) const;
    const ListView& view() const;

    const ListRow& row_;
    std::size_t shown_count_ = 0; ///< that the view has been told of
};

/// Selects whole rows, one at a time. A double click or Enter acts on one, never a single click, by which
/// some desktops activate. Where cells can be typed into, a frame shows the one that a digit or F2 opens,
/// which is the current one, so that readers tell it; Enter goes on to the next row, Tab to the next cell,
/// and a double click opens the cell that it meets.
class ListView : public QTreeView {
public:
    ListView(const ListRow& row, QWidget* parent);
    /// Shows the list anew, with the row of the form's selection selected.
    void refresh();
    QSize sizeHint() const override;

    std::function<void(std::int32_t row)> selected;
    /// Text typed into the list; without it typing finds by the first column.
    std::function<void(const QString& text)> typed;
    std::function<void()> acted; ///< after a click on a head or a double click on a row
    std::function<void(const std::function<void()>& change)> changed; ///< carries out what was typed

protected:
    void keyboardSearch(const QString& text) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    friend class ListModel;

    void act(const std::function<void()>& action);
    QModelIndex cell_to_type() const;
    int current_column() const;
    bool is_typed_into(const QModelIndex& index) const;
    bool begins_typing(const QKeyEvent& event, const QModelIndex& cell) const;
    bool take_cell_key(QKeyEvent& event);
    void go_to_cell(int steps);
    void type_into_next_cell();
    void frame_cell();
    void show_sort_mark();
    void size_columns();
    void keep_stretched_readable();
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

    const ListRow& row_;
    ListModel* model_;
    QStringList captions_; ///< that the columns were sized for
    bool is_refreshing_ = false;
    std::size_t cell_ = 0; ///< of the columns that are typed into
};

} // namespace wortlex
