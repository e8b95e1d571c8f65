// The field that opens in a cell of a list to type into it.
#pragma once

#include "desktop/range_hint.h"
#include "forms/rows.h"

#include <QPointer>
#include <QStyledItemDelegate>

namespace wortlex {

/// Enter is refused as long as the row finds a fault with the text, which is told beside it.
class CellEditor : public QStyledItemDelegate {
public:
    CellEditor(const ListRow& row, QObject* parent) : QStyledItemDelegate(parent), row_(row) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    void judge(QWidget& editor, const QString& fault) const;

    const ListRow& row_;
    mutable QPointer<RangeHint> hint_; ///< of the window, made when it is first needed
};

} // namespace wortlex
